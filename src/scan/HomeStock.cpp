#include "scan/HomeStock.h"

#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <numeric>
#include <utility>

namespace orlen {

namespace {

/// Set in the tag of a folder that is not listed itself: what it holds counts for the folder it is in.
constexpr std::uint32_t kOnlyCounted = 0x8000'0000;

/// Names of caches that are not hidden; the other rules know those of hidden folders and modules.
constexpr std::array<std::string_view, 6> kCacheNames{"cache",  "Cache",    "caches",
                                                      "Caches", "GPUCache", "Code Cache"};

bool isOwnName(std::string_view name, bool isAtTop)
{
    constexpr std::array<std::string_view, 2> kOfPrograms{"snap", "Library"};
    if (isAtTop && std::ranges::find(kOfPrograms, name) != kOfPrograms.end())
        return false;
    return !WalkRules::isLeftOut(name) && std::ranges::find(kCacheNames, name) == kCacheNames.end();
}

std::uint32_t secondsOf(TimePoint time)
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time.time_since_epoch()).count();
    constexpr std::int64_t kMost = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(seconds, 0, kMost));
}

} // namespace

HomeStock::HomeStock(HomeWalk::Limits limits, const MountTable& mounts) : m_limits(limits), m_mounts(mounts)
{
    m_folders.push_back({.isOwn = true});
}

std::string_view HomeStock::nameOf(const StockedFolder& folder) const
{
    return std::string_view(m_folderNames).substr(folder.name, folder.nameEnd - folder.name);
}

std::string_view HomeStock::nameOf(const StockedFile& file) const
{
    return std::string_view(m_fileNames).substr(file.name, file.nameEnd - file.name);
}

std::optional<std::uint32_t> HomeStock::enter(const TreeFolder& parent, std::string_view name,
                                              std::uint32_t /*marks*/)
{
    const std::uint32_t around = parent.tag();
    if ((around & kOnlyCounted) != 0)
        return around;
    if (!PathText::isValidUtf8(name) || !parent.canName(name))
        return around | kOnlyCounted;
    const std::lock_guard lock(m_lock);
    if (m_folders.size() >= m_limits.folders) {
        m_isComplete = false;
        return around | kOnlyCounted;
    }
    const auto start = static_cast<std::uint32_t>(m_folderNames.size());
    m_folderNames += name;
    m_folders.push_back({.parent = around,
                         .name = start,
                         .nameEnd = static_cast<std::uint32_t>(m_folderNames.size()),
                         .isOwn = m_folders[around].isOwn && isOwnName(name, around == 0)});
    return static_cast<std::uint32_t>(m_folders.size() - 1);
}

void HomeStock::files(const TreeFolder& folder, std::span<const TreeFile> files)
{
    const std::lock_guard lock(m_lock);
    const Number number = folder.tag() & ~kOnlyCounted;
    const bool isListed = number == folder.tag();
    StockedFolder& holder = m_folders[number];
    const Mount* const mount = m_mounts.byId(folder.mount());
    const bool isOpeningKnown = mount == nullptr || mount->keepsAccessTimes;
    for (const TreeFile& file : files) {
        std::uint32_t link = 0;
        if (file.status.links > 1) {
            m_linked.push_back({file.status.identity, number, file.status.allocatedBytes});
            link = static_cast<std::uint32_t>(m_linked.size());
        } else {
            ++holder.files;
            holder.bytes = cappedAdd(holder.bytes, file.status.allocatedBytes);
        }
        if (isListed && folder.canName(file.name) && PathText::isValidUtf8(file.name))
            keep(file,
                 {.folder = number,
                  .changed = secondsOf(file.status.modified),
                  .opened = secondsOf(isOpeningKnown ? std::max(file.status.accessed, file.status.modified)
                                                     : file.status.modified),
                  .link = link,
                  .bytes = file.status.allocatedBytes});
    }
    // Rarely, since each time looks at everything.
    if (m_files.size() > m_limits.files + m_limits.files / 2)
        thinOut();
}

