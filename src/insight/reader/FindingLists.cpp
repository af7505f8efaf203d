#include "insight/reader/FindingLists.h"

#include "insight/InsightTexts.h"
#include "insight/InsightTextsWhatIf.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/ListRequest.h"
#include "insight/reader/Proposal.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <span>
#include <utility>

namespace orlen::AskReader {

namespace {

std::vector<Hit> hitsOf(const Finding& finding)
{
    std::vector<Hit> hits;
    hits.reserve(finding.items.size());
    for (const FileEntry& entry : finding.items)
        hits.push_back({&finding, &entry});
    return hits;
}

void addItems(Lines& lines, const std::vector<Hit>& hits)
{
    constexpr std::size_t kShown = 5;
    for (const Hit& hit : std::span(hits).first(std::min(hits.size(), kShown))) {
        const Rating rating = hit.finding->effectiveRating(*hit.entry);
        std::vector<Place> places{{"path", tilde(hit.entry->path)},
                                  {"size", Bytes{hit.entry->size}},
                                  {"title", within(hit.finding->title)}};
        const Message note = noteOnOneLine(*hit.entry);
        if (!note.empty())
            places.push_back({"note", within(note)});
        lines.texts.push_back(
            {(note.empty() ? InsightTexts::kFitting : InsightTexts::kFittingWithNote).of(rating),
             std::move(places)});
    }
    if (hits.size() > kShown)
        lines.texts.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(hits.size() - kShown)}}});
}

} // namespace

std::vector<const Finding*> findingsOf(const Subject& subject, const AskContext& context)
{
    std::vector<const Finding*> findings;
    for (const Finding& finding : context.findings) {
        if (isListedAs(subject, finding.kind))
            findings.push_back(&finding);
    }
    return findings;
}

void addFindings(Lines& lines, const Subject& subject, const AskContext& context)
{
    for (const Finding* const finding : findingsOf(subject, context)) {
        addRated(lines, *finding);
        lines.ids.emplace_back(finding->id());
    }
}

void addRated(Lines& lines, const Finding& finding)
{
    struct Part {
        std::int64_t count = 0;
        std::int64_t bytes = 0;
    };
    std::map<Rating, Part> parts;
    for (const FileEntry& entry : finding.items) {
        Part& part = parts[finding.effectiveRating(entry)];
        ++part.count;
        part.bytes = checkedAdd(part.bytes, entry.size);
    }
    const bool isOne = parts.empty() || (parts.size() == 1 && parts.begin()->first == finding.rating);
    if (isOne) {
        const Message count{InsightTexts::kItemsOfIt, {{"count", std::ssize(finding.items)}}};
        lines.texts.push_back(AskText::sentences({AskText::rated(finding), count}));
        return;
    }
    for (const Rating rating : {Rating::safe, Rating::review, Rating::keep}) {
        const auto part = parts.find(rating);
        if (part == parts.end())
            continue;
        const Message sum{InsightTexts::kRated.of(rating),
                          {{"title", within(finding.title)}, {"size", Bytes{part->second.bytes}}}};
        const Message count{InsightTexts::kItemsOfIt, {{"count", part->second.count}}};
        lines.texts.push_back(AskText::sentences({sum, finding.reason, count}));
    }
}

std::optional<Answer> recognisedFiles(const Subject& subject, const AskContext& context)
{
    if (!isRecognised(subject) || context.home == nullptr)
        return std::nullopt;
    Question files;
    files.phrases.push_back({Sense::subject, {}, &subject});
    return listOfFiles(withPhrases(files, files.phrases), context);
}

Answer nothingFound(const Subject& subject, const AskContext& context)
{
    if (auto answer = recognisedFiles(subject, context))
        return *std::move(answer);
    if (context.findings.empty())
        return {InsightTexts::kNoScan, {}};
    return {Message{InsightTexts::kNoneFound, {{"files", within(subject.name)}}}, {}};
}

Answer similarPhotos(const Subject& subject, const AskContext& context)
{
    Lines lines;
    addFindings(lines, subject, context);
    if (lines.texts.empty())
        lines.texts.push_back({InsightTexts::kNoneFound, {{"files", within(subject.name)}}});
    for (const Finding* const finding : findingsOf(subject, context))
        addItems(lines, hitsOf(*finding));
    const Place copies{"files", within(InsightTexts::kPhotoCopies)};
    std::vector<Hit> hits;
    for (const Finding* const finding : findingsOf(subjectFor(SubjectID::duplicates), context)) {
        hits = hitsOf(*finding);
        std::erase_if(hits, [](const Hit& hit) {
            return !hasExtensionOf(subjectFor(SubjectID::photos), hit.entry->path);
        });
        if (!hits.empty())
            lines.ids.emplace_back(finding->id());
    }
    if (hits.empty())
        lines.texts.push_back({InsightTexts::kNoneFound, {copies}});
    else
        lines.texts.push_back({InsightTexts::kFilesListed,
                               {copies, {"count", std::ssize(hits)}, {"size", Bytes{bytesOf(hits)}}}});
    addItems(lines, hits);
    return *lines.answer();
}

void addItems(Lines& lines, const Finding& finding)
{
    addItems(lines, hitsOf(finding));
}

} // namespace orlen::AskReader
