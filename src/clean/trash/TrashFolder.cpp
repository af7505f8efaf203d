#include "clean/trash/TrashFolder.h"

#include "clean/trash/DirectorySizes.h"
#include "clean/trash/TrashName.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileLease.h"
#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"

#include <cerrno>

namespace orlen {

namespace {

constexpr const char* kFiles = "files";
constexpr const char* kInfo = "info";
constexpr unsigned kPrivate = 0700;
/// Most items of one name: finding a free number takes longer each time.
constexpr int kAttempts = 100'000;
/// A path has at most 4,096 bytes, up to three characters each when encoded; other programs may add lines.
constexpr std::size_t kInfoLimit = 64'000;

/// The top folder of this Trash's volume; empty for the home Trash.
std::string topOf(std::string_view trash)
{
    if (PathText::lastComponent(trash).starts_with(".Trash-"))
        return std::string(PathText::parent(trash));
    const std::string_view above = PathText::parent(trash);
    return PathText::lastComponent(above) == ".Trash" ? std::string(PathText::parent(above)) : std::string();
}

/// Whether the entry is still what was shown, as far as known.
bool isAsShown(const TrashFolder::Incoming& entry, const FileStatus& status)
{
    return !entry.stamp || *entry.stamp == FileStamp::of(status);
}

/// Keeps others from writing to a file while it moves. A folder's contents just move along.
Result<FileLease> leaseOf(const TrashFolder::Incoming& entry, const FileStatus& status)
{
    if (status.type != FileType::regular)
        return FileLease::none();
    return FileLease::take(entry.folder, entry.name.c_str());
}

bool climbs(std::string_view path)
{
    for (const std::string_view part : PathText::components(path)) {
        if (part == "..")
            return true;
    }
    return false;
}

Result<FileStatus> ownFolder(int folder)
{
    auto status = statusOfOpen(folder);
    if (status.ok() && status.value().owner != Places::current().user)
        return Errno{EPERM};
    return status;
}

Result<UniqueFd> openPart(int trash, const char* name, TrashFolder::Missing missing)
{
    if (missing == TrashFolder::Missing::make)
        return openOrMakeFolderAt(trash, name, kPrivate);
    return openUnlinkedFolderAt(trash, name);
}

/// Removes an info file that was just written, unless the name now belongs to another one.
void takeBack(int folder, const std::string& infoName, int file)
{
    const auto named = statusAt(folder, infoName.c_str());
    const auto own = statusOfOpen(file);
    if (named.ok() && own.ok() && named.value().identity == own.value().identity)
        (void)removeFileAt(folder, infoName.c_str());
}

/// Whether a rename that reported an error happened anyway: a network file system repeats a request whose
/// reply was lost, and then finds nothing to rename.
bool hasMoved(const TrashFolder::Incoming& entry, const FileIdentity& identity, int files,
              const std::string& name)
{
    const auto arrived = statusAt(files, name.c_str());
    return arrived.ok() && arrived.value().identity == identity &&
           statusAt(entry.folder, entry.name.c_str()).error() == ENOENT;
}

} // namespace

Result<TrashFolder> TrashFolder::open(UniqueFd trash, std::string path, Missing missing)
{
    TrashFolder folder;
    folder.m_top = topOf(path);
    folder.m_path = std::move(path);
    folder.m_trash = std::move(trash);
    if (const auto opened = folder.openParts(missing); !opened.ok())
        return Errno{opened.error()};
    return folder;
}

Result<TrashFolder> TrashFolder::open(const std::string& path, Missing missing)
{
    if (const auto reachable = Reachability::admit(path); !reachable.ok())
        return Errno{reachable.error()};
    if (missing == Missing::make) {
        if (const auto made = makeFolders(path, kPrivate); !made.ok())
            return Errno{made.error()};
    }
    const std::string real = resolved(path);
    if (real.empty())
        return Errno{ENOENT};
    auto trash = openUnlinkedFolder(real);
    if (!trash.ok())
        return Errno{trash.error()};
    return open(std::move(trash).value(), path, missing);
}

Result<void> TrashFolder::openParts(Missing missing)
{
    if (const auto status = ownFolder(m_trash.get()); !status.ok())
        return Errno{status.error()};
    auto files = openPart(m_trash.get(), kFiles, missing);
    auto info = openPart(m_trash.get(), kInfo, missing);
    if (!files.ok() || !info.ok())
        return Errno{files.ok() ? info.error() : files.error()};
    m_files = std::move(files).value();
    m_info = std::move(info).value();
    const auto filesStatus = ownFolder(m_files.get());
    const auto infoStatus = ownFolder(m_info.get());
    if (!filesStatus.ok() || !infoStatus.ok())
        return Errno{filesStatus.ok() ? infoStatus.error() : filesStatus.error()};
    m_filesStatus = filesStatus.value();
    m_infoStatus = infoStatus.value();
    return {};
}

std::string TrashFolder::placeText(const Incoming& entry) const
{
    if (m_top.empty())
        return entry.path;
    // The volume may be mounted elsewhere tomorrow, so places are relative to its top folder.
    return entry.realPath.substr(m_top.size() + 1);
}

Result<std::string> TrashFolder::moveIn(const Incoming& entry, TimePoint now) const
{
    const auto folder = statusOfOpen(entry.folder);
    if (!folder.ok())
        return Errno{folder.error()};
    // No rename crosses mounts; checking first avoids an info file that would flash up in other programs.
    if (folder.value().mount != m_filesStatus.mount)
        return Errno{EXDEV};
    const auto before = statusAt(entry.folder, entry.name.c_str());
    if (!before.ok())
        return Errno{before.error()};
    const auto lease = leaseOf(entry, before.value());
    if (!lease.ok())
        return Errno{lease.error()};
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        const std::string name = TrashName::candidate(entry.name, attempt);
        // An item without its info file still has its name.
        if (holds(name))
            continue;
        const auto moved = moveAs(name, entry, now);
        if (moved.ok())
            return pathOf(name);
        if (moved.error() != EEXIST)
            return Errno{moved.error()};
    }
    return Errno{EEXIST};
}

