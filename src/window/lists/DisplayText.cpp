#include "window/lists/DisplayText.h"

#include "app/Format.h"
#include "model/FileEntry.h"
#include "model/ModelTexts.h"
#include "model/Words.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "window/WindowTexts.h"

#include <string>

namespace orlen::DisplayText {

namespace {

constexpr double kLeastShare = 0.01;

} // namespace

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString text(const Text& words)
{
    return text(shown(words));
}

QString text(const Message& message)
{
    return text(shown(Format::displayable(message)));
}

QString facts(QStringList facts)
{
    constexpr QChar kUnbroken(0xa0);
    QString between = text(ModelTexts::kBetweenFacts);
    if (between.startsWith(u' '))
        between[0] = kUnbroken;
    facts.removeAll(QString());
    return facts.join(between);
}

QString path(std::string_view bytes)
{
    return text(Words::isolated(PathText::forDisplay(bytes)));
}

QString line(std::string_view bytes)
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
    return text(Words::figures().bytes(bytes));
}

QString number(std::int64_t value)
{
    return text(Words::figures().number(value));
}

QString pixels(int width, int height)
{
    return QStringLiteral("%1 × %2").arg(number(width), number(height));
}

Value percentOf(double share)
{
    if (share < kLeastShare)
        return within(Message(WindowTexts::kLessThan, {{"share", Share{kLeastShare}}}));
    return Share{share};
}

QString percent(double share)
{
    Message message;
    message.places.push_back({"share", percentOf(share)});
    return text(message);
}

QString counted(std::int64_t count, const Text& words)
{
    return text(Message(words, {{"count", count}}));
}

QString capitalized(const QString& text)
{
    return text.left(1).toUpper() + text.mid(1);
}

QString progress(std::int64_t done, std::int64_t total)
{
    return text(Message(WindowTexts::kDoneOf, {{"count", done}, {"total", total}}));
}

QString selectedOf(std::int64_t count, std::int64_t total)
{
    return text(Message(WindowTexts::kSelectedOf, {{"count", count}, {"total", total}}));
}

QString duration(std::chrono::duration<double> time)
{
    return text(Words::figures().duration(time));
}

QString date(TimePoint time)
{
    return text(Words::figures().date(time));
}

QString opened(TimePoint time)
{
    return text(Message(WindowTexts::kOpened, {{"date", Moment{time, Moment::Form::day}}}));
}

QString modified(TimePoint time)
{
    return text(Message(WindowTexts::kModified, {{"date", Moment{time, Moment::Form::day}}}));
}

QString dateOf(const FileEntry& entry)
{
    if (entry.lastOpened)
        return opened(*entry.lastOpened);
    return entry.modified ? modified(*entry.modified) : QString();
}

QString dateAndTime(TimePoint time)
{
    return text(Words::figures().dateAndTime(time));
}

QColor colour(OrlenCategory category)
{
    const CategoryColour c = orlen::colour(category);
    return QColor::fromRgbF(static_cast<float>(c.red), static_cast<float>(c.green),
                            static_cast<float>(c.blue));
}

} // namespace orlen::DisplayText
