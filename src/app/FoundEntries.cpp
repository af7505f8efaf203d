#include "app/FoundEntries.h"

#include "app/AppTexts.h"
#include "app/FindingLists.h"
#include "clean/Safety.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace orlen {

namespace {

void erase(std::vector<Finding>& findings, FindingKind kind)
{
    std::erase_if(findings, [kind](const Finding& finding) { return finding.kind == kind; });
}

} // namespace

const PathTree& FoundEntries::listed() const
{
    if (!m_listed)
        m_listed = PathSelection::listedIn(m_findings);
    return *m_listed;
}

std::int64_t FoundEntries::totalFound() const
{
    std::int64_t sum = 0;
    for (const Finding& finding : m_findings) {
        if (finding.cleanable)
            sum = checkedAdd(sum, finding.totalSize());
    }
    return sum;
}

std::int64_t FoundEntries::safeBytes() const
{
    std::int64_t sum = 0;
    for (const Finding& finding : m_findings)
        sum = checkedAdd(sum, finding.safeSize());
    return sum;
}

std::vector<Finding> FoundEntries::photos() const
{
    std::vector<Finding> photos;
    std::copy_if(m_findings.begin(), m_findings.end(), std::back_inserter(photos),
                 [](const Finding& finding) { return finding.category == OrlenCategory::photos; });
    return photos;
}

std::int64_t FoundEntries::selectedSize(const Finding& finding) const
{
    return PathSelection::sizeOf(FindingLists::selectedIn(finding, m_selection), listed());
}

PathSelection::Amount FoundEntries::selectedAmount() const
{
    std::vector<const FileEntry*> entries;
    for (const Finding& finding : m_findings) {
        if (finding.cleanable)
            std::ranges::copy(FindingLists::selectedIn(finding, m_selection), std::back_inserter(entries));
    }
    return PathSelection::amountOf(std::move(entries));
}

CleanPlan FoundEntries::plan() const
{
    CleanPlan plan;
    plan.title = AppTexts::kScanPlanTitle;
    for (const Finding& finding : m_findings) {
        if (!finding.cleanable)
            continue;
        PlanSection section{std::string(finding.id()), finding.title, finding.symbol, {}, finding.rating};
        std::copy_if(finding.items.begin(), finding.items.end(), std::back_inserter(section.entries),
                     [this](const FileEntry& entry) {
                         return m_selection.contains(entry.path) && !Safety::isProtected(entry.path);
                     });
        if (!section.entries.empty())
            plan.sections.push_back(std::move(section));
    }
    std::vector<std::string> moving;
    for (const PlanSection& section : plan.sections)
        std::ranges::transform(section.entries, std::back_inserter(moving), &FileEntry::path);
    plan.sets = CopySets::about(sets(), moving);
    return plan;
}

const std::set<std::string>& FoundEntries::safePaths() const
{
    if (!m_safe) {
        m_safe = FindingLists::safePaths(m_findings);
        ties().keepApart(*m_safe, listed());
    }
    return *m_safe;
}

std::vector<const Finding*> FoundEntries::everything() const
{
    std::vector<const Finding*> all;
    for (const std::vector<Finding>* some : {&m_findings, &m_excluded, &m_references})
        std::ranges::transform(*some, std::back_inserter(all), [](const Finding& one) { return &one; });
    return all;
}

std::vector<CopySet> FoundEntries::sets() const
{
    return CopySets::of(everything());
}

const KeptTies& FoundEntries::ties() const
{
    if (!m_ties)
        m_ties = KeptTies(sets(), listed());
    return *m_ties;
}

void FoundEntries::forgetListed()
{
    m_listed.reset();
    m_safe.reset();
    m_ties.reset();
}

void FoundEntries::replace(std::vector<Finding> findings, const Exclusions& exclusions)
{
    *this = {};
    m_findings = std::move(findings);
    divide(exclusions, FindingLists::proposed(m_findings));
}

void FoundEntries::divide(const Exclusions& exclusions)
{
    divide(exclusions, everythingSelected());
}

void FoundEntries::divide(const Exclusions& exclusions, std::set<std::string> selection)
{
    FindingLists::giveBack(m_findings, std::exchange(m_excluded, {}));
    m_excluded = exclusions.takeFrom(m_findings);
    std::ranges::stable_sort(m_findings, FindingLists::comesBefore);
    FindingLists::noteKept(m_findings, everything());
    forgetListed();

    m_excludedSelection.clear();
    for (const Finding& finding : m_excluded) {
        for (const FileEntry& entry : finding.items) {
            if (auto path = selection.extract(entry.path))
                m_excludedSelection.insert(std::move(path));
        }
    }
    // Something inside a folder may have been deselected while the folder was excluded.
    PathSelection::dropOpenFolders(selection, listed());
    setSelection(std::move(selection));
}

