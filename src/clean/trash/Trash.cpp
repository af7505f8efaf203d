#include "clean/trash/Trash.h"

#include "clean/trash/RealPath.h"
#include "clean/trash/TrashFolder.h"
#include "clean/trash/VolumeTrash.h"
#include "platform/Folder.h"
#include "platform/PathText.h"
#include "platform/Places.h"

#include <algorithm>
#include <cerrno>

namespace orlen::Trash {

namespace {

/// Info files tell local time, which goes back by an hour or two when the clocks change or somebody travels.
constexpr std::chrono::hours kClockSlack{2};

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

/// Whether the path lies in a Trash, is one, or holds the home Trash.
bool touchesTrash(const std::string& path)
{
    const auto trashes = homeTrashes();
    return isInVolumeTrash(path) ||
           std::any_of(trashes.begin(), trashes.end(), [&](const std::string& trash) {
               return PathText::isAtOrBelow(path, trash) || PathText::isAtOrBelow(trash, path);
           });
}

/// An item's name in the open Trash that holds it.
struct Location {
    TrashFolder trash;
    std::string name;
};

Result<Location> locate(const std::string& trashed)
{
    const std::string path = PathText::standardized(trashed);
    const std::string_view files = PathText::parent(path);
    const std::string_view trash = PathText::parent(files);
    // A zero byte would end the path for the kernel, but not for the comparisons here.
    if (!path.starts_with('/') || path.find('\0') != std::string::npos ||
        PathText::lastComponent(files) != "files" || trash == "/")
        return Errno{EINVAL};
    auto opened = TrashFolder::open(std::string(trash), TrashFolder::Missing::refuse);
    if (!opened.ok())
        return Errno{opened.error()};
    return Location{std::move(opened).value(), std::string(PathText::lastComponent(path))};
}

/// Whether the item under this name is the one that was moved there: its info file tells the place and no
/// later time. Without an info file there is nothing that speaks against it.
bool isSameItem(const Location& item, const std::string& original, const RealPath& real,
                TimePoint noLaterThan)
{
    if (!item.trash.hasInfo(item.name))
        return true;
    const auto info = item.trash.infoOf(item.name);
    if (!info || !info->deleted || *info->deleted > noLaterThan + kClockSlack)
        return false;
    return info->path == PathText::standardized(original) || info->path == real.text();
}

Result<std::string> moveInto(const TrashFolder& trash, const TrashFolder::Incoming& entry)
{
    return trash.moveIn(entry, std::chrono::system_clock::now());
}

} // namespace

Result<std::string> moveIn(const std::string& path, std::optional<std::int64_t> bytes)
{
    const auto real = RealPath::of(path);
    if (!real.ok())
        return Errno{real.error()};
    const std::string standard = PathText::standardized(path);
    if (touchesTrash(standard) || touchesTrash(real.value().text()))
        return Errno{EPERM};
    // The history is text and could not tell where the item went.
    if (!PathText::isValidUtf8(homeFolder()) || !PathText::isValidUtf8(real.value().text()))
        return Errno{EILSEQ};
    const auto folder = real.value().openParent();
    if (!folder.ok())
        return Errno{folder.error()};
    const TrashFolder::Incoming entry{folder.value().get(), real.value().name, standard, real.value().text(),
                                      bytes};
    if (const auto found = statusAt(entry.folder, entry.name.c_str()); !found.ok())
        return Errno{found.error()};

    const auto home = TrashFolder::open(homeFolder(), TrashFolder::Missing::make);
    if (!home.ok())
        return Errno{home.error()};
    auto moved = moveInto(home.value(), entry);
    if (moved.ok() || moved.error() != EXDEV)
        return moved;
    const auto volume = VolumeTrash::open(entry.folder, real.value().folder);
    return volume.ok() ? moveInto(volume.value(), entry) : Result<std::string>(Errno{volume.error()});
}

Result<void> moveBack(const std::string& trashed, const std::string& original, TimePoint trashedNoLaterThan)
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
    if (!isSameItem(item.value(), original, real.value(), trashedNoLaterThan))
        return Errno{ESTALE};
    const auto folder = real.value().openOrMakeParent();
    if (!folder.ok())
        return Errno{folder.error()};
    return trash.moveOut(name, folder.value().get(), real.value().name);
}

std::string originalPath(const std::string& trashed)
{
    const auto item = locate(trashed);
    if (!item.ok())
        return {};
    const auto info = item.value().trash.infoOf(item.value().name);
    return info ? info->path : std::string();
}

std::string homeFolder()
{
    return PathText::join(Places::current().data.front(), "Trash");
}

} // namespace orlen::Trash
