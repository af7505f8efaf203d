#pragma once

#include "clean/PathTrie.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What is always protected, as tables: to add a rule, add a line. Pure; any thread.
namespace orlen::SafetyRules {

/// A pattern for `Places::expand`. In addition, "(a|b)" matches either text, a component "*" matches any
/// component, and a trailing "*" matches all names that start that way.
struct PathRule {
    std::string_view pattern;
    PathTrie::Mark mark;
};

/// System roots, the three trees in which anything may be touched, and folders that only group others: their
/// contents are free.
[[nodiscard]] std::span<const PathRule> placeRules();

/// What is personal or in use by a running program: keys, profiles, mail, managed stores, the Trash. Where
/// one of these exists, its parents must not be moved either.
[[nodiscard]] std::span<const PathRule> treasureRules();

/// The pattern expanded for each choice of its "(a|b)" groups.
[[nodiscard]] std::vector<std::string> spelledOut(std::string_view pattern);

/// Whether a folder of this name is protected with its contents wherever it is.
[[nodiscard]] bool isSealedName(std::string_view component);

/// The same for a folder directly inside another.
[[nodiscard]] bool isSealedPair(std::string_view parent, std::string_view component);

/// Whether an entry of this name is protected wherever it is, but not what is below it.
[[nodiscard]] bool isProtectedName(std::string_view lastComponent);

} // namespace orlen::SafetyRules
