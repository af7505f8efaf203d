#pragma once

#include "insight/AskContext.h"

#include <string_view>

namespace orlen::AskReader {

/// What a well-known file or folder is, by its name: "~/win.vdi: disk of a virtual machine."; empty if its
/// name does not tell. Pure; any thread.
[[nodiscard]] Message whatItIs(std::string_view path, const AskContext& context);

/// The same of a folder or service by its name alone: "baloo".
[[nodiscard]] Message whatIsNamed(std::string_view name);

/// The same of what a tool makes or fetches again when it is gone; empty for all else.
[[nodiscard]] Message whatMakesItAgain(std::string_view path, const AskContext& context);

} // namespace orlen::AskReader
