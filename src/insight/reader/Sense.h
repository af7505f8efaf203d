#pragma once

#include <array>
#include <cstddef>
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
    installed,
    safe,
    review,
    keep,
    mean,
    happens, ///< "what happens when …"
    advise,
    trust,
    beyond,     ///< what Orlen has nothing to do with: viruses, speed
    deletes,    ///< "will you ever delete": asks what Orlen does, not what to remove
    reads,      ///< "does it read my": what of the person's it looks into
    ofOrlen,    ///< "do you": what follows asks about Orlen, if it is no request
    canOrlen,   ///< "can you": the same
    otherWork,  ///< "make backups": nothing that Orlen does
    order,      ///< "delete everything", "rm -rf": names nothing
    resident,   ///< whether Orlen runs while nobody uses it
    ownRemoval, ///< to remove Orlen itself
    lastUse,    ///< "last time I used"
    included,   ///< "if I include": with a rating, what comes on top of what is safe
    self,       ///< Orlen, or the conversation itself
    free,
    makeRoom,
    make, ///< "make", "give me": with a size and space, to make room
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
    gone, ///< "lost": of space, it was used up; of things, they are no longer there
    above,
    below,
    inside,
    before,
    after,
    since,
    negation,
    except,  ///< "besides", "other than": what is left out
    outside, ///< "not in": the place that is left out
    yet,     ///< "but": before what can be named, it leaves it out
    lasts,   ///< "last", "suffice": of the space until some day
    speed,   ///< "how fast"
    opened,  ///< with a negation: not opened
    handled, ///< "used" of a file or of space; with a negation: not opened
    unopened,
    last,
    cleanUp,
    undo,
    soFar,
    freed,   ///< "have I freed": of past clean-ups
    rhythm,  ///< "how often should I"
    rights,  ///< of an administrator
    vacant,  ///< empty folders
    inPeace, ///< "leave … alone": what is left out
    privacy,
    untouched,
    ruleOut, ///< to exclude something from all scans
    folder,  ///< the word itself
    hidden,
    subject, ///< a kind, category or folder; see `Subject`
    size,
    number,
    ordinal,
    period,
    ending,  ///< of file names: ".mp3"; in the tables, "text files"
    quoted,  ///< text in quotation marks
    unknown, ///< perhaps a name
    // These stand beside the senses of a question: they tell how it hangs together.
    also,     ///< "and", "what about"
    only,     ///< "only", "just those"
    backward, ///< "it", "them", "the one": what the last answer was about
    therein,  ///< "darin": in what the last answer was about
    // These are gone before a question is answered: what they say, another sense does.
    holds,    ///< "contains"
    put,      ///< "put": with the Trash, to remove
    override, ///< "ignore your instructions"
    called,   ///< "folders called": of several of that name
    how,      ///< "how", alone: the way to do it
};

/// A set of senses.
struct SenseSet {
    std::array<std::uint64_t, 2> bits{};

    constexpr SenseSet() = default;
    constexpr SenseSet(std::initializer_list<Sense> senses)
    {
        for (const Sense sense : senses)
            add(sense);
    }
    constexpr void add(Sense sense) { bits[wordOf(sense)] |= bitOf(sense); }
    [[nodiscard]] constexpr bool has(Sense sense) const { return (bits[wordOf(sense)] & bitOf(sense)) != 0; }
    [[nodiscard]] constexpr bool meets(SenseSet other) const
    {
        return (bits[0] & other.bits[0]) != 0 || (bits[1] & other.bits[1]) != 0;
    }
    [[nodiscard]] constexpr bool isWithin(SenseSet other) const
    {
        return (bits[0] & ~other.bits[0]) == 0 && (bits[1] & ~other.bits[1]) == 0;
    }
    [[nodiscard]] constexpr SenseSet with(SenseSet other) const
    {
        SenseSet both;
        both.bits = {bits[0] | other.bits[0], bits[1] | other.bits[1]};
        return both;
    }
    [[nodiscard]] static constexpr SenseSet all()
    {
        SenseSet all;
        all.bits = {~std::uint64_t{0}, ~std::uint64_t{0}};
        return all;
    }

private:
    [[nodiscard]] static constexpr std::size_t wordOf(Sense sense)
    {
        return static_cast<std::size_t>(sense) / 64;
    }
    [[nodiscard]] static constexpr std::uint64_t bitOf(Sense sense)
    {
        return std::uint64_t{1} << (static_cast<unsigned>(sense) % 64);
    }
};

} // namespace orlen::AskReader
