#include "tools/apps/Uninstall.h"

#include "scan/ScanTexts.h"
#include "tools/ToolsTexts.h"

#include <iterator>
#include <set>
#include <string>
#include <utility>

namespace orlen::Uninstall {

namespace {

FileEntry entryOf(const AppInfo& app)
{
    FileEntry entry;
    entry.path = app.path;
    entry.size = app.size.value_or(0);
    if (const auto status = statusOf(app.path); status.ok())
        entry.stamp = FileStamp::of(status.value());
    return entry;
}

} // namespace

CleanPlan plan(const AppInfo& app, std::span<const FileEntry> leftovers)
{
    CleanPlan plan;
    plan.title = {ToolsTexts::kUninstall, {{"name", app.name}}};
    const Text title =
        app.source == AppSource::removedFlatpak ? ToolsTexts::kAppData : ToolsTexts::kApplication;
    plan.sections.push_back({"app", title, "app.fill", {entryOf(app)}});
    if (!leftovers.empty())
        plan.sections.push_back(
            {"left", ToolsTexts::kLeftovers, "folder.fill", {leftovers.begin(), leftovers.end()}});
    return plan;
}

namespace {

void noteRunning(FileEntry& entry, const Removal& removal)
{
    if (removal.isRunning)
        addNote(entry, {ScanTexts::kQuitFirst, {{"name", removal.app.name}}});
}

CleanPlan planOf(const Removal& removal)
{
    CleanPlan one = plan(removal.app, removal.leftovers);
    noteRunning(one.sections.front().entries.front(), removal);
    return one;
}

} // namespace

CleanPlan plan(std::span<const Removal> removals)
{
    if (removals.size() == 1)
        return planOf(removals.front());
    CleanPlan plan;
    plan.title = {ToolsTexts::kUninstallSeveral, {{"count", std::ssize(removals)}}};
    std::set<std::string> paths;
    for (const Removal& removal : removals) {
        PlanSection section;
        section.id = "app" + std::to_string(plan.sections.size());
        section.title = Message::verbatim(removal.app.name);
        section.symbol = "app.fill";
        section.entries = {entryOf(removal.app)};
        noteRunning(section.entries.front(), removal);
        section.entries.insert(section.entries.end(), removal.leftovers.begin(), removal.leftovers.end());
        std::erase_if(section.entries,
                      [&](const FileEntry& entry) { return !paths.insert(entry.path).second; });
        plan.sections.push_back(std::move(section));
    }
    return plan;
}

} // namespace orlen::Uninstall
