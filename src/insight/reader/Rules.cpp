#include "insight/reader/Rules.h"

#include "insight/reader/CopyReplies.h"
#include "insight/reader/ForecastReplies.h"
#include "insight/reader/GameReplies.h"
#include "insight/reader/GrowthReplies.h"
#include "insight/reader/HistoryReplies.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/NameReplies.h"
#include "insight/reader/NamedFolders.h"
#include "insight/reader/ProgramReplies.h"
#include "insight/reader/RoomReplies.h"
#include "insight/reader/RuleReplies.h"
#include "insight/reader/SpaceReplies.h"
#include "insight/reader/StartupReplies.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/UnusedApps.h"
#include "insight/reader/WhatIfReplies.h"

#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using enum Sense;
using Responder = std::optional<Answer> (*)(const Question&, const AskContext&);

/// A reply and the questions it is for.
struct Rule {
    std::vector<SenseSet> needs; ///< one sense of each set
    SenseSet allows;             ///< may stand beside them; any other sense, and the rule is not for it
    Responder reply;
};

constexpr SenseSet kAsking{what, can, when, general, howMany, howMuch, howBig, takes};
constexpr SenseSet kSpaceWords{disk, space, total, used, free, takes};
constexpr SenseSet kSorting{biggest, smallest, oldest, newest, most};
constexpr SenseSet kComparing{above, below, before, after, since, unopened};
constexpr SenseSet kListWords{what,    howBig,  howMany, howMuch, subject, size,   number,   period,
                              inside,  general, disk,    unknown, quoted,  last,   can,      remove,
                              space,   takes,   folder,  safe,    keep,    advise, makeRoom, used,
                              happens, except,  review,  mean,    hidden};
constexpr SenseSet kListing = kSorting.with(kComparing).with(kListWords);
constexpr SenseSet kRemoving{remove, makeRoom, cleanUp, advise, safe};
constexpr SenseSet kProgramWords{
    what,    howBig, howMuch, howMany, can,      remove,    uninstall, unopened, takes,     space,    general,
    inside,  disk,   why,     when,    negation, used,      number,    biggest,  untouched, keep,     safe,
    advise,  full,   subject, folder,  most,     period,    newest,    oldest,   smallest,  makeRoom, since,
    ordinal, last,   total,   cleanUp, happens,  installed, above,     below,    size,      except};

bool isFor(const Rule& rule, SenseSet senses)
{
    SenseSet known = rule.allows;
    for (const SenseSet need : rule.needs) {
        if (!senses.meets(need))
            return false;
        known = known.with(need);
    }
    return senses.isWithin(known);
}

/// What is asked about a name is understood, or does not matter.
std::optional<Answer> aboutAnyName(const Question& question, const AskContext& context)
{
    static const Rule usual{
        {{unknown, quoted},
         {what, howBig, howMuch, can, remove, safe, why, keep, undo, happens, untouched, takes, makeRoom}},
        {unknown, quoted,   what,    howBig,   howMuch,   can,    remove,  safe,      why,    keep,   review,
         mean,    undo,     subject, space,    used,      inside, general, disk,      free,   folder, takes,
         cleanUp, makeRoom, happens, negation, uninstall, trust,  self,    untouched, advise, full,   ending},
        aboutName};
    return isFor(usual, question.senses) ? aboutName(question, context) : aboutSureName(question, context);
}

