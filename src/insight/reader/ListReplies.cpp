#include "insight/reader/ListReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/ListRequest.h"
#include "insight/reader/Names.h"
#include "platform/files/Places.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
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

void addTo(Answer& answer, const Hit& hit)
{
    answer.paths.push_back(hit.entry->path);
    if (std::ranges::find(answer.findingIDs, hit.finding->id()) == answer.findingIDs.end())
        answer.findingIDs.emplace_back(hit.finding->id());
}

struct OwnedFile {
    std::string path;
    std::int64_t bytes = 0;
    TimePoint modified;
};

/// What a look at the home folder met.
struct Seen {
    std::vector<OwnedFile> first; ///< in the order asked for
    std::int64_t count = 0;
    std::int64_t bytes = 0;

    [[nodiscard]] Message sum(const ListRequest& request) const
    {
        const Place files{"files", within(request.files)};
        if (count == 0)
            return {InsightTexts::kNoFilesThere, {files}};
        return {InsightTexts::kFilesThere, {files, {"count", count}, {"size", Bytes{bytes}}}};
    }
};

bool isBefore(Order order, const OwnedFile& a, const OwnedFile& b)
{
    if ((order == Order::oldest || order == Order::newest) && a.modified != b.modified)
        return order == Order::oldest ? a.modified < b.modified : a.modified > b.modified;
    if ((order == Order::biggest || order == Order::smallest) && a.bytes != b.bytes)
        return order == Order::biggest ? a.bytes > b.bytes : a.bytes < b.bytes;
    return a.path < b.path;
}

Seen seenIn(const ListRequest& request, const HomeLook& home)
{
    Seen seen;
    const auto most = static_cast<std::size_t>(request.count);
    const auto cut = [&] {
        const auto end = seen.first.begin() + static_cast<std::ptrdiff_t>(std::min(most, seen.first.size()));
        std::partial_sort(
            seen.first.begin(), end, seen.first.end(),
            [&](const OwnedFile& a, const OwnedFile& b) { return isBefore(request.order, a, b); });
        seen.first.erase(end, seen.first.end());
    };
    const bool isOfKind =
        (request.subject != nullptr && !request.subject->isAnyFile) || !request.ending.empty();
    const std::string& folder = request.folder.empty() ? Places::current().home : request.folder;
    home.eachFile(folder, isOfKind && !request.isHidden ? HomeLook::Among::visible : HomeLook::Among::all,
                  [&](const SeenFile& file) {
                      constexpr std::size_t kKept = 1'000;
                      if (!request.admits(file))
                          return;
                      ++seen.count;
                      seen.bytes = cappedAdd(seen.bytes, file.bytes);
                      seen.first.push_back({std::string(file.path), file.bytes, file.modified});
                      if (seen.first.size() >= kKept)
                          cut();
                  });
    cut();
    return seen;
}

/// The entries of findings with these paths, the most careful rating of each.
std::map<std::string_view, Hit> hitsOf(const std::vector<OwnedFile>& files, const AskContext& context)
{
    std::map<std::string_view, Hit> hits;
    for (const OwnedFile& file : files)
        hits.try_emplace(file.path);
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            const auto found = hits.find(entry.path);
            if (found == hits.end())
                continue;
            Hit& hit = found->second;
            if (hit.finding == nullptr ||
                hit.finding->effectiveRating(*hit.entry) < finding.effectiveRating(entry))
                hit = {&finding, &entry};
        }
    }
    std::erase_if(hits, [](const auto& each) { return each.second.finding == nullptr; });
    return hits;
}

Answer listOfHome(const ListRequest& request, const AskContext& context)
{
    const Seen seen = seenIn(request, *context.home);
    std::vector<Message> lines{request.exclusions.said()};
    if (seen.count < 2)
        lines.push_back(seen.sum(request));
    else
        lines.push_back(AskText::sentences({seen.sum(request), heading(request.order)}));
    Answer answer;
    const auto hits = hitsOf(seen.first, context);
    for (const OwnedFile& file : seen.first) {
        const auto hit = hits.find(file.path);
        if (hit != hits.end()) {
            lines.push_back(lineFor(request, hit->second));
            addTo(answer, hit->second);
            continue;
        }
        lines.push_back(
            {InsightTexts::kFileUnrated,
             {{"path", tilde(file.path)}, {"size", Bytes{file.bytes}}, {"date", Moment{file.modified}}}});
        answer.paths.push_back(file.path);
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

} // namespace

std::optional<Answer> listOfFiles(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    if (!request)
        return std::nullopt;
    if (context.home != nullptr && !request->isOfScan)
        return listOfHome(*request, context);
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
    const std::int64_t count = std::ssize(hits);
    sortFirst(hits, request->order, shown);
    hits.resize(shown);
    const Message sum{InsightTexts::kFilesListed, {files, {"count", count}, {"size", Bytes{bytes}}}};
    std::vector<Message> lines{request->exclusions.said(),
                               AskText::sentences({sum, heading(request->order)})};
    Answer answer;
    for (const Hit& hit : hits) {
        lines.push_back(lineFor(*request, hit));
        addTo(answer, hit);
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

std::optional<Answer> countOfFiles(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    if (!request || context.home == nullptr || request->isOfScan)
        return std::nullopt;
    return Answer{AskText::lines({request->exclusions.said(), seenIn(*request, *context.home).sum(*request)}),
                  {}};
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
