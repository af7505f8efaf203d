#include "insight/reader/HistoryReplies.h"

#include "platform/text/ByteCount.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <string_view>

namespace orlen::AskReader {

namespace {

constexpr std::string_view kHowToRestore =
    "To put things back, open History, choose the clean-up and restore "
    "it; or use “orlen history” and “orlen restore”.";
constexpr std::string_view kNoCleanUp = "There hasn't been a clean-up yet.";

std::string itemCount(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " item" : " items");
}

std::string lastText(const CleanRecord& record)
{
    std::string text = "Your last clean-up was on " + longDate(record.date) + ": it moved " +
                       itemCount(record.items.size()) + ", " + byteCount(record.freed()) + ", to the Trash.";
    const auto restored = std::ranges::count(record.items, true, &TrashedItem::restored);
    if (restored > 0)
        text += ' ' + itemCount(static_cast<std::size_t>(restored)) + " of it has been put back.";
    return text + ' ';
}

} // namespace

std::optional<Answer> lastCleanUp(const Question& /*question*/, const AskContext& context)
{
    if (context.history.empty())
        return Answer{std::string(kNoCleanUp), {}};
    return Answer{lastText(context.history.front()) + std::string(kHowToRestore), {}};
}

std::optional<Answer> allCleanUps(const Question& /*question*/, const AskContext& context)
{
    if (context.history.empty())
        return Answer{std::string(kNoCleanUp), {}};
    std::int64_t bytes = 0;
    for (const CleanRecord& record : context.history)
        bytes = checkedAdd(bytes, record.freed());
    const std::size_t count = context.history.size();
    return Answer{std::to_string(count) + (count == 1 ? " clean-up" : " clean-ups") + " since " +
                      longDate(context.history.back().date) + " moved " + byteCount(bytes) +
                      " to the Trash in all. " + lastText(context.history.front()) + "History lists them.",
                  {}};
}

std::optional<Answer> howToUndo(const Question& /*question*/, const AskContext& context)
{
    const std::string last =
        context.history.empty() ? std::string(kNoCleanUp) + ' ' : lastText(context.history.front());
    return Answer{last + std::string(kHowToRestore) +
                      " It works until the Trash is emptied; nothing is deleted by Orlen.",
                  {}};
}

} // namespace orlen::AskReader
