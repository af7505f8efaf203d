#pragma once

#include "platform/files/MountTable.h"

#include <memory>

/// The mount table for measuring, read again when the last one is older than a second: many small
/// measurements in a row share one reading. Any thread.
namespace orlen::CurrentMounts {

[[nodiscard]] std::shared_ptr<const MountTable> table();

} // namespace orlen::CurrentMounts
