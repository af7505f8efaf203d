#include "support/SampleHome.h"

#include <iterator>
#include <string_view>

namespace orlen::SampleHome {

namespace {

using enum FindingKind;
using Rows = std::vector<Row>;

constexpr const char* kCacheTag = "Signature: 8a477f597d28d172789f06886806bc55\n";
constexpr std::string_view kElf{"\x7f"
                                "ELF\x02\x01\x01"};

// Notes that several rows expect.
constexpr const char* kUnknown = "Orlen does not know this cache. Most can go; look inside first.";
constexpr const char* kBrowser = "Browser cache, rebuilt as you browse";
constexpr const char* kDownloadedAgain = "Downloaded or built again";
constexpr const char* kDrawnAgain = "Rebuilt when a program draws again";
constexpr const char* kByDesktop = "Made again by the desktop";
constexpr const char* kGameRuns = "Rebuilt when the game runs";
constexpr const char* kLargeDownload = "Large download; needed again by programs that use it.";
constexpr const char* kInPlace = "Projects use these packages in place.";
constexpr const char* kLinked = "Environments may link to these packages.";
constexpr const char* kWebCache = " cache — quit the app first";
constexpr const char* kOffline = "May hold offline data of a web app.";
constexpr const char* kOwnModel = "The browser's own model; it downloads again";
constexpr const char* kGameSet = "A game may be set to use it.";
constexpr const char* kProjectOpens = "Rebuilt when the project opens";
constexpr const char* kOpenProjects = "Open projects use these";
constexpr const char* kTagged = "Marked as a cache";
constexpr const char* kBackup = "Device backup";

Row log(std::string place, std::string note = {})
{
    return file(std::move(place), 72, safe(logs, std::move(note)));
}

constexpr const char* kExecutable = "#!/bin/sh\n";

/// What a web-view app needs to have for its caches to be looked for.
Row marker(const std::string& place)
{
    return text(place, "{}", never());
}

/// A folder that holds other things.
Row container(std::string place)
{
    return folder(std::move(place), 0, protectedItself());
}

/// Identical to a document that is offered: it would be found if the walk came past.
Row bait(std::string place)
{
    return file(std::move(place), 980, notEntered()).sameAs("bait");
}

Rows cacheFolders()
{
    return {
        folder("{CACHE}/{Scribbler,org.example.Weather}", 130, review(caches, kUnknown)),
        folder("{CACHE}/tagged-by-its-app", 130, safe(caches, kTagged)).holding("CACHEDIR.TAG", kCacheTag),
        folder("{CACHE}/tag-of-something-else", 130, review(caches, kUnknown)).holding("CACHEDIR.TAG"),
        folder("{CACHE}/too-small", 60, never()),
        folder("{CACHE}/not-ours-to-move", 130, never()).withMode(0555),
        folder("{CACHE}/caf\xE9", 130, never()),
        folder("{CACHE}/.Trash-1000", 130, never()),
        link("{CACHE}/elsewhere", "{H}/Videos", never()),

        // Never offered.
        folder("{CACHE}/{rclone,onedriver,seadrive,borg,duplicity,deja-dup,lm-studio,keepassxc,kioexec}", 130,
               never()),
        folder("{CACHE}/{obexd,ibus,doc,wallpaper,gnome-control-center,kwin,plasmashell,drkonqi}", 130,
               never()),
        file("{CACHE}/{icon-cache.kcache,plasma_theme_default_v5.kcache,ksycoca5_de_1234,ksycoca6_de_1234}",
             130, never()),
        folder("{CACHE}/{tracker,tracker3,localsearch,zsh,bash,fish,vim,nvim,less,gnupg,ssh,keyring-AB12}",
               130, never()),
        folder("{CACHE}/{containers,libvirt,dconf,at-spi,.fr-x7Qa2,orlen,Orlen}", 130, never()),
        folder("{CACHE}/evolution/mail", 130, never()),
        folder("{CACHE}/{R,coursier,inkscape,clipboard-indicator@tudmotu.com,cliphist,xfce4,doom,emacs}", 130,
               never()),
        file("{CACHE}/greenclip.history", 130, never()),
        folder("{CACHE}/{mu,notmuch,sessions,zellij,tmux,kopia,tarsnap,kdenlive,openshot,wal,podcasts}", 130,
               never()),
        folder("{CACHE}/{gpodder,transmission,qBittorrent,wesnoth,supertuxkart}", 130, never()),

        // Known.
        folder("{CACHE}/mozilla", 300, safe(caches, kBrowser))
            .filledBy("firefox/k2x9.default/cache2/entries/0A"),
        folder("{CACHE}/{google-chrome,google-chrome-beta,chromium,vivaldi,vivaldi-snapshot,opera}", 130,
               safe(caches, kBrowser)),
        folder("{CACHE}/{microsoft-edge,microsoft-edge-dev,librewolf,waterfox,zen,floorp,thorium}", 130,
               safe(caches, kBrowser)),
        folder("{CACHE}/{falkon,qutebrowser,konqueror,thunderbird,geary}", 130, safe(caches, kBrowser)),
        folder("{CACHE}/BraveSoftware", 130,
               safe(caches, "Browser cache, rebuilt as you browse. · Quit brave first"))
            .whileRunning("/opt/brave.com/brave/brave"),
        folder("{CACHE}/{go-build,ccache,sccache,clangd,zig,nim,ghcide,hls-graph,gopls,golangci-lint}", 130,
               safe(caches, "The next build is slower")),
        folder("{CACHE}/{rust-analyzer,bazelisk,cargo-nextest,swiftpm,dub,crystal,elm}", 130,
               safe(caches, "The next build is slower")),
        folder("{CACHE}/{typescript,eslint,prettier,turbo,parcel,vite,mypy,ruff,black,pylint,pytest,ty}", 130,
               safe(caches, kDownloadedAgain)),
        folder("{CACHE}/{helm,trivy,gh,act,terraform,k9s,kube,gitstatus,starship,p10k-ada,oh-my-posh}", 130,
               safe(caches, kDownloadedAgain)),
        folder("{CACHE}/{tealdeer,man,mandb,org.octave,R-pkgs,matplotlib,jedi,parso,numba,pocketsphinx}", 130,
               safe(caches, kDownloadedAgain)),
        folder("{CACHE}/{vscode-cpptools,lua-language-server,tree-sitter}", 130,
               safe(caches, kDownloadedAgain)),
        folder("{CACHE}/{mesa_shader_cache,mesa_shader_cache_db,mesa_shader_cache_sf,nvidia,AMD}", 130,
               safe(caches, kDrawnAgain)),
        folder("{CACHE}/{radv_builtin_shaders64,qtshadercache-x86_64,gstreamer-1.0,gegl-0.4,babl,GIMP,gimp}",
               130, safe(caches, kDrawnAgain)),
        folder("{CACHE}/{blender,darktable,rawtherapee,fontconfig,fontforge,vlc,mpv,totem,rhythmbox}", 130,
               safe(caches, kDrawnAgain)),
        folder("{CACHE}/{shotwell,gthumb,gwenview,digikam,obs-studio}", 130, safe(caches, kDrawnAgain)),
        file("{CACHE}/event-sound-cache.tdb.4711.x86_64", 130, safe(caches, kDrawnAgain)),
        folder("{CACHE}/thumbnails", 400, safe(caches, "Previews; made again when you open a folder."))
            .filledBy("large/4a5b6c.png"),
        folder("{CACHE}/flatpak", 130, safe(caches, "Download cache of Flatpak.")),
        folder("{CACHE}/{gnome-software,gnome-desktop-thumbnailer,gnome-maps,gnome-weather,libgweather}", 130,
               safe(caches, kByDesktop)),
        folder("{CACHE}/{gnome-calculator,gnome-screenshot,discover,appstream-gio,PackageKit,kio_http}", 130,
               safe(caches, kByDesktop)),
        folder("{CACHE}/{krunner,plasma-systemmonitor,khelpcenter,bookmarksrunner,qmlcache,mate-panel}", 130,
               safe(caches, kByDesktop)),
        file("{CACHE}/Main.qmlc", 130, safe(caches, kByDesktop)),
        folder("{CACHE}/cinnamon-session", 130, safe(caches, kByDesktop)),
        folder("{CACHE}/{heroic,legendary,dxvk-cache,vkd3d-proton,umu,PrismLauncher}", 130,
               safe(caches, kGameRuns)),

        // Known to need a look.
        folder("{CACHE}/spotify", 300, review(caches, "May hold songs you downloaded for offline use.")),
        folder("{CACHE}/{winetricks,lutris}", 130,
               review(caches, "Some installers can no longer be downloaded.")),
        folder("{CACHE}/{yay,paru}", 130,
               review(caches, "Built packages kept for going back to an older version.")),
        folder("{CACHE}/restic", 130, review(caches, "Backup index; reading it again can take long.")),
        folder("{CACHE}/bazel", 130, review(caches, "Stop the Bazel server first.")),
        folder("{CACHE}/pre-commit", 130,
               review(caches, "Hook environments; installed again on the next commit.")),

        // Models and data that were downloaded.
        folder("{CACHE}/huggingface/hub/{models--acme--small,datasets--acme--rain,spaces--acme--demo}", 980,
               review(caches, kLargeDownload)),
        folder("{CACHE}/huggingface/xet", 980, review(caches, kLargeDownload)),
        file("{CACHE}/huggingface/{token,stored_tokens}", 130, never()),
        folder("{CACHE}/torch/hub/checkpoints", 980, review(caches, kLargeDownload)),
        folder("{CACHE}/torch/kernels", 980, review(caches, kLargeDownload)),
        folder("{CACHE}/{llama.cpp,modelscope,kagglehub,clip,suno,nemo,whisper,gpt4all,openai,spacy}", 980,
               review(caches, kLargeDownload))
            .orBelow(),
        folder("{CACHE}/{stanza,nltk_data}", 980, review(caches, kLargeDownload)).orBelow(),

        // Folders in which only some things may go.
        folder("{CACHE}/JetBrains/IntelliJIdea2025.1/{caches,index,log,tmp,jcef_cache}", 130,
               safe(caches, "IntelliJIdea2025.1")),
        folder("{CACHE}/JetBrains/IntelliJIdea2025.1/{compile-server,full-line,icons}", 130,
               safe(caches, "IntelliJIdea2025.1")),
        folder("{CACHE}/JetBrains/IntelliJIdea2025.1/{LocalHistory,projects}", 130, never()),
        folder("{CACHE}/JetBrains/RemoteDev/dist", 130, never()),
        folder("{CACHE}/Google/AndroidStudio2025.1/{caches,index}", 130, safe(caches, "AndroidStudio2025.1")),
        folder("{CACHE}/Google/AndroidStudio2025.1/LocalHistory", 130, never()),
        folder("{CACHE}/deno/{deps,gen,npm}", 130, safe(caches, "Deno cache")),
        folder("{CACHE}/deno/{location_data,origin_data}", 130, never()),
        folder("{CACHE}/epiphany/WebKitCache", 130, {Fate::found, caches}),
        folder("{CACHE}/epiphany/CacheStorage", 130, review(caches, kOffline)),
        file("{CACHE}/epiphany/hsts-storage.sqlite", 130, never()),
    };
}

Rows sandboxedApps()
{
    return {
        folder("{H}/.var/app/org.example.Notes/cache/tmp", 130, never()),
        folder("{H}/.var/app/org.example.Notes/data/notes", 130, never()),
        folder("{H}/.var/app/org.example.Notes/cache/fontconfig", 130,
               safe(caches, "Flatpak app org.example.Notes · ")),
        folder("{H}/.var/app/org.example.Notes/cache/pages", 130,
               review(caches, "Flatpak app org.example.Notes · ")),
        container("{H}/.var/app/org.example.Notes/{cache,config,data}"),
        link("{H}/snap/krita/current", "45", never()),
        folder("{H}/snap/krita/45/.cache/mesa_shader_cache", 130, safe(caches, "Snap app krita · ")),
        folder("{H}/snap/krita/45/Pictures", 130, never()),
        folder("{H}/snap/krita/44/.cache/mesa_shader_cache", 130, never()),
        folder("{H}/.snap/data/gimp/common/.cache/babl", 130, safe(caches, "Snap app gimp · ")),
        container("{H}/snap/krita"),
        folder("{H}/snap/{firefox,chromium,brave,opera}/common/profile", 130, protectedWhole()),
        folder("{H}/snap/firefox/common/.cache/mozilla", 130, safe(caches, "Snap app firefox · ")),
    };
}

Rows webViewApps()
{
    const Expectation cache = safe(caches, kWebCache);
    return {
        marker("{CONFIG}/Quillchat/Preferences").inEveryApp(),
        folder("{CONFIG}/Quillchat/{Cache,Code Cache,GPUCache,ShaderCache,GrShaderCache,GraphiteDawnCache}",
               130, cache)
            .inEveryApp(),
        folder("{CONFIG}/Quillchat/{DawnCache,DawnGraphiteCache,DawnWebGPUCache,CachedData}", 130, cache)
            .inEveryApp(),
        folder("{CONFIG}/Quillchat/{CachedExtensionVSIXs,CachedProfilesData,CachedConfigurations}", 130,
               cache)
            .inEveryApp(),
        folder("{CONFIG}/Quillchat/{component_crx_cache,GPUPersistentCache,extensions_crx_cache}", 130, cache)
            .inEveryApp(),
        folder("{CONFIG}/Quillchat/Shared Dictionary/cache", 130, cache).inEveryApp(),
        folder("{CONFIG}/Quillchat/Service Worker/ScriptCache", 130, cache).inEveryApp(),
        folder("{CONFIG}/Quillchat/Service Worker/CacheStorage", 130, review(caches, kOffline)).inEveryApp(),
        folder("{CONFIG}/Quillchat/WebStorage/3/CacheStorage", 130, review(caches, kOffline)).inEveryApp(),
        folder("{CONFIG}/Quillchat/{IndexedDB,Local Storage,blob_storage,User,attachments.noindex,databases}",
               130, never())
            .inEveryApp(),
        file("{CONFIG}/Quillchat/Cookies", 130, never()).inEveryApp(),
        folder("{CONFIG}/Quillchat/{logs,Crashpad,Crash Reports}", 130, safe(logs, "Quillchat")),
        marker("{CONFIG}/Quillchat/Partitions/work/Network Persistent State").inEveryApp(),
        folder("{CONFIG}/Quillchat/Partitions/work/Cache", 130, cache).inEveryApp(),
        marker("{CONFIG}/Acme/Board/Local State").inEveryApp(),
        folder("{CONFIG}/Acme/Board/Code Cache", 130, cache).inEveryApp(),
        folder("{CONFIG}/no-web-view/{Cache,logs}", 130, never()).inEveryApp(),
        marker("{CONFIG}/obs-studio/plugin_config/obs-browser/Preferences"),
        folder("{CONFIG}/obs-studio/plugin_config/obs-browser/Cache", 130, cache),
        marker("{DATA}/Almanac/webengine/Network Persistent State"),
        folder("{DATA}/Almanac/webengine/GPUCache", 130, cache),
        marker("{DATA}/Feedreader/QtWebEngine/Default/Session Storage/000003.log"),
        folder("{DATA}/Feedreader/QtWebEngine/Default/GPUCache", 130, cache),
        marker("{DATA}/Acme/Viewer/Local Storage/leveldb/CURRENT"),
        folder("{DATA}/Acme/Viewer/Cache", 130, cache),
    };
}

Rows browserProfiles()
{
    return {
        marker("{CONFIG}/{google-chrome,BraveSoftware/Brave-Browser}/Local State"),
        marker("{CONFIG}/{google-chrome,BraveSoftware/Brave-Browser}/Default/Preferences"),
        folder("{CONFIG}/google-chrome/{ShaderCache,GrShaderCache,GraphiteDawnCache,component_crx_cache}",
               130, safe(caches)),
        folder("{CONFIG}/google-chrome/extensions_crx_cache", 130, safe(caches)),
        folder("{CONFIG}/google-chrome/{OptGuideOnDeviceModel,optimization_guide_model_store}", 130,
               review(caches, kOwnModel)),
        folder(
            "{CONFIG}/google-chrome/Default/{GPUCache,DawnGraphiteCache,DawnWebGPUCache,GPUPersistentCache}",
            130, safe(caches)),
        folder("{CONFIG}/BraveSoftware/Brave-Browser/Default/GPUCache", 130, safe(caches)),
        folder("{CONFIG}/google-chrome/Default/{Service Worker/CacheStorage,IndexedDB,Extensions,Cache}", 130,
               protectedWhole()),
        file("{CONFIG}/google-chrome/Default/{Bookmarks,Login Data,Cookies}", 130, protectedWhole()),
        file("{CONFIG}/{google-chrome-beta,chromium,BraveSoftware,microsoft-edge,vivaldi,opera}/Default/"
             "History",
             130, protectedWhole()),
        file("{CONFIG}/{mozilla,librewolf,zen,waterfox,floorp,thunderbird}/x7.default/places.sqlite", 130,
             protectedWhole()),
        file("{CONFIG}/{falkon,qutebrowser,thorium,net.imput.helium,yandex-browser}/bookmarks", 130,
             protectedWhole()),
        file("{DATA}/{falkon,qutebrowser,epiphany}/history.db", 130, protectedWhole()),
        marker("{DATA}/qutebrowser/webengine/Network Persistent State"),
        folder("{DATA}/qutebrowser/webengine/GPUCache", 130, safe(caches)),
        folder("{DATA}/qutebrowser/webengine/{IndexedDB,Service Worker/CacheStorage}", 130, protectedWhole()),
        file("{H}/{.mozilla/firefox,.librewolf,.waterfox,.zen,.floorp}/x7.default/logins.json", 130,
             protectedWhole()),
        file(
            "{H}/.var/app/{org.mozilla.firefox,net.waterfox.waterfox,app.zen_browser.zen}/.mozilla/x/key4.db",
            130, protectedWhole()),
        file("{H}/.var/app/{com.google.Chrome,org.chromium.Chromium,com.brave.Browser}/config/x/Bookmarks",
             130, protectedWhole()),
        file("{H}/.var/app/{com.microsoft.Edge,com.vivaldi.Vivaldi,com.opera.Opera}/data/x/Bookmarks", 130,
             protectedWhole()),
        container("{H}/.mozilla"),
    };
}

Rows desktopLogs()
{
    return {
        log("{H}/{.xsession-errors,.xsession-errors.old}"),
        log("{CACHE}/gdm/session.log"),
        log("{DATA}/xorg/{Xorg.0.log,Xorg.0.log.old,Xorg.1.log.1}"),
        log("{DATA}/sddm/{xorg-session.log,wayland-session.log-20260301.gz}"),
        file("{DATA}/xorg/layout.conf", 72, never()),
        log("{STATE}/scribe/{lsp.log,lsp.log.bak,old.log.xz,old.log.zst}", "scribe"),
        log("{STATE}/scribe/server/trace.log", "scribe"),
        folder("{STATE}/scribe/{log,logs}", 72, safe(logs, "scribe")),
        folder("{STATE}/scribe/{undo,swap}", 72, never()),
        file("{STATE}/scribe/short.log", 8, never()),
        file("{STATE}/wireplumber/stream-properties", 72, never()),
        folder("{DATA}/orca/{log,logs}", 72, safe(logs, "orca")).filledBy("speech.log"),
        folder("{DATA}/recorder/logs", 72, never()).filledBy("session.wav"),
        folder("{DATA}/{weechat,hexchat,konversation,gajim,quassel-irssi,psi+,dino,profanity}/logs", 72,
               never())
            .filledBy("friends.log"),
        folder("{DATA}/{.purple,irssi,TpLogger,Empathy,kopete,Mudlet}/logs", 72, never())
            .filledBy("friends.log"),
        folder("{CONFIG}/{hexchat,weechat}/logs", 72, never()).filledBy("friends.log"),
        log("{H}/{hs_err_pid4711.log,java_error_in_idea.log}", "Crash dump"),
        log("{H}/{core,core.815}", "Crash dump").startingWith(std::string(kElf)),
        file("{H}/core.2026", 72, never()),
        folder("{CONFIG}/obs-studio/{logs,crashes,profiler_data}", 72, safe(logs)),
        folder("{CONFIG}/ghb/EncodeLogs", 72, safe(logs)),
        folder("{H}/{.zoom/logs,.pm2/logs}", 72, safe(logs)),
        log("{H}/.vnc/desk:1.log"),
        folder("{H}/.minecraft/{logs,crash-reports}", 72, safe(logs)),
        folder("{DATA}/PrismLauncher/instances/Island/{minecraft,.minecraft}/{logs,crash-reports}", 72,
               safe(logs)),
        folder("{DATA}/multimc/instances/Island/.minecraft/{logs,crash-reports}", 72, safe(logs)),
        folder("{DATA}/PrismLauncher/instances/Island/minecraft/saves", 72, never()),
        folder("{H}/VirtualBox VMs/Testing/Logs", 72, safe(logs)),
        log("{H}/npm-debug.log"),
        folder("{DATA}/JetBrains/Toolbox/logs", 72, safe(logs)),
        folder("{DATA}/JetBrains/Toolbox/{cache,download}", 130, safe(caches)),
        folder("{H}/.vscode-server/data/logs", 72, safe(logs)),
    };
}

Rows phones()
{
    const std::string full = "0123456789abcdef0123456789abcdef01234567";
    const Expectation backup = review(iosBackups, kBackup);
    return {
        folder("{H}/{Backup,Backups,MobileSync/Backup}/" + full, 300, backup)
            .holding("Manifest.plist")
            .holding("Manifest.db"),
        folder("{DOCUMENTS}/" + full, 300, backup).holding("Manifest.plist").holding("Manifest.mbdb"),
        folder("{DOCUMENTS}/{Backup,Backups}/00008030-001A2B3C4D5E6F70", 300, backup)
            .holding("Info.plist")
            .holding("Status.plist"),
        folder("{H}/.wine/drive_c/users/ada/AppData/Roaming/Apple Computer/MobileSync/Backup/" + full, 300,
               backup)
            .holding("Info.plist")
            .holding("Status.plist"),
        folder("{H}/Backup/1123456789abcdef0123456789abcdef01234567", 300, never()),
        folder("{H}/Backup/Laptop 2024", 300, never()).holding("Manifest.plist").holding("Manifest.db"),
        folder("{H}/.android/avd/Pixel_8.avd", 980, review(simulators, "Android virtual device")),
        folder("{H}/.android/avd/Tablet.avd", 980, never()).holding("hardware-qemu.ini.lock"),
        file("{H}/.android/avd/Pixel_8.ini", 4, never()),
        folder("{CONFIG}/.android/avd/Watch.avd", 980, review(simulators, "Android virtual device")),
        folder("{H}/.Genymobile/Genymotion/deployed/Phone 14", 980, review(simulators, "Genymotion device")),
        folder("{H}/Android/Sdk/system-images/android-35/google_apis/x86_64", 980,
               review(simulators, "Android system image")),
        container("{H}/{.android,.android/avd}"),
    };
}

Rows packageCaches()
{
    return {
        folder("{CACHE}/Homebrew/downloads", 980, safe(homebrew)),
        folder("{H}/.npm/_cacache", 400, safe(npm, "npm cache")).filledBy("content-v2/sha512/ab/cd"),
        folder("{H}/.npm/_logs", 40, safe(npm, "npm logs")),
        folder("{H}/.npm/_npx", 130, safe(npm, "npx cache")),
        folder("{CACHE}/yarn", 130, safe(npm, "Yarn cache")).filledBy("v6/npm-left/index.js"),
        folder("{H}/.yarn/berry/cache", 130, review(npm, kInPlace)),
        folder("{H}/.bun/install/cache", 130, safe(npm, "Bun cache")),
        folder("{CACHE}/node-gyp", 130, safe(npm, "node-gyp cache")),
        folder("{CACHE}/node/corepack", 130, safe(npm, "Corepack cache")),
        folder("{CACHE}/node/something-else", 130, never()),
        folder("{CACHE}/{electron,electron-builder}", 130, safe(npm, "Electron downloads")),
        folder("{CACHE}/pnpm", 130, safe(npm, "pnpm's index; an install without network needs it")),
        // Most of it is linked into a project, and freed only there.
        folder("{DATA}/pnpm/store", 600,
               review(npm, "Projects link to these files; 'pnpm store prune' frees unused ones."))
            .holding("v3/files/0A", std::string(60'000, 'x'))
            .linkedAt("{H}/Projects/site/node_modules/.pnpm/left@1.0.0/index.js"),
        folder("{H}/.pnpm-store", 300,
               review(npm, "Projects link to these files; 'pnpm store prune' frees unused ones.")),
        folder("{CACHE}/{ms-playwright,puppeteer}", 130,
               review(npm, "Test browsers · Run the browser install command again before the next test.")),
        folder("{CACHE}/Cypress", 130,
               review(npm, "Test browsers · Run the install command again before the next test.")),

        folder("{CACHE}/pip", 300, safe(pip, "pip cache")).filledBy("http-v2/a/b/c"),
        folder("{CACHE}/uv/{archive-v0,wheels-v5,simple-v15}", 130, safe(pip, "uv cache")),
        folder("{CACHE}/uv/environments-v2", 130, never()),
        folder("{CACHE}/pipenv", 130, safe(pip, "Pipenv cache")),
        folder("{CACHE}/pip-tools", 130, safe(pip, "pip-tools cache")),
        folder("{CACHE}/pdm", 130, review(pip, std::string("PDM cache · ") + kLinked)),
        folder("{CACHE}/rattler", 130, review(pip, std::string("pixi cache · ") + kLinked)),
        folder("{CACHE}/pypoetry/{cache,artifacts}", 130, safe(pip, "Poetry cache")),
        folder("{CACHE}/pypoetry/virtualenvs/atlas-x1-py3.12", 130, never())
            .holding("lib/python3.12/site-packages/atlas.pth", "{H}/Projects/atlas\n"),
        folder("{CACHE}/pypoetry/virtualenvs/gone-x2-py3.12", 130,
               review(caches, "Environment of a project that is gone"))
            .holding("lib/python3.12/site-packages/gone.pth", "{H}/Projects/gone\n"),
        folder("{CACHE}/pypoetry/virtualenvs/two-x3-py3.12", 130, never())
            .holding("lib/python3.12/site-packages/two.pth", "{H}/Projects/gone\n{H}/Projects/gone2\n"),
        folder("{DATA}/virtualenvs/gone-AB12", 130, review(caches, "Environment of a project that is gone"))
            .holding(".project", "{H}/Projects/gone\n"),
        folder("{DATA}/virtualenvs/atlas-CD34", 130, never()).holding(".project", "{H}/Projects/atlas\n"),
        folder("{DATA}/virtualenvs/unknown-EF56", 130, never()),
        file("{H}/{miniconda3,anaconda3,miniforge3,micromamba,.conda}/pkgs/numpy-1.26.conda", 980,
             safe(pip, "conda download")),
        file("{H}/miniconda3/pkgs/scipy-1.11.tar.bz2", 980, safe(pip, "conda download")),
        folder("{H}/miniconda3/pkgs/numpy-1.26", 980, never()),
        link("{H}/mambaforge/pkgs", "{H}/miniforge3/pkgs", never()),

        folder("{H}/.gradle/caches", 300, safe(gradle, "Gradle cache")),
        folder("{H}/.gradle/wrapper/dists", 130, safe(gradle, "Gradle distributions")),
        folder("{H}/.gradle/daemon", 130, safe(gradle, "Gradle daemon logs")),
        folder("{H}/.android/cache", 130, safe(gradle, "Android cache")),
        folder("{H}/.android/build-cache", 130, safe(gradle, "Android cache")),
        folder("{H}/.konan/cache", 130, safe(gradle, "Kotlin cache")),
        container("{H}/.gradle"),
    };
}

Rows toolchains()
{
    return {
        folder("{H}/.nv/{GLCache,ComputeCache}", 130, safe(caches, "Graphics cache")),
        folder("{H}/.thumbnails", 130, safe(caches, "Thumbnails")),
        folder("{H}/.ccache/{0,f}", 300, safe(caches, "Compiler cache")),
        file("{H}/.ccache/ccache.conf", 300, never()),
        folder("{H}/.java/deployment/cache", 130, safe(caches, "Java cache")),
        folder("{H}/.cargo/{registry/cache,registry/src,git/db,git/checkouts}", 130,
               safe(caches, "Cargo downloads")),
        folder("{H}/.cargo/registry/index", 130, safe(caches)),
        folder("{H}/.cargo/bin", 130, never()),
        folder("{H}/go/pkg/mod/cache/download", 130, safe(caches, "Go downloads")),
        folder("{H}/go/pkg/mod/cache/vcs", 130, safe(caches)),
        folder("{H}/go/pkg/mod/example.org/lib@v1.2.0", 130, never()).withMode(0555),
        folder("{H}/go/bin", 130, never()),
        folder("{H}/.m2/repository", 130, review(caches, "May hold builds that you installed yourself.")),
        folder("{H}/.nuget/packages", 130, review(caches, kInPlace)),
        folder("{H}/.pub-cache/hosted", 130, review(caches, kInPlace)),
        folder("{H}/.pub-cache/bin", 130, never()),
        folder("{H}/.local/share/NuGet/v3-cache", 130, safe(caches, "NuGet downloads")),
        folder("{H}/.cabal/packages", 130, safe(caches, "Cabal downloads")),
        folder("{H}/.julia/compiled", 130, safe(caches, "Julia cache")),
        folder("{H}/.platformio/.cache", 130, safe(caches, "PlatformIO downloads")),
        folder("{H}/.arduino15/staging", 130, safe(caches, "Arduino downloads")),
        folder("{H}/.rustup/{downloads,tmp}", 130, safe(caches)),
        folder("{H}/.rustup/toolchains/stable", 130, never()),
        folder("{H}/.m2/wrapper/dists", 130, safe(caches)),
        folder("{H}/{.dartServer,.sdkman/archives,.sdkman/tmp,.nvm/.cache,.pyenv/cache,.rbenv/cache}", 130,
               safe(caches)),
        folder("{H}/{.asdf/downloads,.ghcup/cache,.ghcup/tmp,.ghcup/trash,.opam/download-cache}", 130,
               safe(caches)),
        folder("{H}/{.cpanm/work,.cpan/build,.cpan/sources,.hex/packages,.nimble/pkgcache}", 130,
               safe(caches)),
        folder("{H}/{.espressif/dist,.gem/ruby/3.1.0/cache,.composer/cache,.bundle/cache,.node-gyp}", 130,
               safe(caches)),
        folder("{H}/{.electron,.triton/cache,.minikube/cache,.vagrant.d/tmp}", 130, safe(caches)),
        folder("{H}/.texlive2022/texmf-var/luatex-cache", 130, safe(caches)),
        folder("{H}/.vscode-server/data/CachedExtensionVSIXs", 130, safe(caches)),
        folder("{DATA}/{mise/downloads,gem/ruby/3.1.0/cache}", 130, safe(caches)),
        folder("{H}/{.ivy2/cache,.sbt/boot,.coursier,.conan2/p,.conan/data,.vcpkg/downloads}", 130,
               review(caches, kInPlace)),
        folder("{H}/{.stack/pantry,.dub/packages,.gradle/jdks,.konan/dependencies,.platformio/packages}", 130,
               review(caches, kInPlace)),
        folder("{H}/.arduino15/packages", 130, review(caches, kInPlace)),
        folder("{H}/.vagrant.d/boxes/debian-12", 300, {Fate::found, caches, Rating::review}),
        folder("{H}/.lmstudio/models/acme/small", 300, review(caches, kLargeDownload)),
        file("{DATA}/nomic.ai/GPT4All/small.gguf", 300, review(caches, kLargeDownload)),
        folder("{DATA}/Jan/data/llamacpp/models/small", 300, review(caches, kLargeDownload)),
        folder("{H}/{.keras/models,.keras/datasets,.u2net,.EasyOCR/model,.insightface/models}", 300,
               review(caches, kLargeDownload)),
        folder("{H}/nltk_data", 300, review(caches, kLargeDownload)),
        folder("{H}/.vscode-server/bin/0f1e2d", 300, review(caches, "Older remote server")).aged(90),
        folder("{H}/.vscode-server/bin/9a8b7c", 300, never()),
        folder("{H}/.vscode-server/cli/servers/Stable-0f1e2d", 300, review(caches, "Older remote server"))
            .aged(90),
        folder("{H}/.vscode-server/cli/servers/Stable-9a8b7c", 300, never()),
        folder("{H}/{.cursor-server,.windsurf-server}/bin/0f1e2d", 300, review(caches, "Older remote server"))
            .aged(90),
        folder("{H}/{.cursor-server,.windsurf-server}/bin/9a8b7c", 300, never()),
        container("{H}/{.npm,.cargo,.rustup,.m2,go,go/pkg}"),
    };
}

Rows games()
{
    return {
        folder("{STEAM}/steamapps/shadercache/440", 980, safe(caches, "Steam shader cache")),
        folder("{STEAM}/appcache/httpcache", 980, safe(caches)),
        folder("{STEAM}/config/htmlcache", 980, safe(caches, "Steam web cache")),
        folder("{STEAM}/{depotcache,package}", 980, safe(caches, "Steam downloads")),
        file("{STEAM}/logs/webhelper.log", 72, safe(logs)),
        folder("{STEAM}/dumps", 72, safe(logs)),
        folder("{STEAM}/steamapps/{common/Island,compatdata/440,downloading/440}", 130, protectedWhole()),
        folder("{STEAM}/userdata/1234", 130, protectedWhole()),
        // Large ones: each in one layout is enough.
        folder("{H}/.local/share/Steam/compatibilitytools.d/GE-Proton9-20", 49'000, review(caches, kGameSet))
            .onlyIn(Layout::snap),
        folder("{DATA}/Steam/compatibilitytools.d/notes", 300, never()),
        text("{DATA}/Steam/steamapps/libraryfolders.vdf",
             "\"libraryfolders\"\n{\n\t\"1\"\n\t{\n\t\t\"path\"\t\t\"{H}/Games/SteamLibrary\"\n\t}\n}\n",
             never()),
        folder("{H}/Games/SteamLibrary/steamapps/shadercache/570", 980, safe(caches, "Steam shader cache")),
        folder("{H}/Games/SteamLibrary/steamapps/common/Cliffs", 130, protectedWhole()),
        container("{DATA}/{Steam,Steam/steamapps}"),
        folder("{H}/.config/heroic/tools/{wine/Wine-GE-8,proton/GE-Proton9}", 49'000,
               review(caches, kGameSet))
            .onlyIn(Layout::snap),
        folder("{H}/.local/share/lutris/runners/wine/lutris-7.2", 49'000, review(caches, kGameSet))
            .onlyIn(Layout::flatpak),
        folder("{DATA}/lutris/runners/wine/small", 300, never()),
        folder("{H}/.var/app/com.usebottles.bottles/data/bottles/runners/soda-9", 49'000,
               review(caches, kGameSet))
            .onlyIn(Layout::flatpak),
        folder("{H}/.wine/drive_c/users/ada/{Temp,AppData/Local/Temp,AppData/Local/CrashDumps}", 130,
               review(caches, "Temporary files of a Windows program")),
        folder("{DATA}/wineprefixes/tax/drive_c/users/ada/Temp", 130,
               review(caches, "Temporary files of a Windows program")),
        folder("{DATA}/bottles/bottles/Tax/drive_c/users/ada/Temp", 130,
               review(caches, "Temporary files of a Windows program")),
        folder("{H}/.wine/drive_c/users/ada/Documents", 130, never()),
        folder("{DATA}/TelegramDesktop/tdata/user_data/{cache,media_cache}", 130,
               review(caches, "Fetched again from the server; quit Telegram first")),
        folder("{DATA}/TelegramDesktop/tdata/user_data#2/media_cache", 130,
               review(caches, "Fetched again from the server; quit Telegram first")),
        folder("{H}/.var/app/org.telegram.desktop/data/TelegramDesktop/tdata/user_data/media_cache", 130,
               review(caches, "Fetched again from the server; quit Telegram first")),
        folder("{DATA}/TelegramDesktop/tdata/D877F783D5D3EF8C", 130, protectedWhole()),
    };
}

Rows media()
{
    return {
        folder("{CONFIG}/unity3d/{cache,GiCache}", 130, safe(caches, kProjectOpens)),
        folder("{CONFIG}/Epic/UnrealEngine/Common/DerivedDataCache", 130, safe(caches, kProjectOpens)),
        folder("{H}/Projects/island/Library", 980, review(caches, kProjectOpens)),
        text("{H}/Projects/island/ProjectSettings/ProjectVersion.txt", "m_EditorVersion: 6000.0.1f1\n",
             never()),
        folder("{H}/Projects/cliffs/{DerivedDataCache,Intermediate}", 980, review(caches, kProjectOpens)),
        text("{H}/Projects/cliffs/Cliffs.uproject", "{}", never()),
        folder("{H}/Projects/pond/.godot", 980, review(caches, kProjectOpens)),
        text("{H}/Projects/pond/project.godot", "config_version=5\n", never()),
        folder("{H}/Projects/library of songs/{Library,Intermediate,.godot}", 300, never()),
        folder("{DATA}/godot/export_templates/4.3.stable", 300, review(caches, kProjectOpens)),
        folder("{VIDEOS}/{CacheClip,Holiday/ProxyMedia}", 980, review(caches, kOpenProjects)),
        folder("{DATA}/Meltytech/Shotcut/proxies", 300, review(caches, kOpenProjects)),
        folder("{H}/{.openshot_qt/thumbnail,.openshot_qt/preview-cache,.kodi/userdata/Thumbnails}", 300,
               review(caches, kOpenProjects)),
    };
}

Rows projects()
{
    return {
        folder("{H}/Projects/engine/target", 980, review(caches, kTagged)).holding("CACHEDIR.TAG", kCacheTag),
        file("{H}/Projects/engine/target/disk.img", 12'500, review(largeFiles)),
        folder("{H}/Projects/engine/small-target", 300, never()).holding("CACHEDIR.TAG", kCacheTag),
        folder("{H}/Projects/engine/venv", 980, never())
            .holding("CACHEDIR.TAG", kCacheTag)
            .holding("pyvenv.cfg"),
        folder("{H}/Projects/engine/conda", 980, never())
            .holding("CACHEDIR.TAG", kCacheTag)
            .holding("conda-meta/history"),
        folder("{H}/Projects/tagged-repository", 980, never())
            .holding("CACHEDIR.TAG", kCacheTag)
            .holding(".git/HEAD", "ref: refs/heads/main\n"),
        folder("{H}/Projects/engine/{.mypy_cache,.pytest_cache,.ruff_cache}", 980, review(caches, kTagged))
            .holding("CACHEDIR.TAG", kCacheTag),
        folder("{H}/Projects/engine/.tox", 980, {Fate::found, caches, Rating::review}),
        text("{H}/Projects/engine/tox.ini", "[tox]\n", never()),
        folder("{H}/Projects/robot/.tox", 980, {Fate::found, caches, Rating::review}),
        text("{H}/Projects/robot/pyproject.toml", "[project]\n", never()),
        folder("{H}/Projects/engine/.nox", 980, {Fate::found, caches, Rating::review}),
        text("{H}/Projects/engine/noxfile.py", "import nox\n", never()),
        folder("{H}/Projects/cluster/.terragrunt-cache", 980, {Fate::found, caches, Rating::review}),
        text("{H}/Projects/cluster/terragrunt.hcl", "inputs = {}\n", never()),
        folder("{H}/Projects/bare/{.tox,.nox,.terragrunt-cache,.cache}", 980, never()),
        text("{H}/Projects/atlas/.git/HEAD", "ref: refs/heads/main\n", protectedWhole()),
        text("{H}/Projects/atlas/.gitignore", "target\n", unprotected()),
    };
}

Rows trashAndMail()
{
    return {
        file("{DATA}/Trash/files/slides.odp", 130, unticked(trash, Rating::review, "Deleted from ")),
        text("{DATA}/Trash/info/slides.odp.trashinfo",
             "[Trash Info]\nPath={H}/Talks/slides.odp\nDeletionDate=2026-01-02T03:04:05\n", protectedWhole()),
        file("{H}/.Trash-{UID}/files/map.png", 130, unticked(trash, Rating::review)),
        text("{H}/.Trash-{UID}/info/map.png.trashinfo",
             "[Trash Info]\nPath=map.png\nDeletionDate=2026-01-02T03:04:05\n", protectedWhole()),
        container("{DATA}/{Trash,Trash/files}"),
        container("{H}/{.Trash-{UID},.Trash-{UID}/files}"),
        folder("{DATA}/Trash/expunged", 8, protectedWhole()),
        file("{CACHE}/evolution/tmp/garden.png", 130, review(mailDownloads)),
        file("{H}/.claws-mail/mimetmp/garden.png", 130, review(mailDownloads)),
        file("{H}/.var/app/{org.mozilla.Thunderbird,eu.betterbird.Betterbird}/cache/tmp/garden.png", 130,
             review(mailDownloads)),
        file("{H}/.var/app/{org.gnome.Evolution,org.gnome.Geary}/cache/tmp/garden.png", 130,
             review(mailDownloads)),
        file("{H}/{.thunderbird,.icedove}/x7.default/Mail/Inbox", 130, protectedWhole()),
        file("{H}/.var/app/{org.mozilla.Thunderbird,eu.betterbird.Betterbird}/.thunderbird/x7/Inbox", 130,
             protectedWhole()),
        file("{DATA}/{evolution,geary,akonadi,local-mail,kmail2}/Inbox", 130, protectedWhole()),
        file("{CONFIG}/{evolution,akonadi}/sources", 130, protectedWhole()),
        file("{H}/{.claws-mail,Mail,Maildir,.mail,.maildir,.mutt,.local/share/mail}/Inbox", 130,
             protectedWhole()),
    };
}

Rows downloads()
{
    return {
        file("{DOWNLOAD}/garden plan.pdf", 300, review(oldDownloads)).aged(90),
        file("{H}/Downloads/poster.pdf", 300, review(oldDownloads)).aged(90),
        file("{DOWNLOAD}/viewer.{deb,rpm,flatpak,flatpakref,msi}", 130, unticked(oldDownloads, Rating::safe))
            .aged(90),
        file("{DOWNLOAD}/{Viewer.AppImage,viewer.run,setup.exe}", 130, review(oldDownloads)).aged(90),
        folder("{DOWNLOAD}/atlas-main", 300, review(oldDownloads, "Contains a repository"))
            .holding(".git/HEAD", "ref: refs/heads/main\n")
            .aged(90),
        folder("{H}/Downloads/engine-main", 300, review(oldDownloads, "Contains a repository"))
            .holding(".git/HEAD", "ref: refs/heads/main\n")
            .aged(90),
        file("{DOWNLOAD}/from yesterday.pdf", 300, never()).aged(1),
        file("{DOWNLOAD}/read again.pdf", 300, never()).aged(90),
        text("{DATA}/recently-used.xbel",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\">\n"
             "<bookmark href=\"file://{DOWNLOAD}/read%20again.pdf\" added=\"{NOW}\" modified=\"{NOW}\" "
             "visited=\"{NOW}\"/>\n</xbel>\n",
             never()),
        // Which folders the desktop uses.
        text("{CONFIG}/user-dirs.dirs",
             "# Written when the desktop was set up.\nXDG_DESKTOP_DIR=\"$HOME/\"\n"
             "XDG_DOWNLOAD_DIR=\"$HOME/Transfers\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n"
             "XDG_PICTURES_DIR=\"$HOME/Photographs\"\nXDG_VIDEOS_DIR=\"$HOME/Films\"\n"
             "XDG_MUSIC_DIR=\"/dev/null\"\nXDG_PUBLICSHARE_DIR=\"$HOME/Nowhere\"\n",
             never()),
    };
}

Rows documents()
{
    return {
        file("{VIDEOS}/Lake house.mkv", 12'700, review(largeFiles)),
        file("{H}/disk-2025.img", 12'600, review(largeFiles)),
        file("{H}/Music/Evening set.flac", 10'500, review(oldFiles)).aged(500),
        file("{H}/Music/Matinee.flac", 10'200, never()).aged(200),
        file("{H}/.backup.img", 12'800, never()),
        file("{DOCUMENTS}/Floor plan.pdf", 1200, never()).sameAs("plan").aged(20),
        file("{DOWNLOAD}/Floor plan (1).pdf", 1200, review(duplicates, "Identical to ")).sameAs("plan"),
        file("{H}/Projects/atlas/data/Floor plan of the map.pdf", 1200,
             review(duplicates, " · Part of a repository"))
            .sameAs("plan"),
        text("{H}/Projects/atlas/.git/index", "DIRC", protectedWhole()),
        photo("{PICTURES}/Coast/IMG_2401.jpg", 1, never()),
        photo("{PICTURES}/Coast/IMG_2401-small.jpg", -1, review(photoDuplicates)),
        photo("{PICTURES}/Coast/IMG_2410.jpg", 2, never()),
        photo("{PICTURES}/Bildschirmfoto vom 2026-01-01.jpg", 3, review(screenshots)),
        photo("{PICTURES}/Capture d'écran du 2026-01-02.jpg", 4, review(screenshots)),
        photo("{PICTURES}/Screenshots/window.jpg", 5, review(screenshots)),

        file("{DOCUMENTS}/Atlas of rivers.bin", 980, never()).sameAs("bait").aged(30),
        bait("{H}/Projects/site/{node_modules,__pycache__,site-packages,lost+found,.Trash-0}/rivers.bin"),
        bait("{H}/Tools/{Paint.app,Paint.framework,Paint.bundle,Paint.AppDir,Paint.xcodeproj}/rivers.bin"),
        bait("{H}/Tools/{My.photoslibrary,My.fcpbundle,My.imovielibrary,My.lrdata}/rivers.bin"),
        folder("{H}/Tools/unpacked", 980, notEntered()).sameAs("bait").holding("AppRun", kExecutable),
        folder("{H}/Projects/mirror", 980, notEntered())
            .sameAs("bait")
            .holding("HEAD")
            .holding("objects/info/packs")
            .holding("refs/heads/main"),
        folder("{H}/Projects/ostree", 980, notEntered())
            .sameAs("bait")
            .holding("config")
            .holding("objects/00/x"),
        folder("{H}/Projects/environment", 980, notEntered()).sameAs("bait").holding("pyvenv.cfg"),
        folder("{H}/Projects/conda", 980, notEntered()).sameAs("bait").holding("conda-meta/history"),
        bait("{H}/{Library,Applications,Public,snap}/rivers.bin"),
        bait("{H}/{.hidden,Projects/.hidden}/rivers.bin"),
        link("{H}/Shortcut to papers", "{DOCUMENTS}", notEntered()),
    };
}

Rows cloudFolders()
{
    return {
        folder("{H}/{Dropbox,Nextcloud,ownCloud,OneDrive,MEGA,pCloudDrive,Insync,GoogleDrive,Google Drive}",
               12, protectedWhole()),
        folder("{H}/{Seafile,kDrive,Proton Drive,ProtonDrive,Filen,Koofr,Tresorit,Internxt,Internxt Drive}",
               12, protectedWhole()),
        folder("{H}/{Jottacloud,Dropbox (Maestral)}", 12, protectedWhole()),
        folder("{H}/Cloud/{dropbox,next,own,syncthing,onedrive,onedrive-work,maestral,sandboxed}", 12,
               protectedWhole()),
        text("{H}/.dropbox/info.json", "{\"personal\": {\"path\": \"{H}/Cloud/dropbox\"}}", protectedWhole()),
        text("{CONFIG}/Nextcloud/nextcloud.cfg", "[Accounts]\n0\\Folders\\1\\localPath={H}/Cloud/next/\n",
             protectedWhole()),
        text("{CONFIG}/ownCloud/owncloud.cfg", "[Accounts]\n0\\Folders\\1\\localPath={H}/Cloud/own/\n",
             never()),
        text("{STATE}/syncthing/config.xml",
             "<configuration><folder id=\"a\" path=\"{H}/Cloud/syncthing\"/></configuration>", never()),
        text("{CONFIG}/onedrive/config", "sync_dir = \"{H}/Cloud/onedrive\"\n", never()),
        text("{CONFIG}/onedrive-work/config", "sync_dir = \"{H}/Cloud/onedrive-work\"\n", never()),
        text("{CONFIG}/onedrive/accounts/club/config", "sync_dir = \"{H}/Cloud/onedrive-club\"\n", never()),
        folder("{H}/Cloud/onedrive-club", 12, protectedWhole()),
        text("{CONFIG}/maestral/maestral.ini", "[sync]\npath = {H}/Cloud/maestral\n", never()),
        text("{H}/.var/app/com.nextcloud.desktopclient.nextcloud/config/Nextcloud/nextcloud.cfg",
             "[Accounts]\n0\\Folders\\1\\localPath={H}/Cloud/sandboxed/\n", never()),
        folder("{H}/Marked/one", 12, protectedWhole()).holding(".stfolder/x"),
        folder("{H}/Marked/two", 12, protectedWhole()).holding(".sync_ab12.db"),
        folder("{H}/Marked/three", 12, protectedWhole()).holding(".owncloudsync.log"),
        folder("{H}/Marked/four", 12, protectedWhole()).holding(".megaignore"),
        folder("{H}/Marked/five", 12, protectedWhole()).holding(".debris/x"),
        folder("{H}/Marked/six", 12, protectedWhole()).holding(".sync/ID"),
        folder("{H}/Marked/seven", 12, protectedWhole()).holding("sync.ffs_db"),
        folder("{H}/Dropboxes", 8, unprotected()),
        text("{DOCUMENTS}/{Minutes.pdf.nextcloud,Minutes.pdf.owncloud,digikam4.db,recognition.db}", "x",
             protectedItself()),
    };
}

Rows treasures()
{
    return {
        file("{H}/{.ssh,.gnupg,.pki,.password-store,.aws,.azure,.kube,.docker,.terraform.d}/key", 130,
             protectedWhole()),
        file("{CONFIG}/{gcloud,gh,rclone,borg,op,Bitwarden,sops,goa-1.0,dconf}/key", 130, protectedWhole()),
        file("{CONFIG}/{1Password,Signal,keepassxc,age,solana,Proton,feather}/key", 130, protectedWhole()),
        file("{CONFIG}/{retroarch,Standard Notes}/key", 130, protectedWhole()),
        file("{H}/{.cargo/credentials.toml,.gradle/gradle.properties,.m2/settings.xml}", 12,
             protectedWhole()),
        file("{H}/{.m2/settings-security.xml,.netrc,.git-credentials,.authinfo,.authinfo.gpg,.npmrc}", 12,
             protectedWhole()),
        file("{H}/{.pypirc,.Xauthority,.ICEauthority}", 12, protectedWhole()),
        file("{DATA}/{keyrings,kwalletd}/key", 130, protectedWhole()),
        file("{H}/{.local/share/gnome-keyring,.electrum,.bitcoin,.monero,.ethereum,.step,.oci}/key", 130,
             protectedWhole()),
        file("{H}/.minikube/certs/ca-key.pem", 12, protectedWhole()),
        file("{DATA}/{containers,docker,flatpak,libvirt,gnome-boxes,waydroid,baloo}/store", 130,
             protectedWhole()),
        file("{DATA}/{yuzu,dolphin-emu,PCSX2,rpcs3,Anki2,opencode,zed}/save", 130, protectedWhole()),
        file("{H}/{.ollama,.claude,.codex,.gemini}/store", 130, protectedWhole()),
        file("{H}/.lmstudio/conversations/1.json", 130, protectedWhole()),
        folder("{DATA}/Orlen/kept", 12, protectedWhole()),
        folder("{H}/Projects/old/{.hg,.svn,.bzr,.jj,_darcs,.fscrypt,.snapshots}", 12, protectedWhole()),
        file("{H}/Projects/old/.encfs6.xml", 12, protectedWhole()),
        bait("{H}/Negatives/{Old.lrlibrary,Old.aplibrary,Old.dtBase2}/rivers.bin"),
        container("{H}/{.cache,.config,.local,.local/share,.local/state,.local/bin,.local/lib,.local/opt}"),
        container("{H}/{bin,opt,.var,.var/app,snap,Applications,AppImages,Videos,Public,Templates}"),
        container("{H}/.config/{autostart,systemd,systemd/user}"),
        container("{H}/.local/share/{applications,icons}"),
        container("{CACHE}"),
        container("{CONFIG}"),
        container("{DATA}"),
        container("{STATE}"),
        container("{DOWNLOAD}"),
        container("{DOCUMENTS}"),
        container("{PICTURES}"),
        container("{VIDEOS}"),
        folder("{H}/.var/app/org.gone.App", 12, unprotected()),
    };
}

Rows ownApps()
{
    return {
        file("{H}/opt/Sketchpad/{locales/fr.pak,locales/fr.pak.info,translations/qtbase_it.qm}", 24,
             review(languagePacks)),
        folder("{H}/opt/Sketchpad/{share/locale/de,locale/es}", 24, review(languagePacks)),
        file("{H}/opt/Sketchpad/{locales/en-US.pak,locales/fr.txt}", 24, never()),
        folder("{H}/opt/Sketchpad/share/locale/en_GB", 24, never()),
        text("{H}/opt/Sketchpad/AppRun", "#!/bin/sh\n", never()).withMode(0755),
        folder("{H}/opt/just-a-folder/locale/de", 24, never()),
    };
}

} // namespace

const std::vector<Row>& rows()
{
    static const Rows all = [] {
        Rows joined;
        for (const auto& part : {cacheFolders, sandboxedApps, webViewApps, browserProfiles, desktopLogs,
                                 phones, packageCaches, toolchains, games, media, projects, trashAndMail,
                                 downloads, documents, cloudFolders, treasures, ownApps}) {
            Rows more = part();
            joined.insert(joined.end(), std::make_move_iterator(more.begin()),
                          std::make_move_iterator(more.end()));
        }
        return joined;
    }();
    return all;
}

} // namespace orlen::SampleHome
