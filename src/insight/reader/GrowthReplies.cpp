#include "insight/reader/GrowthReplies.h"

#include "insight/AskText.h"
#include "insight/Growth.h"
#include "insight/InsightTexts.h"
#include "insight/ReadingPair.h"
#include "insight/reader/Names.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// Two scans, and whether the later one is over for the person who asks.
struct Compared {
    ReadingPair pair;
    bool isOver = false;
    bool isSinceFirst = false; ///< asked for longer ago than anything is known

    /// The dates as a message names them.
    [[nodiscard]] std::vector<Place> dates() const
    {
        if (isOver)
            return {{"first", ReadingPair::start(pair.before.date, pair.after.date)},
                    {"last", Moment{pair.after.date}}};
        if (isSinceFirst)
            return {{"date", Moment{pair.before.date}}};
        return {{"date", ReadingPair::start(pair.before.date, pair.after.date)}};
    }
};

/// The last scan and one at least a day older, if there is any.
std::optional<ReadingPair> lately(const std::vector<FolderReading>& readings)
{
    return readings.empty() ? std::nullopt
                            : ReadingPair::over(readings, readings.back().date - std::chrono::days(1));
}

/// "Since last week", with the first scan minutes ago: what little time lies between the scans says nothing
/// of it.
bool tellsTooLittle(const ReadingPair& pair, const Period& period)
{
    constexpr std::chrono::days kLeast{1};
    constexpr int kLeastShare = 5;
    const auto covered = pair.after.date - pair.before.date;
    const bool isReached = pair.before.date < period.to;
    return pair.before.date > period.from &&
           (covered < kLeast || (!isReached && kLeastShare * covered < pair.after.date - period.from));
}

std::optional<Compared> comparedIn(const Question& question, const AskContext& context)
{
    const Phrase* const phrase = question.first(Sense::period);
    const auto compared = [phrase](const std::optional<ReadingPair>& pair, bool isOver) {
        if (phrase != nullptr && pair && tellsTooLittle(*pair, *phrase->period))
            return std::optional<Compared>();
        const bool isSinceFirst = phrase != nullptr && pair && phrase->period->from < pair->before.date;
        return pair ? std::optional(Compared{*pair, isOver, isSinceFirst}) : std::nullopt;
    };
    if (phrase == nullptr)
        return compared(lately(context.folders), false);
    const Period& period = *phrase->period;
    if (question.senses.meets({Sense::since, Sense::after}))
        return compared(ReadingPair::over(context.folders, period.from), false);
    if (auto pair = ReadingPair::over(context.folders, period.from, period.to))
        return compared(pair, period.to < context.now);
    // "In the last month", of which no scan was: since then.
    const bool isJustOver = phrase->text.find_first_of("0123456789") == std::string::npos &&
                            context.now - period.from <= 2 * (period.to - period.from);
    return isJustOver ? compared(ReadingPair::over(context.folders, period.from), false) : std::nullopt;
}

std::string cacheFolder()
{
    const std::vector<std::string> folders = Places::current().expand("{CACHE}");
    return folders.empty() ? std::string() : folders.front();
}

/// The folder in which the sizes of the subject's files show; empty if there is none.
std::string grownFolderOf(const Phrase& phrase)
{
    const Subject& subject = *phrase.subject;
    const bool isSteam = PathText::asciiLower(phrase.text).find("steam") != std::string::npos;
    if (subject.id == SubjectID::caches)
        return cacheFolder();
    const std::vector<std::string> steam =
        isSteam ? Places::current().expand("{DATA}/Steam") : std::vector<std::string>();
    return steam.empty() ? folderOf(subject) : steam.front();
}

/// The folder that the question is about; empty if it is about all. Nothing if it is about something else.
std::optional<std::string> folderIn(const Question& question, const AskContext& context)
{
    std::string folder;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.subject != nullptr && (phrase.subject->isAnyFile || phrase.subject->id == SubjectID::home))
            continue;
        std::string named;
        if (phrase.subject != nullptr) {
            named = grownFolderOf(phrase);
        } else if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted) {
            named = folderNamed(context, phrase.text);
        } else {
            continue;
        }
        if (named.empty() || !folder.empty())
            return std::nullopt;
        folder = std::move(named);
    }
    return folder;
}

