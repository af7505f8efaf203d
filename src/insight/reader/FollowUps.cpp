#include "insight/reader/FollowUps.h"

#include "insight/AskText.h"
#include "insight/reader/HistoryReplies.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/ListedItems.h"
#include "insight/reader/Rules.h"
#include "insight/reader/SpaceReplies.h"
#include "insight/reader/SubjectReplies.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using enum Sense;
using Phrases = std::vector<Phrase>;

constexpr std::size_t kTold = 6;
constexpr SenseSet kOrderings{biggest, smallest, oldest, newest, most};
constexpr SenseSet kNames{subject, unknown, quoted};
constexpr SenseSet kRatings{safe, review, keep};

bool isAfterInside(const Phrases& phrases, std::size_t i)
{
    return i > 0 && phrases[i - 1].sense == inside;
}

/// Why what was listed is rated as it is, or why the disk is as it is.
std::optional<Reply> reasons(const Question& question, const AskContext& context,
                             const Conversation::Said& before)
{
    if (before.paths.size() == 1)
        return onPath(question, context, before.paths.front());
    // "Why is it so big?" of a list: what it is made of. Why just these were listed, nobody can say.
    constexpr SenseSet kRated{remove, safe, review, keep, makeRoom, cleanUp, advise};
    if (question.senses.meets({biggest, takes, full})) {
        if (auto found = whatFillsIt(question, context, before))
            return found;
    }
    if (before.paths.size() > 1 && !before.question.senses.meets(kRated))
        return std::nullopt;
    std::vector<Message> lines;
    Answer answer;
    for (const std::string& id : before.findingIDs) {
        const Finding* const finding = findingWith(context, id);
        if (finding == nullptr || lines.size() >= kTold)
            continue;
        lines.push_back(aboutFinding(*finding).text);
        answer.findingIDs.push_back(id);
    }
    answer.text = AskText::lines(std::move(lines));
    if (!answer.findingIDs.empty())
        return replyTo(before.question, std::move(answer));
    if (question.senses.has(Sense::why) && !before.question.senses.has(grow) &&
        before.question.senses.meets({free, used, total, full, disk, space}))
        return replyTo(before.question, whyFull(question, context));
    return std::nullopt;
}

/// "Show them": the files of the kind that was spoken of.
std::optional<Reply> onAll(const Question& question, const AskContext& context,
                           const Conversation::Said& before)
{
    Phrases phrases;
    std::ranges::copy_if(before.question.phrases, std::back_inserter(phrases), [](const Phrase& phrase) {
        return phrase.sense == subject || phrase.sense == inside || phrase.sense == except;
    });
    Question list = withPhrases(question, std::move(phrases));
    std::optional<Answer> answer = list.senses.has(subject) ? listOfFiles(list, context) : std::nullopt;
    return replyTo(std::move(list), std::move(answer));
}

/// That it starts at login says nothing of what is asked next: "and how big is it?"
bool isStartup(const Phrase& phrase)
{
    return phrase.subject != nullptr && phrase.subject->id == SubjectID::startup;
}

/// "It", "them": what the last answer was about.
std::optional<Reply> onSame(const Question& question, const AskContext& context,
                            const Conversation::Said& before)
{
    // "When did I last use Firefox", "how big is it", "and when did I last use it"
    if (question.senses.has(lastUse) && before.question.senses.has(unknown)) {
        Phrases phrases = question.phrases;
        std::ranges::copy_if(before.question.phrases, std::back_inserter(phrases),
                             [](const Phrase& phrase) { return phrase.sense == unknown; });
        Question use = withPhrases(question, std::move(phrases));
        std::optional<Answer> answer = replyByRule(use, context);
        return replyTo(std::move(use), std::move(answer));
    }
    // "How many duplicate videos are there and how much do they take": the sum says it, of one as of many.
    constexpr SenseSet kAmounts{howBig, howMuch, takes, space, used, total};
    const bool isSum = before.question.senses.meets({howMany}) && before.question.senses.has(subject) &&
                       question.senses.isWithin(kAmounts.with({general, what}));
    if (before.paths.size() == 1 && isSum)
        return replyTo(before.question, replyByRule(before.question, context));
    if (before.paths.size() == 1)
        return onPath(question, context, before.paths.front());
    // "How many PDFs are older than two years", "and how much do they take".
    constexpr SenseSet kConditions{size, period, inside, unopened, ending, except};
    const SenseSet& said = before.question.senses;
    const Phrases& asked = before.question.phrases;
    const auto isOtherName = [&](const Phrase& phrase) {
        const auto i = static_cast<std::size_t>(&phrase - asked.data());
        return (phrase.sense == unknown || phrase.sense == quoted) && !isAfterInside(asked, i);
    };
    const bool hasConditions =
        said.has(subject) && said.meets(kConditions) && std::ranges::none_of(asked, isOtherName);
    if (before.paths.size() > 1 || (before.findingIDs.empty() && hasConditions))
        return onThem(question, context, before);
    // "What can I safely delete", "how much is that"
    constexpr SenseSet kSizes{howBig, howMuch, takes, what, general, space};
    if (question.senses.isWithin(kSizes) && said.meets({remove, safe, makeRoom, cleanUp}) &&
        !said.meets(kNames))
        return replyTo(before.question, replyByRule(before.question, context));
    Phrases phrases = question.phrases;
    std::ranges::copy_if(before.question.phrases, std::back_inserter(phrases),
                         [](const Phrase& phrase) { return kNames.has(phrase.sense) && !isStartup(phrase); });
    if (phrases.size() > question.phrases.size()) {
        Question merged = withPhrases(question, std::move(phrases));
        if (std::optional<Answer> answer = replyByRule(merged, context))
            return Reply{*std::move(answer), std::move(merged)};
    }
    const bool isOfRoom = question.senses.meets({howMuch, howMany, free, makeRoom, lastUse});
    return isOfRoom ? std::nullopt : reasons(question, context, before);
}

