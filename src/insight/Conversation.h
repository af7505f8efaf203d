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
    };

    Said last; ///< the last question that was understood
    Said list; ///< the last one whose answer named several: "and the third?"

    [[nodiscard]] bool empty() const { return last.question.phrases.empty(); }

    /// The conversation with one more question and answer.
    [[nodiscard]] Conversation with(Said said) const
    {
        const bool isList = said.findingIDs.size() > 1 || said.paths.size() > 1;
        return {said, isList || list.question.phrases.empty() ? said : list};
    }
};

} // namespace orlen
