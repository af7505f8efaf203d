#pragma once

/// Makes one call of this process that changes files fail, as a disk would. The calls of the C library are
/// replaced by ones that count.
namespace orlen::Faults {

enum class Extent {
    once,      ///< one call fails
    fromThere, ///< it and every later one
};

/// From now on the calls are counted, from 0, and the one of this number fails with `error`. A number below 0
/// only counts.
void arm(int number, int error, Extent extent);
/// No call fails any more. Returns how many there were.
int disarm();

} // namespace orlen::Faults