std::set<std::string> FoundEntries::everythingSelected() const
{
    std::set<std::string> selection = m_selection;
    selection.insert(m_excludedSelection.begin(), m_excludedSelection.end());
    return selection;
}

void FoundEntries::setSelection(std::set<std::string> selection)
{
    PathSelection::addInside(selection, listed());
    ties().keepApart(selection, listed());
    m_selection = std::move(selection);
}

bool FoundEntries::select(std::span<const std::string> paths)
{
    for (const std::string& path : paths)
        PathSelection::tick(m_selection, listed(), path);
    const std::string_view last = paths.size() == 1 ? std::string_view(paths.front()) : std::string_view();
    return ties().keepApart(m_selection, listed(), last);
}

void FoundEntries::deselect(std::span<const std::string> paths)
{
    for (const std::string& path : paths)
        PathSelection::untick(m_selection, listed(), path);
}

void FoundEntries::remove(const std::set<std::string>& places)
{
    std::set<std::string> gone = places;
    gone.merge(m_moved.take(m_findings, m_selection, places));
    gone.merge(m_moved.take(m_excluded, m_excludedSelection, places));
    const auto isGone = [&](const std::string& path) { return gone.contains(path); };
    std::erase_if(m_excludedSelection, isGone);
    std::set<std::string> selection = m_selection;
    std::erase_if(selection, isGone);
    for (Finding& finding : m_references)
        std::erase_if(finding.items,
                      [&](const FileEntry& entry) { return MovedEntries::isAbout(entry, places); });
    std::erase_if(m_references, [](const Finding& finding) { return finding.items.empty(); });
    FindingLists::noteKept(m_findings, everything());
    forgetListed();
    setSelection(std::move(selection));
}

void FoundEntries::takeBack(MovedEntries missing, const Exclusions& exclusions)
{
    FindingLists::giveBack(m_findings, std::move(missing.findings));
    missing.selection.merge(everythingSelected());
    divide(exclusions, std::move(missing.selection));
}

void FoundEntries::replaceTrash(std::vector<Finding> trash, const Exclusions& exclusions)
{
    erase(m_findings, FindingKind::trash);
    erase(m_excluded, FindingKind::trash);
    FindingLists::giveBack(m_findings, std::move(trash));
    divide(exclusions);
}

KeptCopies::Entries FoundEntries::entriesInSets() const
{
    KeptCopies::Entries entries;
    for (const std::vector<Finding>* findings : {&m_findings, &m_excluded, &m_references})
        KeptCopies::addEntries(entries, *findings);
    return entries;
}

void FoundEntries::take(std::vector<KeptCopies::Chosen> all, const Exclusions& exclusions)
{
    std::set<std::string> selection = everythingSelected();
    for (KeptCopies::Chosen& chosen : all) {
        for (std::vector<Finding>* findings : {&m_findings, &m_excluded, &m_references})
            erase(*findings, chosen.kind);
        for (const KeptCopies::Chosen::Change& change : chosen.changes) {
            if (selection.erase(change.kept) > 0 && !change.isTickedAlone)
                selection.insert(change.former);
        }
        for (const FileEntry& reference : chosen.references)
            selection.erase(reference.path);
        std::ranges::move(FindingLists::findingOf(chosen.kind, std::move(chosen.copies)),
                          std::back_inserter(m_findings));
        std::ranges::move(FindingLists::findingOf(chosen.kind, std::move(chosen.references)),
                          std::back_inserter(m_references));
    }
    divide(exclusions, std::move(selection));
}

void FoundEntries::take(const NewKeeper::Exchange& exchange, const FileEntry& former)
{
    NewKeeper::apply(m_findings, exchange, former);
    NewKeeper::apply(m_excluded, exchange, former);
    NewKeeper::apply(m_moved.findings, exchange, former);
    std::ranges::stable_sort(m_findings, FindingLists::comesBefore);
    FindingLists::noteKept(m_findings, everything());
    forgetListed();
    std::set<std::string> selection = m_selection;
    if (selection.erase(exchange.chosen.path) > 0 && !former.isTickedAlone)
        selection.insert(former.path);
    setSelection(std::move(selection));
}

} // namespace orlen
