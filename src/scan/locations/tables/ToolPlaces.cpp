#include "scan/locations/EntryRules.h"
#include "scan/locations/FolderRules.h"
#include "scan/locations/tables/Tables.h"

namespace orlen::SourceTables {

namespace {

using Kind = FindingKind;
using enum Rating;

SourceRow single(Kind kind, std::string_view note, Names from)
{
    return {.kind = kind, .reading = Reading::single, .from = std::move(from), .note = note};
}

SourceRow forReview(Kind kind, std::string_view note, Names from, std::string_view caution = {})
{
    SourceRow row = single(kind, note, std::move(from));
    row.rating = review;
    row.caution = caution;
    return row;
}

/// What a tool fetches or makes again by itself.
std::vector<SourceRow> downloads()
{
    return {
        single(Kind::caches, "Graphics cache", {"{H}/.nv/GLCache", "{H}/.nv/ComputeCache"}),
        single(Kind::caches, "Thumbnails", {"{H}/.thumbnails"}),
        single(Kind::caches, "Java cache", {"{H}/.java/deployment/cache"}),
        {.from = {"{H}/.ccache"}, .note = "Compiler cache", .except = {"ccache.conf"}},
        single(Kind::caches, "Cargo downloads",
               {"{H}/.cargo/registry/cache", "{H}/.cargo/registry/src", "{H}/.cargo/registry/index",
                "{H}/.cargo/git/db", "{H}/.cargo/git/checkouts"}),
        single(Kind::caches, "Rust downloads", {"{H}/.rustup/downloads", "{H}/.rustup/tmp"}),
        single(Kind::caches, "Go module downloads",
               {"{H}/go/pkg/mod/cache/download", "{H}/go/pkg/mod/cache/vcs"}),
        single(Kind::caches, "NuGet downloads", {"{DATA}/NuGet/v3-cache"}),
        single(Kind::caches, "Cabal downloads", {"{H}/.cabal/packages"}),
        single(Kind::caches, "Julia build cache", {"{H}/.julia/compiled"}),
        single(Kind::caches, "PlatformIO downloads", {"{H}/.platformio/.cache"}),
        single(Kind::caches, "Arduino downloads", {"{H}/.arduino15/staging"}),
        single(Kind::caches, "Maven downloads", {"{H}/.m2/wrapper/dists"}),
        single(Kind::caches, "Dart cache", {"{H}/.dartServer"}),
        single(Kind::caches, "SDKMAN downloads", {"{H}/.sdkman/archives", "{H}/.sdkman/tmp"}),
        single(Kind::caches, "nvm downloads", {"{H}/.nvm/.cache"}),
        single(Kind::caches, "pyenv downloads", {"{H}/.pyenv/cache"}),
        single(Kind::caches, "rbenv downloads", {"{H}/.rbenv/cache"}),
        single(Kind::caches, "asdf downloads", {"{H}/.asdf/downloads"}),
        single(Kind::caches, "mise downloads", {"{DATA}/mise/downloads"}),
        single(Kind::caches, "GHCup downloads", {"{H}/.ghcup/cache", "{H}/.ghcup/tmp", "{H}/.ghcup/trash"}),
        single(Kind::caches, "opam downloads", {"{H}/.opam/download-cache"}),
        single(Kind::caches, "CPAN downloads", {"{H}/.cpanm/work", "{H}/.cpan/build", "{H}/.cpan/sources"}),
        single(Kind::caches, "Hex downloads", {"{H}/.hex/packages"}),
        single(Kind::caches, "Nimble cache", {"{H}/.nimble/pkgcache"}),
        single(Kind::caches, "ESP-IDF downloads", {"{H}/.espressif/dist"}),
        single(Kind::caches, "RubyGems downloads", {"{H}/.gem/ruby/*/cache", "{DATA}/gem/ruby/*/cache"}),
        single(Kind::caches, "Composer cache", {"{H}/.composer/cache"}),
        single(Kind::caches, "Bundler cache", {"{H}/.bundle/cache"}),
        single(Kind::caches, "node-gyp cache", {"{H}/.node-gyp"}),
        single(Kind::caches, "Electron downloads", {"{H}/.electron"}),
        single(Kind::caches, "Triton cache", {"{H}/.triton/cache"}),
        single(Kind::caches, "minikube downloads", {"{H}/.minikube/cache"}),
        single(Kind::caches, "Vagrant downloads", {"{H}/.vagrant.d/tmp"}),
        single(Kind::caches, "TeX cache", {"{H}/.texlive*/texmf-var/luatex-cache"}),
        single(Kind::caches, "VS Code server downloads", {"{H}/.vscode-server/data/CachedExtensionVSIXs"}),
        single(Kind::caches, "JetBrains Toolbox downloads",
               {"{DATA}/JetBrains/Toolbox/cache", "{DATA}/JetBrains/Toolbox/download"}),
        single(Kind::caches, "Rebuilt when the project opens",
               {"{CONFIG}/unity3d/cache", "{CONFIG}/unity3d/GiCache",
                "{CONFIG}/Epic/UnrealEngine/Common/DerivedDataCache"}),
        // Settings, the history of edits and remote sessions lie beside them.
        {.from = {"{CACHES}/JetBrains/*", "{CACHES}/Google/AndroidStudio*"},
         .minimum = 100'000,
         .note = "{1}",
         .only = {"caches", "index", "log", "tmp", "jcef_cache", "compile-server", "full-line", "icons"}},
        // Beside what programs stored for themselves.
        {.from = {"{CACHES}/deno"},
         .minimum = 100'000,
         .note = "Deno cache",
         .except = {"location_data", "origin_data"}},
    };
}

/// What projects use in place, or what may be the only copy.
std::vector<SourceRow> usedInPlace()
{
    return {
        forReview(Kind::caches, "Maven repository", {"{H}/.m2/repository"},
                  "May hold builds that you installed yourself."),
        forReview(Kind::caches, "NuGet packages", {"{H}/.nuget/packages"}, kUsedInPlace),
        forReview(Kind::caches, "Dart packages", {"{H}/.pub-cache/hosted"}, kUsedInPlace),
        forReview(Kind::caches, kUsedInPlace,
                  {"{H}/.ivy2/cache", "{H}/.sbt/boot", "{H}/.coursier", "{H}/.conan2/p", "{H}/.conan/data",
                   "{H}/.vcpkg/downloads", "{H}/.stack/pantry", "{H}/.dub/packages", "{H}/.gradle/jdks",
                   "{H}/.konan/dependencies", "{H}/.platformio/packages", "{H}/.arduino15/packages"}),
        {.from = {"{H}/.vagrant.d/boxes"}, .rating = review, .note = "Vagrant box", .caution = kUsedInPlace},
        {.from = {"{DATA}/godot/export_templates"},
         .rating = review,
         .note = "Rebuilt when the project opens"},
        {.from = {"{H}/.vscode-server/bin", "{H}/.vscode-server/cli/servers", "{H}/.cursor-server/bin",
                  "{H}/.windsurf-server/bin"},
         .rating = review,
         .note = "Older remote server",
         .accepts = FolderRules::isOlderBuild},
        {.from = {"{DATA}/virtualenvs", "{CACHES}/pypoetry/virtualenvs"},
         .rating = review,
         .note = "Environment of a project that is gone",
         .accepts = FolderRules::isEnvironmentOfGoneProject,
         .maybeEnvironment = true},
    };
}

std::vector<SourceRow> node()
{
    constexpr std::string_view kStore = "Projects link to these files; 'pnpm store prune' frees unused ones.";
    constexpr std::string_view kBrowsers = "Run the browser install command again before the next test.";
    return {
        single(Kind::npm, "Yarn cache", {"{CACHES}/yarn"}),
        forReview(Kind::npm, "Yarn cache", {"{H}/.yarn/berry/cache"}, kUsedInPlace),
        single(Kind::npm, "npx cache", {"{H}/.npm/_npx"}),
        single(Kind::npm, "Bun cache", {"{H}/.bun/install/cache"}),
        single(Kind::npm, "node-gyp cache", {"{CACHES}/node-gyp"}),
        single(Kind::npm, "Corepack cache", {"{CACHES}/node/corepack"}),
        single(Kind::npm, "Electron downloads", {"{CACHES}/electron", "{CACHES}/electron-builder"}),
        single(Kind::npm, "pnpm's index; an install without network needs it", {"{CACHES}/pnpm"}),
        forReview(Kind::npm, "pnpm store", {"{DATA}/pnpm/store", "{H}/.pnpm-store"}, kStore),
        forReview(Kind::npm, "Test browsers", {"{CACHES}/ms-playwright*", "{CACHES}/puppeteer"}, kBrowsers),
        forReview(Kind::npm, "Test browsers", {"{CACHES}/Cypress"},
                  "Run the install command again before the next test."),
    };
}

std::vector<SourceRow> python()
{
    constexpr std::string_view kLinked = "Environments may link to these packages.";
    return {
        single(Kind::pip, "pip cache", {"{CACHES}/pip"}),
        // Programs run from its environments.
        {.kind = Kind::pip, .from = {"{CACHES}/uv"}, .note = "uv cache", .except = {"environments-*"}},
        single(Kind::pip, "Pipenv cache", {"{CACHES}/pipenv"}),
        single(Kind::pip, "pip-tools cache", {"{CACHES}/pip-tools"}),
        forReview(Kind::pip, "PDM cache", {"{CACHES}/pdm"}, kLinked),
        forReview(Kind::pip, "pixi cache", {"{CACHES}/rattler"}, kLinked),
        single(Kind::pip, "Poetry cache", {"{CACHES}/pypoetry/cache", "{CACHES}/pypoetry/artifacts"}),
        // Archives only: environments may be linked to the unpacked folders beside them.
        {.kind = Kind::pip,
         .from = {"{H}/miniconda3/pkgs", "{H}/anaconda3/pkgs", "{H}/miniforge3/pkgs", "{H}/mambaforge/pkgs",
                  "{H}/micromamba/pkgs", "{H}/.conda/pkgs"},
         .minimum = 1'000'000,
         .note = "conda download",
         .only = {"*.conda", "*.tar.bz2"}},
    };
}

std::vector<SourceRow> devices()
{
    return {
        single(Kind::gradle, "Gradle distributions", {"{H}/.gradle/wrapper/dists"}),
        single(Kind::gradle, "Gradle daemon logs", {"{H}/.gradle/daemon"}),
        single(Kind::gradle, "Android cache", {"{H}/.android/cache"}),
        single(Kind::gradle, "Android build cache", {"{H}/.android/build-cache"}),
        single(Kind::gradle, "Kotlin cache", {"{H}/.konan/cache"}),
        // The small ".ini" beside a device stays, so that it works again once restored.
        {.kind = Kind::simulators,
         .from = {"{H}/.android/avd", "{CONFIGS}/.android/avd", "{AVD}"},
         .minimum = 1'000'000,
         .note = "Android virtual device",
         .only = {"*.avd"},
         .accepts = FolderRules::isIdleVirtualDevice},
        {.kind = Kind::simulators,
         .from = {"{H}/.Genymobile/Genymotion/deployed"},
         .minimum = 1'000'000,
         .note = "Genymotion device"},
        {.kind = Kind::simulators,
         .from = {"{H}/Android/Sdk/system-images/*/*"},
         .rating = review,
         .note = "Android system image"},
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
