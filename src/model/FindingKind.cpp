#include "model/FindingKind.h"

#include <algorithm>

namespace orlen {

namespace {

using enum FindingKind;

struct Row {
    FindingKind kind;
    std::string_view raw;
    KindMeta meta;
};

/// In the order of the enumeration.
constexpr std::array<Row, kFindingKinds> kCatalogue{{
    {caches,
     "caches",
     {"App caches", "Temporary data that apps keep so they open faster. They create it again when needed.",
      "internaldrive.fill", OrlenCategory::caches}},
    {logs,
     "logs",
     {"Log files", "Diagnostic notes written by apps and macOS. Only useful when troubleshooting.",
      "doc.text.fill", OrlenCategory::system}},
    {iosBackups,
     "iosBackups",
     {"iPhone & iPad backups", "Local backups of your devices. Large, and easy to forget about.", "iphone",
      OrlenCategory::system}},
    {softwareUpdates,
     "softwareUpdates",
     {"Device software updates", "Downloaded iOS and iPadOS update files that are no longer needed.",
      "arrow.down.circle.fill", OrlenCategory::system}},
    {xcodeDerived,
     "xcodeDerived",
     {"Xcode build data", "Intermediate files Xcode creates while building your projects.", "hammer.fill",
      OrlenCategory::developer}},
    {xcodeArchives,
     "xcodeArchives",
     {"Xcode archives", "Archived app builds you made for distribution.", "archivebox.fill",
      OrlenCategory::developer}},
    {simulators,
     "simulators",
     {"Simulator devices", "Virtual iPhones and iPads used to test apps, with their saved data.",
      "iphone.gen3", OrlenCategory::developer}},
    {deviceSupport,
     "deviceSupport",
     {"Device support files", "Debug symbols Xcode copied from devices you connected.", "cable.connector",
      OrlenCategory::developer}},
    {homebrew,
     "homebrew",
     {"Homebrew downloads", "Package downloads kept by Homebrew after installing.", "mug.fill",
      OrlenCategory::developer}},
    {npm,
     "npm",
     {"npm & Yarn cache", "Packages cached by Node.js tools.", "shippingbox.fill", OrlenCategory::developer}},
    {pip,
     "pip",
     {"pip cache", "Python packages cached by pip.", "shippingbox.fill", OrlenCategory::developer}},
    {gradle,
     "gradle",
     {"Gradle cache", "Libraries and build output cached by Gradle.", "shippingbox.fill",
      OrlenCategory::developer}},
    {trash,
     "trash",
     {"Trash", "Items already in your Trash. Orlen never empties it for you; do that in Finder.",
      "trash.fill", OrlenCategory::system}},
    {mailDownloads,
     "mailDownloads",
     {"Mail attachments", "Copies of attachments you opened from Mail. The originals stay in your mailbox.",
      "paperclip", OrlenCategory::documents}},
    {languagePacks,
     "languagePacks",
     {"Language packs", "Translations inside apps for languages you don't use.", "globe",
      OrlenCategory::apps}},
    {largeFiles,
     "largeFiles",
     {"Large files", "The biggest files in your home folder.", "externaldrive.fill",
      OrlenCategory::documents}},
    {oldFiles,
     "oldFiles",
     {"Files you haven't opened in a long time", "Sizeable files not opened for over a year.", "clock.fill",
      OrlenCategory::documents}},
    {oldDownloads,
     "oldDownloads",
     {"Old downloads", "Items in Downloads you haven't touched in over a month.",
      "arrow.down.to.line.circle.fill", OrlenCategory::documents}},
    {duplicates,
     "duplicates",
     {"Duplicate files", "Files with exactly the same content. Orlen keeps one copy of each.",
      "square.on.square.fill", OrlenCategory::documents}},
    {photoDuplicates,
     "photoDuplicates",
     {"Similar photos", "Near-identical shots. Orlen keeps the sharpest of each set.",
      "photo.on.rectangle.angled", OrlenCategory::photos}},
    {screenshots,
     "screenshots",
     {"Screenshots", "Screen captures that tend to pile up.", "camera.viewfinder", OrlenCategory::photos}},
    {receipts,
     "receipts",
     {"Receipts & documents", "Photos of receipts, paperwork and text. Check you don't need them.",
      "doc.text.image.fill", OrlenCategory::photos}},
    {memes,
     "memes",
     {"Memes & text images", "Images that look like memes, graphics with captions or forwarded pictures.",
      "text.bubble.fill", OrlenCategory::photos}},
    {blurry,
     "blurry",
     {"Blurry shots", "Photos that look out of focus or smudged.", "aqi.medium", OrlenCategory::photos}},
}};

constexpr std::array<FindingKind, kFindingKinds> kindsOfCatalogue()
{
    std::array<FindingKind, kFindingKinds> kinds{};
    std::ranges::transform(kCatalogue, kinds.begin(), &Row::kind);
    return kinds;
}

constexpr std::array<FindingKind, kFindingKinds> kAllKinds = kindsOfCatalogue();

const Row& row(FindingKind kind)
{
    return kCatalogue[static_cast<std::size_t>(kind)];
}

} // namespace

const std::array<FindingKind, kFindingKinds>& allKinds()
{
    return kAllKinds;
}

const KindMeta& meta(FindingKind kind)
{
    return row(kind).meta;
}

bool isFromPlaces(FindingKind kind)
{
    return kind <= languagePacks || kind == oldDownloads;
}

std::string_view rawValue(FindingKind kind)
{
    return row(kind).raw;
}

std::optional<FindingKind> kindFromRaw(std::string_view raw)
{
    const auto* const found = std::ranges::find(kCatalogue, raw, &Row::raw);
    if (found == kCatalogue.end())
        return std::nullopt;
    return found->kind;
}

} // namespace orlen
