#pragma once

#include "insight/reader/NameIndex.h"
#include "insight/reader/Names.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen::AskReader {

/// A name that is looked for, and how well others fit it.
class Wanted {
public:
    explicit Wanted(std::string_view name);

    /// The entries that may fit as well as `least` or better; nothing if all have to be looked at.
    [[nodiscard]] std::optional<std::vector<NameIndex::Place>> places(const NameIndex& index,
                                                                      Fit least) const;

    /// `path` as the kernel gave it. A fit below `least` is not looked for.
    [[nodiscard]] Fit fit(std::string_view path, Fit least);

private:
    /// Whether the folders below the home folder say whose the path is.
    [[nodiscard]] bool isInFolderNamed(std::string_view path);
    [[nodiscard]] bool holdsWords(std::string_view text) const;
    [[nodiscard]] bool holdsParts(std::string_view text) const;
    [[nodiscard]] bool holdsMistyped(std::string_view text) const;

    std::string m_name;
    std::string m_path;
    std::vector<std::string> m_words;
    const std::string& m_home;
    std::string m_lower;
    std::string m_folder; ///< the one looked at last
    std::string m_lowerFolders;
    bool m_folderHoldsAny = false;
    std::string m_lowerPath;
    bool m_isLetter; ///< a name of one letter, which stands within too many others
    bool m_mayBePart;
    bool m_mayBeMistyped;
};

} // namespace orlen::AskReader