/// "How?": the steps, where an answer has any.
std::optional<Reply> steps(const Question& question, const AskContext& context,
                           const Conversation::Said& before)
{
    return before.question.senses.has(undo) ? replyTo(before.question, howToUndo(question, context))
                                            : std::nullopt;
}

/// A part of a question that another takes the place of.
struct Slot {
    SenseSet senses;
    bool isAfterInside = false;
};

/// Which part of the question before gives way to this phrase.
Slot slotOf(const Phrases& phrases, std::size_t i, bool hadPlace)
{
    const Phrase& phrase = phrases[i];
    if (kOrderings.has(phrase.sense))
        return {kOrderings};
    if (phrase.sense == size)
        return {{size}};
    if (phrase.sense == above || phrase.sense == below)
        return {{above, below}};
    if (phrase.sense == period) // a day takes the place of the question for one
        return {{period, when}};
    if (phrase.sense == number)
        return {{number}};
    if (kNames.has(phrase.sense)) {
        const bool isFolder = phrase.subject != nullptr && phrase.subject->extensions.empty() &&
                              !phrase.subject->folder.empty();
        return {kNames, isAfterInside(phrases, i) || (isFolder && hadPlace)};
    }
    return {SenseSet{phrase.sense}};
}

/// The question before with what this one says instead.
Phrases replaced(const Phrases& before, const Phrases& now)
{
    const bool hadPlace = std::ranges::find(before, inside, &Phrase::sense) != before.end();
    std::vector<Slot> slots;
    for (std::size_t i = 0; i < now.size(); ++i)
        slots.push_back(slotOf(now, i, hadPlace));
    Phrases phrases;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const bool isPlace = isAfterInside(before, i) && kNames.has(before[i].sense);
        const bool gives = std::ranges::any_of(slots, [&](const Slot& slot) {
            return slot.senses.has(before[i].sense) && slot.isAfterInside == isPlace;
        });
        const bool opensPlace = before[i].sense == inside && std::ranges::any_of(slots, &Slot::isAfterInside);
        if (!gives && !opensPlace)
            phrases.push_back(before[i]);
    }
    bool hasInside = false;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (slots[i].isAfterInside && !isAfterInside(now, i) && !hasInside)
            phrases.push_back({inside, {}, nullptr, 0, {}});
        hasInside = hasInside || slots[i].isAfterInside;
        phrases.push_back(now[i]);
    }
    for (Phrase& phrase : phrases)
        phrase.isJoined = false;
    return phrases;
}

/// "And over 8?" after "over 3 GB" means the same unit.
void takeUnit(Phrases& phrases, const Question& before)
{
    constexpr std::int64_t kMega = 1'000'000;
    constexpr std::int64_t kGiga = 1'000 * kMega;
    constexpr std::int64_t kMost = 1'000;
    const Phrase* const last = before.first(size);
    for (std::size_t i = 1; i < phrases.size() && last != nullptr; ++i) {
        const bool isCompared = phrases[i - 1].sense == above || phrases[i - 1].sense == below;
        if (isCompared && phrases[i].sense == number && phrases[i].amount <= kMost) {
            phrases[i].sense = size;
            phrases[i].amount *= last->amount >= kGiga ? kGiga : kMega;
        }
    }
}

/// Only says what changes in the question before.
std::optional<Reply> changed(const Question& question, const AskContext& context,
                             const Conversation::Said& before)
{
    constexpr SenseSet kParts{subject, unknown,  quoted,   size,          number, period, inside,
                              biggest, smallest, oldest,   newest,        above,  below,  most,
                              after,   since,    unopened, Sense::before, folder, what,   general,
                              howMany, used,     free,     ordinal,       total,  except};
    if (!question.senses.isWithin(kParts) || question.phrases.empty())
        return std::nullopt;
    Phrases now = question.phrases;
    std::erase_if(now, [](const Phrase& phrase) { return phrase.sense == what || phrase.sense == general; });
    takeUnit(now, before.question);
    // "The one before": says nothing about a date.
    constexpr SenseSet kOfDates{Sense::before, after, since};
    if (now.empty() || (question.senses.meets(kOfDates) && !question.senses.has(period)))
        return std::nullopt;
    Question whole = withPhrases(before.question, replaced(before.question.phrases, now));
    std::optional<Answer> answer = replyByRule(whole, context);
    if (!answer && question.senses.meets({subject, inside})) {
        // After a list by name or a general figure, a kind or a place asks for what the scan lists of it.
        whole = withPhrases(question, now);
        answer = replyByRule(whole, context);
    }
    return replyTo(std::move(whole), std::move(answer));
}

