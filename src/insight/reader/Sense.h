#pragma once

#include <cstdint>
#include <initializer_list>

namespace orlen::AskReader {

/// What a word or phrase of a question says.
enum class Sense : std::uint8_t {
    filler,  ///< says nothing that an answer depends on
    general, ///< a known word that only the matcher understands
    what,
    howBig,
    howMuch,
    howMany,
    can,
    remove,
    safe,
    review,
    keep,
    mean,
    free,
    makeRoom,
    used,
    total,
    disk,
    space,
    why,
    full,
    when,
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
    unopened,
    last,
    cleanUp,
    undo,
    soFar,
    privacy,
    untouched,
    subject, ///< a kind, category or folder; see `Subject`
    size,
    number,
    period,
    quoted,  ///< text in quotation marks
    unknown, ///< perhaps a name
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
