#include "insight/AskText.h"

#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <functional>

namespace orlen::AskText {

std::string joined(const std::vector<std::string>& parts, std::string_view separator)
{
    std::string text;
    for (const std::string& part : parts) {
        if (&part != &parts.front())
            text += separator;
        text += part;
    }
    return text;
}

std::string fileName(const FileEntry& entry)
{
    return PathText::forDisplay(PathText::lastComponent(entry.path));
}

std::string largestCategories(const StorageBreakdown& breakdown)
{
    constexpr std::size_t kNamed = 4;
    using Category = std::pair<OrlenCategory, std::int64_t>;
    std::vector<Category> categories(breakdown.cats.begin(), breakdown.cats.end());
    std::ranges::stable_sort(categories, std::greater{}, &Category::second);
    std::vector<std::string> parts;
    for (std::size_t i = 0; i < std::min(categories.size(), kNamed); ++i)
        parts.push_back(sized(categories[i]));
    return joined(parts, ", ");
}

std::string sized(const std::pair<const OrlenCategory, std::int64_t>& category)
{
    return std::string(label(category.first)) + ' ' + byteCount(category.second);
}

std::string sized(std::string_view name, std::int64_t bytes)
{
    return std::string(name) + " (" + byteCount(bytes) + ')';
}

} // namespace orlen::AskText
