#include "insight/reader/NamedKinds.h"

#include "insight/reader/AskedName.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using Words = std::vector<std::string>;
using IsOfKind = std::function<bool(std::string_view path)>;

/// How words stand in a name: as words of it, or somewhere in it.
enum class Standing { words, parts };

bool holdsAll(std::string_view lower, const Words& words, Standing standing)
{
    constexpr std::size_t kShortestWithin = 4;
    return std::ranges::all_of(words, [&](const std::string& word) {
        const bool isPart = standing == Standing::parts && word.size() >= kShortestWithin;
        return isPart ? lower.find(word) != std::string_view::npos : holdsWord(lower, word);
    });
}

/// The listed entries, and the person's own files that no finding lists, with these words in their names.
Found withWords(const AskContext& context, const Words& words, const IsOfKind& isOfKind,
                Standing standing = Standing::words)
{
    Found found;
    std::string lower;
    const std::shared_ptr<const NameIndex> index = context.names->of(context.findings);
    for (const auto& [finding, entry] :
         standing == Standing::words ? index->withWords(words) : index->withParts(words)) {
        const Finding& one = context.findings[finding];
        const FileEntry& item = one.items[entry];
        lowerInto(lower, PathText::lastComponent(item.path));
        if (one.kind != FindingKind::trash && holdsAll(lower, words, standing) && isOfKind(item.path))
            found.hits.push_back({&one, &item});
    }
    found.hits = eachOnce(context, std::move(found.hits));
    const HomeFiles::Number count = context.home == nullptr ? 0 : context.home->fileCount();
    for (HomeFiles::Number i = 0; i < count; ++i) {
        const HomeFiles::File file = context.home->file(i);
        if (!file.isOwn || !isOfKind(file.name))
            continue;
        lowerInto(lower, file.name);
        if (!holdsAll(lower, words, standing))
            continue;
        Measured one{context.home->filePath(i), file.bytes, {}};
        one.kind = Measured::Kind::file;
        one.changed = file.changed;
        one.isOwn = true;
        if (std::ranges::none_of(found.hits, [&](const Hit& hit) { return hit.entry->path == one.path; }))
            found.measured.push_back(std::move(one));
    }
    std::ranges::stable_sort(found.hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    std::ranges::stable_sort(found.measured, std::greater{}, &Measured::bytes);
    if (!found.hits.empty() || !found.measured.empty())
        found.fit = Fit::words;
    return found;
}

/// Keeps what has the words as words of its name, if anything does.
void preferWords(Found& found, const Words& words)
{
    const auto has = [&](std::string_view path) {
        return holdsAll(lowered(PathText::lastComponent(path)), words, Standing::words);
    };
    const auto isHit = [&](const Hit& hit) { return has(hit.entry->path); };
    const auto isPlace = [&](const Measured& each) { return has(each.path); };
    if (std::ranges::none_of(found.hits, isHit) && std::ranges::none_of(found.measured, isPlace))
        return;
    std::erase_if(found.hits, [&](const Hit& hit) { return !isHit(hit); });
    std::erase_if(found.measured, [&](const Measured& each) { return !isPlace(each); });
}

/// What kind of files a question speaks of; empty if of none.
IsOfKind kindIn(const Question& question)
{
    if (const Phrase* const ending = question.first(Sense::ending))
        return [text = ending->text](std::string_view path) { return isNamed(path, text); };
    const Subject* const subject = question.subject();
    const bool isKind =
        subject != nullptr && !subject->isAnyFile && !subject->extensions.empty() && subject->kinds.empty();
    if (!isKind)
        return {};
    // "The Mint image" is more likely that of a disk.
    const bool mayBeDisk = subject->id == SubjectID::photos &&
                           plainLetters(question.first(Sense::subject)->text).starts_with("image");
    return [subject, mayBeDisk](std::string_view path) {
        return hasExtensionOf(*subject, path) ||
               (mayBeDisk && hasExtensionOf(subjectFor(SubjectID::diskImages), path));
    };
}

/// Whether the word for a kind stands right behind a name: "linux isos".
bool isKindBesideName(const Question& question)
{
    const std::vector<Phrase>& phrases = question.phrases;
    for (std::size_t i = 1; i < phrases.size(); ++i) {
        const bool isKind = phrases[i].sense == Sense::ending || phrases[i].sense == Sense::subject;
        if (isKind && !phrases[i].isJoined && phrases[i - 1].sense == Sense::unknown)
            return true;
    }
    return false;
}

} // namespace

