#pragma once

#include <QString>
#include <QStringList>

namespace orlen {

/// Words that must all appear in a text; case is ignored. Without words, every text fits. Pure.
class WordSearch {
public:
    WordSearch() = default;
    explicit WordSearch(const QString& query) : m_words(query.toCaseFolded().split(u' ', Qt::SkipEmptyParts))
    {
    }

    [[nodiscard]] bool isEmpty() const { return m_words.isEmpty(); }
    [[nodiscard]] bool fits(const QString& text) const;

    friend bool operator==(const WordSearch&, const WordSearch&) = default;

private:
    QStringList m_words;
};

} // namespace orlen
