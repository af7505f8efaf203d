#pragma once

#include "app/KeptCopies.h"
#include "app/KeptTies.h"
#include "app/MovedEntries.h"
#include "app/NewKeeper.h"
#include "clean/Exclusions.h"
#include "model/CleanPlan.h"
#include "model/Finding.h"
#include "model/PathSelection.h"

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen {

/// What the last scan found and which of it is selected. Found entries are offered, or excluded, or stay as
/// copies in a reference folder, or were moved since; an excluded or moved one remembers whether it was
/// selected. A kept file is never selected together with one of its copies. A plain value; one thread at a
/// time.
class FoundEntries {
public:
    /// What is offered, in display order.
    [[nodiscard]] const std::vector<Finding>& findings() const { return m_findings; }
    /// Paths of the selected entries; with a folder, also of the entries listed inside it.
    [[nodiscard]] const std::set<std::string>& selection() const { return m_selection; }
    /// The selectable paths.
    [[nodiscard]] const PathTree& listed() const;
    /// What is Safe and can be cleaned.
    [[nodiscard]] const std::set<std::string>& safePaths() const;

    /// What `Results` tells under these names.
    [[nodiscard]] std::int64_t totalFound() const;
    [[nodiscard]] std::int64_t safeBytes() const;
    [[nodiscard]] std::vector<Finding> photos() const;
    [[nodiscard]] std::int64_t selectedSize(const Finding& finding) const;
    [[nodiscard]] PathSelection::Amount selectedAmount() const;
    /// The sets of duplicates and similar photos, whether their files are offered or not.
    [[nodiscard]] std::vector<CopySet> sets() const;
    /// The clean-up of the selection; looks at the disk for what is protected.
    [[nodiscard]] CleanPlan plan() const;

    /// Takes what another scan found, and selects what is Safe in Safe findings.
    void replace(std::vector<Finding> findings, const Exclusions& exclusions);
    /// Divides what was found into what is offered and what is excluded.
    void divide(const Exclusions& exclusions);

    void setSelection(std::set<std::string> selection);
    /// Returns whether others had to be deselected: of a set, the copies if the kept file is the only path
    /// given, otherwise the kept file.
    bool select(std::span<const std::string> paths);
    void deselect(std::span<const std::string> paths);

    /// Takes out the entries at or below these places, and those whose kept file is there.
    void remove(const std::set<std::string>& places);
    /// Copies of what was taken out from these places.
    [[nodiscard]] MovedEntries moved(const std::set<std::string>& places) const
    {
        return m_moved.about(places);
    }
    /// Forgets these, and returns those of them that are still missing.
    [[nodiscard]] MovedEntries release(MovedEntries wanted) { return m_moved.release(std::move(wanted)); }
    /// Lists these again, selected as they were.
    void takeBack(MovedEntries missing, const Exclusions& exclusions);
    void replaceTrash(std::vector<Finding> trash, const Exclusions& exclusions);

    /// The entries of sets, whether they are offered or not.
    [[nodiscard]] KeptCopies::Entries entriesInSets() const;
    /// Takes another choice among those; where a selected copy is kept now, the former one is selected.
    void take(std::vector<KeptCopies::Chosen> all, const Exclusions& exclusions);
    /// Keeps another photo of its set, and lists the former one.
    void take(const NewKeeper::Exchange& exchange, const FileEntry& former);

private:
    /// With the selection that what was found has, offered or not.
    void divide(const Exclusions& exclusions, std::set<std::string> selection);
    [[nodiscard]] std::set<std::string> everythingSelected() const;
    [[nodiscard]] const KeptTies& ties() const;
    /// Offered or not.
    [[nodiscard]] std::vector<const Finding*> everything() const;
    void forgetListed();

    std::vector<Finding> m_findings;
    std::set<std::string> m_selection;
    std::vector<Finding> m_excluded;
    std::set<std::string> m_excludedSelection; ///< of those, the ones selected when they are offered again
    std::vector<Finding> m_references;         ///< copies in reference folders
    MovedEntries m_moved;
    mutable std::optional<PathTree> m_listed;            ///< of `m_findings`; built when first needed
    mutable std::optional<std::set<std::string>> m_safe; ///< likewise
    mutable std::optional<KeptTies> m_ties;              ///< likewise
};

} // namespace orlen
