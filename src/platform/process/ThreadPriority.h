#pragma once

namespace orlen::ThreadPriority {

/// Lowers the priority of the calling thread, and of all threads and processes it starts, so that a busy
/// processor keeps windows responsive. Cannot be undone. Any thread.
void giveWay();

} // namespace orlen::ThreadPriority
