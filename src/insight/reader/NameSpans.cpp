#include "insight/reader/NameSpans.h"

#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "insight/reader/ProgramNames.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kMostWords = 12;
/// Longer texts are no questions about names.
constexpr std::size_t kMostWordsOfText = 40;
constexpr std::string_view kSpaces = " \t\r\n";

/// Where a word begins and ends, with the punctuation around it.
struct Piece {
    std::size_t start = 0;
    std::size_t end = 0;
};

std::vector<Piece> piecesOf(std::string_view text)
{
    std::vector<Piece> pieces;
    std::size_t start = text.find_first_not_of(kSpaces);
    while (start != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(kSpaces, start), text.size());
        pieces.push_back({start, end});
        start = text.find_first_not_of(kSpaces, end);
    }
    return pieces;
}

bool isInQuotes(std::string_view text)
{
    constexpr std::string_view kMarks[] = {"\"", "“", "„", "«", "»"};
    return std::ranges::any_of(
        kMarks, [&](std::string_view mark) { return text.find(mark) != std::string_view::npos; });
}

bool hasEnding(std::string_view word)
{
    return PathText::extension(word).size() >= 2;
}

/// Says nothing in any language, so it can only be part of a name.
bool isOfName(std::string_view word)
{
    const std::vector<Word> words = wordsOf(word);
    return std::ranges::any_of(words, [](const Word& each) {
        return hasEnding(each.plain) || std::ranges::none_of(Lexicon::all(), [&](const Lexicon& lexicon) {
                   return lexicon.isWord(each.plain);
               });
    });
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}

/// Like "notes.txt", ".config" or "pip-tools", not like a word or a date.
bool isWrittenAsName(std::string_view word)
{
    if (std::ranges::none_of(word, isLetter))
        return false;
    return hasEnding(word) || (word.starts_with('.') && word.size() > 1) ||
           (isLetter(word.front()) && word.find_first_of("-_") != std::string_view::npos && isOfName(word));
}

/// Names in a text.
class NameSearch {
public:
    NameSearch(std::string_view text, const AskContext& context)
        : m_text(text), m_pieces(piecesOf(text)), m_apps(context.apps),
          m_names(context.home == nullptr ? nullptr : context.names->of(context.home))
    {
    }

    std::vector<Word> words()
    {
        if (m_pieces.size() > kMostWordsOfText || isInQuotes(m_text))
            return wordsOf(m_text);
        std::size_t plainStart = 0;
        for (std::size_t i = 0; i < m_pieces.size();) {
            const std::size_t count = takeName(i, plainStart);
            i += std::max<std::size_t>(count, 1);
            if (count > 0)
                plainStart = m_pieces[i - 1].end;
        }
        addPlain(plainStart, m_text.size());
        return std::move(m_words);
    }

private:
    void addPlain(std::size_t start, std::size_t end)
    {
        std::ranges::move(wordsOf(m_text.substr(start, end - start)), std::back_inserter(m_words));
    }

    /// The words of the longest name that begins there; 0 if none does.
    std::size_t takeName(std::size_t from, std::size_t plainStart)
    {
        for (std::size_t count = std::min(kMostWords, m_pieces.size() - from); count > 0; --count) {
            const std::size_t start = m_pieces[from].start;
            std::string_view run = m_text.substr(start, m_pieces[from + count - 1].end - start);
            const std::string_view whole = run;
            auto name = nameIn(run, count);
            if (!name) {
                run = run.substr(0, run.find_last_not_of("?!.,;:)'") + 1);
                name = run.size() < whole.size() ? nameIn(run, count) : std::nullopt;
            }
            if (!name)
                continue;
            addPlain(plainStart, start);
            const bool endsClause =
                whole.substr(run.size()).find_first_of("?!.,;:") != std::string_view::npos;
            std::string plain = plainLetters(*name);
            m_words.push_back({*std::move(name), std::move(plain), true, endsClause});
            return count;
        }
        return 0;
    }

    /// The name that a run of so many words is, as answers look it up.
    [[nodiscard]] std::optional<std::string> nameIn(std::string_view run, std::size_t count) const
    {
        if (run.empty())
            return std::nullopt;
        if (m_names != nullptr && run.find('/') != std::string_view::npos)
            return pathIn(run);
        if (count == 1 && !isWrittenAsName(run))
            return std::nullopt;
        return isName(run, count) && (count == 1 || isMarked(run)) ? std::optional(std::string(run))
                                                                   : std::nullopt;
    }

    [[nodiscard]] std::optional<std::string> pathIn(std::string_view run) const
    {
        const std::string& home = Places::current().home;
        if (run.starts_with("~/"))
            run.remove_prefix(1);
        else if (PathText::isAtOrBelow(run, home))
            run.remove_prefix(home.size());
        else if (run.starts_with('/'))
            return std::nullopt;
        if (std::ranges::none_of(run, isLetter))
            return std::nullopt;
        const auto item = m_names->at(lowered(run));
        return item ? std::optional("~" + m_names->pathOf(*item).substr(home.size())) : std::nullopt;
    }

