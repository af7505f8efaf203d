#include "insight/reader/GrowthReplies.h"

#include "insight/AskText.h"
#include "insight/Growth.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace orlen::AskReader {

std::optional<Answer> whatGrew(const Question& question, const AskContext& context)
{
    constexpr std::size_t kNamed = 5;
    const Phrase* const period = question.first(Sense::period);
    if (period != nullptr && period->period->from > context.now)
        return std::nullopt;
    std::optional<Growth> growth;
    if (period == nullptr)
        growth = Growth::sinceLastScan(context.folders);
    else if (question.senses.meets({Sense::since, Sense::after}))
        growth = Growth::between(context.folders, period->period->from);
    else
        growth = Growth::between(context.folders, period->period->from, period->period->to);
    if (!growth)
        return Answer{InsightTexts::kNothingToCompare, {}};
    const bool isOver = period != nullptr && !question.senses.meets({Sense::since, Sense::after}) &&
                        period->period->to < context.now;
    const std::vector<Place> span =
        isOver ? std::vector<Place>{{"first", growth->start()}, {"last", Moment{growth->until}}}
               : std::vector<Place>{{"date", growth->start()}};
    if (growth->folders.empty())
        return Answer{Message{isOver ? InsightTexts::kNothingGrewBetween : InsightTexts::kNothingGrew, span},
                      {}};
    std::vector<Message> lines{{isOver ? InsightTexts::kGrewBetween : InsightTexts::kGrewSince, span}};
    for (std::size_t i = 0; i < std::min(growth->folders.size(), kNamed); ++i) {
        const Growth::Folder& folder = growth->folders[i];
        lines.push_back(
            {InsightTexts::kGrewFolder,
             {{"path", tilde(folder.path)}, {"size", Bytes{folder.bytes()}}, {"now", Bytes{folder.now}}}});
    }
    return Answer{AskText::lines(std::move(lines)), {}};
}

} // namespace orlen::AskReader
