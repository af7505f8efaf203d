#pragma once

#include "app/Workers.h"
#include "cli/Session.h"
#include "cli/Texts.h"
#include "tools/apps/AppInfo.h"

#include <QObject>

#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen {

/// Shared by the commands about applications.
namespace InstalledApps {

/// Runs `work(stop)` on a worker, shows `status` and returns the result. Prints a note and returns nothing if
/// Ctrl-C stopped it.
template <typename Work>
[[nodiscard]] auto inBackground(Session& session, std::string_view status, Work work)
    -> std::optional<decltype(work(std::stop_token()))>
{
    std::optional<decltype(work(std::stop_token()))> result;
    QObject receiver;
    Workers workers(receiver);
    std::stop_source stop = workers.start(std::move(work), [&](auto value) { result = std::move(value); });
    session.run({[&] { return result.has_value(); }, [&] { stop.request_stop(); },
                 [&] { return std::string(status); }});
    if (session.isInterrupted()) {
        session.complain(Texts::kCancelled);
        return std::nullopt;
    }
    return result;
}

enum class Sizes { absent, measured };
/// The installed applications, with sizes on request. Blocks on the disk.
[[nodiscard]] std::vector<AppInfo> list(Sizes sizes, const std::stop_token& stop);

/// The kind of application, in a word or two.
[[nodiscard]] std::string_view kindOf(AppSource source);

} // namespace InstalledApps
} // namespace orlen
