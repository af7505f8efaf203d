#include "clean/SafetyRules.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen::SafetyRules {

namespace {

constexpr auto itself = PathTrie::Mark::itself;
constexpr auto contents = PathTrie::Mark::contents;
constexpr auto closed = PathTrie::Mark::closed;
constexpr auto opened = PathTrie::Mark::opened;

using enum Protection;

constexpr PathRule kPlaceRules[] = {
    // Only what is below these three may be touched.
    {"/", closed, outside},
    {"{H}", opened, none},
    {"{APPLICATIONS}", opened, none},
    {"{LIBRARY}", opened, none},

    {"{ROOT}/(System|usr|bin|sbin|dev|cores|etc)", contents, systemFolders},
    {"{ROOT}/private/(var/db|etc)", contents, systemFolders},
    {"{ROOT}/var/db", contents, systemFolders},

    {"{H}", itself, mainFolders},
    {"{H}/(Library|Documents|Desktop|Pictures|Downloads|Movies|Music)", itself, mainFolders},
    {"{APPLICATIONS}", itself, mainFolders},
    {"{LIBRARY}", itself, mainFolders},
    // To be careful, everything whose name starts that way is included.
    {"{H}/Library/Mobile Documents*", contents, cloudStores},
    {"{H}/Library/CloudStorage*", contents, cloudStores},

    {"{H}/(.cache|.config|.local|bin|opt|.var|snap|Applications|AppImages|Videos|Public|Templates)", itself,
     mainFolders},
    {"{H}/.local/(share|state|bin|lib|opt)", itself, mainFolders},
    {"{H}/.var/app", itself, mainFolders},
    {"({CACHE}|{CONFIG}|{DATA}|{STATE})", itself, mainFolders},
    {"({DESKTOP}|{DOWNLOAD}|{DOCUMENTS}|{MUSIC}|{PICTURES}|{VIDEOS}|{TEMPLATES}|{PUBLICSHARE})", itself,
     mainFolders},
    {"{CONFIG}/(autostart|systemd|systemd/user)", itself, mainFolders},
    {"{DATA}/(applications|icons)", itself, mainFolders},

    // An app's folder below ".var/app" stays free: once the app is gone, the uninstaller offers it.
    {"{H}/.var/app/*/(cache|config|data)", itself, settingsBesideCaches},
    {"{H}/snap/*", itself, settingsBesideCaches},
    {"{H}/(.gradle|.npm|.cargo|.rustup|.android|.android/avd|.m2|go|go/pkg|.mozilla)", itself,
     settingsBesideCaches},
    {"({STEAM}|{H}/.steam|{H}/.steam/*)", itself, settingsBesideCaches},
    {"({STEAM}|{H}/.steam/*)/steamapps", itself, settingsBesideCaches},
};

constexpr PathRule kTreasureRules[] = {
    {"{H}/(.ssh|.gnupg|.pki|.password-store|.aws|.azure|.kube|.docker|.terraform.d)", contents, credentials},
    {"{H}/(.step|.oci)", contents, credentials},
    {"{H}/.minikube", closed, credentials},
    {"{H}/.minikube/cache", opened, none},
    {"{CONFIG}/(gcloud|gh|rclone|borg|op|Bitwarden|sops|1Password|keepassxc|age|Proton)", contents,
     credentials},
    {"{H}/.cargo/credentials.toml", contents, credentials},
    {"{H}/.gradle/gradle.properties", contents, credentials},
    {"{H}/.m2/(settings.xml|settings-security.xml)", contents, credentials},
    {"{H}/(.netrc|.git-credentials|.authinfo|.authinfo.gpg|.npmrc|.pypirc|.Xauthority|.ICEauthority)",
     contents, credentials},

    {"{DATA}/(keyrings|kwalletd|gnome-keyring)", contents, keyrings},
    {"{CONFIG}/(goa-1.0|dconf|solana|feather)", contents, keyrings},
    {"{H}/(.electrum|.bitcoin|.monero|.ethereum)", contents, keyrings},

    {"{H}/(.mozilla/firefox|.librewolf|.waterfox|.zen|.floorp)", contents, browserProfiles},
    {"{CONFIG}/(mozilla|librewolf|zen|waterfox|floorp)", contents, browserProfiles},
    {"{H}/.var/app/"
     "(org.mozilla.firefox|io.gitlab.librewolf-community|net.waterfox.waterfox|app.zen_browser.zen)/"
     "(config|data|.mozilla)",
     contents, browserProfiles},
    // Browsers whose engine keeps its caches in the profile: only those are let through, by exact name.
    {"{CONFIG}/(google-chrome*|chromium*|microsoft-edge*|vivaldi*|opera*|BraveSoftware)", closed,
     browserProfiles},
    {"{CONFIG}/(thorium|net.imput.helium|yandex-browser)", closed, browserProfiles},
    {"{CONFIG}/(google-chrome*|chromium*|microsoft-edge*|vivaldi*|opera*|BraveSoftware/*){PROFILE}/{ENGINE}",
     opened, none},
    {"{CONFIG}/(thorium|net.imput.helium|yandex-browser){PROFILE}/{ENGINE}", opened, none},
    {"({CONFIG}|{DATA})/(falkon|qutebrowser)", closed, browserProfiles},
    {"({CONFIG}|{DATA})/(falkon|qutebrowser)/(webengine|QtWebEngine/*|profiles/*)/{ENGINE}", opened, none},
    {"{DATA}/epiphany", contents, browserProfiles},
    {"{H}/.var/app/(com.google.Chrome|org.chromium.Chromium|com.brave.Browser|com.microsoft.Edge|"
     "com.vivaldi.Vivaldi|com.opera.Opera)/(config|data|.mozilla)",
     closed, browserProfiles},
    {"{H}/.var/app/(com.google.Chrome|org.chromium.Chromium|com.brave.Browser|com.microsoft.Edge|"
     "com.vivaldi.Vivaldi|com.opera.Opera)/config/(*|BraveSoftware/*){PROFILE}/{ENGINE}",
     opened, none},
    // Beside "common" are "current", a link, and the numbered folders it points to.
    {"{H}/snap/(firefox|chromium|brave|opera)/*", closed, browserProfiles},
    {"{H}/snap/(firefox|chromium|brave|opera)/*/.cache", opened, none},
    {"{H}/snap/chromium/*/chromium{PROFILE}/{ENGINE}", opened, none},
    {"{H}/snap/(brave|opera)/*/.config/(opera*|BraveSoftware/*){PROFILE}/{ENGINE}", opened, none},

    {"{H}/(.thunderbird|.icedove|Mail|Maildir|.mail|.maildir|.mutt)", contents, mail},
    {"{DATA}/(evolution|geary|akonadi|local-mail|kmail2|mail)", contents, mail},
    {"{CONFIG}/(evolution|akonadi|thunderbird)", contents, mail},
    {"{H}/.claws-mail", closed, mail},
    {"{H}/.claws-mail/mimetmp", opened, none},
    {"{H}/.var/app/(org.mozilla.Thunderbird|org.mozilla.thunderbird|eu.betterbird.Betterbird)/"
     "(.thunderbird|config|data)",
     contents, mail},
    {"{H}/snap/(thunderbird|betterbird)/*", closed, mail},
    {"{H}/snap/(thunderbird|betterbird)/*/.cache", opened, none},

    {"{CONFIG}/Signal", contents, conversations},
    {"({DATA}|{H}/.var/app/org.telegram.desktop/data|{H}/snap/telegram-desktop/*/.local/share)/"
     "TelegramDesktop",
     closed, conversations},
    {"({DATA}|{H}/.var/app/org.telegram.desktop/data|{H}/snap/telegram-desktop/*/.local/share)/"
     "TelegramDesktop/tdata/user_data*/(cache|media_cache)",
     opened, none},
    {"{H}/(.claude|.codex|.gemini)", contents, conversations},
    {"{DATA}/(opencode|zed)", contents, conversations},
    {"{H}/.lmstudio", closed, conversations},
    {"{H}/.lmstudio/models/*/*", opened, none},

    {"{CONFIG}/(retroarch|Standard Notes|Nextcloud)", contents, savedState},
    {"{DATA}/(yuzu|dolphin-emu|PCSX2|rpcs3|Anki2)", contents, savedState},
    {"{H}/.dropbox", contents, savedState},

    {"{DATA}/(containers|docker|flatpak|libvirt|gnome-boxes|waydroid|baloo)", contents, managedStores},
    {"{H}/.ollama", contents, managedStores},
    {"({STEAM}|{H}/.steam/*)/(steamapps/common|steamapps/compatdata|steamapps/downloading|userdata)",
     contents, managedStores},

    // The items in it are free.
    {"({DATA}/Trash|{H}/.Trash-{UID})", itself, trash},
    {"({DATA}/Trash|{H}/.Trash-{UID})/files", itself, trash},
    {"{DATA}/Trash/(info|expunged|directorysizes)", contents, trash},
    {"{H}/.Trash-{UID}/info", contents, trash},

    {"{DATA}/Orlen", contents, ownData},
};

/// What the words stand for that only this table knows: the profiles in a browser's folder beside the folder
/// itself, and the caches of its engine.
constexpr std::pair<std::string_view, std::string_view> kWords[] = {
    {"{PROFILE}", "(|/Default|/Profile *)"},
    {"{ENGINE}", "(GPUCache|ShaderCache|GrShaderCache|GraphiteDawnCache|DawnGraphiteCache|DawnWebGPUCache|"
                 "GPUPersistentCache|component_crx_cache|extensions_crx_cache|OptGuideOnDeviceModel|"
                 "optimization_guide_model_store)"},
};

struct NameRule {
    std::string_view text;
    Protection protection;
};

constexpr NameRule kSealedNames[] = {
    {".git", repositories},   {".hg", repositories},       {".svn", repositories},
    {".bzr", repositories},   {".jj", repositories},       {"_darcs", repositories},
    {".fscrypt", encryption}, {".encfs6.xml", encryption}, {".snapshots", encryption},
};

struct SealedPair {
    std::string_view parent;
    std::string_view name;
    Protection protection;
};

/// The mail store of whichever Library, and the games of whichever Steam library.
constexpr SealedPair kSealedPairs[] = {{"Library", "Mail", mail},
                                       {"steamapps", "common", managedStores},
                                       {"steamapps", "compatdata", managedStores},
                                       {"steamapps", "downloading", managedStores}};

/// Libraries that a program keeps as one bundle.
constexpr NameRule kSealedEndings[] = {
    {".photoslibrary", mediaLibraries}, {".lrdata", mediaLibraries},    {".lrlibrary", mediaLibraries},
    {".aplibrary", mediaLibraries},     {".fcpbundle", mediaLibraries}, {".imovielibrary", mediaLibraries},
    {".dtBase2", mediaLibraries},
};

constexpr NameRule kProtectedEndings[] = {
    {".icloud", placeholders}, {".nextcloud", placeholders}, {".owncloud", placeholders}};

constexpr NameRule kProtectedNames[] = {
    {"digikam4.db", catalogues}, {"recognition.db", catalogues}, {".stfolder", catalogues}};

Protection ofName(std::string_view name, std::span<const NameRule> rules)
{
    const auto found = std::ranges::find(rules, name, &NameRule::text);
    return found == rules.end() ? none : found->protection;
}

Protection ofEnding(std::string_view name, std::span<const NameRule> rules)
{
    const auto found =
        std::ranges::find_if(rules, [&](const NameRule& rule) { return name.ends_with(rule.text); });
    return found == rules.end() ? none : found->protection;
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
    for (const auto& [word, texts] : kWords) {
        if (const std::size_t at = pattern.find(word); at != std::string_view::npos)
            return spelledOut(std::string(pattern).replace(at, word.size(), texts));
    }
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

Protection ofSealedName(std::string_view parent, std::string_view component)
{
    if (const auto pair = std::ranges::find_if(
            kSealedPairs,
            [&](const SealedPair& rule) { return component == rule.name && parent == rule.parent; });
        pair != std::end(kSealedPairs))
        return pair->protection;
    if (const Protection protection = ofName(component, kSealedNames); protection != none)
        return protection;
    // Most folder names have no dot, and every ending starts with one.
    return component.find('.') == std::string_view::npos ? none : ofEnding(component, kSealedEndings);
}

Protection ofProtectedName(std::string_view lastComponent)
{
    const Protection protection = ofName(lastComponent, kProtectedNames);
    return protection != none ? protection : ofEnding(lastComponent, kProtectedEndings);
}

} // namespace orlen::SafetyRules
