#pragma once

#include "model/Text.h"
#include "platform/values/Time.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orlen {

struct Message;

/// A size in bytes, in a message.
struct Bytes {
    std::int64_t value = 0;
    friend bool operator==(const Bytes&, const Bytes&) = default;
};

/// A share of 1, in a message; shown in whole per cent.
struct Share {
    double value = 0;
    friend bool operator==(const Share&, const Share&) = default;
};

/// A time, in a message.
struct Moment {
    enum class Form {
        day,     ///< short, in numbers
        longDay, ///< with the month's name, as in a sentence
        minute,  ///< day and time of day
        year,    ///< the year alone
    };

    TimePoint value;
    Form form = Form::longDay;
    friend bool operator==(const Moment&, const Moment&) = default;
};

/// Several messages in one.
struct Several {
    enum class Joint {
        list,      ///< "a, b and c"
        commas,    ///< "a, b, c"
        facts,     ///< "a · b"
        sentences, ///< one behind the other
        lines,     ///< one below the other
    };

    std::vector<Message> messages;
    Joint joint = Joint::list;
    friend bool operator==(const Several&, const Several&);
};

/// What stands in a place of a message: a name as it is, a whole number, and so on.
using Value =
    std::variant<std::string, std::int64_t, Bytes, Share, Moment, std::chrono::duration<double>, Several>;

/// A place of a message and what stands there.
struct Place {
    std::string_view name; ///< a literal: what stands in braces
    Value value;
    friend bool operator==(const Place&, const Place&) = default;
};

/// A text with what fills its places. The place "count" holds the number that its plural depends on.
struct Message {
    Message() = default;
    Message(Text textOfIt) : text(textOfIt) {} // NOLINT(google-explicit-constructor): a text is a message
    Message(Text textOfIt, std::vector<Place> placesOfIt) : text(textOfIt), places(std::move(placesOfIt)) {}

    /// A name, which no language changes.
    [[nodiscard]] static Message verbatim(std::string text);
    [[nodiscard]] static Message joined(std::vector<Message> messages, Several::Joint joint);

    [[nodiscard]] bool empty() const { return text.empty() && places.empty(); }
    /// In the program's own English with plain figures, for JSON and for files.
    [[nodiscard]] std::string base() const;

    Text text; ///< empty: what stands in the places is all there is
    std::vector<Place> places;

    friend bool operator==(const Message&, const Message&) = default;
};

/// A message within another.
[[nodiscard]] Value within(Message message);

} // namespace orlen
