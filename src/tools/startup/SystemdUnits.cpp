#include "platform/files/FileStatus.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/DesktopNames.h"
#include "tools/startup/OwnFolder.h"
#include "tools/startup/ServiceManager.h"
#include "tools/startup/Systemctl.h"
#include "tools/startup/UnitFile.h"
#include "tools/startup/UnitFolders.h"
#include "tools/startup/UnitLinks.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace orlen {

namespace {

/// What systemd's words mean for a switch; units in other states have none.
struct State {
    std::string_view word;
    enum class Meaning { on, off, masked } meaning;
};
constexpr State kStates[] = {
    {"enabled", State::Meaning::on},
    {"enabled-runtime", State::Meaning::on},
    {"disabled", State::Meaning::off},
    // systemd knows the unit, and nothing starts it.
    {"linked", State::Meaning::off},
    {"linked-runtime", State::Meaning::off},
    {"masked", State::Meaning::masked},
    {"masked-runtime", State::Meaning::masked},
};

std::vector<ListedUnit> listed(const Places& places)
{
    auto units = Systemctl::units();
    // Packages also install unit files where nothing will ever read them.
    if (!units && !Systemctl::isInstalled() && !exists(places.systemRoot + "/run/systemd/system"))
        return {};
    std::vector<ListedUnit> all = units ? *std::move(units) : UnitLinks::listed(places);
    for (ListedUnit& instance : UnitLinks::instances(places)) {
        if (std::ranges::find(all, instance.name, &ListedUnit::name) == all.end())
            all.push_back(std::move(instance));
    }
    return all;
}

/// What identifies a unit: its file, or for one of several instances of a file what makes it one.
std::string identifyingPath(const Places& places, const std::string& unit, const std::string& file)
{
    if (PathText::lastComponent(file) == unit)
        return file;
    const std::string link = UnitLinks::firstOf(places, unit);
    return link.empty() ? PathText::join(UnitFolders::ofUser(places).front(), unit) : link;
}

/// The file of what a timer, socket or path starts.
std::optional<UnitFile> startedBy(const Places& places, const std::string& unit, const UnitFile& file)
{
    const auto [stem, instance, suffix] = UnitFolders::partsOf(unit);
    std::string started = file.started;
    if (started.empty())
        started = unit.substr(0, unit.size() - suffix.size()) + ".service";
    if (!UnitFolders::isUnitName(started))
        return std::nullopt;
    return UnitFile::read(UnitFolders::find(places, started), places.home, instance);
}

/// Why it cannot be switched; empty if it probably can.
Text obstacle(const Places& places, const ListedUnit& unit, State::Meaning meaning, const UnitFile& file)
{
    if (meaning == State::Meaning::masked && !UnitFolders::isMaskedByUser(places, unit.name))
        return ToolsTexts::kMaskedElsewhere;
    if (!Systemctl::isInstalled())
        return ToolsTexts::kNoUnitTool;
    if (!OwnFolder::canHold(UnitFolders::ofUser(places).front()))
        return ToolsTexts::kLockedFolder;
    if (meaning == State::Meaning::off && !file.isInstallable)
        return ToolsTexts::kNeverStarts;
    const bool isHeld = meaning == State::Meaning::on && UnitFolders::isTakenByUser(places, unit.name) &&
                        UnitLinks::isStartedForEverybody(places, unit.name);
    return isHeld ? ToolsTexts::kHeldByOwnFile : Text();
}

std::optional<LaunchItem> itemOf(const ListedUnit& unit, const Places& places)
{
    const auto state = std::find_if(std::begin(kStates), std::end(kStates),
                                    [&](const State& known) { return known.word == unit.state; });
    if (state == std::end(kStates) || !UnitFolders::isUnitName(unit.name))
        return std::nullopt;
    const std::string found = UnitFolders::find(places, unit.name);
    const std::string path = identifyingPath(places, unit.name, found);
    const bool isOwn = PathText::isAtOrBelow(path, places.home);
    // Of units from packages, only those that were on are of interest.
    if (!isOwn && state->meaning == State::Meaning::off)
        return std::nullopt;
    const auto file = UnitFile::read(found, places.home, UnitFolders::partsOf(unit.name).instance);
    if (!file)
        return std::nullopt;
    LaunchItem item;
    item.label = unit.name;
    item.path = path;
    item.source = LaunchSource::systemdUnit;
    const auto started =
        item.kind() == LaunchKind::service ? std::nullopt : startedBy(places, unit.name, *file);
    item.program = started ? started->program : file->program;
    item.command = started ? started->command : file->command;
    item.scope = isOwn ? ToolsTexts::kYourAccount : ToolsTexts::kAllUsers;
    item.enabled = state->meaning == State::Meaning::on;
    item.name = item.label;
    item.isPartOfDesktop = DesktopNames::isPartOfDesktop(item.label);
    item.description = file->description;
    if (const Text why = obstacle(places, unit, state->meaning, *file); !why.empty())
        item.forbid(why);
    return item;
}

/// Removes what starts a unit but keeps the user's link to its file, which systemctl would remove too.
std::optional<Systemctl::Way> removeLinks(const Places& places, const std::string& unit)
{
    for (const std::string& link : UnitLinks::ofUser(places, unit)) {
        if (!OwnFile::remove(link).ok())
            return std::nullopt;
    }
    return Systemctl::call({"daemon-reload"}) ? Systemctl::Way::throughManager : Systemctl::Way::onFiles;
}

/// The way that worked.
std::optional<Systemctl::Way> turnOff(const LaunchItem& item, const Places& places)
{
    const std::string& unit = item.label;
    const bool isTaken = UnitFolders::isTakenByUser(places, unit);
    const bool isOwn =
        item.scope == ToolsTexts::kYourAccount || isTaken || !UnitLinks::ofUser(places, unit).empty();
    if (isOwn) {
        const auto way = UnitFolders::isLinkedByUser(places, unit) ? removeLinks(places, unit)
                                                                   : Systemctl::change("disable", unit);
        const bool isStillOn = UnitLinks::isStartedForEverybody(places, unit);
        if (!way || !isStillOn)
            return way;
        // A file of the user's leaves no place for a mask.
        if (isTaken)
            return std::nullopt;
    }
    // "disable" only removes the user's own links: what is on for everybody has to be masked.
    return Systemctl::change("mask", unit);
}

class SystemdUnits final : public ServiceManager {
public:
    [[nodiscard]] std::vector<LaunchItem> items() const override
    {
        const Places& places = Places::current();
        std::vector<LaunchItem> items;
        for (const ListedUnit& unit : listed(places)) {
            if (auto item = itemOf(unit, places))
                items.push_back(*std::move(item));
        }
        std::sort(items.begin(), items.end(), [](const LaunchItem& left, const LaunchItem& right) {
            const bool isLeftOwn = left.scope == ToolsTexts::kYourAccount;
            const bool isRightOwn = right.scope == ToolsTexts::kYourAccount;
            return isLeftOwn != isRightOwn ? isLeftOwn : left.label < right.label;
        });
        const auto isSame = [](const LaunchItem& left, const LaunchItem& right) {
            return left.path == right.path;
        };
        items.erase(std::unique(items.begin(), items.end(), isSame), items.end());
        return items;
    }

    [[nodiscard]] bool set(const LaunchItem& item, bool enabled) const override
    {
        const std::string& unit = item.label;
        if (!UnitFolders::isUnitName(unit))
            return false;
        const Places& places = Places::current();
        if (enabled)
            return Systemctl::change(UnitFolders::isMaskedByUser(places, unit) ? "unmask" : "enable", unit)
                .has_value();
        const auto way = turnOff(item, places);
        // Only a running systemd can stop it; otherwise there is nothing to stop.
        if (way == Systemctl::Way::throughManager)
            Systemctl::call({"stop", unit});
        return way.has_value();
    }
};

} // namespace

std::unique_ptr<ServiceManager> makeSystemdUnits()
{
    return std::make_unique<SystemdUnits>();
}

} // namespace orlen
