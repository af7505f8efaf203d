#include "insight/reader/AskReader.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/FollowUps.h"
#include "insight/reader/ListedItems.h"
#include "insight/reader/NameSpans.h"
#include "insight/reader/Names.h"
#include "insight/reader/Pointing.h"
#include "insight/reader/QuestionParts.h"
#include "insight/reader/Rules.h"
#include "insight/reader/SpokenPlace.h"
#include "insight/reader/WhatIfReplies.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using enum Sense;

/// Longer texts are no questions, and not worth the time.
constexpr std::size_t kLongestQuestion = 500;
/// Nobody asks more at once.
constexpr std::size_t kMostParts = 4;

bool isSuggested(std::string_view text)
{
    const std::string plain = AskText::plainWords(text);
    return std::ranges::any_of(AskEngine::kSuggestions,
                               [&](const Text& each) { return AskText::plainWords(each.base()) == plain; });
}

/// How far a reading is from knowing all words.
std::size_t doubt(const Question& question)
{
    return 2 * question.count(unknown) + question.corrected;
}

/// Of two readings that know all words, the one that knows longer phrases understands more.
bool isSurer(const Question& a, const Question& b)
{
    return std::pair(doubt(a), a.pieces) < std::pair(doubt(b), b.pieces);
}

/// The question in the language that knows most of its words; the one of the conversation first, then
/// English.
Question bestReading(const std::vector<Word>& words, TimePoint now, const IsName& isName,
                     const Conversation& before)
{
    const IsName nothingIs = [](std::string_view) { return false; };
    std::vector<Question> readings;
    const Lexicon* const spoken = before.last.question.lexicon;
    if (spoken != nullptr)
        readings.push_back(read(words, *spoken, now, nothingIs, Typos::asTheyStand));
    for (const Lexicon& lexicon : Lexicon::all()) {
        if (&lexicon != spoken)
            readings.push_back(read(words, lexicon, now, nothingIs, Typos::asTheyStand));
    }
    const auto surest = std::ranges::min_element(readings, isSurer);
    const std::size_t least = surest->count(unknown);
    if (least == 0)
        return *surest;
    std::optional<Question> best;
    for (const Question& reading : readings) {
        if (reading.count(unknown) > least + 1)
            continue;
        Question corrected = read(words, *reading.lexicon, now, isName, Typos::corrected);
        if (!best || isSurer(corrected, *best))
            best = std::move(corrected);
    }
    return *std::move(best);
}

/// "List the big files", where no finding lists any: the biggest there are.
Question withBiggestFiles(const Question& question, const AskContext& context)
{
    const Subject* const kind = question.subject();
    constexpr SenseSet kListing{what, subject, general, inside, folder, disk};
    if (kind == nullptr || kind->id != SubjectID::largeFiles || !question.senses.isWithin(kListing) ||
        std::ranges::any_of(context.findings,
                            [&](const Finding& each) { return isListedAs(*kind, each.kind); }))
        return question;
    std::vector<Phrase> phrases = question.phrases;
    const auto named = std::ranges::find(phrases, subject, &Phrase::sense);
    named->subject = &subjectFor(SubjectID::files);
    phrases.insert(named, Phrase{biggest, {}, nullptr, 0, {}});
    return withPhrases(question, std::move(phrases));
}

std::optional<Reply> alone(const Question& asked, const AskContext& context)
{
    const Question question = withBiggestFiles(asked, context);
    std::vector<Answer> answers;
    const std::vector<Question> each = distributed(question);
    if (each.empty() || each.size() > kMostParts)
        return std::nullopt;
    for (const Question& one : each) {
        std::optional<Answer> answer = replyByRule(one, context);
        if (!answer)
            return std::nullopt;
        answers.push_back(*std::move(answer));
    }
    // "The total size of videos and music": theirs together, too.
    constexpr SenseSet kOfSize{howBig, howMuch, howMany};
    constexpr SenseSet kPlain{howBig, howMuch, howMany, subject, ending, what,
                              total,  takes,   used,    space,   disk};
    if (each.size() > 1 && question.senses.meets(kOfSize) && question.senses.isWithin(kPlain)) {
        if (auto sum = sumOfThem(question, context))
            answers.push_back(*std::move(sum));
    }
    return Reply{together(std::move(answers)), question};
}

/// "How much is that in total", "how big are they all together": the size of what was spoken of.
std::optional<Question> sizeInAll(const Question& question)
{
    constexpr SenseSet kSizes{howBig, howMuch, howMany, takes, total, what, general};
    if (!question.senses.has(total) || !question.senses.isWithin(kSizes) ||
        !question.senses.meets({howBig, howMuch}))
        return std::nullopt;
    std::vector<Phrase> phrases = question.phrases;
    std::erase_if(phrases, [](const Phrase& phrase) { return phrase.sense == total; });
    Question ofThem = withPhrases(question, std::move(phrases));
    ofThem.isBackward = true;
    return ofThem;
}

