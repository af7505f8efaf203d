#include "platform/mac/PropertyList.h"

#include "platform/files/FileContent.h"
#include "platform/mac/BinaryPlist.h"
#include "platform/text/PathText.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace orlen {

namespace {

/// Real lists have a few kilobytes.
constexpr std::size_t kListLimit = 512UL * 1024;

/// The library recurses as deep as the list nests, which cannot be deeper than its number of arrays and
/// dictionaries.
constexpr std::size_t kMostContainers = BinaryPlist::kMostContainers;

struct FreePlist {
    void operator()(void* list) const { plist_free(list); }
};
using Plist = std::unique_ptr<void, FreePlist>;

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Allocated = std::unique_ptr<T, FreeMemory>;

bool hasFewContainers(std::string_view xml)
{
    std::size_t count = 0;
    for (const std::string_view tag : {"<array", "<dict"}) {
        for (std::size_t at = xml.find(tag); at != std::string_view::npos; at = xml.find(tag, at + 1))
            ++count;
    }
    return count <= kMostContainers;
}

Plist parsed(std::string_view bytes)
{
    const auto length = static_cast<std::uint32_t>(bytes.size());
    plist_t list = nullptr;
    // The library copies an object of a binary list once per reference.
    if (BinaryPlist::isBinary(bytes) && BinaryPlist::isSafeToUnfold(bytes))
        plist_from_bin(bytes.data(), length, &list);
    else if (!BinaryPlist::isBinary(bytes) && hasFewContainers(bytes))
        plist_from_xml(bytes.data(), length, &list);
    return Plist(list);
}

bool isOfType(plist_t node, plist_type type)
{
    return node != nullptr && plist_get_node_type(node) == type;
}

/// Whether the text can be displayed and be part of a path.
bool isUsable(std::string_view text)
{
    return PathText::isValidUtf8(text) && text.find('\0') == std::string_view::npos;
}

/// Nothing if it is not usable text.
std::optional<std::string> textOf(plist_t node)
{
    if (!isOfType(node, PLIST_STRING))
        return std::nullopt;
    std::uint64_t length = 0;
    const char* bytes = plist_get_string_ptr(node, &length);
    if (bytes == nullptr)
        return std::nullopt;
    const std::string_view text(bytes, length);
    return isUsable(text) ? std::optional(std::string(text)) : std::nullopt;
}

std::vector<std::string> textsOf(plist_t array)
{
    std::vector<std::string> texts;
    for (std::uint32_t i = 0; i < plist_array_get_size(array); ++i) {
        if (auto text = textOf(plist_array_get_item(array, i)))
            texts.push_back(std::move(*text));
    }
    return texts;
}

} // namespace

std::optional<PropertyList> PropertyList::parsed(std::string_view bytes)
{
    if (bytes.empty() || bytes.size() > kListLimit)
        return std::nullopt;
    const Plist list = orlen::parsed(bytes);
    if (!isOfType(list.get(), PLIST_DICT))
        return std::nullopt;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(list.get(), &iterator);
    const Allocated<void> iteratorOwner(iterator);
    PropertyList result;
    while (true) {
        char* name = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(list.get(), iterator, &name, &value);
        const Allocated<char> nameOwner(name);
        if (name == nullptr)
            return result;
        if (!isUsable(name))
            continue;
        if (auto text = textOf(value))
            result.texts.emplace(name, std::move(*text));
        else if (isOfType(value, PLIST_ARRAY))
            result.textLists.emplace(name, textsOf(value));
    }
}

std::optional<PropertyList> PropertyList::read(const std::string& path)
{
    const auto bytes = readSmallFile(path, kListLimit);
    return bytes ? parsed(*bytes) : std::nullopt;
}

std::string PropertyList::text(std::string_view key) const
{
    const auto found = texts.find(key);
    return found == texts.end() ? std::string() : found->second;
}

} // namespace orlen
