#include "insight/reader/SubjectReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/FindingLists.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace orlen::AskReader {

namespace {

struct Amount {
    std::int64_t count = 0;
    std::int64_t bytes = 0;
};

/// The files of a kind that the scan lists, each once.
Amount listedFiles(const Subject& subject, const AskContext& context)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (hasExtensionOf(subject, entry.path))
                hits.push_back({&finding, &entry});
        }
    }
    Amount amount;
    for (const Hit& hit : eachOnce(context, std::move(hits))) {
        ++amount.count;
        amount.bytes = checkedAdd(amount.bytes, hit.entry->size);
    }
    return amount;
}

void addCategory(Lines& lines, OrlenCategory category, const StorageBreakdown& breakdown)
{
    const auto found = breakdown.cats.find(category);
    if (found != breakdown.cats.end())
        lines.texts.push_back({InsightTexts::kCategoryTakes,
                               {{"category", within(label(category))}, {"size", Bytes{found->second}}}});
}

void addFolder(Lines& lines, const Subject& subject, const AskContext& context)
{
    const std::string folder = folderOf(subject);
    const auto bytes = folder.empty() ? std::nullopt : folderSize(context, folder);
    if (bytes)
        lines.texts.push_back(
            {InsightTexts::kFolderTakes, {{"folder", tilde(folder)}, {"size", Bytes{*bytes}}}});
}

void addFiles(Lines& lines, const Subject& subject, const AskContext& context)
{
    if (subject.extensions.empty())
        return;
    if (context.home != nullptr) {
        Question files;
        files.phrases.push_back({Sense::subject, {}, &subject});
        if (const auto answer = countOfFiles(withPhrases(files, files.phrases), context))
            lines.texts.push_back(answer->text);
        return;
    }
    if (context.findings.empty())
        return;
    const Amount amount = listedFiles(subject, context);
    const Place files{"files", within(subject.name)};
    if (amount.count == 0)
        lines.texts.push_back({InsightTexts::kNoneSuggested, {files}});
    else
        lines.texts.push_back(
            {InsightTexts::kSomeListed, {files, {"count", amount.count}, {"size", Bytes{amount.bytes}}}});
}

/// What the question is about: not "files" if it says more. Null if it is about one kind within a folder.
const Subject* mainSubject(const Question& question)
{
    const Subject* main = nullptr;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.subject == nullptr || phrase.subject->isAnyFile)
            continue;
        if (main != nullptr && main != phrase.subject)
            return nullptr;
        main = phrase.subject;
    }
    return main != nullptr ? main : question.subject();
}

/// Why the folder itself stays; empty if it is not protected.
Message saidProtection(const std::string& folder, const AskContext& context)
{
    const Protection protection =
        folder.empty() || !context.protection ? Protection::none : context.protection(folder);
    if (protection == Protection::none)
        return {};
    return {InsightTexts::kFolderIsProtected,
            {{"folder", tilde(folder)},
             {"group", within(label(protection))},
             {"reason", within(reason(protection))}}};
}

/// "Can I delete my documents" may mean the folder: that it stays, and which files the scan lists.
std::optional<Answer> removingKind(const Question& question, const AskContext& context,
                                   const std::string& folder)
{
    const Message shield = saidProtection(folder, context);
    if (shield.empty() || question.senses.meets({Sense::what, Sense::inside}))
        return std::nullopt;
    std::optional<Answer> answer = listOfFiles(question, context);
    if (answer)
        answer->text = AskText::lines({shield, answer->text});
    return answer;
}

bool isOnlyKinds(const Subject& subject)
{
    return !subject.kinds.empty() && subject.folder.empty() && !subject.category;
}

} // namespace

std::optional<std::int64_t> folderSize(const AskContext& context, const std::string& folder)
{
    if (const auto number = context.home == nullptr ? std::nullopt : context.home->folderAt(folder))
        return context.home->folder(*number).bytes;
    std::int64_t bytes = 0;
    bool isKnown = false;
    for (const CategoryFolder& each : context.breakdown.folders) {
        isKnown = isKnown || each.path == folder;
        if (PathText::isAtOrBelow(each.path, folder))
            bytes = checkedAdd(bytes, each.bytes);
    }
    if (isKnown || context.folders.empty())
        return isKnown ? std::optional(bytes) : std::nullopt;
    const std::vector<FolderSize>& measured = context.folders.back().folders;
    const auto found = std::ranges::find(measured, folder, &FolderSize::path);
    return found == measured.end() ? std::nullopt : std::optional(found->bytes);
}

