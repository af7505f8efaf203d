#pragma once

#include "model/CleanPlan.h"
#include "model/PlanTicks.h"

#include <cstddef>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace orlen {

class Exclusions;

/// A plan under review: which of its entries are ticked, and which are excluded meanwhile. Those are never
/// ticked, and come back as they were. Nor are a kept file and its copies ticked together: the
/// one that is ticked by itself has the tick, otherwise the copies. A plain value; any thread.
class PlanChoice {
public:
    using Paths = std::set<std::string, std::less<>>;
    using Place = PlanTicks::Place;

    PlanChoice() = default;
    /// With all entries ticked but the excluded ones.
    PlanChoice(const CleanPlan& plan, const Exclusions& exclusions);

    [[nodiscard]] const CleanPlan& plan() const { return m_plan; }
    [[nodiscard]] const Paths& excluded() const { return m_excluded; }
    [[nodiscard]] const PlanTicks& ticks() const { return m_ticks; }
    [[nodiscard]] bool isTicked(const Place& at) const { return m_ticks.isTicked(at.section, at.entry); }
    [[nodiscard]] const FileEntry& entry(const Place& at) const
    {
        return m_plan.sections[at.section].entries[at.entry];
    }
    /// The plan of what is ticked.
    [[nodiscard]] CleanPlan ticked() const { return m_ticks.ticked(m_plan); }

    /// Takes out of the ticks what is excluded now, and back what no longer is.
    void exclude(const Exclusions& exclusions);
    /// Each as in `PlanTicks`.
    void set(const Place& at, bool isTicked);
    void setSection(std::size_t section, bool isTicked);
    void setAll(bool isTicked);
    void set(std::span<const Place> places, bool isTicked);
    /// Ticks those of the places that lie in the folder, but for what is rated Keep or only ticked alone.
    /// Returns the paths of the unticked ones that it left.
    std::set<std::string> tickAlong(std::span<const Place> places, const std::string& folder);

    /// How often ticks had to go for a kept file or its copies.
    [[nodiscard]] int keptApart() const { return m_keptApart; }

private:
    /// An entry that takes a copy along, and one that takes its kept file along.
    struct Pair {
        Place copy;
        Place kept;
        bool wasCopyTicked = false;
    };

    void findPairs();
    enum class Last { one, several }; ///< entries that were ticked by themselves

    void keepApart(Last last);
    void settle(Last last);
    [[nodiscard]] std::vector<Place> placesOf(const Paths& paths) const;

    CleanPlan m_plan;
    PlanTicks m_ticks;
    Paths m_excluded;
    Paths m_tickedBefore; ///< of those, the ones that were ticked
    std::vector<Pair> m_pairs;
    int m_keptApart = 0;
};

} // namespace orlen
