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

/// Programs whose folders have another name; letters and digits only.
struct OtherName {
    std::string_view program;
    std::string_view folder;
};

constexpr OtherName kOtherNames[] = {
    {"firefox", "mozilla"},
    {"chrome", "googlechrome"},
    {"chrome", "chrome"},
    {"edge", "microsoftedge"},
    {"microsoftteams", "teamsforlinux"},
    {"bravebrowser", "bravesoftware"},
    {"brave", "bravesoftware"},
    {"telegram", "telegramdesktop"},
    {"vscode", "code"},
    {"visualstudiocode", "code"},
    {"code", "vscode"},
    {"intellij", "intellijidea"},
    {"intellij", "ideaic"},
    {"teams", "teamsforlinux"},
    {"obs", "obsstudio"},
    {"boxes", "gnomeboxes"},
    {"virtualbox", "virtualboxvms"},
    {"conda", "miniconda3"},
    {"conda", "anaconda3"},
    {"maven", "m2"},
    {"go", "gobuild"},
};

/// Parts of an identifier such as "com.spotify.Client" that say nothing about the program.
constexpr std::string_view kPlainParts[] = {"client", "app", "desktop", "application", "browser", "gtk"};

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

/// Words behind or before the name of a program that say which of its folders are meant.
struct PartWord {
    std::string_view word;
    PlacePart part;
};

constexpr PartWord kPartWords[] = {
    {"world", PlacePart::saves},       {"worlds", PlacePart::saves},    {"saves", PlacePart::saves},
    {"savegame", PlacePart::saves},    {"savegames", PlacePart::saves}, {"saved", PlacePart::saves},
    {"welt", PlacePart::saves},        {"welten", PlacePart::saves},    {"spielstande", PlacePart::saves},
    {"sauvegardes", PlacePart::saves}, {"mondes", PlacePart::saves},    {"mundos", PlacePart::saves},
    {"partidas", PlacePart::saves},    {"mondi", PlacePart::saves},     {"salvataggi", PlacePart::saves},
    {"data", PlacePart::all},          {"daten", PlacePart::all},       {"settings", PlacePart::all},
    {"config", PlacePart::all},        {"profile", PlacePart::all},     {"stuff", PlacePart::all},
    {"einstellungen", PlacePart::all}, {"donnees", PlacePart::all},     {"reglages", PlacePart::all},
    {"datos", PlacePart::all},         {"dati", PlacePart::all},        {"impostazioni", PlacePart::all},
    {"cache", PlacePart::caches},      {"caches", PlacePart::caches},   {"logs", PlacePart::logs},
};

bool isAmong(std::span<const std::string_view> names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

/// Letters and digits, in lower case.
std::string bare(std::string_view name)
{
    std::string letters = plainLetters(name);
    std::erase_if(letters, [](char c) { return !isWordByte(c); });
    return letters;
}

bool isFigures(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

enum class Spelling { right, mistyped };

/// Compares the names of folders with that of a program.
class Folders {
public:
    explicit Folders(std::string_view program, Spelling spelling = Spelling::right)
        : m_program(bare(program)), m_isMistyped(spelling == Spelling::mistyped)
    {
    }

    [[nodiscard]] bool isKnown() const
    {
        constexpr std::size_t kShortest = 2;
        return m_program.size() >= kShortest && !isFigures(m_program);
    }

    [[nodiscard]] bool areNamed(std::string_view folder) const
    {
        constexpr std::size_t kShortestMistyped = 6;
        const std::string name = bare(folder);
        // One letter too many is also the one of "Discords".
        if (m_isMistyped && m_program.size() >= kShortestMistyped && isOneLetterApart(m_program, name))
            return true;
        return fits(name, m_program) || std::ranges::any_of(kOtherNames, [&](const OtherName& other) {
                   return other.program == m_program && fits(name, other.folder);
               });
    }

    /// "com.spotify.Client"
    [[nodiscard]] bool isIdentifier(std::string_view identifier) const
    {
        while (true) {
            const std::size_t dot = identifier.rfind('.');
            const std::string_view last =
                dot == std::string_view::npos ? identifier : identifier.substr(dot + 1);
            if (areNamed(last))
                return true;
            if (dot == std::string_view::npos || !isAmong(kPlainParts, plainLetters(last)))
                return false;
            identifier = identifier.substr(0, dot);
        }
    }

private:
    /// The same, but for a version.
    [[nodiscard]] static bool fits(std::string_view folder, std::string_view program)
    {
        return folder.starts_with(program) && isFigures(folder.substr(program.size()));
    }

    std::string m_program;
    bool m_isMistyped;
};

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
        const auto rest = std::ranges::unique(m_found);
        m_found.erase(rest.begin(), rest.end());
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
    Folders m_folders;
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
    return eachOnce(std::move(hits));
}

} // namespace

std::optional<PlacePart> partCalled(std::string_view word)
{
    const std::string plain = plainLetters(word);
    const auto* const found = std::ranges::find(kPartWords, plain, &PartWord::word);
    return found == std::end(kPartWords) ? std::nullopt : std::optional(found->part);
}

ProgramName programNameIn(std::string_view text)
{
    ProgramName program{std::string(text)};
    const std::string_view between = program.name.find(' ') == std::string::npos ? "-" : " ";
    const std::size_t end = program.name.rfind(between);
    const std::size_t start = program.name.find(between);
    if (end == std::string::npos)
        return program;
    const auto take = [&](std::string_view word, std::string_view rest) {
        const std::optional<PlacePart> part = partCalled(word);
        if (part)
            program = {std::string(rest), *part};
        return part.has_value();
    };
    const std::string whole = program.name;
    const std::string_view all = whole;
    if (!take(all.substr(end + 1), all.substr(0, end)))
        take(all.substr(0, start), all.substr(start + 1));
    return program;
}

bool isNameOfProgram(std::string_view words)
{
    constexpr std::string_view kNames[] = {
        "google chrome", "visual studio code", "vs code",  "android studio",  "microsoft edge", "obs studio",
        "hugging face",  "go build",           "go cache", "microsoft teams", "brave browser"};
    return isAmong(kNames, plainLetters(words));
}

bool isPlaceOf(std::string_view path, const ProgramName& program)
{
    const std::string& home = Places::current().home;
    const Folders folders(program.name);
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
    std::ranges::stable_sort(found.hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    std::ranges::stable_sort(found.measured, std::greater{}, &Measured::bytes);
    if (!found.hits.empty() || !found.measured.empty() || !found.trashed.empty())
        found.fit = Fit::whole;
    return found;
}

} // namespace orlen::AskReader
