#include "window/review/PlanEntries.h"

#include "window/lists/DisplayText.h"

#include <algorithm>
#include <numeric>

namespace orlen {

void PlanEntries::arrange(const PlanChoice& choice, const EntryOrder::Wish& wish)
{
    const PlanChoice::Paths& excluded = choice.excluded();
    m_hasNotes = false;
    for (std::size_t number = 0; number < m_sections.size(); ++number) {
        Section& section = m_sections[number];
        const PlanSection& planned = choice.plan().sections[number];
        if (section.words.empty() && EntryOrder::needsWords(wish))
            section.words = EntryOrder::wordsOf(planned.entries);
        EntryOrder::Wish here = wish;
        if (EntryOrder::matches(DisplayText::text(planned.title), wish.filter))
            here.filter.clear();
        section.shown =
            EntryOrder::rows(planned.entries, section.words, here, planned.rating.value_or(Rating::review));
        std::erase_if(section.shown, [&](int entry) {
            return excluded.contains(planned.entries[static_cast<std::size_t>(entry)].path);
        });
        section.count = 0;
        for (const FileEntry& entry : planned.entries) {
            if (excluded.contains(entry.path))
                continue;
            ++section.count;
            m_hasNotes = m_hasNotes || !entry.notes.empty();
        }
    }
}

std::vector<PlanChoice::Place> PlanEntries::places(std::size_t section) const
{
    std::vector<PlanChoice::Place> places;
    places.reserve(shown(section).size());
    for (const int entry : shown(section))
        places.push_back({section, static_cast<std::size_t>(entry)});
    return places;
}

int PlanEntries::count() const
{
    return std::accumulate(m_sections.begin(), m_sections.end(), 0,
                           [](int sum, const Section& section) { return sum + section.count; });
}

} // namespace orlen
