#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>
#include <string_view>

/// Answers about applications and what belongs to them: a line, and the screen or command for it. Pure; any
/// thread.
namespace orlen::AskReader {

/// Nothing if the question is about no such subject.
[[nodiscard]] std::optional<Answer> aboutPrograms(const Question& question, const AskContext& context);

/// Whether what the question names is an installed application.
[[nodiscard]] std::optional<Answer> isInstalled(const Question& question, const AskContext& context);

/// How to uninstall what the question names.
[[nodiscard]] std::optional<Answer> uninstalling(const Question& question, const AskContext& context);

/// The application of this name, or with it among the words of its name; null if there is none.
[[nodiscard]] const KnownApp* appCalled(const AskContext& context, std::string_view name);

/// What to tell of an application.
enum class Told { size, removal };

/// Nobody who asks for a size wants to know how to remove it.
[[nodiscard]] Told toldOf(const Question& question);

/// The size of an application, and perhaps how to remove it; nothing if none is known by this name.
[[nodiscard]] std::optional<Answer> aboutApp(const AskContext& context, std::string_view name,
                                             Told told = Told::removal);

} // namespace orlen::AskReader
