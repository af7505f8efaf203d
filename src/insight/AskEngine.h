#pragma once

#include "insight/AskContext.h"
#include "model/FileEntry.h"
#include "platform/text/LanguageModel.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The reply to a question.
struct Answer {
    std::string text;                    ///< may have several lines
    std::vector<std::string> findingIDs; ///< of the findings that it is about, for links to them
    bool usedModel = false;              ///< whether a language model wrote the text

    friend bool operator==(const Answer&, const Answer&) = default;
};

/// Answers questions about the last scan, from nothing but that scan. Stateless; any thread.
namespace AskEngine {

/// Questions to begin with.
inline constexpr std::array<std::string_view, 5> kSuggestions{
    "What is using the most space?", "What can I delete from my Downloads folder?",
    "What can I safely free up?", "Are there duplicate files?", "When will my disk be full?"};

/// Says who writes the answers.
[[nodiscard]] std::string_view introduction(const LanguageModel& model = LanguageModel::ofSystem());

/// Has the language model write the text where it is available, and is the matcher's answer where it is not
/// or fails. Blocks while the model writes.
[[nodiscard]] Answer answer(const std::string& question, const AskContext& context,
                            const LanguageModel& model = LanguageModel::ofSystem());

/// The built-in matcher: looks for words of the question, anywhere in it, and always has an answer.
[[nodiscard]] Answer fallback(std::string_view question, const AskContext& context);

/// The scan as the language model gets to see it.
[[nodiscard]] std::string contextText(const AskContext& context);

/// The entries that lie in the user's Downloads folder, each path once, largest first.
[[nodiscard]] std::vector<FileEntry> downloadsItems(const std::vector<Finding>& findings);

/// Whether a path lies below the Downloads folder or the one that the user's settings name.
[[nodiscard]] bool isInDownloads(std::string_view path);

} // namespace AskEngine
} // namespace orlen
