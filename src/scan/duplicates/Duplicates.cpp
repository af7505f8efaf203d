#include "scan/duplicates/Duplicates.h"

#include "platform/files/Places.h"
#include "platform/files/SharedExtents.h"
#include "platform/text/PathText.h"
#include "scan/ScanTexts.h"
#include "scan/duplicates/KeepOrder.h"
#include "scan/duplicates/ReadingThreads.h"
#include "scan/duplicates/Suspect.h"
#include "scan/duplicates/WholeContents.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <utility>

// The search narrows one list of suspects. Each step learns something more about every suspect that is left,
// which costs more than the step before, and drops those whose knowledge no other suspect shares:
//
//   1. Length: known from the walk. Files of different length cannot be identical.
//   2. Length and identity as they are now: one call each.
//   3. Quick hash: reads head and tail, in the order of the file numbers, which is about that of the disk.
//   4. Whole contents: few files with one quick hash are compared, many are hashed. Both decide by all bytes.
//      Files up to the length of a head are settled by step 3.
//
// What remains are the sets. Nothing is read twice but the heads and tails of files that reach step 4.

namespace orlen::Duplicates {

namespace {

using Suspects = std::vector<Suspect>;
using Reader = ReadingThreads::Reader;

/// What the walk saw of the content. Not what it takes on the disk: a download in many pieces has a block
/// more than its copy in one.
auto lengthWhenWalked(const Suspect& suspect)
{
    const Cand& cand = *suspect.cand;
    return cand.stamp ? cand.stamp->length : cand.size;
}

auto length(const Suspect& suspect)
{
    return suspect.seen.length;
}

auto lengthAndDigest(const Suspect& suspect)
{
    return std::tuple(suspect.seen.length, suspect.digest);
}

/// Sorts by the key; the runs of equal keys in this order.
template <typename Key>
std::vector<std::span<Suspect>> groupsBy(Suspects& suspects, Key key)
{
    std::ranges::stable_sort(suspects, {}, key);
    std::vector<std::span<Suspect>> groups;
    for (auto first = suspects.begin(); first != suspects.end();) {
        const auto last = std::find_if(first, suspects.end(),
                                       [&](const Suspect& other) { return key(other) != key(*first); });
        groups.emplace_back(first, last);
        first = last;
    }
    return groups;
}

/// Drops the suspects that are out and those whose key no other has.
template <typename Key>
void keepShared(Suspects& suspects, Key key)
{
    std::erase_if(suspects, [](const Suspect& suspect) { return suspect.isOut; });
    Suspects shared;
    for (const auto group : groupsBy(suspects, key)) {
        if (group.size() > 1)
            shared.insert(shared.end(), group.begin(), group.end());
    }
    suspects = std::move(shared);
}

Suspects differentPaths(const std::vector<Cand>& cands)
{
    std::unordered_set<std::string_view> met;
    met.reserve(cands.size());
    Suspects suspects;
    suspects.reserve(cands.size());
    for (const Cand& cand : cands) {
        if (met.insert(cand.path).second)
            suspects.emplace_back().cand = &cand;
    }
    return suspects;
}

/// The file with the stamp that its contents were compared under.
Cand asCompared(const Suspect& suspect)
{
    Cand cand = *suspect.cand;
    cand.stamp = FileStamp::of(suspect.seen);
    cand.hasOtherNames = suspect.seen.links > 1;
    return cand;
}

class Search {
public:
    Search(const std::vector<Cand>& cands, const std::stop_token& stop, const KeepRule& rule,
           ScanProgress& progress)
        : m_progress(progress), m_stop(stop), m_threads(stop), m_prefers(Places::current(), rule),
          m_suspects(differentPaths(cands))
    {
    }

