#include "insight/reader/FollowUps.h"

#include "insight/AskText.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/NameReplies.h"
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

const Finding* findingWith(const AskContext& context, const std::string& id)
{
    const auto found = std::ranges::find(context.findings, id, [](const Finding& each) { return each.id(); });
    return found == context.findings.end() ? nullptr : &*found;
}

/// The question as it would be put about a path.
Question aboutPath(const Question& question, const std::string& path)
{
    return withPhrases(question, {{what, {}, nullptr, 0, {}}, {quoted, path, nullptr, 0, {}}});
}

std::optional<Reply> replyTo(Question question, std::optional<Answer> answer)
{
    if (!answer)
        return std::nullopt;
    return Reply{*std::move(answer), std::move(question)};
}

std::optional<Reply> onPath(const Question& question, const AskContext& context, const std::string& path)
{
    Question about = aboutPath(question, path);
    std::optional<Answer> answer = aboutName(about, context);
    return replyTo(std::move(about), std::move(answer));
}

/// Where what was asked about last stands in the list, from 1; 0 if it is not in it.
std::size_t placeOfLast(const Conversation& before)
{
    const std::vector<std::string>& list = before.list.paths;
    const auto found =
        before.last.paths.size() == 1 ? std::ranges::find(list, before.last.paths.front()) : list.end();
    return found == list.end() ? 0 : static_cast<std::size_t>(found - list.begin()) + 1;
}

/// "The second one" of what was listed, "the next one" after it.
std::optional<Reply> onItem(const Question& question, const AskContext& context, const Conversation& before)
{
    const bool isLast = question.senses.has(last);
    const Phrase* const ordinalPhrase = question.first(ordinal);
    const Conversation::Said& list = before.list;
    const std::size_t count = list.paths.empty() ? list.findingIDs.size() : list.paths.size();
    std::size_t number = isLast ? count : 0;
    if (!isLast && ordinalPhrase != nullptr)
        number = ordinalPhrase->amount > 0 ? static_cast<std::size_t>(ordinalPhrase->amount)
                                           : placeOfLast(before) + 1;
    if (number == 0 || number > count)
        return std::nullopt;
    if (!list.paths.empty())
        return onPath(question, context, list.paths[number - 1]);
    const Finding* const finding = findingWith(context, list.findingIDs[number - 1]);
    return finding == nullptr ? std::nullopt : replyTo(list.question, aboutFinding(*finding));
}

/// Why what was listed is rated as it is, or why the disk is as it is.
std::optional<Reply> reasons(const Question& question, const AskContext& context,
                             const Conversation::Said& before)
{
    if (before.paths.size() == 1)
        return onPath(question, context, before.paths.front());
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
    if (before.question.senses.meets({free, used, total, full, disk, space}))
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

/// "It", "them": what the last answer was about.
std::optional<Reply> onSame(const Question& question, const AskContext& context,
                            const Conversation::Said& before)
{
    if (before.paths.size() == 1)
        return onPath(question, context, before.paths.front());
    Phrases phrases = question.phrases;
    std::ranges::copy_if(before.question.phrases, std::back_inserter(phrases), [](const Phrase& phrase) {
        return phrase.sense == subject || phrase.sense == unknown || phrase.sense == quoted;
    });
    if (phrases.size() > question.phrases.size()) {
        Question merged = withPhrases(question, std::move(phrases));
        if (std::optional<Answer> answer = replyByRule(merged, context))
            return Reply{*std::move(answer), std::move(merged)};
    }
    return reasons(question, context, before);
}

/// A part of a question that another takes the place of.
struct Slot {
    SenseSet senses;
    bool isAfterInside = false;
};

constexpr SenseSet kOrders{biggest, smallest, oldest, newest, most};
constexpr SenseSet kNames{subject, unknown, quoted};

bool isAfterInside(const Phrases& phrases, std::size_t i)
{
    return i > 0 && phrases[i - 1].sense == inside;
}

/// Which part of the question before gives way to this phrase.
Slot slotOf(const Phrases& phrases, std::size_t i, bool hadPlace)
{
    const Phrase& phrase = phrases[i];
    if (kOrders.has(phrase.sense))
        return {kOrders};
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

} // namespace

std::optional<Reply> followUp(const Question& question, const AskContext& context, const Conversation& before)
{
    if (before.empty())
        return std::nullopt;
    constexpr SenseSet kPointing{what,       howBig, howMuch, can,     remove, safe,
                                 Sense::why, keep,   general, ordinal, last};
    const SenseSet& senses = question.senses;
    if (senses.meets({ordinal, last}) && senses.isWithin(kPointing)) {
        if (auto found = onItem(question, context, before))
            return found;
    }
    if (question.isBackward && senses.isWithin({what}) && before.last.paths.empty()) {
        if (auto found = onAll(question, context, before.last))
            return found;
    }
    constexpr SenseSet kAskingWhy{Sense::why, general, biggest, keep, safe,    review,
                                  full,       what,    remove,  can,  negation};
    if (senses.has(Sense::why) && senses.isWithin(kAskingWhy))
        return reasons(question, context, before.last);
    constexpr SenseSet kRemovingIt{can, remove, safe, uninstall, keep, negation, general};
    const bool isAboutIt =
        question.isBackward || (senses.isWithin(kRemovingIt) && senses.meets({remove, safe}));
    if (isAboutIt && !senses.meets(kNames) && !senses.meets(kOrders) && !senses.has(inside) &&
        senses.meets({what, howBig, howMuch, can, remove, safe, keep, undo, happens, uninstall, untouched}))
        return onSame(question, context, before.last);
    // A name alone was looked for already.
    if (senses.meets({unknown, quoted}) && !question.isContinued && !question.isBackward)
        return std::nullopt;
    // "Only in Pictures" after a look at one file of a list means the list.
    const bool isOfList =
        senses.has(except) ||
        (question.isContinued && senses.meets(kOrders.with({inside, above, below, size, period})));
    if (isOfList || senses.isWithin(kOrders)) {
        if (auto found = changed(question, context, before.list))
            return found;
    }
    return changed(question, context, before.last);
}

} // namespace orlen::AskReader
