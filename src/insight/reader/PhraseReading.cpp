#include "insight/reader/Merging.h"
#include "insight/reader/Question.h"
#include "insight/reader/WordForms.h"
#include "platform/text/LanguageTools.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace orlen::AskReader {

namespace {

/// Takes phrases off the words, the longest known one first.
class Reading {
public:
    Reading(std::vector<Word> words, const Lexicon& lexicon, TimePoint now, const IsName& isName, Typos typos)
        : m_words(std::move(words)), m_lexicon(lexicon), m_now(now), m_isName(isName), m_typos(typos)
    {
        for (const Word& word : m_words)
            m_plain.push_back(typos == Typos::corrected ? asMeant(word) : word.plain);
        m_question.lexicon = &lexicon;
        m_question.words = m_words.size();
    }

    Question question()
    {
        while (m_at < m_words.size()) {
            if (!takeQuoted() && !takeSign() && !takeEnding() && !takePeriod() && !takeSince() &&
                !takeSize() && !takeKnown(2) && !takeOrdinal() && !takeKnown(1) && !takeShare() &&
                !takeNumber())
                takeUnknown();
        }
        if (m_question.phrases.empty() && m_question.asksHow) {
            m_question.phrases.push_back({Sense::how, {}, nullptr, 0, {}});
            m_question.senses.add(Sense::how);
        }
        return std::move(m_question);
    }

private:
    /// Of something that was spoken of.
    static constexpr SenseSet kDone{Sense::remove, Sense::uninstall, Sense::undo,
                                    Sense::keep,   Sense::makeRoom,  Sense::safe};

    [[nodiscard]] std::span<const std::string> rest() const { return std::span(m_plain).subspan(m_at); }

    /// Of a typing error in a word of a phrase, the word that was meant.
    std::string asMeant(const Word& word)
    {
        std::string meant = word.isQuoted ? word.plain : unswapped(m_lexicon, word.plain, m_isName);
        if (!word.isQuoted && meant == word.plain && !m_lexicon.hasCompounds())
            meant = respelt(m_lexicon, word.plain, m_isName);
        if (meant != word.plain)
            ++m_question.corrected;
        return meant;
    }

    void take(Phrase phrase, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            phrase.text += (i == 0 ? "" : " ") + m_words[m_at + i].typed;
        const bool endsClause = m_words[m_at + count - 1].endsClause;
        m_at += count;
        ++m_question.pieces;
        if (phrase.sense == Sense::filler)
            takeRequest();
        const bool isFirst = m_question.phrases.empty();
        const bool isPronoun = holdsPronoun(phrase);
        m_question.isBackward = m_question.isBackward || isPronoun;
        if (phrase.sense == Sense::filler && count == 1 && isPronounHere(endsClause))
            phrase.sense = Sense::backward;
        m_question.goesOn = phrase.sense == Sense::also && !isFirst;
        switch (phrase.sense) {
        case Sense::filler:
            break;
        case Sense::also:
            m_question.isContinued = m_question.isContinued || isFirst;
            m_isJoined = true;
            break;
        case Sense::only:
            m_question.isContinued = true;
            break;
        case Sense::backward:
            pointBack(isFirst);
            break;
        case Sense::therein:
            m_question.isTherein = true;
            pointBack(isFirst);
            break;
        case Sense::how:
            m_question.asksHow = true;
            break;
        default:
            phrase.isJoined = m_isJoined && !isFirst;
            phrase.isBackward = std::exchange(m_pointsBack, false) || isPronoun;
            m_isJoined = false;
            m_question.senses.add(phrase.sense);
            if (phrase.sense == Sense::ofOrlen || phrase.sense == Sense::canOrlen)
                m_behindOrlen = m_question.pieces + 1;
            m_question.phrases.push_back(std::move(phrase));
        }
        m_isJoined = m_isJoined || endsClause;
    }

    /// "It": of the clause that it stands in.
    void pointBack(bool isFirst)
    {
        m_question.isBackward = true;
        if (isFirst || m_isJoined)
            m_pointsBack = true;
        else
            m_question.phrases.back().isBackward = true;
    }

