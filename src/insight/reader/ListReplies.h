#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Lists of files. Each gives nothing when it is not sure of the question.
/// Pure; any thread.
namespace orlen::AskReader {

/// The files that fit the kind, sizes, dates and folder in the question: a few of them, and how many there
/// are.
[[nodiscard]] std::optional<Answer> listOfFiles(const Question& question, const AskContext& context);

/// How many files fit; nothing where only the scan can tell.
[[nodiscard]] std::optional<Answer> countOfFiles(const Question& question, const AskContext& context);

/// Folders by size, of those directly in one; nothing if it is about files.
[[nodiscard]] std::optional<Answer> listOfFolders(const Question& question, const AskContext& context);

/// The files that two subjects fit, such as "duplicate PDFs".
[[nodiscard]] std::optional<Answer> listOfBoth(const Question& question, const AskContext& context);

/// The same for what has a rating; nothing if the question names none.
[[nodiscard]] std::optional<Answer> listOfRated(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
