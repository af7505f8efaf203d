#include "window/lists/DisplayText.h"

#include "app/Format.h"
#include "model/FileEntry.h"
#include "platform/files/Places.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <QDateTime>
#include <QLocale>

#include <string>

namespace orlen::DisplayText {

namespace {

constexpr std::chrono::milliseconds kShortestTime{50};

QDateTime local(TimePoint time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time.time_since_epoch());
    return QDateTime::fromSecsSinceEpoch(seconds.count());
}

} // namespace

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString path(std::string_view bytes)
{
    return text(PathText::forDisplay(bytes));
}

QString shortPath(std::string_view bytes)
{
    const std::string& home = Places::current().home;
    if (home.size() > 1 && PathText::isAtOrBelow(bytes, home))
        return path("~" + std::string(bytes.substr(home.size())));
    return path(bytes);
}

QString folderOf(std::string_view bytes)
{
    return shortPath(PathText::parent(bytes));
}

QString nameOf(std::string_view bytes)
{
    return path(PathText::lastComponent(bytes));
}

QString size(std::int64_t bytes)
{
    return text(byteCount(bytes));
}

QString number(std::int64_t value)
{
    return QLocale().toString(static_cast<qlonglong>(value));
}

QString counted(std::int64_t count, const char* noun)
{
    return number(count) + u' ' + QLatin1String(noun) + (count == 1 ? "" : "s");
}

QString selectedOf(std::int64_t count, std::int64_t total)
{
    return QStringLiteral("%1 of %2 selected").arg(number(count), number(total));
}

QString duration(std::chrono::duration<double> time)
{
    if (time < kShortestTime)
        return QStringLiteral("< 0.1 s");
    return text(Format::duration(time.count()));
}

QString date(TimePoint time)
{
    return QLocale().toString(local(time).date(), QLocale::ShortFormat);
}

QString opened(TimePoint time)
{
    return QStringLiteral("Opened %1").arg(date(time));
}

QString modified(TimePoint time)
{
    return QStringLiteral("Modified %1").arg(date(time));
}

QString dateOf(const FileEntry& entry)
{
    if (entry.lastOpened)
        return opened(*entry.lastOpened);
    return entry.modified ? modified(*entry.modified) : QString();
}

QString dateAndTime(TimePoint time)
{
    // The short form includes seconds in a few languages; nobody needs them here.
    const QLocale locale;
    return locale.toString(local(time), locale.dateTimeFormat(QLocale::ShortFormat).remove(":ss"));
}

QColor colour(OrlenCategory category)
{
    const CategoryColour c = orlen::colour(category);
    return QColor::fromRgbF(static_cast<float>(c.red), static_cast<float>(c.green),
                            static_cast<float>(c.blue));
}

} // namespace orlen::DisplayText
