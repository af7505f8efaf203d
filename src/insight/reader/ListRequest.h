#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/Question.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

/// What a question wants listed. Pure; any thread.
namespace orlen::AskReader {

enum class Order { biggest, smallest, oldest, newest };

/// What a list is to hold, and how the answer says so.
struct ListRequest {
    const Subject* subject = nullptr;  ///< null: files of every kind
    const Subject* listedAs = nullptr; ///< only what is listed as this
    std::string folder;                ///< empty: anywhere
    std::int64_t leastBytes = 0;
    std::int64_t mostBytes = std::numeric_limits<std::int64_t>::max();
    TimePoint changedFrom = TimePoint::min();
    TimePoint changedTo = TimePoint::max();
    TimePoint openedTo = TimePoint::max();
    Order order = Order::biggest;
    std::int64_t count = 5;
    std::optional<Rating> rating;
    Exclusions exclusions;
    /// Only pictures that the scan recognised as this, or that have such a name; null: any. `listed` are the
    /// paths of the former.
    const Subject* recognised = nullptr;
    std::unordered_set<std::string_view> listed{};
    std::string name{};               ///< words that their names hold, as typed; empty: any
    std::vector<std::string> words{}; ///< the same, in lower case
    std::string ending;               ///< of their names, without the dot; empty: any
    bool areFolders = false;          ///< it lists folders instead of files
    bool isHiddenOnly = false;        ///< only what has a hidden name
    bool isOwnOnly = false;           ///< only the person's own files, see `HomeFiles`
    bool isOfScan = false;            ///< only what the scan lists can tell
    Message files;                    ///< what it lists, in words: "videos over 1 GB in ~/Downloads"

    /// Whether an entry of a finding belongs to the list.
    [[nodiscard]] bool admits(const Finding& finding, const FileEntry& entry) const;
};

/// Nothing if a part of the question is unclear.
[[nodiscard]] std::optional<ListRequest> listRequestIn(const Question& question, const AskContext& context);

/// Whether the name of the file holds the words that the request asks for.
[[nodiscard]] bool holdsWordsInName(const ListRequest& request, std::string_view path);

/// Whether a kind is told by what pictures show: screenshots, receipts, memes.
[[nodiscard]] bool isRecognised(const Subject& subject);

} // namespace orlen::AskReader
