#include "insight/reader/ProgramPlaces.h"

#include "insight/reader/Lexicon.h"
#include "insight/reader/LowerName.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <span>
#include <unordered_map>

namespace orlen::AskReader {

namespace {

using Number = HomeFiles::Number;

constexpr std::string_view kCacheFolders[] = {
    "cache",      "caches",       ".cache",        "code cache",        "gpucache",       "shadercache",
    "cacheddata", "cachestorage", "grshadercache", "graphitedawncache", "cachedprofiles", "http-cache",
    "webcache",   "cached data",  "dawncache",     "scriptcache",       "media cache",    "cache_data"};
constexpr std::string_view kLogFolders[] = {"logs", "log", "crash-reports"};
constexpr std::string_view kSaveFolders[] = {"saves", "saved games", "savegames", "worlds", "save"};

std::span<const std::string_view> foldersFor(PlacePart part)
{
    switch (part) {
    case PlacePart::caches:
        return kCacheFolders;
    case PlacePart::logs:
        return kLogFolders;
    case PlacePart::saves:
        return kSaveFolders;
    case PlacePart::all:
        break;
    }
    return {};
}

/// A folder in which programs have folders of their own.
struct Root {
    std::string_view pattern;
    enum class Names { plain, hidden, identifiers };
    Names names = Names::plain;
    bool isCache = false;
};

constexpr Root kRoots[] = {
    {"{H}", Root::Names::hidden},
    {"{CACHE}", Root::Names::plain, true},
    {"{CACHE}/JetBrains", Root::Names::plain, true},
    {"{CACHE}/Google", Root::Names::plain, true},
    {"{CONFIG}"},
    {"{CONFIG}/JetBrains"},
    {"{CONFIG}/Google"},
    {"{DATA}"},
    {"{DATA}/JetBrains"},
    {"{STATE}"},
    {"{H}/.var/app", Root::Names::identifiers},
    {"{H}/snap"},
    {"{STEAM}/steamapps/common"},
};

/// The folders of a program, and what of them is meant.
class Search {
public:
    Search(const HomeFiles& home, const ProgramName& program, Spelling spelling)
        : m_home(home), m_program(program), m_folders(program.name, spelling)
    {
    }

    std::vector<Number> found()
    {
        for (const Root& root : kRoots) {
            for (const std::string& path : Places::current().expand(root.pattern)) {
                if (const auto folder = m_home.folderAt(path); folder && m_folders.isKnown())
                    lookIn(root, *folder);
            }
        }
        std::ranges::sort(m_found);
        m_found.erase(std::unique(m_found.begin(), m_found.end()), m_found.end());
        return std::move(m_found);
    }

private:
    void lookIn(const Root& root, Number folder)
    {
        const Number last = m_home.foldersFrom(folder).last;
        for (Number each = folder + 1; each < last; each = m_home.foldersFrom(each).last) {
            const std::string_view name = m_home.folderName(each);
            const bool isHidden = name.starts_with('.') || name == "VirtualBox VMs";
            if (root.names == Root::Names::identifiers ? !m_folders.isIdentifier(name)
                                                       : !m_folders.areNamed(name))
                continue;
            if (root.names == Root::Names::hidden && !isHidden)
                continue;
            if (m_program.part == PlacePart::all || (m_program.part == PlacePart::caches && root.isCache))
                m_found.push_back(each);
            else if (!root.isCache)
                addParts(each);
        }
    }

    /// The folders of the part in this one, none within another.
    void addParts(Number folder)
    {
        const std::span<const std::string_view> names = foldersFor(m_program.part);
        const Number last = m_home.foldersFrom(folder).last;
        for (Number each = folder + 1; each < last;) {
            const bool isIt = isAmong(names, lowered(m_home.folderName(each)));
            if (isIt)
                m_found.push_back(each);
            each = isIt ? m_home.foldersFrom(each).last : each + 1;
        }
    }

    const HomeFiles& m_home;
    const ProgramName& m_program;
    FolderNames m_folders;
    std::vector<Number> m_found;
};

/// The entries of findings at these paths, each once.
std::vector<Hit> hitsAt(const AskContext& context, const std::vector<Measured>& places)
{
    std::unordered_map<std::string_view, std::size_t> known;
    for (std::size_t i = 0; i < places.size(); ++i)
        known.emplace(places[i].path, i);
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (known.contains(entry.path))
                hits.push_back({&finding, &entry});
        }
    }
    return eachOnce(context, std::move(hits));
}

