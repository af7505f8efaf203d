#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/mac/PropertyList.h"
#include "platform/process/ChildProcess.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/ServiceManager.h"
#include "tools/startup/mac/Launchctl.h"
#include "tools/startup/mac/PrintDisabled.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace orlen {

namespace {

constexpr std::string_view kAgentSuffix = ".plist";

/// The tool's name for the user's logins.
std::string loginDomain()
{
    return "gui/" + std::to_string(Places::current().user);
}

PrintDisabled::Labels disabledLabels()
{
    const auto outcome = Launchctl::call({"print-disabled", loginDomain()});
    return outcome ? PrintDisabled::labels(outcome->output) : PrintDisabled::Labels();
}

std::string programOf(const PropertyList& list)
{
    if (list.texts.contains("Program"))
        return list.text("Program");
    const auto arguments = list.textLists.find("ProgramArguments");
    const bool isEmpty = arguments == list.textLists.end() || arguments->second.empty();
    return isEmpty ? std::string() : arguments->second.front();
}

std::optional<LaunchItem> itemAt(const std::string& path)
{
    const auto list = PropertyList::read(path);
    if (!list)
        return std::nullopt;
    LaunchItem item;
    item.label = list->text("Label");
    if (item.label.empty()) {
        const std::string_view name = PathText::lastComponent(path);
        item.label = name.substr(0, name.size() - kAgentSuffix.size());
    }
    item.path = path;
    item.program = programOf(*list);
    item.source = LaunchSource::launchAgent;
    item.name = item.label;
    return item;
}

void appendItems(std::vector<LaunchItem>& items, const std::string& folder, Text scope,
                 const PrintDisabled::Labels& disabled)
{
    // The folder may be a link of the user's: list its target.
    std::vector<std::string> names = listNames(folder + "/.");
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        auto item = name.ends_with(kAgentSuffix) ? itemAt(PathText::join(folder, name)) : std::nullopt;
        if (!item)
            continue;
        if (ChildProcess::programPath(Places::current().launchctl).empty())
            item->forbid(ToolsTexts::kNoAgentTool);
        item->scope = scope;
        item->enabled = !disabled.contains(item->label);
        items.push_back(*std::move(item));
    }
}

class LaunchAgents final : public ServiceManager {
public:
    [[nodiscard]] std::vector<LaunchItem> items() const override
    {
        const Places& places = Places::current();
        const PrintDisabled::Labels disabled = disabledLabels();
        std::vector<LaunchItem> items;
        appendItems(items, places.home + "/Library/LaunchAgents", ToolsTexts::kYourAccount, disabled);
        appendItems(items, places.library + "/LaunchAgents", ToolsTexts::kAllUsers, disabled);
        return items;
    }

    [[nodiscard]] bool set(const LaunchItem& item, bool enabled) const override
    {
        if (item.label.empty())
            return false;
        const std::string target = loginDomain() + "/" + item.label;
        const auto outcome = Launchctl::call({enabled ? "enable" : "disable", target});
        // Stopping something that is not running fails, which is fine.
        if (!enabled)
            (void)Launchctl::call({"bootout", target});
        return outcome && outcome->status == 0;
    }
};

} // namespace

std::unique_ptr<ServiceManager> makeLaunchAgents()
{
    return std::make_unique<LaunchAgents>();
}

} // namespace orlen
