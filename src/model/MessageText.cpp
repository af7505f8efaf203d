#include "model/MessageText.h"

#include "model/ModelTexts.h"
#include "platform/text/Figures.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen::MessageText {

namespace {

std::string joinedBy(std::span<const std::string> parts, std::string_view separator)
{
    std::string text;
    for (const std::string& part : parts) {
        if (&part != &parts.front())
            text += separator;
        text += part;
    }
    return text;
}

std::string joined(const Several& several, const Voice& voice)
{
    std::vector<std::string> parts;
    for (const Message& message : several.messages)
        parts.push_back(filled(message, voice));
    switch (several.joint) {
    case Several::Joint::list:
        return voice.figures.list(parts);
    case Several::Joint::commas:
        return joinedBy(parts, voice.words(messageIn("between the items of a list", ", "), 1));
    case Several::Joint::facts:
        return joinedBy(parts, voice.words(ModelTexts::kBetweenFacts, 1));
    case Several::Joint::sentences:
        return joinedBy(parts, voice.words(messageIn("between two sentences", " "), 1));
    case Several::Joint::lines:
        return joinedBy(parts, "\n");
    }
    return {};
}

std::string written(const Moment& moment, const Figures& figures)
{
    switch (moment.form) {
    case Moment::Form::day:
        return figures.date(moment.value);
    case Moment::Form::longDay:
        return figures.longDate(moment.value);
    case Moment::Form::minute:
        return figures.dateAndTime(moment.value);
    case Moment::Form::year:
        return figures.year(moment.value);
    }
    return {};
}

/// One overload for each kind of value.
struct Writer {
    const Voice& voice;

    std::string operator()(const std::string& name) const { return voice.name ? voice.name(name) : name; }
    std::string operator()(std::int64_t number) const { return voice.figures.number(number); }
    std::string operator()(const Bytes& size) const { return voice.figures.bytes(size.value); }
    std::string operator()(const Share& share) const { return voice.figures.percent(share.value); }
    std::string operator()(const Moment& moment) const { return written(moment, voice.figures); }
    std::string operator()(std::chrono::duration<double> time) const { return voice.figures.duration(time); }
    std::string operator()(const Several& several) const { return joined(several, voice); }
};

const Value* valueOf(const Message& message, std::string_view place)
{
    const auto found = std::ranges::find(message.places, place, &Place::name);
    return found == message.places.end() ? nullptr : &found->value;
}

std::int64_t countOf(const Message& message)
{
    const Value* const value = valueOf(message, "count");
    const auto* const count = value == nullptr ? nullptr : std::get_if<std::int64_t>(value);
    return count == nullptr ? 1 : *count;
}

/// What stands in the places of a text that reads like this; nothing if it reads otherwise.
std::optional<std::vector<Place>> placesIn(std::string_view kept, std::string_view text)
{
    std::vector<Place> places;
    for (;;) {
        const std::size_t open = text.find('{');
        const std::size_t close = text.find('}', open);
        if (close == std::string_view::npos)
            return kept == text ? std::optional(std::move(places)) : std::nullopt;
        if (!kept.starts_with(text.substr(0, open)))
            return std::nullopt;
        const std::string_view place = text.substr(open + 1, close - open - 1);
        kept.remove_prefix(open);
        text.remove_prefix(close + 1);
        // The last name goes as far as it can, in case the words behind it are in it too.
        const std::string_view behind = text.substr(0, text.find('{'));
        const std::size_t end = behind.size() == text.size() ? kept.rfind(behind) : kept.find(behind);
        if (end == std::string_view::npos || end == 0)
            return std::nullopt;
        places.push_back({place, std::string(kept.substr(0, end))});
        kept.remove_prefix(end);
    }
}

} // namespace

std::string filled(const Message& message, const Voice& voice)
{
    const Writer writer{voice};
    if (message.text.empty()) {
        if (message.places.empty())
            return {};
        return std::visit(writer, message.places.front().value);
    }
    const std::string text = voice.words(message.text, countOf(message));
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t open = std::min(text.find('{', at), text.size());
        const std::size_t close = text.find('}', open);
        result.append(text, at, open - at);
        if (close == std::string::npos) {
            result.append(text, open);
            break;
        }
        const Value* const value =
            valueOf(message, std::string_view(text).substr(open + 1, close - open - 1));
        if (value == nullptr)
            result.append(text, open, close + 1 - open);
        else
            result += std::visit(writer, *value);
        at = close + 1;
    }
    return result;
}

std::optional<Message> recognized(std::string_view kept, std::span<const Text> texts)
{
    for (const Text& text : texts) {
        if (auto places = placesIn(kept, text.base()))
            return Message{text, *std::move(places)};
    }
    return std::nullopt;
}

} // namespace orlen::MessageText
