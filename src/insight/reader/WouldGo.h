#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Names.h"
#include "insight/reader/Question.h"
#include "insight/reader/StoredThings.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// What a question names to be removed. Pure; any thread.
namespace orlen::AskReader {

/// What would be removed.
struct Things {
    std::vector<Stored> each;
    std::vector<Message> names;
    std::vector<Message> notes; ///< on what is named and not among them: what is protected, or gone
    bool isOfTrash = false;     ///< and of nothing else

    void addName(Message name);
    void add(const Hit& hit);
    /// Drops what is there twice, and what lies in a folder that is there.
    void keepOnce();
};

/// The phrases that say what would be removed, each list of them for itself.
[[nodiscard]] std::vector<std::vector<Phrase>> groupsIn(const Question& question);

/// False if it is not clear what a group names.
[[nodiscard]] bool addGroup(const Question& group, const AskContext& context, Things& things);

} // namespace orlen::AskReader
