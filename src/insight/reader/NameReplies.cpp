#include "insight/reader/NameReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/GuardedPlaces.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NamedFolders.h"
#include "insight/reader/NamedKinds.h"
#include "insight/reader/NamedParts.h"
#include "insight/reader/NamedTogether.h"
#include "insight/reader/Names.h"
#include "insight/reader/Narrowing.h"
#include "insight/reader/PlaceReplies.h"
#include "insight/reader/ProgramReplies.h"
#include "insight/reader/WhatItIs.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

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

/// Whether a word of the question is neither understood nor part of the name: it asks for something else.
bool hasOtherNames(const Question& question, const std::string& name, const std::string& place)
{
    return std::ranges::any_of(question.phrases, [&](const Phrase& phrase) {
        return (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted) &&
               name.find(phrase.text) == std::string::npos && place.find(phrase.text) == std::string::npos &&
               !isWordForPart(phrase.text);
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
    return question.phrases.size() == 1 || question.senses.isWithin({Sense::unknown}) ||
           question.senses.meets(kOfFiles) ||
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

/// Whether the name is that of a program, and nothing of the person's own is called so.
bool isOfProgram(const Found& found, const Question& question, const AskedName& asked)
{
    const auto isHidden = [](std::string_view path) {
        return tilde(path).find("/.") != std::string::npos || path.find("/snap/") != std::string_view::npos;
    };
    return asked.place.empty() && isPlainName(asked.name) && question.first(Sense::folder) == nullptr &&
           (found.fit < Fit::stem ||
            (std::ranges::none_of(found.measured, [](const Measured& each) { return each.isOwn; }) &&
             std::ranges::all_of(found.hits, [&](const Hit& hit) { return isHidden(hit.entry->path); })));
}

/// What was found, hits or folders and files that no finding lists.
Answer aboutFound(const Question& question, const AskContext& context, const Found& found,
                  const std::string& name)
{
    const std::string shownName = PathText::forDisplay(name);
    return found.hits.empty() ? measuredOnly(question, context, found, shownName)
                              : listedHits(context, found, shownName);
}

/// What was found, after the word that something else of that name is protected.
Answer shielded(const Question& question, const AskContext& context, std::string_view guarded, Answer answer)
{
    Answer all = guardedPlace(question, context, guarded);
    all.text = AskText::lines({std::move(all.text), std::move(answer.text)});
    all.findingIDs = std::move(answer.findingIDs);
    std::ranges::move(answer.paths, std::back_inserter(all.paths));
    return all;
}

/// What has the name; "the Fedora VM" is the disk of one.
Found foundOrMachine(const Question& question, const AskContext& context, const std::string& name)
{
    Found found = findNamed(context, name);
    keepOfKind(found, question, context, name);
    if (found.fit >= Fit::words)
        return ofHome(std::move(found), question, context);
    Found machine = machineNamed(question, context, name);
    return machine.fit == Fit::none ? found : machine;
}

/// What was not found by its name, by parts of paths and notes.
void lookAtParts(Found& found, const Question& question, const AskContext& context, const std::string& name)
{
    const std::vector<std::string> words = wordsOfName(lowered(name));
    constexpr std::size_t kShortest = 3;
    if (std::ranges::none_of(words, [](const std::string& word) { return word.size() >= kShortest; }))
        return;
    found.hits = holdingAll(context, words);
    found.fit = found.hits.empty() ? Fit::none : Fit::part;
    keepOfKind(found, question, context, name);
}

/// What the question says more of than a name: that it is to be got back, a part of a program, or a kind.
std::optional<Answer> aboutMeant(const Question& question, const AskContext& context, const AskedName& asked)
{
    if (asksBack(question)) {
        if (std::optional<Answer> back = gettingBack(question, context, asked.name))
            return back;
    }
    if (std::optional<Answer> part = aboutPart(question, context, asked))
        return part;
    const Found ofKind = asked.place.empty() ? ofKindNamed(question, context, asked.name) : Found();
    return ofKind.fit == Fit::none ? std::nullopt
                                   : std::optional(aboutFound(question, context, ofKind, asked.name));
}

std::optional<Answer> named(const Question& question, const AskContext& context)
{
    const AskedName asked = nameIn(question);
    const auto& [name, place] = asked;
    std::string folder = placeOf(question, context, asked);
    // "Is setup.exe any use on Linux": a file of that name is meant, whatever else is said.
    const bool isOfOther = hasOtherNames(question, name, place) &&
                           (question.count(Sense::quoted) != 1 || findNamed(context, name).fit < Fit::whole);
    if (isOfOther && context.home != nullptr && isFileName(question, name) && place.empty() &&
        question.count(Sense::quoted) == 0 && findNamed(context, name).fit == Fit::none)
        return notFound(allNames(question), context);
    if (name.empty() || isOfOther || (folder.empty() && !place.empty() && !isFileName(question, name)))
        return std::nullopt;
    if (std::optional<Answer> meant = aboutMeant(question, context, asked))
        return meant;
    const Subject* const subject = question.subject();
    const bool isNarrowed = subject != nullptr && !subject->kinds.empty();
    Found found = isNarrowed ? findNamed(context, name, subject->kinds) : Found();
    // "The mozilla downloads" are in that folder or nowhere.
    if (isNarrowed && found.fit == Fit::none && folder.empty())
        folder = folderOf(*subject);
    if (found.fit == Fit::none)
        found = foundOrMachine(question, context, name);
    if (!folder.empty()) {
        narrow(found, folder);
        const bool isThere = !found.hits.empty() || !found.measured.empty() || !found.trashed.empty();
        if (!isThere && PathText::extension(name).empty() && holdsSecrets(protectionOf(context, folder)))
            return guardedPlace(question, context, folder);
        if (!isThere)
            return Answer{Message{InsightTexts::kNotThere,
                                  {{"name", PathText::forDisplay(name)}, {"folder", tilde(folder)}}},
                          {}};
    }
    keepMeant(found, question, asked);
    narrowToSteam(found, question, context, name);
    if (found.fit == Fit::none)
        lookAtParts(found, question, context, name);
    const std::string guarded = protectedPath(question, context, name);
    const std::string program = programNameIn(name).name;
    const bool isOfSize = program == name && asksSize(question);
    if ((guarded.empty() || isOfSize) && !isNarrowed && isOfProgram(found, question, asked)) {
        if (std::optional<Answer> places = aboutPlaces(question, context, {program, PlacePart::all}))
            return places;
    }
    const bool isSure = found.fit >= Fit::stem && isSureOf(found, question, asked);
    if (!isSure && !isNarrowed) {
        if (std::optional<Answer> app = aboutApp(context, name, toldOf(question)))
            return app;
    }
    if (!guarded.empty() && (found.fit < Fit::whole || !isSure || isOfMail(question)))
        return guardedPlace(question, context, guarded);
    if (found.fit < Fit::stem && found.measured.empty() && !isFileName(question, name) &&
        !mayBePartOfName(question))
        return std::nullopt;
    if (!found.hits.empty()) {
        Answer listed = listedHits(context, found, PathText::forDisplay(name));
        const bool isOther = !guarded.empty() && !isNarrowed && pathIn(name).empty() && place.empty();
        return isOther ? shielded(question, context, guarded, std::move(listed)) : std::move(listed);
    }
    if (!found.measured.empty())
        return measuredOnly(question, context, found, PathText::forDisplay(name));
    if (!found.trashed.empty())
        return inTrash(found);
    if (context.home != nullptr && isKnownPlace(name))
        return asksSize(question) || isProgramOfPlace(name) ? notFound(name, context)
                                                            : Answer{InsightTexts::kNeverTouched, {}};
    return isFileName(question, name) ||
                   (context.home != nullptr &&
                    (isNoWord(name) || (isWordOfNames(name) && mayBePartOfName(question))))
               ? std::optional(notFound(name, context))
               : std::nullopt;
}

} // namespace

namespace {

/// "What is baloo", where nothing of the home folder is called so.
std::optional<Answer> whatIsCalledSo(const Question& question, const std::optional<Answer>& answer,
                                     const AskContext& context)
{
    constexpr SenseSet kAsked{Sense::what, Sense::unknown, Sense::quoted, Sense::folder, Sense::general};
    const std::string name = nameIn(question).name;
    const bool isFound = answer && (!answer->paths.empty() || !answer->findingIDs.empty());
    if (isFound || context.home == nullptr || !question.senses.has(Sense::what) ||
        !question.senses.isWithin(kAsked))
        return std::nullopt;
    const Message what = whatIsNamed(name);
    return what.empty() ? std::nullopt
                        : std::optional(Answer{AskText::sentences({what, notFound(name, context).text}), {}});
}

} // namespace

std::optional<Answer> aboutName(const Question& question, const AskContext& context)
{
    // What starts at login is no question about the folders of a program.
    if (std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
            return phrase.subject != nullptr && phrase.subject->id == SubjectID::startup;
        }))
        return std::nullopt;
    const Question listed = withListedNames(question, context);
    if (std::optional<Answer> sum = sumOfNamed(listed, context))
        return sum;
    std::optional<Answer> answer = aboutFolderOfProject(question, context);
    if (!answer && listed.count(Sense::unknown) > question.count(Sense::unknown))
        return std::nullopt;
    if (!answer)
        answer = named(question, context);
    if (std::optional<Answer> known = whatIsCalledSo(question, answer, context))
        return known;
    // Of what has no rating, it is the best reason there is.
    constexpr SenseSet kToGo{Sense::remove, Sense::safe, Sense::keep, Sense::can, Sense::makeRoom};
    const bool isUnrated = answer && answer->findingIDs.empty() && answer->paths.size() == 1 &&
                           protectionOf(context, answer->paths.front()) == Protection::none;
    const bool asksWhat = question.senses.has(Sense::what) || (isUnrated && question.senses.meets(kToGo));
    if (!answer || answer->paths.size() != 1 || (!asksWhat && asksSize(question)))
        return answer;
    const Message what = asksWhat ? whatItIs(answer->paths.front(), context)
                                  : whatMakesItAgain(answer->paths.front(), context);
    if (!what.empty())
        answer->text = AskText::sentences({what, std::move(answer->text)});
    return answer;
}