std::optional<Reply> reply(const Question& question, const AskContext& context, const Conversation& before)
{
    if (const std::optional<Question> ofThem = before.empty() ? std::nullopt : sizeInAll(question)) {
        auto found = followUp(*ofThem, context, before);
        if (found || question.isBackward)
            return found;
    }
    if (const std::optional<Question> placed = inPlaceOfLast(question, context, before.last)) {
        if (auto found = alone(*placed, context))
            return found;
    }
    if (const std::optional<Question> part = partOfLast(question, before.last))
        return alone(*part, context);
    if (asksForMore(question) && !before.list.paths.empty())
        return moreOfThem(question, context, before.list);
    if (pointsBack(question)) {
        if (auto found = followUp(question, context, before))
            return found;
    }
    if (isOnlyOfThem(question))
        return std::nullopt;
    if (auto found = alone(question, context))
        return found;
    return pointsBack(question) ? std::nullopt : followUp(question, context, before);
}

Turn turnOf(const Reply& reply, const Conversation& before)
{
    return {reply.answer,
            before.with({reply.question, reply.answer.findingIDs, reply.answer.paths, reply.answer.isCut})};
}

/// "… and how much would I gain": of what was spoken of before it.
bool leavesOutWhat(const Question& question)
{
    constexpr SenseSet kOfIt{howMuch, howBig, howMany, makeRoom, free, space,
                             takes,   can,    remove,  safe,     keep, general};
    return question.senses.isWithin(kOfIt) &&
           question.senses.meets({makeRoom, howBig, remove, safe, keep, takes});
}

/// "… and how many files does it have": of the place that was spoken of before it.
bool countsFiles(const Question& question)
{
    constexpr SenseSet kCounted{howMany, subject, folder, general};
    return question.senses.has(howMany) && question.senses.isWithin(kCounted) && question.hasNoKind();
}

/// "… and which is the biggest": of those that were spoken of before it.
bool asksWhichOfThem(const Question& question)
{
    constexpr SenseSet kSorts{biggest, smallest, oldest, newest};
    return question.senses.meets(kSorts) && question.senses.has(what) &&
           question.senses.isWithin(kSorts.with({what, general}));
}

/// All parts answered, each after the one before it; nothing if one is not.
std::optional<Turn> answered(const std::vector<Question>& parts, const AskContext& context,
                             const Conversation& before)
{
    Conversation conversation = before;
    std::vector<Answer> answers;
    for (Question one : parts) {
        one.isBackward = one.isBackward || (!answers.empty() && (leavesOutWhat(one) || countsFiles(one)));
        one.isContinued = one.isContinued || (!answers.empty() && asksWhichOfThem(one));
        const std::optional<Reply> found = reply(one, context, conversation);
        if (!found)
            return std::nullopt;
        conversation = turnOf(*found, conversation).next;
        answers.push_back(found->answer);
    }
    return Turn{together(std::move(answers)), std::move(conversation)};
}

std::optional<Turn> answered(const Question& question, const AskContext& context, const Conversation& before)
{
    std::vector<Question> parts = partsOf(question);
    const bool areSeveral = parts.size() > 1;
    // "I need room for 12 GB, what do you suggest" asks once.
    constexpr SenseSet kSuggesting{what, can, advise, general, remove, makeRoom};
    if (areSeveral && parts.back().senses.isWithin(kSuggesting) &&
        parts.front().senses.meets({makeRoom, remove}) &&
        (parts.back().senses.has(advise) || parts.front().senses.has(size)))
        parts.pop_back();
    if (const std::optional<Question> back = backOfNamed(parts)) {
        if (std::optional<Turn> found = answered(std::vector{*back}, context, before))
            return found;
    }
    if (areSeveral && parts.size() <= kMostParts) {
        if (std::optional<Turn> found = answered(parts, context, before))
            return found;
    }
    if (std::optional<Turn> found = answered(std::vector{question}, context, before))
        return found;
    const std::optional<Question> bare = undressed(question);
    return bare ? answered(std::vector{*bare}, context, before) : std::nullopt;
}

/// The matcher understands single English words: what is longer or says something else is not for it.
bool isForMatcher(const Question& question)
{
    constexpr std::size_t kFewPhrases = 1;
    constexpr std::size_t kFewWords = 4;
    return question.lexicon == Lexicon::all().data() && !question.senses.meets({unknown, quoted}) &&
           question.phrases.size() <= kFewPhrases && question.words <= kFewWords && !pointsBack(question);
}

/// A single word, which the matcher knows as a topic.
bool isTopic(const Question& question)
{
    return question.words == 1 && question.lexicon == Lexicon::all().data() &&
           question.subject() != nullptr && !question.subject()->isProgram;
}

/// Asks what is not known, or says what is.
Answer notUnderstood(const Question& question)
{
    return {question.pieces > question.count(unknown) ? InsightTexts::kDontKnow : InsightTexts::kHelp, {}};
}

