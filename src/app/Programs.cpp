#include "app/Programs.h"

#include "clean/Persist.h"
#include "tools/apps/AppList.h"
#include "tools/apps/LeftBehind.h"
#include "tools/startup/LaunchControl.h"

#include <chrono>
#include <stop_token>
#include <utility>

namespace orlen {

namespace {

struct Found {
    std::vector<KnownApp> apps;
    std::vector<KnownStartupItem> items;
    std::vector<FileEntry> leftovers;
};

KnownApp::Source source(const AppInfo& app)
{
    switch (app.source) {
    case AppSource::flatpak:
        return KnownApp::Source::flatpak;
    case AppSource::snap:
        return KnownApp::Source::snap;
    case AppSource::removedFlatpak:
        return KnownApp::Source::removed;
    case AppSource::bundle:
    case AppSource::appImage:
    case AppSource::folder:
        break;
    }
    return KnownApp::Source::own;
}

KnownApp known(AppInfo app)
{
    KnownApp one{std::move(app.name), app.total(), source(app), std::move(app.advice)};
    if (app.lastUse) {
        one.lastUse = app.lastUse->when;
        one.isUseNoted = app.lastUse->source == AppUse::Source::desktop;
    }
    return one;
}

Found read(const std::stop_token& stop)
{
    std::vector<AppInfo> apps = AppList::list(stop);
    AppList::measure(
        apps, [&](std::size_t index, std::int64_t bytes) { apps[index].size = bytes; }, stop);
    AppList::measureData(
        apps, [&](std::size_t index, std::int64_t bytes) { apps[index].dataSize = bytes; }, stop);
    Found found;
    found.leftovers =
        LeftBehind::find(apps, Persist::loadHistory().records, std::chrono::system_clock::now(), stop);
    for (AppInfo& app : apps)
        found.apps.push_back(known(std::move(app)));
    if (stop.stop_requested())
        return found;
    for (LaunchItem& item : LaunchControl::load())
        found.items.push_back({std::move(item.name), item.enabled});
    return found;
}

} // namespace

Programs::Programs(QObject* parent) : ModelPart(parent), m_workers(*this) {}

void Programs::load()
{
    checkThread();
    m_workers.start(m_work, read, [this](Found found) {
        m_apps = std::move(found.apps);
        m_items = std::move(found.items);
        m_leftovers = std::move(found.leftovers);
        Q_EMIT loaded();
    });
}

} // namespace orlen
