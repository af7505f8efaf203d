#include "insight/reader/RoomReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Proposal.h"
#include "insight/reader/SpaceReplies.h"
#include "insight/reader/SubjectReplies.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kNamed = 6;

/// What a person has no other copy of, perhaps: proposed only where the rest is too little.
bool isPersonal(const Hit& hit)
{
    using enum FindingKind;
    constexpr FindingKind kPersonal[] = {oldFiles,    largeFiles, duplicates, photoDuplicates,
                                         screenshots, receipts,   memes,      blurry};
    return std::ranges::find(kPersonal, hit.finding->kind) != std::end(kPersonal);
}

/// Of what is rated Review, downloads, caches and the like first.
std::vector<Hit> reviewed(const AskContext& context, std::int64_t wanted, const Exclusions& exclusions,
                          const std::vector<Hit>& safe)
{
    std::vector<Hit> hits = choosable(context, Rating::review, exclusions);
    dropCopiesOf(context, safe, hits);
    std::vector<Hit> personal;
    std::ranges::copy_if(hits, std::back_inserter(personal), isPersonal);
    std::erase_if(hits, isPersonal);
    hits = reaching(std::move(hits), wanted);
    const std::int64_t missing = wanted - bytesOf(hits);
    if (missing > 0)
        std::ranges::copy(reaching(std::move(personal), missing), std::back_inserter(hits));
    return hits;
}

/// Which entries together free `wanted` bytes, with links to their findings.
std::vector<Message> proposal(const AskContext& context, std::int64_t wanted, const Exclusions& exclusions,
                              Answer& answer)
{
    const Place goal{"wanted", Bytes{wanted}};
    const std::vector<Hit> safe = reaching(choosable(context, Rating::safe, exclusions), wanted);
    const std::int64_t safeBytes = bytesOf(safe);
    appendPaths(answer.proposal, safe);
    if (safeBytes >= wanted)
        return {{InsightTexts::kSafeIsEnough,
                 {goal, {"findings", listed(partsOf(safe), kNamed, answer)}, {"size", Bytes{safeBytes}}}}};
    std::vector<Message> said;
    if (safeBytes == 0)
        said.emplace_back(InsightTexts::kNothingSafe);
    else
        said.push_back({InsightTexts::kAllSafe,
                        {{"size", Bytes{safeBytes}}, {"findings", listed(partsOf(safe), kNamed, answer)}}});
    const std::vector<Hit> rest = reviewed(context, wanted - safeBytes, exclusions, safe);
    appendPaths(answer.proposal, rest);
    if (!rest.empty())
        said.push_back(
            {InsightTexts::kForTheRest, {goal, {"findings", listed(partsOf(rest), kNamed, answer)}}});
    if (checkedAdd(safeBytes, bytesOf(rest)) < wanted)
        said.push_back({InsightTexts::kTooLittle, {goal}});
    return said;
}

} // namespace

Answer safeToFree(const AskContext& context, const Exclusions& exclusions)
{
    if (context.findings.empty())
        return {InsightTexts::kNoScan, {}};
    const std::vector<Hit> safe = choosable(context, Rating::safe, exclusions);
    if (safe.empty())
        return {AskText::lines({exclusions.said(), InsightTexts::kNoSafeItems}), {}};
    Answer answer;
    constexpr std::size_t kLargest = 4;
    const Message could{
        InsightTexts::kCouldFree,
        {{"size", Bytes{bytesOf(safe)}}, {"findings", listed(partsOf(safe), kLargest, answer)}}};
    answer.text = AskText::lines({exclusions.said(), could});
    appendPaths(answer.proposal, safe);
    return answer;
}

std::optional<Answer> whatMayGo(const Question& question, const AskContext& context)
{
    // "Can I delete it?" and "did I clean up in May?" ask about something else.
    const bool isElse = (question.isBackward && !question.senses.has(Sense::except) &&
                         !question.senses.meets({Sense::what, Sense::howMuch})) ||
                        (question.senses.has(Sense::inside) && question.subject() == nullptr);
    // "The biggest thing I could get rid of" asks for a list.
    const bool isByFile = question.senses.has(Sense::biggest) && question.senses.has(Sense::subject) &&
                          !question.senses.meets({Sense::takes, Sense::most});
    const auto exclusions = Exclusions::of(question, context);
    if (isElse || isByFile || !question.hasNoKind() || !exclusions)
        return std::nullopt;
    return safeToFree(context, *exclusions);
}

std::optional<Answer> roomFor(const Question& question, const AskContext& context)
{
    const Phrase* const size = question.first(Sense::size);
    const auto exclusions = Exclusions::of(question, context);
    if (size == nullptr || size->amount <= 0 || !exclusions)
        return std::nullopt;
    // "Room for a 20 GB game" is about a game to come, "5 GB of photos" is about photos.
    const auto isAboutKind = [&](const Phrase& phrase) {
        return phrase.subject != nullptr && !phrase.subject->isAnyFile && !phrase.subject->isProgram;
    };
    if (std::ranges::any_of(question.phrases, isAboutKind))
        return std::nullopt;
    // "Do I have 5 GB free?" asks for no proposal.
    const auto behind = std::span(question.phrases).subspan(question.position(Sense::size));
    if (!question.senses.meets({Sense::makeRoom, Sense::remove}) &&
        std::ranges::find(behind, Sense::free, &Phrase::sense) != behind.end())
        return std::nullopt;
    if (context.findings.empty())
        return Answer{InsightTexts::kNoScan, {}};
    Answer answer;
    std::vector<Message> said = proposal(context, size->amount, *exclusions, answer);
    said.emplace_back(InsightTexts::kNothingMovesYet);
    // "I need room for 5 GB": there may be that much. "Free 5 GB" wants more.
    const auto isFreeing = [](const Phrase& phrase) {
        return phrase.sense == Sense::remove || phrase.sense == Sense::cleanUp ||
               (phrase.sense == Sense::makeRoom && phrase.text.find("free") != std::string::npos);
    };
    const bool isThere = context.breakdown.total > 0 && context.breakdown.free >= size->amount &&
                         std::ranges::none_of(question.phrases, isFreeing);
    answer.text = AskText::lines({isThere ? volume(context.breakdown) : Message(), exclusions->said(),
                                  AskText::sentences(std::move(said))});
    return answer;
}

std::optional<Answer> cleaningDownloads(const Question& question, const AskContext& context)
{
    const auto isOther = [](const Phrase& phrase) {
        return phrase.subject != nullptr && !phrase.subject->isAnyFile &&
               phrase.subject->id != SubjectID::downloads;
    };
    const Subject* const downloads = &subjectFor(SubjectID::downloads);
    const auto isDownloads = [&](const Phrase& phrase) { return phrase.subject == downloads; };
    if (std::ranges::any_of(question.phrases, isOther) ||
        std::ranges::none_of(question.phrases, isDownloads) ||
        !question.senses.meets({Sense::what, Sense::inside, Sense::makeRoom, Sense::cleanUp, Sense::advise}))
        return std::nullopt;
    return AskEngine::fallback("download", context);
}

} // namespace orlen::AskReader
