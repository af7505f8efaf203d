#include "insight/reader/NameReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "insight/reader/ProgramReplies.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

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
     "profile,thunderbird inbox,inbox,thunderbird "
     "folder,emails,email,mails,e-mail,e-mails,courriels,correos,correo,posta",
     "{H}/.thunderbird"},
    {"keyring,keyrings,passwords,saved passwords,password,passworter,kennworter,schlusselbund,mots "
     "passe,mots de passe,mot de passe,contrasenas,"
     "claves",
     "{DATA}/keyrings"},
    {"password store,password stores,.password-store", "{H}/.password-store"},
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

/// Keeps only what lies in a folder.
void narrow(Found& found, std::string_view folder)
{
    const auto isElsewhere = [&](std::string_view path) { return !PathText::isAtOrBelow(path, folder); };
    std::erase_if(found.hits, [&](const Hit& hit) { return isElsewhere(hit.entry->path); });
    std::erase_if(found.measured, [&](const Measured& each) { return isElsewhere(each.path); });
    std::erase_if(found.trashed, [&](const TrashedItem* item) { return isElsewhere(item->original); });
}

/// "The .git folder of atlas": what lies in a folder of that name, if anything does.
void narrowToOthers(Found& found, const Question& question, const AskedName& asked)
{
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense != Sense::unknown || asked.name.find(phrase.text) != std::string::npos ||
            asked.place.find(phrase.text) != std::string::npos)
            continue;
        const std::string word = "/" + lowered(phrase.text) + "/";
        const auto lies = [&](std::string_view path) {
            return lowered(path).find(word) != std::string::npos;
        };
        if (std::ranges::none_of(found.hits, [&](const Hit& hit) { return lies(hit.entry->path); }) &&
            std::ranges::none_of(found.measured, [&](const Measured& each) { return lies(each.path); }))
            continue;
        std::erase_if(found.hits, [&](const Hit& hit) { return !lies(hit.entry->path); });
        std::erase_if(found.measured, [&](const Measured& each) { return !lies(each.path); });
    }
}

/// "My .cache folder": the one that lies directly in the home folder, if there is one.
void keepTopFolder(Found& found)
{
    const std::string& home = Places::current().home;
    const auto isAtTop = [&](std::string_view path) { return PathText::parent(path) == home; };
    const auto top = std::ranges::find_if(found.measured, [&](const Measured& each) {
        return each.kind == Measured::Kind::folder && isAtTop(each.path);
    });
    if (top == found.measured.end())
        return;
    const Measured only = *top;
    found.hits.clear();
    found.measured = {only};
}

/// Keeps what the question says of it: that it is a folder or a file; and what people have in their own
/// folders, if anything, before what programs keep.
void keepMeant(Found& found, const Question& question, const AskedName& asked)
{
    narrowToOthers(found, question, asked);
    if (asked.place.empty() && found.fit == Fit::whole &&
        (question.senses.has(Sense::folder) || asked.name.starts_with('.')))
        keepTopFolder(found);
    if (!found.hits.empty())
        return;
    const auto keep = [&](auto isWanted) {
        if (std::ranges::any_of(found.measured, isWanted))
            std::erase_if(found.measured, [&](const Measured& each) { return !isWanted(each); });
    };
    const bool isFolder = question.senses.has(Sense::folder);
    const bool isFile = question.subject() != nullptr && question.subject()->isAnyFile;
    const auto wanted = isFolder ? Measured::Kind::folder : Measured::Kind::file;
    if (isFolder != isFile)
        keep([&](const Measured& each) { return each.kind == wanted; });
    keep([](const Measured& each) { return each.isOwn; });
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

Answer notFound(std::string_view name, const AskContext& context)
{
    const std::string path = pathIn(name);
    const bool isOfHome = path.empty() || PathText::isAtOrBelow(path, Places::current().home);
    const Text text = context.home != nullptr && isOfHome ? InsightTexts::kNowhere : InsightTexts::kNotListed;
    return {Message{text, {{"name", PathText::forDisplay(name)}}}, {}};
}

std::string allNames(const Question& question)
{
    std::string names;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown)
            names += (names.empty() ? "" : " ") + phrase.text;
    }
    return names;
}

/// "System32", "hiberFil": written as people write names, not words.
bool isNoWord(std::string_view text)
{
    constexpr std::size_t kShortest = 4;
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    const auto isSmall = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto isFigure = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() >= kShortest && text.find(' ') == std::string_view::npos &&
           std::ranges::any_of(text, isSmall) &&
           (std::ranges::any_of(text, isFigure) || std::any_of(text.begin() + 1, text.end(), isCapital));
}

/// "The Steam shader cache": which program it belongs to says as much as its name.
void narrowToSteam(Found& found, const Question& question, const AskContext& context, std::string_view name)
{
    const auto isSteam = [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->id == SubjectID::games &&
               plainLetters(phrase.text) == "steam";
    };
    if (std::ranges::none_of(question.phrases, isSteam))
        return;
    std::vector<std::string> words = wordsOfName(lowered(name));
    words.emplace_back("steam");
    if (std::vector<Hit> hits = holdingAll(context, words); !hits.empty()) {
        found = {};
        found.fit = Fit::words;
        found.hits = std::move(hits);
    }
}

