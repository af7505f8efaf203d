#pragma once

#include "model/CleanPlan.h"
#include "model/PathSelection.h"
#include "model/PathTree.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orlen {

/// The ticks of a plan's entries under the rules of `PathSelection`, with sections and entries numbered as in
/// the plan. A change costs one pass over the entries. A plain value; any thread.
class PlanTicks {
public:
    PlanTicks() = default;
    /// With all entries ticked.
    explicit PlanTicks(const CleanPlan& plan);

    [[nodiscard]] bool isTicked(std::size_t section, std::size_t entry) const;
    void set(std::size_t section, std::size_t entry, bool isTicked);
    void setSection(std::size_t section, bool isTicked);
    void setAll(bool isTicked);

    /// An entry by the numbers of its section and itself.
    struct Place {
        std::size_t section = 0;
        std::size_t entry = 0;
    };
    void tick(std::span<const Place> places);
    /// Unticks these entries and the folders that contain them, but nothing inside them.
    void leaveOut(std::span<const Place> places);
    /// Ticks these entries and nothing inside them, except folders that contain an unticked entry.
    void takeBack(std::span<const Place> places);

    /// How many entries of the section are ticked.
    [[nodiscard]] int count(std::size_t section) const { return m_sections[section].count; }
    /// Bytes of the section's ticked entries; what is inside another of them counts once.
    [[nodiscard]] std::int64_t bytes(std::size_t section) const { return m_sections[section].bytes; }
    /// What would move.
    [[nodiscard]] const PathSelection::Amount& amount() const { return m_amount; }
    /// The plan this was made from, without its unticked entries.
    [[nodiscard]] CleanPlan ticked(CleanPlan plan) const;

private:
    struct Entry {
        int node = 0;
        /// The node of the same section that it goes along with: a folder, or its own for a path that the
        /// section has already.
        int leader = PathTree::kNone;
        std::int64_t bytes = 0;
    };
    struct Section {
        std::vector<Entry> entries;
        int count = 0;
        std::int64_t bytes = 0;
    };

    void put(int node, bool isTicked);
    void untickHolders(int node);
    [[nodiscard]] int nodeOf(const Place& place) const
    {
        return m_sections[place.section].entries[place.entry].node;
    }
    void findLeaders();
    void recount();
    [[nodiscard]] bool isOn(int node) const
    {
        return node != PathTree::kNone && m_isTicked[static_cast<std::size_t>(node)];
    }

    PathTree m_tree;
    std::vector<bool> m_isTicked;      ///< of each node
    std::vector<std::int64_t> m_bytes; ///< of each node
    std::vector<Section> m_sections;
    PathSelection::Amount m_amount;
};

} // namespace orlen
