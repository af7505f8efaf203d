#include "tools/apps/WrapperScript.h"

#include "platform/files/FileContent.h"
#include "platform/files/Places.h"
#include "platform/text/LineText.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <map>

namespace orlen::WrapperScript {

namespace {

/// Longer scripts do more than start a program.
constexpr std::size_t kScriptLimit = 16UL * 1024;
/// No path is longer, and a variable that is set to itself twice would grow without end.
constexpr std::size_t kLongestWord = 4096;
/// Stands for what cannot be known; no path has it.
constexpr char kUnknown = '\0';

using Variables = std::map<std::string, std::string, std::less<>>;

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view takeName(std::string_view& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isNameCharacter);
    const std::string_view name = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(name.size());
    return name;
}

/// Removes the rest of "$NAME" or "${NAME}" from the text and returns the value.
std::string takeVariable(std::string_view& text, const Variables& variables)
{
    const bool isBraced = text.starts_with('{');
    if (isBraced)
        text.remove_prefix(1);
    const auto known = variables.find(takeName(text));
    const bool isPlain = !isBraced || text.starts_with('}');
    if (isBraced && isPlain)
        text.remove_prefix(1);
    return isPlain && known != variables.end() ? known->second : std::string(1, kUnknown);
}

/// Removes the first word from the line and returns it without quotes, its variables replaced.
std::string takeWord(std::string_view& line, const Variables& variables)
{
    std::string word;
    char quote = 0;
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    const bool isInHome = line.starts_with("~/");
    while (!line.empty()) {
        const char c = line.front();
        if (quote == 0 && (c == ' ' || c == '\t' || c == ';'))
            break;
        line.remove_prefix(1);
        if (c == quote) {
            quote = 0;
        } else if (quote == 0 && (c == '"' || c == '\'')) {
            quote = c;
        } else if (c == '$' && quote != '\'') {
            word += takeVariable(line, variables);
        } else if (c == '\\' && quote != '\'' && !line.empty()) {
            word += line.front();
            line.remove_prefix(1);
        } else {
            word += c;
        }
        if (word.size() > kLongestWord) {
            line = {};
            return std::string(1, kUnknown);
        }
    }
    return isInHome ? variables.find("HOME")->second + word.substr(1) : word;
}

/// Whether the line sets variables and does nothing else; remembers them.
bool takeAssignments(std::string_view line, Variables& variables)
{
    if (line.starts_with("export "))
        line.remove_prefix(std::string_view("export ").size());
    while (!line.empty()) {
        const std::string_view name = takeName(line);
        if (name.empty() || !line.starts_with('='))
            return false;
        line.remove_prefix(1);
        variables.insert_or_assign(std::string(name), takeWord(line, variables));
        line = LineText::trimmed(line);
    }
    return true;
}

/// The program a command line starts; empty if it is not an absolute path.
std::string programOf(std::string_view line, const Variables& variables)
{
    std::string word = takeWord(line, variables);
    if (word == "-a") { // of `exec`: the name to go by
        takeWord(line, variables);
        word = takeWord(line, variables);
    }
    if (PathText::lastComponent(word) == "env") {
        do
            word = takeWord(line, variables);
        while (!word.empty() && !word.starts_with('/') && word.find('=') != std::string::npos);
    }
    return word.starts_with('/') && word.find(kUnknown) == std::string::npos ? word : std::string();
}

} // namespace

std::string targetIn(std::string_view text, std::string_view home)
{
    if (!text.starts_with("#!"))
        return {};
    constexpr std::string_view kExec = "exec ";
    Variables variables{{"HOME", std::string(home)}};
    std::string last;
    while (!text.empty()) {
        const std::string_view line = LineText::trimmed(LineText::takeLine(text));
        if (line.empty() || line.starts_with('#'))
            continue;
        if (line.starts_with(kExec))
            return programOf(line.substr(kExec.size()), variables);
        if (!takeAssignments(line, variables))
            last = programOf(line, variables);
    }
    return last;
}

std::string target(const std::string& path)
{
    const auto text = readSmallFile(path, kScriptLimit);
    return text ? targetIn(*text, Places::current().home) : std::string();
}

} // namespace orlen::WrapperScript
