#include "tools/apps/AppNames.h"

#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>

namespace orlen::AppNames {

namespace {

constexpr std::size_t kShortestForm = 4;

/// Folders of these names are shared by many programs or belong to the desktop.
constexpr std::string_view kStopNames[] = {
    "data",     "code",    "editor",  "player",    "browser", "music",        "photos", "video",
    "files",    "notes",   "mail",    "games",     "system",  "desktop",      "config", "cache",
    "local",    "share",   "user",    "default",   "python",  "java",         "node",   "electron",
    "chromium", "google",  "mozilla", "microsoft", "kde",     "gnome",        "gtk",    "qt",
    "pulse",    "systemd", "fonts",   "icons",     "themes",  "applications", "trash",  "autostart",
    "dconf",    "git",     "nvim",    "vim",       "flatpak", "containers"};

/// Last parts of identifiers that many applications have.
constexpr std::string_view kPlainParts[] = {"client", "app", "desktop", "application", "gui"};

bool isPart(std::string_view part)
{
    const auto isAllowed = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '-';
    };
    return !part.empty() && !(part.front() >= '0' && part.front() <= '9') &&
           std::all_of(part.begin(), part.end(), isAllowed);
}

std::string withBetweenWords(std::string_view name, std::string_view between)
{
    std::string text;
    for (const char c : name) {
        if (c == ' ')
            text += between;
        else
            text.push_back(c);
    }
    return text;
}

std::size_t characters(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; // not the second byte of one
    }));
}

} // namespace

bool isIdentifier(std::string_view text)
{
    int parts = 0;
    for (std::size_t at = 0; at <= text.size(); ++parts) {
        const std::size_t end = std::min(text.find('.', at), text.size());
        if (!isPart(text.substr(at, end - at)))
            return false;
        at = end + 1;
    }
    return parts >= 3;
}

std::string_view lastPart(std::string_view identifier)
{
    const std::size_t dot = identifier.rfind('.');
    return dot == std::string_view::npos ? identifier : identifier.substr(dot + 1);
}

std::string shownName(std::string_view identifier)
{
    const std::string_view last = lastPart(identifier);
    if (std::ranges::find(kPlainParts, LanguageTools::lowerCase(last)) == std::end(kPlainParts) ||
        last.size() == identifier.size())
        return std::string(last);
    std::string name(lastPart(identifier.substr(0, identifier.size() - last.size() - 1)));
    if (!name.empty() && name.front() >= 'a' && name.front() <= 'z')
        name.front() = static_cast<char>(name.front() - 'a' + 'A');
    return name;
}

std::vector<std::string> forms(std::string_view name)
{
    const std::string lower = LanguageTools::lowerCase(name);
    std::vector<std::string> forms;
    for (const std::string_view between : {" ", "", "-", "_"}) {
        std::string form = withBetweenWords(lower, between);
        if (!form.empty() && std::find(forms.begin(), forms.end(), form) == forms.end())
            forms.push_back(std::move(form));
    }
    return forms;
}

bool isAmbiguous(std::string_view form)
{
    return characters(form) < kShortestForm ||
           std::find(std::begin(kStopNames), std::end(kStopNames), form) != std::end(kStopNames);
}

} // namespace orlen::AppNames
