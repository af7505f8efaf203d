#include "window/shell/WordsElement.h"

#include "clean/Persist.h"
#include "model/Words.h"
#include "window/lists/DisplayText.h"

#include <string>
#include <utility>
#include <vector>

namespace orlen {

namespace {

Value valueOf(const QVariant& place)
{
    if (place.typeId() == QMetaType::QString)
        return place.toString().toStdString();
    return static_cast<std::int64_t>(place.toLongLong());
}

QString shownText(const QString& context, const QString& one, const QString& many, const QVariantMap& places)
{
    const std::string in = context.toStdString();
    const std::string singular = one.toStdString();
    const std::string plural = many.toStdString();
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(places.size())); // a message's places only view them
    Message message(screenText(in, singular, plural), {});
    for (const auto& [name, value] : places.asKeyValueRange())
        message.places.push_back({names.emplace_back(name.toStdString()), valueOf(value)});
    return DisplayText::text(shown(message));
}

} // namespace

bool WordsElement::isRightToLeft()
{
    return Words::isRightToLeft();
}

QString WordsElement::dataFolder()
{
    return DisplayText::shortPath(Persist::dir());
}

QString WordsElement::facts(const QStringList& facts)
{
    return DisplayText::facts(facts);
}

QString WordsElement::message(const QString& text, const QVariantMap& places)
{
    return shownText({}, text, {}, places);
}

QString WordsElement::messageIn(const QString& context, const QString& text, const QVariantMap& places)
{
    return shownText(context, text, {}, places);
}

QString WordsElement::messages(const QString& one, const QString& many, const QVariantMap& places)
{
    return shownText({}, one, many, places);
}

} // namespace orlen
