#include "insight/reader/Question.h"

#include <algorithm>
#include <utility>

namespace orlen::AskReader {

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

std::size_t Question::count(Sense sense) const
{
    return static_cast<std::size_t>(std::ranges::count(phrases, sense, &Phrase::sense));
}

bool Question::hasNoKind() const
{
    return std::ranges::all_of(phrases, [](const Phrase& phrase) {
        return phrase.subject == nullptr || phrase.subject->isAnyFile ||
               phrase.subject->id == SubjectID::home;
    });
}

Question withPhrases(const Question& question, std::vector<Phrase> phrases)
{
    Question other = question;
    other.phrases = std::move(phrases);
    other.senses = {};
    for (const Phrase& phrase : other.phrases)
        other.senses.add(phrase.sense);
    return other;
}

} // namespace orlen::AskReader
