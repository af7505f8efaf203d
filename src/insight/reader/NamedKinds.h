#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Names.h"
#include "insight/reader/Question.h"

#include <string>
#include <string_view>

/// Finds files by words of their names and their kind. Pure; any thread.
namespace orlen::AskReader {

/// The files of the kind that the question speaks of that have all words of the name in theirs: "the Zoom
/// installer", "the ubuntu iso".
[[nodiscard]] Found ofKindNamed(const Question& question, const AskContext& context, const std::string& name);

/// Leaves out what is not of the kind that is said beside a name, nor a folder that holds such files: "the
/// linux isos" are no folder of that name. Nothing of a question that says none, or names a file.
void keepOfKind(Found& found, const Question& question, const AskContext& context, const std::string& name);

/// The disks of virtual machines that begin with the name: "the Fedora VM".
[[nodiscard]] Found machineNamed(const Question& question, const AskContext& context, std::string_view name);

/// The files whose names hold every word of the question that could be one of a name, in whatever order: of
/// "the backup from my old laptop", "old laptop backup.tar.gz".
[[nodiscard]] Found holdingWordsOf(const Question& question, const AskContext& context);

/// What was found only as one of the largest things of a folder, by all files of the home folder that have
/// its words in their names instead: "the scanner manual" may be there twice.
[[nodiscard]] Found ofHome(Found found, const Question& question, const AskContext& context);

/// The question with words of a list of names as names, whatever else they say: "target, build, dist".
[[nodiscard]] Question withListedNames(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
