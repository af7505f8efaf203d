#pragma once

#include "insight/reader/Names.h"
#include "insight/reader/ProgramNames.h"

#include <string_view>

/// Finds the folders that a program keeps in the home folder by its name. Pure; any thread.
namespace orlen::AskReader {

/// The folders of the program, the largest first: those that a finding lists as hits; and what an earlier
/// clean-up moved of them. Nothing without a walk of the home folder.
[[nodiscard]] Found placesOf(const AskContext& context, const ProgramName& program);

/// Whether a path lies in a folder of that part of the program.
[[nodiscard]] bool isPlaceOf(std::string_view path, const ProgramName& program);

} // namespace orlen::AskReader
