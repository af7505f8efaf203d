#include "insight/HomeLook.h"

#include "insight/reader/LowerName.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeMeasure.h"
#include "scan/tree/TreeScan.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <optional>
#include <tuple>

namespace orlen {

namespace {

/// Visits folders and files by name.
class Visitor : public TreeVisitor {
public:
    Visitor(HomeLook::Among among, const std::function<void(const SeenFile&)>& visitFile,
            const std::function<void(const std::string&, std::string_view)>& visitFolder)
        : m_among(among), m_visitFile(visitFile), m_visitFolder(visitFolder)
    {
    }

    [[nodiscard]] bool asksForPaths() const override { return true; }

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t marks) override
    {
        if ((marks & PathMarks::kSkip) != 0 ||
            (m_among == HomeLook::Among::visible && WalkRules::isLeftOut(name)))
            return std::nullopt;
        if (m_visitFolder && parent.canName(name) && PathText::isValidUtf8(name)) {
            const std::string path = parent.pathOf(name);
            const std::lock_guard guard(m_lock);
            m_visitFolder(path, name);
        }
        return 0;
    }

    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        const std::lock_guard guard(m_lock);
        for (const TreeFile& file : files) {
            const std::string_view name = file.name;
            if (!folder.canName(name) || (m_among == HomeLook::Among::visible && name.starts_with('.')))
                continue;
            const std::string path = folder.pathOf(name);
            if (PathText::isValidUtf8(path))
                m_visitFile({path, file.status.allocatedBytes, file.status.modified});
        }
    }

private:
    HomeLook::Among m_among;
    const std::function<void(const SeenFile&)>& m_visitFile;
    const std::function<void(const std::string&, std::string_view)>& m_visitFolder;
    std::mutex m_lock;
};

void look(const std::string& folder, Visitor& visitor, const std::stop_token& stop)
{
    PathMarks marks;
    const Places& places = Places::current();
    for (const std::string& trash : places.expand("{DATA}/Trash"))
        marks.mark(trash, PathMarks::kSkip);
    TreeScanOptions options;
    options.crossing = Crossing::sameFileSystem;
    options.marks = &marks;
    const TreeRoot root{folder};
    scanTrees(std::span(&root, 1), visitor, *CurrentMounts::table(), options, stop);
}

const std::function<void(const std::string&, std::string_view)> kNoFolders;

} // namespace

void HomeLook::eachFile(const std::string& folder, Among among,
                        const std::function<void(const SeenFile&)>& visit) const
{
    Visitor visitor(among, visit, kNoFolders);
    look(folder, visitor, m_stop);
}

std::vector<FolderSize> HomeLook::foldersIn(const std::string& folder) const
{
    std::vector<std::string> paths;
    for (const std::string& name : listNames(folder)) {
        std::string path = PathText::join(folder, name);
        if (PathText::isValidUtf8(path) && isRealFolder(path))
            paths.push_back(std::move(path));
    }
    const std::vector<TreeSize> sizes = measureTrees(paths, m_stop);
    std::vector<FolderSize> folders;
    folders.reserve(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i)
        folders.push_back({std::move(paths[i]), sizes[i].held});
    std::ranges::stable_sort(folders, std::greater{}, &FolderSize::bytes);
    return folders;
}

std::int64_t HomeLook::sizeOf(const std::string& folder) const
{
    return measureTrees(std::span(&folder, 1), m_stop).front().held;
}

std::vector<SeenName> HomeLook::named(const std::set<std::string, std::less<>>& names) const
{
    constexpr std::size_t kMost = 40;
    std::vector<SeenName> found;
    const auto isWanted = [&](std::string_view name) {
        const std::string lower = AskReader::lowered(name);
        return names.contains(lower) || names.contains(PathText::stem(lower));
    };
    const std::function<void(const SeenFile&)> visitFile = [&](const SeenFile& file) {
        if (found.size() < kMost && isWanted(PathText::lastComponent(file.path)))
            found.push_back({std::string(file.path), file.bytes, false, file.modified});
    };
    const std::function<void(const std::string&, std::string_view)> visitFolder = [&](const std::string& path,
                                                                                      std::string_view name) {
        if (found.size() < kMost && isWanted(name))
            found.push_back({path, 0, true, {}});
    };
    Visitor visitor(Among::all, visitFile, visitFolder);
    look(Places::current().home, visitor, m_stop);
    const auto depth = [](const SeenName& each) { return std::ranges::count(each.path, '/'); };
    std::ranges::sort(found, [&](const SeenName& a, const SeenName& b) {
        return std::tuple(depth(a), std::string_view(a.path)) <
               std::tuple(depth(b), std::string_view(b.path));
    });
    for (SeenName& each : found) {
        if (each.isFolder)
            each.bytes = sizeOf(each.path);
    }
    return found;
}

} // namespace orlen
