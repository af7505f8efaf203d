#pragma once

#include "insight/reader/Names.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Finds the folders that a program keeps in the home folder by its name. Pure; any thread.
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

/// The folders of the program, the largest first: those that a finding lists as hits; and what an earlier
/// clean-up moved of them. Nothing without a walk of the home folder.
[[nodiscard]] Found placesOf(const AskContext& context, const ProgramName& program);

/// Whether a path lies in a folder of that part of the program.
[[nodiscard]] bool isPlaceOf(std::string_view path, const ProgramName& program);

/// Whether some words are the name of a well-known program: "visual studio code".
[[nodiscard]] bool isNameOfProgram(std::string_view words);

} // namespace orlen::AskReader
