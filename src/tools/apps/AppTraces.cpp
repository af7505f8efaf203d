#include "tools/apps/AppTraces.h"

#include "platform/files/FileContent.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/InstalledNames.h"
#include "tools/apps/Launchers.h"

#include <algorithm>
#include <vector>

namespace orlen {

namespace {

constexpr std::size_t kTraceLimit = 4UL * 1024 * 1024;

/// Files of desktops that name desktop entries.
constexpr std::string_view kLists[] = {
    "{CONFIG}/mimeapps.list",
    "{DATA}/applications/mimeapps.list",
    "{DATA}/applications/mimeinfo.cache",
    "{DATA}/gnome-shell/application_state",
    "{CONFIG}/plasma-org.kde.plasma.desktop-appletsrc",
};

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || c == '.' || c == '+';
}

} // namespace

AppTraces AppTraces::read(std::span<const CleanRecord> history)
{
    AppTraces traces;
    for (const std::string_view pattern : kLists) {
        for (const std::string& path : Places::current().expand(pattern)) {
            if (const auto text = readSmallFile(path, kTraceLimit))
                traces.addEntriesNamedIn(*text);
        }
    }
    traces.addHistory(history);
    for (const Launcher& launcher : Launchers::ofUser()) {
        if (launcher.isProgramThere())
            continue;
        for (const std::string* name : {&launcher.name, &launcher.plainName, &launcher.windowClass,
                                        &launcher.stem, &launcher.identifier})
            traces.add(*name);
        for (const std::string& program : launcher.programs)
            traces.add(PathText::lastComponent(program));
    }
    return traces;
}

bool AppTraces::has(std::string_view folder) const
{
    return m_names.contains(InstalledNames::plain(folder));
}

void AppTraces::add(std::string_view name)
{
    m_names.insert(InstalledNames::plain(name));
    if (AppNames::isIdentifier(name))
        m_names.insert(InstalledNames::plain(AppNames::lastPart(name)));
}

/// Otherwise a folder would no longer count once its application's others are in the Trash.
void AppTraces::addHistory(std::span<const CleanRecord> history)
{
    std::vector<std::string> folders;
    for (const std::string_view word : {"{CONFIG}", "{DATA}", "{CACHE}", "{STATE}"}) {
        for (std::string& folder : Places::current().expand(word))
            folders.push_back(std::move(folder));
    }
    for (const CleanRecord& record : history) {
        for (const TrashedItem& item : record.items) {
            if (!item.restored &&
                std::find(folders.begin(), folders.end(), PathText::parent(item.original)) != folders.end())
                add(PathText::lastComponent(item.original));
        }
    }
}

/// Whatever the format, such a file names entries as "org.example.App.desktop".
void AppTraces::addEntriesNamedIn(std::string_view text)
{
    constexpr std::string_view kSuffix = ".desktop";
    constexpr std::size_t kLongestName = 255;
    for (std::size_t at = text.find(kSuffix); at != std::string_view::npos;
         at = text.find(kSuffix, at + kSuffix.size())) {
        std::size_t start = at;
        while (start > 0 && at - start < kLongestName && isNameCharacter(text[start - 1]))
            --start;
        add(text.substr(start, at - start));
    }
}

} // namespace orlen
