#pragma once

#include <string>
#include <string_view>

/// The sentences of the application model. Pure.
namespace orlen::AppTexts {

/// Where a command or the window ends before it has begun.
inline constexpr std::string_view kSilentHome =
    "the home folder lies on a network disk that does not answer; try again when it does.";
inline constexpr std::string_view kSilentTrash =
    "the Trash or the history lies on a network disk that does not answer, so nothing was moved.";
inline constexpr std::string_view kScanPlanTitle = "Smart Scan clean-up";

/// A file of the program's own in the words of a sentence.
struct OwnFile {
    std::string_view subject; ///< "The history …"
    std::string_view stem;    ///< of its name
};
inline constexpr OwnFile kHistory{"The history of clean-ups", "history"};
inline constexpr OwnFile kSnapshots{"The record of past scans", "scans"};

/// Of a file that is not understood in full.
[[nodiscard]] std::string damaged(const OwnFile& file);
/// Of a file that is there but cannot be read; `error` is the errno.
[[nodiscard]] std::string unreadable(const OwnFile& file, int error);

/// What a restore tells the user.
[[nodiscard]] std::string restored(int restored, int failed);

} // namespace orlen::AppTexts