std::optional<Answer> sizeOfSubject(const Question& question, const AskContext& context)
{
    const Subject* const main = mainSubject(question);
    if (main == nullptr)
        return std::nullopt;
    const Subject& subject = *main;
    if (auto answer = recognisedFiles(subject, context))
        return answer;
    if (subject.id == SubjectID::similarPhotos && !context.findings.empty())
        return similarPhotos(subject, context);
    Lines lines;
    addFolder(lines, subject, context);
    if (subject.category)
        addCategory(lines, *subject.category, context.breakdown);
    addFiles(lines, subject, context);
    addFindings(lines, subject, context);
    if (lines.texts.empty() && isOnlyKinds(subject))
        return nothingFound(subject, context);
    return lines.answer();
}

std::optional<Answer> whatSubjectIs(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    if (subject.kinds.size() != 1 || !subject.folder.empty())
        return std::nullopt;
    Lines lines;
    lines.texts.emplace_back(meta(subject.kinds.front()).explanation);
    if (auto files = recognisedFiles(subject, context)) {
        files->text = AskText::lines({lines.texts.front(), files->text});
        return files;
    }
    if (subject.id == SubjectID::similarPhotos && !context.findings.empty())
        return similarPhotos(subject, context);
    addFindings(lines, subject, context);
    for (const Finding* const finding : findingsOf(subject, context))
        addItems(lines, *finding);
    return lines.ids.empty() ? std::nullopt : lines.answer();
}

std::optional<Answer> removingSubject(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    const std::string folder = folderOf(subject);
    if (!subject.extensions.empty())
        return removingKind(question, context, folder);
    if (subject.isAnyFile)
        return std::nullopt;
    // What may go from a folder is another question than whether the folder may go.
    if (!folder.empty() && question.senses.meets({Sense::what, Sense::inside}))
        return std::nullopt;
    Lines lines;
    if (const Message shield = saidProtection(folder, context); !shield.empty())
        lines.texts.push_back(shield);
    if (subject.category == OrlenCategory::system)
        lines.texts.push_back(
            {InsightTexts::kSystemIsProtected, {{"reason", within(reason(Protection::systemFolders))}}});
    addFindings(lines, subject, context);
    if (subject.id == SubjectID::trash)
        lines.texts.emplace_back(InsightTexts::kTrashIsYours);
    else if (lines.texts.empty() && isOnlyKinds(subject))
        return nothingFound(subject, context);
    else if (!lines.ids.empty())
        lines.texts.emplace_back(InsightTexts::kMovesTicked);
    return lines.answer();
}

std::optional<Answer> comparison(const Question& question, const AskContext& context)
{
    if (question.count(Sense::subject) != 2)
        return std::nullopt;
    std::vector<Message> lines;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.subject == nullptr)
            continue;
        const auto size = sizeOfSubject(withPhrases(question, {phrase}), context);
        if (!size)
            return std::nullopt;
        lines.push_back(size->text);
    }
    return Answer{AskText::lines(std::move(lines)), {}};
}

std::optional<Answer> neverOpened(const Question& question, const AskContext& context)
{
    Phrase old = *question.first(Sense::subject);
    if (!old.subject->isAnyFile && old.subject->id != SubjectID::oldFiles)
        return std::nullopt;
    old.subject = &subjectFor(SubjectID::oldFiles);
    return sizeOfSubject(withPhrases(question, {std::move(old)}), context);
}

Answer aboutFinding(const Finding& finding)
{
    Lines lines;
    addRated(lines, finding);
    lines.texts.emplace_back(finding.explanation);
    lines.ids.emplace_back(finding.id());
    return *lines.answer();
}

std::optional<Answer> whyNotSuggested(const Question& question, const AskContext& context)
{
    const Subject* const kind = question.subject();
    return kind->isProgram || kind->isAnyFile ? std::nullopt : removingSubject(question, context);
}

} // namespace orlen::AskReader
