#pragma once

/// The system calls that decoding needs.
namespace orlen::SystemCallFilter {

/// From now on every thread of this process may make these calls only: reading and writing what is open,
/// talking over standard input, memory without code, threads, time. Whether it holds; false where the system
/// cannot filter, and then nothing changes.
[[nodiscard]] bool apply();

} // namespace orlen::SystemCallFilter
