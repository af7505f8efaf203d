#include "model/PlanTicks.h"

#include "platform/values/CheckedSum.h"

namespace orlen {

PlanTicks::PlanTicks(const CleanPlan& plan) : m_tree(PathSelection::listedIn(plan))
{
    const auto nodes = static_cast<std::size_t>(m_tree.size());
    m_isTicked.assign(nodes, true);
    m_bytes.assign(nodes, -1);
    m_sections.resize(plan.sections.size());
    std::size_t place = 0;
    for (std::size_t number = 0; number < m_sections.size(); ++number) {
        for (const FileEntry& entry : plan.sections[number].entries) {
            const int node = m_tree.nodeOf(place++);
            m_sections[number].entries.push_back({node, PathTree::kNone, entry.size});
            if (std::int64_t& bytes = m_bytes[static_cast<std::size_t>(node)]; bytes < 0)
                bytes = entry.size;
        }
    }
    findLeaders();
    recount();
}

void PlanTicks::findLeaders()
{
    std::vector<const Section*> lastIn(m_bytes.size()); // the last section that was found to list a node
    for (Section& section : m_sections) {
        for (Entry& entry : section.entries) {
            const Section*& listing = lastIn[static_cast<std::size_t>(entry.node)];
            if (listing == &section)
                entry.leader = entry.node;
            listing = &section;
        }
        for (Entry& entry : section.entries) {
            int folder = entry.leader == PathTree::kNone ? m_tree.holder(entry.node) : entry.leader;
            while (folder != PathTree::kNone && lastIn[static_cast<std::size_t>(folder)] != &section)
                folder = m_tree.holder(folder);
            entry.leader = folder;
        }
    }
}

bool PlanTicks::isTicked(std::size_t section, std::size_t entry) const
{
    return isOn(m_sections[section].entries[entry].node);
}

void PlanTicks::set(std::size_t section, std::size_t entry, bool isTicked)
{
    put(m_sections[section].entries[entry].node, isTicked);
    recount();
}

void PlanTicks::setSection(std::size_t section, bool isTicked)
{
    for (const Entry& entry : m_sections[section].entries)
        put(entry.node, isTicked);
    recount();
}

void PlanTicks::setAll(bool isTicked)
{
    m_isTicked.assign(m_isTicked.size(), isTicked);
    recount();
}

void PlanTicks::tick(std::span<const Place> places)
{
    for (const Place& place : places)
        put(nodeOf(place), true);
    recount();
}

void PlanTicks::leaveOut(std::span<const Place> places)
{
    for (const Place& place : places) {
        m_isTicked[static_cast<std::size_t>(nodeOf(place))] = false;
        untickHolders(nodeOf(place));
    }
    recount();
}

void PlanTicks::takeBack(std::span<const Place> places)
{
    for (const Place& place : places)
        m_isTicked[static_cast<std::size_t>(nodeOf(place))] = true;
    for (int node = 0; node < m_tree.size(); ++node) {
        if (!isOn(node))
            untickHolders(node);
    }
    recount();
}

void PlanTicks::put(int node, bool isTicked)
{
    for (int inside = node; inside < m_tree.end(node); ++inside)
        m_isTicked[static_cast<std::size_t>(inside)] = isTicked;
    if (!isTicked)
        untickHolders(node);
}

void PlanTicks::untickHolders(int node)
{
    for (int folder = m_tree.holder(node); isOn(folder); folder = m_tree.holder(folder))
        m_isTicked[static_cast<std::size_t>(folder)] = false;
}

void PlanTicks::recount()
{
    for (Section& section : m_sections) {
        section.count = 0;
        section.bytes = 0;
        for (const Entry& entry : section.entries) {
            if (!isOn(entry.node))
                continue;
            ++section.count;
            if (!isOn(entry.leader))
                section.bytes = checkedAdd(section.bytes, entry.bytes);
        }
    }
    m_amount = {};
    for (int node = 0; node < m_tree.size(); ++node) {
        if (!isOn(node) || isOn(m_tree.holder(node)))
            continue;
        ++m_amount.items;
        m_amount.bytes = checkedAdd(m_amount.bytes, m_bytes[static_cast<std::size_t>(node)]);
    }
}

CleanPlan PlanTicks::ticked(CleanPlan plan) const
{
    for (std::size_t number = 0; number < m_sections.size(); ++number) {
        auto entry = m_sections[number].entries.begin();
        std::erase_if(plan.sections[number].entries,
                      [&](const FileEntry& /*entry*/) { return !isOn((entry++)->node); });
    }
    return plan;
}

} // namespace orlen
