#include "insight/reader/ListReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/ListRequest.h"
#include "insight/reader/Names.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

Text heading(Order order)
{
    switch (order) {
    case Order::biggest:
        return InsightTexts::kTheBiggest;
    case Order::smallest:
        return InsightTexts::kTheSmallest;
    case Order::oldest:
        return InsightTexts::kTheOldest;
    case Order::newest:
        return InsightTexts::kTheNewest;
    }
    return {};
}

/// What fits, each path once.
std::vector<Hit> fitting(const ListRequest& request, const AskContext& context)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (request.admits(finding, entry))
                hits.push_back({&finding, &entry});
        }
    }
    return eachOnce(std::move(hits));
}

void sortFirst(std::vector<Hit>& hits, Order order, std::size_t count)
{
    const auto isBefore = [order](const Hit& a, const Hit& b) {
        if (order == Order::oldest || order == Order::newest) {
            const auto changedA = a.entry->modified;
            const auto changedB = b.entry->modified;
            if (changedA != changedB)
                return order == Order::oldest ? changedA < changedB : changedA > changedB;
        } else if (a.entry->size != b.entry->size) {
            return order == Order::biggest ? a.entry->size > b.entry->size : a.entry->size < b.entry->size;
        }
        return a.entry->path < b.entry->path;
    };
    std::ranges::partial_sort(hits, hits.begin() + static_cast<std::ptrdiff_t>(count), isBefore);
}

Message lineFor(const ListRequest& request, const Hit& hit)
{
    const FileEntry& entry = *hit.entry;
    std::vector<Place> places{{"path", tilde(entry.path)},
                              {"size", Bytes{entry.size}},
                              {"rating", within(label(hit.finding->effectiveRating(entry)))}};
    const bool isByOpening = request.openedTo != TimePoint::max() && entry.lastOpened;
    const auto& date = isByOpening ? entry.lastOpened : entry.modified;
    if (!date)
        return {InsightTexts::kFileUndated, std::move(places)};
    places.push_back({"date", Moment{*date}});
    return {isByOpening ? InsightTexts::kFileOpened : InsightTexts::kFileChanged, std::move(places)};
}

} // namespace

std::optional<Answer> listOfFiles(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    if (!request)
        return std::nullopt;
    if (context.findings.empty())
        return Answer{InsightTexts::kNoScan, {}};
    const Place files{"files", within(request->files)};
    std::vector<Hit> hits = fitting(*request, context);
    if (hits.empty())
        return Answer{
            AskText::lines({request->exclusions.said(), Message{InsightTexts::kNoneListed, {files}}}), {}};
    std::int64_t bytes = 0;
    for (const Hit& hit : hits)
        bytes = checkedAdd(bytes, hit.entry->size);
    const std::size_t shown = std::min(hits.size(), static_cast<std::size_t>(request->count));
    sortFirst(hits, request->order, shown);
    const Message sum{InsightTexts::kFilesListed,
                      {files, {"count", std::ssize(hits)}, {"size", Bytes{bytes}}}};
    std::vector<Message> lines{request->exclusions.said(),
                               AskText::sentences({sum, heading(request->order)})};
    Answer answer;
    for (std::size_t i = 0; i < shown; ++i) {
        lines.push_back(lineFor(*request, hits[i]));
        answer.paths.push_back(hits[i].entry->path);
        if (std::ranges::find(answer.findingIDs, hits[i].finding->id()) == answer.findingIDs.end())
            answer.findingIDs.emplace_back(hits[i].finding->id());
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

std::optional<Answer> listOfRated(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    return request && request->rating ? listOfFiles(question, context) : std::nullopt;
}

std::optional<Answer> listOfBoth(const Question& question, const AskContext& context)
{
    if (question.count(Sense::subject) != 2)
        return std::nullopt;
    const std::optional<Answer> answer = listOfFiles(question, context);
    return answer && !answer->paths.empty() ? answer : std::nullopt;
}

} // namespace orlen::AskReader
