#pragma once

#include "clean/trash/TrashInfo.h"
#include "platform/files/FileStatus.h"
#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// One Trash with its folders "files" and "info" held open: whatever happens to their names, an item and its
/// info file stay in the folders that were checked. Any thread; blocks on the disk.
class TrashFolder {
public:
    /// An entry to be moved in: a name in an open folder.
    struct Incoming {
        int folder = -1;
        std::string name;
        std::string path;                  ///< the original place for the info file, absolute
        std::string realPath;              ///< the same with links among its folders resolved
        std::optional<std::int64_t> bytes; ///< size on disk; nothing if unknown
        std::optional<FileStamp> stamp;    ///< what must still be there; nothing: anything
    };

    enum class Missing { make, refuse };

    /// The Trash in the open folder `trash`; `path` is its name for others. Missing folders are created
    /// private. EPERM if any of the three belongs to somebody else, ENOTDIR if "files" or "info" is not a
    /// folder.
    [[nodiscard]] static Result<TrashFolder> open(UniqueFd trash, std::string path, Missing missing);
    /// By path, following a link of the user's in place of the Trash.
    [[nodiscard]] static Result<TrashFolder> open(const std::string& path, Missing missing);

    /// Moves the entry in and returns its new path. EXDEV: other file system. ESTALE: not what `stamp`
    /// describes. EBUSY: a program is writing to it. EACCES: the system refuses. On failure the entry stays
    /// where it was, without an info file.
    [[nodiscard]] Result<std::string> moveIn(const Incoming& entry, TimePoint now) const;

    /// The item's info with an absolute path; nothing if it is missing or unreadable.
    [[nodiscard]] std::optional<TrashInfo> infoOf(const std::string& name) const;
    /// Whether there is anything at the place of the item's info file.
    [[nodiscard]] bool hasInfo(const std::string& name) const;
    [[nodiscard]] bool holds(const std::string& name) const;
    /// The status of an item; ENOENT if there is none.
    [[nodiscard]] Result<FileStatus> statusOfItem(const std::string& name) const;
    /// When the item's info file was written, by the file system's clock, not by its content. Nothing if
    /// there is none.
    [[nodiscard]] std::optional<TimePoint> infoTime(const std::string& name) const;
    /// The names of all items with an info file, existing or not, in listing order.
    [[nodiscard]] std::vector<std::string> namesWithInfo() const;
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    /// Removes an info file, but only if its item is missing.
    void removeInfoWithoutItem(const std::string& name) const;
    /// The same for an empty info file.
    void removeEmptyInfo(const std::string& name) const;
    /// Removes what an interrupted rewrite of the sizes left behind.
    void removeUnfinishedSizes() const;

    /// Moves an item to a free name in an open folder and removes its info file.
    [[nodiscard]] Result<void> moveOut(const std::string& name, int folder, const std::string& newName) const;

    /// Device of the folder that items are moved into.
    [[nodiscard]] std::uint64_t device() const { return m_filesStatus.identity.device; }

private:
    TrashFolder() = default;
    [[nodiscard]] Result<void> openParts(Missing missing);
    [[nodiscard]] std::string placeText(const Incoming& entry) const;
    [[nodiscard]] Result<void> moveAs(const std::string& name, const Incoming& entry, TimePoint now) const;
    [[nodiscard]] Result<void> renameIn(const std::string& name, const Incoming& entry,
                                        const FileStatus& before) const;
    [[nodiscard]] bool isStillNamed() const;
    void noteSize(const std::string& name, const Incoming& entry, TimePoint infoTime) const;

    std::string m_path;
    std::string m_top; ///< top folder of the volume; empty for the home Trash, which stores absolute paths
    UniqueFd m_trash;
    UniqueFd m_files;
    UniqueFd m_info;
    FileStatus m_filesStatus;
    FileStatus m_infoStatus;
};

} // namespace orlen
