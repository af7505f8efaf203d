#pragma once

#include "model/Message.h"
#include "platform/text/Figures.h"

#include <span>
#include <string>
#include <string_view>

/// The language that a person is spoken to. English, as it stands in the code, until `use` is called.
namespace orlen::Words {

/// Speaks the first of these languages (tags such as "de_AT") that has a catalogue in the folder, else
/// English; what a catalogue lacks is taken from the English one. Call it once, before other threads start:
/// everything else here may be called on any thread. Blocks on the disk.
void use(std::span<const std::string> languages, const std::string& folder);
/// The same with the person's languages and the installed catalogues.
void useInstalled();

/// The catalogue's language ("de", "pt_BR", "en").
[[nodiscard]] const std::string& language();
/// Whether that is written from right to left.
[[nodiscard]] bool isRightToLeft();
/// Numbers, sizes and dates as that language writes them, with the habits of the person's region.
[[nodiscard]] const Figures& figures();

/// A name or path that stands among words: marked so that it keeps its own direction if those are written
/// from right to left, and so that it changes none of theirs.
[[nodiscard]] std::string isolated(std::string_view name);

/// A text with its places as they are.
[[nodiscard]] std::string shown(const Text& text);
/// A message with its names `isolated`.
[[nodiscard]] std::string shown(const Message& message);
/// A text that was kept in English: translated if it is one of the program's own without places.
[[nodiscard]] std::string shown(std::string_view base);

} // namespace orlen::Words

namespace orlen {

/// What the person reads.
using Words::shown;

} // namespace orlen
