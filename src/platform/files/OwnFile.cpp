#include "platform/files/OwnFile.h"

#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/files/UniqueFd.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orlen::OwnFile {

namespace {

constexpr unsigned kMode = 0600;
/// Between a file's name and the process and counter numbers, until the file is complete.
constexpr std::string_view kUnfinishedMark = ".new-";

Result<UniqueFd> openForWriting(const std::string& path, int flags)
{
    auto file = retriedFd(
        [&] { return ::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | flags, kMode); });
    struct stat opened {};
    if (file.ok() && (::fstat(file.value().get(), &opened) != 0 || !S_ISREG(opened.st_mode)))
        return Errno{EINVAL};
    return file;
}

/// The pieces of a file, empty at the end.
using Pieces = std::function<std::string_view()>;

Pieces onePiece(std::string_view bytes)
{
    return [bytes]() mutable { return std::exchange(bytes, {}); };
}

Result<void> writeSyncClose(UniqueFd file, const Pieces& next, unsigned mode)
{
    for (std::string_view piece = next(); !piece.empty(); piece = next()) {
        if (auto written = writeAll(file.get(), piece); !written.ok())
            return written;
    }
    // Not every file system has modes: set one only if asked for.
    if (mode != kMode && ::fchmod(file.get(), mode) != 0)
        return Errno{errno};
    return syncFile(file.get());
}

/// Writes the pieces beside the path, then has `place(beside)` rename the file.
template <typename Place>
Result<void> writePlaced(const std::string& path, const Pieces& next, unsigned mode, Place place)
{
    if (auto reachable = Reachability::check(path); !reachable.ok())
        return reachable;
    // Two threads may write the same file: each uses its own name.
    static std::atomic<unsigned> counter{0};
    const std::string beside =
        path + std::string(kUnfinishedMark) + std::to_string(::getpid()) + "-" + std::to_string(++counter);
    // A leftover of a killed process with the same number is the program's own.
    ::unlink(beside.c_str());
    auto file = retriedFd(
        [&] { return ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kMode); });
    if (!file.ok())
        return Errno{file.error()};
    auto written = writeSyncClose(std::move(file).value(), next, mode);
    if (written.ok())
        written = place(beside);
    if (!written.ok()) {
        ::unlink(beside.c_str());
        return written;
    }
    // The rename itself must survive a power cut. If the folder cannot be synced, the file is still intact.
    if (const auto parent = openFolder(std::string(PathText::parent(path))); parent.ok())
        (void)::fsync(parent.value().get());
    return {};
}

constexpr std::string_view kDigits = "0123456789";

/// Whether this is the name of an incomplete file, "NAME.new-PROCESS-NUMBER", whose process is gone.
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

std::string besideOf(const std::string& path, const std::string& name)
{
    return PathText::join(PathText::parent(path), name);
}

} // namespace

Result<void> replace(const std::string& path, const std::string& bytes, unsigned mode)
{
    return replaceByPieces(path, onePiece(bytes), mode);
}

Result<void> replaceByPieces(const std::string& path, const Pieces& next, unsigned mode)
{
    return writePlaced(path, next, mode, [&](const std::string& beside) {
        return renameReplacingAt(AT_FDCWD, beside.c_str(), path.c_str());
    });
}

Result<void> writeNew(const std::string& path, const std::string& bytes, unsigned mode)
{
    return writePlaced(path, onePiece(bytes), mode, [&](const std::string& beside) {
        return renameNoReplaceAt(AT_FDCWD, beside.c_str(), AT_FDCWD, path.c_str());
    });
}

Result<void> rename(const std::string& path, const std::string& newName)
{
    if (auto reachable = Reachability::check(path); !reachable.ok())
        return reachable;
    const std::string newPath = besideOf(path, newName);
    return renameNoReplaceAt(AT_FDCWD, path.c_str(), AT_FDCWD, newPath.c_str());
}

Result<void> renameOver(const std::string& path, const std::string& newName)
{
    if (auto reachable = Reachability::check(path); !reachable.ok())
        return reachable;
    return renameReplacingAt(AT_FDCWD, path.c_str(), besideOf(path, newName).c_str());
}

Result<void> remove(const std::string& path)
{
    if (auto reachable = Reachability::check(path); !reachable.ok())
        return reachable;
    return removeFileAt(AT_FDCWD, path.c_str());
}

Result<void> fill(const std::string& path, std::int64_t length)
{
    const auto file = openForWriting(path, O_CREAT | O_APPEND);
    if (!file.ok())
        return Errno{file.error()};
    // Zeros or a hole would take no space on a compressing file system.
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
    // Some file systems free the space only at their next commit.
    (void)::fsync(file.value().get());
    return {};
}

void removeUnfinished(const std::string& folder)
{
    for (const std::string& name : listNames(folder)) {
        if (isLeftOver(name))
            (void)remove(PathText::join(folder, name));
    }
}

} // namespace orlen::OwnFile
