#include "clean/trash/Trash.h"

#include "clean/Reserve.h"
#include "clean/trash/RealPath.h"
#include "clean/trash/TrashFolder.h"
#include "clean/trash/VolumeTrash.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cerrno>
#include <set>

namespace orlen::Trash {

namespace {

/// Records have whole seconds, rounded down, and file systems have their own clock.
constexpr std::chrono::seconds kClockSlack{2};

std::vector<std::string> homeTrashes()
{
    std::vector<std::string> trashes;
    for (const std::string& data : Places::current().data) {
        for (const std::string& path :
             {PathText::join(data, "Trash"), resolved(PathText::join(data, "Trash"))}) {
            if (!path.empty())
                trashes.push_back(path);
        }
    }
    return trashes;
}

bool isInVolumeTrash(std::string_view path)
{
    const auto parts = PathText::components(path);
    return std::any_of(parts.begin(), parts.end(),
                       [](std::string_view part) { return part == ".Trash" || part.starts_with(".Trash-"); });
}

/// Whether the path is inside a Trash, is one, or contains the home Trash.
bool touchesTrash(const std::string& path)
{
    const auto trashes = homeTrashes();
    return isInVolumeTrash(path) ||
           std::any_of(trashes.begin(), trashes.end(), [&](const std::string& trash) {
               return PathText::isAtOrBelow(path, trash) || PathText::isAtOrBelow(trash, path);
           });
}

/// An item's name and the open Trash that contains it.
struct Location {
    TrashFolder trash;
    std::string name;
};

Result<Location> locate(const std::string& trashed)
{
    const std::string path = PathText::standardized(trashed);
    const std::string_view files = PathText::parent(path);
    const std::string_view trash = PathText::parent(files);
    // The kernel would stop at a NUL, the comparisons here would not.
    if (!path.starts_with('/') || path.find('\0') != std::string::npos ||
        PathText::lastComponent(files) != "files" || trash == "/")
        return Errno{EINVAL};
    auto opened = TrashFolder::open(std::string(trash), TrashFolder::Missing::refuse);
    if (!opened.ok())
        return Errno{opened.error()};
    return Location{std::move(opened).value(), std::string(PathText::lastComponent(path))};
}

/// Whether the item with this name is the one that was moved there. The date in its info file is local time
/// and useless after a trip across time zones, so the file system's own times are used.
bool isSameItem(const Location& item, const std::string& original, const RealPath& real,
                const Trash::Recognition& recognition)
{
    const auto found = item.trash.statusOfItem(item.name);
    if (!found.ok())
        return false;
    if (item.trash.hasInfo(item.name)) {
        const auto info = item.trash.infoOf(item.name);
        if (!info || (info->path != PathText::standardized(original) && info->path != real.text()))
            return false;
    }
    if (recognition.identity)
        return found.value().lasting() == *recognition.identity;
    // Whoever reuses the name also writes the info file later; without one, the move itself is dated.
    const TimePoint moved = item.trash.infoTime(item.name).value_or(found.value().changed);
    return moved <= recognition.noLaterThan + kClockSlack;
}

/// First in the free space, then in the space reserved for this.
Result<std::string> moveInto(const TrashFolder& trash, const TrashFolder::Incoming& entry)
{
    return Reserve::withRoom(Reserve::Use::items,
                             [&] { return trash.moveIn(entry, std::chrono::system_clock::now()); });
}

/// The items an info file may refer to: by their own path, or by where their folders really lead.
std::string placeNamedBy(const TrashInfo& info, const std::map<std::string, Trash::Sought>& items)
{
    if (items.contains(info.path))
        return info.path;
    for (const auto& [path, item] : items) {
        if (PathText::lastComponent(path) == PathText::lastComponent(info.path) &&
            PathText::join(resolved(std::string(PathText::parent(path))), PathText::lastComponent(path)) ==
                info.path)
            return path;
    }
    return {};
}

void findIn(const Result<TrashFolder>& trash, std::map<std::string, Trash::Sought>& items, TimePoint begun)
{
    if (!trash.ok())
        return;
    trash.value().removeUnfinishedSizes();
    for (const std::string& name : trash.value().namesWithInfo()) {
        const auto info = trash.value().infoOf(name);
        // The process may have been killed between creating the file and writing it.
        if (!info && trash.value().infoTime(name) >= begun - kClockSlack)
            trash.value().removeEmptyInfo(name);
        const auto item = info ? items.find(placeNamedBy(*info, items)) : items.end();
        if (item == items.end())
            continue;
        const auto status = trash.value().statusOfItem(name);
        if (status.error() == ENOENT)
            trash.value().removeInfoWithoutItem(name);
        else if (status.ok() && status.value().lasting() == item->second.identity)
            item->second.found = Trash::Sought::Found{trash.value().pathOf(name),
                                                      trash.value().infoTime(name).value_or(TimePoint())};
    }
}

Result<TrashFolder> openHome()
{
    auto home = Reserve::withRoom(Reserve::Use::items, [] {
        return TrashFolder::open(Trash::homeFolder(), TrashFolder::Missing::make);
    });
    // Somebody else's Trash, or not a folder: unusable.
    if (home.error() == EPERM || home.error() == ENOTDIR)
        return Errno{EXDEV};
    return home;
}

} // namespace

Result<std::string> moveIn(const std::string& path, std::optional<std::int64_t> bytes,
                           const std::optional<FileStamp>& stamp)
{
    const auto real = RealPath::of(path);
    if (!real.ok())
        return Errno{real.error()};
    const std::string standard = PathText::standardized(path);
    if (touchesTrash(standard) || touchesTrash(real.value().text()))
        return Errno{EPERM};
    // The history is text and could not hold where the item went.
    if (!PathText::isValidUtf8(homeFolder()) || !PathText::isValidUtf8(real.value().text()))
        return Errno{EILSEQ};
    const auto folder = real.value().openParent();
    if (!folder.ok())
        return Errno{folder.error()};
    const TrashFolder::Incoming entry{
        folder.value().get(), real.value().name, standard, real.value().text(), bytes, stamp};
    if (const auto found = statusAt(entry.folder, entry.name.c_str()); !found.ok())
        return Errno{found.error()};

    const auto home = openHome();
    if (!home.ok())
        return Errno{home.error()};
    auto moved = moveInto(home.value(), entry);
    if (moved.ok() || moved.error() != EXDEV)
        return moved;
    const auto volume = VolumeTrash::open(entry.folder, real.value().folder, TrashFolder::Missing::make);
    return volume.ok() ? moveInto(volume.value(), entry) : Result<std::string>(Errno{volume.error()});
}

Result<void> moveBack(const std::string& trashed, const std::string& original, const Recognition& recognition)
{
    const auto item = locate(trashed);
    if (!item.ok())
        return Errno{item.error()};
    const auto& [trash, name] = item.value();
    if (!trash.holds(name))
        return Errno{ENOENT};
    const auto real = RealPath::of(original);
    if (!real.ok())
        return Errno{real.error()};
    if (!isSameItem(item.value(), original, real.value(), recognition))
        return Errno{ESTALE};
    const auto folder =
        Reserve::withRoom(Reserve::Use::items, [&] { return real.value().openOrMakeParent(); });
    if (!folder.ok())
        return Errno{folder.error()};
    auto moved = Reserve::withRoom(Reserve::Use::items, [&, &trash = trash, &name = name] {
        return trash.moveOut(name, folder.value().get(), real.value().name);
    });
    return moved.error() == EPERM ? Result<void>(Errno{EACCES}) : moved;
}

std::optional<LastingIdentity> identityOf(const std::string& trashed)
{
    const auto item = locate(trashed);
    if (!item.ok())
        return std::nullopt;
    const auto found = item.value().trash.statusOfItem(item.value().name);
    return found.ok() ? std::optional(found.value().lasting()) : std::nullopt;
}

void find(std::map<std::string, Sought>& items, TimePoint begun)
{
    findIn(TrashFolder::open(homeFolder(), TrashFolder::Missing::refuse), items, begun);
    std::set<std::string> folders;
    for (const auto& [path, item] : items) {
        if (!item.found && !exists(path))
            folders.emplace(PathText::parent(path));
    }
    std::set<std::string> looked;
    for (const std::string& path : folders) {
        const auto real = RealPath::of(PathText::join(path, "item"));
        const auto folder =
            real.ok() ? openUnlinkedFolder(real.value().folder) : Result<UniqueFd>(Errno{ENOENT});
        if (!folder.ok())
            continue;
        auto volume =
            VolumeTrash::open(folder.value().get(), real.value().folder, TrashFolder::Missing::refuse);
        if (volume.ok() && looked.insert(volume.value().pathOf("")).second)
            findIn(volume, items, begun);
    }
}

void forget(const std::string& trashed, const std::string& original)
{
    const auto item = locate(trashed);
    if (!item.ok())
        return;
    const auto info = item.value().trash.infoOf(item.value().name);
    if (info && info->path == PathText::standardized(original))
        item.value().trash.removeInfoWithoutItem(item.value().name);
}

std::string originalPath(const std::string& trashed)
{
    const auto item = locate(trashed);
    if (!item.ok())
        return {};
    const auto info = item.value().trash.infoOf(item.value().name);
    return info ? info->path : std::string();
}

bool isReachable()
{
    return Reachability::admit(homeFolder()).ok();
}

std::string homeFolder()
{
    return PathText::join(Places::current().data.front(), "Trash");
}

} // namespace orlen::Trash