/// "Which can I delete" after a list: which of them.
bool isWhichOfThem(const Question& question, const Conversation& before)
{
    constexpr std::string_view kWhich[] = {"which", "welche", "lesquel", "cuales", "quali"};
    const Phrase* const asked = question.first(what);
    // Of a list that is empty, none; and nothing else.
    constexpr SenseSet kConditions{size, period, unopened, ending};
    const Question& list = before.last.question;
    const bool isEmptyList = before.last.paths.empty() && before.last.findingIDs.empty() &&
                             list.senses.has(subject) && list.senses.meets(kConditions) &&
                             !list.senses.meets({remove, makeRoom, cleanUp, free});
    return (before.last.paths.size() > 1 || isEmptyList) && asked != nullptr &&
           question.senses.isWithin({what, can, remove, safe, keep, general}) &&
           question.senses.meets({remove, safe, keep}) &&
           std::ranges::any_of(
               kWhich, [&](std::string_view stem) { return plainLetters(asked->text).starts_with(stem); });
}

} // namespace

std::optional<Reply> followUp(const Question& question, const AskContext& context, const Conversation& before)
{
    if (before.empty())
        return std::nullopt;
    constexpr SenseSet kPointing{what,       howBig, howMuch, can,     remove, safe,
                                 Sense::why, keep,   general, ordinal, last};
    const SenseSet& senses = question.senses;
    if (question.asksHow && senses.isWithin({how, can, what, general, undo}))
        return steps(question, context, before.last);
    if (senses.meets({ordinal, last}) && senses.isWithin(kPointing)) {
        // Another list would be no answer, so nothing if there are not so many.
        auto found = onItem(question, context, before);
        if (found || !before.list.paths.empty())
            return found;
    }
    if (senses.has(number) && senses.meets({ordinal, last}) && senses.isWithin(kPointing.with({number})))
        return onFew(question, context, before);
    if (question.isBackward && senses.isWithin({what}) && before.last.paths.empty()) {
        if (auto found = onAll(question, context, before.last))
            return found;
    }
    constexpr SenseSet kAskingWhy{Sense::why, general, biggest, keep, safe,    review,
                                  full,       what,    remove,  can,  negation};
    if (senses.has(Sense::why) && senses.isWithin(kAskingWhy))
        return reasons(question, context, before.last);
    constexpr SenseSet kRemovingIt{can, remove, safe, uninstall, keep, negation, general};
    const bool isSizeOfIt =
        senses.meets({howBig, takes}) && senses.isWithin({howBig, howMuch, takes, what, general});
    // "Dónde está", "è sicuro": the verb says of what.
    const bool isOfOne =
        before.last.paths.size() == 1 && senses.isWithin({what, can, safe, keep, remove, general}) &&
        senses.meets({what, can, safe, keep}) && !(senses.has(what) && senses.meets({remove, safe, keep}));
    // "Et combien ça libère"
    const bool isGainOfIt = question.isContinued && !before.last.paths.empty() &&
                            senses.meets({howMuch, howBig}) &&
                            senses.isWithin({howMuch, howBig, makeRoom, space, general, takes});
    const bool isAboutIt = question.isBackward || isSizeOfIt || isGainOfIt || isOfOne ||
                           isWhichOfThem(question, before) ||
                           (senses.isWithin(kRemovingIt) && senses.meets({remove, safe}));
    if (isAboutIt && !senses.meets(kNames) && !senses.meets(kOrderings) && !senses.has(inside) &&
        senses.meets(
            {what, howBig, howMuch, can, remove, safe, keep, undo, happens, uninstall, untouched, lastUse}))
        return onSame(question, context, before.last);
    // "What does Safe mean", "and Keep?"
    if (question.isContinued && senses.isWithin(kRatings) && before.last.question.senses.has(mean)) {
        Phrases phrases = before.last.question.phrases;
        std::erase_if(phrases, [](const Phrase& each) { return kRatings.has(each.sense); });
        std::ranges::copy(question.phrases, std::back_inserter(phrases));
        Question other = withPhrases(before.last.question, std::move(phrases));
        std::optional<Answer> answer = replyByRule(other, context);
        return replyTo(std::move(other), std::move(answer));
    }
    // A name alone was looked for already.
    if (senses.meets({unknown, quoted}) && !question.isContinued && !question.isBackward)
        return std::nullopt;
    // "Only in Pictures" after a look at one file of a list means the list.
    const bool isOfList =
        senses.has(except) ||
        (question.isContinued && senses.meets(kOrderings.with({inside, above, below, size, period})));
    if (isOfList || senses.isWithin(kOrderings)) {
        if (auto found = changed(question, context, before.list))
            return found;
    }
    return changed(question, context, before.last);
}

} // namespace orlen::AskReader
