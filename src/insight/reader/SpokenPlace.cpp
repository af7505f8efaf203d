#include "insight/reader/SpokenPlace.h"

#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using enum Sense;

constexpr SenseSet kNamedThings{subject, unknown, quoted};

bool isPlace(const Phrase& phrase)
{
    return phrase.subject != nullptr && !phrase.subject->folder.empty();
}

} // namespace

std::optional<Phrase> placeSaid(const AskContext& context, const Conversation::Said& before)
{
    const std::vector<Phrase>& said = before.question.phrases;
    for (std::size_t i = 0; i + 1 < said.size(); ++i) {
        if (said[i].sense == inside && kNamedThings.has(said[i + 1].sense))
            return said[i + 1];
    }
    if (before.paths.size() == 1 && context.home != nullptr && context.home->folderAt(before.paths.front()))
        return Phrase{quoted, before.paths.front(), nullptr, 0, {}};
    const auto folder = std::ranges::find_if(said, isPlace);
    return folder == said.end() ? std::nullopt : std::optional(*folder);
}

std::optional<Question> partOfLast(const Question& question, const Conversation::Said& before)
{
    constexpr SenseSet kOfPart{subject, what, general, howBig, howMuch, can,
                               remove,  safe, takes,   keep,   space};
    const Subject* const part = question.subject();
    if (part == nullptr || part->id != SubjectID::caches || question.count(subject) > 1 ||
        (!question.isBackward && !question.isContinued) || !question.senses.isWithin(kOfPart))
        return std::nullopt;
    std::vector<Phrase> phrases = question.phrases;
    std::ranges::copy_if(before.question.phrases, std::back_inserter(phrases), [](const Phrase& phrase) {
        return phrase.sense == unknown && PathText::extension(phrase.text).empty();
    });
    if (phrases.size() == question.phrases.size() && question.isBackward && before.paths.size() == 1)
        phrases.push_back(
            {unknown, std::string(PathText::lastComponent(before.paths.front())), nullptr, 0, {}});
    if (phrases.size() == question.phrases.size())
        return std::nullopt;
    Question whole = withPhrases(question, std::move(phrases));
    whole.isBackward = false;
    whole.isContinued = false;
    return whole;
}

std::optional<Question> inPlaceOfLast(const Question& question, const AskContext& context,
                                      const Conversation::Said& before)
{
    constexpr SenseSet kOfContents{howMany, howMuch, howBig,  what,   subject, inside,   folder, general,
                                   hidden,  can,     number,  size,   above,   below,    period, takes,
                                   most,    ending,  biggest, oldest, newest,  smallest, space};
    constexpr SenseSet kCounting{howMany, subject, folder, inside, what, general, hidden, ending};
    const bool endsOpen =
        question.isTherein || (!question.phrases.empty() && question.phrases.back().sense == inside);
    const bool isCount =
        question.isBackward && question.senses.has(howMany) && question.senses.isWithin(kCounting);
    const bool isOfOther = std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->extensions.empty() && !phrase.subject->isAnyFile;
    });
    if (!question.senses.isWithin(kOfContents) || isOfOther || (!endsOpen && !isCount))
        return std::nullopt;
    const std::optional<Phrase> place = placeSaid(context, before);
    if (!place)
        return std::nullopt;
    std::vector<Phrase> phrases = question.phrases;
    if (!phrases.empty() && phrases.back().sense == inside)
        phrases.pop_back();
    if (std::ranges::find(phrases, inside, &Phrase::sense) != phrases.end())
        return std::nullopt;
    const SenseSet said = withPhrases(question, phrases).senses;
    if (!said.meets({subject, folder, ending}))
        phrases.push_back({subject, {}, &subjectFor(SubjectID::files), 0, {}});
    phrases.push_back({inside, {}, nullptr, 0, {}});
    phrases.push_back(*place);
    Question placed = withPhrases(question, std::move(phrases));
    placed.isBackward = false;
    placed.isContinued = false;
    placed.isTherein = false;
    return placed;
}

} // namespace orlen::AskReader
