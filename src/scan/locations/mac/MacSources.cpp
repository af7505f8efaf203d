#include "scan/locations/mac/MacSources.h"

#include "scan/ScanTexts.h"

#include <utility>

namespace orlen {

namespace {

using Kind = FindingKind;

SourceRow macChildren(Kind kind, std::string_view from, std::int64_t minimum)
{
    return {.kind = kind, .layout = Layout::mac, .offered = Offered::all, .from = {from}, .minimum = minimum};
}

SourceRow macSingle(Kind kind, std::string_view from, Text note)
{
    return {.kind = kind,
            .reading = Reading::single,
            .layout = Layout::mac,
            .offered = Offered::all,
            .from = {from},
            .note = note};
}

SourceRow macCacheOf(Kind kind, std::string_view from, std::string_view program)
{
    SourceRow row = macSingle(kind, from, ScanTexts::kCacheOf);
    row.noteName = program;
    return row;
}

SourceRow leavingToOthers(SourceRow row, std::vector<std::string_view> names)
{
    row.exceptAfterLimit = std::move(names);
    return row;
}

SourceRow noted(SourceRow row, Text note)
{
    row.note = note;
    return row;
}

SourceRow limited(SourceRow row, std::size_t limit)
{
    row.limit = limit;
    return row;
}

/// A folder of the whole machine; only the user's own part of it can be cleaned.
SourceRow shared(SourceRow row, Text note)
{
    row.offered = Offered::deletable;
    row.note = note;
    return row;
}

} // namespace

std::vector<SourceRow> macSources()
{
    return {
        leavingToOthers(macChildren(Kind::caches, "{H}/Library/Caches", 100'000),
                        {"Homebrew", "pip", "Yarn"}),
        shared(macChildren(Kind::caches, "{LIBRARY}/Caches", 500'000), message("Shared cache")),
        macChildren(Kind::logs, "{H}/Library/Logs", 10'000),
        shared(macChildren(Kind::logs, "{LIBRARY}/Logs", 10'000), message("Shared log")),
        macChildren(Kind::iosBackups, "{H}/Library/Application Support/MobileSync/Backup", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/iTunes/iPhone Software Updates", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/iTunes/iPad Software Updates", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/iTunes/iPod Software Updates", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/Updates", 0),
        macChildren(Kind::xcodeDerived, "{H}/Library/Developer/Xcode/DerivedData", 0),
        macChildren(Kind::xcodeArchives, "{H}/Library/Developer/Xcode/Archives", 0),
        noted(macChildren(Kind::simulators, "{H}/Library/Developer/CoreSimulator/Devices", 1'000'000),
              message("Simulator device")),
        macCacheOf(Kind::simulators, "{H}/Library/Developer/CoreSimulator/Caches", "Simulator"),
        macChildren(Kind::deviceSupport, "{H}/Library/Developer/Xcode/iOS DeviceSupport", 0),
        macChildren(Kind::deviceSupport, "{H}/Library/Developer/Xcode/watchOS DeviceSupport", 0),
        macChildren(Kind::deviceSupport, "{H}/Library/Developer/Xcode/tvOS DeviceSupport", 0),
        macChildren(Kind::homebrew, "{H}/Library/Caches/Homebrew", 1'000'000),
        macCacheOf(Kind::npm, "{H}/.npm/_cacache", "npm"),
        macSingle(Kind::npm, "{H}/.npm/_logs", message("npm logs")),
        macCacheOf(Kind::npm, "{H}/Library/Caches/Yarn", "Yarn"),
        macCacheOf(Kind::pip, "{H}/Library/Caches/pip", "pip"),
        macCacheOf(Kind::pip, "{H}/.cache/pip", "pip"),
        macCacheOf(Kind::gradle, "{H}/.gradle/caches", "Gradle"),
        limited(macChildren(Kind::trash, "{H}/.Trash", 0), 300),
        macChildren(Kind::mailDownloads, "{H}/Library/Containers/com.apple.mail/Data/Library/Mail Downloads",
                    0),
        {.kind = Kind::oldDownloads,
         .reading = Reading::unusedChildren,
         .layout = Layout::mac,
         .offered = Offered::all,
         .from = {"{H}/Downloads"}},
    };
}

} // namespace orlen
