#include "insight/reader/QuestionParts.h"

#include "insight/AskText.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>
#include <variant>

namespace orlen::AskReader {

namespace {

using enum Sense;

constexpr SenseSet kQuestionWords{what, howBig, howMuch,   howMany,  can,      when,
                                  why,  undo,   uninstall, makeRoom, untouched};

/// Says what a question for the figures of the disk says.
constexpr SenseSet kOfTheDisk{free, used, total, disk, space, general};

/// The phrases from one position to before another.
Question part(const Question& question, std::size_t from, std::size_t to)
{
    const auto start = question.phrases.begin();
    Question one = withPhrases(question, {std::next(start, static_cast<std::ptrdiff_t>(from)),
                                          std::next(start, static_cast<std::ptrdiff_t>(to))});
    // "… and can I delete them" follows on what stands before it.
    one.isContinued = from == 0 && question.isContinued;
    // "How big is my disk and how much of it is used": only the second points back.
    if (to - from < question.phrases.size())
        one.isBackward = std::ranges::any_of(one.phrases, &Phrase::isBackward);
    one.isTherein = one.isTherein && to == question.phrases.size();
    return one;
}

bool isNamedFile(const Phrase& phrase)
{
    return phrase.sense == quoted ||
           (phrase.sense == unknown && PathText::extension(phrase.text).size() >= 2);
}

/// Phrases side by side, the last one left out.
struct PhraseRange {
    std::size_t from = 0;
    std::size_t to = 0;
};

/// "Downloads or code": a name of its own, beside the folder that a word stands for.
bool isNameBesideFolder(const std::vector<Phrase>& phrases, std::size_t at)
{
    const auto isFolder = [&](std::size_t i) {
        return i < phrases.size() && phrases[i].subject != nullptr && !phrases[i].subject->folder.empty();
    };
    const bool isAfter = at > 0 && phrases[at].isJoined && isFolder(at - 1);
    const bool isBefore = at + 1 < phrases.size() && phrases[at + 1].isJoined && isFolder(at + 1);
    return phrases[at].sense == unknown && (isAfter || isBefore);
}

/// The kind or the named file that begins there; "isos" are an ending and the files. Empty if none does.
PhraseRange thingAt(const std::vector<Phrase>& phrases, std::size_t at)
{
    const auto isFiles = [&](std::size_t i) {
        return i < phrases.size() && !phrases[i].isJoined && phrases[i].subject != nullptr &&
               phrases[i].subject->isAnyFile;
    };
    if (phrases[at].sense == ending)
        return {at, isFiles(at + 1) ? at + 2 : at};
    const bool isThing =
        phrases[at].subject != nullptr || isNamedFile(phrases[at]) || isNameBesideFolder(phrases, at);
    return {at, isThing ? at + 1 : at};
}

/// The first run of such things with "and" between them: all kinds, or all named.
std::vector<PhraseRange> alikeIn(const std::vector<Phrase>& phrases)
{
    std::vector<PhraseRange> run;
    for (std::size_t i = 0; i < phrases.size();) {
        const PhraseRange thing = thingAt(phrases, i);
        const bool isThing = thing.to > thing.from;
        const bool goesOn = isThing && !run.empty() && phrases[i].isJoined &&
                            isNamedFile(phrases[i]) == isNamedFile(phrases[run.front().from]);
        if (!goesOn && run.size() > 1)
            return run;
        if (!goesOn)
            run.clear();
        if (isThing)
            run.push_back(thing);
        i = isThing ? thing.to : i + 1;
    }
    return run;
}

/// Whether all that one message says is said by another.
bool isSaidIn(const Message& all, const Message& part)
{
    const auto holds = [&](const Place& place) {
        const auto* const several = std::get_if<Several>(&place.value);
        return several != nullptr && std::ranges::any_of(several->messages, [&](const Message& each) {
                   return isSaidIn(each, part);
               });
    };
    return all == part || (all.text.empty() && std::ranges::any_of(all.places, holds));
}

} // namespace

std::vector<Question> partsOf(const Question& question)
{
    // "When was my last clean-up and how much did it free" is about one thing.
    constexpr SenseSet kOfCleanUp{last,   cleanUp, when,    howMuch, howMany,
                                  howBig, what,    general, space,   remove};
    if (question.senses.has(last) && question.senses.has(cleanUp) && question.senses.isWithin(kOfCleanUp))
        return {question};
    std::vector<Question> parts;
    std::size_t from = 0;
    for (std::size_t i = 1; i < question.phrases.size(); ++i) {
        // "Free space, and when is it full?"
        const SenseSet senses = part(question, from, i).senses;
        const bool isBeforeComplete = senses.meets(kQuestionWords) ||
                                      (senses.meets({free, used, total}) && senses.isWithin(kOfTheDisk)) ||
                                      (senses.has(full) && senses.isWithin({full, disk, space, general}) &&
                                       question.phrases[i].sense == howMuch);
        // "Largest photos? Oldest documents?"
        constexpr SenseSet kSorts{biggest, smallest, oldest, newest};
        const Sense sense = question.phrases[i].sense;
        const bool isOfSomething =
            std::any_of(std::next(question.phrases.begin(), static_cast<std::ptrdiff_t>(i)),
                        question.phrases.end(), [](const Phrase& each) { return each.subject != nullptr; });
        const bool isOtherList =
            kSorts.has(sense) && senses.meets(kSorts) && senses.has(subject) && isOfSomething;
        if (question.phrases[i].isJoined &&
            (isOtherList || (kQuestionWords.has(sense) && isBeforeComplete))) {
            parts.push_back(part(question, from, i));
            from = i;
        }
    }
    parts.push_back(part(question, from, question.phrases.size()));
    return parts;
}

std::optional<Question> undressed(const Question& question)
{
    constexpr SenseSet kDress{what, why,  can,     howMuch, general,  advise,  biggest, most,   takes,
                              grow, self, happens, full,    makeRoom, cleanUp, trust,   newest, handled};
    const std::vector<Phrase>& phrases = question.phrases;
    std::vector<std::size_t> starts{0};
    for (std::size_t i = 1; i < phrases.size(); ++i) {
        if (phrases[i].isJoined)
            starts.push_back(i);
    }
    const auto isDress = [&](std::size_t from, std::size_t to) {
        return part(question, from, to).senses.isWithin(kDress);
    };
    std::size_t first = 0;
    std::size_t last = starts.size();
    const auto startOf = [&](std::size_t clause) {
        return clause < starts.size() ? starts[clause] : phrases.size();
    };
    while (last > first + 1 && isDress(startOf(last - 1), startOf(last)))
        --last;
    while (last > first + 1 && isDress(startOf(first), startOf(first + 1)))
        ++first;
    if (last - first == starts.size())
        return std::nullopt;
    return part(question, startOf(first), startOf(last));
}

std::vector<Question> distributed(const Question& question)
{
    // "How much would I gain without the isos and the trash", "how much do pip and npm free together": one
    // sum.
    constexpr SenseSet kGone{remove, makeRoom};
    if (question.senses.meets({howMuch, howBig}) && question.senses.meets(kGone))
        return {question};
    // "Would clearing the npm and pip caches get me 1 GB"
    if (question.senses.meets({remove, makeRoom, cleanUp}) && question.senses.has(size) &&
        !question.senses.meets({above, below}))
        return {question};
    const auto isFinding = [](const Phrase& phrase) {
        return phrase.subject == nullptr || !phrase.subject->kinds.empty();
    };
    if (question.senses.meets({howMuch, howBig}) && question.senses.meets({free, makeRoom, remove}) &&
        std::ranges::all_of(question.phrases, isFinding))
        return {question};
    const std::vector<PhraseRange> alike = alikeIn(question.phrases);
    if (alike.size() < 2)
        return {question};
    // "Mail, downloads and videos": what the first is, is not known.
    const std::size_t first = alike.front().from;
    if (first > 0 && question.phrases[first].isJoined && question.phrases[first - 1].sense == general)
        return {};
    std::vector<Question> each;
    for (const PhraseRange& kept : alike) {
        std::vector<Phrase> phrases;
        for (std::size_t i = 0; i < question.phrases.size(); ++i) {
            const bool isAmongThem = i >= alike.front().from && i < alike.back().to;
            if (!isAmongThem || (i >= kept.from && i < kept.to))
                phrases.push_back(question.phrases[i]);
        }
        each.push_back(withPhrases(question, std::move(phrases)));
    }
    return each;
}

std::optional<Question> backOfNamed(const std::vector<Question>& parts)
{
    constexpr SenseSet kOfReturn{undo, what, can, general, when};
    if (parts.size() != 2 || !parts.back().senses.has(undo) || !parts.back().senses.isWithin(kOfReturn) ||
        !parts.front().senses.meets({unknown, quoted}) ||
        parts.front().senses.meets({remove, safe, keep, makeRoom, howMuch}))
        return std::nullopt;
    std::vector<Phrase> phrases = parts.back().phrases;
    std::ranges::copy_if(parts.front().phrases, std::back_inserter(phrases), [](const Phrase& phrase) {
        return phrase.sense == unknown || phrase.sense == quoted;
    });
    Question one = withPhrases(parts.back(), std::move(phrases));
    one.isBackward = false;
    return one;
}

Answer together(std::vector<Answer> answers)
{
    if (answers.size() == 1)
        return std::move(answers.front());
    Answer all;
    std::vector<Message> texts;
    for (Answer& answer : answers) {
        // "What is it, and do I need it?" is answered at once.
        std::erase_if(texts, [&](const Message& each) { return isSaidIn(answer.text, each); });
        if (std::ranges::none_of(texts, [&](const Message& each) { return isSaidIn(each, answer.text); }))
            texts.push_back(std::move(answer.text));
        for (std::string& id : answer.findingIDs) {
            if (std::ranges::find(all.findingIDs, id) == all.findingIDs.end())
                all.findingIDs.push_back(std::move(id));
        }
        std::ranges::move(answer.paths, std::back_inserter(all.paths));
    }
    all.text = AskText::lines(std::move(texts));
    return all;
}

} // namespace orlen::AskReader
