#include "scan/locations/EntryRules.h"
#include "scan/locations/FolderRules.h"
#include "scan/locations/tables/Tables.h"

namespace orlen::SourceTables {

namespace {

using Kind = FindingKind;
using enum Rating;

SourceRow single(Kind kind, Text note, Names from)
{
    return {.kind = kind, .reading = Reading::single, .from = std::move(from), .note = note};
}

SourceRow cacheOf(Kind kind, std::string_view program, Names from)
{
    SourceRow row = single(kind, ScanTexts::kCacheOf, std::move(from));
    row.noteName = program;
    return row;
}

SourceRow downloadsOf(Kind kind, std::string_view program, Names from)
{
    SourceRow row = cacheOf(kind, program, std::move(from));
    row.note = ScanTexts::kDownloadsOf;
    return row;
}

SourceRow forReview(SourceRow row, Text caution)
{
    row.rating = review;
    row.caution = caution;
    return row;
}

SourceRow forReview(Kind kind, Text note, Names from, Text caution = {})
{
    return forReview(single(kind, note, std::move(from)), caution);
}

/// What a tool fetches or makes again by itself.
std::vector<SourceRow> downloads()
{
    return {
        single(Kind::caches, message("Graphics cache"), {"{H}/.nv/GLCache", "{H}/.nv/ComputeCache"}),
        single(Kind::caches, message("Thumbnails"), {"{H}/.thumbnails"}),
        cacheOf(Kind::caches, "Java", {"{H}/.java/deployment/cache"}),
        {.from = {"{H}/.ccache"}, .note = message("Compiler cache"), .except = {"ccache.conf"}},
        downloadsOf(Kind::caches, "Cargo",
                    {"{H}/.cargo/registry/cache", "{H}/.cargo/registry/src", "{H}/.cargo/registry/index",
                     "{H}/.cargo/git/db", "{H}/.cargo/git/checkouts"}),
        downloadsOf(Kind::caches, "Rust", {"{H}/.rustup/downloads", "{H}/.rustup/tmp"}),
        downloadsOf(Kind::caches, "Go", {"{H}/go/pkg/mod/cache/download", "{H}/go/pkg/mod/cache/vcs"}),
        downloadsOf(Kind::caches, "NuGet", {"{DATA}/NuGet/v3-cache"}),
        downloadsOf(Kind::caches, "Cabal", {"{H}/.cabal/packages"}),
        cacheOf(Kind::caches, "Julia", {"{H}/.julia/compiled"}),
        downloadsOf(Kind::caches, "PlatformIO", {"{H}/.platformio/.cache"}),
        downloadsOf(Kind::caches, "Arduino", {"{H}/.arduino15/staging"}),
        downloadsOf(Kind::caches, "Maven", {"{H}/.m2/wrapper/dists"}),
        cacheOf(Kind::caches, "Dart", {"{H}/.dartServer"}),
        downloadsOf(Kind::caches, "SDKMAN", {"{H}/.sdkman/archives", "{H}/.sdkman/tmp"}),
        downloadsOf(Kind::caches, "nvm", {"{H}/.nvm/.cache"}),
        downloadsOf(Kind::caches, "pyenv", {"{H}/.pyenv/cache"}),
        downloadsOf(Kind::caches, "rbenv", {"{H}/.rbenv/cache"}),
        downloadsOf(Kind::caches, "asdf", {"{H}/.asdf/downloads"}),
        downloadsOf(Kind::caches, "mise", {"{DATA}/mise/downloads"}),
        downloadsOf(Kind::caches, "GHCup", {"{H}/.ghcup/cache", "{H}/.ghcup/tmp", "{H}/.ghcup/trash"}),
        downloadsOf(Kind::caches, "opam", {"{H}/.opam/download-cache"}),
        downloadsOf(Kind::caches, "CPAN", {"{H}/.cpanm/work", "{H}/.cpan/build", "{H}/.cpan/sources"}),
        downloadsOf(Kind::caches, "Hex", {"{H}/.hex/packages"}),
        cacheOf(Kind::caches, "Nimble", {"{H}/.nimble/pkgcache"}),
        downloadsOf(Kind::caches, "ESP-IDF", {"{H}/.espressif/dist"}),
        downloadsOf(Kind::caches, "RubyGems", {"{H}/.gem/ruby/*/cache", "{DATA}/gem/ruby/*/cache"}),
        cacheOf(Kind::caches, "Composer", {"{H}/.composer/cache"}),
        cacheOf(Kind::caches, "Bundler", {"{H}/.bundle/cache"}),
        cacheOf(Kind::caches, "node-gyp", {"{H}/.node-gyp"}),
        downloadsOf(Kind::caches, "Electron", {"{H}/.electron"}),
        cacheOf(Kind::caches, "Triton", {"{H}/.triton/cache"}),
        downloadsOf(Kind::caches, "minikube", {"{H}/.minikube/cache"}),
        downloadsOf(Kind::caches, "Vagrant", {"{H}/.vagrant.d/tmp"}),
        cacheOf(Kind::caches, "TeX", {"{H}/.texlive*/texmf-var/luatex-cache"}),
        downloadsOf(Kind::caches, "VS Code server", {"{H}/.vscode-server/data/CachedExtensionVSIXs"}),
        downloadsOf(Kind::caches, "JetBrains Toolbox",
                    {"{DATA}/JetBrains/Toolbox/cache", "{DATA}/JetBrains/Toolbox/download"}),
        single(Kind::caches, ScanTexts::kRebuiltOnOpening,
               {"{CONFIG}/unity3d/cache", "{CONFIG}/unity3d/GiCache",
                "{CONFIG}/Epic/UnrealEngine/Common/DerivedDataCache"}),
        // Settings, the history of edits and remote sessions lie beside them.
        {.from = {"{CACHES}/JetBrains/*", "{CACHES}/Google/AndroidStudio*"},
         .minimum = 100'000,
         .noteName = "*",
         .only = {"caches", "index", "log", "tmp", "jcef_cache", "compile-server", "full-line", "icons"}},
        // Beside what programs stored for themselves.
        {.from = {"{CACHES}/deno"},
         .minimum = 100'000,
         .note = ScanTexts::kCacheOf,
         .noteName = "Deno",
         .except = {"location_data", "origin_data"}},
    };
}

/// What projects use in place, or what may be the only copy.
std::vector<SourceRow> usedInPlace()
{
    return {
        forReview(Kind::caches, message("Maven repository"), {"{H}/.m2/repository"},
                  message("May hold builds that you installed yourself.")),
        forReview(Kind::caches, message("NuGet packages"), {"{H}/.nuget/packages"}, ScanTexts::kUsedInPlace),
        forReview(Kind::caches, message("Dart packages"), {"{H}/.pub-cache/hosted"}, ScanTexts::kUsedInPlace),
        forReview(Kind::caches, ScanTexts::kUsedInPlace,
                  {"{H}/.ivy2/cache", "{H}/.sbt/boot", "{H}/.coursier", "{H}/.conan2/p", "{H}/.conan/data",
                   "{H}/.vcpkg/downloads", "{H}/.stack/pantry", "{H}/.dub/packages", "{H}/.gradle/jdks",
                   "{H}/.konan/dependencies", "{H}/.platformio/packages", "{H}/.arduino15/packages"}),
        {.from = {"{H}/.vagrant.d/boxes"},
         .rating = review,
         .note = message("Vagrant box"),
         .caution = ScanTexts::kUsedInPlace},
        {.from = {"{DATA}/godot/export_templates"}, .rating = review, .note = ScanTexts::kRebuiltOnOpening},
        {.from = {"{H}/.vscode-server/bin", "{H}/.vscode-server/cli/servers", "{H}/.cursor-server/bin",
                  "{H}/.windsurf-server/bin"},
         .rating = review,
         .note = message("Older remote server"),
         .accepts = FolderRules::isOlderBuild},
        {.from = {"{DATA}/virtualenvs", "{CACHES}/pypoetry/virtualenvs"},
         .rating = review,
         .note = message("Environment of a project that is gone"),
         .accepts = FolderRules::isEnvironmentOfGoneProject,
         .maybeEnvironment = true},
    };
}

std::vector<SourceRow> node()
{
    constexpr Text kStore = message("Projects link to these files; 'pnpm store prune' frees unused ones.");
    constexpr Text kBrowsers = message("Run the browser install command again before the next test.");
    return {
        cacheOf(Kind::npm, "Yarn", {"{CACHES}/yarn"}),
        forReview(cacheOf(Kind::npm, "Yarn", {"{H}/.yarn/berry/cache"}), ScanTexts::kUsedInPlace),
        cacheOf(Kind::npm, "npx", {"{H}/.npm/_npx"}),
        cacheOf(Kind::npm, "Bun", {"{H}/.bun/install/cache"}),
        cacheOf(Kind::npm, "node-gyp", {"{CACHES}/node-gyp"}),
        cacheOf(Kind::npm, "Corepack", {"{CACHES}/node/corepack"}),
        downloadsOf(Kind::npm, "Electron", {"{CACHES}/electron", "{CACHES}/electron-builder"}),
        single(Kind::npm, message("pnpm's index; an install without network needs it"), {"{CACHES}/pnpm"}),
        forReview(Kind::npm, message("pnpm store"), {"{DATA}/pnpm/store", "{H}/.pnpm-store"}, kStore),
        forReview(Kind::npm, ScanTexts::kTestBrowsers, {"{CACHES}/ms-playwright*", "{CACHES}/puppeteer"},
                  kBrowsers),
        forReview(Kind::npm, ScanTexts::kTestBrowsers, {"{CACHES}/Cypress"},
                  message("Run the install command again before the next test.")),
    };
}

std::vector<SourceRow> python()
{
    constexpr Text kLinked = message("Environments may link to these packages.");
    return {
        cacheOf(Kind::pip, "pip", {"{CACHES}/pip"}),
        // Programs run from its environments.
        {.kind = Kind::pip,
         .from = {"{CACHES}/uv"},
         .note = ScanTexts::kCacheOf,
         .noteName = "uv",
         .except = {"environments-*"}},
        cacheOf(Kind::pip, "Pipenv", {"{CACHES}/pipenv"}),
        cacheOf(Kind::pip, "pip-tools", {"{CACHES}/pip-tools"}),
        forReview(Kind::pip, message("PDM cache"), {"{CACHES}/pdm"}, kLinked),
        forReview(Kind::pip, message("pixi cache"), {"{CACHES}/rattler"}, kLinked),
        cacheOf(Kind::pip, "Poetry", {"{CACHES}/pypoetry/cache", "{CACHES}/pypoetry/artifacts"}),
        // Archives only: environments may be linked to the unpacked folders beside them.
        {.kind = Kind::pip,
         .from = {"{H}/miniconda3/pkgs", "{H}/anaconda3/pkgs", "{H}/miniforge3/pkgs", "{H}/mambaforge/pkgs",
                  "{H}/micromamba/pkgs", "{H}/.conda/pkgs"},
         .minimum = 1'000'000,
         .note = message("conda download"),
         .only = {"*.conda", "*.tar.bz2"}},
    };
}

std::vector<SourceRow> devices()
{
    return {
        single(Kind::gradle, message("Gradle distributions"), {"{H}/.gradle/wrapper/dists"}),
        single(Kind::gradle, message("Gradle daemon logs"), {"{H}/.gradle/daemon"}),
        cacheOf(Kind::gradle, "Android", {"{H}/.android/cache"}),
        cacheOf(Kind::gradle, "Android", {"{H}/.android/build-cache"}),
        cacheOf(Kind::gradle, "Kotlin", {"{H}/.konan/cache"}),
        // The small ".ini" beside a device stays, so that it works again once restored.
        {.kind = Kind::simulators,
         .from = {"{H}/.android/avd", "{CONFIGS}/.android/avd", "{AVD}"},
         .minimum = 1'000'000,
         .note = message("Android virtual device"),
         .only = {"*.avd"},
         .accepts = FolderRules::isIdleVirtualDevice},
        {.kind = Kind::simulators,
         .from = {"{H}/.Genymobile/Genymotion/deployed"},
         .minimum = 1'000'000,
         .note = message("Genymotion device")},
        {.kind = Kind::simulators,
         .from = {"{H}/Android/Sdk/system-images/*/*"},
         .rating = review,
         .note = message("Android system image")},
    };
}

} // namespace

std::vector<SourceRow> tools()
{
    std::vector<SourceRow> rows = downloads();
    for (auto more : {usedInPlace(), node(), python(), devices()})
        rows.insert(rows.end(), more.begin(), more.end());
    rows.push_back({.kind = Kind::homebrew, .from = {"{CACHES}/Homebrew"}, .minimum = 1'000'000});
    return rows;
}

} // namespace orlen::SourceTables
