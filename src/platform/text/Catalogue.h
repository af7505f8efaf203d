#pragma once

#include <cstdint>
#include <locale>
#include <optional>
#include <string>

namespace orlen {

/// The texts of one language, from its compiled gettext catalogue. Any thread.
class Catalogue {
public:
    /// From FOLDER/LANGUAGE/LC_MESSAGES/orlen.mo. Nothing if that is missing or damaged. Blocks on the disk.
    [[nodiscard]] static std::optional<Catalogue> load(const std::string& folder,
                                                       const std::string& language);

    /// The translation of a text; null if there is none. An empty `context` is none.
    [[nodiscard]] const char* find(const char* context, const char* text) const;
    /// The form for `count` of a text whose singular is `text`.
    [[nodiscard]] const char* find(const char* context, const char* text, std::int64_t count) const;

private:
    explicit Catalogue(const std::locale& messages) : m_messages(messages) {}

    std::locale m_messages; ///< owns the facet that reads the file
};

} // namespace orlen
