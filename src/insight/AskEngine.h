#pragma once

#include "insight/AskContext.h"
#include "insight/Conversation.h"
#include "model/FileEntry.h"
#include "model/Message.h"
#include "platform/text/LanguageModel.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The reply to a question.
struct Answer {
    Message text;                        ///< may have several lines
    std::vector<std::string> findingIDs; ///< findings it is about, for links to them
    bool usedModel = false;              ///< whether a language model wrote the text
    std::vector<std::string> paths{};    ///< files and folders it lists, in order, for questions that follow
    /// Items it proposes for a clean-up, to be looked through before anything moves: none that is rated Keep
    /// or protected. Empty if it proposes nothing.
    std::vector<std::string> proposal{};
    bool isCut = false; ///< more fits than `paths` has
    friend bool operator==(const Answer&, const Answer&) = default;
};

/// An answer, and what a question that follows it is asked with.
struct Turn {
    Answer answer;
    Conversation next;
};

/// Answers questions about the last scan and what lies in the home folder, using nothing else. Stateless; any
/// thread.
namespace AskEngine {

/// Suggested questions. They are understood in the person's language as well.
inline constexpr std::array<Text, 5> kSuggestions{
    message("What is using the most space?"), message("What can I delete from my Downloads folder?"),
    message("What can I safely free up?"), message("Are there duplicate files?"),
    message("When will my disk be full?")};

/// Says who writes the answers.
[[nodiscard]] Text introduction(const LanguageModel& model = LanguageModel::ofSystem());

/// Lets the language model answer. If there is none, the reader answers what it is sure of; what it leaves,
/// and what the model fails to answer, the built-in matcher does. Blocks while the model writes.
[[nodiscard]] Answer answer(const std::string& question, const AskContext& context,
                            const LanguageModel& model = LanguageModel::ofSystem());

/// The same within a conversation: the reader also understands what only makes sense after `before`.
[[nodiscard]] Turn turn(const std::string& question, const AskContext& context, const Conversation& before,
                        const LanguageModel& model = LanguageModel::ofSystem());

/// Whether `answer` may use the applications and startup items of its context, which take time to read.
[[nodiscard]] bool needsPrograms(const std::string& question, const AskContext& context,
                                 const LanguageModel& model = LanguageModel::ofSystem());

/// Whether `answer` may use what lies in the home folder, which takes time to walk.
[[nodiscard]] bool needsHome(const std::string& question, const AskContext& context,
                             const LanguageModel& model = LanguageModel::ofSystem());

/// The built-in matcher: looks for keywords anywhere in the question and always has an answer.
[[nodiscard]] Answer fallback(std::string_view question, const AskContext& context);

/// The scan as presented to the language model, in English.
[[nodiscard]] std::string contextText(const AskContext& context);

/// The entries in the user's Downloads folder, each path once, largest first.
[[nodiscard]] std::vector<FileEntry> downloadsItems(const std::vector<Finding>& findings);

/// Whether a path is below the Downloads folder, default or configured.
[[nodiscard]] bool isInDownloads(std::string_view path);

} // namespace AskEngine
} // namespace orlen
