#include "platform/desktop/DesktopEntry.h"

#include "platform/files/FileContent.h"
#include "platform/text/KeyFile.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen {

namespace {

/// What an escaped letter means; nothing if the backslash is literal.
std::optional<char> escaped(char letter)
{
    switch (letter) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case '\\':
    case ';':
        return letter;
    default:
        return std::nullopt;
    }
}

std::string withoutEscapes(std::string_view raw)
{
    std::string text;
    text.reserve(raw.size());
    for (std::size_t at = 0; at < raw.size(); ++at) {
        const auto meant =
            raw[at] == '\\' && at + 1 < raw.size() ? escaped(raw[at + 1]) : std::optional<char>();
        at += meant ? 1 : 0;
        text.push_back(meant.value_or(raw[at]));
    }
    return text;
}

/// Splits a command line into words. The standard only has double quotes; single ones are common and work on
/// most desktops.
class WordSplitter {
public:
    explicit WordSplitter(std::string_view line) : m_line(line) {}

    /// Empty if a quote is unclosed.
    std::vector<std::string> words()
    {
        for (m_at = 0; m_at < m_line.size(); ++m_at)
            take(m_line[m_at]);
        if (m_quote != 0)
            return {};
        endWord();
        return std::move(m_words);
    }

private:
    void take(char c)
    {
        if (m_quote == 0 && (c == ' ' || c == '\t' || c == '\n')) {
            endWord();
        } else if (c == m_quote) {
            m_quote = 0;
        } else if (m_quote == 0 && (c == '"' || c == '\'')) {
            m_quote = c;
            m_hasWord = true;
        } else {
            // "%%" is a literal percent sign; other field codes are left to the caller.
            if (isEscape(c) || (c == '%' && next() == '%'))
                c = m_line[++m_at];
            m_word.push_back(c);
            m_hasWord = true;
        }
    }

    [[nodiscard]] char next() const { return m_at + 1 < m_line.size() ? m_line[m_at + 1] : '\0'; }

    [[nodiscard]] bool isEscape(char c) const
    {
        constexpr std::string_view kEscapedInQuotes = "\"`$\\";
        if (c != '\\' || m_quote == '\'' || m_at + 1 == m_line.size())
            return false;
        return m_quote == 0 || kEscapedInQuotes.find(next()) != std::string_view::npos;
    }

    void endWord()
    {
        if (m_hasWord)
            m_words.push_back(std::move(m_word));
        m_word.clear();
        m_hasWord = false;
    }

    std::string_view m_line;
    std::size_t m_at = 0;
    char m_quote = 0; ///< the one that is open
    bool m_hasWord = false;
    std::string m_word;
    std::vector<std::string> m_words;
};

/// Number of words at the start that only set up the environment of the program.
std::size_t preparingWords(const std::vector<std::string>& words)
{
    if (words.empty() || PathText::lastComponent(words.front()) != "env")
        return 0;
    std::size_t count = 1;
    for (; count < words.size(); ++count) {
        const std::string& word = words[count];
        if (word == "-u" || word == "--unset" || word == "-C" || word == "--chdir")
            ++count; // the next word belongs to it
        else if (!word.starts_with('-') && word.find('=') == std::string::npos)
            break;
    }
    return std::min(count, words.size());
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parsed(std::string_view text)
{
    DesktopEntry entry;
    bool hasGroup = false;
    KeyFile file(text);
    while (const auto line = file.next()) {
        if (line->group != kGroup)
            continue;
        hasGroup = true;
        // A NUL would cut off a path made from the value.
        if (!line->key.empty() && line->raw.find('\0') == std::string_view::npos)
            entry.m_values.emplace(line->key, line->value);
    }
    return hasGroup ? std::optional(std::move(entry)) : std::nullopt;
}

std::optional<DesktopEntry> DesktopEntry::read(const std::string& path)
{
    const auto text = readSmallFile(path, kSizeLimit);
    return text ? parsed(*text) : std::nullopt;
}

bool DesktopEntry::has(std::string_view key) const
{
    return m_values.contains(key);
}

std::string DesktopEntry::text(std::string_view key) const
{
    const auto found = m_values.find(key);
    if (found == m_values.end() || !PathText::isValidUtf8(found->second))
        return {};
    return withoutEscapes(found->second);
}

std::string DesktopEntry::localizedText(std::string_view key, std::span<const std::string> languages) const
{
    for (const std::string& tag : languages) {
        for (const std::string& form : {tag, tag.substr(0, tag.find('_'))}) {
            std::string value = text(std::string(key) + '[' + form + ']');
            if (!value.empty())
                return value;
        }
    }
    return text(key);
}

std::optional<bool> DesktopEntry::flag(std::string_view key) const
{
    const std::string value = text(key);
    if (value == "true")
        return true;
    if (value == "false")
        return false;
    return std::nullopt;
}

std::vector<std::string> DesktopEntry::list(std::string_view key) const
{
    std::vector<std::string> elements;
    const auto found = m_values.find(key);
    if (found == m_values.end() || !PathText::isValidUtf8(found->second))
        return elements;
    const std::string_view raw = found->second;
    std::size_t start = 0;
    for (std::size_t at = 0; at <= raw.size(); ++at) {
        if (at < raw.size() && raw[at] == '\\') {
            ++at; // an escaped semicolon is part of its element
        } else if (at == raw.size() || raw[at] == ';') {
            if (at > start)
                elements.push_back(withoutEscapes(raw.substr(start, at - start)));
            start = at + 1;
        }
    }
    return elements;
}

std::vector<std::string> DesktopEntry::command(std::string_view key) const
{
    std::vector<std::string> words = WordSplitter(text(key)).words();
    const std::size_t preparing = preparingWords(words);
    words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(preparing));
    return words;
}

} // namespace orlen
