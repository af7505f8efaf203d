#include "insight/reader/NameReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/DiskNames.h"
#include "insight/reader/LowerName.h"
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

/// Where "Projects" stands in "notes in Projects"; the number of phrases if no name stands before one.
std::size_t placeIn(const Question& question)
{
    constexpr SenseSet kNames{Sense::unknown, Sense::quoted};
    bool isNamed = false;
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        if (!kNames.has(question.phrases[i].sense))
            continue;
        if (isNamed && question.phrases[i - 1].sense == Sense::inside)
            return i;
        isNamed = true;
    }
    return question.phrases.size();
}

/// What stands behind "in": a folder's name, or the path of one that everybody has, in lower case; empty if
/// nothing does.
std::string placeNamed(const Question& question)
{
    const std::size_t place = placeIn(question);
    if (place < question.phrases.size())
        return lowered(question.phrases[place].text);
    for (std::size_t i = 1; i < question.phrases.size(); ++i) {
        const Phrase& phrase = question.phrases[i];
        if (phrase.subject == nullptr || question.phrases[i - 1].sense != Sense::inside)
            continue;
        const std::string folder = folderOf(*phrase.subject);
        return folder.empty() ? folder : lowered(folder.substr(1));
    }
    return {};
}

/// Whether the path lies in a folder of this name, or at this path below the home folder.
bool liesIn(std::string_view path, const std::string& folder)
{
    return folder.empty() ||
           lowered(std::string(PathText::parent(path)) + "/").find("/" + folder + "/") != std::string::npos;
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
    const std::size_t place = placeIn(question);
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        if (question.phrases[i].sense == Sense::unknown && i != place)
            name += (name.empty() ? "" : " ") + question.phrases[i].text;
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

/// Whether a word of the question is neither understood nor part of the name: it asks for something else.
bool hasOtherNames(const Question& question, const std::string& name)
{
    const std::size_t place = placeIn(question);
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        const Phrase& phrase = question.phrases[i];
        const bool isName = phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
        if (isName && i != place && name.find(phrase.text) == std::string::npos)
            return true;
    }
    return false;
}

/// What the home folder has by this name and no finding lists.
std::vector<SeenName> unlisted(const Found& found, const std::string& name, const std::string& folder,
                               const AskContext& context)
{
    std::vector<SeenName> seen = seenNamed(name, context);
    std::erase_if(seen, [&](const SeenName& each) {
        return !liesIn(each.path, folder) ||
               std::ranges::any_of(found.hits, [&](const Hit& hit) { return hit.entry->path == each.path; });
    });
    return seen;
}

/// "Thunderbird mail" is not the cache of that name.
bool isOfMail(const Question& question)
{
    return std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
        return phrase.sense == Sense::general &&
               isListed("mail,mails,email,emails", plainLetters(phrase.text));
    });
}

/// A name that fits only in part is no guess for a question about something else.
bool mayBePartOfName(const Question& question)
{
    constexpr SenseSet kOfFiles{Sense::howBig, Sense::howMuch, Sense::remove,    Sense::safe,
                                Sense::keep,   Sense::can,     Sense::takes,     Sense::undo,
                                Sense::folder, Sense::subject, Sense::untouched, Sense::happens};
    return question.phrases.size() == 1 || question.senses.meets(kOfFiles) ||
           (question.phrases.size() == 2 && question.senses.has(Sense::what));
}

} // namespace

std::optional<Answer> aboutName(const Question& question, const AskContext& context)
{
    const std::string name = nameIn(question);
    if (name.empty() || hasOtherNames(question, name))
        return std::nullopt;
    const std::string folder = placeNamed(question);
    const Subject* const subject = question.subject();
    const bool isNarrowed = subject != nullptr && !subject->kinds.empty();
    Found found = isNarrowed ? findNamed(context, name, subject->kinds) : Found();
    if (found.fit == Fit::none)
        found = findNamed(context, name);
    std::erase_if(found.hits, [&](const Hit& hit) { return !liesIn(hit.entry->path, folder); });
    std::erase_if(found.measured, [&](const Measured& each) { return !liesIn(each.path, folder); });
    if (found.fit < Fit::stem && !isNarrowed) {
        if (std::optional<Answer> app = aboutApp(context, name))
            return app;
    }
    const std::string guarded = protectedPath(question, context, name);
    if (!guarded.empty() && (found.fit < Fit::whole || isOfMail(question)))
        return protectedPlace(guarded, protectionOf(context, guarded));
    const bool isWhole = found.fit == Fit::whole && !found.hits.empty();
    if (const std::vector<SeenName> seen =
            isNarrowed ? std::vector<SeenName>() : unlisted(found, name, folder, context);
        !seen.empty()) {
        Answer more = aboutSeen(seen, context);
        if (!isWhole)
            return more;
        Answer listed = listedHits(context, found, PathText::forDisplay(name));
        std::ranges::move(more.paths, std::back_inserter(listed.paths));
        listed.text = AskText::lines({std::move(listed.text), std::move(more.text)});
        return listed;
    }
    if (found.fit < Fit::stem && !isFileName(question, name) && !mayBePartOfName(question))
        return std::nullopt;
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
    // "The mozilla cache"
    const Subject* const subject = question.subject();
    const bool isOfKind = subject != nullptr && !subject->kinds.empty() &&
                          findNamed(context, name, subject->kinds).fit >= Fit::words;
    if (name.empty() || hasOtherNames(question, name) ||
        (!isOfKind && !isFileName(question, name) && protectedPath(question, context, name).empty()))
        return std::nullopt;
    return aboutName(question, context);
}

} // namespace orlen::AskReader
