#include "insight/reader/RuleReplies.h"

#include "insight/AskText.h"

#include <string_view>
#include <vector>

namespace orlen::AskReader {

namespace {

struct Meaning {
    Sense sense;
    std::string_view text;
};

constexpr Meaning kMeanings[] = {
    {Sense::safe,
     "Safe: data that programs create again by themselves, or exact copies. It is ticked for you."},
    {Sense::review, "Review: probably no longer needed, but only you can tell. Look before you tick it."},
    {Sense::keep,
     "Keep: a name or place suggests that it matters, such as an invoice, a contract or tax papers. It is a "
     "warning, not a lock."},
};

constexpr std::string_view kSystem =
    "System: everything on the disk that no other category counts, mostly the operating system itself. Orlen "
    "shows its size and leaves it alone.";

} // namespace

std::optional<Answer> privacy(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{"Nothing leaves this computer. Orlen makes no network calls, has no accounts and uploads "
                  "nothing; scanning, ratings and these answers all happen here.",
                  {}};
}

std::optional<Answer> whatIsNeverTouched(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{"Orlen never touches what is protected: anything outside your home folder and the folders "
                  "for applications; keys, passwords and keyrings; browser profiles, mail and chats; synced "
                  "folders; and your own folders such as Documents and Pictures, though files in them may be "
                  "suggested. It deletes nothing: what you tick moves to the Trash.",
                  {}};
}

std::optional<Answer> meaningOfRatings(const Question& question, const AskContext& /*context*/)
{
    const Subject* const subject = question.subject();
    const bool isSystem = subject != nullptr && subject->category == OrlenCategory::system;
    if (subject != nullptr && !isSystem)
        return std::nullopt;
    std::vector<std::string> lines;
    const bool isAny = question.senses.meets({Sense::safe, Sense::review, Sense::keep}) || isSystem;
    for (const Meaning& meaning : kMeanings) {
        if (!isAny || question.senses.has(meaning.sense))
            lines.emplace_back(meaning.text);
    }
    if (isSystem)
        lines.emplace_back(kSystem);
    else
        lines.emplace_back("Ratings are suggestions; nothing moves before you say so.");
    return Answer{AskText::joined(lines, "\n"), {}};
}

} // namespace orlen::AskReader