Found ofKindNamed(const Question& question, const AskContext& context, const std::string& name)
{
    const Words words = wordsOfName(lowered(name));
    const IsOfKind isOfKind = kindIn(question);
    // A list with conditions is another question: "old tax documents".
    constexpr SenseSet kConditions{Sense::oldest, Sense::newest, Sense::biggest,  Sense::smallest,
                                   Sense::most,   Sense::period, Sense::size,     Sense::before,
                                   Sense::after,  Sense::since,  Sense::unopened, Sense::last,
                                   Sense::number, Sense::except, Sense::howMany,  Sense::hidden};
    if (question.senses.meets(kConditions) || words.empty() || name.find('/') != std::string::npos ||
        !isOfKind || PathText::extension(name).size() > 1)
        return {};
    Found found = withWords(context, words, isOfKind, Standing::parts);
    preferWords(found, words);
    return found;
}

void keepOfKind(Found& found, const Question& question, const AskContext& context, const std::string& name)
{
    const IsOfKind isOfKind = kindIn(question);
    if (!isOfKind || context.home == nullptr || !isKindBesideName(question) || isFileName(question, name))
        return;
    const HomeFiles& home = *context.home;
    const auto isOther = [&](const std::string& path) {
        const auto folder = home.folderAt(path);
        if (!folder)
            return !isOfKind(path);
        const HomeFiles::Range files = home.filesBelow(*folder);
        for (HomeFiles::Number each = files.first; each < files.last; ++each) {
            if (isOfKind(home.file(each).name))
                return false;
        }
        return true;
    };
    std::erase_if(found.hits, [&](const Hit& hit) { return isOther(hit.entry->path); });
    std::erase_if(found.measured, [&](const Measured& each) { return isOther(each.path); });
    if (found.hits.empty() && found.measured.empty())
        found.fit = Fit::none;
}

Found machineNamed(const Question& question, const AskContext& context, std::string_view name)
{
    constexpr std::string_view kWords[] = {"vm", "machine", "image", "maschine"};
    constexpr std::string_view kDisks[] = {"vdi", "vmdk", "qcow2", "vhd", "vhdx", "img"};
    Found found;
    const Words words = wordsOfName(lowered(name));
    const Subject* const subject = question.subject();
    const bool isOfMachines = subject != nullptr && subject->id == SubjectID::virtualMachines;
    const bool saysSo = words.size() > 1 && std::ranges::find(kWords, words.back()) != std::end(kWords);
    if (words.empty() || context.home == nullptr || (!saysSo && !isOfMachines))
        return found;
    const std::string& first = words.front();
    const HomeFiles& home = *context.home;
    std::string each;
    for (HomeFiles::Number i = 0; i < home.fileCount(); ++i) {
        const HomeFiles::File file = home.file(i);
        const bool isDisk = std::ranges::find(kDisks, PathText::extension(file.name)) != std::end(kDisks);
        if (!isDisk && home.folderName(file.folder) != "images")
            continue;
        lowerInto(each, file.name);
        if (!each.starts_with(first))
            continue;
        Measured one{home.filePath(i), file.bytes, {}};
        one.kind = Measured::Kind::file;
        one.changed = file.changed;
        found.measured.push_back(std::move(one));
        found.fit = Fit::whole;
    }
    return found;
}

Found holdingWordsOf(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOfNames{Sense::unknown, Sense::subject, Sense::oldest,
                                Sense::newest,  Sense::general, Sense::disk};
    constexpr std::size_t kTelling = 3;
    Words words;
    for (const Phrase& phrase : question.phrases) {
        if (kOfNames.has(phrase.sense))
            std::ranges::move(wordsOfName(lowered(phrase.text)), std::back_inserter(words));
    }
    const bool isTelling =
        words.size() >= kTelling || (words.size() == 2 && question.senses.has(Sense::unknown));
    return !isTelling ? Found() : withWords(context, words, [](std::string_view) { return true; });
}

Found ofHome(Found found, const Question& question, const AskContext& context)
{
    const bool isOfLargest = found.hits.empty() && !found.measured.empty() && found.fit <= Fit::words &&
                             std::ranges::all_of(found.measured, [](const Measured& each) {
                                 return each.kind == Measured::Kind::unknown;
                             });
    Found all = isOfLargest ? holdingWordsOf(question, context) : Found();
    return all.fit == Fit::none ? found : all;
}

Question withListedNames(const Question& question, const AskContext& context)
{
    const auto isName = [](const Phrase& phrase) {
        return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
    };
    std::vector<Phrase> phrases = question.phrases;
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        const bool isAfterName = i > 0 && phrases[i].isJoined && isName(phrases[i - 1]);
        const bool isBeforeName = i + 1 < phrases.size() && phrases[i + 1].isJoined && isName(phrases[i + 1]);
        const bool isInList = isAfterName && isBeforeName;
        if (phrases[i].sense == Sense::general && (isAfterName || isBeforeName) &&
            (isInList || !folderNamed(context, phrases[i].text).empty()))
            phrases[i].sense = Sense::unknown;
    }
    return withPhrases(question, std::move(phrases));
}

} // namespace orlen::AskReader
