#include "tools/apps/FolderLook.h"

#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "scan/locations/Glob.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace orlen {

namespace {

constexpr int kMostEntries = 50'000;
constexpr int kDeepest = 24;

/// In lower case.
const std::vector<std::string_view> kPersonalNames = {
    // Saved games and progress.
    "save", "saves", "saved", "savedata", "save_data", "save-data", "savegame*", "save game*", "saved game*",
    "saved_game*", "savefile*", "*.sav", "*.save", "*.savegame", "*.srm", "userdata", "worlds",
    // Profiles, accounts, passwords and keys.
    "profile", "profiles", "profile *", "profiles.ini", "*.profile", "logins.json", "key*.db",
    "places.sqlite", "login data", "accounts*", "wallet*", "keystore*", "keyring*", "*.kdbx", "*.wallet",
    "*.key", "*.pem", "*.p12", "*.pfx", "*.gpg", "*.asc", "*.ovpn", "id_rsa*", "id_ed25519*", "seed*",
    // Work, history and mail.
    ".git", ".hg", ".svn", "backup*", "projects", "documents", "*.mbox", "*.db.bak", "journal*", "notes"};

constexpr std::string_view kWebAppNames[] = {"Local State", "Preferences", "Network Persistent State",
                                             "Local Storage", "Session Storage"};

bool isWebAppName(std::string_view name)
{
    return std::find(std::begin(kWebAppNames), std::end(kWebAppNames), name) != std::end(kWebAppNames);
}

class Looker {
public:
    Looker(FolderLook& look, const std::stop_token& stop) : m_look(look), m_stop(stop) {}

    /// False once it cannot be complete.
    bool enter(const Result<UniqueFd>& folder, int depth)
    {
        if (!folder.ok() || depth > kDeepest)
            return false;
        FolderReader reader(folder.value().get());
        while (const auto chunk = reader.next()) {
            bool goesOn = true;
            chunk->forEach([&](const FolderEntry& entry) {
                goesOn = goesOn && take(folder.value().get(), entry.name, depth);
            });
            if (!goesOn)
                return false;
        }
        return reader.error() == 0;
    }

    [[nodiscard]] bool begin(const std::string& path)
    {
        const auto status = statusOf(path);
        if (!status.ok() || status.value().type != FileType::folder)
            return false;
        m_mount = status.value().mount;
        m_look.newest = status.value().modified;
        return true;
    }

private:
    bool take(int folder, const char* name, int depth)
    {
        if (m_stop.stop_requested() || ++m_count > kMostEntries)
            return false;
        const auto status = statusAt(folder, name);
        if (!status.ok() || status.value().mount != m_mount)
            return false;
        m_look.newest = std::max(m_look.newest, status.value().modified);
        m_look.isPersonal = m_look.isPersonal || Glob::matchesAny(kPersonalNames, PathText::asciiLower(name));
        m_look.isWebApp = m_look.isWebApp || (depth == 0 && isWebAppName(name));
        return status.value().type != FileType::folder || enter(openFolderAt(folder, name), depth + 1);
    }

    FolderLook& m_look;
    const std::stop_token& m_stop;
    std::uint64_t m_mount = 0;
    int m_count = 0;
};

} // namespace

FolderLook FolderLook::at(const std::string& path, const std::stop_token& stop)
{
    FolderLook look;
    Looker looker(look, stop);
    look.isComplete = looker.begin(path) && looker.enter(openFolder(path), 0);
    return look;
}

} // namespace orlen
