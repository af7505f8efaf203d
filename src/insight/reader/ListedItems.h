#pragma once

#include "insight/AskEngine.h"
#include "insight/Conversation.h"
#include "insight/reader/FollowUps.h"
#include "insight/reader/Question.h"

#include <optional>
#include <string>

/// Answers about what the last answer listed: one item of it, the first few, all of them. Pure; any thread.
namespace orlen::AskReader {

/// The answer with its question, if there is one.
[[nodiscard]] std::optional<Reply> replyTo(Question question, std::optional<Answer> answer);

/// Null if no scan lists it any more.
[[nodiscard]] const Finding* findingWith(const AskContext& context, const std::string& id);

/// What the question asks, about a file or folder.
[[nodiscard]] std::optional<Reply> onPath(const Question& question, const AskContext& context,
                                          const std::string& path);

/// "The second one" of what was listed, "the next one" after it; nothing if there are not so many.
[[nodiscard]] std::optional<Reply> onItem(const Question& question, const AskContext& context,
                                          const Conversation& before);

/// "The first two", "the last three"; nothing if there are not so many.
[[nodiscard]] std::optional<Reply> onFew(const Question& question, const AskContext& context,
                                         const Conversation& before);

/// "Which of these can go", "how much would deleting them free": all that was listed, and what fits as well
/// if the answer had no room for it.
[[nodiscard]] std::optional<Reply> onThem(const Question& question, const AskContext& context,
                                          const Conversation::Said& before);

/// "Why is it so big?": the largest of what is in it.
[[nodiscard]] std::optional<Reply> whatFillsIt(const Question& question, const AskContext& context,
                                               const Conversation::Said& before);

/// The list with more lines; nothing if it has no more.
[[nodiscard]] std::optional<Reply> moreOfThem(const Question& question, const AskContext& context,
                                              const Conversation::Said& list);

} // namespace orlen::AskReader
