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

/// One Trash, its folders "files" and "info" held open: whatever happens to the names meanwhile, an item and
/// its info file stay in the folders that were looked at. Any thread; blocks on the disk.
class TrashFolder {
public:
    /// An entry about to be moved in: a name in an open folder.
    struct Incoming {
        int folder = -1;
        std::string name;
        std::string path;                  ///< where the info file says it was, absolute
        std::string realPath;              ///< the same with the links among its folders resolved
        std::optional<std::int64_t> bytes; ///< what it occupies; nothing when not known
        std::optional<FileStamp> stamp;    ///< what must still stand there; nothing: whatever does
    };

    enum class Missing { make, refuse };

    /// The Trash whose folder `trash` was opened; `path` is how it is named to others. Folders that are
    /// missing are made for the user alone. EPERM when any of the three belongs to somebody else, ENOTDIR
    /// when "files" or "info" is anything but a folder.
    [[nodiscard]] static Result<TrashFolder> open(UniqueFd trash, std::string path, Missing missing);
    /// By path, following a link of the user's that stands for the Trash itself.
    [[nodiscard]] static Result<TrashFolder> open(const std::string& path, Missing missing);

    /// Moves the entry in and returns its new path. EXDEV: it lies on another file system. ESTALE: something
    /// else stands there than `stamp` tells. EBUSY: a program is writing to it. EACCES: the system refuses.
    /// After a failure the entry is where it was and no info file of it is left.
    [[nodiscard]] Result<std::string> moveIn(const Incoming& entry, TimePoint now) const;

    /// The item's info with its place made absolute; nothing when there is none or it is not legible.
    [[nodiscard]] std::optional<TrashInfo> infoOf(const std::string& name) const;
    /// Whether anything stands where the item's info file belongs.
    [[nodiscard]] bool hasInfo(const std::string& name) const;
    [[nodiscard]] bool holds(const std::string& name) const;
    /// What stands under an item's name; ENOENT when nothing does.
    [[nodiscard]] Result<FileStatus> statusOfItem(const std::string& name) const;
    /// When the item's info file was written: by the file system's clock, whatever the file says. Nothing
    /// when there is none.
    [[nodiscard]] std::optional<TimePoint> infoTime(const std::string& name) const;
    /// The names of all items that have an info file, whether they are there or not; in listing order.
    [[nodiscard]] std::vector<std::string> namesWithInfo() const;
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    /// Removes an info file whose item is not there; does nothing when it is.
    void removeInfoWithoutItem(const std::string& name) const;
    /// The same for an info file that nothing was ever written to.
    void removeEmptyInfo(const std::string& name) const;
    /// Removes what a killed rewriting of the sizes left behind.
    void removeUnfinishedSizes() const;

    /// Moves an item out to a free name in an open folder and removes its info file.
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
    std::string m_top; ///< top folder of the volume; empty for the home Trash, whose places are absolute
    UniqueFd m_trash;
    UniqueFd m_files;
    UniqueFd m_info;
    FileStatus m_filesStatus;
    FileStatus m_infoStatus;
};

} // namespace orlen
