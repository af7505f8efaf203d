#include "tools/apps/AppImage.h"

#include "platform/files/FileContent.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <vector>

namespace orlen::AppImage {

namespace {

constexpr std::string_view kImageSuffix = ".appimage";
constexpr std::string_view kArchitectures[] = {"x86_64", "amd64", "aarch64", "arm64",
                                               "armhf",  "i386",  "i686"};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool endsWord(std::string_view text, std::size_t at)
{
    return at >= text.size() || std::string_view("-_. ").find(text[at]) != std::string_view::npos;
}

/// An architecture that is a word of its own becomes a blank.
void blankArchitectures(std::string& name)
{
    const std::string lower = PathText::asciiLower(name);
    for (const std::string_view architecture : kArchitectures) {
        const std::size_t length = architecture.size();
        for (std::size_t at = lower.find(architecture); at != std::string::npos;
             at = lower.find(architecture, at + 1)) {
            if (at > 0 && endsWord(lower, at - 1) && endsWord(lower, at + length))
                name.replace(at - 1, length + 1, length + 1, ' ');
        }
    }
}

/// "1.2.3", "v2", and suffixes such as "1.2.3+git".
bool isVersion(std::string_view word)
{
    if (word.starts_with('v') || word.starts_with('V'))
        word.remove_prefix(1);
    const std::size_t end = std::min(word.find_first_not_of("0123456789."), word.size());
    if (word.empty() || !isDigit(word.front()))
        return false;
    return end == word.size() || word.substr(0, end).find('.') != std::string_view::npos;
}

std::vector<std::string_view> wordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of("-_ ", at), text.size());
        if (end > at)
            words.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return words;
}

} // namespace

bool isHead(std::string_view bytes)
{
    constexpr std::string_view kExecutable = "\x7F"
                                             "ELF";
    return bytes.size() >= kHeadLength && bytes.starts_with(kExecutable) && bytes.substr(8, 2) == "AI" &&
           (bytes[10] == '\1' || bytes[10] == '\2');
}

bool isOneAt(int folder, const std::string& name)
{
    const auto head = readHeadAt(folder, name.c_str(), kHeadLength);
    return head && isHead(*head);
}

std::string nameFromFile(std::string_view fileName)
{
    if (PathText::asciiLower(fileName).ends_with(kImageSuffix) && fileName.size() > kImageSuffix.size())
        fileName.remove_suffix(kImageSuffix.size());
    std::string text(fileName);
    blankArchitectures(text);
    std::string name;
    for (const std::string_view word : wordsOf(text)) {
        // A program may be called "2048": a name cannot start with its version.
        if (!name.empty() && isVersion(word))
            break;
        name += (name.empty() ? "" : " ") + std::string(word);
    }
    return name.empty() ? std::string(fileName) : name;
}

} // namespace orlen::AppImage
