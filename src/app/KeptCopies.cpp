#include "app/KeptCopies.h"

#include "app/NewKeeper.h"
#include "model/KeptSets.h"
#include "platform/files/Places.h"
#include "platform/files/SharedExtents.h"
#include "scan/Cand.h"
#include "scan/duplicates/Duplicates.h"
#include "scan/duplicates/KeepOrder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen::KeptCopies {

namespace {

Cand candOf(const FileEntry& entry)
{
    return {.path = entry.path, .modified = entry.modified.value_or(TimePoint())};
}

class Choice {
public:
    Choice(const KeepRule& rule, FindingKind kind, std::vector<FileEntry>& copies)
        : m_prefers(Places::current(), rule), m_kind(kind), m_copies(copies)
    {
    }

    /// The copy that is rather kept than the file that is; null when that is the best.
    [[nodiscard]] FileEntry* betterOf(const KeptSet& set) const
    {
        const FileEntry& first = m_copies[set.entries.front()];
        const auto status = first.kept ? statusOf(first.kept->path) : Result<FileStatus>(Errno{0});
        if (!status.ok())
            return nullptr;
        Cand best{.path = set.kept, .modified = status.value().modified};
        FileEntry* found = nullptr;
        for (const std::size_t number : set.entries) {
            const Cand cand = candOf(m_copies[number]);
            if (m_copies[number].stamp && isBetter(cand, best)) {
                best = cand;
                found = &m_copies[number];
            }
        }
        return found;
    }

    void exchange(const KeptSet& set, FileEntry& chosen, std::vector<Chosen::Change>& changes) const
    {
        const KeptFile former = *chosen.kept;
        const KeptFile kept{chosen.path, *chosen.stamp};
        if (!NewKeeper::isStill(kept.path, kept.stamp))
            return;
        auto entry = NewKeeper::asEntry(former, kept, m_kind, noteOn(former.path, kept.path));
        if (!entry)
            return;
        changes.push_back({kept.path, former.path, entry->isTickedAlone});
        chosen = std::move(*entry);
        for (const std::size_t number : set.entries) {
            FileEntry& copy = m_copies[number];
            if (&copy == &chosen)
                continue;
            copy.kept = kept;
            NewKeeper::noteChoice(copy, noteOn(copy.path, kept.path));
        }
    }

    [[nodiscard]] bool isReference(const FileEntry& copy) const { return m_prefers.isReference(copy.path); }

private:
    [[nodiscard]] bool isBetter(const Cand& one, const Cand& best) const
    {
        return m_kind == FindingKind::duplicates ? m_prefers(one, best)
                                                 : std::is_lt(m_prefers.byPlace(one.path, best.path));
    }

    [[nodiscard]] Message noteOn(const std::string& copy, const std::string& kept) const
    {
        if (m_kind != FindingKind::duplicates)
            return NewKeeper::noteNaming(kept);
        return Duplicates::note(kept, shareAllExtents(kept, copy));
    }

    KeepOrder m_prefers;
    FindingKind m_kind;
    std::vector<FileEntry>& m_copies;
};

} // namespace

std::optional<Chosen> by(const KeepRule& rule, FindingKind kind, std::vector<FileEntry> copies,
                         const std::stop_token& stop)
{
    const Choice choice(rule, kind, copies);
    Chosen chosen{kind, {}, {}, {}};
    for (const KeptSet& set : keptSets(copies)) {
        if (stop.stop_requested())
            return std::nullopt;
        if (FileEntry* better = choice.betterOf(set))
            choice.exchange(set, *better, chosen.changes);
    }
    for (FileEntry& copy : copies)
        (choice.isReference(copy) ? chosen.references : chosen.copies).push_back(std::move(copy));
    return chosen;
}

void addEntries(Entries& entries, const std::vector<Finding>& findings)
{
    entries.resize(kKinds.size());
    for (std::size_t number = 0; number < kKinds.size(); ++number) {
        const auto found = std::ranges::find(findings, kKinds[number], &Finding::kind);
        if (found != findings.end())
            std::ranges::copy(found->items, std::back_inserter(entries[number]));
    }
}

std::vector<Chosen> ofAll(const KeepRule& rule, const Entries& entries, const std::stop_token& stop)
{
    std::vector<Chosen> all;
    for (std::size_t number = 0; number < entries.size(); ++number) {
        auto chosen = by(rule, kKinds[number], entries[number], stop);
        if (!chosen)
            return {};
        all.push_back(*std::move(chosen));
    }
    return all;
}

} // namespace orlen::KeptCopies