Result<void> TrashFolder::moveAs(const std::string& name, const Incoming& entry, TimePoint now) const
{
    const auto before = statusAt(entry.folder, entry.name.c_str());
    if (!before.ok())
        return Errno{before.error()};
    if (!isAsShown(entry, before.value()))
        return Errno{ESTALE};
    const std::string infoName = TrashName::infoName(name);
    const auto info = createFileAt(m_info.get(), infoName.c_str());
    if (!info.ok())
        return Errno{info.error()};
    const int file = info.value().get();
    Result<void> done = writeAll(file, TrashInfo::text(placeText(entry), now));
    if (done.ok())
        done = syncFile(file);
    if (done.ok() && !isStillNamed())
        done = Errno{EAGAIN};
    if (done.ok())
        done = renameIn(name, entry, before.value());
    if (!done.ok()) {
        takeBack(m_info.get(), infoName, file);
        return done;
    }
    if (const auto written = statusOfOpen(file); written.ok() && before.value().type == FileType::folder)
        noteSize(name, entry, written.value().modified);
    return {};
}

/// The rename itself, of exactly what was checked before.
Result<void> TrashFolder::renameIn(const std::string& name, const Incoming& entry,
                                   const FileStatus& before) const
{
    const auto now = statusAt(entry.folder, entry.name.c_str());
    if (!now.ok())
        return Errno{now.error()};
    if (FileStamp::of(now.value()) != FileStamp::of(before))
        return Errno{ESTALE};
    const auto moved = renameNoReplaceAt(entry.folder, entry.name.c_str(), m_files.get(), name.c_str());
    if (!moved.ok()) {
        if (hasMoved(entry, before.identity, m_files.get(), name))
            return {};
        // EPERM is reserved for what the rules forbid.
        return Errno{moved.error() == EPERM ? EACCES : moved.error()};
    }
    const auto arrived = statusAt(m_files.get(), name.c_str());
    if (!arrived.ok() || arrived.value().identity == before.identity)
        return {};
    // Somebody replaced the entry at the last moment: put it back.
    const auto back = renameNoReplaceAt(m_files.get(), name.c_str(), entry.folder, entry.name.c_str());
    return back.ok() ? Result<void>(Errno{ESTALE}) : Result<void>();
}