/// Remembers what it was told: a question is read several times, and each look goes through the whole scan.
class KnownNames {
public:
    explicit KnownNames(const AskContext& context) : m_context(context) {}

    bool operator()(std::string_view word)
    {
        // Past this, the text is no question.
        constexpr std::size_t kMostLooks = 12;
        const auto known = m_names.find(word);
        if (known != m_names.end())
            return known->second;
        const bool isOne = m_names.size() >= kMostLooks || isWordOfName(m_context, word);
        return m_names.emplace(word, isOne).first->second;
    }

private:
    const AskContext& m_context;
    std::map<std::string, bool, std::less<>> m_names;
};

bool isReadable(std::string_view text)
{
    return text.size() <= kLongestQuestion && PathText::isValidUtf8(text);
}

/// "I'm new to Linux. What is the trash?": the last sentence, if what stands before it names nothing that the
/// question could be about. Empty if there is only one sentence, or it says more than that.
std::string_view withoutLead(std::string_view text, const AskContext& context, const IsName& isName)
{
    constexpr std::string_view kEnds = ".!?;";
    std::size_t start = 0;
    for (std::size_t i = 0; i + 2 < text.size(); ++i) {
        if (kEnds.find(text[i]) != std::string_view::npos && text[i + 1] == ' ' &&
            text.find_first_not_of(" .!?;", i) != std::string_view::npos)
            start = i + 1;
    }
    const std::vector<Word> words = withNames(text.substr(0, start), context);
    if (words.empty())
        return {};
    const Question lead = bestReading(words, context.now, isName, {});
    constexpr SenseSet kOfSomething{subject, quoted, ending, folder, size, period, remove, uninstall, undo};
    const auto isNamed = [&](const Phrase& phrase) {
        return phrase.sense == unknown &&
               (!PathText::extension(phrase.text).empty() || isName(plainLetters(phrase.text)));
    };
    return lead.senses.meets(kOfSomething) || std::ranges::any_of(lead.phrases, isNamed) ? std::string_view()
                                                                                         : text.substr(start);
}

} // namespace

std::optional<Turn> turn(std::string_view text, const AskContext& context, const Conversation& before)
{
    if (text.size() > kLongestQuestion)
        return Turn{{InsightTexts::kHelp, {}}, before};
    if (!isReadable(text) || isSuggested(text))
        return std::nullopt;
    const std::vector<Word> words = withNames(text, context);
    if (words.empty())
        return std::nullopt;
    KnownNames names(context);
    const Question question = bestReading(
        words, context.now, [&](std::string_view word) { return names(word); }, before);
    if (before.empty() && isTopic(question) &&
        AskEngine::fallback(text, context).text != Message{InsightTexts::kHelp})
        return std::nullopt;
    std::optional<Turn> found = answered(question, context, before);
    if (!found && question.corrected > 0) {
        // What looked like a typing error may have been meant as it stands.
        const Question typed = read(
            words, *question.lexicon, context.now, [](std::string_view) { return true; }, Typos::asTheyStand);
        found = answered(typed, context, before);
    }
    if (!found && !question.isBackward) {
        const std::string_view last =
            withoutLead(text, context, [&](std::string_view word) { return names(word); });
        if (!last.empty())
            return turn(last, context, before);
    }
    if (!found && !isForMatcher(question))
        return Turn{notUnderstood(question), before};
    return found;
}

bool needsPrograms(std::string_view text, const AskContext& context)
{
    if (!isReadable(text) || isSuggested(text))
        return false;
    KnownNames names(context);
    const Question question = bestReading(withNames(text, context), context.now,
                                          [&](std::string_view word) { return names(word); }, {});
    return question.senses.has(uninstall) || std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
               const bool mayBeName = phrase.sense == unknown || phrase.sense == quoted;
               return phrase.subject != nullptr ? phrase.subject->isProgram
                                                : mayBeName && PathText::extension(phrase.text).empty();
           });
}

bool needsHome(std::string_view text, const AskContext& context)
{
    if (!isReadable(text) || isSuggested(text))
        return false;
    KnownNames names(context);
    const Question question = bestReading(withNames(text, context), context.now,
                                          [&](std::string_view word) { return names(word); }, {});
    constexpr SenseSet kOfFiles{unknown, quoted, folder,   hidden, ending,   biggest, most,  oldest,
                                newest,  period, smallest, takes,  unopened, subject, except};
    return question.senses.meets(kOfFiles);
}

Conversation conversationAfter(std::string_view text, const AskContext& context, const Answer& answer,
                               const Conversation& before)
{
    if (!isReadable(text))
        return {};
    const Question question =
        bestReading(withNames(text, context), context.now, [](std::string_view) { return false; }, {});
    return before.with({question, answer.findingIDs, answer.paths, answer.isCut});
}

} // namespace orlen::AskReader
