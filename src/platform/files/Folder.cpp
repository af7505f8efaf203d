#include "platform/files/Folder.h"

#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/text/PathText.h"

#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen {

namespace {

constexpr std::size_t kChunkBytes = 32UL * 1024;
constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;

EntryType toEntryType(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return EntryType::regular;
    case DT_DIR:
        return EntryType::folder;
    case DT_LNK:
        return EntryType::link;
    case DT_UNKNOWN:
        return EntryType::unknown;
    default:
        return EntryType::other;
    }
}

} // namespace

Result<UniqueFd> openFolder(const std::string& path)
{
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    return openFolderAt(AT_FDCWD, path.c_str());
}

Result<UniqueFd> openFolderAt(int parent, const char* name)
{
    auto folder = retriedFd([&] { return ::openat(parent, name, kFolderFlags | O_NOATIME); });
    // Only the owner may read without updating the access time.
    if (!folder.ok() && folder.error() == EPERM)
        return retriedFd([&] { return ::openat(parent, name, kFolderFlags); });
    return folder;
}

std::optional<FolderEntry> FolderChunk::entryAt(std::size_t& at) const
{
    const auto* raw = reinterpret_cast<const dirent64*>(m_bytes.get() + at);
    at += raw->d_reclen;
    const char* name = raw->d_name;
    if (name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0)))
        return std::nullopt;
    return FolderEntry{name, toEntryType(raw->d_type)};
}

std::optional<FolderChunk> FolderReader::next()
{
    FolderChunk chunk;
    chunk.m_bytes = std::make_unique_for_overwrite<char[]>(kChunkBytes);
    const auto got = retried([&] { return ::getdents64(m_folder, chunk.m_bytes.get(), kChunkBytes); });
    if (got < 0)
        m_error = errno;
    if (got <= 0)
        return std::nullopt;
    chunk.m_used = static_cast<std::size_t>(got);
    return chunk;
}

std::vector<std::string> listNames(const std::string& folder)
{
    std::vector<std::string> names;
    const auto fd = openFolder(folder);
    if (!fd.ok())
        return names;
    FolderReader reader(fd.value().get());
    while (const auto chunk = reader.next())
        chunk->forEach([&](const FolderEntry& entry) { names.emplace_back(entry.name); });
    return names;
}

bool isListable(const std::string& folder)
{
    const auto fd = openFolder(folder);
    if (!fd.ok())
        return false;
    char byte[4096];
    return retried([&] { return ::getdents64(fd.value().get(), byte, sizeof byte); }) >= 0;
}

Result<void> makeFolders(const std::string& path, unsigned mode)
{
    const std::string whole = PathText::standardized(path);
    if (auto reachable = Reachability::check(whole, Reachability::LastLink::followed); !reachable.ok())
        return reachable;
    for (std::size_t slash = whole.find('/', 1);; slash = whole.find('/', slash + 1)) {
        const std::string folder = whole.substr(0, slash);
        if (::mkdir(folder.c_str(), mode) != 0 && errno != EEXIST) {
            // A parent on a read-only or foreign file system may exist anyway.
            const int error = errno;
            struct stat status {};
            if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
                return Errno{error};
        }
        if (slash == std::string::npos)
            break;
    }
    struct stat status {};
    if (::stat(whole.c_str(), &status) != 0)
        return Errno{errno};
    if (!S_ISDIR(status.st_mode))
        return Errno{ENOTDIR};
    return {};
}

std::string resolved(const std::string& path)
{
    if (!Reachability::check(path, Reachability::LastLink::followed).ok())
        return {};
    const std::unique_ptr<char, decltype(&std::free)> text(::realpath(path.c_str(), nullptr), &std::free);
    return text ? std::string(text.get()) : std::string();
}

} // namespace orlen
