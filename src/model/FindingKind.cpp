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
     {message("App caches"),
      message("Temporary data that apps keep so they open faster. They create it again when needed."),
      "internaldrive.fill", OrlenCategory::caches}},
    {logs,
     "logs",
     {message("Log files"),
      message("Diagnostic notes written by apps and macOS. Only useful when troubleshooting."),
      "doc.text.fill", OrlenCategory::system}},
    {iosBackups,
     "iosBackups",
     {message("iPhone & iPad backups"),
      message("Local backups of your devices. Large, and easy to forget about."), "iphone",
      OrlenCategory::system}},
    {softwareUpdates,
     "softwareUpdates",
     {message("Device software updates"),
      message("Downloaded iOS and iPadOS update files that are no longer needed."), "arrow.down.circle.fill",
      OrlenCategory::system}},
    {xcodeDerived,
     "xcodeDerived",
     {message("Xcode build data"), message("Intermediate files Xcode creates while building your projects."),
      "hammer.fill", OrlenCategory::developer}},
    {xcodeArchives,
     "xcodeArchives",
     {message("Xcode archives"), message("Archived app builds you made for distribution."), "archivebox.fill",
      OrlenCategory::developer}},
    {simulators,
     "simulators",
     {message("Simulator devices"),
      message("Virtual iPhones and iPads used to test apps, with their saved data."), "iphone.gen3",
      OrlenCategory::developer}},
    {deviceSupport,
     "deviceSupport",
     {message("Device support files"), message("Debug symbols Xcode copied from devices you connected."),
      "cable.connector", OrlenCategory::developer}},
    {homebrew,
     "homebrew",
     {message("Homebrew downloads"), message("Package downloads kept by Homebrew after installing."),
      "mug.fill", OrlenCategory::developer}},
    {npm,
     "npm",
     {message("npm & Yarn cache"), message("Packages cached by Node.js tools."), "shippingbox.fill",
      OrlenCategory::developer}},
    {pip,
     "pip",
     {message("pip cache"), message("Python packages cached by pip."), "shippingbox.fill",
      OrlenCategory::developer}},
    {gradle,
     "gradle",
     {message("Gradle cache"), message("Libraries and build output cached by Gradle."), "shippingbox.fill",
      OrlenCategory::developer}},
    {trash,
     "trash",
     {message("Trash"),
      message("Items already in your Trash. Orlen never empties it for you; do that in Finder."),
      "trash.fill", OrlenCategory::system}},
    {mailDownloads,
     "mailDownloads",
     {message("Mail attachments"),
      message("Copies of attachments you opened from Mail. The originals stay in your mailbox."), "paperclip",
      OrlenCategory::documents}},
    {languagePacks,
     "languagePacks",
     {message("Language packs"), message("Translations inside apps for languages you don't use."), "globe",
      OrlenCategory::apps}},
    {largeFiles,
     "largeFiles",
     {message("Large files"), message("The biggest files in your home folder."), "externaldrive.fill",
      OrlenCategory::documents}},
    {oldFiles,
     "oldFiles",
     {message("Files you haven't opened in a long time"),
      message("Sizeable files not opened for over a year."), "clock.fill", OrlenCategory::documents}},
    {oldDownloads,
     "oldDownloads",
     {message("Old downloads"), message("Items in Downloads you haven't touched in over a month."),
      "arrow.down.to.line.circle.fill", OrlenCategory::documents}},
    {duplicates,
     "duplicates",
     {message("Duplicate files"),
      message("Files with exactly the same content. Orlen keeps one copy of each."), "square.on.square.fill",
      OrlenCategory::documents}},
    {photoDuplicates,
     "photoDuplicates",
     {message("Similar photos"), message("Near-identical shots. Orlen keeps the sharpest of each set."),
      "photo.on.rectangle.angled", OrlenCategory::photos}},
    {screenshots,
     "screenshots",
     {message("Screenshots"), message("Screen captures that tend to pile up."), "camera.viewfinder",
      OrlenCategory::photos}},
    {receipts,
     "receipts",
     {message("Receipts & documents"),
      message("Photos of receipts, paperwork and text. Check you don't need them."), "doc.text.image.fill",
      OrlenCategory::photos}},
    {memes,
     "memes",
     {message("Memes & text images"),
      message("Images that look like memes, graphics with captions or forwarded pictures."),
      "text.bubble.fill", OrlenCategory::photos}},
    {blurry,
     "blurry",
     {message("Blurry shots"), message("Photos that look out of focus or smudged."), "aqi.medium",
      OrlenCategory::photos}},
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
