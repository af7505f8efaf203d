#pragma once

#include "platform/values/Time.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What lies in the home folder: every folder with the sum of all that is below it, and the regular files, as
/// one walk met them (see `HomeWalk`). Takes about 60 bytes for a file. Immutable; any thread.
///
/// Folders and files have numbers. A folder is followed by all folders below it, and files are in the order
/// of their folders, then by name: what is below a folder is one range of either. Folder 0 is the home
/// folder.
class HomeFiles {
public:
    using Number = std::uint32_t;

    /// Numbers from the first to before the last.
    struct Range {
        Number first = 0;
        Number last = 0;
    };

    struct Folder {
        std::string_view name; ///< empty for the home folder
        Number parent = 0;
        std::int64_t bytes = 0;  ///< allocated, of all files below it, each counted once
        std::uint32_t files = 0; ///< below it, by the same rule
        bool isOwn = false; ///< neither it nor a folder around it is hidden, a cache or installed modules
    };

    struct File {
        std::string_view name; ///< valid UTF-8
        Number folder = 0;
        std::int64_t bytes = 0; ///< allocated
        TimePoint changed;      ///< in whole seconds
        TimePoint opened;       ///< or changed, if that was later; as far as the file system keeps it
        Number counted = 0;     ///< of a file with several names the one to count; of others, itself
        bool isOwn = false;     ///< the person's own: not hidden, and in a folder that is
    };

    /// As the walk collects it. Each list of names has the end of the last one behind its starts.
    struct Contents {
        std::string home;  ///< its path
        std::string names; ///< of all folders, then of all files
        std::vector<std::uint32_t> folderNames;
        std::vector<Number> parents;
        std::vector<Number> ends; ///< behind the last folder below
        std::vector<std::int64_t> folderBytes;
        std::vector<std::uint32_t> fileCounts;
        std::vector<std::uint8_t> isOwn;
        std::vector<Number> firstFiles; ///< of each folder, and one more for the end
        std::vector<std::uint32_t> fileNames;
        std::vector<Number> folderOfFile;
        std::vector<std::int64_t> fileBytes;
        std::vector<std::uint32_t> changed; ///< seconds since 1970
        std::vector<std::uint32_t> opened;
        std::vector<Number> counted;
        bool isComplete = true;
    };

    explicit HomeFiles(Contents contents) : m_all(std::move(contents)) {}

    /// False if there were too many files: then the smallest ones of caches and hidden folders are left out.
    /// What a folder takes is always whole.
    [[nodiscard]] bool isComplete() const { return m_all.isComplete; }

    [[nodiscard]] Number folderCount() const { return static_cast<Number>(m_all.parents.size()); }
    [[nodiscard]] Number fileCount() const { return static_cast<Number>(m_all.fileBytes.size()); }

    [[nodiscard]] Folder folder(Number number) const
    {
        return {folderName(number), m_all.parents[number], m_all.folderBytes[number],
                m_all.fileCounts[number], m_all.isOwn[number] != 0};
    }
    [[nodiscard]] File file(Number number) const
    {
        const std::string_view name = fileName(number);
        return {name,
                m_all.folderOfFile[number],
                m_all.fileBytes[number],
                TimePoint(std::chrono::seconds(m_all.changed[number])),
                TimePoint(std::chrono::seconds(m_all.opened[number])),
                m_all.counted[number],
                m_all.isOwn[m_all.folderOfFile[number]] != 0 && !name.starts_with('.')};
    }
    [[nodiscard]] std::string_view folderName(Number number) const
    {
        return nameAt(m_all.folderNames, number);
    }
    [[nodiscard]] std::string_view fileName(Number number) const { return nameAt(m_all.fileNames, number); }

    /// The folder and all below it.
    [[nodiscard]] Range foldersFrom(Number folder) const { return {folder, m_all.ends[folder]}; }
    /// The files in the folder and in all below it.
    [[nodiscard]] Range filesBelow(Number folder) const
    {
        return {m_all.firstFiles[folder], m_all.firstFiles[m_all.ends[folder]]};
    }
    /// The files directly in the folder.
    [[nodiscard]] Range filesIn(Number folder) const
    {
        return {m_all.firstFiles[folder], m_all.firstFiles[folder + 1]};
    }

    [[nodiscard]] std::string folderPath(Number number) const;
    [[nodiscard]] std::string filePath(Number number) const;

    /// The folder with this path; nothing if there is none.
    [[nodiscard]] std::optional<Number> folderAt(std::string_view path) const;

private:
    [[nodiscard]] std::string_view nameAt(const std::vector<std::uint32_t>& starts, Number number) const
    {
        return std::string_view(m_all.names).substr(starts[number], starts[number + 1] - starts[number]);
    }

    Contents m_all;
};

} // namespace orlen
