#include "insight/reader/NameReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"
#include "insight/reader/ProgramReplies.h"
#include "platform/files/Places.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <utility>
#include <variant>
#include <vector>

namespace orlen::AskReader {

namespace {

using InsightTexts::RatedText;

constexpr std::size_t kListed = 6;

/// Words for places that no scan lists because rules protect them.
struct KnownPlace {
    std::string_view words; ///< phrases, separated by commas
    std::string_view pattern;
};

constexpr KnownPlace kKnownPlaces[] = {
    {"ssh,ssh keys,ssh key,.ssh,ssh schlussel,ssh-schlussel,cles ssh,claves ssh,chiavi ssh", "{H}/.ssh"},
    {"gpg,gpg keys,gpg key,pgp keys,.gnupg,gpg schlussel,cles gpg,claves gpg,chiavi gpg", "{H}/.gnupg"},
    {"firefox,firefox profile,firefox profiles,firefox "
     "bookmarks,.mozilla,bookmarks,lesezeichen,marque-pages,favoris,"
     "marcadores,favoritos,segnalibri,preferiti,firefox profil",
     "{H}/.mozilla"},
    {"chrome profile,chrome bookmarks", "{CONFIG}/google-chrome"},
    {"chromium profile,chromium bookmarks", "{CONFIG}/chromium"},
    {"thunderbird,thunderbird mail,thunderbird "
     "profile,emails,email,mails,e-mail,e-mails,courriels,correos,correo,posta",
     "{H}/.thunderbird"},
    {"keyring,keyrings,passwords,saved passwords,password,passworter,kennworter,schlusselbund,mots "
     "passe,contrasenas,"
     "claves",
     "{DATA}/keyrings"},
    {".config", "{CONFIG}"},
    {".local/share", "{DATA}"},
};

bool isListed(std::string_view phrases, std::string_view phrase)
{
    while (!phrases.empty()) {
        const std::size_t end = std::min(phrases.find(','), phrases.size());
        if (phrases.substr(0, end) == phrase)
            return true;
        phrases.remove_prefix(std::min(end + 1, phrases.size()));
    }
    return false;
}

Protection protectionOf(const AskContext& context, std::string_view path)
{
    return context.protection ? context.protection(path) : Protection::none;
}

Message itIsProtected(Protection protection)
{
    return {InsightTexts::kItIsProtected,
            {{"group", within(label(protection))}, {"reason", within(reason(protection))}}};
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
    Message note = onOneLine(noteOf(*hit.entry));
    const RatedText& said = note.empty() ? text : withNote;
    if (!note.empty())
        places.push_back({"note", within(std::move(note))});
    return {said.of(hit.finding->effectiveRating(*hit.entry)), std::move(places)};
}

Message described(const AskContext& context, const Hit& hit)
{
    const Message rating = rated(
        hit, InsightTexts::kListedAs, InsightTexts::kListedWithNote,
        {{"name", AskText::fileName(*hit.entry)}, {"folder", tilde(PathText::parent(hit.entry->path))}});
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

Answer listedHits(const AskContext& context, const Found& found, std::string_view name)
{
    const std::span<const Hit> listed = std::span(found.hits).first(std::min(found.hits.size(), kListed));
    Answer answer;
    for (const Hit& hit : listed) {
        addLink(answer.findingIDs, *hit.finding);
        answer.paths.push_back(hit.entry->path);
    }
    if (found.hits.size() == 1) {
        answer.text = described(context, found.hits.front());
        return answer;
    }
    std::vector<Message> lines{
        {InsightTexts::kItemsFit, {{"count", std::ssize(found.hits)}, {"name", std::string(name)}}}};
    std::ranges::transform(listed, std::back_inserter(lines), itemLine);
    if (const auto more = std::ssize(found.hits) - std::ssize(listed); more > 0)
        lines.push_back({InsightTexts::kMoreFit, {{"count", more}}});
    lines.emplace_back(InsightTexts::kMovesTicked);
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

Answer measuredOnly(const AskContext& context, const Found& found)
{
    std::vector<Message> lines;
    Answer answer;
    for (const Measured& each : std::span(found.measured).first(std::min(found.measured.size(), kListed))) {
        const Protection protection = protectionOf(context, each.path);
        const Place bytes{"size", Bytes{each.bytes}};
        const Message size =
            each.category
                ? Message{InsightTexts::kCountsFor,
                          {{"path", tilde(each.path)}, bytes, {"category", within(label(*each.category))}}}
                : Message{InsightTexts::kFolderTakes, {{"folder", tilde(each.path)}, bytes}};
        const Message rating =
            protection == Protection::none ? InsightTexts::kNotSuggested : itIsProtected(protection);
        lines.push_back(AskText::sentences({size, rating}));
        answer.paths.push_back(each.path);
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

/// Written like the name of a file.
bool hasFileExtension(std::string_view name)
{
    const std::string_view extension = PathText::extension(name);
    return extension.size() >= 2 && extension.size() <= 8 && extension.find(' ') == std::string_view::npos;
}

/// The words that may be a name, as typed.
std::string nameIn(const Question& question)
{
    if (const Phrase* const quoted = question.first(Sense::quoted))
        return quoted->text;
    const auto isFile = [](const Phrase& phrase) {
        return phrase.sense == Sense::unknown && hasFileExtension(phrase.text);
    };
    // What stands around the name of a file is no part of it.
    if (std::ranges::count_if(question.phrases, isFile) == 1)
        return std::ranges::find_if(question.phrases, isFile)->text;
    std::string name;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    return name;
}

/// The path of something protected that the question means; empty if none.
std::string protectedPath(const Question& question, const AskContext& context, const std::string& name)
{
    std::vector<std::string> paths{pathIn(name)};
    if (paths.front().empty()) {
        const std::string lower = plainLetters(name);
        for (const KnownPlace& place : kKnownPlaces) {
            if (isListed(place.words, lower))
                std::ranges::move(Places::current().expand(place.pattern), std::back_inserter(paths));
        }
        if (lower.starts_with('.') && lower.find('/') == std::string::npos)
            paths.push_back(PathText::join(Places::current().home, name));
    }
    if (const Subject* const subject = question.subject(); name.empty() && subject != nullptr)
        paths.push_back(folderOf(*subject));
    const auto found = std::ranges::find_if(paths, [&](const std::string& path) {
        return !path.empty() && protectionOf(context, path) != Protection::none;
    });
    return found == paths.end() ? std::string() : *found;
}

/// Written like the name of a file, so it can be nothing else.
bool isFileName(const Question& question, std::string_view name)
{
    return question.first(Sense::quoted) != nullptr || !pathIn(name).empty() || hasFileExtension(name);
}

Answer notListed(std::string_view name)
{
    return {Message{InsightTexts::kNotListed, {{"name", PathText::forDisplay(name)}}}, {}};
}

} // namespace

std::optional<Answer> aboutName(const Question& question, const AskContext& context)
{
    const std::string name = nameIn(question);
    if (name.empty())
        return std::nullopt;
    const Subject* const subject = question.subject();
    const bool isNarrowed = subject != nullptr && !subject->kinds.empty();
    Found found = isNarrowed ? findNamed(context, name, subject->kinds) : Found();
    if (found.fit == Fit::none)
        found = findNamed(context, name);
    if (found.fit < Fit::stem && !isNarrowed) {
        if (std::optional<Answer> app = aboutApp(context, name))
            return app;
    }
    const std::string guarded = protectedPath(question, context, name);
    if (!guarded.empty() && found.fit < Fit::whole)
        return protectedPlace(guarded, protectionOf(context, guarded));
    if (!found.hits.empty())
        return listedHits(context, found, PathText::forDisplay(name));
    if (!found.measured.empty())
        return measuredOnly(context, found);
    if (!found.trashed.empty())
        return inTrash(found);
    return isFileName(question, name) ? std::optional(notListed(name)) : std::nullopt;
}

std::optional<Answer> aboutSureName(const Question& question, const AskContext& context)
{
    const std::string name = nameIn(question);
    const auto isElse = [&](const Phrase& phrase) {
        return phrase.sense == Sense::unknown && name.find(phrase.text) == std::string::npos;
    };
    // "The mozilla cache"
    const Subject* const subject = question.subject();
    const bool isOfKind = subject != nullptr && !subject->kinds.empty() &&
                          findNamed(context, name, subject->kinds).fit >= Fit::words;
    if (name.empty() || std::ranges::any_of(question.phrases, isElse) ||
        (!isOfKind && !isFileName(question, name) && protectedPath(question, context, name).empty()))
        return std::nullopt;
    return aboutName(question, context);
}

} // namespace orlen::AskReader
