#pragma once

#include "platform/files/FileStatus.h"
#include "scan/tree/PathMarks.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orlen {

/// One folder on the way of a scan. Knows its name and its parent; the path is put together only when asked
/// for, or kept where the visitor asks for most of them. Immutable once its contents are visited; any thread.
class TreeFolder {
public:
    /// So long a path, its end counted, is the longest that the kernel takes; what lies deeper has no path
    /// that anybody could use.
    static constexpr std::size_t kLongestPath = 4'096;

    TreeFolder(std::shared_ptr<const TreeFolder> parent, std::string name, std::uint32_t tag)
        : m_parent(std::move(parent)), m_name(std::move(name)), m_tag(tag),
          m_pathLength(m_parent ? m_parent->m_pathLength + 1 + m_name.size() : m_name.size())
    {
    }
    TreeFolder(const TreeFolder&) = delete;
    TreeFolder& operator=(const TreeFolder&) = delete;
    ~TreeFolder();

    /// Null for a root of the scan.
    [[nodiscard]] const TreeFolder* parent() const { return m_parent.get(); }
    /// The last component; for a root the path it was given by.
    [[nodiscard]] const std::string& name() const { return m_name; }
    /// What the visitor gave when the folder was entered; for a root what its scan was given.
    [[nodiscard]] std::uint32_t tag() const { return m_tag; }
    [[nodiscard]] const FileIdentity& identity() const { return m_identity; }
    /// Number of the mount it lies on.
    [[nodiscard]] std::uint64_t mount() const { return m_mount; }

    /// Whether a child of this name has a path that the kernel takes.
    [[nodiscard]] bool canName(std::string_view name) const
    {
        return m_pathLength + 1 + name.size() < kLongestPath;
    }

    [[nodiscard]] std::string path() const;
    [[nodiscard]] std::string pathOf(std::string_view name) const;

private:
    friend class TreeScanJob;
    std::shared_ptr<const TreeFolder> m_parent;
    std::string m_name;
    std::uint32_t m_tag;
    std::size_t m_pathLength;                      ///< bytes
    std::string m_path;                            ///< empty: not kept, to be put together
    const PathMarks::Node* m_marks = nullptr;      ///< the caller's marks at and below this folder
    const PathMarks::Node* m_mountMarks = nullptr; ///< mounts not to be touched
    FileIdentity m_identity;
    std::uint64_t m_mount = 0;
};

} // namespace orlen
