#pragma once

#include "window/findings/EntryOrder.h"
#include "window/review/PlanChoice.h"

#include <cstddef>
#include <vector>

namespace orlen {

/// Which entries of a plan's sections are shown, and in which order: those that match the filter by their
/// name, their folder or the title of their section. A plain value; main thread.
class PlanEntries {
public:
    PlanEntries() = default;
    explicit PlanEntries(const CleanPlan& plan) : m_sections(plan.sections.size()) {}

    /// Of the plan that this was made for, without what is excluded.
    void arrange(const PlanChoice& choice, const EntryOrder::Wish& wish);

    /// The numbers of the section's entries that are shown.
    [[nodiscard]] const std::vector<int>& shown(std::size_t section) const
    {
        return m_sections[section].shown;
    }
    /// The same as places in the plan.
    [[nodiscard]] std::vector<PlanChoice::Place> places(std::size_t section) const;
    /// How many there are without the filter.
    [[nodiscard]] int count(std::size_t section) const { return m_sections[section].count; }
    [[nodiscard]] int count() const;
    /// Whether any of those has a note.
    [[nodiscard]] bool hasNotes() const { return m_hasNotes; }

private:
    struct Section {
        std::vector<EntryOrder::Words> words; ///< of each entry; built when first needed
        std::vector<int> shown;
        int count = 0;
    };

    std::vector<Section> m_sections;
    bool m_hasNotes = false;
};

} // namespace orlen
