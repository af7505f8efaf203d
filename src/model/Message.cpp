#include "model/Message.h"

#include "model/MessageText.h"
#include "platform/text/Figures.h"

#include <utility>

namespace orlen {

bool operator==(const Several& a, const Several& b)
{
    return a.joint == b.joint && a.messages == b.messages;
}

Message Message::verbatim(std::string text)
{
    Message message;
    if (!text.empty())
        message.places.push_back({"text", std::move(text)});
    return message;
}

Message Message::joined(std::vector<Message> messages, Several::Joint joint)
{
    Message message;
    std::erase_if(messages, [](const Message& part) { return part.empty(); });
    if (messages.size() == 1)
        return std::move(messages.front());
    if (!messages.empty())
        message.places.push_back({"text", Several{std::move(messages), joint}});
    return message;
}

std::string Message::base() const
{
    const auto asItStands = [](const Text& words, std::int64_t count) {
        return std::string(words.base(count));
    };
    return MessageText::filled(*this, {asItStands, Figures::plain()});
}

Value within(Message message)
{
    return Several{{std::move(message)}, Several::Joint::list};
}

} // namespace orlen
