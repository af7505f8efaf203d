#include "insight/reader/ListReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/HomeLists.h"
#include "insight/reader/ListConditions.h"
#include "insight/reader/ListRequest.h"
#include "insight/reader/Names.h"
#include "insight/reader/PathHits.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
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
    return eachOnce(context, std::move(hits));
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
    // Which one is kept instead says more than a date.
    const FindingKind kind = hit.finding->kind;
    const bool isCopy = kind == FindingKind::duplicates || kind == FindingKind::photoDuplicates;
    if (Message note = isCopy && request.order == Order::biggest ? noteOnOneLine(entry) : Message();
        !note.empty()) {
        places.push_back({"title", within(hit.finding->title)});
        places.push_back({"note", within(std::move(note))});
        return {InsightTexts::kFittingWithNote.of(hit.finding->effectiveRating(entry)), std::move(places)};
    }
    const bool isByOpening = request.openedTo != TimePoint::max() && entry.lastOpened;
    const auto& date = isByOpening ? entry.lastOpened : entry.modified;
    if (!date)
        return {InsightTexts::kFileUndated, std::move(places)};
    places.push_back({"date", Moment{*date}});
    return {isByOpening ? InsightTexts::kFileOpened : InsightTexts::kFileChanged, std::move(places)};
}

Message sumOf(const ListRequest& request, const HomeList& list)
{
    const Place files{"files", within(request.files)};
    if (list.count == 0)
        return {InsightTexts::kNoFilesThere, {files}};
    return {InsightTexts::kFilesThere, {files, {"count", list.count}, {"size", Bytes{list.bytes}}}};
}

Message homeLine(const ListRequest& request, const HomeFiles::File& file, const std::string& path)
{
    const bool isByOpening = request.openedTo != TimePoint::max();
    return {isByOpening ? InsightTexts::kOpenedUnrated : InsightTexts::kFileUnrated,
            {{"path", tilde(path)},
             {"size", Bytes{file.bytes}},
             {"date", Moment{isByOpening ? file.opened : file.changed}}}};
}

/// What the scan says about what a line is of.
Message withRating(Message line, const Hit& hit)
{
    if (hit.finding == nullptr)
        return line;
    return {InsightTexts::kListedLine,
            {{"line", within(std::move(line))},
             {"title", within(hit.finding->title)},
             {"rating", within(label(hit.finding->effectiveRating(*hit.entry)))}}};
}

void addLink(Answer& answer, const Finding& finding)
{
    if (std::ranges::find(answer.findingIDs, finding.id()) == answer.findingIDs.end())
        answer.findingIDs.emplace_back(finding.id());
}

/// What lies in the home folder; nothing if only the scan can tell.
std::optional<HomeList> homeListFor(const ListRequest& request, const AskContext& context)
{
    if (context.home == nullptr || request.isOfScan)
        return std::nullopt;
    const bool isDated = request.changedFrom != TimePoint::min() || request.changedTo != TimePoint::max() ||
                         request.openedTo != TimePoint::max();
    if (request.areFolders)
        return isDated ? std::nullopt : foldersFor(request, *context.home);
    return filesFor(request, *context.home);
}

/// Of a list that is empty: what there would be without what is left out, so that nobody takes it for all.
std::vector<Message> nothingElse(const ListRequest& request, const AskContext& context)
{
    ListRequest all = request;
    all.exclusions = {};
    const auto list = homeListFor(all, context);
    if (!list || list->count == 0)
        return {sumOf(request, {})};
    std::vector<Message> lines{sumOf(all, *list)};
    all.folder = request.exclusions.onlyFolder();
    if (!all.folder.empty() && request.folder.empty()) {
        narrow(all, InsightTexts::kFilesIn, {{"folder", tilde(all.folder)}});
        if (const auto inside = homeListFor(all, context))
            lines.push_back(sumOf(all, *inside));
    }
    lines.push_back(request.exclusions.said());
    return lines;
}

