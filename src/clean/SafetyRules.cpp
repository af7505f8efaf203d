#include "clean/SafetyRules.h"

#include <algorithm>

namespace orlen::SafetyRules {

namespace {

constexpr auto itself = PathTrie::Mark::itself;
constexpr auto contents = PathTrie::Mark::contents;
constexpr auto closed = PathTrie::Mark::closed;
constexpr auto opened = PathTrie::Mark::opened;

constexpr PathRule kPlaceRules[] = {
    // Only what is below these three may be touched.
    {"/", closed},
    {"{H}", opened},
    {"{APPLICATIONS}", opened},
    {"{LIBRARY}", opened},

    {"{ROOT}/(System|usr|bin|sbin|dev|cores|etc)", contents},
    {"{ROOT}/private/(var/db|etc)", contents},
    {"{ROOT}/var/db", contents},

    {"{H}", itself},
    {"{H}/(Library|Documents|Desktop|Pictures|Downloads|Movies|Music)", itself},
    {"{APPLICATIONS}", itself},
    {"{LIBRARY}", itself},
    // Cloud stores. To be careful, everything whose name starts that way is included.
    {"{H}/Library/Mobile Documents*", contents},
    {"{H}/Library/CloudStorage*", contents},

    {"{H}/(.cache|.config|.local|bin|opt|.var|snap|Applications|AppImages|Videos|Public|Templates)", itself},
    {"{H}/.local/(share|state|bin|lib|opt)", itself},
    {"{H}/.var/app", itself},
    {"({CACHE}|{CONFIG}|{DATA}|{STATE})", itself},
    {"({DESKTOP}|{DOWNLOAD}|{DOCUMENTS}|{MUSIC}|{PICTURES}|{VIDEOS}|{TEMPLATES}|{PUBLICSHARE})", itself},
    {"{CONFIG}/(autostart|systemd|systemd/user)", itself},
    {"{DATA}/(applications|icons)", itself},

    // Settings or live data beside caches. An app's folder below ".var/app" stays free: once the app is gone,
    // the uninstaller offers it.
    {"{H}/.var/app/*/(cache|config|data)", itself},
    {"{H}/snap/*", itself},
    {"{H}/(.gradle|.npm|.cargo|.rustup|.android|.android/avd|.m2|go|go/pkg|.mozilla)", itself},
    {"{STEAM}", itself},
    {"{STEAM}/steamapps", itself},
};

constexpr PathRule kTreasureRules[] = {
    // Keys and credentials.
    {"{H}/(.ssh|.gnupg|.pki|.password-store|.aws|.azure|.kube|.docker|.terraform.d)", contents},
    {"{CONFIG}/(gcloud|gh|rclone|borg|op|Bitwarden|sops)", contents},
    {"{H}/.cargo/credentials.toml", contents},
    {"{H}/.gradle/gradle.properties", contents},
    {"{H}/.m2/(settings.xml|settings-security.xml)", contents},
    {"{H}/(.netrc|.git-credentials|.authinfo|.authinfo.gpg|.npmrc|.pypirc|.Xauthority|.ICEauthority)",
     contents},

    // Keyrings, accounts, the settings database, wallets.
    {"{DATA}/(keyrings|kwalletd|gnome-keyring)", contents},
    {"{CONFIG}/(goa-1.0|dconf)", contents},
    {"{H}/(.electrum|.bitcoin|.monero|.ethereum)", contents},

    // Browser profiles: passwords, history, open tabs.
    {"{H}/(.mozilla/firefox|.librewolf|.waterfox|.zen)", contents},
    {"{CONFIG}/google-chrome*", contents},
    {"{CONFIG}/chromium*", contents},
    {"{CONFIG}/BraveSoftware", contents},
    {"{CONFIG}/microsoft-edge*", contents},
    {"{CONFIG}/vivaldi*", contents},
    {"{CONFIG}/opera*", contents},
    {"{H}/.var/app/"
     "(org.mozilla.firefox|io.gitlab.librewolf-community|net.waterfox.waterfox|app.zen_browser.zen|"
     "com.google.Chrome|org.chromium.Chromium|com.brave.Browser|com.microsoft.Edge|com.vivaldi.Vivaldi|"
     "com.opera.Opera)/(config|data|.mozilla)",
     contents},
    // Beside "common" are "current", a link, and the numbered folders it points to.
    {"{H}/snap/(firefox|chromium|brave|opera)/*", closed},
    {"{H}/snap/(firefox|chromium|brave|opera)/*/.cache", opened},

    // Mail stores.
    {"{H}/(.thunderbird|.icedove|Mail|Maildir|.mail|.maildir|.mutt)", contents},
    {"{DATA}/(evolution|geary|akonadi|local-mail|kmail2|mail)", contents},
    {"{CONFIG}/(evolution|akonadi)", contents},
    {"{H}/.claws-mail", closed},
    {"{H}/.claws-mail/mimetmp", opened},

    // Stores that only their own program may change.
    {"{DATA}/(containers|docker|flatpak|libvirt|gnome-boxes|waydroid)", contents},
    {"{H}/(.ollama|.steam)", contents},
    {"{STEAM}/(steamapps/common|steamapps/compatdata|userdata)", contents},

    // The Trash and its bookkeeping; the items in it are free.
    {"({DATA}/Trash|{H}/.Trash-{UID})", itself},
    {"({DATA}/Trash|{H}/.Trash-{UID})/files", itself},
    {"{DATA}/Trash/(info|expunged|directorysizes)", contents},
    {"{H}/.Trash-{UID}/info", contents},

    // History and snapshots of this program.
    {"{DATA}/Orlen", contents},
};

/// Version control stores, encryption metadata, snapshot trees.
constexpr std::string_view kSealedNames[] = {".git",   ".hg",      ".svn",        ".bzr",      ".jj",
                                             "_darcs", ".fscrypt", ".encfs6.xml", ".snapshots"};

/// Libraries that a program keeps as one bundle.
constexpr std::string_view kSealedEndings[] = {".photoslibrary", ".lrdata",        ".lrlibrary", ".aplibrary",
                                               ".fcpbundle",     ".imovielibrary", ".dtBase2"};

/// Placeholders for files that exist only on a server.
constexpr std::string_view kProtectedEndings[] = {".icloud", ".nextcloud", ".owncloud"};

/// Databases of photo managers, and the marker of a synchronised folder.
constexpr std::string_view kProtectedNames[] = {"digikam4.db", "recognition.db", ".stfolder"};

bool isAmong(std::string_view name, std::span<const std::string_view> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool endsWithOneOf(std::string_view name, std::span<const std::string_view> endings)
{
    return std::any_of(endings.begin(), endings.end(),
                       [&](std::string_view ending) { return name.ends_with(ending); });
}

} // namespace

std::span<const PathRule> placeRules()
{
    return kPlaceRules;
}

std::span<const PathRule> treasureRules()
{
    return kTreasureRules;
}

std::vector<std::string> spelledOut(std::string_view pattern)
{
    const std::size_t open = pattern.find('(');
    const std::size_t close = pattern.find(')', open);
    if (open == std::string_view::npos || close == std::string_view::npos)
        return {std::string(pattern)};
    std::vector<std::string> patterns;
    const std::vector<std::string> rests = spelledOut(pattern.substr(close + 1));
    for (std::size_t start = open + 1; start <= close;) {
        const std::size_t end = std::min(pattern.find('|', start), close);
        for (const std::string& rest : rests) {
            std::string& whole = patterns.emplace_back(pattern.substr(0, open));
            whole.append(pattern.substr(start, end - start)).append(rest);
        }
        start = end + 1;
    }
    return patterns;
}

bool isSealedName(std::string_view component)
{
    if (isAmong(component, kSealedNames))
        return true;
    // Most folder names have no dot, and every suffix starts with one.
    return component.find('.') != std::string_view::npos && endsWithOneOf(component, kSealedEndings);
}

bool isSealedPair(std::string_view parent, std::string_view component)
{
    return component == "Mail" && parent == "Library"; // the mail store, in whichever Library
}

bool isProtectedName(std::string_view lastComponent)
{
    return isAmong(lastComponent, kProtectedNames) || endsWithOneOf(lastComponent, kProtectedEndings);
}

} // namespace orlen::SafetyRules
