#pragma once

#include <cstdint>
#include <initializer_list>

namespace orlen::AskReader {

/// What a word or phrase of a question says.
enum class Sense : std::uint8_t {
    filler,  ///< says nothing that an answer depends on
    general, ///< a known word that decides nothing by itself
    what,
    howBig,
    howMuch,
    howMany,
    can,
    remove,
    uninstall,
    safe,
    review,
    keep,
    mean,
    happens, ///< "what happens when …"
    advise,
    trust,
    self, ///< Orlen, or the conversation itself
    free,
    makeRoom,
    used,
    takes,
    total,
    disk,
    space,
    why,
    full,
    when,
    most,
    biggest,
    smallest,
    oldest,
    newest,
    grow,
    above,
    below,
    inside,
    before,
    after,
    since,
    negation,
    opened,  ///< with a negation: not opened
    handled, ///< "used" of a file or of space; with a negation: not opened
    unopened,
    last,
    cleanUp,
    undo,
    soFar,
    privacy,
    untouched,
    folder,  ///< the word itself
    subject, ///< a kind, category or folder; see `Subject`
    size,
    number,
    ordinal,
    period,
    quoted,  ///< text in quotation marks
    unknown, ///< perhaps a name
    // These stand beside the senses of a question: they tell how it hangs together.
    also,     ///< "and", "what about"
    only,     ///< "only", "just those"
    backward, ///< "it", "them", "the one": what the last answer was about
};

/// A set of senses.
struct SenseSet {
    std::uint64_t bits = 0;

    constexpr SenseSet() = default;
    constexpr SenseSet(std::initializer_list<Sense> senses)
    {
        for (const Sense sense : senses)
            add(sense);
    }
    constexpr void add(Sense sense) { bits |= std::uint64_t{1} << static_cast<unsigned>(sense); }
    [[nodiscard]] constexpr bool has(Sense sense) const
    {
        return (bits >> static_cast<unsigned>(sense) & 1U) != 0;
    }
    [[nodiscard]] constexpr bool meets(SenseSet other) const { return (bits & other.bits) != 0; }
    [[nodiscard]] constexpr bool isWithin(SenseSet other) const { return (bits & ~other.bits) == 0; }
    [[nodiscard]] constexpr SenseSet with(SenseSet other) const
    {
        SenseSet both;
        both.bits = bits | other.bits;
        return both;
    }
};

} // namespace orlen::AskReader
