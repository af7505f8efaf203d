#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Answers about Orlen itself. Each gives nothing when it is not sure of the question.
/// Pure; any thread.
namespace orlen::AskReader {

/// Nothing leaves this computer.
[[nodiscard]] std::optional<Answer> privacy(const Question& question, const AskContext& context);

/// How often to clean up, and when that last happened.
[[nodiscard]] std::optional<Answer> howOften(const Question& question, const AskContext& context);

/// That Orlen needs no rights of an administrator.
[[nodiscard]] std::optional<Answer> whichRights(const Question& question, const AskContext& context);

/// That Orlen doesn't look for them.
[[nodiscard]] std::optional<Answer> emptyFolders(const Question& question, const AskContext& context);

/// What is never moved.
[[nodiscard]] std::optional<Answer> whatIsNeverTouched(const Question& question, const AskContext& context);

/// What can be asked.
[[nodiscard]] std::optional<Answer> whatOrlenAnswers(const Question& question, const AskContext& context);

/// What Orlen keeps to.
[[nodiscard]] std::optional<Answer> whyTrust(const Question& question, const AskContext& context);

/// What Orlen has nothing to do with.
[[nodiscard]] std::optional<Answer> whatIsNotItsJob(const Question& question, const AskContext& context);

/// What it never moves, and that it sends nothing.
[[nodiscard]] std::optional<Answer> whatItDoesNot(const Question& question, const AskContext& context);

/// That it deletes nothing, whatever it is asked about.
[[nodiscard]] std::optional<Answer> deletesNothing(const Question& question, const AskContext& context);

/// That it works only while it is open.
[[nodiscard]] std::optional<Answer> whenItRuns(const Question& question, const AskContext& context);

/// How Orlen itself is removed.
[[nodiscard]] std::optional<Answer> howItIsRemoved(const Question& question, const AskContext& context);

/// Which files are of a kind, or what a kind of finding holds.
[[nodiscard]] std::optional<Answer> whatCounts(const Question& question, const AskContext& context);

/// What a clean-up does with what is moved.
[[nodiscard]] std::optional<Answer> whatHappens(const Question& question, const AskContext& context);

/// How to exclude something from all scans.
[[nodiscard]] std::optional<Answer> howToExclude(const Question& question, const AskContext& context);

/// What is rated Keep.
[[nodiscard]] std::optional<Answer> whatToKeep(const Question& question, const AskContext& context);

/// What the category System holds; nothing of another subject.
[[nodiscard]] std::optional<Answer> whatSystemIs(const Question& question, const AskContext& context);
/// What the ratings named in the question mean; all if it names none.
[[nodiscard]] std::optional<Answer> meaningOfRatings(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
