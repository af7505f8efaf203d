#include "tools/startup/UnitFile.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/text/KeyFile.h"
#include "platform/text/LineText.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace orlen {

namespace {

constexpr std::size_t kSizeLimit = 256UL * 1024;
constexpr std::array<std::string_view, 4> kInstallKeys = {"WantedBy", "RequiredBy", "UpheldBy", "Alias"};

bool endsInBackslash(std::string_view line)
{
    const std::size_t last = line.find_last_not_of('\\');
    const std::size_t count = line.size() - (last == std::string_view::npos ? 0 : last + 1);
    return count % 2 == 1;
}

/// The text without comments, with each line that ends in a backslash joined to the next. Comments may come
/// in between.
std::string withLinesJoined(std::string_view text)
{
    std::string joined;
    while (!text.empty()) {
        const std::string_view line = LineText::trimmed(LineText::takeLine(text));
        if (line.starts_with('#') || line.starts_with(';'))
            continue;
        const bool goesOn = endsInBackslash(line);
        joined.append(goesOn ? line.substr(0, line.size() - 1) : line).append(goesOn ? " " : "\n");
    }
    return joined;
}

/// Removes an escaped character, without its backslash, from the text.
char takeEscaped(std::string_view& text)
{
    const char letter = text.front();
    text.remove_prefix(1);
    constexpr std::string_view kLetters = "stn";
    constexpr std::string_view kMeant = " \t\n";
    if (const std::size_t at = kLetters.find(letter); at != std::string_view::npos)
        return kMeant[at];
    unsigned value = 0;
    const char* digits = text.data();
    if (letter != 'x' || text.size() < 2 || std::from_chars(digits, digits + 2, value, 16).ptr != digits + 2)
        return letter;
    text.remove_prefix(2);
    return static_cast<char>(value);
}

/// The first word without quotes and escapes; empty if a quote is unclosed.
std::string firstWord(std::string_view line)
{
    std::string word;
    char quote = 0;
    while (!line.empty()) {
        const char c = line.front();
        line.remove_prefix(1);
        if (quote == 0 && (c == ' ' || c == '\t'))
            break;
        if (c == quote)
            quote = 0;
        else if (quote == 0 && (c == '"' || c == '\''))
            quote = c;
        else
            word += c == '\\' && !line.empty() ? takeEscaped(line) : c;
    }
    return quote == 0 ? word : std::string();
}

/// What stands for the specifiers of a unit file.
struct Specifiers {
    std::string_view home;
    std::string_view instance;
};

std::string withSpecifiers(std::string_view word, const Specifiers& known)
{
    std::string text;
    for (std::size_t at = 0; at < word.size(); ++at) {
        const std::string_view specifier = word.substr(at, 2);
        if (specifier == "%h")
            text += known.home;
        else if ((specifier == "%i" || specifier == "%I") && !known.instance.empty())
            text += known.instance;
        else if (specifier == "%%")
            text += '%';
        else {
            text += word[at];
            continue;
        }
        ++at;
    }
    return text;
}

std::string textOrNothing(std::string text)
{
    const bool isText = PathText::isValidUtf8(text) && text.find('\0') == std::string::npos;
    return isText ? std::move(text) : std::string();
}

/// An empty list discards all earlier words.
void addWords(std::string_view list, std::vector<std::string>& words)
{
    if (list.empty())
        words.clear();
    for (std::string_view rest = list; !rest.empty();) {
        const std::size_t end = std::min(rest.find_first_of(" \t"), rest.size());
        if (end > 0)
            words.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

// Prefixes that say how to start the command.
constexpr std::string_view kPrefixes = "-@:+!";

std::string programOf(std::string_view command, const Specifiers& known)
{
    const std::string word = firstWord(command);
    const std::size_t start = word.find_first_not_of(kPrefixes);
    return start == std::string::npos ? "" : textOrNothing(withSpecifiers(word.substr(start), known));
}

std::string commandOf(std::string_view command, const Specifiers& known)
{
    command.remove_prefix(std::min(command.find_first_not_of(kPrefixes), command.size()));
    return textOrNothing(withSpecifiers(command, known));
}

} // namespace

UnitFile UnitFile::parsed(std::string_view text, std::string_view home, std::string_view instance)
{
    const Specifiers known{home, instance};
    UnitFile unit;
    const std::string joined = withLinesJoined(text);
    std::string_view command;
    KeyFile file(joined);
    while (const auto line = file.next()) {
        const auto& [raw, section, isHeading, key, value] = *line;
        // An empty value discards all earlier commands.
        if (section == "Service" && key == "ExecStart" && (command.empty() || value.empty()))
            command = value;
        if (section == "Unit" && key == "Description")
            unit.description =
                textOrNothing(instance.empty() ? std::string(value) : withSpecifiers(value, known));
        const bool isStarted = section == "Socket"
                                   ? key == "Service"
                                   : (section == "Timer" || section == "Path") && key == "Unit";
        if (isStarted)
            unit.started = textOrNothing(std::string(value));
        if (section != "Install" || key.empty())
            continue;
        if (key == "Alias")
            addWords(value, unit.aliases);
        const bool isInstallKey =
            std::find(kInstallKeys.begin(), kInstallKeys.end(), key) != kInstallKeys.end();
        unit.isInstallable = unit.isInstallable || (isInstallKey && !value.empty());
    }
    unit.program = programOf(command, known);
    unit.command = commandOf(command, known);
    return unit;
}

std::optional<UnitFile> UnitFile::read(const std::string& path, std::string_view home,
                                       std::string_view instance)
{
    const auto text = readSmallFile(resolved(path), kSizeLimit);
    return text ? std::optional(parsed(*text, home, instance)) : std::nullopt;
}

} // namespace orlen
