#include "tools/apps/Leftovers.h"

#include "platform/files/Places.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/LeftoverRoots.h"
#include "tools/apps/LeftoverSearch.h"
#include "tools/apps/RemainingApps.h"

#include <algorithm>

namespace orlen::Leftovers {

namespace {

LeftoverRules::Subject subjectOf(const std::string& bundleID, const std::string& name)
{
    LeftoverRules::Subject subject;
    subject.identifier = LanguageTools::lowerCase(bundleID);
    subject.isApple = isApple(bundleID);
    subject.name = LanguageTools::lowerCase(name);
    subject.forms = AppNames::forms(name);
    return subject;
}

/// Removes spellings of the name that may belong to something else.
void keepOwnForms(LeftoverRules::Subject& subject, const RemainingApps& remaining,
                  std::vector<std::string> words)
{
    words.insert(words.end(), subject.forms.begin(), subject.forms.end());
    if (!subject.identifier.empty())
        words.push_back(subject.identifier);
    const auto& forms = subject.forms;
    const bool isShared = remaining.hasAnyOf(words) ||
                          std::any_of(forms.begin(), forms.end(),
                                      [&](const std::string& form) { return remaining.hasProgram(form); });
    if (isShared)
        subject.forms.clear();
    std::erase_if(subject.forms, AppNames::isAmbiguous);
}

bool isSameApp(const AppInfo& a, const AppInfo& b)
{
    const auto equal = [](const std::string& x, const std::string& y) {
        return !x.empty() && LanguageTools::lowerCase(x) == LanguageTools::lowerCase(y);
    };
    return equal(a.bundleID, b.bundleID) || equal(a.name, b.name);
}

} // namespace

bool isApple(std::string_view bundleID)
{
    return bundleID.starts_with("com.apple.");
}

Text label(std::string_view path)
{
    using Kind = LeftoverRules::Kind;
    const bool isPortable =
        std::any_of(std::begin(LeftoverRoots::kPortableSuffixes), std::end(LeftoverRoots::kPortableSuffixes),
                    [&](std::string_view suffix) { return path.ends_with(suffix); });
    const bool isHidden = PathText::lastComponent(path).starts_with('.');
    for (const LeftoverRoot& root : LeftoverRoots::all()) {
        // An AppImage may itself be where launchers are.
        const bool isAmongPrograms = root.kind == Kind::launchers || root.kind == Kind::links;
        if (root.folder == PathText::parent(path) && !(isPortable && isAmongPrograms) &&
            (isHidden || root.kind != Kind::home))
            return root.label;
    }
    return isPortable ? ToolsTexts::kPortableData : Text();
}

std::vector<FileEntry> find(const std::string& bundleID, const std::string& name, const std::stop_token& stop)
{
    if (!Places::current().isHomeUsable)
        return {};
    const RemainingApps remaining = RemainingApps::all(stop);
    LeftoverRules::Subject subject = subjectOf(bundleID, name);
    keepOwnForms(subject, remaining, {});
    std::vector<FileEntry> entries;
    for (Leftover& leftover : LeftoverSearch(std::move(subject), remaining, nullptr).run(stop))
        entries.push_back(std::move(leftover.entry));
    return entries;
}

Finding find(const AppInfo& app, std::span<const AppInfo> listed, const std::stop_token& stop)
{
    Finding finding;
    // Managers clean up what they installed, and the data of a removed Flatpak is all there is.
    if (!Places::current().isHomeUsable || !app.isRemovable() || app.source == AppSource::removedFlatpak)
        return finding;
    finding.isOtherCopyInstalled = std::any_of(listed.begin(), listed.end(), [&](const AppInfo& other) {
        return other.path != app.path && other.source != AppSource::removedFlatpak && isSameApp(app, other);
    });
    if (finding.isOtherCopyInstalled)
        return finding;
    const RemainingApps remaining = RemainingApps::without(app, listed, stop);
    LeftoverRules::Subject subject = subjectOf(app.bundleID, app.name);
    const std::string file = LanguageTools::lowerCase(PathText::lastComponent(app.path));
    keepOwnForms(subject, remaining, {file});
    for (Leftover& leftover : LeftoverSearch(std::move(subject), remaining, &app).run(stop))
        (leftover.isByNameOnly ? finding.byName : finding.entries).push_back(std::move(leftover.entry));
    return finding;
}

} // namespace orlen::Leftovers
