#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What programs and their folders are called. Pure; any thread.
namespace orlen::AskReader {

/// Which of a program's folders.
enum class PlacePart : std::uint8_t { all, caches, logs, saves };

/// What a program is called, and which of its folders are meant: "minecraft world".
struct ProgramName {
    std::string name; ///< as typed
    PlacePart part = PlacePart::all;
};

/// The part that a word stands for: of "world", the saves. Nothing if it is no such word.
[[nodiscard]] std::optional<PlacePart> partCalled(std::string_view word);
[[nodiscard]] inline bool isWordForPart(std::string_view word)
{
    return partCalled(word).has_value();
}

/// Takes the word for a part off a name: "minecraft world" is the saves of minecraft.
[[nodiscard]] ProgramName programNameIn(std::string_view text);

/// Whether some words are the name of a well-known program: "visual studio code".
[[nodiscard]] bool isNameOfProgram(std::string_view words);

/// Whether the name, in lower case, is one of these.
[[nodiscard]] bool isAmong(std::span<const std::string_view> names, std::string_view name);

enum class Spelling { right, mistyped };

/// Compares the names of folders with that of a program.
class FolderNames {
public:
    explicit FolderNames(std::string_view program, Spelling spelling = Spelling::right);

    [[nodiscard]] bool isKnown() const;

    [[nodiscard]] bool areNamed(std::string_view folder) const;

    /// "com.spotify.Client"
    [[nodiscard]] bool isIdentifier(std::string_view identifier) const;

private:
    std::string m_program;
    bool m_isMistyped;
};

} // namespace orlen::AskReader
