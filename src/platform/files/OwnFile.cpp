#include "platform/files/OwnFile.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Retrying.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen::OwnFile {

namespace {

constexpr unsigned kMode = 0600;

Result<UniqueFd> openForWriting(const std::string& path, int flags)
{
    auto file = retriedFd(
        [&] { return ::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | flags, kMode); });
    struct stat opened {};
    if (file.ok() && (::fstat(file.value().get(), &opened) != 0 || !S_ISREG(opened.st_mode)))
        return Errno{EINVAL};
    return file;
}

constexpr std::string_view kDigits = "0123456789";

/// Whether a name is one that a file has until it is whole, "NAME.new-PROCESS-NUMBER", and that process is no
/// more.
bool isLeftOver(std::string_view name)
{
    const std::size_t mark = name.rfind(kUnfinishedMark);
    if (mark == std::string_view::npos || mark == 0)
        return false;
    const std::string_view numbers = name.substr(mark + kUnfinishedMark.size());
    const std::size_t dash = numbers.find_first_not_of(kDigits);
    const bool isOurs = dash != std::string_view::npos && dash > 0 && dash + 1 < numbers.size() &&
                        numbers[dash] == '-' &&
                        numbers.find_first_not_of(kDigits, dash + 1) == std::string_view::npos;
    pid_t process = 0;
    std::from_chars(numbers.data(), numbers.data() + numbers.size(), process);
    return isOurs && process > 0 && ::kill(process, 0) != 0 && errno == ESRCH;
}

} // namespace

Result<void> fill(const std::string& path, std::int64_t length)
{
    const auto file = openForWriting(path, O_CREAT | O_APPEND);
    if (!file.ok())
        return Errno{file.error()};
    // Zeros, or a hole, would take no room on a file system that compresses.
    std::mt19937_64 random(std::random_device{}());
    std::array<std::uint64_t, 8192> words{};
    std::array<char, sizeof(words)> bytes{};
    for (;;) {
        struct stat status {};
        if (::fstat(file.value().get(), &status) != 0)
            return Errno{errno};
        if (status.st_size >= length)
            return syncFile(file.value().get());
        std::ranges::generate(words, random);
        std::memcpy(bytes.data(), words.data(), bytes.size());
        const auto missing = static_cast<std::size_t>(length - status.st_size);
        const std::string_view piece(bytes.data(), std::min(missing, bytes.size()));
        if (const auto written = writeAll(file.value().get(), piece); !written.ok())
            return written;
    }
}

Result<void> shorten(const std::string& path, std::int64_t length)
{
    const auto file = openForWriting(path, 0);
    if (!file.ok())
        return Errno{file.error()};
    if (retried([&] { return ::ftruncate(file.value().get(), length); }) != 0)
        return Errno{errno};
    // Some file systems free the room only with their next commit.
    (void)::fsync(file.value().get());
    return {};
}

Result<void> rename(const std::string& path, const std::string& newName)
{
    const auto folder = openUnlinkedFolder(std::string(PathText::parent(path)));
    if (!folder.ok())
        return Errno{folder.error()};
    const std::string name(PathText::lastComponent(path));
    return renameReplacingAt(folder.value().get(), name.c_str(), newName.c_str());
}

void removeUnfinished(const std::string& folder)
{
    for (const std::string& name : listNames(folder)) {
        if (isLeftOver(name))
            (void)removeOwnFile(PathText::join(folder, name));
    }
}

} // namespace orlen::OwnFile
