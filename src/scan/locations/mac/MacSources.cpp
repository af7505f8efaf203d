#include "scan/locations/mac/MacSources.h"

#include <utility>

namespace orlen {

namespace {

using Kind = FindingKind;

SourceRow macChildren(Kind kind, std::string_view from, std::int64_t minimum)
{
    return {.kind = kind, .layout = Layout::mac, .offered = Offered::all, .from = {from}, .minimum = minimum};
}

SourceRow macSingle(Kind kind, std::string_view from, std::string_view note)
{
    return {.kind = kind,
            .reading = Reading::single,
            .layout = Layout::mac,
            .offered = Offered::all,
            .from = {from},
            .note = note};
}

SourceRow leavingToOthers(SourceRow row, std::vector<std::string_view> names)
{
    row.exceptAfterLimit = std::move(names);
    return row;
}

SourceRow noted(SourceRow row, std::string_view note)
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
SourceRow shared(SourceRow row, std::string_view note)
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
        shared(macChildren(Kind::caches, "{LIBRARY}/Caches", 500'000), "Shared cache"),
        macChildren(Kind::logs, "{H}/Library/Logs", 10'000),
        shared(macChildren(Kind::logs, "{LIBRARY}/Logs", 10'000), "Shared log"),
        macChildren(Kind::iosBackups, "{H}/Library/Application Support/MobileSync/Backup", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/iTunes/iPhone Software Updates", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/iTunes/iPad Software Updates", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/iTunes/iPod Software Updates", 0),
        macChildren(Kind::softwareUpdates, "{H}/Library/Updates", 0),
        macChildren(Kind::xcodeDerived, "{H}/Library/Developer/Xcode/DerivedData", 0),
        macChildren(Kind::xcodeArchives, "{H}/Library/Developer/Xcode/Archives", 0),
        noted(macChildren(Kind::simulators, "{H}/Library/Developer/CoreSimulator/Devices", 1'000'000),
              "Simulator device"),
        macSingle(Kind::simulators, "{H}/Library/Developer/CoreSimulator/Caches", "Simulator cache"),
        macChildren(Kind::deviceSupport, "{H}/Library/Developer/Xcode/iOS DeviceSupport", 0),
        macChildren(Kind::deviceSupport, "{H}/Library/Developer/Xcode/watchOS DeviceSupport", 0),
        macChildren(Kind::deviceSupport, "{H}/Library/Developer/Xcode/tvOS DeviceSupport", 0),
        macChildren(Kind::homebrew, "{H}/Library/Caches/Homebrew", 1'000'000),
        macSingle(Kind::npm, "{H}/.npm/_cacache", "npm cache"),
        macSingle(Kind::npm, "{H}/.npm/_logs", "npm logs"),
        macSingle(Kind::npm, "{H}/Library/Caches/Yarn", "Yarn cache"),
        macSingle(Kind::pip, "{H}/Library/Caches/pip", "pip cache"),
        macSingle(Kind::pip, "{H}/.cache/pip", "pip cache"),
        macSingle(Kind::gradle, "{H}/.gradle/caches", "Gradle cache"),
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
