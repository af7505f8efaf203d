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
    const QString count = applications == 1
                              ? QStringLiteral("1 application")
                              : QStringLiteral("%1 applications")
                                    .arg(DisplayText::number(static_cast<std::int64_t>(applications)));
    return bytes == 0 ? count : QStringLiteral("%1 · %2").arg(count, DisplayText::size(bytes));
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

QString chosen(std::size_t chosen, std::size_t leftovers)
{
    return QStringLiteral("%1 of %2 selected")
        .arg(DisplayText::number(static_cast<std::int64_t>(chosen)),
             DisplayText::number(static_cast<std::int64_t>(leftovers)));
}

QString quitFirst(const AppInfo& app)
{
    return QStringLiteral("Quit %1 first").arg(DisplayText::path(app.name));
}

} // namespace orlen::AppInfoTexts
