#include "tools/apps/Uninstall.h"

#include "tools/ToolsTexts.h"

namespace orlen::Uninstall {

CleanPlan plan(const AppInfo& app, std::span<const FileEntry> leftovers)
{
    FileEntry entry;
    entry.path = app.path;
    entry.size = app.size.value_or(0);
    if (const auto status = statusOf(app.path); status.ok())
        entry.stamp = FileStamp::of(status.value());
    CleanPlan plan;
    plan.title = {ToolsTexts::kUninstall, {{"name", app.name}}};
    const Text title =
        app.source == AppSource::removedFlatpak ? ToolsTexts::kAppData : ToolsTexts::kApplication;
    plan.sections.push_back({"app", title, "app.fill", {std::move(entry)}});
    if (!leftovers.empty())
        plan.sections.push_back(
            {"left", ToolsTexts::kLeftovers, "folder.fill", {leftovers.begin(), leftovers.end()}});
    return plan;
}

} // namespace orlen::Uninstall
