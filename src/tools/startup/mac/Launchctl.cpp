#include "tools/startup/mac/Launchctl.h"

#include "platform/files/Places.h"

namespace orlen::Launchctl {

std::optional<ChildProcess::Outcome> call(const std::vector<std::string>& arguments)
{
    ChildProcess::Call call;
    call.arguments.push_back(Places::current().launchctl);
    call.arguments.insert(call.arguments.end(), arguments.begin(), arguments.end());
    return ChildProcess::run(call);
}

} // namespace orlen::Launchctl
