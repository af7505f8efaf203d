#pragma once

#include "clean/PathTrie.h"
#include "clean/Protection.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What is always protected, as tables: to add a rule, add a line. Pure; any thread.
namespace orlen::SafetyRules {

/// A pattern for `Places::expand`. In addition, "(a|b)" matches either text, and a component that ends in "*"
/// matches all names that start with the text before it. {PROFILE} stands for a browser's folder and the
/// profiles in it, {ENGINE} for the caches of its engine.
struct PathRule {
    std::string_view pattern;
    PathTrie::Mark mark;
    Protection protection; ///< `none` for a rule that opens
};

/// System roots, the three trees in which anything may be touched, and folders that only group others: their
/// contents are free.
[[nodiscard]] std::span<const PathRule> placeRules();

/// What is personal or in use by a running program: keys, profiles, mail, managed stores, the Trash. Where
/// one of these exists, its parents must not be moved either.
[[nodiscard]] std::span<const PathRule> treasureRules();

/// The pattern expanded for each choice of its "(a|b)" groups and words of this table.
[[nodiscard]] std::vector<std::string> spelledOut(std::string_view pattern);

/// What protects a folder of this name, directly inside one named `parent`, with its contents wherever it is.
[[nodiscard]] Protection ofSealedName(std::string_view parent, std::string_view component);

/// What protects an entry of this name wherever it is, but not what is below it.
[[nodiscard]] Protection ofProtectedName(std::string_view lastComponent);

} // namespace orlen::SafetyRules
