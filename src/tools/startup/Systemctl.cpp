#include "tools/startup/Systemctl.h"

#include "platform/process/ChildProcess.h"

#include <utility>

namespace orlen::Systemctl {

namespace {

constexpr const char* kTool = "systemctl";

std::optional<ChildProcess::Outcome> outcome(std::vector<std::string> arguments, Way way)
{
    ChildProcess::Call call;
    call.arguments = {kTool, "--user"};
    call.arguments.insert(call.arguments.end(), arguments.begin(), arguments.end());
    if (way == Way::onFiles)
        call.environment = {"SYSTEMD_OFFLINE=1"};
    return ChildProcess::run(call);
}

} // namespace

bool isInstalled()
{
    return !ChildProcess::programPath(kTool).empty();
}

std::optional<std::vector<ListedUnit>> units()
{
    const auto list =
        outcome({"list-unit-files", "--type=service,timer,socket,path", "--output=json", "--no-pager"},
                Way::throughManager);
    return list && list->status == 0 ? UnitList::parsed(list->output) : std::nullopt;
}

bool call(std::vector<std::string> arguments, Way way)
{
    const auto ended = outcome(std::move(arguments), way);
    return ended && ended->status == 0;
}

std::optional<Way> change(const std::string& verb, const std::string& unit)
{
    for (const Way way : {Way::throughManager, Way::onFiles}) {
        if (call({verb, unit}, way))
            return way;
    }
    return std::nullopt;
}

} // namespace orlen::Systemctl
