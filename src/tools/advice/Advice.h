#pragma once

#include "model/OrlenCategory.h"
#include "platform/values/Time.h"
#include "scan/CategoryFolder.h"
#include "tools/advice/AdviceItem.h"

#include <span>
#include <stop_token>
#include <string_view>
#include <vector>

/// What fills the disk where Orlen moves nothing: packages, logs, kernels, containers and the like. It looks
/// and measures, but never runs a command itself.
namespace orlen::Advice {

/// What there is on this machine, largest first, then what has no known size. Only what may be read without
/// privileges is looked at; links are not followed, and network disks are not asked. Blocks on the disk; a
/// stopped collection returns what it has.
[[nodiscard]] std::vector<AdviceItem> collect(TimePoint now, const std::stop_token& stop = {});

/// The advice that covers this path, the most specific one; null if none does. Pure.
[[nodiscard]] const AdviceItem* forPath(std::span<const AdviceItem> advice, std::string_view path);

/// The advice about what counts for this category of the storage breakdown, which consists of `folders`, in
/// order. Pure.
[[nodiscard]] std::vector<AdviceItem> forCategory(std::span<const AdviceItem> advice, OrlenCategory category,
                                                  std::span<const CategoryFolder> folders);

} // namespace orlen::Advice