    /// "Las" of "si las borro", "die" at the end of "wie groß ist die?": an article that stands for a thing.
    /// Called with the next word at hand.
    [[nodiscard]] bool isPronounHere(bool endsClause) const
    {
        if (!m_lexicon.isClitic(m_plain[m_at - 1]))
            return false;
        if (endsClause || m_at == m_plain.size())
            return m_at > 1;
        const Lexicon::Entry* const next = m_lexicon.find(m_plain[m_at]);
        // "Wie groß sind die zusammen"
        if (next != nullptr && next->sense == Sense::filler && m_at + 1 == m_plain.size())
            return m_at > 1;
        return next != nullptr && kDone.has(next->sense) && !m_plain[m_at].ends_with("ion");
    }

    /// "Borrarlas", "cancellarle": the verb with its pronoun in one word.
    [[nodiscard]] bool holdsPronoun(const Phrase& phrase) const
    {
        return kDone.has(phrase.sense) && !m_lexicon.withoutClitic(m_plain[m_at - 1]).empty();
    }

    /// "Can you find", "do you have": a request or a plain question, and not what Orlen does.
    void takeRequest()
    {
        std::vector<Phrase>& phrases = m_question.phrases;
        // In German, the verb stands at the end.
        if (m_behindOrlen != m_question.pieces || m_lexicon.hasCompounds())
            return;
        phrases.pop_back();
    }

    bool takeQuoted()
    {
        if (!m_words[m_at].isQuoted)
            return false;
        // What does "Review" mean?
        constexpr SenseSet kRatings{Sense::safe, Sense::review, Sense::keep};
        const Lexicon::Entry* const entry = m_lexicon.find(m_plain[m_at]);
        const std::optional<Sense> label = ratingCalled(m_plain[m_at]);
        if (label) {
            take({*label, {}, nullptr, 0, {}}, 1);
            return true;
        }
        const bool isSystem =
            entry != nullptr && entry->subject != nullptr && entry->subject->id == SubjectID::system;
        if (entry != nullptr && (isSystem || kRatings.has(entry->sense))) {
            take({entry->sense, {}, entry->subject, 0, {}}, 1);
            return true;
        }
        take({Sense::quoted, {}, nullptr, 0, {}}, 1);
        return true;
    }

    /// "Can I delete a": the one letter at the end is a name.
    [[nodiscard]] bool isLetterToGo() const
    {
        constexpr SenseSet kToGo{Sense::remove, Sense::safe};
        const std::string& word = m_plain[m_at];
        return m_at + 1 == m_plain.size() && word.size() == 1 && word.front() >= 'a' && word.front() <= 'z' &&
               !m_question.phrases.empty() && kToGo.has(m_question.phrases.back().sense);
    }

    /// "Is % safe": a sign that belongs to no figure stands for a name, if it stands for anything.
    bool takeSign()
    {
        const std::string& word = m_plain[m_at];
        if (isLetterToGo()) {
            take({Sense::unknown, {}, nullptr, 0, {}}, 1);
            return true;
        }
        constexpr std::string_view kSigns = "%$#@^~\\*";
        constexpr SenseSet kOfAmounts{Sense::howMuch, Sense::howBig, Sense::howMany, Sense::number,
                                      Sense::full,    Sense::free,   Sense::used};
        if (word.empty() || word.find_first_not_of(kSigns) != std::string::npos || word == "~")
            return false;
        const auto isFigure = [](const std::string& each) {
            return each.front() >= '0' && each.front() <= '9';
        };
        const bool isBesideFigure = (m_at > 0 && isFigure(m_plain[m_at - 1])) ||
                                    (m_at + 1 < m_plain.size() && isFigure(m_plain[m_at + 1]));
        const Lexicon::Entry* const next =
            m_at + 1 < m_plain.size() ? m_lexicon.find(m_plain[m_at + 1]) : nullptr;
        if (isBesideFigure || m_question.senses.meets(kOfAmounts) ||
            (next != nullptr && kOfAmounts.has(next->sense)))
            return false;
        take({Sense::unknown, {}, nullptr, 0, {}}, 1);
        return true;
    }

