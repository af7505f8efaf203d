#include "insight/reader/CopyReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NameReplies.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"
#include "scan/walk/WalkVisitor.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// "report (1)", "report copy", "Kopie von report" without what says that it is a copy; in lower case.
std::string withoutCopyMark(std::string stem)
{
    constexpr std::string_view kMarks[] = {"copy", "kopie", "copie", "copia", "backup"};
    constexpr std::string_view kOf[] = {"of ", "von ", "de ", "di "};
    constexpr std::string_view kJoints = " -_.";
    const auto trim = [&] { stem.erase(stem.find_last_not_of(kJoints) + 1); };
    for (const std::string_view mark : kMarks) {
        for (const std::string_view joint : kOf) {
            const std::size_t length = mark.size() + 1 + joint.size();
            if (stem.size() > length && stem.starts_with(mark) && stem[mark.size()] == ' ' &&
                std::string_view(stem).substr(mark.size() + 1).starts_with(joint))
                stem.erase(0, length);
        }
    }
    const std::size_t open = stem.ends_with(')') ? stem.rfind('(') : std::string::npos;
    if (open != std::string::npos && open > 0 &&
        stem.find_first_not_of("0123456789", open + 1) == stem.size() - 1) {
        stem.erase(open);
        trim();
    }
    for (const std::string_view mark : kMarks) {
        const bool isMarked = stem.size() > mark.size() + 1 && stem.ends_with(mark) &&
                              kJoints.find(stem[stem.size() - mark.size() - 1]) != std::string_view::npos;
        if (isMarked) {
            stem.erase(stem.size() - mark.size());
            trim();
        }
    }
    return stem;
}

/// What a question calls a file.
class Called {
public:
    Called(const Question& question, const std::string& name)
        : m_kind(kindIn(question)), m_lower(lowered(name)), m_words(wordsOfName(m_lower)),
          m_isFile(isFileName(question, name) && PathText::extension(name).size() > 1),
          m_stem(withoutCopyMark(std::string(PathText::stem(m_lower))))
    {
    }

    /// Whether it may be the file or a copy of it.
    [[nodiscard]] bool fits(std::string_view lowerName) const
    {
        if (!m_isFile)
            return !m_words.empty() && (m_kind == nullptr || hasExtensionOf(*m_kind, lowerName)) &&
                   std::ranges::all_of(m_words,
                                       [&](const std::string& word) { return holdsWord(lowerName, word); });
        return lowerName.starts_with(m_stem.substr(0, 1)) &&
               PathText::extension(lowerName) == PathText::extension(m_lower) &&
               withoutCopyMark(std::string(PathText::stem(lowerName))) == m_stem;
    }

    /// Whether a duplicate with this name and note is one of it.
    [[nodiscard]] bool isListed(const FileEntry& entry) const
    {
        const std::string name = lowered(PathText::lastComponent(entry.path));
        const std::string note = lowered(noteOf(entry).base());
        return m_isFile ? name == m_lower || note.find(m_lower) != std::string::npos
                        : fits(name) || (m_kind == nullptr && fits(note));
    }

private:
    /// What kind of files the question speaks of; null if of none.
    static const Subject* kindIn(const Question& question)
    {
        const auto phrase = std::ranges::find_if(question.phrases, [](const Phrase& each) {
            return each.subject != nullptr && !each.subject->extensions.empty() &&
                   each.subject->kinds.empty();
        });
        return phrase == question.phrases.end() ? nullptr : phrase->subject;
    }

    const Subject* m_kind;
    std::string m_lower;
    std::vector<std::string> m_words;
    bool m_isFile;
    std::string m_stem;
};

std::vector<Hit> listedCopies(const AskContext& context, const Called& called)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        if (finding.kind != FindingKind::duplicates && finding.kind != FindingKind::photoDuplicates)
            continue;
        for (const FileEntry& entry : finding.items) {
            if (called.isListed(entry))
                hits.push_back({&finding, &entry});
        }
    }
    return eachOnce(context, std::move(hits));
}

/// The person's own files that fit, those first that are named alike and take the same space.
struct Lookalikes {
    Found alike;
    bool isThere = false; ///< whether any file fits
};