    Result run()
    {
        Result result;
        result.filesConsidered = static_cast<std::int64_t>(m_suspects.size());
        keepShared(m_suspects, lengthWhenWalked);
        look();
        keepShared(m_suspects, length);
        keepOneNameEach();
        keepShared(m_suspects, length);
        hashQuickly();
        keepShared(m_suspects, lengthAndDigest);
        settle();
        noteSharedData();
        std::ranges::sort(m_sets, {}, [](const Set& set) -> const std::string& { return set.kept.path; });
        if (!m_stop.stop_requested())
            result.sets = std::move(m_sets);
        result.filesHashed = m_threads.filesOpened();
        result.bytesHashed = m_threads.bytesRead();
        return result;
    }

private:
    void look()
    {
        m_threads.forEach(m_suspects.size(), [&](Reader&, std::size_t i) {
            Suspect& suspect = m_suspects[i];
            const auto status = statusOf(suspect.cand->path);
            suspect.isOut = !status.ok() || status.value().type != FileType::regular;
            if (!suspect.isOut)
                suspect.seen = status.value();
        });
    }

    /// Leaves the preferred one of several names of one file.
    void keepOneNameEach()
    {
        const auto identity = [](const Suspect& suspect) { return suspect.seen.identity; };
        for (const auto names : groupsBy(m_suspects, identity)) {
            const auto best = std::ranges::min_element(
                names, [&](const Suspect& a, const Suspect& b) { return m_prefers(*a.cand, *b.cand); });
            for (Suspect& name : names)
                name.isOut = &name != &*best;
        }
    }

    void hashQuickly()
    {
        std::ranges::sort(m_suspects, {}, [](const Suspect& suspect) { return suspect.seen.identity; });
        m_threads.forEach(m_suspects.size(), [&](Reader& reader, std::size_t i) {
            const auto digest = reader.hasher.quick(m_suspects[i]);
            m_suspects[i].isOut = !digest;
            m_suspects[i].digest = digest.value_or(Digest{});
        });
    }

    /// Turns the groups with one quick hash into sets.
    void settle()
    {
        std::vector<std::span<Suspect>> unsettled;
        for (const auto group : groupsBy(m_suspects, lengthAndDigest)) {
            if (group.front().seen.length <= FileHasher::kPiece)
                addSet({group.begin(), group.end()});
            else
                unsettled.push_back(group);
        }
        for (Suspects& members : WholeContents::identical(m_threads, m_progress, unsettled))
            addSet(std::move(members));
    }

    void addSet(Suspects members)
    {
        std::ranges::sort(members,
                          [&](const Suspect& a, const Suspect& b) { return m_prefers(*a.cand, *b.cand); });
        Set set{.kept = asCompared(members.front()), .copies = {}};
        for (const Suspect& member : std::span(members).subspan(1)) {
            if (!m_prefers.isReference(member.cand->path))
                set.copies.push_back({.file = asCompared(member)});
        }
        if (!set.copies.empty())
            m_sets.push_back(std::move(set));
    }

    void noteSharedData()
    {
        m_threads.forEach(m_sets.size(), [&](Reader&, std::size_t i) {
            for (Copy& copy : m_sets[i].copies)
                copy.sharesData =
                    !m_stop.stop_requested() && shareAllExtents(m_sets[i].kept.path, copy.file.path);
        });
    }

    ScanProgress& m_progress;
    std::stop_token m_stop;
    ReadingThreads m_threads;
    KeepOrder m_prefers;
    Suspects m_suspects;
    std::vector<Set> m_sets;
};

} // namespace

Result find(const std::vector<Cand>& cands, const std::stop_token& stop, const KeepRule& rule,
            ScanProgress* progress)
{
    ScanProgress unseen;
    return Search(cands, stop, rule, progress != nullptr ? *progress : unseen).run();
}

Message note(const std::string& kept, bool sharesData)
{
    Message note{ScanTexts::kIdentical, {{"name", std::string(PathText::lastComponent(kept))}}};
    if (!sharesData)
        return note;
    return Message::joined({std::move(note), ScanTexts::kSharesData}, Several::Joint::facts);
}

Finding finding(const Result& result)
{
    std::vector<FileEntry> entries;
    for (const Set& set : result.sets) {
        for (const Copy& copy : set.copies) {
            FileEntry& entry =
                entries.emplace_back(toEntryByContent(copy.file, note(set.kept.path, copy.sharesData)));
            entry.kept = toKept(set.kept);
        }
    }
    return Finding(FindingKind::duplicates, std::move(entries));
}

} // namespace orlen::Duplicates
