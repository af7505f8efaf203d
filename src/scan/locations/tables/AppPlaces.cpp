#include "model/ModelTexts.h"
#include "scan/locations/FolderRules.h"
#include "scan/locations/tables/Tables.h"

namespace orlen::SourceTables {

namespace {

using Kind = FindingKind;
using enum Rating;

constexpr std::int64_t kLarge = 50'000'000;

/// In the folders of applications that show web pages, wherever they put the page view's.
SourceRow inWebViews(Names names, std::string_view below = {})
{
    return {.from = {"{CONFIGS}/*", "{CONFIGS}/*/*", "{CONFIGS}/*/*/*", "{CONFIGS}/*/*/Partitions/*",
                     "{DATAS}/*/webengine", "{DATAS}/*/QtWebEngine/*", "{DATAS}/*/*"},
            .below = below,
            .minimum = 100'000,
            .note = message("{name} cache — quit the app first"),
            .noteName = "*",
            .only = std::move(names),
            .within = FolderRules::holdsWebView};
}

SourceRow forReview(SourceRow row, Text caution)
{
    row.rating = review;
    row.caution = caution;
    return row;
}

/// Nothing else of a web view is offered: pages keep the user's data in the other folders.
std::vector<SourceRow> webViews()
{
    return {
        inWebViews({"Cache", "Code Cache", "GPUCache", "ShaderCache", "GrShaderCache", "GraphiteDawnCache",
                    "DawnCache", "DawnGraphiteCache", "DawnWebGPUCache", "GPUPersistentCache", "CachedData",
                    "CachedExtensionVSIXs", "CachedProfilesData", "CachedConfigurations",
                    "component_crx_cache", "extensions_crx_cache"}),
        inWebViews({"ScriptCache"}, "/Service Worker"),
        inWebViews({"cache"}, "/Shared Dictionary"),
        // Every path like this gets the same caution, whoever lists it.
        forReview(inWebViews({"CacheStorage"}, "/Service Worker"), {}),
        forReview(inWebViews({"CacheStorage"}, "/WebStorage/*"), ModelTexts::kOfflineData),
        forReview(inWebViews({"OptGuideOnDeviceModel", "optimization_guide_model_store"}),
                  message("The browser's own model; it downloads again")),
    };
}

SourceRow single(Text note, Names from)
{
    return {.reading = Reading::single, .from = std::move(from), .note = note};
}

std::vector<SourceRow> games()
{
    constexpr Text kDownloads = message("Steam downloads");
    SourceRow package = single(kDownloads, {"{STEAM}/package"});
    package.accepts = FolderRules::isSteamIdle;
    return {
        {.from = {"{STEAM}/steamapps/shadercache"},
         .minimum = 1'000'000,
         .note = message("Steam shader cache"),
         .caution = message("Rebuilt when the game runs; the first start is slower.")},
        single(message("Steam web cache"), {"{STEAM}/appcache/httpcache", "{STEAM}/config/htmlcache"}),
        single(kDownloads, {"{STEAM}/depotcache"}),
        package,
        {.from = {"{STEAM}/compatibilitytools.d", "{CONFIGS}/heroic/tools/wine",
                  "{CONFIGS}/heroic/tools/proton", "{DATAS}/lutris/runners/*", "{DATAS}/bottles/runners"},
         .minimum = kLarge,
         .rating = review,
         .note = message("A game may be set to use it.")},
        {.from = {"{H}/.wine", "{DATAS}/wineprefixes/*", "{DATAS}/bottles/bottles/*"},
         .below = "/drive_c/users/*",
         .rating = review,
         .note = ScanTexts::kWindowsTemporary,
         .only = {"Temp"}},
        {.from = {"{H}/.wine", "{DATAS}/wineprefixes/*", "{DATAS}/bottles/bottles/*"},
         .below = "/drive_c/users/*/AppData/Local",
         .rating = review,
         .note = ScanTexts::kWindowsTemporary,
         .only = {"Temp", "CrashDumps"}},
    };
}

std::vector<SourceRow> models()
{
    return {
        {.from = {"{H}/.lmstudio/models/*", "{DATAS}/Jan/data/llamacpp/models"},
         .rating = review,
         .note = ScanTexts::kLargeDownload},
        {.from = {"{DATAS}/nomic.ai/GPT4All"},
         .rating = review,
         .note = ScanTexts::kLargeDownload,
         .only = {"*.gguf"}},
        forReview(single({}, {"{H}/.keras/models", "{H}/.keras/datasets", "{H}/.u2net", "{H}/.EasyOCR/model",
                              "{H}/.insightface/models", "{H}/nltk_data"}),
                  ScanTexts::kLargeDownload),
    };
}

std::vector<SourceRow> media()
{
    return {
        {.reading = Reading::single,
         .from = {"{DATAS}/TelegramDesktop/tdata/user_data*/cache",
                  "{DATAS}/TelegramDesktop/tdata/user_data*/media_cache"},
         .rating = review,
         .note = message("Fetched again from the server; quit Telegram first")},
        forReview(single({}, {"{DATAS}/Meltytech/Shotcut/proxies", "{H}/.openshot_qt/thumbnail",
                              "{H}/.openshot_qt/preview-cache", "{H}/.kodi/userdata/Thumbnails"}),
                  ScanTexts::kUsedByProjects),
    };
}

} // namespace

std::vector<SourceRow> apps()
{
    std::vector<SourceRow> rows = webViews();
    for (const auto& more : {games(), models(), media()})
        rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

} // namespace orlen::SourceTables
