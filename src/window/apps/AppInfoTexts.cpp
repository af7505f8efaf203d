#include "window/apps/AppInfoTexts.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
#include "window/apps/AppIconProvider.h"
#include "window/lists/DisplayText.h"

namespace orlen::AppInfoTexts {

namespace {

/// Some kinds are names, which no language changes.
Message kindName(AppSource source)
{
    switch (source) {
    case AppSource::bundle:
        return WindowTexts::kAppBundle;
    case AppSource::appImage:
        return Message::verbatim("AppImage");
    case AppSource::folder:
        return WindowTexts::kAppFolder;
    case AppSource::flatpak:
        return Message::verbatim("Flatpak");
    case AppSource::snap:
        return Message::verbatim("Snap");
    case AppSource::removedFlatpak:
        return WindowTexts::kRemovedFlatpak;
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

Message useOf(const AppInfo& app)
{
    if (!app.lastUse)
        return WindowTexts::kUseUnknown;
    const Place date{"date", Moment{app.lastUse->when, Moment::Form::day}};
    switch (app.lastUse->source) {
    case AppUse::Source::desktop:
        return {WindowTexts::kLastUsed, {date}};
    case AppUse::Source::file:
        return {WindowTexts::kFileLastRead, {date}};
    }
    return {};
}

} // namespace

QString summary(std::size_t applications, std::int64_t bytes)
{
    const QString count =
        DisplayText::counted(static_cast<std::int64_t>(applications), WindowTexts::kApplicationCount);
    return DisplayText::facts({count, bytes == 0 ? QString() : DisplayText::size(bytes)});
}

QString foldersSummary(std::size_t folders, std::int64_t bytes)
{
    return DisplayText::facts(
        {DisplayText::counted(static_cast<std::int64_t>(folders), WindowTexts::kFolders),
         DisplayText::size(bytes)});
}

QString origin(const AppInfo& app)
{
    return DisplayText::facts({DisplayText::text(kindName(app.source)), DisplayText::folderOf(app.path)});
}

QString usage(const AppInfo& app)
{
    QStringList facts;
    if (app.dataSize.value_or(0) > 0)
        facts += DisplayText::text(Message(WindowTexts::kOfItData, {{"size", Bytes{*app.dataSize}}}));
    facts += lastUse(app);
    return DisplayText::facts(facts);
}

QString lastUse(const AppInfo& app)
{
    return DisplayText::text(useOf(app));
}

QString kind(AppSource source)
{
    return DisplayText::text(kindName(source));
}

QString iconId(const AppInfo& app)
{
    return AppIconProvider::id(symbol(app.source), app.icon);
}

QString leftoversHeading(const AppInfo& app)
{
    if (app.bundleID.empty())
        return DisplayText::text(AppTexts::kLeftoversByName);
    return DisplayText::text(Message(AppTexts::kLeftoversByIdentifier, {{"id", app.bundleID}}));
}

} // namespace orlen::AppInfoTexts
