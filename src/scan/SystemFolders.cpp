#include "scan/SystemFolders.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/BreakdownFolders.h"
#include "scan/CategorySums.h"
#include "scan/FolderTotals.h"
#include "scan/tree/CurrentMounts.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace orlen::SystemFolders {

namespace {

/// The home folder, its Trash and what is at the top of the volume.
std::vector<std::string> candidates(const Places& places)
{
    std::vector<std::string> paths{places.resolvedHome};
    for (const std::string& data : places.data)
        paths.push_back(resolved(data + "/Trash"));
    const std::string top = places.systemRoot + "/";
    for (const std::string& name : listNames(top))
        paths.push_back(PathText::join(top, name));
    return paths;
}

/// What the path is, if it counts here and may be measured.
std::optional<FileStatus> statusOfCounted(const std::string& path, const Places& places,
                                          const MountTable& mounts, const PathMarks& others)
{
    const PathMarks::Node* mark = others.at(path);
    if (!PathText::isValidUtf8(path) || (mark != nullptr && mark->marks() != 0) ||
        !mounts.isSameFileSystem(path, places.resolvedHome))
        return std::nullopt;
    const auto status = statusOf(path);
    return status.ok() ? std::optional(status.value()) : std::nullopt;
}

} // namespace

std::vector<CategoryFolder> measure(const std::stop_token& stop)
{
    const Places& places = Places::current();
    if (!places.isHomeUsable)
        return {};
    const auto mounts = CurrentMounts::table();
    PathMarks marks;
    for (const BreakdownFolders::Folder& folder : BreakdownFolders::find(places, *mounts))
        marks.mark(folder.path, PathMarks::kSkip);

    std::vector<BreakdownFolders::Folder> folders;
    CategoryFolder top{OrlenCategory::system, places.normalized(places.systemRoot + "/")};
    for (const std::string& path : candidates(places)) {
        const auto status = statusOfCounted(path, places, *mounts, marks);
        if (status && status->type == FileType::folder)
            folders.push_back({OrlenCategory::system, path});
        if (!status || status->type != FileType::regular)
            continue;
        // Often a swap file.
        top.bytes = cappedAdd(top.bytes, status->allocatedBytes);
        top.largest.push_back({std::string(PathText::lastComponent(path)), status->allocatedBytes, false});
    }
    for (const BreakdownFolders::Folder& folder : folders)
        marks.mark(folder.path, PathMarks::kSkip);

    FolderTotals totals;
    std::vector<CategoryFolder> measured = CategorySums::measure(folders, marks, *mounts, stop, totals);
    std::ranges::sort(top.largest, std::greater(), &CategoryFolder::Item::bytes);
    if (top.bytes > 0)
        measured.push_back(std::move(top));
    std::ranges::stable_sort(measured, std::greater(), &CategoryFolder::bytes);
    return measured;
}

} // namespace orlen::SystemFolders
