#include "scan/locations/EntryRules.h"
#include "scan/locations/FolderRules.h"
#include "scan/locations/tables/Tables.h"

namespace orlen::SourceTables {

namespace {

using Kind = FindingKind;

/// Translations inside programs that come as one folder.
SourceRow translations(std::string_view below, Names only)
{
    return {.kind = Kind::languagePacks,
            .from = {"{H}/Applications/*", "{H}/opt/*", "{H}/.local/opt/*"},
            .below = below,
            .only = std::move(only),
            .within = FolderRules::isSelfContainedApp,
            .accepts = EntryRules::isUnusedTranslation};
}

} // namespace

std::vector<SourceRow> personal()
{
    return {
        // Such a backup goes where the user says, so only its contents tell.
        {.kind = Kind::iosBackups,
         .from = {"{H}/Backup", "{H}/Backups", "{H}/MobileSync/Backup", "{H}/Documents",
                  "{H}/Documents/Backup", "{H}/Documents/Backups", "{DOCUMENTS}", "{DOCUMENTS}/Backup",
                  "{DOCUMENTS}/Backups",
                  "{H}/.wine/drive_c/users/*/AppData/Roaming/Apple Computer/MobileSync/Backup"},
         .note = message("Device backup"),
         .accepts = FolderRules::isDeviceBackup},
        {.kind = Kind::trash,
         .offered = Offered::all,
         .from = {"{DATA}/Trash/files", "{H}/.Trash-{UID}/files"},
         .limit = 300,
         .noteOf = EntryRules::trashNote},
        // Copies made when an attachment is opened.
        {.kind = Kind::mailDownloads,
         .from = {"{CACHES}/evolution/tmp", "{H}/.claws-mail/mimetmp",
                  "{H}/.var/app/org.mozilla.Thunderbird/cache/tmp",
                  "{H}/.var/app/eu.betterbird.Betterbird/cache/tmp",
                  "{H}/.var/app/org.gnome.Evolution/cache/tmp", "{H}/.var/app/org.gnome.Geary/cache/tmp"}},
        translations("/locales", {"*.pak", "*.pak.info"}),
        translations("/locale", {}),
        translations("/share/locale", {}),
        translations("/translations", {"qt*_*.qm"}),
        {.kind = Kind::oldDownloads, .reading = Reading::unusedChildren, .from = {"{DOWNLOAD}"}},
    };
}

} // namespace orlen::SourceTables
