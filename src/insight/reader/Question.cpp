#include "insight/reader/Question.h"

#include "insight/reader/Lexicon.h"
#include "platform/text/LanguageTools.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace orlen::AskReader {

namespace {

/// The words of a question as typed and in lower case, side by side.
struct Words {
    std::vector<std::string> typed;
    std::vector<std::string> lower;
    std::vector<bool> isQuoted;

    void add(std::string_view word, bool quoted)
    {
        typed.emplace_back(word);
        lower.push_back(LanguageTools::lowerCase(word));
        isQuoted.push_back(quoted);
    }
};

constexpr std::string_view kSpaces = " \t\r\n";
constexpr std::string_view kAround = "?!.,;:()[]{}<>'`\"";

std::string_view withoutPunctuation(std::string_view word)
{
    // A leading dot marks a hidden name.
    const std::size_t start = word.find_first_not_of("?!,;:()[]{}<>'`\"");
    if (start == std::string_view::npos)
        return {};
    const std::size_t end = word.find_last_not_of(kAround);
    return end == std::string_view::npos || end < start ? std::string_view()
                                                        : word.substr(start, end - start + 1);
}

/// Typographic quotation marks and apostrophes as plain ones.
std::string withPlainQuotes(std::string_view text)
{
    struct Mark {
        std::string_view from;
        char to;
    };
    constexpr std::array kMarks{Mark{"“", '"'}, Mark{"”", '"'},  Mark{"„", '"'}, Mark{"«", '"'},
                                Mark{"»", '"'}, Mark{"’", '\''}, Mark{"‘", '\''}};
    std::string plain;
    while (!text.empty()) {
        const auto* const mark =
            std::ranges::find_if(kMarks, [&](const Mark& each) { return text.starts_with(each.from); });
        plain += mark == kMarks.end() ? text.front() : mark->to;
        text.remove_prefix(mark == kMarks.end() ? 1 : mark->from.size());
    }
    return plain;
}

Words wordsOf(std::string_view question)
{
    const std::string plain = withPlainQuotes(question);
    std::string_view rest = plain;
    Words words;
    while (true) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kSpaces), rest.size()));
        if (rest.empty())
            return words;
        const std::size_t close = rest.front() == '"' ? rest.find('"', 1) : std::string_view::npos;
        const bool isQuoted = close != std::string_view::npos && close > 1;
        const std::size_t end = isQuoted ? close + 1 : std::min(rest.find_first_of(kSpaces), rest.size());
        const std::string_view word =
            isQuoted ? rest.substr(1, close - 1) : withoutPunctuation(rest.substr(0, end));
        if (!word.empty())
            words.add(word, isQuoted);
        rest.remove_prefix(end);
    }
}

/// Takes phrases off the words, the longest known one first.
class Reading {
public:
    Reading(Words words, TimePoint now, const IsName& isName)
        : m_words(std::move(words)), m_now(now), m_isName(isName)
    {
    }

    Question question()
    {
        while (m_at < m_words.lower.size()) {
            if (!takeQuoted() && !takePeriod() && !takeSize() && !takeKnown() && !takeNumber())
                takeUnknown();
        }
        return std::move(m_question);
    }

private:
    [[nodiscard]] std::span<const std::string> rest() const { return std::span(m_words.lower).subspan(m_at); }

    void take(Phrase phrase, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            phrase.text += (i == 0 ? "" : " ") + m_words.typed[m_at + i];
        m_at += count;
        if (phrase.sense == Sense::filler)
            return;
        m_question.senses.add(phrase.sense);
        m_question.phrases.push_back(std::move(phrase));
    }

    bool takeQuoted()
    {
        if (!m_words.isQuoted[m_at])
            return false;
        take({Sense::quoted, {}, nullptr, 0, {}}, 1);
        return true;
    }

    bool takePeriod()
    {
        const auto period = periodAt(rest(), m_now);
        if (period)
            take({Sense::period, {}, nullptr, 0, period->value}, period->words);
        return period.has_value();
    }

    bool takeSize()
    {
        const auto size = sizeAt(rest());
        if (size)
            take({Sense::size, {}, nullptr, size->value, {}}, size->words);
        return size.has_value();
    }

    bool takeNumber()
    {
        const auto number = numberAt(rest());
        if (number)
            take({Sense::number, {}, nullptr, number->value, {}}, number->words);
        return number.has_value();
    }

    bool takeKnown()
    {
        for (std::size_t count = std::min(Lexicon::kLongestPhrase, rest().size()); count > 0; --count) {
            std::string phrase;
            for (const std::string& word : rest().first(count))
                phrase += (phrase.empty() ? "" : " ") + word;
            if (const Lexicon::Entry* const entry = Lexicon::find(phrase)) {
                take({entry->sense, {}, entry->subject, 0, {}}, count);
                return true;
            }
        }
        return false;
    }

    void takeUnknown()
    {
        const std::string& word = m_words.lower[m_at];
        const Lexicon::Entry* const meant = Lexicon::findMistyped(word);
        if (meant == nullptr || m_isName(word)) {
            take({}, 1);
            return;
        }
        m_question.isCorrected = true;
        take({meant->sense, {}, meant->subject, 0, {}}, 1);
    }

    Words m_words;
    TimePoint m_now;
    const IsName& m_isName;
    std::size_t m_at = 0;
    Question m_question;
};

} // namespace

const Phrase* Question::first(Sense sense) const
{
    const auto found = std::ranges::find(phrases, sense, &Phrase::sense);
    return found == phrases.end() ? nullptr : &*found;
}

const Subject* Question::subject() const
{
    const Phrase* const phrase = first(Sense::subject);
    return phrase == nullptr ? nullptr : phrase->subject;
}

std::size_t Question::position(Sense sense) const
{
    return static_cast<std::size_t>(std::ranges::find(phrases, sense, &Phrase::sense) - phrases.begin());
}

Question read(std::string_view text, TimePoint now, const IsName& isName)
{
    return Reading(wordsOf(text), now, isName).question();
}

} // namespace orlen::AskReader
