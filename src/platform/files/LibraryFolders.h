#pragma once

namespace orlen {

struct Places;

/// The base folders as the libraries in this process see them. The toolkit, the fonts and the session bus
/// read and write there on their own, and would hang on a mount that does not answer.
namespace LibraryFolders {

/// Redirects the variable of each base folder that does not answer, or whose parts used by libraries do not,
/// to a place that cannot exist. Child processes inherit this. Call it after the places were read and before
/// any library looks and any thread starts. Waits for at most one probe per folder.
void leaveOutSilent(const Places& places);

} // namespace LibraryFolders
} // namespace orlen
