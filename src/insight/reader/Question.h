#pragma once

#include "insight/reader/Amounts.h"
#include "insight/reader/Sense.h"
#include "insight/reader/Subjects.h"

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
    std::int64_t amount = 0;          ///< of a size, in bytes, or of a number
    std::optional<Period> period;     ///< for `Sense::period`
};

/// A question taken apart.
struct Question {
    std::vector<Phrase> phrases; ///< in order, without those that say nothing
    SenseSet senses;             ///< of all phrases
    bool isCorrected = false;    ///< whether a word was taken for a typing error

    [[nodiscard]] const Phrase* first(Sense sense) const;
    /// The first subject; null if there is none.
    [[nodiscard]] const Subject* subject() const;
    /// Where the first phrase of this sense stands; the number of phrases if there is none.
    [[nodiscard]] std::size_t position(Sense sense) const;
};

/// Tells whether a word, in lower case, is part of a name in the scan, and so no typing error.
using IsName = std::function<bool(std::string_view)>;

/// Takes a question apart; what is neither known nor mistyped is `unknown`. Valid UTF-8 only.
[[nodiscard]] Question read(std::string_view text, TimePoint now, const IsName& isName);

} // namespace orlen::AskReader
