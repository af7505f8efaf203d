#include "window/findings/SheetTexts.h"

#include "model/FileEntry.h"
#include "window/lists/DisplayText.h"

namespace orlen::SheetTexts {

QString selected(std::int64_t count, std::int64_t total, std::int64_t bytes)
{
    return QStringLiteral("%1 of %2 selected · %3")
        .arg(DisplayText::number(count), DisplayText::number(total), DisplayText::size(bytes));
}

QString itemCount(std::int64_t count)
{
    return (count == 1 ? QStringLiteral("%1 item") : QStringLiteral("%1 items"))
        .arg(DisplayText::number(count));
}

QString items(std::int64_t count, std::int64_t bytes)
{
    return QStringLiteral("%1 · %2").arg(itemCount(count), DisplayText::size(bytes));
}

QString why(Rating rating, std::string_view reason)
{
    if (reason.empty())
        return {};
    return QStringLiteral("Why %1: %2").arg(DisplayText::text(label(rating)), DisplayText::text(reason));
}

QString opened(TimePoint time)
{
    return QStringLiteral("Opened %1").arg(DisplayText::date(time));
}

QString modified(TimePoint time)
{
    return QStringLiteral("Modified %1").arg(DisplayText::date(time));
}

QString dateOf(const FileEntry& entry)
{
    if (entry.lastOpened)
        return opened(*entry.lastOpened);
    return entry.modified ? modified(*entry.modified) : QString();
}

std::optional<TimePoint> shownDate(const FileEntry& entry)
{
    return entry.lastOpened ? entry.lastOpened : entry.modified;
}

QString selectedCount(std::int64_t count, std::int64_t total)
{
    return QStringLiteral("%1 of %2 selected").arg(DisplayText::number(count), DisplayText::number(total));
}

QString progress(std::int64_t done, std::int64_t total)
{
    return QStringLiteral("%1 of %2").arg(DisplayText::number(done), DisplayText::number(total));
}

QString pixels(int width, int height)
{
    return QStringLiteral("%1 × %2").arg(DisplayText::number(width), DisplayText::number(height));
}

} // namespace orlen::SheetTexts
