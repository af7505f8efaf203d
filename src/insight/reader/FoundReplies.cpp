#include "insight/reader/FoundReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/PathHits.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <span>
#include <utility>
#include <variant>
#include <vector>

namespace orlen::AskReader {

namespace {

using InsightTexts::RatedText;

constexpr std::size_t kListed = 6;
constexpr std::size_t kNamedInside = 2;

Message itIsProtected(Protection protection)
{
    return {InsightTexts::kItIsProtected,
            {{"group", within(label(protection))}, {"reason", within(reason(protection))}}};
}

/// What a clean-up does with it.
Message outcome(const AskContext& context, const Hit& hit)
{
    if (const Protection protection = protectionOf(context, hit.entry->path); protection != Protection::none)
        return itIsProtected(protection);
    if (!hit.finding->cleanable)
        return InsightTexts::kInTrash;
    return hit.finding->effectiveRating(*hit.entry) == Rating::keep ? InsightTexts::kBetterLeaveIt
                                                                    : InsightTexts::kMovesIt;
}

/// File names in a note may have line breaks.
Message onOneLine(Message note)
{
    for (Place& place : note.places) {
        if (auto* const name = std::get_if<std::string>(&place.value))
            *name = PathText::forDisplay(*name);
        else if (auto* const several = std::get_if<Several>(&place.value))
            std::ranges::transform(several->messages, several->messages.begin(), onOneLine);
    }
    return note;
}

/// What an entry is rated, with its note if it has one.
Message rated(const Hit& hit, const RatedText& text, const RatedText& withNote, std::vector<Place> places)
{
    places.push_back({"size", Bytes{hit.entry->size}});
    places.push_back({"title", within(hit.finding->title)});
    Message note = noteOnOneLine(*hit.entry);
    const RatedText& said = note.empty() ? text : withNote;
    if (!note.empty())
        places.push_back({"note", within(std::move(note))});
    return {said.of(hit.finding->effectiveRating(*hit.entry)), std::move(places)};
}

/// Nobody can make it again.
bool storesPasswords(std::string_view path)
{
    constexpr std::string_view kEndings[] = {"kdbx", "kdb", "psafe3", "opvault", "agilekeychain", "keychain"};
    const std::string ending = PathText::asciiLower(PathText::extension(path));
    return std::ranges::find(kEndings, ending) != std::end(kEndings) ||
           PathText::lastComponent(path) == ".password-store";
}

Message described(const AskContext& context, const Hit& hit)
{
    const Message rating = rated(
        hit, InsightTexts::kListedAs, InsightTexts::kListedWithNote,
        {{"name", AskText::fileName(*hit.entry)}, {"folder", tilde(PathText::parent(hit.entry->path))}});
    if (storesPasswords(hit.entry->path))
        return AskText::sentences({rating, InsightTexts::kStoresPasswords});
    return AskText::sentences({rating, hit.finding->reason, outcome(context, hit)});
}

Message itemLine(const Hit& hit)
{
    const Message rating = rated(hit, InsightTexts::kFitting, InsightTexts::kFittingWithNote,
                                 {{"path", tilde(hit.entry->path)}});
    return AskText::sentences({rating, hit.finding->reason});
}

void addLink(std::vector<std::string>& ids, const Finding& finding)
{
    if (std::ranges::find(ids, finding.id()) == ids.end())
        ids.emplace_back(finding.id());
}

Answer listedAll(const AskContext& context, const Found& found, std::string_view name)
{
    const auto count = std::ssize(found.hits) + std::ssize(found.measured);
    return listedBelow({InsightTexts::kItemsFit, {{"count", count}, {"name", std::string(name)}}}, context,
                       found);
}

/// Without folders that take no less than the one around them, which says the same of both.
std::vector<Measured> outermost(const std::vector<Measured>& measured)
{
    std::vector<Measured> outer;
    std::ranges::copy_if(measured, std::back_inserter(outer), [&](const Measured& each) {
        return each.kind == Measured::Kind::file ||
               std::ranges::none_of(measured, [&](const Measured& other) {
                   return other.path != each.path && PathText::isAtOrBelow(each.path, other.path) &&
                          other.bytes == each.bytes;
               });
    });
    return outer;
}

Message sizeAndPlace(const Measured& one)
{
    const Place bytes{"size", Bytes{one.bytes}};
    if (one.changed)
        return {InsightTexts::kFileTakes, {{"path", tilde(one.path)}, bytes, {"date", Moment{*one.changed}}}};
    if (one.category)
        return {InsightTexts::kCountsFor,
                {{"path", tilde(one.path)}, bytes, {"category", within(label(*one.category))}}};
    return {InsightTexts::kFolderTakes, {{"folder", tilde(one.path)}, bytes}};
}

/// What of a folder the last scan lists, the largest items by name; empty if nothing.
Message listedInside(std::string_view folder, const AskContext& context, Answer& answer)
{
    std::int64_t bytes = 0;
    std::int64_t safe = 0;
    std::vector<Hit> hits = hitsBelow(folder, context);
    for (const Hit& hit : hits) {
        bytes = checkedAdd(bytes, hit.entry->size);
        if (hit.finding->effectiveRating(*hit.entry) == Rating::safe)
            safe = checkedAdd(safe, hit.entry->size);
        addLink(answer.findingIDs, *hit.finding);
    }
    if (hits.empty())
        return {};
    const std::vector<Place> places{
        {"count", std::ssize(hits)}, {"size", Bytes{bytes}}, {"safe", Bytes{safe}}};
    std::vector<Message> lines{safe > 0 ? Message{InsightTexts::kListedInside, places}
                                        : Message{InsightTexts::kListedInsideUnsafe, places}};
    std::ranges::stable_sort(hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    for (const Hit& hit : std::span(hits).first(std::min(hits.size(), kNamedInside)))
        lines.push_back(itemLine(hit));
    return AskText::lines(std::move(lines));
}

/// One line of several things with one name; of what is protected, what in it may go.
Message measuredLine(const Measured& each, const AskContext& context, Answer& answer)
{
    const Place bytes{"size", Bytes{each.bytes}};
    Message line = each.changed
                       ? Message{InsightTexts::kFileUnrated,
                                 {{"path", tilde(each.path)}, bytes, {"date", Moment{*each.changed}}}}
                       : Message{InsightTexts::kDownload, {{"name", tilde(each.path)}, bytes}};
    if (protectionOf(context, each.path) == Protection::none)
        return line;
    if (Message inside = listedInside(each.path, context, answer); !inside.empty())
        return AskText::lines({std::move(line), std::move(inside)});
    return {InsightTexts::kProtectedLine, {{"line", within(std::move(line))}}};
}

/// Whether it may go, of something that no finding lists itself.
Message verdict(const Measured& one, const Question& question, const AskContext& context, Answer& answer)
{
    Message inside = one.kind == Measured::Kind::file ? Message() : listedInside(one.path, context, answer);
    if (const Protection protection = protectionOf(context, one.path); protection != Protection::none)
        return AskText::sentences({itIsProtected(protection), std::move(inside)});
    if (storesPasswords(one.path))
        return InsightTexts::kStoresPasswords;
    if (!inside.empty())
        return inside;
    const Hit around = hitsAround(std::span(&one.path, 1), context).front();
    if (around.finding != nullptr) {
        addLink(answer.findingIDs, *around.finding);
        return {InsightTexts::kPartOf,
                {{"path", tilde(around.entry->path)},
                 {"title", within(around.finding->title)},
                 {"rating", within(label(around.finding->effectiveRating(*around.entry)))}}};
    }
    const bool isToGo = question.senses.meets({Sense::remove, Sense::safe, Sense::can, Sense::makeRoom});
    return AskText::sentences(
        {InsightTexts::kNotSuggested, isToGo ? Message(InsightTexts::kLookFirst) : Message()});
}

} // namespace

Message noteOnOneLine(const FileEntry& entry)
{
    return onOneLine(noteOf(entry));
}

Protection protectionOf(const AskContext& context, std::string_view path)
{
    return context.protection ? context.protection(path) : Protection::none;
}

Answer protectedPlace(std::string_view path, Protection protection)
{
    return {Message{InsightTexts::kPathIsProtected,
                    {{"path", tilde(path)},
                     {"group", within(label(protection))},
                     {"reason", within(reason(protection))}}},
            {},
            false,
            {std::string(path)}};
}

namespace {

/// A protected place, with its size if the question asks for it.
Answer measuredPlace(const Question& question, const AskContext& context, std::string_view path)
{
    constexpr SenseSet kOfSize{Sense::howBig, Sense::howMuch, Sense::takes, Sense::space};
    Answer answer = protectedPlace(path, protectionOf(context, path));
    if (!question.senses.meets(kOfSize))
        return answer;
    const auto folder = context.home == nullptr ? std::nullopt : context.home->folderAt(path);
    Message size;
    if (folder) {
        size = {InsightTexts::kFolderTakes,
                {{"folder", tilde(path)}, {"size", Bytes{context.home->folder(*folder).bytes}}}};
    } else if (const auto system = context.breakdown.cats.find(OrlenCategory::system);
               system != context.breakdown.cats.end() &&
               !PathText::isAtOrBelow(path, Places::current().home)) {
        size = {InsightTexts::kPartOfSystem,
                {{"path", tilde(path)},
                 {"category", within(label(OrlenCategory::system))},
                 {"size", Bytes{system->second}}}};
    }
    answer.text = AskText::sentences({std::move(size), std::move(answer.text)});
    return answer;
}

} // namespace

Answer guardedPlace(const Question& question, const AskContext& context, std::string_view path)
{
    Answer answer = measuredPlace(question, context, path);
    answer.text = AskText::sentences({std::move(answer.text), listedInside(path, context, answer)});
    return answer;
}

Answer listedBelow(Message heading, const AskContext& context, const Found& found)
{
    const auto hits = std::span(found.hits).first(std::min(found.hits.size(), kListed));
    const auto others =
        std::span(found.measured).first(std::min(found.measured.size(), kListed - hits.size()));
    const auto count = std::ssize(found.hits) + std::ssize(found.measured);
    std::vector<Message> lines{std::move(heading)};
    std::ranges::transform(hits, std::back_inserter(lines), itemLine);
    Answer answer;
    for (const Hit& hit : hits)
        addLink(answer.findingIDs, *hit.finding);
    std::ranges::transform(others, std::back_inserter(lines),
                           [&](const Measured& each) { return measuredLine(each, context, answer); });
    if (const auto more = count - std::ssize(hits) - std::ssize(others); more > 0)
        lines.push_back({InsightTexts::kMoreFit, {{"count", more}}});
    if (!answer.findingIDs.empty())
        lines.emplace_back(InsightTexts::kMovesTicked);
    answer.text = AskText::lines(std::move(lines));
    for (const Hit& hit : hits) {
        answer.paths.push_back(hit.entry->path);
    }
    for (const Measured& each : others)
        answer.paths.push_back(each.path);
    return answer;
}

Answer judgedBelow(Message heading, const Question& question, const AskContext& context, const Found& found)
{
    std::vector<Message> lines{std::move(heading)};
    Answer answer;
    for (const Hit& hit : std::span(found.hits).first(std::min(found.hits.size(), kListed))) {
        lines.push_back(itemLine(hit));
        addLink(answer.findingIDs, *hit.finding);
        answer.paths.push_back(hit.entry->path);
    }
    const std::size_t left = kListed - answer.paths.size();
    for (const Measured& each : std::span(found.measured).first(std::min(found.measured.size(), left))) {
        lines.push_back(AskText::sentences({sizeAndPlace(each), verdict(each, question, context, answer)}));
        answer.paths.push_back(each.path);
    }
    const auto more = std::ssize(found.hits) + std::ssize(found.measured) - std::ssize(answer.paths);
    if (more > 0)
        lines.push_back({InsightTexts::kMoreFit, {{"count", more}}});
    if (!answer.findingIDs.empty())
        lines.emplace_back(InsightTexts::kMovesTicked);
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

Answer listedHits(const AskContext& context, const Found& found, std::string_view name)
{
    if (found.hits.size() + found.measured.size() > 1)
        return listedAll(context, found, name);
    Answer answer{described(context, found.hits.front()), {}};
    addLink(answer.findingIDs, *found.hits.front().finding);
    answer.paths.push_back(found.hits.front().entry->path);
    return answer;
}

Answer measuredOnly(const Question& question, const AskContext& context, const Found& found,
                    std::string_view name)
{
    const std::vector<Measured> places = outermost(found.measured);
    if (places.size() > 1 && places.front().kind != Measured::Kind::unknown) {
        Found outer = found;
        outer.measured = places;
        return listedAll(context, outer, name);
    }
    std::vector<Message> lines;
    Answer answer;
    for (const Measured& each : std::span(places).first(std::min(places.size(), kListed))) {
        answer.paths.push_back(each.path);
        lines.push_back(AskText::sentences({sizeAndPlace(each), verdict(each, question, context, answer)}));
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

Answer inTrash(const Found& found)
{
    const TrashedItem& item = *found.trashed.front();
    return {
        Message{InsightTexts::kTrashedEarlier, {{"path", tilde(item.original)}, {"size", Bytes{item.size}}}},
        {}};
}

} // namespace orlen::AskReader
