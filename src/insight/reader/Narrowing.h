#pragma once

#include "insight/reader/AskedName.h"
#include "insight/reader/Names.h"

#include <string_view>
#include <vector>

/// Keeps of what was found by a name what the question means. Pure; any thread.
namespace orlen::AskReader {

/// Keeps only what lies in a folder.
void narrow(Found& found, std::string_view folder);

/// Keeps what the question says of it: that it is a folder or a file; and what people have in their own
/// folders, if anything, before what programs keep.
void keepMeant(Found& found, const Question& question, const AskedName& asked);

/// The entries that the name means beside the word Steam; none if the question does not have that word.
[[nodiscard]] std::vector<Hit> hitsOfSteam(const Question& question, const AskContext& context,
                                           std::string_view name);

/// "The Steam shader cache": which program it belongs to says as much as its name.
void narrowToSteam(Found& found, const Question& question, const AskContext& context, std::string_view name);

} // namespace orlen::AskReader
