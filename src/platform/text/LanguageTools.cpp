#include "platform/text/LanguageTools.h"

#include "platform/files/Places.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/Lemmatizer.h"
#include "platform/text/PathText.h"
#include "platform/text/WordVectors.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/localpointer.h>
#include <unicode/locid.h>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

namespace orlen::LanguageTools {

namespace {

using BreakIterator = std::unique_ptr<icu::BreakIterator>;

/// A private copy of an iterator, since they cannot be shared; copying is thirty times as fast as creating.
/// Null if the library lacks the data.
BreakIterator wordBreaks()
{
    static const BreakIterator original = [] {
        UErrorCode status = U_ZERO_ERROR;
        BreakIterator made(icu::BreakIterator::createWordInstance(icu::Locale::getRoot(), status));
        return U_SUCCESS(status) ? std::move(made) : nullptr;
    }();
    return original == nullptr ? nullptr : BreakIterator(original->clone());
}

/// The library counts in 32 bits.
std::string_view countable(std::string_view text)
{
    return text.substr(0, std::numeric_limits<std::int32_t>::max());
}

enum class LetterCase { none, lower, upper };

LetterCase caseOf(UChar32 character)
{
    if (u_isUUppercase(character) != 0)
        return LetterCase::upper;
    return u_isULowercase(character) != 0 ? LetterCase::lower : LetterCase::none;
}

/// Whether it only modifies the character before it, such as the accent of a decomposed letter.
bool isMark(UChar32 character)
{
    return (U_GET_GC_MASK(character) & U_GC_M_MASK) != 0;
}

/// The installed word vectors.
const std::optional<WordVectors>& embedding()
{
    static const std::optional<WordVectors> english = []() -> std::optional<WordVectors> {
        const std::string folder = OwnProgram::sharedFolder("orlen");
        return folder.empty() ? std::nullopt : WordVectors::load(PathText::join(folder, "english.vectors"));
    }();
    return english;
}

/// The word if it has a vector, else its base form.
std::string knownForm(std::string_view word)
{
    std::string form(word);
    if (embedding()->contains(form))
        return form;
    return lemma(form).value_or(form);
}

} // namespace

std::vector<std::string> words(std::string_view text)
{
    std::vector<std::string> found;
    text = countable(text);
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUTextPointer source(
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status));
    const BreakIterator breaks = wordBreaks();
    if (breaks == nullptr || U_FAILURE(status))
        return found;
    breaks->setText(source.getAlias(), status);
    if (U_FAILURE(status))
        return found;
    std::int32_t start = breaks->first();
    for (std::int32_t end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
        if (breaks->getRuleStatus() >= UBRK_WORD_NONE_LIMIT)
            found.emplace_back(
                text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)));
        start = end;
    }
    return found;
}

std::optional<std::string> lemma(const std::string& word)
{
    static const Lemmatizer english(Places::current().dictionaries);
    return english.lemma(word);
}

std::string lowerCase(std::string_view text)
{
    std::string lower;
    icu::StringByteSink<std::string> sink(&lower);
    UErrorCode status = U_ZERO_ERROR;
    text = countable(text);
    icu::CaseMap::utf8ToLower("", 0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())),
                              sink, nullptr, status);
    return lower;
}

std::string splitCamelCase(std::string_view text)
{
    std::string split;
    split.reserve(text.size() + 8);
    text = countable(text);
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    LetterCase last = LetterCase::none;
    for (std::int32_t at = 0; at < length;) {
        const std::int32_t start = at;
        UChar32 character = 0;
        U8_NEXT(bytes, at, length, character);
        const LetterCase current = caseOf(character);
        if (current == LetterCase::upper && last == LetterCase::lower)
            split.push_back(' ');
        if (!isMark(character))
            last = current;
        split.append(text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(at - start)));
    }
    return split;
}

bool hasDecimalDigit(std::string_view text)
{
    text = countable(text);
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0; at < length;) {
        UChar32 character = 0;
        U8_NEXT(bytes, at, length, character);
        if (character >= 0 && u_isdigit(character) != 0)
            return true;
    }
    return false;
}

bool hasEmbedding()
{
    return embedding().has_value();
}

std::optional<double> distance(std::string_view a, std::string_view b)
{
    if (!hasEmbedding())
        return std::nullopt;
    return embedding()->distance(knownForm(a), knownForm(b));
}

} // namespace orlen::LanguageTools
