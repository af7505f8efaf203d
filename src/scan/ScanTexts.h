#pragma once

#include "model/Text.h"

/// What the scan says of single entries. Notes about known places stand in their tables.
namespace orlen::ScanTexts {

// Notes below a path: a few words, or a sentence. Several are shown in one line.
inline constexpr Text kMarkedAsCache = message("Marked as a cache");
inline constexpr Text kBuiltAgain = message("Downloaded or built again");
inline constexpr Text kRebuiltOnOpening = message("Rebuilt when the project opens");
inline constexpr Text kUsedByProjects = message("Open projects use these");
inline constexpr Text kUsedInPlace = message("Projects use these packages in place.");
inline constexpr Text kLargeDownload = message("Large download; needed again by programs that use it.");
inline constexpr Text kUnknownCache =
    message("Orlen does not know this cache. Most can go; look inside first.");
inline constexpr Text kWindowsTemporary = message("Temporary files of a Windows program");
// {name} is that of a program, which has put them there and fetches or makes them again.
inline constexpr Text kCacheOf = message("{name} cache");
inline constexpr Text kDownloadsOf = message("{name} downloads");
inline constexpr Text kTestBrowsers = message("Test browsers");

// {name} is a program's.
inline constexpr Text kQuitFirst = message("Quit {name} first");
inline constexpr Text kFlatpakApp = message("Flatpak app {name}");
inline constexpr Text kSnapApp = message("Snap app {name}");

// {folder} is a path.
inline constexpr Text kDeletedFrom = message("Deleted from {folder}");
inline constexpr Text kOnOtherDisk = message("On another disk ({folder})");

// What moving an entry frees.
inline constexpr Text kFreesNothing = message("Frees nothing: the file has another name elsewhere");
inline constexpr Text kFreesPart = message("Frees {size}: the rest is linked into projects");
inline constexpr Text kSharesData = message("Shares its data on disk; removing it frees little");

inline constexpr Text kHoldsRepository = message("Contains a repository");
inline constexpr Text kInRepository = message("Part of a repository");

// {name} is a file's.
inline constexpr Text kIdentical = message("Identical to {name} — Orlen keeps that copy");
inline constexpr Text kSimilar = message("Similar to {name} — keeping the sharpest");

// Why a photo of a set of similar ones is not the one to keep.
inline constexpr Text kSmallerPicture = message("Identical picture, smaller");
inline constexpr Text kColourlessPicture = message("Identical picture, without colours");
inline constexpr Text kFewerColours = message("Identical picture, fewer colours");
inline constexpr Text kNoCameraData = message("Identical picture, without camera data");
inline constexpr Text kMoreCompressed = message("Identical picture, more compressed");
inline constexpr Text kSmallerFile = message("Identical picture, smaller file");
inline constexpr Text kIdenticalPicture = message("Identical picture");
inline constexpr Text kSofterShot = message("Similar shot, softer");
inline constexpr Text kSmallerShot = message("Similar shot, smaller file");
inline constexpr Text kSimilarShot = message("Similar shot");

// What a photo seems to be.
inline constexpr Text kScreenshot = message("Looks like a screenshot");
inline constexpr Text kReceipt = message("Looks like a receipt or document — check before removing");
inline constexpr Text kMeme = message("Looks like a meme or captioned image");
// TRANSLATORS: {score} is a whole number; sharp photos have a hundred and more.
inline constexpr Text kBlurry = message("Sharpness score {score} — likely out of focus");

// Steps of a scan that are not named after a kind of finding or a category.
inline constexpr Text kCachesAndLogs = message("Caches & logs");
inline constexpr Text kBackupsAndUpdates = message("Backups & updates");
inline constexpr Text kDeveloperTools = message("Developer tools");
inline constexpr Text kPackageCaches = message("Package caches");
inline constexpr Text kTrashAndMail = message("Trash & mail");
inline constexpr Text kDownloads = message("Downloads");
inline constexpr Text kLargeAndOldFiles = message("Large & old files");

} // namespace orlen::ScanTexts
