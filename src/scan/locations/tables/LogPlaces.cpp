#include "scan/locations/EntryRules.h"
#include "scan/locations/FolderRules.h"
#include "scan/locations/tables/Tables.h"

namespace orlen::SourceTables {

namespace {

constexpr std::int64_t kSmallest = 10'000;

SourceRow single(std::string_view program, Names from)
{
    return {.kind = FindingKind::logs,
            .reading = Reading::single,
            .from = std::move(from),
            .minimum = kSmallest,
            .noteName = program};
}

SourceRow children(std::string_view program, Names from, Names only = {})
{
    return {.kind = FindingKind::logs,
            .from = std::move(from),
            .minimum = kSmallest,
            .noteName = program,
            .only = std::move(only)};
}

SourceRow accepting(SourceRow row, bool (*accepts)(const std::string&))
{
    row.accepts = accepts;
    return row;
}

SourceRow exceptChats(SourceRow row)
{
    row.exceptFolders = chatPrograms();
    return row;
}

SourceRow inWebViews(SourceRow row)
{
    row.within = FolderRules::holdsWebView;
    return row;
}

SourceRow crashDumps()
{
    SourceRow row =
        accepting(children({}, {"{H}"}, {"hs_err_pid*.log", "java_error_in_*.log", "core", "core.*"}),
                  EntryRules::isCrashDump);
    row.note = message("Crash dump");
    return row;
}

} // namespace

const Names& chatPrograms()
{
    static const Names names{"weechat",  "hexchat", "konversation", "gajim",   "quassel*",
                             "psi*",     "dino",    "profanity",    ".purple", "irssi",
                             "TpLogger", "Empathy", "kopete",       "Mudlet"};
    return names;
}

std::vector<SourceRow> logs()
{
    return {
        single({}, {"{H}/.xsession-errors", "{H}/.xsession-errors.old", "{CACHES}/gdm/session.log"}),
        accepting(children({}, {"{DATA}/xorg", "{DATA}/sddm"}), EntryRules::isNamedLikeLog),
        // Nothing else of these folders is ever offered: editors keep what can be undone there, programs
        // their keys and databases.
        exceptChats(
            accepting(children("*", {"{STATE}/*", "{STATE}/*/*"}), EntryRules::isLogFileOrLogsFolder)),
        inWebViews(children("*", {"{CONFIGS}/*"}, {"logs", "Crashpad", "Crash Reports"})),
        exceptChats(accepting(children("*", {"{DATAS}/*"}, {"log", "logs"}), FolderRules::holdsOnlyLogs)),
        accepting(children("Steam", {"{STEAM}/logs"}), EntryRules::isNamedLikeLog),
        single("Steam", {"{STEAM}/dumps"}),
        crashDumps(),
        single("obs-studio", {"{CONFIGS}/obs-studio/logs", "{CONFIGS}/obs-studio/crashes",
                              "{CONFIGS}/obs-studio/profiler_data"}),
        single("HandBrake", {"{CONFIGS}/ghb/EncodeLogs"}),
        single("Zoom", {"{H}/.zoom/logs"}),
        single("pm2", {"{H}/.pm2/logs"}),
        children("VNC", {"{H}/.vnc"}, {"*.log"}),
        single("Minecraft", {"{H}/.minecraft/logs", "{H}/.minecraft/crash-reports"}),
        single("*", {"{DATAS}/PrismLauncher/instances/*/minecraft/logs",
                     "{DATAS}/PrismLauncher/instances/*/minecraft/crash-reports",
                     "{DATAS}/PrismLauncher/instances/*/.minecraft/logs",
                     "{DATAS}/PrismLauncher/instances/*/.minecraft/crash-reports",
                     "{DATAS}/multimc/instances/*/minecraft/logs",
                     "{DATAS}/multimc/instances/*/minecraft/crash-reports",
                     "{DATAS}/multimc/instances/*/.minecraft/logs",
                     "{DATAS}/multimc/instances/*/.minecraft/crash-reports"}),
        single("VirtualBox", {"{H}/VirtualBox VMs/*/Logs"}),
        single("npm", {"{H}/npm-debug.log"}),
        single("JetBrains Toolbox", {"{DATA}/JetBrains/Toolbox/logs"}),
        single("VS Code server", {"{H}/.vscode-server/data/logs"}),
    };
}

} // namespace orlen::SourceTables
