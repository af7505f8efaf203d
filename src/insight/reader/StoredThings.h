#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Virtual machines, environments and what builds make: kinds of things that are told by where they lie.
/// Pure; any thread.
namespace orlen::AskReader {

/// A file or folder and what it takes.
struct Stored {
    std::string path;
    std::int64_t bytes = 0;
};

/// All of that kind in the home folder, largest first; nothing of other kinds, or before the home folder was
/// walked.
[[nodiscard]] std::optional<std::vector<Stored>> storedOf(const Subject& subject, const AskContext& context);

/// How many there are, what they take, and the largest.
[[nodiscard]] std::optional<Answer> listOfStored(const Question& question, const Subject& subject,
                                                 const AskContext& context);

/// What a list begins with.
enum class Sizes { biggest, smallest };

/// The folders directly in one, with their sum; empty if there are none.
[[nodiscard]] Message foldersIn(std::string_view pattern, Sizes first, const AskContext& context);

/// What the containers of Podman and Docker take, and the commands for them.
[[nodiscard]] Answer containers(const AskContext& context);

} // namespace orlen::AskReader