/// What a folder counts for; nothing if for several.
std::optional<OrlenCategory> categoryOf(const StorageBreakdown& breakdown, std::string_view path)
{
    for (const CategoryFolder& folder : breakdown.folders) {
        const bool isIn = folder.path == PathText::parent(path) &&
                          std::ranges::any_of(folder.largest, [&](const CategoryFolder::Item& item) {
                              return item.name == PathText::lastComponent(path);
                          });
        if (folder.path == path || isIn)
            return folder.category;
    }
    return std::nullopt;
}

/// "The shader cache": caches that no program is named after, by words of their paths.
void addCachesByWords(Found& found, const AskContext& context, const std::string& name)
{
    constexpr std::size_t kShortest = 4;
    std::vector<std::string> words = wordsOfName(lowered(name));
    if (words.empty() ||
        std::ranges::any_of(words, [](const std::string& word) { return word.size() < kShortest; }))
        return;
    words.emplace_back("cache");
    found.hits = holdingAll(context, words);
    // What a note says of a cache is not its name.
    std::erase_if(found.hits, [&](const Hit& hit) {
        const std::string path = lowered(hit.entry->path);
        return std::ranges::any_of(
            words, [&](const std::string& word) { return path.find(word) == std::string::npos; });
    });
    for (const CleanRecord& record : context.history) {
        for (const TrashedItem& item : record.items) {
            const std::string path = lowered(item.original);
            if (!item.restored && std::ranges::all_of(words, [&](const std::string& word) {
                    return path.find(word) != std::string::npos;
                }))
                found.trashed.push_back(&item);
        }
    }
    // What the Trash holds of it is the same.
    if (!found.trashed.empty())
        std::erase_if(found.hits, [](const Hit& hit) { return hit.finding->kind == FindingKind::trash; });
}

} // namespace

bool isPlaceOf(std::string_view path, const ProgramName& program)
{
    const std::string& home = Places::current().home;
    const FolderNames folders(program.name);
    if (!folders.isKnown() || !PathText::isAtOrBelow(path, home))
        return false;
    const std::string_view rest = path.substr(home.size());
    const bool isCache =
        std::ranges::any_of(Places::current().expand("{CACHE}"),
                            [&](const std::string& cache) { return PathText::isAtOrBelow(path, cache); });
    const auto components = PathText::components(rest);
    if (components.empty() || !(components.front().starts_with('.') || components.front() == "snap"))
        return false;
    const auto named = std::ranges::find_if(components, [&](std::string_view name) {
        return folders.areNamed(name) ||
               (name.find('.') != std::string_view::npos && folders.isIdentifier(name));
    });
    if (named == components.end())
        return false;
    if (program.part == PlacePart::all || (program.part == PlacePart::caches && isCache))
        return true;
    const std::span<const std::string_view> names = foldersFor(program.part);
    return std::any_of(named, components.end(),
                       [&](std::string_view name) { return isAmong(names, lowered(name)); });
}

Found placesOf(const AskContext& context, const ProgramName& program)
{
    Found found;
    if (context.home == nullptr)
        return found;
    std::vector<Number> folders;
    for (const Spelling spelling : {Spelling::right, Spelling::mistyped}) {
        if (folders.empty())
            folders = Search(*context.home, program, spelling).found();
    }
    for (const Number folder : folders) {
        Measured one{context.home->folderPath(folder), context.home->folder(folder).bytes, {}};
        one.kind = Measured::Kind::folder;
        one.category = categoryOf(context.breakdown, one.path);
        found.measured.push_back(std::move(one));
    }
    found.hits = hitsAt(context, found.measured);
    std::erase_if(found.measured, [&](const Measured& each) {
        return std::ranges::any_of(found.hits, [&](const Hit& hit) { return hit.entry->path == each.path; });
    });
    for (const CleanRecord& record : context.history) {
        for (const TrashedItem& item : record.items) {
            if (!item.restored && isPlaceOf(item.original, program))
                found.trashed.push_back(&item);
        }
    }
    if (program.part == PlacePart::caches && found.hits.empty() && found.measured.empty() &&
        found.trashed.empty())
        addCachesByWords(found, context, program.name);
    std::ranges::stable_sort(found.hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    std::ranges::stable_sort(found.measured, std::greater{}, &Measured::bytes);
    if (!found.hits.empty() || !found.measured.empty() || !found.trashed.empty())
        found.fit = Fit::whole;
    return found;
}

} // namespace orlen::AskReader
