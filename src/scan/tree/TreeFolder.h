#pragma once

#include "platform/files/FileStatus.h"
#include "scan/tree/PathMarks.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orlen {

/// One folder met by a scan. Knows its name and parent; the path is built only on request, or stored if the
/// visitor asks for most paths. Immutable once its contents are visited; any thread.
class TreeFolder {
public:
    /// The longest path the kernel accepts, with its terminator. Anything deeper has no usable path.
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
    /// The last component; for a root, the path it was given as.
    [[nodiscard]] const std::string& name() const { return m_name; }
    /// The tag the visitor returned when the folder was entered; for a root, the given one.
    [[nodiscard]] std::uint32_t tag() const { return m_tag; }
    [[nodiscard]] const FileIdentity& identity() const { return m_identity; }
    /// Id of its mount.
    [[nodiscard]] std::uint64_t mount() const { return m_mount; }

    /// Whether the path of a child with this name would be short enough for the kernel.
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
    std::string m_path;                            ///< empty if not stored
    const PathMarks::Node* m_marks = nullptr;      ///< the caller's marks at and below this folder
    const PathMarks::Node* m_mountMarks = nullptr; ///< mounts that must not be touched
    FileIdentity m_identity;
    std::uint64_t m_mount = 0;
};

} // namespace orlen