void HomeStock::keep(const TreeFile& file, const StockedFile& known)
{
    StockedFile& kept = m_files.emplace_back(known);
    kept.name = static_cast<std::uint32_t>(m_fileNames.size());
    m_fileNames += file.name;
    kept.nameEnd = static_cast<std::uint32_t>(m_fileNames.size());
}

void HomeStock::thinOut()
{
    if (m_files.size() <= m_limits.files)
        return;
    m_isComplete = false;
    const auto isBefore = [this](const StockedFile& a, const StockedFile& b) {
        const bool isOwnA = m_folders[a.folder].isOwn;
        const bool isOwnB = m_folders[b.folder].isOwn;
        return isOwnA != isOwnB ? isOwnA : a.bytes > b.bytes;
    };
    const auto end = m_files.begin() + static_cast<std::ptrdiff_t>(m_limits.files);
    std::nth_element(m_files.begin(), end, m_files.end(), isBefore);
    m_files.erase(end, m_files.end());
    std::string names;
    for (StockedFile& file : m_files) {
        const std::string_view name = nameOf(file);
        file.name = static_cast<std::uint32_t>(names.size());
        names += name;
        file.nameEnd = static_cast<std::uint32_t>(names.size());
    }
    m_fileNames = std::move(names);
}

/// The numbers of the folders so that each is followed by those below it, children by name.
std::vector<HomeFiles::Number> HomeStock::inOrder() const
{
    const auto count = static_cast<Number>(m_folders.size());
    std::vector<Number> byParent(count - 1);
    std::iota(byParent.begin(), byParent.end(), Number{1});
    std::ranges::sort(byParent, [this](Number a, Number b) {
        const StockedFolder& first = m_folders[a];
        const StockedFolder& second = m_folders[b];
        return first.parent != second.parent ? first.parent < second.parent : nameOf(first) < nameOf(second);
    });
    std::vector<Number> firstChild(count + 1, 0);
    for (const Number child : byParent)
        ++firstChild[m_folders[child].parent + 1];
    std::partial_sum(firstChild.begin(), firstChild.end(), firstChild.begin());
    std::vector<Number> order;
    order.reserve(count);
    std::vector<Number> waiting{0};
    while (!waiting.empty()) {
        const Number folder = waiting.back();
        waiting.pop_back();
        order.push_back(folder);
        for (Number i = firstChild[folder + 1]; i > firstChild[folder]; --i)
            waiting.push_back(byParent[i - 1]);
    }
    return order;
}

void HomeStock::putFolders(HomeFiles::Contents& all, const std::vector<Number>& order,
                           const std::vector<Number>& newNumbers) const
{
    for (Number i = 0; i < order.size(); ++i) {
        const StockedFolder& folder = m_folders[order[i]];
        all.folderNames.push_back(static_cast<std::uint32_t>(all.names.size()));
        all.names += nameOf(folder);
        all.parents.push_back(newNumbers[folder.parent]);
        all.folderBytes.push_back(folder.bytes);
        all.fileCounts.push_back(folder.files);
        all.isOwn.push_back(folder.isOwn ? 1 : 0);
        all.ends.push_back(i + 1);
    }
    all.folderNames.push_back(static_cast<std::uint32_t>(all.names.size()));
    for (Number i = static_cast<Number>(order.size()); i-- > 1;) {
        const Number parent = all.parents[i];
        all.folderBytes[parent] = cappedAdd(all.folderBytes[parent], all.folderBytes[i]);
        all.fileCounts[parent] += all.fileCounts[i];
        all.ends[parent] = std::max(all.ends[parent], all.ends[i]);
    }
}

