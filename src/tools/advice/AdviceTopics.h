#pragma once

#include "model/Text.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

struct Places;

/// What a topic found where its places alone do not say it.
struct AdviceFound {
    std::vector<std::string> paths; ///< what could go: files and folders
    std::string command;            ///< instead of the topic's; empty for that
};

/// One thing to advise on.
struct AdviceTopic {
    /// What counts towards its size.
    enum class Count {
        everything,
        topFiles,    ///< files directly in the places
        rotatedLogs, ///< files named like logs that were put away
        oldOwnFiles, ///< the user's own, unchanged for ten days
        nothing,     ///< it exists, but no size would be true
    };

    std::string_view topic;
    Text title;
    std::array<std::string_view, 3> places; ///< patterns, see Places::expand
    Count count = Count::everything;
    /// Only if this program is installed; empty for always.
    std::string_view program;
    std::int64_t least = 0; ///< smaller is not worth a word, bytes
    Text text;
    /// {PLACES} stands for those that exist, {UID} for the user's number.
    std::string_view command;
    /// A further command, which the text names at {command}; empty if there is no such place.
    std::string_view furtherCommand;
    /// Finds what counts in the places; null to count the places themselves.
    AdviceFound (*find)(const Places& places) = nullptr;
};

/// All topics. Of several with the same name, the first that applies counts.
[[nodiscard]] std::span<const AdviceTopic> adviceTopics();

} // namespace orlen