/// The sum of a list, its first lines, and how many more there are.
Answer shownList(const ListRequest& request, const AskContext& context, const HomeList& list)
{
    if (list.count == 0 && !request.exclusions.empty())
        return {AskText::lines(nothingElse(request, context)), {}};
    const HomeFiles& home = *context.home;
    Answer answer;
    for (const HomeFiles::Number number : list.first)
        answer.paths.push_back(request.areFolders ? home.folderPath(number) : home.filePath(number));
    std::vector<Message> lines{request.exclusions.said()};
    const Message sum = sumOf(request, list);
    lines.push_back(list.count < 2 ? sum : AskText::sentences({sum, heading(request.order)}));
    const std::vector<Hit> hits = hitsAround(answer.paths, context);
    for (std::size_t i = 0; i < hits.size(); ++i) {
        const HomeFiles::Number number = list.first[i];
        Message line =
            request.areFolders
                ? Message{InsightTexts::kDownload,
                          {{"name", tilde(answer.paths[i])}, {"size", Bytes{home.folder(number).bytes}}}}
                : homeLine(request, home.file(number), answer.paths[i]);
        lines.push_back(withRating(std::move(line), hits[i]));
        if (hits[i].finding != nullptr)
            addLink(answer, *hits[i].finding);
    }
    const auto more = list.count - std::ssize(list.first);
    answer.isCut = more > 0;
    if (more > 0 && list.first.size() > 1)
        lines.push_back({InsightTexts::kMoreFit, {{"count", more}}});
    if (!home.isComplete())
        lines.emplace_back(InsightTexts::kSmallestLeftOut);
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

} // namespace

std::optional<Answer> listOfFiles(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    if (!request)
        return std::nullopt;
    const auto list = homeListFor(*request, context);
    if (!request->words.empty() && (!list || (list->count == 0 && !isWordOfNames(request->name))))
        return std::nullopt;
    if (list)
        return shownList(*request, context, *list);
    if (request->areFolders || request->isHiddenOnly)
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
    const std::int64_t count = std::ssize(hits);
    sortFirst(hits, request->order, shown);
    hits.resize(shown);
    const Message sum{InsightTexts::kFilesListed, {files, {"count", count}, {"size", Bytes{bytes}}}};
    // "Duplicate videos": the sum names the videos only.
    const bool isOneKind = request->listedAs != nullptr && request->listedAs->kinds.size() == 1;
    const Message kind = isOneKind ? meta(request->listedAs->kinds.front()).explanation : Text();
    std::vector<Message> lines{request->exclusions.said(), kind,
                               AskText::sentences({sum, heading(request->order)})};
    Answer answer;
    for (const Hit& hit : hits) {
        lines.push_back(lineFor(*request, hit));
        answer.paths.push_back(hit.entry->path);
        addLink(answer, *hit.finding);
    }
    const auto more = count - std::ssize(hits);
    answer.isCut = more > 0;
    if (more > 0 && hits.size() > 1)
        lines.push_back({InsightTexts::kMoreFit, {{"count", more}}});
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

std::optional<Answer> countOfFiles(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    const auto list = request ? homeListFor(*request, context) : std::nullopt;
    if (!list || (!request->words.empty() && list->count == 0 && !isWordOfNames(request->name)))
        return std::nullopt;
    if (list->count == 0 && !request->exclusions.empty())
        return Answer{AskText::lines(nothingElse(*request, context)), {}};
    const Message left = context.home->isComplete() ? Message() : InsightTexts::kSmallestLeftOut;
    return Answer{AskText::lines({request->exclusions.said(), sumOf(*request, *list), left}), {}};
}

std::optional<Answer> listOfFolders(const Question& question, const AskContext& context)
{
    const std::optional<ListRequest> request = listRequestIn(question, context);
    return request && request->areFolders ? listOfFiles(question, context) : std::nullopt;
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
