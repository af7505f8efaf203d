#pragma once

namespace orlen::ThreadPriority {

/// From now on the calling thread, and all threads and processes that it starts, give way to the others when
/// the processor is busy: a window stays quick beside them. Cannot be taken back. Any thread.
void giveWay();

} // namespace orlen::ThreadPriority