/// Whether a word of the question is neither understood nor part of the name: it asks for something else.
bool hasOtherNames(const Question& question, const std::string& name, const std::string& place)
{
    return std::ranges::any_of(question.phrases, [&](const Phrase& phrase) {
        return (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted) &&
               name.find(phrase.text) == std::string::npos && place.find(phrase.text) == std::string::npos;
    });
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

/// The folder in which it is said to lie; empty if none is known.
std::string placeOf(const Question& question, const AskContext& context, const AskedName& asked)
{
    if (!asked.place.empty())
        return folderNamed(context, asked.place);
    for (std::size_t i = 1; context.home != nullptr && i < question.phrases.size(); ++i) {
        const Subject* const subject = question.phrases[i].subject;
        if (subject == nullptr || question.phrases[i - 1].sense != Sense::inside)
            continue;
        if (std::string folder = folderOf(*subject); context.home->folderAt(folder))
            return folder;
    }
    return {};
}

/// Whether what was found is more than folders that programs have named after themselves.
bool isSureOf(const Found& found, const Question& question, const AskedName& asked)
{
    return !found.hits.empty() || !asked.place.empty() || question.senses.has(Sense::folder) ||
           isFileName(question, asked.name) ||
           std::ranges::any_of(found.measured, [](const Measured& each) { return each.isOwn; });
}

/// What was found, after the word that something else of that name is protected.
Answer shielded(std::string_view guarded, const AskContext& context, Answer answer)
{
    Answer all = protectedPlace(guarded, protectionOf(context, guarded));
    all.text = AskText::lines({std::move(all.text), std::move(answer.text)});
    all.findingIDs = std::move(answer.findingIDs);
    std::ranges::move(answer.paths, std::back_inserter(all.paths));
    return all;
}

} // namespace

std::optional<Answer> aboutName(const Question& question, const AskContext& context)
{
    const AskedName asked = nameIn(question);
    const auto& [name, place] = asked;
    const std::string folder = placeOf(question, context, asked);
    // "Is setup.exe any use on Linux": a file of that name is meant, whatever else is said.
    const bool isOfOther = hasOtherNames(question, name, place) &&
                           (question.count(Sense::quoted) != 1 || findNamed(context, name).fit < Fit::whole);
    if (isOfOther && context.home != nullptr && isFileName(question, name) && place.empty() &&
        question.count(Sense::quoted) == 0 && findNamed(context, name).fit == Fit::none)
        return notFound(allNames(question), context);
    if (name.empty() || isOfOther || (folder.empty() && !place.empty() && !isFileName(question, name)))
        return std::nullopt;
    const Subject* const subject = question.subject();
    const bool isNarrowed = subject != nullptr && !subject->kinds.empty();
    Found found = isNarrowed ? findNamed(context, name, subject->kinds) : Found();
    if (found.fit == Fit::none)
        found = findNamed(context, name);
    if (!folder.empty()) {
        narrow(found, folder);
        if (found.hits.empty() && found.measured.empty() && found.trashed.empty())
            return Answer{Message{InsightTexts::kNotThere,
                                  {{"name", PathText::forDisplay(name)}, {"folder", tilde(folder)}}},
                          {}};
    }
    keepMeant(found, question, asked);
    narrowToSteam(found, question, context, name);
    if (found.fit == Fit::none) {
        found.hits = holdingAll(context, wordsOfName(lowered(name)));
        found.fit = found.hits.empty() ? Fit::none : Fit::part;
    }
    const bool isSure = found.fit >= Fit::stem && isSureOf(found, question, asked);
    if (!isSure && !isNarrowed) {
        if (std::optional<Answer> app = aboutApp(context, name))
            return app;
    }
    const std::string guarded = protectedPath(question, context, name);
    if (!guarded.empty() && (found.fit < Fit::whole || !isSure || isOfMail(question)))
        return protectedPlace(guarded, protectionOf(context, guarded));
    if (found.fit < Fit::stem && found.measured.empty() && !isFileName(question, name) &&
        !mayBePartOfName(question))
        return std::nullopt;
    if (!found.hits.empty()) {
        Answer listed = listedHits(context, found, PathText::forDisplay(name));
        const bool isOther = !guarded.empty() && !isNarrowed && pathIn(name).empty() && place.empty();
        return isOther ? shielded(guarded, context, std::move(listed)) : std::move(listed);
    }
    if (!found.measured.empty())
        return measuredOnly(question, context, found, PathText::forDisplay(name));
    if (!found.trashed.empty())
        return inTrash(found);
    return isFileName(question, name) || (context.home != nullptr && isNoWord(name))
               ? std::optional(notFound(name, context))
               : std::nullopt;
}

std::optional<Answer> aboutSureName(const Question& question, const AskContext& context)
{
    const auto [name, place] = nameIn(question);
    // "The mozilla cache"
    const Subject* const subject = question.subject();
    const bool isOfKind = subject != nullptr && !subject->kinds.empty() &&
                          findNamed(context, name, subject->kinds).fit >= Fit::words;
    if (name.empty() || hasOtherNames(question, name, place) ||
        (!isOfKind && !isFileName(question, name) && protectedPath(question, context, name).empty()))
        return std::nullopt;
    return aboutName(question, context);
}

} // namespace orlen::AskReader
