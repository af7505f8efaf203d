#include "Require.h"
#include "platform/mac/PropertyList.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

bool isUsable(const std::string& text)
{
    return orlen::PathText::isValidUtf8(text) && text.find('\0') == std::string::npos;
}

std::string bigEndian(std::size_t value, int width)
{
    std::string bytes;
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(value >> static_cast<unsigned>(shift)));
    return bytes;
}

/// A binary list whose table and trailer are right, so that the objects are looked at and not only the frame.
/// In the input a byte stands before each object and tells its length.
std::string framed(std::string_view input)
{
    std::string list = "bplist00";
    std::string offsets;
    while (!input.empty()) {
        const std::size_t length = static_cast<unsigned char>(input.front());
        offsets += bigEndian(list.size(), 4);
        list += input.substr(1, length);
        input.remove_prefix(std::min(input.size(), 1 + length));
    }
    const std::size_t table = list.size();
    return list + offsets + std::string("\0\0\0\0\0\0\4\1", 8) + bigEndian(offsets.size() / 4, 8) +
           bigEndian(0, 8) + bigEndian(table, 8);
}

} // namespace

/// Binary lists that the look at their structure lets pass, and XML lists, are read without harm.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const auto list = input.starts_with('#') ? orlen::PropertyList::parsed(framed(input.substr(1)))
                                             : orlen::PropertyList::parsed(input);
    if (!list)
        return 0;
    for (const auto& [key, text] : list->texts)
        require(isUsable(key) && isUsable(text) && list->text(key) == text);
    for (const auto& [key, texts] : list->textLists) {
        for (const std::string& text : texts)
            require(isUsable(text));
    }
    return 0;
}
