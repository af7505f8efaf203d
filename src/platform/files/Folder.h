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

/// Opens a folder for listing. A link in the last component is not followed: ENOTDIR or ELOOP. The access
/// time is kept where the system allows. Blocks on the disk; any thread.
[[nodiscard]] Result<UniqueFd> openFolder(const std::string& path);
[[nodiscard]] Result<UniqueFd> openFolderAt(int parent, const char* name);

/// What a listing says about a name without a further call. `unknown`: the file system does not say.
enum class EntryType { regular, folder, link, other, unknown };

struct FolderEntry {
    const char* name; ///< zero-terminated; lives as long as its chunk
    EntryType type;
};

/// One buffer of a folder's entries, as packed by the kernel. "." and ".." are skipped.
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

/// Reads an open folder chunk by chunk. The descriptor must outlive the reader.
class FolderReader {
public:
    explicit FolderReader(int folder) : m_folder(folder) {}

    /// The next chunk; nothing at the end or on failure.
    [[nodiscard]] std::optional<FolderChunk> next();
    /// The errno if reading failed, else 0.
    [[nodiscard]] int error() const { return m_error; }

private:
    int m_folder;
    int m_error = 0;
};

/// The names directly inside a folder, in listing order, without "." and ".."; empty if it cannot be read. A
/// link in the last component is not followed.
[[nodiscard]] std::vector<std::string> listNames(const std::string& folder);

/// Whether the folder can be opened and listed.
[[nodiscard]] bool isListable(const std::string& folder);

/// Creates the folder and its missing parents with `mode`. Ok if it exists already.
[[nodiscard]] Result<void> makeFolders(const std::string& path, unsigned mode);

/// The path with all links resolved; empty if it does not exist.
[[nodiscard]] std::string resolved(const std::string& path);

} // namespace orlen
