#include "window/apps/AppInfoTexts.h"

#include "window/apps/AppIconProvider.h"
#include "window/lists/DisplayText.h"

namespace orlen::AppInfoTexts {

namespace {

QString kindName(AppSource source)
{
    switch (source) {
    case AppSource::bundle:
        return QStringLiteral("App bundle");
    case AppSource::appImage:
        return QStringLiteral("AppImage");
    case AppSource::folder:
        return QStringLiteral("App folder");
    case AppSource::flatpak:
        return QStringLiteral("Flatpak");
    case AppSource::snap:
        return QStringLiteral("Snap");
    case AppSource::removedFlatpak:
        return QStringLiteral("Data of a removed Flatpak");
    }
    return {};
}

QString symbol(AppSource source)
{
    switch (source) {
    case AppSource::bundle:
    case AppSource::appImage:
        return QStringLiteral("macwindow");
    case AppSource::folder:
        return QStringLiteral("folder.fill");
    case AppSource::flatpak:
    case AppSource::snap:
        return QStringLiteral("shippingbox.fill");
    case AppSource::removedFlatpak:
        return QStringLiteral("archivebox.fill");
    }
    return {};
}

} // namespace

QString summary(std::size_t applications, std::int64_t bytes)
{
    const QString count = DisplayText::counted(static_cast<std::int64_t>(applications), "application");
    return bytes == 0 ? count : QStringLiteral("%1 · %2").arg(count, DisplayText::size(bytes));
}

QString foldersSummary(std::size_t folders, std::int64_t bytes)
{
    return QStringLiteral("%1 · %2").arg(DisplayText::counted(static_cast<std::int64_t>(folders), "folder"),
                                         DisplayText::size(bytes));
}

QString origin(const AppInfo& app)
{
    return QStringLiteral("%1 · %2").arg(kindName(app.source), DisplayText::folderOf(app.path));
}

QString iconId(const AppInfo& app)
{
    return AppIconProvider::id(symbol(app.source), app.icon);
}

QString leftoversHeading(const AppInfo& app)
{
    if (app.bundleID.empty())
        return QStringLiteral("Leftovers found by name");
    return QStringLiteral("Leftovers found by bundle identifier (%1)").arg(DisplayText::path(app.bundleID));
}

} // namespace orlen::AppInfoTexts
