#pragma once

#include "insight/AskContext.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Finds what the last scan knows by name. Pure; any thread.
namespace orlen::AskReader {

/// An entry together with its finding.
struct Hit {
    const Finding* finding = nullptr;
    const FileEntry* entry = nullptr;
};

/// Which rating speaks for what several findings list: Keep, then Safe, as the scan counts it.
[[nodiscard]] int weightOf(Rating rating);
[[nodiscard]] int weightOf(const Hit& hit);

/// A folder, or a file in one, that takes up space and that no finding lists.
struct Measured {
    std::string path;
    std::int64_t bytes = 0;
    std::optional<OrlenCategory> category; ///< nothing if it counts for several
    enum class Kind { unknown, file, folder };
    Kind kind = Kind::unknown;
    std::optional<TimePoint> changed{}; ///< of a file, if known
    bool isOwn = false;                 ///< neither hidden nor in a cache, as far as known
};

/// How well a name fits, from not at all to exactly. Only hits that fit best are of interest.
enum class Fit : std::uint8_t { none, mistyped, part, folder, words, stem, whole };

struct Found {
    Fit fit = Fit::none;   ///< of everything below
    std::vector<Hit> hits; ///< each path once, largest first
    std::vector<Measured> measured;
    std::vector<const TrashedItem*> trashed; ///< moved by a clean-up and not put back
};

/// Everything the scan, the breakdown and the history know by this name, which may be a path, a file name or
/// some words of one. If `kinds` is not empty, only findings of these kinds.
[[nodiscard]] Found findNamed(const AskContext& context, std::string_view name,
                              const std::vector<FindingKind>& kinds = {});

/// What the Trash holds by this name as hits, and what earlier clean-ups moved to it.
[[nodiscard]] Found findTrashed(const AskContext& context, std::string_view name);

/// The entries whose path or note holds all the words, in lower case, as parts; each once, largest first.
[[nodiscard]] std::vector<Hit> holdingAll(const AskContext& context, const std::vector<std::string>& words);

/// The own folder of the home that has the word in its name, the largest; empty if none.
[[nodiscard]] std::string folderHolding(const AskContext& context, const std::string& word);

/// The folder that a text names: its path, its path below the home folder, or its name; empty if none.
[[nodiscard]] std::string folderNamed(const AskContext& context, const std::string& text);

/// Each path once, with the finding that speaks for it: several may list it, a single one never does twice.
/// `hits` in the order of the findings.
[[nodiscard]] std::vector<Hit> eachOnce(const AskContext& context, std::vector<Hit> hits);

/// Whether the word, in lower case, stands in the name of an entry of the scan, or is the whole name
/// of something of the person's own.
[[nodiscard]] bool isWordOfName(const AskContext& context, std::string_view word);

/// The path that a text names, in the form all rules compare; empty if it is not written as a path.
[[nodiscard]] std::string pathIn(std::string_view text);

/// The path on one line, with "~" for the home folder.
[[nodiscard]] std::string tilde(std::string_view path);

} // namespace orlen::AskReader
