#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Names.h"
#include "insight/reader/Question.h"

#include <optional>

/// Counts folders by their names. Pure; any thread.
namespace orlen::AskReader {

/// How many folders have a name, and which take the most: "how many node_modules folders". Nothing
/// unless the question says the name right before the word for folders, or that they are called so.
[[nodiscard]] std::optional<Answer> foldersNamed(const Question& question, const AskContext& context);

/// "Invoices from before 2021": the files in the folder of that name, or with it in theirs, by their dates.
[[nodiscard]] std::optional<Answer> listOfNamed(const Question& question, const AskContext& context);

/// "What is in my Camcorder folder": its files, the largest first, and what the scan says of it. Nothing if
/// no folder of the person's own has the name.
[[nodiscard]] std::optional<Answer> contentsOf(const Question& question, const AskContext& context);

/// "The build folder of tool", "the cargo target folder": a folder of one name within one of the other, or
/// beside what says which tool makes it. The outermost ones.
[[nodiscard]] Found folderOfProject(const Question& question, const AskContext& context);

/// What there is to say of it, or that there is none.
[[nodiscard]] std::optional<Answer> aboutFolderOfProject(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
