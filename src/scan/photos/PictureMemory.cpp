#include "scan/photos/PictureMemory.h"

#include "platform/files/FileLock.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/images/ImageMessages.h"
#include "platform/text/PathText.h"
#include "scan/photos/PictureFile.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orlen {

namespace {

using ImageMessages::Outlines;
using PictureRecords::Key;
using PictureRecords::KeyHash;
using PictureRecords::Record;
using Keys = std::unordered_set<Key, KeyHash>;

/// How exactly the time of use is kept: so often an unchanged library is written again.
constexpr std::chrono::hours kUseStep{24};
/// A file that was no picture is tried again: perhaps the machine was busy, or short of memory.
constexpr std::chrono::hours kDoubtful{7 * 24};

/// About, with an outline; in bytes.
constexpr std::size_t kLongestRecord = 4'500;

constexpr unsigned kFolderMode = 0700;

/// So is a time that lies ahead: some clock was wrong.
bool isLongAgo(TimePoint time, TimePoint now, std::chrono::hours most)
{
    return time < now - most || time > now + most;
}

/// A record of the file that there is.
struct Old {
    TimePoint used;
    PictureFile::Place place;
};

/// What the next file will hold, piece by piece.
class NextFile {
public:
    /// `added`: encoded records.
    NextFile(const PictureFile& file, std::vector<std::string> added, std::vector<Old> old, Outlines outlines)
        : m_file(file), m_added(std::move(added)), m_old(std::move(old)), m_outlines(outlines)
    {
    }

    /// Leaves out what was not used for longest.
    void shorten(std::size_t mostBytes)
    {
        std::size_t bytes = PictureRecords::header().size();
        const auto takes = [&](std::size_t more) {
            const bool fits = bytes + more <= mostBytes;
            bytes = fits ? bytes + more : mostBytes;
            return fits;
        };
        std::erase_if(m_added, [&](const std::string& record) { return !takes(record.size()); });
        std::vector<const Old*> lastUsedFirst;
        for (const Old& old : m_old)
            lastUsedFirst.push_back(&old);
        std::ranges::stable_sort(lastUsedFirst, std::ranges::greater(), &Old::used);
        std::vector<bool> isKept(m_old.size());
        for (const Old* const old : lastUsedFirst)
            isKept[static_cast<std::size_t>(old - m_old.data())] = takes(old->place.length);
        std::vector<Old> kept;
        for (std::size_t i = 0; i < m_old.size(); ++i) {
            if (isKept[i])
                kept.push_back(m_old[i]);
        }
        m_old = std::move(kept);
    }

    /// Empty at the end; gone with the next call.
    [[nodiscard]] std::string_view piece()
    {
        constexpr std::size_t kPiece = 1'000'000;
        m_piece.clear();
        if (!std::exchange(m_isStarted, true))
            m_piece = PictureRecords::header();
        for (; m_piece.size() < kPiece && m_next < m_added.size() + m_old.size(); ++m_next)
            m_piece += m_next < m_added.size() ? m_added[m_next] : again(m_old[m_next - m_added.size()]);
        return m_piece;
    }

private:
    /// Nothing of one that can no longer be read.
    [[nodiscard]] std::string again(const Old& old) const
    {
        const auto bytes = m_file.bytes(old.place);
        auto record = bytes ? PictureRecords::next(*bytes).record : std::nullopt;
        if (!record)
            return {};
        // As it would be said today.
        const auto answer = ImageMessages::decodedAnswer(record->answer);
        const std::string today =
            answer ? ImageMessages::encoded(*answer, m_outlines) : std::string(record->answer);
        return PictureRecords::encoded({record->key, old.used, today});
    }

    const PictureFile& m_file;
    std::vector<std::string> m_added;
    std::vector<Old> m_old;
    Outlines m_outlines;
    bool m_isStarted = false;
    std::size_t m_next = 0; ///< of both, one after the other
    std::string m_piece;
};

} // namespace

std::string PictureMemory::standardPath()
{
    return PathText::join(Places::current().caches.front(), "Orlen/pictures");
}

std::vector<std::unique_ptr<PictureMemory::Known>> PictureMemory::recall(const std::vector<Cand>& images,
                                                                         TimePoint now)
{
    // One file may have several names.
    std::unordered_multimap<Key, std::size_t, KeyHash> wanted;
    for (std::size_t i = 0; i < images.size(); ++i) {
        if (images[i].stamp)
            wanted.emplace(Key::of(*images[i].stamp), i);
    }
    std::vector<std::unique_ptr<Known>> known(images.size());
    PictureFile(m_path, m_mostBytes).visit([&](const Record& record, PictureFile::Place) {
        const auto [first, last] = wanted.equal_range(record.key);
        const auto answer = first == last ? std::nullopt : ImageMessages::decodedAnswer(record.answer);
        if (!answer || (!answer->analysis && isLongAgo(record.used, now, kDoubtful)))
            return;
        // The time at which a file was no picture stays the first one.
        if (answer->analysis) {
            m_used.insert(record.key);
            m_isStale = m_isStale || isLongAgo(record.used, now, kUseStep);
        }
        for (auto image = first; image != last; ++image)
            known[image->second] = std::make_unique<Known>(answer->analysis);
    });
    return known;
}

void PictureMemory::remember(const std::vector<Learned>& learned, TimePoint now)
{
    const std::string folder(PathText::parent(m_path));
    if ((learned.empty() && !m_isStale) || !makeFolders(folder, kFolderMode).ok())
        return;
    const auto lock = FileLock::take(m_path + ".lock");
    if (!lock.ok())
        return;
    OwnFile::removeUnfinished(folder);
    // One record for each file.
    Keys seen;
    std::vector<const Learned*> news;
    for (const Learned& each : learned) {
        if (seen.insert(Key::of(each.first)).second)
            news.push_back(&each);
    }
    // Once more, as another process may have written it since.
    const PictureFile file(m_path, m_mostBytes);
    std::vector<Old> old;
    file.visit([&](const Record& record, PictureFile::Place place) {
        if (seen.insert(record.key).second)
            old.push_back({m_used.contains(record.key) ? now : std::min(record.used, now), place});
    });
    // Rather many pictures than what can be made again.
    const Outlines outlines = seen.size() > m_mostBytes / kLongestRecord ? Outlines::without : Outlines::with;
    std::vector<std::string> added;
    for (const Learned* const each : news) {
        const std::string answer = ImageMessages::encoded(ImageMessages::Answer{each->second}, outlines);
        added.push_back(PictureRecords::encoded({Key::of(each->first), now, answer}));
    }
    NextFile next(file, std::move(added), std::move(old), outlines);
    next.shorten(m_mostBytes);
    (void)OwnFile::replaceByPieces(m_path, [&next] { return next.piece(); });
}

} // namespace orlen