/// Whether the open folders still have the names reported in the item's new path. They do not if somebody
/// removed or replaced the whole Trash.
bool TrashFolder::isStillNamed() const
{
    const auto files = statusOf(PathText::join(m_path, kFiles));
    const auto info = statusOf(PathText::join(m_path, kInfo));
    return files.ok() && info.ok() && files.value().identity == m_filesStatus.identity &&
           info.value().identity == m_infoStatus.identity;
}

void TrashFolder::noteSize(const std::string& name, const Incoming& entry, TimePoint infoTime) const
{
    if (m_top.empty() && entry.bytes)
        DirectorySizes::add(m_trash.get(), m_info.get(), name, *entry.bytes, infoTime);
}

std::optional<TrashInfo> TrashFolder::infoOf(const std::string& name) const
{
    const auto text = readHeadAt(m_info.get(), TrashName::infoName(name).c_str(), kInfoLimit);
    auto info = TrashInfo::parse(text.value_or(""));
    if (!info || climbs(info->path))
        return std::nullopt;
    if (!info->path.starts_with('/')) {
        if (m_top.empty())
            return std::nullopt;
        info->path = PathText::join(m_top, info->path);
    }
    return info;
}

bool TrashFolder::hasInfo(const std::string& name) const
{
    return statusAt(m_info.get(), TrashName::infoName(name).c_str()).error() != ENOENT;
}

bool TrashFolder::holds(const std::string& name) const
{
    return statusAt(m_files.get(), name.c_str()).ok();
}

Result<FileStatus> TrashFolder::statusOfItem(const std::string& name) const
{
    return statusAt(m_files.get(), name.c_str());
}

std::optional<TimePoint> TrashFolder::infoTime(const std::string& name) const
{
    const auto status = statusAt(m_info.get(), TrashName::infoName(name).c_str());
    return status.ok() ? std::optional(status.value().changed) : std::nullopt;
}

std::vector<std::string> TrashFolder::namesWithInfo() const
{
    const std::string ending = TrashName::infoName("");
    std::vector<std::string> names;
    for (const std::string& file : listNames(PathText::join(m_path, kInfo))) {
        if (file.size() > ending.size() && file.ends_with(ending))
            names.push_back(file.substr(0, file.size() - ending.size()));
    }
    return names;
}

std::string TrashFolder::pathOf(const std::string& name) const
{
    return PathText::join(PathText::join(m_path, kFiles), name);
}

void TrashFolder::removeInfoWithoutItem(const std::string& name) const
{
    if (statusOfItem(name).error() == ENOENT)
        (void)removeFileAt(m_info.get(), TrashName::infoName(name).c_str());
}

void TrashFolder::removeEmptyInfo(const std::string& name) const
{
    const auto status = statusAt(m_info.get(), TrashName::infoName(name).c_str());
    if (status.ok() && status.value().length == 0)
        removeInfoWithoutItem(name);
}

void TrashFolder::removeUnfinishedSizes() const
{
    for (const std::string& name : listNames(m_path)) {
        if (DirectorySizes::isUnfinished(name))
            (void)removeFileAt(m_trash.get(), name.c_str());
    }
}

Result<void> TrashFolder::moveOut(const std::string& name, int folder, const std::string& newName) const
{
    if (auto moved = renameNoReplaceAt(m_files.get(), name.c_str(), folder, newName.c_str()); !moved.ok())
        return moved;
    // Nobody else uses the name while its info file exists, so what is removed is the item's own.
    (void)removeFileAt(m_info.get(), TrashName::infoName(name).c_str());
    DirectorySizes::remove(m_trash.get(), m_info.get(), name);
    return {};
}

} // namespace orlen
