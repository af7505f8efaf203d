#include "model/ModelTexts.h"
#include "scan/locations/EntryRules.h"
#include "scan/locations/FolderRules.h"
#include "scan/locations/tables/Tables.h"

// Each name was decided by what its program documents or does. A program that keeps anything of the user's in
// its cache folder does not belong among the safe ones; what is doubtful is for review.
namespace orlen::SourceTables {

namespace {

constexpr std::int64_t kSmallest = 100'000;

/// Nothing of these names is offered, whichever row would.
SourceRow never(Names names)
{
    return {.reading = Reading::never, .from = {"{CACHES}"}, .only = std::move(names)};
}

SourceRow named(Text note, Names names)
{
    return {.from = {"{CACHES}"},
            .minimum = kSmallest,
            .note = note,
            .only = std::move(names),
            .isOwnedByProgram = true};
}

SourceRow forReview(Text note, Names names)
{
    SourceRow row = named(note, std::move(names));
    row.rating = Rating::review;
    return row;
}

/// One entry per download.
SourceRow downloads(Names from, Names only, Names except)
{
    return {.from = std::move(from),
            .minimum = 1'000'000,
            .rating = Rating::review,
            .note = ScanTexts::kLargeDownload,
            .only = std::move(only),
            .except = std::move(except)};
}

std::vector<SourceRow> neverOffered()
{
    return {
        // Writes that may not have been uploaded yet.
        never({"rclone", "onedriver", "seadrive", "kioexec"}),
        // Backup programs fail without them, or read their whole remote store again.
        never({"borg", "duplicity", "deja-dup", "kopia", "tarsnap"}),
        // Conversations, databases, settings, mail kept for reading offline.
        never({"lm-studio", "keepassxc", "evolution", "mu", "notmuch", "podcasts", "gpodder"}),
        // A service expects the folder, or it contains the user's choice.
        never({"obexd", "ibus", "doc", "wallpaper", "gnome-control-center", "wal"}),
        // In use by the running desktop, which breaks until the next login.
        never({"kwin", "plasmashell", "drkonqi", "icon-cache.kcache", "plasma_theme_*.kcache", "ksycoca5*",
               "ksycoca6*"}),
        // The running file indexer's database, which may hold the user's tags.
        never({"tracker", "tracker3", "localsearch"}),
        // Shell history, undo and swap files, open sessions.
        never({"zsh", "bash", "fish", "vim", "nvim", "less", "doom", "emacs", "sessions", "zellij", "tmux"}),
        // Clipboards with what the user pinned.
        never({"clipboard-indicator@*", "cliphist", "greenclip*", "xfce4"}),
        // Autosaves and unfinished work.
        never({"inkscape", "kdenlive", "openshot", "transmission", "qBittorrent"}),
        // Saved games and settings.
        never({"wesnoth", "supertux*"}),
        // Keys, sockets, state of running services, documents open in an archive manager.
        never({"gnupg", "ssh", "keyring-*", "containers", "libvirt", "dconf", "at-spi", ".fr-*"}),
        // Projects link into them.
        never({"R", "coursier"}),
        // Other rows offer parts of it.
        never({"JetBrains"}),
        // This program's own.
        never({"orlen", "Orlen"}),
        // A sandboxed program's temporary files, perhaps those of an open document.
        {.reading = Reading::never, .from = {"{H}/.var/app/*/cache"}, .only = {"tmp"}},
        // Access tokens beside downloads.
        {.reading = Reading::never, .from = {"{CACHES}/huggingface"}, .only = {"token", "stored_tokens"}},
    };
}

std::vector<SourceRow> careful()
{
    return {
        forReview(message("May hold songs you downloaded for offline use."), {"spotify*"}),
        forReview(message("Stop the Bazel server first."), {"bazel"}),
        forReview(message("Some installers can no longer be downloaded."), {"winetricks", "lutris"}),
        forReview(message("Built packages kept for going back to an older version."), {"yay", "paru"}),
        forReview(message("Backup index; reading it again can take long."), {"restic"}),
        forReview(message("Hook environments; installed again on the next commit."), {"pre-commit"}),

        downloads({"{CACHES}/huggingface/hub"}, {"models--*", "datasets--*", "spaces--*"}, {}),
        downloads({"{CACHES}/huggingface", "{CACHES}/torch"}, {}, {}),
        downloads({"{CACHES}/torch/hub", "{CACHES}/llama.cpp", "{CACHES}/modelscope", "{CACHES}/kagglehub",
                   "{CACHES}/clip", "{CACHES}/suno", "{CACHES}/nemo", "{CACHES}/whisper", "{CACHES}/gpt4all",
                   "{CACHES}/openai", "{CACHES}/spacy", "{CACHES}/stanza", "{CACHES}/nltk_data"},
                  {}, {}),
    };
}

std::vector<SourceRow> safe()
{
    return {
        named(message("Download cache of Flatpak."), {"flatpak"}),
        named(message("Previews; made again when you open a folder."), {"thumbnails"}),
        named(ModelTexts::kBrowserCache,
              {"mozilla", "google-chrome*", "chromium", "BraveSoftware", "vivaldi*", "opera*",
               "microsoft-edge*", "librewolf", "waterfox", "zen", "floorp", "thorium", "falkon",
               "qutebrowser", "konqueror", "thunderbird", "geary"}),
        named(message("The next build is slower"),
              {"go-build", "ccache", "sccache", "clangd", "zig", "nim", "ghcide", "hls-*", "gopls",
               "golangci-lint", "rust-analyzer", "bazelisk", "cargo-*", "swiftpm", "dub", "crystal", "elm"}),
        named(ScanTexts::kBuiltAgain,
              {"typescript", "eslint",     "prettier",     "turbo",      "parcel",
               "vite",       "mypy",       "ruff",         "black",      "pylint",
               "pytest",     "ty",         "helm",         "trivy",      "gh",
               "act",        "terraform",  "k9s",          "kube",       "gitstatus",
               "starship",   "p10k-*",     "oh-my-posh",   "tealdeer",   "man",
               "mandb",      "org.octave", "R-pkgs",       "matplotlib", "jedi",
               "parso",      "numba",      "pocketsphinx", "vscode-*",   "lua-language-server",
               "tree-sitter"}),
        named(message("Rebuilt when a program draws again"), {"mesa_shader_cache*",
                                                              "mesa_shader_cache_sf",
                                                              "nvidia",
                                                              "AMD",
                                                              "radv_builtin_shaders*",
                                                              "qtshadercache*",
                                                              "gstreamer-1.0",
                                                              "gegl-*",
                                                              "babl",
                                                              "GIMP",
                                                              "gimp",
                                                              "blender",
                                                              "darktable",
                                                              "rawtherapee",
                                                              "fontconfig",
                                                              "fontforge",
                                                              "event-sound-cache.*",
                                                              "vlc",
                                                              "mpv",
                                                              "totem",
                                                              "rhythmbox",
                                                              "shotwell",
                                                              "gthumb",
                                                              "gwenview",
                                                              "digikam",
                                                              "obs-studio"}),
        named(message("Made again by the desktop"),
              {"gnome-software", "gnome-desktop-thumbnailer", "gnome-maps", "gnome-weather", "libgweather",
               "gnome-calculator", "gnome-screenshot", "discover", "appstream*", "PackageKit", "kio_http",
               "krunner*", "plasma-systemmonitor", "khelpcenter", "bookmarksrunner", "qmlcache", "*.qmlc",
               "mate-*", "cinnamon*"}),
        named(message("Rebuilt when the game runs"),
              {"heroic", "legendary", "dxvk*", "vkd3d*", "umu", "PrismLauncher"}),
    };
}

/// The folders of a web view, one by one: some hold what pages stored.
std::vector<SourceRow> webViews()
{
    Names neverOpened;
    for (const SourceRow& row : neverOffered())
        neverOpened.insert(neverOpened.end(), row.only.begin(), row.only.end());
    const SourceRow any{.from = {"{CACHES}/*"},
                        .minimum = kSmallest,
                        .rating = Rating::review,
                        .note = ScanTexts::kUnknownCache,
                        .exceptFolders = neverOpened,
                        .within = FolderRules::holdsWebKitCache};
    SourceRow settings = any;
    settings.reading = Reading::never;
    settings.only = {"hsts-storage.sqlite"};
    SourceRow pages = any;
    pages.rating = Rating::safe;
    pages.note = ModelTexts::kBrowserCache;
    pages.only = {"WebKitCache"};
    SourceRow offline = any;
    offline.note = ModelTexts::kOfflineData;
    offline.only = {"CacheStorage"};
    return {settings, pages, offline, any};
}

/// Folders that say themselves what they are, and those this program does not know.
std::vector<SourceRow> others()
{
    SourceRow tagged = named(ScanTexts::kMarkedAsCache, {});
    tagged.accepts = FolderRules::isTaggedCache;
    return {tagged, forReview(ScanTexts::kUnknownCache, {})};
}

void append(std::vector<SourceRow>& rows, std::vector<SourceRow> more)
{
    rows.insert(rows.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

std::vector<SourceRow> cacheNames()
{
    std::vector<SourceRow> rows = neverOffered();
    append(rows, careful());
    append(rows, safe());
    append(rows, webViews());
    append(rows, others());
    return rows;
}

} // namespace orlen::SourceTables
