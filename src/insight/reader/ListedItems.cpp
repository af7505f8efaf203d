#include "insight/reader/ListedItems.h"

#include "insight/AskText.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/NameReplies.h"
#include "insight/reader/Names.h"
#include "insight/reader/PathHits.h"
#include "insight/reader/Rules.h"
#include "insight/reader/SpokenPlace.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/UnusedApps.h"
#include "insight/reader/WhatIfReplies.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using enum Sense;

constexpr SenseSet kOrders{biggest, smallest, oldest, newest, most};

std::optional<Measured> measuredAt(const HomeFiles& home, const std::string& path)
{
    if (const auto folder = home.folderAt(path)) {
        Measured one{path, home.folder(*folder).bytes, {}};
        one.kind = Measured::Kind::folder;
        return one;
    }
    const auto parent = home.folderAt(PathText::parent(path));
    if (!parent)
        return std::nullopt;
    const HomeFiles::Range files = home.filesIn(*parent);
    for (HomeFiles::Number each = files.first; each < files.last; ++each) {
        if (home.fileName(each) != PathText::lastComponent(path))
            continue;
        Measured one{path, home.file(each).bytes, {}};
        one.kind = Measured::Kind::file;
        one.changed = home.file(each).changed;
        return one;
    }
    return std::nullopt;
}

/// Each by itself: of some, there is no rating to list.
std::optional<Answer> oneByOne(const Question& question, std::span<const std::string> paths,
                               const AskContext& context)
{
    Answer all;
    std::vector<Message> lines;
    for (const std::string& path : paths) {
        std::optional<Reply> one = onPath(question, context, path);
        if (!one)
            return std::nullopt;
        lines.push_back(std::move(one->answer.text));
        std::ranges::move(one->answer.findingIDs, std::back_inserter(all.findingIDs));
        all.paths.push_back(path);
    }
    all.text = AskText::lines(std::move(lines));
    return all;
}

/// What they take together, each with its rating; nothing if one of them is gone.
std::optional<Answer> together(const Question& question, std::span<const std::string> paths,
                               const AskContext& context)
{
    Found all;
    std::int64_t bytes = 0;
    const std::vector<Hit> hits = hitsAround(paths, context);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (hits[i].finding != nullptr && hits[i].entry->path == paths[i]) {
            all.hits.push_back(hits[i]);
            bytes = checkedAdd(bytes, hits[i].entry->size);
            continue;
        }
        std::optional<Measured> one =
            context.home == nullptr ? std::nullopt : measuredAt(*context.home, paths[i]);
        if (!one)
            return std::nullopt;
        bytes = checkedAdd(bytes, one->bytes);
        all.measured.push_back(*std::move(one));
    }
    const bool isOfRatings =
        question.senses.meets({remove, safe, keep}) && !question.senses.meets({howMuch, howBig});
    if (isOfRatings && !all.measured.empty())
        return oneByOne(question, paths, context);
    return listedBelow({InsightTexts::kTogether, {{"size", Bytes{bytes}}}}, context, all);
}

/// Where what was asked about last stands in the list, from 1; 0 if it is not in it.
std::size_t placeOfLast(const Conversation& before, const std::vector<std::string>& list)
{
    const auto found =
        before.last.paths.size() == 1 ? std::ranges::find(list, before.last.paths.front()) : list.end();
    return found == list.end() ? 0 : static_cast<std::size_t>(found - list.begin()) + 1;
}

/// What the list was of, up to so many: an answer shows the first of them only.
std::vector<std::string> pathsOf(const Conversation::Said& list, const AskContext& context,
                                 std::int64_t count)
{
    std::vector<Phrase> phrases = list.question.phrases;
    std::erase_if(phrases, [](const Phrase& phrase) { return phrase.sense == number; });
    phrases.push_back({number, {}, nullptr, count, {}});
    const auto whole = replyByRule(withPhrases(list.question, std::move(phrases)), context);
    const bool goesOn = whole && whole->paths.size() >= list.paths.size() &&
                        std::equal(list.paths.begin(), list.paths.end(), whole->paths.begin());
    return goesOn ? whole->paths : list.paths;
}

