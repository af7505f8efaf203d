#include "tools/startup/SessionUnitName.h"

namespace orlen::SessionUnitName {

namespace {

constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789:_.";

std::string escaped(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string name;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const bool isHiddenName = at == 0 && text[at] == '.';
        if (kPlain.find(text[at]) != std::string_view::npos && !isHiddenName)
            name += text[at];
        else
            name.append("\\x") += {kDigits[byte / 16U], kDigits[byte % 16U]};
    }
    return name;
}

} // namespace

std::string ofEntry(std::string_view label)
{
    return "app-" + escaped(label) + "@autostart.service";
}

} // namespace orlen::SessionUnitName
