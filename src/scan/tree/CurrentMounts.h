#pragma once

#include "platform/files/MountTable.h"

#include <memory>

/// The mount table for measuring, reread when older than a second, so that many small measurements share one
/// reading. Any thread.
namespace orlen::CurrentMounts {

[[nodiscard]] std::shared_ptr<const MountTable> table();

} // namespace orlen::CurrentMounts
