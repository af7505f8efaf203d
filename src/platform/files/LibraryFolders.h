#pragma once

namespace orlen {

struct Places;

/// The base folders as the libraries of this process see them: the toolkit, the fonts and the desktop's bus
/// read and write there by themselves, and would wait for ever where nobody answers.
namespace LibraryFolders {

/// Points the variable of each base folder that does not answer, or whose parts that libraries use do not,
/// to where nothing can be. What this process starts inherits that. Before any library looks and any thread
/// is started, and after the places were read; waits as long as a probe at most for each folder.
void leaveOutSilent(const Places& places);

} // namespace LibraryFolders
} // namespace orlen
