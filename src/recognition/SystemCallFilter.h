#pragma once

/// The system calls that decoding needs.
namespace orlen::SystemCallFilter {

/// From now on every thread of this process may only make these calls: reading and writing open files, using
/// standard input, non-executable memory, threads, time; on request, opening files for reading. Whether it is
/// in force; false where the system cannot filter, and then nothing changes.
[[nodiscard]] bool apply(bool mayOpen);

} // namespace orlen::SystemCallFilter
