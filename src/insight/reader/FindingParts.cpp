#include "insight/reader/FindingParts.h"

#include "insight/AskText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>

namespace orlen::AskReader {

std::vector<FindingPart> largestFirst(const AskContext& context,
                                      const std::function<std::int64_t(const Finding&)>& size)
{
    std::vector<FindingPart> parts;
    for (const Finding& finding : context.findings) {
        if (const std::int64_t bytes = size(finding); bytes > 0)
            parts.push_back({&finding, bytes});
    }
    std::ranges::stable_sort(parts, std::greater{}, &FindingPart::bytes);
    return parts;
}

std::int64_t sumOf(const std::vector<FindingPart>& parts)
{
    std::int64_t bytes = 0;
    for (const FindingPart& part : parts)
        bytes = checkedAdd(bytes, part.bytes);
    return bytes;
}

Several listed(const std::vector<FindingPart>& parts, std::size_t most, Answer& answer)
{
    Several list{{}, Several::Joint::commas};
    for (std::size_t i = 0; i < std::min(parts.size(), most); ++i) {
        list.messages.push_back(AskText::sized(within(parts[i].finding->title), parts[i].bytes));
        answer.findingIDs.emplace_back(parts[i].finding->id());
    }
    return list;
}

} // namespace orlen::AskReader
