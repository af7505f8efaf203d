#include "scan/walk/WalkRules.h"

#include "clean/Safety.h"
#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/tree/PathMarks.h"
#include "scan/tree/TreeScan.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace orlen::WalkRules {

namespace {

constexpr std::array<std::string_view, 4> kLeftOutAtTop{"Library", "Applications", "Public", "snap"};
constexpr std::array<std::string_view, 4> kLeftOut{"node_modules", "__pycache__", "site-packages",
                                                   "lost+found"};
constexpr std::array<std::string_view, 9> kPackageEndings{".app",           ".framework", ".bundle",
                                                          ".photoslibrary", ".AppDir",    ".fcpbundle",
                                                          ".imovielibrary", ".lrdata",    ".xcodeproj"};
constexpr std::array<std::string_view, 12> kImageExtensions{"jpg", "jpeg", "png", "heic", "heif", "tiff",
                                                            "tif", "webp", "bmp", "gif",  "avif", "jxl"};
constexpr std::array<std::string_view, 8> kImageFolders{"{H}/Pictures",  "{H}/Desktop", "{H}/Downloads",
                                                        "{H}/Documents", "{PICTURES}",  "{DESKTOP}",
                                                        "{DOWNLOAD}",    "{DOCUMENTS}"};
constexpr std::array<std::string_view, 2> kFilmFolders{"{H}/Videos", "{VIDEOS}"};
constexpr std::string_view kCacheTag = "Signature: 8a477f597d28d172789f06886806bc55";

template <std::size_t Size>
bool contains(const std::array<std::string_view, Size>& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The names that reveal what a folder is.
struct Telltales {
    bool appRun = false;
    bool headFile = false;
    bool configFile = false;
    bool objectsFolder = false;
    bool refsFolder = false;
    bool environment = false;
    bool workTree = false;
    bool syncMarker = false;
    bool cacheTag = false;

    void look(int folder, const FolderEntry& entry)
    {
        const std::string_view name = entry.name;
        const bool isFile = entry.type == EntryType::regular || entry.type == EntryType::unknown;
        const bool isFolder = entry.type == EntryType::folder || entry.type == EntryType::unknown;
        appRun |= name == "AppRun" && !isFolder;
        headFile |= isFile && name == "HEAD";
        configFile |= isFile && name == "config";
        objectsFolder |= isFolder && name == "objects";
        refsFolder |= isFolder && name == "refs";
        environment |= (isFile && name == "pyvenv.cfg") || (isFolder && name == "conda-meta");
        workTree |= name == ".git";
        cacheTag |= isFile && name == "CACHEDIR.TAG";
        syncMarker |= Safety::isSyncMarker(folder, entry);
    }
};

bool isExecutable(int folder, const char* name)
{
    constexpr unsigned kAnyExecute = 0111;
    const auto status = statusAt(folder, name);
    return status.ok() && (status.value().type == FileType::link || (status.value().mode & kAnyExecute) != 0);
}

} // namespace

bool isLeftOutAtTop(std::string_view name)
{
    return contains(kLeftOutAtTop, name);
}

bool isLeftOut(std::string_view name)
{
    return name.starts_with('.') || contains(kLeftOut, name) ||
           std::any_of(kPackageEndings.begin(), kPackageEndings.end(),
                       [&](std::string_view ending) { return name.ends_with(ending); });
}

bool isImageName(std::string_view name)
{
    return contains(kImageExtensions, PathText::asciiLower(PathText::extension(name)));
}

void markMediaFolders(const Places& places, PathMarks& marks)
{
    const auto mark = [&](std::string_view pattern, unsigned bits) {
        for (const std::string& folder : places.expand(pattern))
            marks.mark(folder, bits);
    };
    for (const std::string_view pattern : kImageFolders)
        mark(pattern, kImageFolder);
    for (const std::string_view pattern : kFilmFolders)
        mark(pattern, kFilmFolder);
}

bool hasCacheTag(int folder, const std::string& file)
{
    return readHeadAt(folder, file.c_str(), kCacheTag.size()) == kCacheTag;
}

FolderNature natureOf(const TreeListing& listing)
{
    Telltales found;
    listing.forEach([&](const FolderEntry& entry) { found.look(listing.descriptor(), entry); });
    if (found.syncMarker)
        return FolderNature::mirrored;
    // An environment is in use even if tagged: its tools tag it to keep it out of backups.
    if (found.environment)
        return FolderNature::package;
    if (found.cacheTag && !found.workTree && hasCacheTag(listing.descriptor(), "CACHEDIR.TAG"))
        return FolderNature::taggedCache;
    const bool isRepository =
        found.objectsFolder && (found.configFile || (found.headFile && found.refsFolder));
    if (isRepository || (found.appRun && isExecutable(listing.descriptor(), "AppRun")))
        return FolderNature::package;
    return found.workTree ? FolderNature::workTree : FolderNature::plain;
}

FolderNature natureOf(const std::string& folder)
{
    const auto fd = openFolder(folder);
    if (!fd.ok())
        return FolderNature::plain;
    std::vector<FolderChunk> chunks;
    FolderReader reader(fd.value().get());
    while (auto chunk = reader.next())
        chunks.push_back(std::move(*chunk));
    return natureOf(TreeListing(fd.value().get(), chunks));
}

bool isEnvironment(const std::string& folder)
{
    return exists(folder + "/pyvenv.cfg") || isRealFolder(folder + "/conda-meta");
}

} // namespace orlen::WalkRules
