#include "clean/Reserve.h"

#include "clean/Persist.h"
#include "platform/files/FileStatus.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Volume.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <mutex>

namespace orlen::Reserve {

namespace {

constexpr std::int64_t kLargest = 8'000'000;
/// Largest share of a small disk that is reserved.
constexpr std::int64_t kPartOfDisk = 20;
/// This multiple of its size must be free before the reserve grows.
constexpr std::int64_t kPlenty = 4;
constexpr std::int64_t kPieces = 16;
constexpr std::int64_t kPiecesForRecord = 4;

std::mutex& lock()
{
    static std::mutex mutex;
    return mutex;
}

std::string path()
{
    return PathText::join(Persist::dir(), "reserve");
}

std::int64_t wholeSize(const VolumeSpace& space)
{
    return std::min(kLargest, space.total / kPartOfDisk);
}

} // namespace

std::int64_t size()
{
    const auto status = statusOf(path());
    return status.ok() && status.value().type == FileType::regular ? status.value().length : 0;
}

void refill()
{
    const std::lock_guard held(lock());
    const auto folder = Persist::makeDir();
    const auto space = folder.ok() ? volumeSpace(folder.value()) : Errno{folder.error()};
    if (!space.ok())
        return;
    const std::int64_t whole = wholeSize(space.value());
    if (space.value().free >= whole * kPlenty && size() < whole)
        (void)OwnFile::fill(path(), whole);
}

bool giveUp(Use use)
{
    const std::lock_guard held(lock());
    const std::int64_t now = size();
    const auto space = volumeSpace(Persist::dir());
    if (now == 0 || !space.ok())
        return false;
    const std::int64_t piece = wholeSize(space.value()) / kPieces + 1;
    const std::int64_t kept = use == Use::items ? piece * kPiecesForRecord : 0;
    return now > kept && OwnFile::shorten(path(), std::max(kept, now - piece)).ok();
}

} // namespace orlen::Reserve