    /// "mp3", "zip files", ".img": of file names, beside the files.
    bool takeEnding()
    {
        const std::string& word = m_plain[m_at];
        const auto isFiles = [&](std::size_t at) {
            const Lexicon::Entry* const entry = at < m_plain.size() ? m_lexicon.find(m_plain[at]) : nullptr;
            return entry != nullptr && entry->subject != nullptr && entry->subject->isAnyFile;
        };
        const bool isBesideFiles = isFiles(m_at + 1) || (m_at > 0 && isFiles(m_at - 1));
        const std::string ending = endingIn(word);
        // "rm -rf"
        const Lexicon::Entry* const both =
            m_at + 1 < m_plain.size() ? m_lexicon.find(word + " " + m_plain[m_at + 1]) : nullptr;
        const bool isPhrase = both != nullptr && both->subject == nullptr;
        if (ending.empty() || isPhrase)
            return false;
        const bool isDotted = word.starts_with('.') || word.starts_with("*.");
        if (isDotted ? !isBesideFiles && !isEndingOfKind(ending) : !isKnownEnding(ending))
            return false;
        take({Sense::ending, {}, nullptr, 0, {}}, 1);
        m_question.phrases.back().text = ending;
        if (!isBesideFiles)
            addFiles();
        return true;
    }

    void addFiles()
    {
        m_question.phrases.push_back({Sense::subject, {}, &subjectFor(SubjectID::files)});
        m_question.senses.add(Sense::subject);
    }

    bool takePeriod()
    {
        constexpr SenseSet kBeforeDates{Sense::since,  Sense::after, Sense::before,
                                        Sense::inside, Sense::above, Sense::below};
        const bool isExpected =
            !m_question.phrases.empty() && kBeforeDates.has(m_question.phrases.back().sense);
        const auto period = periodAt(rest(), m_lexicon, m_now, isExpected);
        if (period)
            take({Sense::period, {}, nullptr, 0, period->value}, period->words);
        return period.has_value();
    }

    /// "Dal 3 maggio"; of "dal disco", the word says nothing.
    bool takeSince()
    {
        const bool isOfDate = m_lexicon.figure(Figure::fromDate, m_plain[m_at]).has_value() &&
                              periodAt(rest().subspan(1), m_lexicon, m_now, false);
        if (isOfDate)
            take({Sense::since, {}, nullptr, 0, {}}, 1);
        return isOfDate;
    }

    bool takeSize()
    {
        const auto size = sizeAt(rest(), m_lexicon);
        if (size)
            take({Sense::size, {}, nullptr, size->value, {}}, size->words);
        return size.has_value();
    }

    bool takeOrdinal()
    {
        const auto number = m_lexicon.figure(Figure::ordinal, m_plain[m_at]);
        if (number)
            take({Sense::ordinal, {}, nullptr, static_cast<std::int64_t>(*number), {}}, 1);
        return number.has_value();
    }

    /// "67%", which an answer tells better.
    bool takeShare()
    {
        const std::string& word = m_plain[m_at];
        if (!word.ends_with('%') || word.size() == 1 ||
            word.find_first_not_of("0123456789.,%") != std::string::npos)
            return false;
        take({Sense::filler, {}, nullptr, 0, {}}, 1);
        return true;
    }

    bool takeNumber()
    {
        const auto number = numberAt(rest(), m_lexicon);
        if (number)
            take({Sense::number, {}, nullptr, number->value, {}}, number->words);
        return number.has_value();
    }

