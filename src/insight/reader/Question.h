#pragma once

#include "insight/reader/Lexicon.h"
#include "insight/reader/Periods.h"
#include "insight/reader/Sense.h"
#include "insight/reader/Subjects.h"
#include "insight/reader/Words.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen::AskReader {

/// A word or phrase of a question with what it says.
struct Phrase {
    Sense sense = Sense::unknown;
    std::string text;                 ///< as typed, without punctuation around it
    const Subject* subject = nullptr; ///< for `Sense::subject`
    std::int64_t amount = 0;          ///< of a size, in bytes, of a number or of an ordinal
    std::optional<Period> period;     ///< for `Sense::period`
    bool isJoined = false;            ///< "and" stands before it, or another sentence ends there
    std::vector<Phrase> excluded{};   ///< for `Sense::except`: what is left out, at least one
    bool isBackward = false;          ///< a word beside it points back: "it", "them"
};

/// A question taken apart.
struct Question {
    std::vector<Phrase> phrases; ///< in order, without those that say nothing
    SenseSet senses;             ///< of all phrases
    const Lexicon* lexicon = nullptr;
    std::size_t corrected = 0; ///< words taken for typing errors
    std::size_t words = 0;     ///< all that it has
    std::size_t pieces = 0;    ///< words and phrases that it was taken apart into
    bool isContinued = false;  ///< begins with "and", or says "only"
    bool isBackward = false;   ///< says "it", "them" or "the one"
    bool isTherein = false;    ///< says "in there" in one word
    bool goesOn = false;       ///< ends with "also": "5 de plus"
    bool asksHow = false;      ///< says "how", which counts where nothing else is asked

    [[nodiscard]] const Phrase* first(Sense sense) const;
    /// The first subject; null if there is none.
    [[nodiscard]] const Subject* subject() const;
    /// Where the first phrase of this sense stands; the number of phrases if there is none.
    [[nodiscard]] std::size_t position(Sense sense) const;
    [[nodiscard]] std::size_t count(Sense sense) const;
    /// Whether it is about nothing but files of every kind, or the home folder.
    [[nodiscard]] bool hasNoKind() const;
};

/// The question with these phrases instead of its own.
[[nodiscard]] Question withPhrases(const Question& question, std::vector<Phrase> phrases);

/// Tells whether a word, in lower case, is part of a name in the scan, and so no typing error.
using IsName = std::function<bool(std::string_view)>;

enum class Typos { asTheyStand, corrected };

/// Takes a question apart; what is neither known nor mistyped is `unknown`.
[[nodiscard]] Question read(const std::vector<Word>& words, const Lexicon& lexicon, TimePoint now,
                            const IsName& isName, Typos typos);

} // namespace orlen::AskReader
