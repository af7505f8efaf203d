#pragma once

#include "insight/reader/Question.h"

#include <algorithm>
#include <vector>

/// What words for deeds mean beside others: to free, to delete, to include. Pure; any thread.
namespace orlen::AskReader {

using Phrases = std::vector<Phrase>;

inline bool has(const Phrases& phrases, Sense sense)
{
    return std::ranges::find(phrases, sense, &Phrase::sense) != phrases.end();
}

inline void drop(Phrases& phrases, Sense sense)
{
    std::erase_if(phrases, [&](const Phrase& phrase) { return phrase.sense == sense; });
}

inline void rename(Phrases& phrases, Sense from, Sense to)
{
    for (Phrase& phrase : phrases) {
        if (phrase.sense == from)
            phrase.sense = to;
    }
}

/// All but what `mergeMaking` does.
void mergeDeeds(Phrases& phrases);

/// "Make 5 GB of room", "free 5 GB": after what is compared is known.
void mergeMaking(Phrases& phrases);

/// Drops the names of what is to come: "room for a 12 GB backup".
void dropComing(Phrases& phrases);

/// "Over 50 MB but older than a year" adds to what is asked; "everything but videos" leaves them out.
void mergeYet(Phrases& phrases);

/// "Build artefacts and target dirs": the folders of that name are among them.
void mergeBuildFolders(Phrases& phrases);

/// "The downloads cache", "el caché de las descargas": whose cache it is, is a name; the downloads are
/// something else.
void nameCaches(Phrases& phrases, const Lexicon& lexicon);

} // namespace orlen::AskReader
