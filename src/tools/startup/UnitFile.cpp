#include "tools/startup/UnitFile.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
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

/// Takes a file apart into lines as they are meant: those that end in a backslash go on in the next, between
/// which comments may stand.
class Lines {
public:
    explicit Lines(std::string_view text) : m_rest(text) {}

    /// Without spaces at both ends; nothing at the end of the text.
    std::optional<std::string> next()
    {
        std::string line;
        bool goesOn = false;
        while (!m_rest.empty()) {
            const std::string_view physical = LineText::trimmed(takeLine());
            if (physical.starts_with('#') || physical.starts_with(';'))
                continue;
            goesOn = endsInBackslash(physical);
            line += goesOn ? physical.substr(0, physical.size() - 1) : physical;
            if (!goesOn)
                return line;
            line += ' ';
        }
        return goesOn ? std::optional(line) : std::nullopt;
    }

private:
    std::string_view takeLine()
    {
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        const std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return line;
    }

    static bool endsInBackslash(std::string_view line)
    {
        const std::size_t last = line.find_last_not_of('\\');
        const std::size_t count = line.size() - (last == std::string_view::npos ? 0 : last + 1);
        return count % 2 == 1;
    }

    std::string_view m_rest;
};

/// Takes what stands behind a backslash off the text.
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

/// The first word with its quotes and escapes resolved; empty when a quote is left open.
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

std::string withSpecifiers(std::string_view word, std::string_view home)
{
    std::string text;
    for (std::size_t at = 0; at < word.size(); ++at) {
        const std::string_view specifier = word.substr(at, 2);
        if (specifier == "%h")
            text += home;
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

/// An empty list takes back all words before it.
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

std::string programOf(std::string_view command, std::string_view home)
{
    const std::string word = firstWord(command);
    // How the manager is to start the command stands before it.
    const std::size_t start = word.find_first_not_of("-@:+!");
    return start == std::string::npos ? "" : textOrNothing(withSpecifiers(word.substr(start), home));
}

} // namespace

UnitFile UnitFile::parsed(std::string_view text, std::string_view home)
{
    UnitFile unit;
    Lines lines(text);
    std::string section;
    std::string command;
    while (const auto line = lines.next()) {
        const std::size_t equals = line->find('=');
        if (line->starts_with('[') && line->ends_with(']')) {
            section = *line;
        } else if (equals != std::string::npos) {
            const std::string_view key = LineText::trimmed(std::string_view(*line).substr(0, equals));
            const std::string_view value = LineText::trimmed(std::string_view(*line).substr(equals + 1));
            // An empty value takes back all commands before it.
            if (section == "[Service]" && key == "ExecStart" && (command.empty() || value.empty()))
                command = value;
            if (section == "[Unit]" && key == "Description")
                unit.description = textOrNothing(std::string(value));
            if (section == "[Install]" && key == "Alias")
                addWords(value, unit.aliases);
            const bool isInstallKey =
                std::find(kInstallKeys.begin(), kInstallKeys.end(), key) != kInstallKeys.end();
            if (section == "[Install]" && isInstallKey && !value.empty())
                unit.isInstallable = true;
        }
    }
    unit.program = programOf(command, home);
    return unit;
}

std::optional<UnitFile> UnitFile::read(const std::string& path, std::string_view home)
{
    const auto text = readSmallFile(resolved(path), kSizeLimit);
    return text ? std::optional(parsed(*text, home)) : std::nullopt;
}

} // namespace orlen