std::optional<Answer> growthOf(const std::string& folder, const Compared& compared)
{
    const std::vector<FolderSize>& after = compared.pair.after.folders;
    const auto found = std::ranges::find(after, folder, &FolderSize::path);
    const auto size = found == after.end() ? std::nullopt : compared.pair.sizeBefore(*found);
    if (!size)
        return std::nullopt;
    std::vector<Place> places = compared.dates();
    places.push_back({"folder", tilde(folder)});
    if (found->bytes <= *size)
        return Answer{
            Message{compared.isOver ? InsightTexts::kFolderNotGrownBetween : InsightTexts::kFolderNotGrown,
                    std::move(places)},
            {}};
    places.push_back({"size", Bytes{found->bytes - *size}});
    places.push_back({"now", Bytes{found->bytes}});
    return Answer{Message{compared.isOver ? InsightTexts::kFolderGrewBetween : InsightTexts::kFolderGrew,
                          std::move(places)},
                  {}};
}

/// What grew between two scans, in a folder if one is asked for.
std::optional<Answer> grownIn(const std::string& folder, const Compared& compared, const Question& question)
{
    constexpr std::size_t kNamed = 5;
    if (!folder.empty() && !question.senses.has(Sense::inside))
        return growthOf(folder, compared);
    std::vector<Growth::Folder> grown = Growth::between(compared.pair).folders;
    std::erase_if(grown, [&](const Growth::Folder& each) {
        return !folder.empty() && !PathText::isAtOrBelow(each.path, folder);
    });
    if (grown.empty() && !folder.empty())
        return growthOf(folder, compared);
    if (grown.empty())
        return Answer{
            Message{compared.isOver ? InsightTexts::kNothingGrewBetween : InsightTexts::kNothingGrew,
                    compared.dates()},
            {}};
    std::vector<Message> lines{
        {compared.isOver ? InsightTexts::kGrewBetween : InsightTexts::kGrewSince, compared.dates()}};
    const Phrase* const number = question.first(Sense::number);
    const std::size_t most = number == nullptr ? kNamed : static_cast<std::size_t>(number->amount);
    for (std::size_t i = 0; i < std::min(grown.size(), most); ++i)
        lines.push_back({InsightTexts::kGrewFolder,
                         {{"path", tilde(grown[i].path)},
                          {"size", Bytes{grown[i].bytes()}},
                          {"now", Bytes{grown[i].now}}}});
    return Answer{AskText::lines(std::move(lines)), {}};
}

/// "What grew this week", with the first scan from today: that there is none so old, and what grew since.
std::optional<Answer> sinceFirst(const std::string& folder, const Question& question,
                                 const std::vector<FolderReading>& readings)
{
    const Phrase* const period = question.first(Sense::period);
    if (readings.size() < 2 || period == nullptr || period->period->from >= readings.front().date)
        return Answer{InsightTexts::kNothingToCompare, {}};
    const TimePoint first = readings.front().date;
    const Message none{InsightTexts::kNoScanBefore,
                       {{"date", ReadingPair::start(first, readings.back().date)}}};
    const auto pair = ReadingPair::over(readings, first);
    const bool tellsMore = pair && pair->after.date - pair->before.date >= std::chrono::days(1);
    const auto since = tellsMore ? grownIn(folder, {*pair, false, true}, question) : std::nullopt;
    return Answer{since ? AskText::lines({none, since->text}) : none, {}};
}

} // namespace

std::optional<Answer> whatGrew(const Question& question, const AskContext& context)
{
    const Phrase* const period = question.first(Sense::period);
    const auto folder = folderIn(question, context);
    if ((period != nullptr && period->period->from > context.now) || !folder)
        return std::nullopt;
    const auto compared = comparedIn(question, context);
    return compared ? grownIn(*folder, *compared, question) : sinceFirst(*folder, question, context.folders);
}

} // namespace orlen::AskReader
