#include "scan/photos/PictureMemory.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileLock.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/images/ImageMessages.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <chrono>
#include <unordered_map>

namespace orlen {

namespace {

using PictureRecords::Key;
using PictureRecords::KeyHash;
using PictureRecords::Record;

/// How exactly the time of use is kept: so often an unchanged library is written again.
constexpr std::chrono::hours kUseStep{24};
/// A file that was no picture is tried again: perhaps the machine was busy, or short of memory.
constexpr std::chrono::hours kDoubtful{7 * 24};

constexpr unsigned kFolderMode = 0700;

} // namespace

std::string PictureMemory::standardPath()
{
    return PathText::join(Places::current().caches.front(), "Orlen/pictures");
}

std::string PictureMemory::content() const
{
    return readSmallFile(m_path, m_mostBytes).value_or(std::string());
}

std::vector<std::unique_ptr<PictureMemory::Known>> PictureMemory::recall(const std::vector<Cand>& images,
                                                                         TimePoint now)
{
    const std::string bytes = content();
    std::unordered_map<Key, Record, KeyHash> records;
    for (const Record& record : PictureRecords::decoded(bytes))
        records.insert_or_assign(record.key, record);
    std::vector<std::unique_ptr<Known>> known(images.size());
    for (std::size_t i = 0; i < images.size(); ++i) {
        const auto found = images[i].stamp ? records.find(Key::of(*images[i].stamp)) : records.end();
        if (found == records.end())
            continue;
        auto answer = ImageMessages::decodedAnswer(found->second.answer);
        if (!answer || (!answer->analysis && now - found->second.used > kDoubtful))
            continue;
        // The time at which a file was no picture stays the first one.
        if (answer->analysis) {
            m_used.insert(found->first);
            m_isStale = m_isStale || now - found->second.used > kUseStep;
        }
        known[i] = std::make_unique<Known>(std::move(answer->analysis));
    }
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
    std::vector<std::string> answers;
    answers.reserve(learned.size());
    Records added;
    for (const auto& [stamp, analysis] : learned) {
        answers.push_back(ImageMessages::encoded(ImageMessages::Answer{analysis}));
        added.push_back({Key::of(stamp), now, answers.back()});
    }
    // Once more, as another process may have written it since.
    const std::string old = content();
    std::string bytes(PictureRecords::header());
    for (const Record& record : merged(PictureRecords::decoded(old), added, now)) {
        const std::string next = PictureRecords::encoded(record);
        if (bytes.size() + next.size() > m_mostBytes)
            break;
        bytes += next;
    }
    (void)OwnFile::replace(m_path, bytes);
}

/// One record for each file, the last used first.
PictureMemory::Records PictureMemory::merged(const Records& old, const Records& added, TimePoint now) const
{
    Records all = added;
    std::unordered_set<Key, KeyHash> seen;
    for (const Record& record : added)
        seen.insert(record.key);
    for (Record record : old) {
        if (!seen.insert(record.key).second)
            continue;
        if (m_used.contains(record.key))
            record.used = now;
        all.push_back(record);
    }
    std::ranges::stable_sort(all, std::ranges::greater(), &Record::used);
    return all;
}

} // namespace orlen
