#include "scan/locations/SourceTable.h"

#include "scan/locations/EntryRules.h"
#include "scan/locations/mac/MacSources.h"

#include <iterator>
#include <utility>

namespace orlen {

namespace {

using Names = std::vector<std::string_view>;
using Kind = FindingKind;

/// Directly below a cache folder, never offered.
const Names& neverOffered()
{
    static const Names names{
        // Writes that may not have been uploaded yet.
        "rclone", "onedriver", "seadrive", "kioexec",
        // Backup programs fail or read their whole remote store again without them.
        "borg", "duplicity", "deja-dup",
        // Conversations, databases, settings, mail kept for reading offline.
        "lm-studio", "keepassxc", "evolution",
        // A service expects the folder, or it contains the user's choice.
        "obexd", "ibus", "doc", "wallpaper", "gnome-control-center",
        // In use by the running desktop, which breaks until the next login.
        "kwin", "plasmashell", "drkonqi", "icon-cache.kcache", "plasma_theme_*.kcache", "ksycoca5*",
        "ksycoca6*",
        // The running file indexer's database, which may hold the user's tags.
        "tracker", "tracker3", "localsearch",
        // Shell history, undo and swap files.
        "zsh", "bash", "fish", "vim", "nvim", "less",
        // Keys, sockets, state of running services, documents open in an archive manager.
        "gnupg", "ssh", "keyring-*", "containers", "libvirt", "dconf", "at-spi", ".fr-*",
        // This program's own.
        "orlen", "Orlen"};
    return names;
}

/// Programs whose "logs" are the user's conversations.
const Names& chatPrograms()
{
    static const Names names{"weechat", "hexchat", "konversation", "gajim",   "quassel*",
                             "psi*",    "dino",    "profanity",    ".purple", "irssi"};
    return names;
}

/// Directly below the cache folder, but offered by other rows or not as a whole.
const Names& otherRowsCaches()
{
    static const Names names{"Homebrew",   "pip",
                             "yarn",       "uv",
                             "pipenv",     "pip-tools",
                             "pdm",        "pypoetry",
                             "rattler",    "node-gyp",
                             "node",       "pnpm",
                             "electron",   "electron-builder",
                             "deno",       "ms-playwright",
                             "puppeteer",  "Cypress",
                             "JetBrains",  "torch",
                             "gdm",        "Google/AndroidStudio*",
                             "huggingface"};
    return names;
}

Names joined(Names names, const Names& more)
{
    names.insert(names.end(), more.begin(), more.end());
    return names;
}

SourceRow single(Kind kind, std::string_view from, std::string_view note)
{
    return {.kind = kind, .reading = Reading::single, .from = {from}, .note = note};
}

/// Folders of Linux desktops and the tools people use on them.
std::vector<SourceRow> freedesktopRows()
{
    return {
        {.kind = Kind::caches,
         .from = {"{CACHE}"},
         .minimum = 100'000,
         .except = joined(neverOffered(), otherRowsCaches())},

        {.kind = Kind::logs, .reading = Reading::single, .from = {"{H}/.xsession-errors"}, .minimum = 10'000},
        {.kind = Kind::logs,
         .reading = Reading::single,
         .from = {"{H}/.xsession-errors.old"},
         .minimum = 10'000},
        {.kind = Kind::logs,
         .reading = Reading::single,
         .from = {"{CACHE}/gdm/session.log"},
         .minimum = 10'000},
        {.kind = Kind::logs,
         .from = {"{DATA}/xorg", "{DATA}/sddm"},
         .minimum = 10'000,
         .accepts = EntryRules::isNamedLikeLog},
        {.kind = Kind::logs,
         .from = {"{STATE}/*", "{STATE}/*/*"},
         .minimum = 10'000,
         .note = "{1}",
         .exceptFolders = chatPrograms(),
         .accepts = EntryRules::isLogFileOrLogsFolder},

        {.kind = Kind::homebrew, .from = {"{CACHE}/Homebrew"}, .minimum = 1'000'000},

        single(Kind::npm, "{CACHE}/yarn", "Yarn cache"),
        single(Kind::npm, "{H}/.yarn/berry/cache", "Yarn cache"),
        single(Kind::npm, "{H}/.npm/_npx", "npx cache"),
        single(Kind::npm, "{H}/.bun/install/cache", "Bun cache"),
        single(Kind::npm, "{CACHE}/node-gyp", "node-gyp cache"),
        single(Kind::npm, "{CACHE}/node/corepack", "Corepack cache"),
        single(Kind::npm, "{CACHE}/electron", "Electron downloads"),
        single(Kind::npm, "{CACHE}/electron-builder", "Electron downloads"),
        single(Kind::npm, "{CACHE}/pnpm", "pnpm's index; an install without network needs it"),
        single(Kind::npm, "{DATA}/pnpm/store", "pnpm store"),
        single(Kind::npm, "{H}/.pnpm-store", "pnpm store"),
        single(Kind::npm, "{CACHE}/ms-playwright", "Test browsers"),
        single(Kind::npm, "{CACHE}/puppeteer", "Test browsers"),
        single(Kind::npm, "{CACHE}/Cypress", "Test browsers"),

        single(Kind::pip, "{CACHE}/pip", "pip cache"),
        single(Kind::pip, "{CACHE}/uv", "uv cache"),
        single(Kind::pip, "{CACHE}/pipenv", "Pipenv cache"),
        single(Kind::pip, "{CACHE}/pip-tools", "pip-tools cache"),
        single(Kind::pip, "{CACHE}/pdm", "PDM cache"),
        single(Kind::pip, "{CACHE}/pypoetry/cache", "Poetry cache"),
        single(Kind::pip, "{CACHE}/pypoetry/artifacts", "Poetry cache"),
        single(Kind::pip, "{CACHE}/rattler", "pixi cache"),
        // Archives only: environments may be linked to the unpacked folders beside them.
        {.kind = Kind::pip,
         .from = {"{H}/miniconda3/pkgs", "{H}/anaconda3/pkgs", "{H}/miniforge3/pkgs", "{H}/mambaforge/pkgs",
                  "{H}/micromamba/pkgs", "{H}/.conda/pkgs"},
         .minimum = 1'000'000,
         .note = "conda download",
         .only = {"*.conda", "*.tar.bz2"}},

        single(Kind::gradle, "{H}/.gradle/wrapper/dists", "Gradle distributions"),
        single(Kind::gradle, "{H}/.gradle/daemon", "Gradle daemon logs"),
        single(Kind::gradle, "{H}/.android/cache", "Android cache"),
        single(Kind::gradle, "{H}/.android/build-cache", "Android build cache"),
        single(Kind::gradle, "{H}/.konan/cache", "Kotlin cache"),

        {.kind = Kind::trash,
         .offered = Offered::all,
         .from = {"{DATA}/Trash/files", "{H}/.Trash-{UID}/files"},
         .limit = 300,
         .noteOf = EntryRules::trashNote},

        {.kind = Kind::oldDownloads, .reading = Reading::unusedChildren, .from = {"{DOWNLOAD}"}},
    };
}

} // namespace

const std::vector<SourceRow>& sourceRows()
{
    static const std::vector<SourceRow> rows = [] {
        // What comes from a Mac is listed first in every finding.
        std::vector<SourceRow> all = macSources();
        std::vector<SourceRow> further = freedesktopRows();
        all.insert(all.end(), std::make_move_iterator(further.begin()),
                   std::make_move_iterator(further.end()));
        return all;
    }();
    return rows;
}

} // namespace orlen
