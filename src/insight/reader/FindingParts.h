#pragma once

#include "insight/AskContext.h"
#include "insight/AskEngine.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace orlen::AskReader {

/// A finding and how many bytes of it an answer is about.
struct FindingPart {
    const Finding* finding = nullptr;
    std::int64_t bytes = 0;
};

/// The findings of which `size` is more than nothing.
[[nodiscard]] std::vector<FindingPart> largestFirst(const AskContext& context,
                                                    const std::function<std::int64_t(const Finding&)>& size);

[[nodiscard]] std::int64_t sumOf(const std::vector<FindingPart>& parts);

/// The first of the parts in words; the answer links to them.
[[nodiscard]] Several listed(const std::vector<FindingPart>& parts, std::size_t most, Answer& answer);

} // namespace orlen::AskReader
