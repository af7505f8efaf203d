#include "platform/BundleInfo.h"

#include "platform/BinaryPlist.h"
#include "platform/FileContent.h"

#include <plist/plist.h>

#include <memory>
#include <optional>
#include <string_view>

namespace orlen::BundleInfo {

namespace {

/// Real lists have a few kilobytes. The library nests calls as deep as lists nest, and this many bytes cannot
/// nest deep enough to run out of stack.
constexpr std::size_t kListLimit = 512UL * 1024;

struct FreePlist {
    void operator()(void* list) const { plist_free(list); }
};
using Plist = std::unique_ptr<void, FreePlist>;

Plist parsed(std::string_view bytes)
{
    // The library copies what a binary list refers to once for each reference.
    if (BinaryPlist::isBinary(bytes) && !BinaryPlist::isSafeToUnfold(bytes))
        return nullptr;
    plist_t list = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
    return Plist(list);
}

} // namespace

std::string identifier(const std::string& bundle)
{
    const auto bytes = readSmallFile(bundle + "/Contents/Info.plist", kListLimit);
    if (!bytes || bytes->empty())
        return {};
    const Plist list = parsed(*bytes);
    if (!list || plist_get_node_type(list.get()) != PLIST_DICT)
        return {};
    plist_t text = plist_dict_get_item(list.get(), "CFBundleIdentifier");
    if (text == nullptr || plist_get_node_type(text) != PLIST_STRING)
        return {};
    std::uint64_t length = 0;
    const char* bytesOfText = plist_get_string_ptr(text, &length);
    return bytesOfText == nullptr ? std::string() : std::string(bytesOfText, length);
}

} // namespace orlen::BundleInfo
