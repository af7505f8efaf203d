#include "window/lists/WordSearch.h"

#include <algorithm>

namespace orlen {

bool WordSearch::fits(const QString& text) const
{
    if (m_words.isEmpty())
        return true;
    const QString folded = text.toCaseFolded();
    return std::ranges::all_of(m_words, [&](const QString& word) { return folded.contains(word); });
}

} // namespace orlen
