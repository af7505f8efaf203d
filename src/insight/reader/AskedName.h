#pragma once

#include "insight/reader/Question.h"

#include <string>
#include <string_view>

/// The name in a question about a file, a folder or a program. Pure; any thread.
namespace orlen::AskReader {

/// A name, and where what has it lies.
struct AskedName {
    std::string name;  ///< as typed; empty if the question names nothing
    std::string place; ///< the folder named with it, as typed: "the atlas folder in Projects"; mostly empty
};

[[nodiscard]] AskedName nameIn(const Question& question);

/// Written like the name of a file, so it can be nothing else.
[[nodiscard]] bool isFileName(const Question& question, std::string_view name);

/// Whether a word can only be looked for as part of names: "backups".
[[nodiscard]] bool isWordOfNames(std::string_view name);

} // namespace orlen::AskReader
