#include "model/RaterTables.h"

#include "model/ModelTexts.h"

#include <algorithm>
#include <array>

namespace orlen::RaterTables {

namespace {

using enum FindingKind;
using enum Rating;

constexpr std::array<KindRule, kFindingKinds> kRules{{
    {caches, safe,
     message("Apps rebuild their caches automatically. They may open a little slower the first time.")},
    {logs, safe, message("Old logs are only needed for troubleshooting and are written again as needed.")},
    {iosBackups, review,
     message("These may be the only copy of data from a device. Remove them only if you no longer need to "
             "restore "
             "from them.")},
    {softwareUpdates, safe, message("Downloaded update files are fetched again if you ever need them.")},
    {xcodeDerived, safe, message("Rebuilt automatically the next time you build the project.")},
    {xcodeArchives, review,
     message("Archives may be needed to symbolicate crash reports from released versions.")},
    {simulators, review,
     message("Xcode can recreate simulators, but the apps and data inside them would be lost.")},
    {deviceSupport, safe, message("Recreated the next time you connect that device to Xcode.")},
    {homebrew, safe, message("Homebrew downloads packages again if it needs them.")},
    {npm, safe, message("Node tools re-download packages when needed; the next install is slower.")},
    {pip, safe, message("pip re-downloads packages when needed.")},
    {gradle, safe, message("Gradle rebuilds this cache; your next build will be slower.")},
    {trash, review, message("Already in the Trash. Empty it yourself in Finder when you're sure.")},
    {mailDownloads, review, message("These are copies, but you may have opened them for a reason.")},
    {languagePacks, review,
     message("Changes app bundles, which can invalidate an app's code signature or be undone by updates.")},
    {largeFiles, review, message("Only you know whether you still need these. Check each one.")},
    {oldFiles, review, message("Not opened for over a year, but 'old' doesn't mean 'unneeded'.")},
    {oldDownloads, review,
     message("Downloads you haven't touched in a month. Installers are usually safe; documents may not be.")},
    {duplicates, review,
     message("Identical content exists elsewhere, but apps or projects may refer to a specific path.")},
    {photoDuplicates, review,
     message("Orlen suggests keeping the sharpest of each set; look before you decide.")},
    {screenshots, review,
     message("Screenshots are often disposable, but some hold information you meant to keep.")},
    {receipts, review, message("Receipts and paperwork may be needed for returns or taxes.")},
    {memes, review, message("Looks like a meme or captioned image; the guess may be wrong.")},
    {blurry, review,
     message("Looks out of focus to a sharpness test, which can also flag intentional blur.")},
}};

constexpr KindRule kOtherKinds{caches, review, message("Check before cleaning.")};

// One row a line; the order is the order of testing, and an earlier row wins over a later one.
// clang-format off
constexpr auto kKnownTexts = std::to_array<KnownLocation>({
    {"/Library/Caches/CloudKit", keep, message("Used for iCloud sync. Removing it can force a slow re-sync.")},
    {"/Library/Caches/com.apple.bird", keep, message("Used by iCloud Drive.")},
    {"/Library/Caches/com.apple.Safari", safe, message("Safari rebuilds its web cache.")},
    {"/Library/Caches/Google", safe, ModelTexts::kBrowserCache},
    {"/Library/Caches/com.spotify", safe, message("Cached audio; it downloads again when played.")},
    {"/Xcode/DerivedData/ModuleCache", safe, message("Rebuilt by Xcode automatically.")},
    {"/Service Worker/CacheStorage", review, ModelTexts::kOfflineData},
    {".kdbx", keep, message("Password database.")},
});
// clang-format on

constexpr std::array kDocumentKinds{largeFiles,    oldFiles, oldDownloads, duplicates,
                                    mailDownloads, receipts, screenshots,  photoDuplicates,
                                    memes,         blurry,   trash};

// AppImages are the application itself, and self-extracting programs may be the only copy, so neither counts.
constexpr std::array<std::string_view, 8> kInstallerExtensions{"dmg", "pkg",     "iso",        "deb",
                                                               "rpm", "flatpak", "flatpakref", "msi"};

// Broad on purpose: a wrong "keep" only costs the user a look.
constexpr std::array<std::string_view, 33> kSensitiveWords{
    "invoice",   "tax",         "taxes",   "contract", "agreement", "passport",     "insurance",
    "mortgage",  "lease",       "payslip", "paystub",  "statement", "resume",       "will",
    "deed",      "certificate", "license", "visa",     "medical",   "prescription", "w2",
    "1040",      "return",      "receipt", "receipts", "bank",      "salary",       "invoices",
    "contracts", "legal",       "birth",   "diploma",  "warranty"};

constexpr std::array<std::string_view, 9> kAnchorWords{
    "invoice", "tax", "contract", "passport", "insurance", "mortgage", "agreement", "payroll", "medical"};

} // namespace

const KindRule& rule(FindingKind kind)
{
    const auto* const found = std::ranges::find(kRules, kind, &KindRule::kind);
    return found == kRules.end() ? kOtherKinds : *found;
}

std::span<const KnownLocation> knownTexts()
{
    return kKnownTexts;
}

bool holdsDocuments(FindingKind kind)
{
    return std::ranges::find(kDocumentKinds, kind) != kDocumentKinds.end();
}

bool isInstallerExtension(std::string_view extension)
{
    return std::ranges::find(kInstallerExtensions, extension) != kInstallerExtensions.end();
}

bool isSensitiveWord(std::string_view word)
{
    return std::ranges::find(kSensitiveWords, word) != kSensitiveWords.end();
}

std::span<const std::string_view> anchorWords()
{
    return kAnchorWords;
}

} // namespace orlen::RaterTables