/// A file with several names counts once for every folder around any of them.
void HomeStock::addLinked(HomeFiles::Contents& all, const std::vector<Number>& newNumbers) const
{
    std::vector<std::uint32_t> byFile(m_linked.size());
    std::iota(byFile.begin(), byFile.end(), 0U);
    std::ranges::sort(byFile, {}, [this](std::uint32_t i) { return m_linked[i].identity; });
    std::vector<std::uint32_t> lastCounted(all.parents.size(), 0);
    std::uint32_t file = 0;
    for (std::size_t i = 0; i < byFile.size(); ++i) {
        const LinkedName& name = m_linked[byFile[i]];
        if (i == 0 || name.identity != m_linked[byFile[i - 1]].identity)
            ++file;
        for (Number at = newNumbers[name.folder]; lastCounted[at] != file; at = all.parents[at]) {
            lastCounted[at] = file;
            all.folderBytes[at] = cappedAdd(all.folderBytes[at], name.bytes);
            ++all.fileCounts[at];
        }
    }
}

void HomeStock::putFiles(HomeFiles::Contents& all, const std::vector<Number>& newNumbers)
{
    const std::size_t folders = all.parents.size();
    all.firstFiles.assign(folders + 1, 0);
    for (const StockedFile& file : m_files)
        ++all.firstFiles[newNumbers[file.folder] + 1];
    std::partial_sum(all.firstFiles.begin(), all.firstFiles.end(), all.firstFiles.begin());
    std::vector<Number> next = all.firstFiles;
    std::vector<std::uint32_t> order(m_files.size());
    for (std::uint32_t i = 0; i < m_files.size(); ++i)
        order[next[newNumbers[m_files[i].folder]]++] = i;
    for (std::size_t i = 0; i < folders; ++i) {
        const auto first = order.begin() + all.firstFiles[i];
        std::sort(first, order.begin() + all.firstFiles[i + 1], [this](std::uint32_t a, std::uint32_t b) {
            return nameOf(m_files[a]) < nameOf(m_files[b]);
        });
    }
    std::vector<std::uint32_t> links;
    for (const std::uint32_t i : order) {
        const StockedFile& file = m_files[i];
        all.fileNames.push_back(static_cast<std::uint32_t>(all.names.size()));
        all.names += nameOf(file);
        all.folderOfFile.push_back(newNumbers[file.folder]);
        all.fileBytes.push_back(file.bytes);
        all.changed.push_back(file.changed);
        all.opened.push_back(file.opened);
        links.push_back(file.link);
    }
    all.fileNames.push_back(static_cast<std::uint32_t>(all.names.size()));
    chooseNames(all, links);
}

/// The first of a file's names counts; one among the person's own files before any other.
void HomeStock::chooseNames(HomeFiles::Contents& all, const std::vector<std::uint32_t>& links) const
{
    const auto isOwn = [&](Number file) { return all.isOwn[all.folderOfFile[file]]; };
    std::unordered_map<FileIdentity, Number, FileIdentityHash> chosen;
    for (Number i = 0; i < links.size(); ++i) {
        if (links[i] == 0)
            continue;
        const auto [known, isNew] = chosen.try_emplace(m_linked[links[i] - 1].identity, i);
        if (!isNew && isOwn(i) > isOwn(known->second))
            known->second = i;
    }
    for (Number i = 0; i < links.size(); ++i)
        all.counted.push_back(links[i] == 0 ? i : chosen.at(m_linked[links[i] - 1].identity));
}

HomeFiles::Contents HomeStock::contents(std::string home)
{
    const std::lock_guard lock(m_lock);
    thinOut();
    HomeFiles::Contents all;
    all.home = std::move(home);
    all.isComplete = m_isComplete;
    const std::vector<Number> order = inOrder();
    std::vector<Number> newNumbers(order.size());
    for (Number i = 0; i < order.size(); ++i)
        newNumbers[order[i]] = i;
    putFolders(all, order, newNumbers);
    addLinked(all, newNumbers);
    putFiles(all, newNumbers);
    return all;
}

} // namespace orlen