/// In this order; the first whose senses fit and that has an answer gives it.
const std::vector<Rule>& rules()
{
    static const std::vector<Rule> inOrder{
        // What would be
        {{{howMuch, howBig},
          {remove, makeRoom, except},
          {subject, unknown, quoted, ending, safe, review, except}},
         kSpaceWords.with({can,    general, inside, folder,   size,   above,   below,   before,
                           after,  keep,    period, what,     mean,   lasts,   undo,    safe,
                           oldest, review,  ending, unopened, quoted, cleanUp, unknown, subject}),
         freedByThem},
        {{{howMuch, howBig}, {happens}, {space, free}, {subject, unknown, quoted, ending, safe}},
         kSpaceWords.with({general, lasts, ending, quoted, subject}),
         freedByThem},
        {{{free}, {space}, {except}}, {general, total}, freedByThem},
        {{{free, space}, {remove, makeRoom}, {subject, unknown, quoted, ending, safe}},
         kSpaceWords.with({happens, after, general, lasts, mean, folder, ending, quoted, subject}),
         freedByThem},
        {{{remove, makeRoom, cleanUp}, {subject, unknown, quoted, ending}, {size}},
         kSpaceWords.with({can, general, makeRoom, remove, cleanUp, folder, subject, unknown, ending}),
         isThatMuch},
        // Orlen itself
        {{{rhythm}}, kAsking.with({cleanUp, remove, makeRoom, disk, space, subject, advise}), howOften},
        {{{rights}}, kAsking.with({negation, remove, privacy, why, cleanUp, subject, self}), whichRights},
        {{{vacant}}, SenseSet::all(), emptyFolders},
        {{{ownRemoval}}, kAsking.with({why, negation, disk, remove, uninstall, self}), howItIsRemoved},
        {{{resident}},
         kAsking.with({why, negation, self, inside, space, takes, disk, speed, period}),
         whenItRuns},
        {{{deletes}},
         {can, subject, general, what, when, negation, keep, safe, inside, disk, folder, untouched},
         deletesNothing},
        {{{reads}},
         {can, subject, general, unknown, quoted, inside, folder, disk, keep, privacy, hidden, safe, what,
          ending},
         whyTrust},
        {{{what}, {negation}}, {general, can}, whatItDoesNot},
        {{{lastUse}, {unknown, quoted}}, {what, when, general, subject}, lastUseOf},
        {{{when}, {unopened}, {unknown, quoted}}, {what, general, subject, last}, lastUseOf},
        {{{self}}, {what, can, general}, whatOrlenAnswers},
        {{{beyond}},
         {what, can,   general, disk, why,  privacy, safe,    howMuch,  howBig, general, subject, takes,
          make, trust, remove,  what, free, used,    cleanUp, makeRoom, speed,  reads,   deletes},
         whatIsNotItsJob},
        {{{trust}}, {what, can, general, privacy, safe, subject, mean, review, remove, why}, whyTrust},
        {{{privacy}},
         {what, can, disk, subject, safe, keep, general, when, why, negation, trust, inside, remove, opened,
          takes, mean},
         AskReader::privacy},
        {{{ruleOut}}, SenseSet::all(), howToExclude},
        {{{untouched}},
         {what, subject, can, remove, disk, inside, keep, general, folder, negation, safe, why},
         whatIsNeverTouched},
        {{{negation}, {remove}},
         {what, subject, can, folder, general, safe, keep, inside, disk},
         whatIsNeverTouched},
        {{{mean, above}, {safe, review, keep}, {mean, safe, review, keep}},
         {what, mean, above, safe, review, keep, general, takes},
         meaningOfRatings},
        {{{mean}, {safe, review, keep, subject}},
         {what, mean, can, inside, folder, takes, used, general, negation, remove, happens, why},
         meaningOfRatings},
        {{{mean}, {subject}}, {what, general, inside, can}, whatCounts},
        {{{what}, {review, keep}}, {safe, mean, review}, meaningOfRatings},
        {{{review}}, {safe, can, general}, meaningOfRatings},
        {{{what, can}, {keep}}, {subject, folder, general, safe, advise}, whatToKeep},
        {{{mean}}, {what, why, general, can}, meaningOfRatings},
        {{{happens}},
         {remove, cleanUp, what, can, subject, when, general, safe, undo, makeRoom, inside, privacy, before,
          after, space, deletes},
         whatHappens},
        {{{deletes}, {happens}}, {can, subject, general, what, when, inside, folder}, deletesNothing},
        {{{when}, {keep}},
         {subject, inside, undo, remove, cleanUp, general, what, can, makeRoom},
         howLongItIsKept},
        {{{undo}, {subject}, {oldest, newest, unknown}},
         {can, what, remove, general, inside, cleanUp, subject, oldest, newest, unknown},
         backByWords},
        {{{undo}, {size}}, {general, space, can, what, except, most, safe, advise, subject}, roomFor},
        {{{undo}},
         {cleanUp, last, can, what, subject, remove, inside, when, general, happens, period, folder, free,
          after},
         howToUndo},
        // Past clean-ups
        {{{cleanUp}, {last}, {unknown, quoted}},
         {what, howMuch, howMany, free, remove, opened, general, space, cleanUp, subject, inside, can, used,
          unknown},
         lastCleanUpFrom},
        {{{cleanUp, remove, free, makeRoom}, {soFar}},
         kAsking.with(
             {cleanUp, space, remove, total, subject, makeRoom, period, inside, since, after, before}),
         allCleanUps},
        {{{cleanUp}, {howMany}}, {what, general, last, subject, disk, period}, allCleanUps},
        {{{cleanUp, remove}, {total}, {howMuch, howBig, howMany}},
         {space, cleanUp, remove, general, what},
         allCleanUps},
        {{{cleanUp, remove, makeRoom}, {last}},
         {what, when, howMuch, howBig, howMany, free, remove, makeRoom, general, space, cleanUp, subject,
          happens, inside},
         lastCleanUp},
        {{{what, howMuch, howMany}, {cleanUp, remove}, {period}},
         {subject, cleanUp, inside, since, after, before, general, space, makeRoom},
         allCleanUps},
        {{{howMuch, howBig, howMany}, {makeRoom}, {period}},
         {what, cleanUp, inside, since, after, before, general, space},
         allCleanUps},
        {{{free}, {last}, {when, howMuch}}, {space, general, makeRoom}, lastCleanUp},
        {{{soFar}},
         kAsking.with({cleanUp, total, space, disk, period, since, inside, before, after}),
         allCleanUps},
        {{{cleanUp, remove}, {when}}, {general, last, subject, can}, lastCleanUp},
        {{{subject}, {unknown, quoted}},
         {what, can, general, number, howMany, takes, inside, disk, folder, installed, remove, safe, keep,
          ordinal},
         aboutCopies},
        {{{unknown, general}, {subject, oldest, newest, disk}},
         {what, can, remove, safe, howBig, keep, inside, folder, takes, makeRoom, oldest, newest, subject},
         aboutWordsOfName},
        // The disk
        {{{why}, {free, space, used, full, disk}, {since}},
         {what, general, period, remove, negation, howMuch, full, grow, most, takes, last},
         whatGrew},
        {{{speed}, {grow}},
         kSpaceWords.with({what, howMuch, howBig, full, general, inside, above, used, subject}),
         paceOfGrowth},
        {{{grow}, {unknown, quoted}},
         kSpaceWords.with({what, howMuch, howBig, last, since, after, period, inside, general, folder, most,
                           can, number, subject}),
         whatGrew},
        {{{grow}},
         kSpaceWords.with({what, howMuch, howBig, last, since, after, period, inside, general, folder, most,
                           why, biggest, number, subject, speed, newest}),
         whatGrew},
        {{{why, when, what}, {grow}, {size}},
         kSpaceWords.with({what, last, since, period, general, inside, negation, subject}),
         whatGrew},
        {{{newest}, {since}, {last}}, {what, general, disk, inside, folder}, whatGrew},
        {{{speed}, {full, disk, space, takes, used}},
         kSpaceWords.with({what, howMuch, howBig, full, grow, general, inside, above}),
         paceOfGrowth},
        {{{full}, {subject}}, {disk, space, general, what, takes, used}, fullByHome},
        {{{full}, {advise}}, kSpaceWords.with({what, can, general, why}), fullNow},
        {{{why}, {disk}, {full}},
         kSpaceWords.with({what, general, subject, number, negation, howMuch, biggest, only, size}),
         whyFull},
        {{{why}, {full, used, space, free, takes, disk}},
         kSpaceWords.with({full, what, general, above, below, biggest, most, negation, howMuch, why, size}),
         whyFull},
        {{{full}, {when, period}},
         kSpaceWords.with({what, can, before, general, inside, after, lasts, howMuch, negation}),
         fullWhen},
        {{{lasts}, {when, period}},
         kSpaceWords.with({size, what, can, before, general, inside, full, last, howMuch, negation}),
         fullWhen},
        {{{size}, {before}, {period}}, kSpaceWords.with({can, lasts, full, what, general}), roomLater},
        {{{last}, {disk, space}, {period}}, {before, can, general, what, inside}, roomLater},
        {{{space, disk, free, used}, {period}},
         kSpaceWords.with({what, can, before, general, inside, howMuch, howBig, lasts, negation, full}),
         roomLater},
        {{{when}, {size}, {lasts, last}}, kSpaceWords.with({can, general}), fullWhen},
        {{{when}, {space, disk}}, {full, last, takes, general, inside, lasts}, fullWhen},
        {{{lasts}, {space, disk}}, {free, full, last, takes, general, inside, can, what}, fullWhen},
        {{{full}, {can}}, kSpaceWords.with({before, general, when}), fullWhen},
        {{{what}, {full}}, kSpaceWords.with({general, most, what, biggest, inside}), whyFull},
        {{{makeRoom, free}, {size}},
         kSpaceWords.with({makeRoom, what, can, remove, general, above, howMuch, advise, cleanUp, undo,
                           except, subject, safe, most}),
         roomFor},
        {{{remove}, {size}},
         {what, can, space, disk, general, advise, above, howMuch, takes, makeRoom, except, safe, subject},
         roomFor},
        {{{howMuch, howBig}, {free, makeRoom, remove, can}, {subject}},
         {space, can, remove, general, disk, howBig, cleanUp, safe, folder, what, except, undo},
         freedBySubject},
        {{{size}}, {can, general, safe, except}, roomFor},
        {{{free}},
         kSpaceWords.with({howMuch, howBig, howMany, what, general, size, inside, negation, above, below}),
         spaceNow},
        {{{space, disk, free}, {size}}, kSpaceWords.with({can, what, general, inside, subject}), spaceNow},
        {{{used, total}},
         kSpaceWords.with({howMuch, howBig, howMany, what, full, general, inside, soFar, above}),
         spaceNow},
        {{{howBig, howMuch}, {disk, space}}, kSpaceWords.with({what, general, full, inside}), spaceNow},
        {{{full}}, kSpaceWords.with({howBig, howMuch, general, biggest}), fullNow},
        {{{disk, space}}, {general, total, what, disk, space, inside}, spaceNow},
        {{{why}, {subject}, {advise}},
         {general, negation, cleanUp, remove, makeRoom, can, safe, review},
         whyNotSuggested},
        // Applications and what belongs to them
        {{{subject}}, kProgramWords, aboutPrograms},
        {{{subject}, {unknown, quoted}}, kProgramWords, startupOf},
        {{{installed}, {unknown, quoted}}, {what, can, general, disk, subject}, isInstalled},
        {{{unknown, quoted}, {number}, {what, remove, howBig, howMuch, installed}},
         {what, can, general, takes, space, disk, subject, installed, safe},
         removingGame},
        {{{uninstall}},
         {what, can, subject, unknown, quoted, general, remove, disk, inside, number},
         uninstalling},
        // What has a rating
        {{{safe, review, keep}, {mean, size, period, biggest, oldest, newest, review}, {subject}},
         kListing.with({safe, review, keep, mean}),
         listOfRated},
        {{{safe, review, keep}, {mean, review}}, kListing.with({safe, review, keep, mean}), listOfRated},
        // What may go
        {{{subject}, {remove, makeRoom, cleanUp}},
         kRemoving.with(
             {what, can, inside, general, folder, disk, howMuch, free, space, subject, advise, ordinal}),
         cleaningDownloads},
        {{{what, howMuch, howBig, can, advise, safe, cleanUp, makeRoom, why}, kRemoving.with({free})},
         kRemoving.with({what, can,     howMuch, howBig, howMany, general, space, disk,    most,   takes,
                         full, ordinal, subject, free,   inside,  biggest, why,   happens, except, total}),
         whatMayGo},
        {{{what}, {folder}, {makeRoom, cleanUp, advise}},
         {can, ordinal, general, most, biggest, space, disk, subject},
         whatMayGo},
        {{{makeRoom, cleanUp, advise}}, {space, disk, can, subject, inside, free, except}, whatMayGo},
        {{{subject}, {remove}}, {general, disk}, whatMayGo},
        {{{above, below, takes, most}, {subject}},
         {what, general, space, disk, can, biggest, howMuch, howBig, howMany},
         comparison},
        {{{used}, {subject}}, {what, general, disk, howMuch}, sizeOfSubject},
        // Lists
        {{{ending}, {howMany, howBig, howMuch}}, kListing.with({ending}), countOfFiles},
        {{{ending}}, kListing.with({ending, newest}), listOfFiles},
        {{{howMany}, {subject}}, kListing, countOfFiles},
        {{{howMany}, {folder}, {unknown, quoted}}, {what, general, disk}, foldersNamed},
        {{{called}, {unknown, quoted}}, {what, howMany, general, disk}, foldersNamed},
        {{{folder, hidden}, {biggest, smallest, most, takes, size, howMany}},
         kListing.with({folder, hidden}),
         listOfFolders},
        {{{folder}, {biggest, most, takes, howBig}},
         {what, inside, disk, subject, number, space, general, can, biggest, most, takes, used, except},
         biggestFolders},
        {{{hidden}}, kListing.with({hidden}), listOfFiles},
        {{{except}, {biggest, most, takes}}, kListing, listOfFiles},
        {{{howBig, howMuch}, {subject}},
         {what, space, used, total, disk, general, inside, takes, folder},
         sizeOfSubject},
        {{kSorting, {subject, number, inside, size}}, kListing, listOfFiles},
        {{kComparing, {size, period}}, kListing, listOfFiles},
        {{{newest}, {period}}, kListing, listOfFiles},
        {{{last}, {subject}}, {what, general, inside, folder, number}, listOfFiles},
        {{{subject}, {unopened}}, {what, howMany, general, can, remove, takes, folder}, neverOpened},
        {{kSorting, {unknown, quoted}}, kListing, listOfFiles},
        {{{howMany}, {unknown, quoted}}, kListing, countOfFiles},
        {{{subject}, {inside}, {subject, unknown, period, folder}}, kListing, listOfFiles},
        {{{subject}, {period}}, kListing, listOfFiles},
        {{{takes, full}, {inside}, {subject, unknown, quoted}},
         {what, space, disk, general, most, used, folder, howMuch, why},
         whatTakesIn},
        {{{biggest, most, takes}},
         {what, space, disk, general, subject, folder, takes, most, used},
         whatIsBiggest},
        // Kinds
        {{{howMany}, {subject}}, {what, space, used, total, disk, general, inside, takes}, sizeOfSubject},
        {{{subject}, {can, remove, safe, untouched, cleanUp}},
         {what, can, remove, safe, inside, review, keep, happens, general, folder, disk, why, makeRoom,
          advise, cleanUp},
         removingSubject},
        {{{subject}, {remove, safe, keep}}, kListing, listOfFiles},
        {{{what}, {subject}}, {general, folder}, whatSubjectIs},
        {{{what, why, mean}, {subject}},
         {what, why, mean, general, inside, size, disk, biggest, takes, full, space, used, most, howMuch},
         whatSystemIs},
        {{{why}, {subject}, {biggest, takes, full, grow, space, used}},
         {general, most, disk, what, folder, inside},
         sizeOfSubject},
        {{{why}, {subject}},
         {general, keep, safe, review, can, negation, remove, advise, cleanUp, makeRoom},
         whatSubjectIs},
        {{{subject}}, {what, disk, general, inside, howMany}, sizeOfSubject},
        {{{takes}, {subject}}, {what, space, general, disk, howMuch}, sizeOfSubject},
        {{{subject}}, kListing, listOfBoth},
        {{{except}, {subject}}, kListing, listOfFiles},
        // Names
        {{{what}, {inside}, {unknown, quoted}}, {folder, general}, contentsOf},
        {{{unknown, quoted}}, SenseSet::all(), aboutAnyName},
        {{{subject}, {unknown, quoted}}, {general, number, howMany, inside}, listOfFiles},
        {{{untouched}, {unknown}}, {what, can, general, safe, keep, inside}, whatIsNeverTouched},
        {{{unknown, quoted}, {period}},
         {what, inside, Sense::before, after, since, general, howMany},
         listOfNamed},
    };
    return inOrder;
}

std::optional<Answer> firstReply(const Question& question, const AskContext& context)
{
    for (const Rule& rule : rules()) {
        if (!isFor(rule, question.senses))
            continue;
        if (std::optional<Answer> found = rule.reply(question, context))
            return found;
    }
    return std::nullopt;
}

} // namespace

std::optional<Answer> replyByRule(const Question& question, const AskContext& context)
{
    if (std::optional<Answer> found = firstReply(question, context))
        return found;
    // These words decide nothing by themselves: no rule has to know them.
    constexpr SenseSet kWeak{general, can, ordinal};
    std::vector<Phrase> strong;
    for (const Phrase& phrase : question.phrases) {
        if (!kWeak.has(phrase.sense))
            strong.push_back(phrase);
    }
    if (strong.empty() || strong.size() == question.phrases.size() ||
        question.senses.meets({unknown, quoted}))
        return std::nullopt;
    return firstReply(withPhrases(question, std::move(strong)), context);
}

} // namespace orlen::AskReader
