#pragma once

#include "platform/files/FileStatus.h"
#include "platform/files/MountTable.h"
#include "scan/HomeFiles.h"
#include "scan/HomeWalk.h"
#include "scan/tree/TreeScan.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orlen {

/// Collects what a walk of the home folder meets, in whatever order, and puts it in order.
class HomeStock : public TreeVisitor {
public:
    HomeStock(HomeWalk::Limits limits, const MountTable& mounts);

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t marks) override;
    void files(const TreeFolder& folder, std::span<const TreeFile> files) override;

    /// After the scan, once.
    [[nodiscard]] HomeFiles::Contents contents(std::string home);

private:
    using Number = HomeFiles::Number;

    struct StockedFolder {
        Number parent = 0;
        std::uint32_t name = 0; ///< where it begins in the text of folder names
        std::uint32_t nameEnd = 0;
        bool isOwn = false;
        std::uint32_t files = 0; ///< with one name, directly in it
        std::int64_t bytes = 0;  ///< of those
    };
    struct StockedFile {
        Number folder = 0;
        std::uint32_t name = 0; ///< where it begins in the text of file names
        std::uint32_t nameEnd = 0;
        std::uint32_t changed = 0;
        std::uint32_t opened = 0;
        std::uint32_t link = 0; ///< 1 more than the number of its `LinkedName`; 0 for files with one name
        std::int64_t bytes = 0;
    };
    /// One of the names of a file that has several.
    struct LinkedName {
        FileIdentity identity;
        Number folder = 0;
        std::int64_t bytes = 0;
    };

    [[nodiscard]] std::string_view nameOf(const StockedFolder& folder) const;
    [[nodiscard]] std::string_view nameOf(const StockedFile& file) const;
    void keep(const TreeFile& file, const StockedFile& known);
    /// Drops the smallest files, those that are not the person's own first.
    void thinOut();
    [[nodiscard]] std::vector<Number> inOrder() const;
    void putFolders(HomeFiles::Contents& all, const std::vector<Number>& order,
                    const std::vector<Number>& newNumbers) const;
    void addLinked(HomeFiles::Contents& all, const std::vector<Number>& newNumbers) const;
    void putFiles(HomeFiles::Contents& all, const std::vector<Number>& newNumbers);
    void chooseNames(HomeFiles::Contents& all, const std::vector<std::uint32_t>& links) const;

    const HomeWalk::Limits m_limits;
    const MountTable& m_mounts;
    std::mutex m_lock;
    std::vector<StockedFolder> m_folders; ///< every folder behind the one it is in
    std::string m_folderNames;
    std::vector<StockedFile> m_files;
    std::string m_fileNames;
    std::vector<LinkedName> m_linked;
    bool m_isComplete = true;
};

} // namespace orlen
