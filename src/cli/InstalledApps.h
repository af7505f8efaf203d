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

/// What the commands about applications share.
namespace InstalledApps {

/// Does `work(stop)` beside the event loop, with a live line, and returns its result; nothing when Ctrl-C
/// stopped it, which has been said.
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
/// The applications, with their sizes when asked for. Blocks on the disk.
[[nodiscard]] std::vector<AppInfo> list(Sizes sizes, const std::stop_token& stop);

/// What an application is, in a word or two.
[[nodiscard]] std::string_view kindOf(AppSource source);

} // namespace InstalledApps
} // namespace orlen
