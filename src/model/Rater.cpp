#include "model/Rater.h"

#include "model/RaterTables.h"
#include "model/SensitiveWords.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

namespace orlen::Rater {

namespace {

/// Further words are ignored: a name says what it is early on.
constexpr std::size_t kTokenLimit = 8;
/// Shorter words are too ambiguous to compare by meaning.
constexpr std::ptrdiff_t kMeaningLength = 5;
/// Cosine distance below which two words are close in meaning.
constexpr double kCloseDistance = 0.62;

constexpr Text kImportantReason = message("Every item here looks important.");
constexpr Text kDocumentNote = message("Name suggests an important document (invoice, tax, contract…)");
constexpr Text kInstallerNote = message("Installer — you can download it again");

/// Which words are close in meaning to an anchor word. Comparing is slow and names repeat words, so this
/// cache only grows. Two threads may compute the same word at once; they store the same result.
class MeaningCache {
public:
    [[nodiscard]] std::optional<bool> find(const std::string& token)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_meanings.find(token);
        return found == m_meanings.end() ? std::nullopt : std::optional(found->second);
    }

    void store(const std::string& token, bool isClose)
    {
        const std::lock_guard lock(m_mutex);
        m_meanings[token] = isClose;
    }

private:
    std::mutex m_mutex;
    std::unordered_map<std::string, bool> m_meanings;
};

MeaningCache& meaningCache()
{
    static MeaningCache cache;
    return cache;
}

/// Whether a word is long enough to compare, and not a year, date or camera counter.
bool isWorthComparing(std::string_view token)
{
    const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return !LanguageTools::hasDecimalDigit(token) &&
           std::ranges::count_if(token, startsCharacter) >= kMeaningLength;
}

bool isCloseToAnchor(const std::string& token)
{
    return std::ranges::any_of(RaterTables::anchorWords(), [&](std::string_view anchor) {
        const std::optional<double> distance = LanguageTools::distance(token, anchor);
        return distance && *distance < kCloseDistance;
    });
}

bool meansSomethingSensitive(const std::string& token)
{
    if (!isWorthComparing(token) || !LanguageTools::hasEmbedding())
        return false;
    if (const std::optional<bool> known = meaningCache().find(token))
        return *known;
    const bool isClose = isCloseToAnchor(token);
    meaningCache().store(token, isClose);
    return isClose;
}

/// Whether the base form of the word is sensitive. The word is looked up where its text first occurs in the
/// name, which may be inside an earlier, longer word.
bool hasSensitiveLemma(const std::string& token, std::span<const std::string> tokens)
{
    const auto word = std::ranges::find_if(
        tokens, [&](const std::string& other) { return other.find(token) != std::string::npos; });
    const std::optional<std::string> lemma = LanguageTools::lemma(*word);
    return lemma && RaterTables::isSensitiveWord(LanguageTools::lowerCase(*lemma));
}

/// The words of a file name in lower case: "my_taxReturn-2024.pdf" gives "my", "tax", "return", "2024".
std::vector<std::string> tokensOf(std::string_view name)
{
    std::string text(PathText::stem(name));
    std::ranges::replace_if(
        text, [](char c) { return c == '_' || c == '-' || c == '.'; }, ' ');
    std::vector<std::string> tokens =
        LanguageTools::words(LanguageTools::lowerCase(LanguageTools::splitCamelCase(text)));
    if (tokens.size() > kTokenLimit)
        tokens.resize(kTokenLimit);
    return tokens;
}

Rating moreCareful(Rating a, Rating b)
{
    return std::max(a, b);
}

/// What only the path reveals. A text that occurs in it can make an entry's rating more cautious than its
/// scanner's, never less.
bool rateByLocation(FileEntry& entry)
{
    const auto texts = RaterTables::knownTexts();
    const auto text = std::ranges::find_if(texts, [&](const RaterTables::KnownLocation& location) {
        return entry.path.find(location.where) != std::string::npos;
    });
    if (text == texts.end())
        return false;
    entry.rating = moreCareful(entry.rating.value_or(text->rating), text->rating);
    addNote(entry, text->note);
    return true;
}

bool rateByName(FileEntry& entry, FindingKind kind)
{
    if (!RaterTables::holdsDocuments(kind) || !isSensitiveName(PathText::lastComponent(entry.path)))
        return false;
    entry.rating = Rating::keep;
    addNote(entry, kDocumentNote);
    return true;
}

void rateInstaller(FileEntry& entry, FindingKind kind)
{
    if (kind != FindingKind::oldDownloads ||
        !RaterTables::isInstallerExtension(PathText::asciiLower(PathText::extension(entry.path))))
        return;
    entry.rating = Rating::safe;
    entry.notes = {kInstallerNote}; // says all there is to say, so it takes the place of earlier notes
}

void rateEntry(FileEntry& entry, FindingKind kind)
{
    if (!rateByLocation(entry) && !rateByName(entry, kind))
        rateInstaller(entry, kind);
}

void rateFinding(Finding& finding)
{
    const RaterTables::KindRule& rule = RaterTables::rule(finding.kind);
    finding.rating = rule.rating;
    finding.reason = rule.reason;
    for (FileEntry& entry : finding.items)
        rateEntry(entry, finding.kind);
    const auto isKept = [](const FileEntry& entry) { return entry.rating == Rating::keep; };
    if (finding.items.empty() || !std::ranges::all_of(finding.items, isKept))
        return;
    finding.rating = Rating::keep;
    finding.reason = kImportantReason;
}

} // namespace

std::vector<Finding> rate(std::vector<Finding> findings)
{
    std::ranges::for_each(findings, rateFinding);
    return findings;
}

bool isSensitiveName(std::string_view name)
{
    if (SensitiveWords::areIn(name))
        return true;
    const std::vector<std::string> tokens = tokensOf(name);
    return std::ranges::any_of(tokens, [&](const std::string& token) {
        return RaterTables::isSensitiveWord(token) || SensitiveWords::contains(token) ||
               hasSensitiveLemma(token, tokens) || meansSomethingSensitive(token);
    });
}

} // namespace orlen::Rater
