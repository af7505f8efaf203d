#pragma once

#include "model/Rating.h"
#include "model/Text.h"

/// What the forecast and the answers say. The names of what a question can be about stand in their table, and
/// so do those of the matcher's topics.
namespace orlen::InsightTexts {

/// A sentence for each rating, since the word for it may change those around it.
struct RatedText {
    Text safe;
    Text review;
    Text keep;

    [[nodiscard]] constexpr Text of(Rating rating) const
    {
        switch (rating) {
        case Rating::safe:
            return safe;
        case Rating::review:
            return review;
        case Rating::keep:
            return keep;
        }
        return {};
    }
};

// The forecast. A headline has no full stop.
inline constexpr Text kStillLearning = message("Still learning your Mac");
inline constexpr Text kTooFewScans =
    message("Orlen needs scans taken at least several hours apart (ideally days) to estimate growth. Each "
            "Smart Scan adds a data point, stored only on this Mac.");
// TRANSLATORS: {time} is one of the next five messages.
inline constexpr Text kNearlyFull = message("Disk nearly full in {time}");
inline constexpr Text kLessThanADay = message("less than a day");
inline constexpr Text kAboutDays = messages("about {count} day", "about {count} days");
inline constexpr Text kAboutWeeks = messages("about {count} week", "about {count} weeks");
inline constexpr Text kAboutMonths = messages("about {count} month", "about {count} months");
inline constexpr Text kMoreThanTwoYears = message("more than 2 years");
inline constexpr Text kGrowing =
    // TRANSLATORS: {size} and {free} are sizes.
    message("Used space is growing by about {size} per day, and {free} is free.");
inline constexpr Text kStable = message("Your free space is stable");
inline constexpr Text kNotGrowing = messages("Based on {count} scan, used space isn't growing.",
                                             "Based on {count} scans, used space isn't growing.");
// TRANSLATORS: a headline of the forecast, as a sentence, and the sentences below it.
inline constexpr Text kForecast = message("{headline}. {detail}");

// Who answers.
inline constexpr Text kByModel =
    message("Answers come from your scan, written by Apple's on-device language model.");
inline constexpr Text kByMatcher =
    message("Answers come from your scan, using Orlen's built-in on-device matcher.");

// Parts of a list in a sentence.
// TRANSLATORS: {name} is a file or folder, or a group of them such as "Log files".
inline constexpr Text kNamed = message("{name} ({size})");
// TRANSLATORS: {category} is "Apps", "Photos" and so on.
inline constexpr Text kCategory = message("{category} {size}");

// Of the whole disk.
inline constexpr Text kNoScan =
    message("I don't have scan results yet. Run a Smart Scan from the Home screen and ask me again.");
// TRANSLATORS: {categories} is a list: "Apps 12 GB, Media 3 GB".
inline constexpr Text kByCategory = message("By category: {categories}.");
// TRANSLATORS: {findings} is a list: "Trash (3 GB), Log files (2 MB)".
inline constexpr Text kLargestFindings = message("The largest findings are {findings}.");
inline constexpr Text kScanForBreakdown = message("Run a Smart Scan for a detailed breakdown.");
inline constexpr Text kScanForFindings = message("Run a Smart Scan to see what could go.");
// TRANSLATORS: {free}, {total} and {used} are sizes; {share} is a number of per cent.
inline constexpr Text kVolume = message("{free} is free of {total}; {used} is used ({share}).");
// TRANSLATORS: the answer to "Do I have 20 GB free?"
inline constexpr Text kYes = message("Yes.");
// TRANSLATORS: the answer to "Do I have 20 GB free?"
inline constexpr Text kNo = message("No.");
// TRANSLATORS: {category} is "Apps", "Photos" and so on.
inline constexpr Text kGrowsFastest = message("{category} grows the fastest, by about {size} per day.");
// TRANSLATORS: the answer to "Will the disk be full by July?"
inline constexpr Text kProbablyYes = message("Probably yes.");
// TRANSLATORS: the answer to "Will the disk be full by July?"
inline constexpr Text kProbablyNot = message("Probably not.");
inline constexpr Text kFullAround = message("At the present pace your disk will be full around {date}.");
// TRANSLATORS: the answer to "When will my disk be full?"
inline constexpr Text kNotForLong = message("Not for more than 20 years at the present pace.");

// What grew. {date}, {first} and {last} are those of scans.
// TRANSLATORS: a list of folders follows.
inline constexpr Text kGrewSince = message("Since {date} these folders grew the most:");
// TRANSLATORS: {first} and {last} are dates; a list of folders follows.
inline constexpr Text kGrewBetween = message("From {first} to {last} these folders grew the most:");
// TRANSLATORS: {path} is a folder, {size} what it grew by, {now} its size.
inline constexpr Text kGrewFolder = message("• {path}: {size} more, {now} in all");
inline constexpr Text kNothingGrew = message("No folder has grown much since {date}.");
// TRANSLATORS: {first} and {last} are dates.
inline constexpr Text kNothingGrewBetween = message("No folder grew much from {first} to {last}.");
inline constexpr Text kFolderGrew =
    message("Since {date} the folder {folder} has grown by {size}; it takes {now} now.");
// TRANSLATORS: {first} and {last} are dates.
inline constexpr Text kFolderGrewBetween =
    message("From {first} to {last} the folder {folder} grew by {size}, to {now}.");
inline constexpr Text kFolderNotGrown = message("Since {date} the folder {folder} has not grown.");
// TRANSLATORS: {first} and {last} are dates.
inline constexpr Text kFolderNotGrownBetween =
    message("From {first} to {last} the folder {folder} did not grow.");
// TRANSLATORS: {date} is that of the first scan; the answer to what grew in a time before it.
inline constexpr Text kNoScanBefore =
    message("No scan is from before {date}, so there is nothing to compare with yet.");
inline constexpr Text kNothingToCompare =
    message("There are no two scans to compare yet. Each Smart Scan notes how big your folders are.");

// What could be freed. {findings} is a list as above.
inline constexpr Text kCouldFree =
    message("You could free about {size} from items rated Safe: {findings}. Ratings are suggestions, so you "
            "can look at every file before anything moves to the Trash.");
inline constexpr Text kNoSafeItems = message("Nothing is rated Safe right now. Look at the Review items, "
                                             "remembering these ratings are suggestions.");
inline constexpr Text kSafeIsEnough =
    // TRANSLATORS: {wanted} is the size asked for; {size} is that of all the findings.
    message("To free {wanted}, what is rated Safe is enough: {findings}, {size} in all.");
inline constexpr Text kNothingSafe = message("Nothing is rated Safe.");
inline constexpr Text kAllSafe = message("Everything rated Safe frees {size}: {findings}.");
inline constexpr Text kForTheRest =
    message("For the rest of {wanted}, look through what is rated Review: {findings}.");
inline constexpr Text kTooLittle = message("Together that is less than {wanted}.");
inline constexpr Text kNothingMovesYet =
    message("Nothing moves before you have seen the list, and space comes back once you empty the Trash.");

// The Downloads folder.
inline constexpr Text kNoDownloads =
    message("I didn't find anything in Downloads that looks worth removing. Items there are only listed if "
            "they're old or duplicated.");
inline constexpr Text kDownloads =
    // TRANSLATORS: a list of files follows.
    messages("Downloads has {count} item you haven't touched in over a month, about {size}:",
             "Downloads has {count} items you haven't touched in over a month, about {size}:");
inline constexpr Text kDownload = message("• {name} — {size}");
inline constexpr Text kInstallersFirst =
    message("Installers (.dmg, .pkg) are usually safe to remove; check the rest first.");

// Findings. {title} is that of one: "Log files".
// TRANSLATORS: {title} is a group of files such as "Log files"; a sentence that says why follows.
inline constexpr RatedText kRated{message("{title}: {size} — rated Safe."),
                                  message("{title}: {size} — rated Review."),
                                  message("{title}: {size} — rated Keep.")};
// TRANSLATORS: stands behind the sentences about a group of files.
inline constexpr Text kItemsOfIt = messages("({count} item)", "({count} items)");
inline constexpr Text kNothingKept =
    message("Nothing in the last scan is rated Keep. Keep means a name looks like an invoice, tax, contract "
            "or similar paperwork, or a known system-sync location.");
// TRANSLATORS: {names} is a list of up to three file names.
inline constexpr Text kKept = messages("{count} item(s) are rated Keep, such as {names}. Their names or "
                                       "locations suggest they matter.",
                                       "{count} item(s) are rated Keep, such as {names}. Their names or "
                                       "locations suggest they matter.");

// TRANSLATORS: stands before an answer from which the person wanted something left out. {names} is a list:
// "photos, ~/Downloads".
inline constexpr Text kLeftOut = message("Left out: {names}.");

// Lists of files. {files} is the name of an `AskReader::Subject`, perhaps with conditions: "videos over 3 GB
// in ~/Videos".
inline constexpr Text kFiles = messageIn("files, within a sentence", "files");
// TRANSLATORS: {files} is "videos" and the like, perhaps already with a condition such as this one.
// TRANSLATORS: {rating} is "Safe", "Review" or "Keep".
inline constexpr Text kFilesRated = message("{files} rated {rating}");
// TRANSLATORS: {files} is "videos" and the like, perhaps already with a condition such as this one.
inline constexpr Text kFilesOver = message("{files} over {size}");
inline constexpr Text kFilesUnder = message("{files} under {size}");
inline constexpr Text kFilesOpenedBefore = message("{files} last opened before {date}");
inline constexpr Text kFilesChangedBefore = message("{files} last changed before {date}");
inline constexpr Text kFilesChangedSince = message("{files} changed since {date}");
// TRANSLATORS: {first} and {last} are dates.
inline constexpr Text kFilesChangedBetween = message("{files} last changed from {first} to {last}");
inline constexpr Text kFilesIn = message("{files} in {folder}");
// TRANSLATORS: {files} is "videos" or "videos over 3 GB in ~/Videos". It cannot change its form: if it has
// to, say it in another way, such as "{files}: the last scan lists …".
inline constexpr Text kFilesListed = messages("Of {files} the last scan lists {count}, {size} in all.",
                                              "Of {files} the last scan lists {count}, {size} in all.");
inline constexpr Text kFolders = messageIn("files, within a sentence", "folders");
inline constexpr Text kFilesHidden = message("hidden {files}");
// TRANSLATORS: {files} is as above; {ending} is ".mp3".
inline constexpr Text kFilesEnding = message("{files} ending in {ending}");
// TRANSLATORS: {files} is "videos" or "videos over 3 GB in ~/Videos". It cannot change its form: if it has
// to, say it in another way, such as "{files}: there are …".
inline constexpr Text kFilesThere =
    messages("Of {files} there is {count}, {size} in all.", "Of {files} there are {count}, {size} in all.");
// TRANSLATORS: {files} is "videos" or "videos over 3 GB in ~/Videos".
inline constexpr Text kNoFilesThere = message("I found no {files}.");
// TRANSLATORS: a list of files follows.
inline constexpr Text kTheBiggest = message("The biggest:");
// TRANSLATORS: a list of files follows.
inline constexpr Text kTheSmallest = message("The smallest:");
// TRANSLATORS: a list of files follows.
inline constexpr Text kTheOldest = message("The oldest:");
// TRANSLATORS: a list of files follows.
inline constexpr Text kTheNewest = message("The newest:");
// TRANSLATORS: {rating} is "Safe", "Review" or "Keep".
inline constexpr Text kFileChanged = message("• {path} ({size}), changed {date} — {rating}");
inline constexpr Text kFileOpened = message("• {path} ({size}), opened {date} — {rating}");
inline constexpr Text kFileUnrated = message("• {path} ({size}), changed {date}");
inline constexpr Text kOpenedUnrated = message("• {path} ({size}), opened {date}");
// TRANSLATORS: {line} is one of a list such as "• ~/a.zip (3 GB), changed 4 March 2024"; {title} is a group
// of files such as "Log files"; {rating} is "Safe", "Review" or "Keep".
inline constexpr Text kListedLine = message("{line} — {title}, {rating}");
// TRANSLATORS: {line} is as above; Orlen never moves it.
inline constexpr Text kProtectedLine = message("{line} — protected");
inline constexpr Text kSmallestLeftOut =
    message("Your home folder holds more files than Orlen keeps in mind: the smallest in caches and hidden "
            "folders are left out.");
inline constexpr Text kFileUndated = message("• {path} ({size}) — {rating}");
inline constexpr Text kNoneListed =
    // TRANSLATORS: {files} is "videos" or "videos over 3 GB in ~/Videos".
    message("The last scan lists no {files}. It lists only what may be worth a look: large, old, duplicate "
            "and similar files.");
// TRANSLATORS: {files} is "videos" and the like.
inline constexpr Text kNoneSuggested = message("The last scan suggests no {files} for a clean-up.");
// TRANSLATORS: {files} is "videos" and the like.
inline constexpr Text kNoneFound = message("The last scan found no {files} to clean up.");
// TRANSLATORS: {files} is "videos" and the like.
inline constexpr Text kSomeListed = messages("Of {files} the last scan lists {count} item, {size}; it "
                                             "doesn't list those it sees no reason to move.",
                                             "Of {files} the last scan lists {count} items, {size}; it "
                                             "doesn't list those it sees no reason to move.");
inline constexpr Text kWithoutThem =
    // TRANSLATORS: {files} is "log files" and the like; {size} and {safe} are sizes.
    messages("Without the {files} that the last scan lists you would have {size} more ({count} item, "
             "{size}); {safe} of that is rated Safe. Space comes back once you empty the Trash.",
             "Without the {files} that the last scan lists you would have {size} more ({count} items, "
             "{size}); {safe} of that is rated Safe. Space comes back once you empty the Trash.");
// TRANSLATORS: {category} is "Apps", "Photos" and so on.
inline constexpr Text kCategoryTakes = message("The category {category} takes {size}.");
inline constexpr Text kFolderTakes = message("The folder {folder} takes {size}.");

// A file or folder by its name. {title} is that of a finding; {note} a few words or a sentence about it.
inline constexpr RatedText kListedAs{
    // TRANSLATORS: {title} is a group of files such as "Log files".
    message("{name} ({size}) in {folder}, listed under “{title}”, is rated Safe."),
    message("{name} ({size}) in {folder}, listed under “{title}”, is rated Review."),
    message("{name} ({size}) in {folder}, listed under “{title}”, is rated Keep.")};
inline constexpr RatedText kListedWithNote{
    // TRANSLATORS: {title} is a group of files such as "Log files"; {note} says more about this one.
    message("{name} ({size}) in {folder}, listed under “{title}”, is rated Safe ({note})."),
    message("{name} ({size}) in {folder}, listed under “{title}”, is rated Review ({note})."),
    message("{name} ({size}) in {folder}, listed under “{title}”, is rated Keep ({note}).")};
// TRANSLATORS: a list of these files follows.
inline constexpr Text kItemsFit = messages("{count} item fits “{name}”:", "{count} items fit “{name}”:");
// TRANSLATORS: {title} is a group of files such as "Log files".
inline constexpr RatedText kFitting{message("• {path} ({size}) — {title}, rated Safe."),
                                    message("• {path} ({size}) — {title}, rated Review."),
                                    message("• {path} ({size}) — {title}, rated Keep.")};
// TRANSLATORS: {title} is a group of files such as "Log files"; {note} says more about this one.
inline constexpr RatedText kFittingWithNote{message("• {path} ({size}) — {title}, rated Safe ({note})."),
                                            message("• {path} ({size}) — {title}, rated Review ({note})."),
                                            message("• {path} ({size}) — {title}, rated Keep ({note}).")};
// TRANSLATORS: the end of a list of files.
inline constexpr Text kMoreFit = messages("… and {count} more.", "… and {count} more.");
// TRANSLATORS: {category} is "Apps", "Photos" and so on.
inline constexpr Text kCountsFor = message("{path} ({size}) counts for {category}.");
inline constexpr Text kFileTakes = message("{path} takes {size} and was last changed on {date}.");
// TRANSLATORS: follows a sentence about a folder.
inline constexpr Text kListedInside =
    messages("In it the last scan lists {count} item, {size}; {safe} of that is rated Safe.",
             "In it the last scan lists {count} items, {size} in all; {safe} of that is rated Safe.");
inline constexpr Text kNotSuggested =
    message("The last scan doesn't suggest it for a clean-up, so Orlen has no rating for it.");
inline constexpr Text kLookFirst = message("Look at it before you remove it.");
// TRANSLATORS: {title} is a group of files such as "Log files"; {rating} is "Safe", "Review" or "Keep".
inline constexpr Text kPartOf = message("It is part of {path}, listed under “{title}” and rated {rating}.");
inline constexpr Text kNowhere = message("I find nothing called “{name}” in your home folder.");
inline constexpr Text kNotThere = message("I find nothing called “{name}” in {folder}.");
inline constexpr Text kTrashedEarlier = message("{path} ({size}) was moved to the Trash by an earlier "
                                                "clean-up. History can put it back.");
inline constexpr Text kNotListed =
    // TRANSLATORS: "orlen explain" is a command.
    message("“{name}” is not in the results of the last scan, so I have no rating for it. Check what it is "
            "before you remove it; “orlen explain” with its path tells more.");

// What a clean-up would do.
inline constexpr Text kMovesIt = message("A clean-up moves it to the Trash, and History can put it back.");
inline constexpr Text kMovesTicked =
    message("A clean-up moves what you tick to the Trash, and History can put it back.");
inline constexpr Text kBetterLeaveIt = message("Better leave it where it is. A clean-up would move it to the "
                                               "Trash, and History could put it back.");
inline constexpr Text kInTrash = message("It is already in the Trash; Orlen never empties it for you.");
// TRANSLATORS: {group} is a heading such as "Browser profiles"; {reason} is a whole sentence.
inline constexpr Text kItIsProtected = message("It is protected, because it belongs to “{group}”: {reason}");
inline constexpr Text kPathIsProtected =
    // TRANSLATORS: {group} is a heading such as "Browser profiles"; {reason} is a whole sentence.
    message("{path} is protected, because it belongs to “{group}”: {reason} Orlen never moves it.");
inline constexpr Text kFolderIsProtected =
    // TRANSLATORS: {group} is a heading such as "Your main folders"; {reason} is a whole sentence.
    message("{folder} itself is protected, because it belongs to “{group}”: {reason}");
inline constexpr Text kSystemIsProtected =
    // TRANSLATORS: {reason} is a whole sentence.
    message("System data is protected: {reason} Orlen leaves it alone.");

// Applications and what belongs to them.
inline constexpr Text kAppTakes = message("The application {name} takes {size}.");
inline constexpr Text kAppUnmeasured =
    message("The application {name} is installed; its size is not measured yet.");
inline constexpr Text kAppRemoval =
    // TRANSLATORS: "orlen uninstall" is a command.
    message("The Applications screen removes it with what it leaves behind, and so does “orlen uninstall”; "
            "everything moves to the Trash.");
inline constexpr Text kAppUnknown = message(
    "“{name}” is not among the applications that Orlen lists. What your distribution brought is removed "
    "with its package manager.");
// TRANSLATORS: {apps} is a list: "Blender (3 GB), GIMP (500 MB)".
inline constexpr Text kBiggestApps =
    message("With their data, the biggest applications that Orlen lists are {apps}.");
inline constexpr Text kSmallestApps =
    // TRANSLATORS: {apps} is a list: "GIMP (500 MB), Blender (3 GB)".
    message("With their data, the smallest applications that Orlen lists are {apps}.");
inline constexpr Text kAppsListed =
    messages("Orlen lists {count} application.", "Orlen lists {count} applications.");
inline constexpr Text kAppsOver =
    // TRANSLATORS: {apps} is a list: "Blender (3 GB), GIMP (500 MB)".
    messages("With its data, {count} application takes more than {size}: {apps}.",
             "With their data, {count} applications take more than {size}: {apps}.");
inline constexpr Text kAppsUnder =
    // TRANSLATORS: {apps} is a list: "Blender (3 GB), GIMP (500 MB)".
    messages("With its data, {count} application takes less than {size}: {apps}.",
             "With their data, {count} applications take less than {size}: {apps}.");
inline constexpr Text kNoAppOver =
    message("No application that Orlen lists takes more than {size} with its data.");
inline constexpr Text kNoAppUnder =
    message("No application that Orlen lists takes less than {size} with its data.");
// TRANSLATORS: {apps} is a list: "Blender (3 GB, last used 4 March 2024), GIMP (500 MB, last used 1 May
// 2025)".
inline constexpr Text kUnusedApps =
    messages("{count} application was not used since {date}: {apps}.",
             "{count} applications were not used since {date}, the longest unused first: {apps}.");
// TRANSLATORS: One of the list. {size} is with what it has stored.
inline constexpr Text kAppLastUsed = message("{name} ({size}, last used {date})");
// TRANSLATORS: The same, of an application whose file was read then, likely because somebody started it.
inline constexpr Text kAppLastRead = message("{name} ({size}, file last read {date})");
inline constexpr Text kAllAppsUsed =
    message("Every application whose last use is known was used since {date}.");
inline constexpr Text kOtherUseIsUnknown =
    messages("When {count} other application was last used is not known.",
             "When {count} other applications were last used is not known.");
inline constexpr Text kUseIsUnknown = message("Orlen doesn't know when an application was last used.");
inline constexpr Text kAppsScreen =
    // TRANSLATORS: "orlen apps" is a command.
    message("The Applications screen lists applications with their sizes, and so does “orlen apps”.");
// TRANSLATORS: {names} is a list of programs.
inline constexpr Text kStartingItems = messages("{count} item starts when you log in: {names}.",
                                                "{count} items start when you log in: {names}.");
// TRANSLATORS: {names} is a list of programs.
inline constexpr Text kStoppedItems =
    messages("{count} item is switched off: {names}.", "{count} items are switched off: {names}.");
inline constexpr Text kStartupScreen =
    // TRANSLATORS: "orlen startup" is a command.
    message(
        "Startup Items lists what starts when you log in, with a switch for each; so does “orlen startup”.");
inline constexpr Text kContainers =
    // TRANSLATORS: what is in quotation marks are commands.
    message(
        "Orlen leaves containers alone. “podman system df” or “docker system df” shows what they take, and "
        "“orlen advice” how to free it.");
inline constexpr Text kFlatpaks =
    // TRANSLATORS: what is in quotation marks are commands.
    message(
        "“flatpak uninstall” removes a Flatpak application, and “flatpak uninstall --unused” what none of "
        "them needs any more; the Applications screen shows their sizes.");
inline constexpr Text kSnaps =
    // TRANSLATORS: what is in quotation marks are commands.
    message("“snap remove” removes a Snap, and “snap list --all” shows old versions; the Applications screen "
            "shows their sizes.");
// TRANSLATORS: a list of these folders follows.
inline constexpr Text kLeftovers = messages("{count} folder of removed applications takes {size}:",
                                            "{count} folders of removed applications take {size}:");
inline constexpr Text kNoLeftovers = message("I found no folders that removed applications left behind.");
inline constexpr Text kLeftoversScreen =
    // TRANSLATORS: "orlen leftovers" is a command.
    message("The Applications screen lists what removed applications left behind, and so does “orlen "
            "leftovers”.");
inline constexpr Text kInstalled = message("Yes: {name} is installed.");
inline constexpr Text kInstalledNoMore =
    message("{name} is not installed any more; its data still takes {size}.");
inline constexpr Text kSystemAdvice =
    // TRANSLATORS: “orlen advice” is a command.
    message(
        "That belongs to the system, which Orlen leaves alone. “orlen advice” tells what of it can be freed, "
        "such as old kernels, package downloads and logs, and with which command.");
inline constexpr Text kGames = message(
    "Games are best removed in the program that installed them. The disk map shows how much their folder "
    "takes.");

// TRANSLATORS: of a file or folder that was just named.
inline constexpr Text kStoresPasswords = message("It stores passwords: keep it.");

// Past clean-ups.
inline constexpr Text kNoCleanUp = message("There hasn't been a clean-up yet.");
inline constexpr Text kLastCleanUp =
    messages("Your last clean-up was on {date}: it moved {count} item, {size}, to the Trash.",
             "Your last clean-up was on {date}: it moved {count} items, {size}, to the Trash.");
inline constexpr Text kPutBack =
    // TRANSLATORS: follows the sentence about the last clean-up.
    messages("{count} item of it has been put back.", "{count} items of it has been put back.");
inline constexpr Text kCleanUps =
    messages("{count} clean-up since {date} moved {size} to the Trash in all.",
             "{count} clean-ups since {date} moved {size} to the Trash in all.");
// TRANSLATORS: {first} and {last} are dates.
inline constexpr Text kCleanUpsBetween =
    messages("From {first} to {last}, {count} clean-up moved {size} to the Trash.",
             "From {first} to {last}, {count} clean-ups moved {size} to the Trash.");
// TRANSLATORS: {first} and {last} are dates.
inline constexpr Text kNoCleanUpBetween = message("From {first} to {last} there was no clean-up.");
inline constexpr Text kHistoryListsThem = message("History lists them.");
inline constexpr Text kHowToRestore =
    // TRANSLATORS: "orlen history" and "orlen restore" are commands.
    message("To put things back, open History, choose the clean-up and restore it; or use “orlen history” "
            "and “orlen restore”.");
inline constexpr Text kUntilTrashIsEmptied =
    message("It works until the Trash is emptied; nothing is deleted by Orlen.");

// Orlen itself.
inline constexpr Text kPrivacy =
    message("Nothing leaves this computer. Orlen makes no network calls, has no accounts and uploads "
            "nothing; scanning, ratings and these answers all happen here.");
inline constexpr Text kNeverTouched =
    message("Orlen never touches what is protected: anything outside your home folder and the folders for "
            "applications; keys, passwords and keyrings; browser profiles, mail and chats; synced folders; "
            "and your own folders such as Documents and Pictures, though files in them may be suggested. It "
            "deletes nothing: what you tick moves to the Trash.");
inline constexpr Text kHowToExclude =
    // TRANSLATORS: “orlen exclude” is a command.
    message("How Orlen Works lists what is excluded, and adds a file, folder or name to it; so does “orlen "
            "exclude”. Orlen then neither suggests nor moves it.");
inline constexpr Text kSafeMeans =
    // TRANSLATORS: what the rating "Safe" means.
    message("Safe: data that programs create again by themselves, or that can be downloaded again. It is "
            "ticked for you.");
inline constexpr Text kReviewMeans =
    // TRANSLATORS: what the rating "Review" means.
    message("Review: probably no longer needed, but only you can tell. Look before you tick it.");
inline constexpr Text kKeepMeans = message(
    // TRANSLATORS: what the rating "Keep" means.
    "Keep: a name or place suggests that it matters, such as an invoice, a contract or tax papers. It "
    "is a warning, not a lock.");
inline constexpr Text kSystemMeans =
    // TRANSLATORS: what the category "System" means.
    message("System: everything on the disk that no other category counts, mostly the operating system "
            "itself. Orlen shows its size and leaves it alone.");
inline constexpr Text kRatingsAreSuggestions =
    message("Ratings are suggestions; nothing moves before you say so.");

inline constexpr Text kNotItsJob = message(
    "That is not what Orlen is for: it shows what takes up space, and moves to the Trash what you choose. "
    "It doesn't look for viruses, and it doesn't make the computer faster.");
inline constexpr Text kTrashIsYours =
    message("Orlen never empties the Trash: do that yourself when you're sure.");

// For what is not understood.
inline constexpr Text kHelp =
    // TRANSLATORS: the suggested questions are understood in every language: use their words for these.
    message("I can answer questions about your scan, for example “what is using the most space?”, “what can "
            "I delete from my Downloads folder?”, “are there duplicates?” or “when will my disk be full?”.");
inline constexpr Text kDontKnow =
    // TRANSLATORS: questions such as these are understood in English, German, French, Spanish and Italian:
    // translate them there, and don't speak of English. In another language, leave what is in quotation
    // marks.
    message("I don't know that. I can answer questions about a file or folder by name (“can I delete "
            "report.pdf?”), lists (“the five biggest videos”), free space, clean-ups and ratings.");

} // namespace orlen::InsightTexts