/// What a list was of: without the order, the number, and what was asked of it.
std::vector<Phrase> conditionsOf(const Question& question)
{
    constexpr SenseSet kAsked{what,   can,    howMany, howMuch, howBig, number,   ordinal, general, takes,
                              remove, advise, safe,    review,  keep,   makeRoom, free,    space,   disk};
    std::vector<Phrase> phrases;
    std::ranges::copy_if(question.phrases, std::back_inserter(phrases), [&](const Phrase& phrase) {
        return !kAsked.has(phrase.sense) && !kOrders.has(phrase.sense);
    });
    return phrases;
}

/// The same of all that fits, which is more than was shown.
std::optional<Reply> onAllThatFit(const Question& question, const AskContext& context,
                                  const Conversation::Said& before)
{
    const SenseSet& senses = question.senses;
    const bool isOfRoom = senses.has(makeRoom) || senses.has(free) ||
                          (senses.meets({howMuch, howBig}) && senses.meets({remove, uninstall}));
    if (!isOfRoom && !senses.meets({remove, safe, review, keep}))
        return replyTo(before.question, replyByRule(before.question, context));
    // A rating stands before what it is of.
    std::vector<Phrase> phrases;
    const SenseSet kept =
        isOfRoom ? SenseSet{howMuch, howBig, remove, makeRoom, free} : SenseSet{remove, safe, review, keep};
    std::ranges::copy_if(question.phrases, std::back_inserter(phrases),
                         [&](const Phrase& phrase) { return kept.has(phrase.sense); });
    std::vector<Phrase> conditions = conditionsOf(before.question);
    if (conditions.empty())
        return std::nullopt;
    std::ranges::move(conditions, std::back_inserter(phrases));
    Question whole = withPhrases(question, std::move(phrases));
    // What they would free leaves the list as it is.
    if (isOfRoom)
        return replyTo(before.question, freedByThem(whole, context));
    std::optional<Answer> answer = listOfFiles(whole, context);
    return replyTo(std::move(whole), std::move(answer));
}

} // namespace

std::optional<Reply> replyTo(Question question, std::optional<Answer> answer)
{
    if (!answer)
        return std::nullopt;
    return Reply{*std::move(answer), std::move(question)};
}

const Finding* findingWith(const AskContext& context, const std::string& id)
{
    const auto found = std::ranges::find(context.findings, id, [](const Finding& each) { return each.id(); });
    return found == context.findings.end() ? nullptr : &*found;
}

std::optional<Reply> onPath(const Question& question, const AskContext& context, const std::string& path)
{
    const Phrase asked{what, {}, nullptr, 0, {}};
    const Phrase named{quoted, path, nullptr, 0, {}};
    // Of a game, its folder has the name; when a file was opened last is not told.
    if (const Phrase* const use = question.first(lastUse)) {
        Question about = withPhrases(
            question, {*use, {unknown, std::string(PathText::lastComponent(path)), nullptr, 0, {}}});
        std::optional<Answer> answer = lastUseOf(about, context);
        return replyTo(std::move(about), std::move(answer));
    }
    // "Why is it so big?"
    const bool isOfSize = question.senses.has(Sense::why) && question.senses.meets({biggest, takes, full});
    if (isOfSize && context.home != nullptr && context.home->folderAt(path)) {
        Question inIt =
            withPhrases(question, {asked, {takes, {}, nullptr, 0, {}}, {inside, {}, nullptr, 0, {}}, named});
        if (std::optional<Answer> answer = replyByRule(inIt, context))
            return Reply{*std::move(answer), std::move(inIt)};
    }
    Question about = withPhrases(question, {asked, named});
    std::optional<Answer> answer = aboutName(about, context);
    return replyTo(std::move(about), std::move(answer));
}

