#pragma once

#include "app/Workers.h"
#include "cli/Session.h"

#include <QObject>

#include <functional>
#include <optional>
#include <stop_token>
#include <utility>

/// Work done on a worker while the event loop runs, so that Ctrl-C is noticed. Main thread.
namespace orlen::Background {

/// Runs `work(stop)`, shows `status()` meanwhile and returns the result. Ctrl-C requests the stop.
template <typename Work>
[[nodiscard]] auto result(Session& session, std::function<Message()> status, Work work,
                          Session::Work::Nature nature = Session::Work::Nature::harmless)
{
    std::optional<decltype(work(std::stop_token()))> result;
    QObject receiver;
    Workers workers(receiver);
    std::stop_source stop = workers.start(std::move(work), [&](auto value) { result = std::move(value); });
    session.run(
        {[&] { return result.has_value(); }, [&] { stop.request_stop(); }, std::move(status), nature});
    return *std::move(result);
}

/// The same, except that it returns nothing if Ctrl-C was pressed.
template <typename Work>
[[nodiscard]] auto resultUnlessCancelled(Session& session, std::function<Message()> status, Work work)
{
    std::optional found(result(session, std::move(status), std::move(work)));
    if (session.isInterrupted())
        found.reset();
    return found;
}

} // namespace orlen::Background
