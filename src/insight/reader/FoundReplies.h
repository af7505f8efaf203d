#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Names.h"
#include "insight/reader/Question.h"

#include <string_view>

/// Answers about what was found by a name. Pure; any thread.
namespace orlen::AskReader {

/// What there is to know about an entry; names in it may have line breaks.
[[nodiscard]] Message noteOnOneLine(const FileEntry& entry);

/// Which rule protects a path; none if nobody knows.
[[nodiscard]] Protection protectionOf(const AskContext& context, std::string_view path);

[[nodiscard]] Answer protectedPlace(std::string_view path, Protection protection);

/// The same, with its size if the question asks for it and somebody knows, and with what the scan lists in
/// it: that may go though the place itself stays.
[[nodiscard]] Answer guardedPlace(const Question& question, const AskContext& context, std::string_view path);

/// What the scan lists, at least one entry: its rating and reason, and what a clean-up does with it. A list
/// if there are several, or others of that name.
[[nodiscard]] Answer listedHits(const AskContext& context, const Found& found, std::string_view name);

/// A list of everything that was found, below a line that says what it is.
[[nodiscard]] Answer listedBelow(Message heading, const AskContext& context, const Found& found);

/// The same, with a verdict on each that no finding lists itself.
[[nodiscard]] Answer judgedBelow(Message heading, const Question& question, const AskContext& context,
                                 const Found& found);

/// What no finding lists: where it is, how big, and why it is not suggested.
[[nodiscard]] Answer measuredOnly(const Question& question, const AskContext& context, const Found& found,
                                  std::string_view name);

/// What an earlier clean-up moved.
[[nodiscard]] Answer inTrash(const Found& found);

} // namespace orlen::AskReader