std::optional<Reply> onItem(const Question& question, const AskContext& context, const Conversation& before)
{
    constexpr std::int64_t kMost = 20;
    const bool isLast = question.senses.has(last);
    const Phrase* const asked = question.first(ordinal);
    const Conversation::Said& list = before.list;
    const bool areFiles = !list.paths.empty();
    std::size_t number = 0;
    std::vector<std::string> paths = list.paths;
    if (isLast) {
        number = areFiles ? paths.size() : list.findingIDs.size();
    } else if (asked != nullptr && asked->amount > 0) {
        number = static_cast<std::size_t>(asked->amount);
    } else if (asked != nullptr) {
        if (areFiles)
            paths = pathsOf(list, context, kMost);
        number = placeOfLast(before, paths) + 1;
    }
    if (number == 0 || number > static_cast<std::size_t>(kMost))
        return std::nullopt;
    if (!areFiles) {
        const Finding* const finding =
            number > list.findingIDs.size() ? nullptr : findingWith(context, list.findingIDs[number - 1]);
        return finding == nullptr ? std::nullopt : replyTo(list.question, aboutFinding(*finding));
    }
    if (number > paths.size())
        paths = pathsOf(list, context, static_cast<std::int64_t>(number));
    return number > paths.size() ? std::nullopt : onPath(question, context, paths[number - 1]);
}

std::optional<Reply> onFew(const Question& question, const AskContext& context, const Conversation& before)
{
    const Phrase* const asked = question.first(number);
    const std::vector<std::string>& paths = before.list.paths;
    const Phrase* const from = question.first(ordinal);
    if (asked == nullptr || asked->amount < 1 || (from != nullptr && from->amount != 1) ||
        static_cast<std::size_t>(asked->amount) > paths.size())
        return std::nullopt;
    const auto count = static_cast<std::size_t>(asked->amount);
    if (count == 1)
        return onPath(question, context, question.senses.has(last) ? paths.back() : paths.front());
    const std::span<const std::string> all(paths);
    return replyTo(
        before.list.question,
        together(question, question.senses.has(last) ? all.last(count) : all.first(count), context));
}

std::optional<Reply> whatFillsIt(const Question& question, const AskContext& context,
                                 const Conversation::Said& before)
{
    if (before.paths.size() > 1)
        return replyTo(before.question, replyByRule(before.question, context));
    const std::optional<Phrase> place = placeSaid(context, before);
    if (!place)
        return std::nullopt;
    Question inIt = withPhrases(
        question,
        {{what, {}, nullptr, 0, {}}, {takes, {}, nullptr, 0, {}}, {inside, {}, nullptr, 0, {}}, *place});
    std::optional<Answer> answer = replyByRule(inIt, context);
    return replyTo(std::move(inIt), std::move(answer));
}

std::optional<Reply> moreOfThem(const Question& question, const AskContext& context,
                                const Conversation::Said& list)
{
    constexpr std::int64_t kMost = 20;
    constexpr std::int64_t kPage = 5;
    if (!list.isCut || list.paths.empty())
        return std::nullopt;
    const Phrase* const asked = question.first(number);
    const bool areAll = asked == nullptr && !question.senses.has(most) &&
                        plainLetters(question.phrases.back().text) != "more";
    const std::int64_t count =
        areAll ? kMost : std::min(kMost, std::ssize(list.paths) + (asked == nullptr ? kPage : asked->amount));
    std::vector<Phrase> phrases = list.question.phrases;
    std::erase_if(phrases, [](const Phrase& phrase) { return phrase.sense == number; });
    phrases.push_back({number, {}, nullptr, count, {}});
    Question longer = withPhrases(list.question, std::move(phrases));
    std::optional<Answer> answer = replyByRule(longer, context);
    if (!answer || answer->paths.size() <= list.paths.size())
        return std::nullopt;
    return Reply{*std::move(answer), std::move(longer)};
}

std::optional<Reply> onThem(const Question& question, const AskContext& context,
                            const Conversation::Said& before)
{
    constexpr SenseSet kOfAll{what, howBig, howMuch, howMany, can,      remove,    safe,     keep,  review,
                              free, space,  takes,   general, makeRoom, uninstall, negation, advise};
    if (!question.senses.isWithin(kOfAll))
        return std::nullopt;
    const bool isOfRemoval = question.senses.meets({remove, safe, review, keep, makeRoom, free});
    if (before.paths.empty() || ((before.isCut || isOfRemoval) && !before.question.senses.has(number))) {
        if (auto whole = onAllThatFit(question, context, before))
            return whole;
    }
    return before.paths.empty() ? std::nullopt
                                : replyTo(before.question, together(question, before.paths, context));
}

} // namespace orlen::AskReader
