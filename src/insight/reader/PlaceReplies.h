#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/ProgramPlaces.h"
#include "insight/reader/Question.h"

#include <optional>
#include <string_view>

/// Answers about the folders of a program, and about getting something back. Pure; any thread.
namespace orlen::AskReader {

/// The program and the part of it that a question with this name means: "the Discord cache".
[[nodiscard]] ProgramName programIn(const Question& question, std::string_view name);

/// The folders of the program; nothing if none is known, and none was cleaned up.
[[nodiscard]] std::optional<Answer> aboutPlaces(const Question& question, const AskContext& context,
                                                const ProgramName& program);

/// Whether it asks how much space something takes.
[[nodiscard]] bool asksSize(const Question& question);

/// That there is no such part of a program.
[[nodiscard]] Answer noSuchPart(const ProgramName& program);

/// Whether it asks how to get something back that is or may be gone.
[[nodiscard]] bool asksBack(const Question& question);

/// Where what the question names can be got back from; nothing if it is there, and only may be removed.
[[nodiscard]] std::optional<Answer> gettingBack(const Question& question, const AskContext& context,
                                                std::string_view name);

} // namespace orlen::AskReader
