#include "insight/reader/ProgramNames.h"

#include "insight/reader/Lexicon.h"
#include "insight/reader/LowerName.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace orlen::AskReader {

namespace {

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

/// Words for a browser, whichever it is; letters only.
constexpr std::string_view kAnyBrowser[] = {"browser",     "browsers",  "webbrowser", "navigateur",
                                            "navigateurs", "navegador", "navegadores"};
constexpr std::string_view kBrowsers[] = {
    "mozilla",       "firefox", "googlechrome", "chrome",    "chromium", "bravesoftware", "bravebrowser",
    "microsoftedge", "vivaldi", "opera",        "librewolf", "epiphany", "torbrowser",    "falkon"};

/// Parts of an identifier such as "com.spotify.Client" that say nothing about the program.
constexpr std::string_view kPlainParts[] = {"client", "app", "desktop", "application", "browser", "gtk"};

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

/// The same, but for a version.
bool fits(std::string_view folder, std::string_view program)
{
    return folder.starts_with(program) && isFigures(folder.substr(program.size()));
}

} // namespace

bool isAmong(std::span<const std::string_view> names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

FolderNames::FolderNames(std::string_view program, Spelling spelling)
    : m_program(bare(program)), m_isMistyped(spelling == Spelling::mistyped)
{
}

bool FolderNames::isKnown() const
{
    constexpr std::size_t kShortest = 2;
    return m_program.size() >= kShortest && !isFigures(m_program);
}

bool FolderNames::areNamed(std::string_view folder) const
{
    constexpr std::size_t kShortestMistyped = 6;
    const std::string name = bare(folder);
    // One letter too many is also the one of "Discords".
    if (m_isMistyped && m_program.size() >= kShortestMistyped && isOneLetterApart(m_program, name))
        return true;
    if (isAmong(kAnyBrowser, m_program))
        return isAmong(kBrowsers, name);
    return fits(name, m_program) || std::ranges::any_of(kOtherNames, [&](const OtherName& other) {
               return other.program == m_program && fits(name, other.folder);
           });
}

bool FolderNames::isIdentifier(std::string_view identifier) const
{
    while (true) {
        const std::size_t dot = identifier.rfind('.');
        const std::string_view last = dot == std::string_view::npos ? identifier : identifier.substr(dot + 1);
        if (areNamed(last))
            return true;
        if (dot == std::string_view::npos || !isAmong(kPlainParts, plainLetters(last)))
            return false;
        identifier = identifier.substr(0, dot);
    }
}

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

} // namespace orlen::AskReader
