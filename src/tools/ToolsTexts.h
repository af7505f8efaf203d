#pragma once

#include "model/Text.h"

/// What the tools have to say; the advice itself is in the table of its topics.
namespace orlen::ToolsTexts {

// The disk map

// The English is in JSON too, where the plural stands for one as well.
// TRANSLATORS: One rectangle of the map, for all that is too small for one of its own.
inline constexpr Text kSmallerItems = messages("{count} smaller items", "{count} smaller items");

// How much space something takes, which stands alone in a column or card

// TRANSLATORS: The space that something takes is this or more.
inline constexpr Text kAtLeast = message("at least {size}");
inline constexpr Text kNeedsAdministrator = message("needs administrator rights");
// TRANSLATORS: The space that something takes cannot be told.
inline constexpr Text kCannotBeTold = message("cannot be told");

// Applications that Orlen does not remove

inline constexpr Text kInstalledByFlatpak =
    // TRANSLATORS: {command} is a command to type, "flatpak uninstall" and so on.
    message("Installed by Flatpak. Remove it in your software centre or with: {command}");
inline constexpr Text kInstalledBySnap =
    message("Installed by Snap. Remove it in your software centre or with: {command}");

// The plan for an application and what it left

// TRANSLATORS: {name} is an application. Heading of what will happen, and later of what was done.
inline constexpr Text kUninstall = message("Uninstall {name}");
// TRANSLATORS: Heading as well, when there are several.
inline constexpr Text kUninstallSeveral =
    messages("Uninstall {count} application", "Uninstall {count} applications");
inline constexpr Text kApplication = message("Application");
// TRANSLATORS: What an application that is gone has stored.
inline constexpr Text kAppData = message("App data");
// TRANSLATORS: Files and folders that an application left behind.
inline constexpr Text kLeftovers = message("Leftovers");
inline constexpr Text kLeftBehind = message("Left behind by apps that are gone");

// Where an application has left something

inline constexpr Text kPreferences = messageIn("place of leftovers", "Preferences");
// TRANSLATORS: The folder for what applications store.
inline constexpr Text kApplicationSupport = messageIn("place of leftovers", "Application Support");
inline constexpr Text kCaches = messageIn("place of leftovers", "Caches");
// TRANSLATORS: The folders that applications in a sandbox have to themselves.
inline constexpr Text kContainers = messageIn("place of leftovers", "Containers");
// TRANSLATORS: What an application needs to look as it did when it was closed.
inline constexpr Text kSavedState = messageIn("place of leftovers", "Saved state");
inline constexpr Text kLogs = messageIn("place of leftovers", "Logs");
inline constexpr Text kNetworkStorage = messageIn("place of leftovers", "Network storage");
inline constexpr Text kWebData = messageIn("place of leftovers", "Web data");
inline constexpr Text kCookies = messageIn("place of leftovers", "Cookies");
// TRANSLATORS: What starts at login: services and autostart entries.
inline constexpr Text kLaunchAgents = messageIn("place of leftovers", "Launch Agents");
inline constexpr Text kScripts = messageIn("place of leftovers", "Scripts");
// TRANSLATORS: What starts an application: entries of the menu and links to its program.
inline constexpr Text kLaunchers = messageIn("place of leftovers", "Launchers");
inline constexpr Text kIconsAndMetadata = messageIn("place of leftovers", "Icons and metadata");
// TRANSLATORS: What an application keeps beside its own file, so that both can be carried together.
inline constexpr Text kPortableData = messageIn("place of leftovers", "Portable data");

// Why something is thought to be left over

// TRANSLATORS: Only the name of a file suggests that it is the application's.
inline constexpr Text kByNameOnly = message("Matched by name only");
inline constexpr Text kNoProgramSince =
    // TRANSLATORS: {name} is the name of a folder, and likely of a program. {year} is a number.
    message("No program named {name} is installed; not changed since {year}");
inline constexpr Text kNoProgramFor =
    messages("No program named {name} is installed; not changed for {count} day",
             "No program named {name} is installed; not changed for {count} days");
// TRANSLATORS: "A Flatpak" is an application from Flatpak.
inline constexpr Text kNoFlatpak = message("No Flatpak named {name} is installed");
inline constexpr Text kNoFlatpakSince =
    message("No Flatpak named {name} is installed; not changed since {year}");
inline constexpr Text kNoFlatpakFor =
    messages("No Flatpak named {name} is installed; not changed for {count} day",
             "No Flatpak named {name} is installed; not changed for {count} days");
// TRANSLATORS: "A Snap" is an application from Snap.
inline constexpr Text kNoSnap = message("No Snap named {name} is installed");
inline constexpr Text kNoSnapSince = message("No Snap named {name} is installed; not changed since {year}");
inline constexpr Text kNoSnapFor =
    messages("No Snap named {name} is installed; not changed for {count} day",
             "No Snap named {name} is installed; not changed for {count} days");

// What starts at login: whose it is

// TRANSLATORS: It starts for the person who reads this.
inline constexpr Text kYourAccount = message("Your account");
// TRANSLATORS: It starts for everybody who logs in.
inline constexpr Text kAllUsers = message("All users");

// What starts at login: what kind it is, and where it comes from

inline constexpr Text kAgent = messageIn("kind of startup item", "Launch agent");
inline constexpr Text kService = messageIn("kind of startup item", "Service");
// TRANSLATORS: It starts something at set times.
inline constexpr Text kTimer = messageIn("kind of startup item", "Timer");
// TRANSLATORS: It starts something when another program connects.
inline constexpr Text kSocket = messageIn("kind of startup item", "Socket");
// TRANSLATORS: It starts something when a file or folder changes.
inline constexpr Text kWatchedPath = messageIn("kind of startup item", "Watched path");
inline constexpr Text kAutostart = messageIn("kind of startup item", "Autostart entry");
// TRANSLATORS: {name} is a package of the distribution.
inline constexpr Text kPackage = message("Package {name}");

// What became of a startup item

inline constexpr Text kSwitchedOn = message("{name} is on: it starts at the next login.");
inline constexpr Text kSwitchedOff = message("{name} is off now and stays off at the next login.");

// Why an item cannot be switched

inline constexpr Text kLinkedEntry = message("Its file is a link; change the file that the link points to.");
inline constexpr Text kOthersEntry = message("Its file belongs to another user.");
// TRANSLATORS: A masked unit of systemd is one that nothing can start.
inline constexpr Text kMaskedElsewhere = message("It is masked in a place that Orlen doesn't change.");
inline constexpr Text kHeldByOwnFile =
    message("It starts for everybody, and a file of yours with its name is in the way of switching it off.");
inline constexpr Text kNeverStarts = message("Its file doesn't say when it should start.");
inline constexpr Text kNoUnitTool = message("The tool that would switch it, systemctl, isn't installed.");
inline constexpr Text kLockedFolder = message("The folder that holds its switch can't be written to.");
inline constexpr Text kOthersHome = message("The home folder is missing or belongs to somebody else.");
inline constexpr Text kNoAgentTool = message("This system does not run launch agents.");

// Why opening at login could not be switched

inline constexpr Text kSandboxed =
    messageIn("after a colon", "in this sandbox it can only be set in the desktop's own settings.");
inline constexpr Text kUnusableHome =
    messageIn("after a colon", "the home folder is missing or belongs to somebody else.");
inline constexpr Text kForeignEntry =
    messageIn("after a colon", "something that Orlen didn't make stands in place of its autostart entry.");
inline constexpr Text kUnwritablePath =
    messageIn("after a colon", "no autostart entry can hold the path of the program.");
inline constexpr Text kUnwritableFolder =
    messageIn("after a colon", "the autostart folder can't be written to.");

} // namespace orlen::ToolsTexts
