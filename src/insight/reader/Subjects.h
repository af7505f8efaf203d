#pragma once

#include "model/FindingKind.h"
#include "model/OrlenCategory.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen::AskReader {

/// Something a question can be about: a kind of file, a kind of finding, a category or a folder. Often
/// several at once: "photos" are files with certain extensions and a category.
struct Subject {
    std::string_view words;      ///< the phrases for it, separated by commas
    Text name;                   ///< as a sentence names several of them: "videos"; empty if none does
    std::string_view extensions; ///< of its files, lower case, separated by spaces; empty if no kind of file
    std::vector<FindingKind> kinds;
    std::optional<OrlenCategory> category;
    std::string_view folder; ///< pattern as Places::expand reads it; empty if it is no folder
    bool isAnyFile = false;  ///< files of every kind
};

/// All subjects. A phrase that several list belongs to the first.
[[nodiscard]] std::span<const Subject> subjects();

/// The folder in use that the subject stands for; empty if none.
[[nodiscard]] std::string folderOf(const Subject& subject);

/// Whether a file of this name is of the subject's kind.
[[nodiscard]] bool hasExtensionOf(const Subject& subject, std::string_view path);

} // namespace orlen::AskReader
