#include "insight/reader/HistoryReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace orlen::AskReader {

namespace {

Message lastOf(const std::vector<CleanRecord>& history)
{
    if (history.empty())
        return InsightTexts::kNoCleanUp;
    const CleanRecord& record = history.front();
    Message moved{InsightTexts::kLastCleanUp,
                  {{"date", Moment{record.date}},
                   {"count", std::ssize(record.items)},
                   {"size", Bytes{record.freed()}}}};
    const std::int64_t restored = std::ranges::count(record.items, true, &TrashedItem::restored);
    if (restored == 0)
        return moved;
    return AskText::sentences({moved, Message{InsightTexts::kPutBack, {{"count", restored}}}});
}

} // namespace

std::optional<Answer> lastCleanUp(const Question& /*question*/, const AskContext& context)
{
    if (context.history.empty())
        return Answer{InsightTexts::kNoCleanUp, {}};
    return Answer{AskText::sentences({lastOf(context.history), InsightTexts::kHowToRestore}), {}};
}

std::optional<Answer> allCleanUps(const Question& /*question*/, const AskContext& context)
{
    if (context.history.empty())
        return Answer{InsightTexts::kNoCleanUp, {}};
    std::int64_t bytes = 0;
    for (const CleanRecord& record : context.history)
        bytes = checkedAdd(bytes, record.freed());
    const Message all{InsightTexts::kCleanUps,
                      {{"count", std::ssize(context.history)},
                       {"date", Moment{context.history.back().date}},
                       {"size", Bytes{bytes}}}};
    return Answer{AskText::sentences({all, lastOf(context.history), InsightTexts::kHistoryListsThem}), {}};
}

std::optional<Answer> howToUndo(const Question& /*question*/, const AskContext& context)
{
    return Answer{AskText::sentences({lastOf(context.history), InsightTexts::kHowToRestore,
                                      InsightTexts::kUntilTrashIsEmptied}),
                  {}};
}

} // namespace orlen::AskReader
