#pragma once

#include "insight/reader/ListRequest.h"

#include <cstddef>

/// The folder that a list is of, by its name, and names that it is narrowed to. Pure; any thread.
namespace orlen::AskReader {

/// Whether a phrase may be a name, or a part of one.
[[nodiscard]] bool isName(const Phrase& phrase);

/// "In the folder Projects": whether a phrase follows such words; that for folders is no part of what is
/// listed.
[[nodiscard]] bool isAfterInside(const Question& question, std::size_t at);

/// A folder given by its path or its name, or words of names. False if unknown words are none.
[[nodiscard]] bool takeFolder(const Question& question, const AskContext& context, ListRequest& request);

} // namespace orlen::AskReader