    [[nodiscard]] bool isName(std::string_view run, std::size_t count) const
    {
        const std::string lower = lowered(run);
        if (m_names != nullptr && (count == 1 ? !m_names->named(lower).empty() : m_names->has(lower)))
            return true;
        if (count > 1 && isNameOfProgram(run))
            return true;
        return count > 1 && m_apps &&
               std::ranges::any_of(*m_apps, [&](const KnownApp& app) { return lowered(app.name) == lower; });
    }

    /// Whether several words look like a name, not like what people say about files: one of them means
    /// nothing, or the second begins with a capital as the name does.
    [[nodiscard]] bool isMarked(std::string_view run) const
    {
        const auto pieces = piecesOf(run);
        const bool hasOwnWord = std::ranges::any_of(pieces, [&](const Piece& piece) {
            return isOfName(run.substr(piece.start, piece.end - piece.start));
        });
        const auto isCapital = [&](const Piece& piece) {
            return run[piece.start] >= 'A' && run[piece.start] <= 'Z';
        };
        return hasOwnWord || isNameOfProgram(run) || std::all_of(pieces.begin() + 1, pieces.end(), isCapital);
    }

    std::string_view m_text;
    std::vector<Piece> m_pieces;
    const std::optional<std::vector<KnownApp>>& m_apps;
    std::shared_ptr<const HomeNames> m_names;
    std::vector<Word> m_words;
};

/// "Files", "Dateien": of every kind.
bool meansFiles(const std::string& plain)
{
    return std::ranges::any_of(Lexicon::all(), [&](const Lexicon& lexicon) {
        const Lexicon::Entry* const entry = lexicon.find(plain);
        return entry != nullptr && entry->subject != nullptr && entry->subject->isAnyFile;
    });
}

/// Whether it means something in a language, by itself or with the word behind it: "log files".
bool isKnown(const std::string& plain, const std::string& next)
{
    return std::ranges::any_of(Lexicon::all(), [&](const Lexicon& lexicon) {
        return lexicon.find(plain) != nullptr ||
               (!next.empty() && lexicon.find(plain + " " + next) != nullptr);
    });
}

/// Whether files of the home folder end in it, or programs that many people have make such files.
bool isEndingOfFiles(std::string_view plain, const HomeNames& names)
{
    constexpr std::size_t kShortest = 2;
    constexpr std::size_t kLongest = 8;
    constexpr std::string_view kUsual[] = {
        "psd",  "xcf", "kra", "blend", "stl", "dwg", "dxf",  "gcode", "srt", "json", "xml",    "yaml", "sql",
        "html", "css", "php", "cpp",   "ttf", "otf", "vcf",  "ics",   "eml", "mbox", "jar",    "apk",  "gpx",
        "rw2",  "nef", "cr2", "dng",   "iso", "vdi", "vmdk", "qcow2", "mov", "wav",  "torrent"};
    return plain.size() >= kShortest && plain.size() <= kLongest && std::ranges::all_of(plain, isWordByte) &&
           std::ranges::any_of(plain, isLetter) &&
           (std::ranges::find(kUsual, plain) != std::end(kUsual) || names.hasEnding(plain));
}

/// "All xcf files", "XCF-Dateien": writes the ending with its dot.
void markEndings(std::vector<Word>& words, const HomeNames& names)
{
    const auto areFiles = [&](std::size_t i) {
        return i < words.size() && !words[i].isQuoted && meansFiles(words[i].plain);
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string plain = words[i].plain;
        const std::size_t dash = plain.rfind('-');
        if (words[i].isQuoted)
            continue;
        if (dash != std::string::npos && dash > 0 && meansFiles(plain.substr(dash + 1)) &&
            !isKnown(plain.substr(0, dash), plain.substr(dash + 1)) &&
            isEndingOfFiles(std::string_view(plain).substr(0, dash), names)) {
            const std::string files = plain.substr(dash + 1);
            const std::string ending = "." + plain.substr(0, dash);
            const Word behind{files, files, false, words[i].endsClause};
            words[i] = {ending, ending};
            words.insert(words.begin() + static_cast<std::ptrdiff_t>(i) + 1, behind);
        } else if ((areFiles(i + 1) || (i > 0 && areFiles(i - 1))) &&
                   !isKnown(plain, i + 1 < words.size() ? words[i + 1].plain : "") &&
                   isEndingOfFiles(plain, names)) {
            words[i].plain = "." + plain;
            words[i].typed = words[i].plain;
        }
    }
}

} // namespace

std::vector<Word> withNames(std::string_view text, const AskContext& context)
{
    std::vector<Word> words = NameSearch(text, context).words();
    if (context.home != nullptr)
        markEndings(words, *context.names->of(context.home));
    return words;
}

} // namespace orlen::AskReader
