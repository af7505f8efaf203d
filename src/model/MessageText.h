#pragma once

#include "model/Message.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orlen {
class Figures;
}

/// Fills the places of messages. Pure, as far as the functions it is given are.
namespace orlen::MessageText {

/// How a message is said.
struct Voice {
    /// The text to fill, for this number of things.
    std::function<std::string(const Text& text, std::int64_t count)> words;
    const Figures& figures;
    /// What becomes of a name; without it, names stay as they are.
    std::function<std::string(const std::string& name)> name = {};
};

/// A place that the message does not fill stays as it is, in its braces.
[[nodiscard]] std::string filled(const Message& message, const Voice& voice);

/// The message whose English was kept, found again: the first of the texts that reads like it, with names in
/// its places. Nothing if none does. For texts without a number.
[[nodiscard]] std::optional<Message> recognized(std::string_view kept, std::span<const Text> texts);

} // namespace orlen::MessageText
