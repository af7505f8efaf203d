#pragma once

#include "insight/reader/Language.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace orlen::AskReader {

/// In lower case and without accents, as words are compared.
[[nodiscard]] std::string plainLetters(std::string_view text);

/// Whether one letter too many, too few, wrong or swapped with its neighbour separates the words.
[[nodiscard]] bool isOneLetterApart(std::string_view a, std::string_view b);

/// The rating that the program itself calls so in the language of its texts, in plain letters.
[[nodiscard]] std::optional<Sense> ratingCalled(const std::string& plain);

/// The words and phrases of one language, looked up in plain letters. Immutable; any thread.
class Lexicon {
public:
    struct Entry {
        Sense sense = Sense::unknown;
        const Subject* subject = nullptr; ///< for `Sense::subject`

        bool operator==(const Entry&) const = default;
    };

    /// Words in the longest phrase.
    static constexpr std::size_t kLongestPhrase = 8;

    explicit Lexicon(const Language& language);

    /// English first.
    [[nodiscard]] static std::span<const Lexicon> all();

    /// The meaning of a phrase, words separated by one space; null if unknown.
    [[nodiscard]] const Entry* find(const std::string& phrase) const;

    /// The meaning of a word with accents, in lower case, written as a table has it: "cachés", which are no
    /// "caches"; null for all others.
    [[nodiscard]] const Entry* findAccented(const std::string& word) const;

    /// The meaning of the known word that one typing error separates from this one, or two in a long word.
    /// Only for words of five letters or more; null if there is none, or if several mean different things.
    [[nodiscard]] const Entry* findMistyped(std::string_view word) const;

    [[nodiscard]] std::optional<double> figure(Figure figure, const std::string& word) const;

    /// Whether it stands in a phrase or is a figure.
    [[nodiscard]] bool isWord(const std::string& word) const { return m_words.contains(word); }
    /// The only word of a phrase that one letter separates from this one; empty if there is not exactly one.
    [[nodiscard]] std::string_view onlyWordLike(std::string_view word) const;
    /// Whether a phrase, as typed, speaks of one thing only: "biggest file".
    [[nodiscard]] bool meansOne(std::string_view phrase) const;
    /// Whether the phrase asks for what a list has not shown yet: "more", "the rest".
    [[nodiscard]] bool meansOthers(std::string_view phrase) const;
    [[nodiscard]] bool isElided(const std::string& word) const { return m_elided.contains(word); }
    /// Whether an article stands for a thing as well: "las" of "si las borro".
    [[nodiscard]] bool isClitic(const std::string& word) const { return m_clitics.contains(word); }
    /// The verb of a word that has such a pronoun behind it, "borrar" of "borrarlas"; empty if it has none.
    [[nodiscard]] std::string_view withoutClitic(std::string_view word) const;
    [[nodiscard]] bool hasCompounds() const { return m_hasCompounds; }

private:
    void add(std::string_view phrases, Entry entry);
    void add(const FigureRow& row);
    void addWords(std::string_view phrase);
    [[nodiscard]] const Entry* onlyOneLike(std::string_view word,
                                           bool isLike(std::string_view, std::string_view)) const;

    struct Listed {
        Entry entry;
        bool hasAccents = false; ///< in the tables: a word that is listed without them goes before it
    };

    std::unordered_map<std::string, Listed> m_phrases;
    std::unordered_map<std::string, Entry> m_accented;
    std::array<std::unordered_map<std::string, double>, kFigures> m_figures;
    std::unordered_set<std::string> m_words;
    std::unordered_set<std::string> m_elided;
    std::unordered_set<std::string> m_ones;
    std::unordered_set<std::string> m_others;
    std::unordered_set<std::string> m_clitics;
    bool m_joinsClitics = false;
    bool m_hasCompounds = false;
};

} // namespace orlen::AskReader
