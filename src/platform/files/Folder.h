#pragma once

#include "platform/files/FileStatus.h"
#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Opens a folder for listing without following a link in the last component and, where the system allows it,
/// without changing its access time. ENOTDIR or ELOOP for a link. Blocks on the disk; any thread.
[[nodiscard]] Result<UniqueFd> openFolder(const std::string& path);
[[nodiscard]] Result<UniqueFd> openFolderAt(int parent, const char* name);

/// What a listing tells of a name without asking for more. `unknown`: the file system does not say.
enum class EntryType { regular, folder, link, other, unknown };

struct FolderEntry {
    const char* name; ///< ends in a zero byte; lives as long as the chunk it came from
    EntryType type;
};

/// One buffer full of a folder's entries, as the kernel packed them. "." and ".." are left out when reading.
class FolderChunk {
public:
    /// Calls `visit(FolderEntry)` for each entry in listing order.
    template <typename Visit>
    void forEach(Visit&& visit) const
    {
        for (std::size_t at = 0; at < m_used;) {
            if (const std::optional<FolderEntry> entry = entryAt(at))
                visit(*entry);
        }
    }

private:
    friend class FolderReader;
    [[nodiscard]] std::optional<FolderEntry> entryAt(std::size_t& at) const;

    std::unique_ptr<char[]> m_bytes;
    std::size_t m_used = 0;
};

/// Reads an open folder chunk by chunk. The descriptor must outlive it.
class FolderReader {
public:
    explicit FolderReader(int folder) : m_folder(folder) {}

    /// The next chunk; nothing at the end or when reading fails.
    [[nodiscard]] std::optional<FolderChunk> next();
    /// Why reading failed; 0 when it did not.
    [[nodiscard]] int error() const { return m_error; }

private:
    int m_folder;
    int m_error = 0;
};

/// The names directly inside a folder, in listing order, without "." and ".."; empty when it cannot be read.
/// A link in the last component is not followed.
[[nodiscard]] std::vector<std::string> listNames(const std::string& folder);

/// Whether the folder can be opened and listed.
[[nodiscard]] bool isListable(const std::string& folder);

/// Creates the folder and its missing parents, the new ones with `mode`. Ok when it exists already.
[[nodiscard]] Result<void> makeFolders(const std::string& path, unsigned mode);

/// The path with all links resolved; empty when it does not exist.
[[nodiscard]] std::string resolved(const std::string& path);

} // namespace orlen