/// Keeps those that take the same space as another. What is allocated for the same bytes may differ by
/// blocks.
void keepAlike(std::vector<HomeFiles::Number>& numbers, const HomeFiles& home)
{
    constexpr std::int64_t kBlocks = 8'192;
    const auto bytesOf = [&](HomeFiles::Number each) { return home.file(each).bytes; };
    std::ranges::stable_sort(numbers, {}, bytesOf);
    std::vector<HomeFiles::Number> alike;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const std::int64_t bytes = bytesOf(numbers[i]);
        if ((i > 0 && bytes - bytesOf(numbers[i - 1]) <= kBlocks) ||
            (i + 1 < numbers.size() && bytesOf(numbers[i + 1]) - bytes <= kBlocks))
            alike.push_back(numbers[i]);
    }
    numbers = std::move(alike);
}

Lookalikes lookalikes(const HomeFiles& home, const Called& called)
{
    using Key = std::pair<std::string, std::string>;
    std::map<Key, std::vector<HomeFiles::Number>> groups;
    std::string lower;
    for (HomeFiles::Number i = 0; i < home.fileCount(); ++i) {
        const HomeFiles::File file = home.file(i);
        if (!file.isOwn)
            continue;
        lowerInto(lower, file.name);
        if (called.fits(lower))
            groups[{withoutCopyMark(std::string(PathText::stem(lower))),
                    std::string(PathText::extension(lower))}]
                .push_back(i);
    }
    Lookalikes found{{}, !groups.empty()};
    for (auto& [key, numbers] : groups) {
        keepAlike(numbers, home);
        for (const HomeFiles::Number number : numbers) {
            const HomeFiles::File file = home.file(number);
            Measured one{home.filePath(number), file.bytes, {}};
            one.kind = Measured::Kind::file;
            one.changed = file.changed;
            found.alike.measured.push_back(std::move(one));
        }
    }
    return found;
}

} // namespace

namespace {

/// "Duplicates", "twice"; null if the question asks for anything else. "Did I download it twice" is not about
/// the folder.
const Subject* copiesIn(const Question& question)
{
    const Subject* copies = nullptr;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.subject == nullptr)
            continue;
        const SubjectID id = phrase.subject->id;
        const bool isDeed =
            id == SubjectID::downloads && !question.senses.meets({Sense::inside, Sense::folder});
        // "Two copies of the sports day film"
        const bool isKind = !phrase.subject->extensions.empty() && phrase.subject->kinds.empty();
        if (isDeed || isKind)
            continue;
        if (copies != nullptr || (id != SubjectID::duplicates && id != SubjectID::similarPhotos))
            return nullptr;
        copies = phrase.subject;
    }
    return copies;
}

Question withoutSubjects(const Question& question)
{
    std::vector<Phrase> phrases = question.phrases;
    std::erase_if(phrases, [](const Phrase& phrase) { return phrase.subject != nullptr; });
    return withPhrases(question, std::move(phrases));
}

} // namespace

std::optional<Answer> aboutCopies(const Question& question, const AskContext& context)
{
    const AskedName asked = nameIn(question);
    if (copiesIn(question) == nullptr || context.home == nullptr || asked.name.empty() ||
        !asked.place.empty())
        return std::nullopt;
    const std::string name = PathText::forDisplay(asked.name);
    const Called called(question, asked.name);
    Found listed;
    listed.hits = listedCopies(context, called);
    if (!listed.hits.empty())
        return listedHits(context, listed, name);
    const Lookalikes found = lookalikes(*context.home, called);
    if (!found.isThere)
        return std::nullopt;
    const Message notListed{InsightTexts::kNoCopyListed,
                            {{"name", name}, {"size", Bytes{WalkVisitor::kCandBytes}}}};
    if (found.alike.measured.empty()) {
        // "Can I delete it, or is it the only copy" asks for both.
        std::optional<Answer> rated = question.senses.meets({Sense::remove, Sense::safe, Sense::keep})
                                          ? aboutName(withoutSubjects(question), context)
                                          : std::nullopt;
        if (!rated)
            return Answer{notListed, {}};
        rated->text = AskText::lines({std::move(rated->text), notListed});
        return rated;
    }
    const auto count = std::ssize(found.alike.measured);
    Answer answer = listedBelow({InsightTexts::kNamedAlike, {{"count", count}}}, context, found.alike);
    answer.text = AskText::lines({std::move(answer.text), notListed});
    return answer;
}

} // namespace orlen::AskReader
