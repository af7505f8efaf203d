#pragma once

#include "clean/PathTrie.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What is protected whatever the disk holds, as tables: adding a rule is adding a line. Pure, any thread.
namespace orlen::SafetyRules {

/// A pattern that `Places::expand` understands, in which also "(a|b)" stands for either text, a component "*"
/// for any component, and a "*" at the very end for all names that begin so.
struct PathRule {
    std::string_view pattern;
    PathTrie::Mark mark;
};

/// System roots, the three trees in which anything may be touched, and folders that hold other things: their
/// contents are free.
[[nodiscard]] std::span<const PathRule> placeRules();

/// What belongs to the user alone or to a running program: keys, profiles, mail, managed stores, the Trash.
/// Where one of these exists, its parents must not be moved either.
[[nodiscard]] std::span<const PathRule> treasureRules();

/// The pattern once for each choice of its "(a|b)" groups.
[[nodiscard]] std::vector<std::string> spelledOut(std::string_view pattern);

/// Whether a folder of this name is protected with its contents wherever it lies.
[[nodiscard]] bool isSealedName(std::string_view component);

/// The same for a folder directly in another one.
[[nodiscard]] bool isSealedPair(std::string_view parent, std::string_view component);

/// Whether an entry of this name is protected wherever it lies, though not what is below it.
[[nodiscard]] bool isProtectedName(std::string_view lastComponent);

} // namespace orlen::SafetyRules
