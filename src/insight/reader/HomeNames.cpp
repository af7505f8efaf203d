#include "insight/reader/HomeNames.h"

#include "insight/reader/LowerName.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace orlen {

namespace {

using Number = HomeFiles::Number;

constexpr std::uint64_t kFolderBit = 0x8000'0000;
constexpr unsigned kHashShift = 32;

std::uint64_t hashOf(std::string_view lower)
{
    return static_cast<std::uint64_t>(std::hash<std::string_view>()(lower)) >> kHashShift << kHashShift;
}

} // namespace

HomeNames::HomeNames(std::shared_ptr<const HomeFiles> home) : m_home(std::move(home))
{
    std::string lower;
    m_names.reserve(m_home->folderCount() + m_home->fileCount());
    for (Number i = 1; i < m_home->folderCount(); ++i) {
        AskReader::lowerInto(lower, m_home->folderName(i));
        m_names.push_back(hashOf(lower) | kFolderBit | i);
    }
    for (Number i = 0; i < m_home->fileCount(); ++i) {
        AskReader::lowerInto(lower, m_home->fileName(i));
        m_names.push_back(hashOf(lower) | i);
        if (const std::string_view stem = PathText::stem(lower); stem.size() < lower.size())
            m_stems.push_back(hashOf(stem) | i);
    }
    std::ranges::sort(m_names);
    std::ranges::sort(m_stems);
}

std::string_view HomeNames::nameOf(const Item& item) const
{
    return item.isFolder ? m_home->folderName(item.number) : m_home->fileName(item.number);
}

std::string HomeNames::pathOf(const Item& item) const
{
    return item.isFolder ? m_home->folderPath(item.number) : m_home->filePath(item.number);
}

bool HomeNames::isOwn(const Item& item) const
{
    return item.isFolder ? m_home->folder(item.number).isOwn : m_home->file(item.number).isOwn;
}

std::vector<HomeNames::Item> HomeNames::matching(const std::vector<Row>& rows, std::string_view lower,
                                                 bool isWhole) const
{
    std::vector<Item> folders;
    std::vector<Item> files;
    const std::uint64_t hash = hashOf(lower);
    std::string name;
    for (auto row = std::ranges::lower_bound(rows, hash);
         row != rows.end() && *row >> kHashShift == hash >> kHashShift; ++row) {
        const Item item{(*row & kFolderBit) != 0, static_cast<Number>(*row & (kFolderBit - 1))};
        AskReader::lowerInto(name, nameOf(item));
        if ((isWhole ? std::string_view(name) : PathText::stem(name)) == lower)
            (item.isFolder ? folders : files).push_back(item);
    }
    folders.insert(folders.end(), files.begin(), files.end());
    return folders;
}

bool HomeNames::has(std::string_view lower) const
{
    return !named(lower).empty() || !withStem(lower).empty();
}

std::vector<HomeNames::Item> HomeNames::named(std::string_view lower) const
{
    return matching(m_names, lower, true);
}

std::vector<HomeNames::Item> HomeNames::withStem(std::string_view lower) const
{
    return matching(m_stems, lower, false);
}

bool HomeNames::hasEnding(std::string_view lower) const
{
    std::string ending;
    for (Number i = 0; i < m_home->fileCount(); ++i) {
        const std::string_view its = PathText::extension(m_home->fileName(i));
        if (its.size() != lower.size())
            continue;
        AskReader::lowerInto(ending, its);
        if (ending == lower)
            return true;
    }
    return false;
}

std::optional<HomeNames::Item> HomeNames::child(Number folder, std::string_view lower) const
{
    std::string name;
    const auto isIt = [&](std::string_view each) {
        AskReader::lowerInto(name, each);
        return name == lower;
    };
    const HomeFiles::Range below = m_home->foldersFrom(folder);
    for (Number each = folder + 1; each < below.last; each = m_home->foldersFrom(each).last) {
        if (isIt(m_home->folderName(each)))
            return Item{true, each};
    }
    const HomeFiles::Range files = m_home->filesIn(folder);
    for (Number each = files.first; each < files.last; ++each) {
        if (isIt(m_home->fileName(each)))
            return Item{false, each};
    }
    return std::nullopt;
}

std::optional<HomeNames::Item> HomeNames::below(Number folder, std::string_view lowerPath) const
{
    std::optional<Item> at = Item{true, folder};
    for (const std::string_view name : PathText::components(lowerPath)) {
        if (!at->isFolder)
            return std::nullopt;
        at = child(at->number, name);
        if (!at)
            return std::nullopt;
    }
    return at;
}

std::optional<HomeNames::Item> HomeNames::at(std::string_view lowerPath) const
{
    if (const auto found = below(0, lowerPath))
        return found;
    const auto names = PathText::components(lowerPath);
    if (names.empty())
        return std::nullopt;
    const std::string_view rest = lowerPath.substr(
        static_cast<std::size_t>(names.front().data() + names.front().size() - lowerPath.data()));
    for (const Item& first : named(names.front())) {
        if (!first.isFolder)
            break;
        if (const auto found = below(first.number, rest))
            return found;
    }
    return std::nullopt;
}

} // namespace orlen
