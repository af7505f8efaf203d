#pragma once

#include "insight/reader/Question.h"

#include <string>
#include <vector>

namespace orlen {

/// What the last questions and their answers were about, for questions that follow on them. A plain value;
/// empty at first.
struct Conversation {
    /// A question with what its answer named, in order.
    struct Said {
        AskReader::Question question;
        std::vector<std::string> findingIDs;
        std::vector<std::string> paths;
        bool isCut = false; ///< more fits than `paths` has
    };

    Said last; ///< the last question that was understood
    Said list; ///< the last one that was not about one file alone: "and the third?"

    [[nodiscard]] bool empty() const { return last.question.phrases.empty(); }

    /// The conversation with one more question and answer.
    [[nodiscard]] Conversation with(const Said& said) const
    {
        using enum AskReader::Sense;
        const bool isOneThing = said.paths.size() == 1 && said.question.senses.meets({quoted, unknown}) &&
                                !said.question.senses.meets({biggest, smallest, oldest, newest});
        return {said, isOneThing && !list.question.phrases.empty() ? list : said};
    }
};

} // namespace orlen
