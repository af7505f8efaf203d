#include "window/review/PlanChoice.h"

#include "clean/Exclusions.h"
#include "model/Finding.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orlen {

PlanChoice::PlanChoice(const CleanPlan& plan, const Exclusions& exclusions) : m_plan(plan), m_ticks(plan)
{
    findPairs();
    exclude(exclusions);
}

void PlanChoice::findPairs()
{
    std::unordered_map<std::string_view, Place> listed;
    for (std::size_t number = 0; number < m_plan.sections.size(); ++number) {
        for (std::size_t at = 0; at < m_plan.sections[number].entries.size(); ++at)
            listed.try_emplace(entry({number, at}).path, Place{number, at});
    }
    const auto takersOf = [&](std::string_view path) {
        std::vector<Place> takers;
        for (; path.size() > 1; path = PathText::parent(path)) {
            if (const auto found = listed.find(path); found != listed.end())
                takers.push_back(found->second);
        }
        return takers;
    };
    for (const CopySet& set : m_plan.sets) {
        const std::vector<Place> takers = takersOf(set.kept.path);
        for (const std::string& path : set.copies) {
            for (const Place& copy : takers.empty() ? takers : takersOf(path)) {
                // A folder with both in it moves as a whole, or not at all.
                if (PathText::isAtOrBelow(set.kept.path, entry(copy).path))
                    continue;
                for (const Place& kept : takers) {
                    if (!PathText::isAtOrBelow(path, entry(kept).path))
                        m_pairs.push_back({copy, kept});
                }
            }
        }
    }
}

void PlanChoice::keepApart(Last last)
{
    std::vector<Place> gone;
    for (const Pair& pair : m_pairs) {
        if (isTicked(pair.copy) && isTicked(pair.kept))
            gone.push_back(last == Last::one && pair.wasCopyTicked ? pair.copy : pair.kept);
    }
    if (!gone.empty()) {
        m_ticks.leaveOut(gone);
        ++m_keptApart;
    }
    for (Pair& pair : m_pairs)
        pair.wasCopyTicked = isTicked(pair.copy);
}

void PlanChoice::exclude(const Exclusions& exclusions)
{
    const Paths before = std::exchange(m_excluded, exclusions.excludedIn(m_plan));
    Paths added;
    Paths returned;
    std::ranges::set_difference(m_excluded, before, std::inserter(added, added.end()));
    std::ranges::set_difference(before, m_excluded, std::inserter(returned, returned.end()));
    std::erase_if(returned, [this](const std::string& path) { return m_tickedBefore.erase(path) == 0; });
    for (const Place& at : placesOf(added)) {
        if (isTicked(at))
            m_tickedBefore.insert(entry(at).path);
    }
    m_ticks.leaveOut(placesOf(added));
    m_ticks.takeBack(placesOf(returned));
    keepApart(Last::several);
}

std::vector<PlanChoice::Place> PlanChoice::placesOf(const Paths& paths) const
{
    std::vector<Place> places;
    if (paths.empty())
        return places;
    for (std::size_t number = 0; number < m_plan.sections.size(); ++number) {
        const std::vector<FileEntry>& entries = m_plan.sections[number].entries;
        for (std::size_t at = 0; at < entries.size(); ++at) {
            if (paths.contains(entries[at].path))
                places.push_back({number, at});
        }
    }
    return places;
}

void PlanChoice::settle(Last last)
{
    if (!m_excluded.empty())
        m_ticks.leaveOut(placesOf(m_excluded));
    keepApart(last);
}

void PlanChoice::set(const Place& at, bool isTicked)
{
    m_ticks.set(at.section, at.entry, isTicked);
    settle(Last::one);
}

void PlanChoice::setSection(std::size_t section, bool isTicked)
{
    m_ticks.setSection(section, isTicked);
    settle(Last::several);
}

void PlanChoice::setAll(bool isTicked)
{
    m_ticks.setAll(isTicked);
    settle(Last::several);
}

void PlanChoice::set(std::span<const Place> places, bool isTicked)
{
    if (isTicked)
        m_ticks.tick(places);
    else
        m_ticks.leaveOut(places);
    settle(Last::several);
}

std::set<std::string> PlanChoice::tickAlong(std::span<const Place> places, const std::string& folder)
{
    std::vector<Place> along;
    std::set<std::string> left;
    for (const Place& at : places) {
        if (isTicked(at) || !PathText::isAtOrBelow(entry(at).path, folder))
            continue;
        if (isTickedAlong(entry(at), m_plan.sections[at.section].rating.value_or(Rating::review)))
            along.push_back(at);
        else
            left.insert(entry(at).path);
    }
    set(along, true);
    return left;
}

} // namespace orlen
