#include "app/Format.h"

#include "clean/Safety.h"
#include "platform/text/PathText.h"

#include <variant>

namespace orlen::Format {

std::string shownPath(std::string_view path)
{
    const std::string& home = Safety::home();
    if (home.size() > 1 && PathText::isAtOrBelow(path, home))
        return PathText::forDisplay("~" + std::string(path.substr(home.size())));
    return PathText::forDisplay(path);
}

std::string quoted(std::string_view path)
{
    return "\"" + PathText::forDisplay(path) + "\"";
}

Message displayable(Message message)
{
    for (Place& place : message.places) {
        if (auto* const name = std::get_if<std::string>(&place.value))
            *name = PathText::forDisplay(*name);
        else if (auto* const several = std::get_if<Several>(&place.value)) {
            for (Message& part : several->messages)
                part = displayable(std::move(part));
        }
    }
    return message;
}

} // namespace orlen::Format
