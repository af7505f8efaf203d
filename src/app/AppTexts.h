#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The sentences of the application model. Pure.
namespace orlen::AppTexts {

/// For a command or window that gives up before it starts.
inline constexpr std::string_view kSilentHome =
    "the home folder lies on a network disk that does not answer; try again when it does.";
inline constexpr std::string_view kSilentTrash =
    "the Trash or the history lies on a network disk that does not answer, so nothing was moved.";
inline constexpr std::string_view kScanPlanTitle = "Smart Scan clean-up";

/// One of the program's own files, as a sentence names it.
struct OwnFile {
    std::string_view subject; ///< "The history …"
    std::string_view stem;    ///< of the file name
};
inline constexpr OwnFile kHistory{"The history of clean-ups", "history"};
inline constexpr OwnFile kExclusions{"The list of exclusions", "exclusions"};
inline constexpr OwnFile kSnapshots{"The record of past scans", "scans"};

/// For a file that could not be fully parsed.
[[nodiscard]] std::string damaged(const OwnFile& file);
/// For a file that exists but cannot be read; `error` is the errno.
[[nodiscard]] std::string unreadable(const OwnFile& file, int error);

/// The outcome of a restore.
[[nodiscard]] std::string restored(int restored, int failed);

/// For a service that a clean-up could not switch off before moving its file.
[[nodiscard]] std::string stillOn(const std::string& service);

/// "2 folders could not be read"
[[nodiscard]] std::string unreadableFolders(std::int64_t count);

} // namespace orlen::AppTexts