    /// The longest phrase of at least so many words.
    bool takeKnown(std::size_t least)
    {
        // No phrase goes on behind a comma.
        std::size_t most = 1;
        while (most < std::min(Lexicon::kLongestPhrase, rest().size()) &&
               !m_words[m_at + most - 1].endsClause)
            ++most;
        for (std::size_t count = most; count >= least; --count) {
            std::string phrase = m_plain[m_at];
            for (const std::string& word : rest().subspan(1, count - 1))
                phrase += " " + word;
            const Lexicon::Entry* const accented = count == 1 ? accentedEntry() : nullptr;
            if (const Lexicon::Entry* const entry = accented != nullptr ? accented : m_lexicon.find(phrase)) {
                take({entry->sense, {}, entry->subject, 0, {}}, count);
                // "Text files": the only ending that has a phrase.
                if (entry->sense == Sense::ending) {
                    m_question.phrases.back().text = "txt";
                    addFiles();
                }
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] const Lexicon::Entry* accentedEntry() const
    {
        const Word& word = m_words[m_at];
        return word.typed == word.plain ? nullptr
                                        : m_lexicon.findAccented(LanguageTools::lowerCase(word.typed));
    }

    bool takeCompound(const std::string& word)
    {
        const auto parts = compound(m_lexicon, word);
        if (!parts || m_isName(word))
            return false;
        const auto at = static_cast<std::ptrdiff_t>(m_at);
        if (m_words[m_at].typed.size() == word.size())
            m_words[m_at].typed.resize(parts->first.size());
        m_plain[m_at] = parts->first;
        m_plain.insert(m_plain.begin() + at + 1, parts->second);
        const Word behind{{}, parts->second, false, m_words[m_at].endsClause};
        m_words[m_at].endsClause = false;
        m_words.insert(m_words.begin() + at + 1, behind);
        return true;
    }

    /// "Needed", "tirarlas": the form of a known word.
    bool takeForm(const std::string& word)
    {
        const Lexicon::Entry* const inflected = inflectedWord(m_lexicon, word);
        const Lexicon::Entry* const joined = inflected != nullptr ? nullptr : verbWithPronoun(word);
        if ((inflected == nullptr && joined == nullptr) || m_isName(word))
            return false;
        take(inflected != nullptr ? Phrase{inflected->sense, {}, inflected->subject, 0, {}}
                                  : Phrase{joined->sense, {}, nullptr, 0, {}},
             1);
        return true;
    }

    [[nodiscard]] const Lexicon::Entry* verbWithPronoun(const std::string& word) const
    {
        const Lexicon::Entry* const verb = wordBeforeClitic(m_lexicon, word);
        return verb != nullptr && kDone.has(verb->sense) ? verb : nullptr;
    }

    void takeUnknown()
    {
        const std::string word = m_plain[m_at];
        // Hidden names and paths are no words.
        if (word.starts_with('.') || word.find('/') != std::string::npos) {
            take({Sense::unknown, {}, nullptr, 0, {}}, 1);
            return;
        }
        if (takeCompound(word) || takeForm(word))
            return;
        const Lexicon::Entry* const meant =
            m_typos == Typos::corrected ? m_lexicon.findMistyped(word) : nullptr;
        if (meant == nullptr || isRightAsItStands(m_lexicon, word, m_isName)) {
            take({isAdverb(word) && !m_isName(word) ? Sense::filler : Sense::unknown, {}, nullptr, 0, {}}, 1);
            return;
        }
        ++m_question.corrected;
        take({meant->sense, {}, meant->subject, 0, {}}, 1);
    }

    std::vector<Word> m_words;
    const Lexicon& m_lexicon;
    TimePoint m_now;
    const IsName& m_isName;
    Typos m_typos;
    std::vector<std::string> m_plain;
    std::size_t m_at = 0;
    bool m_isJoined = false;
    bool m_pointsBack = false;     ///< a word that points back stands before the next phrase
    std::size_t m_behindOrlen = 0; ///< the piece that follows "do you"
    Question m_question;
};

} // namespace

Question read(const std::vector<Word>& words, const Lexicon& lexicon, TimePoint now, const IsName& isName,
              Typos typos)
{
    return merged(Reading(wordsIn(lexicon, words), lexicon, now, isName, typos).question());
}

} // namespace orlen::AskReader