std::optional<Answer> aboutWordsOfName(const Question& question, const AskContext& context)
{
    constexpr std::size_t kFew = 3;
    const Found found = holdingWordsOf(question, context);
    const std::size_t count = found.hits.size() + found.measured.size();
    return count == 0 || count > kFew
               ? std::nullopt
               : std::optional(aboutFound(question, context, found, nameIn(question).name));
}

std::optional<Answer> backByWords(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOfNames{Sense::subject, Sense::oldest, Sense::newest, Sense::unknown};
    std::string name;
    for (const Phrase& phrase : question.phrases) {
        if (kOfNames.has(phrase.sense))
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    const Found found = findTrashed(context, name);
    return found.hits.empty() && found.trashed.empty() ? std::nullopt : gettingBack(question, context, name);
}

std::optional<Answer> aboutSureName(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOfName{Sense::unknown, Sense::quoted,  Sense::subject, Sense::general,
                               Sense::folder,  Sense::cleanUp, Sense::advise,  Sense::space};
    const auto [name, place] = nameIn(question);
    // "The mozilla cache"
    const Subject* const subject = question.subject();
    const bool isOfKind =
        (subject != nullptr && !subject->kinds.empty() &&
         findNamed(context, name, subject->kinds).fit >= Fit::words) ||
        (question.senses.isWithin(kOfName.with({Sense::ending})) &&
         ofKindNamed(question, context, name).fit != Fit::none) ||
        (question.senses.isWithin({Sense::unknown}) && findNamed(context, name).fit >= Fit::words) ||
        !hitsOfSteam(question, context, name).empty();
    const bool isOfNoProgram = question.senses.isWithin({Sense::unknown, Sense::subject}) &&
                               subject != nullptr && subject->id == SubjectID::caches;
    const bool isOfProgram = !name.empty() && place.empty() && isPlainName(name) &&
                             question.senses.isWithin(kOfName) &&
                             (isProgram(context, programIn(question, name)) ||
                              placesOf(context, programIn(question, name)).fit != Fit::none);
    if (std::optional<Answer> sum = sumOfNamed(withListedNames(question, context), context))
        return sum;
    if (question.senses.isWithin(kOfName)) {
        if (std::optional<Answer> folder = aboutFolderOfProject(question, context))
            return folder;
    }
    if (name.empty() || hasOtherNames(question, name, place) ||
        (!isOfKind && !isOfProgram && !isOfNoProgram && !isFileName(question, name) &&
         protectedPath(question, context, name).empty()))
        return std::nullopt;
    return aboutName(question, context);
}

} // namespace orlen::AskReader
