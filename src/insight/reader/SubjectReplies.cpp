#include "insight/reader/SubjectReplies.h"

#include "insight/AskText.h"
#include "insight/reader/Names.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <utility>

namespace orlen::AskReader {

namespace {

/// Lines with links to the findings they are about.
struct Lines {
    std::vector<std::string> texts;
    std::vector<std::string> ids;

    [[nodiscard]] std::optional<Answer> answer() const
    {
        if (texts.empty())
            return std::nullopt;
        return Answer{AskText::joined(texts, "\n"), ids};
    }
};

struct Amount {
    std::size_t count = 0;
    std::int64_t bytes = 0;
};

std::string counted(const Amount& amount)
{
    return std::to_string(amount.count) + (amount.count == 1 ? " item, " : " items, ") +
           byteCount(amount.bytes);
}

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
    for (const Hit& hit : eachOnce(std::move(hits))) {
        ++amount.count;
        amount.bytes = checkedAdd(amount.bytes, hit.entry->size);
    }
    return amount;
}

/// Bytes of a folder with everything in it; nothing if the breakdown doesn't know it.
std::optional<std::int64_t> folderSize(const StorageBreakdown& breakdown, std::string_view folder)
{
    std::int64_t bytes = 0;
    bool isKnown = false;
    for (const CategoryFolder& each : breakdown.folders) {
        isKnown = isKnown || each.path == folder;
        if (PathText::isAtOrBelow(each.path, folder))
            bytes = checkedAdd(bytes, each.bytes);
    }
    return isKnown ? std::optional(bytes) : std::nullopt;
}

void addCategory(Lines& lines, OrlenCategory category, const StorageBreakdown& breakdown)
{
    const auto found = breakdown.cats.find(category);
    if (found != breakdown.cats.end())
        lines.texts.push_back("The category " + std::string(label(category)) + " takes " +
                              byteCount(found->second) + '.');
}

void addFolder(Lines& lines, const Subject& subject, const StorageBreakdown& breakdown)
{
    const std::string folder = folderOf(subject);
    const auto bytes = folder.empty() ? std::nullopt : folderSize(breakdown, folder);
    if (bytes)
        lines.texts.push_back("The folder " + tilde(folder) + " takes " + byteCount(*bytes) + '.');
}

std::vector<const Finding*> findingsOf(const Subject& subject, const AskContext& context)
{
    std::vector<const Finding*> findings;
    for (const Finding& finding : context.findings) {
        if (std::ranges::find(subject.kinds, finding.kind) != subject.kinds.end())
            findings.push_back(&finding);
    }
    return findings;
}

void addFindings(Lines& lines, const Subject& subject, const AskContext& context)
{
    for (const Finding* const finding : findingsOf(subject, context)) {
        lines.texts.push_back(finding->title + ": " + byteCount(finding->totalSize()) + " — rated " +
                              std::string(label(finding->rating)) + ". " + finding->reason + " (" +
                              std::to_string(finding->items.size()) +
                              (finding->items.size() == 1 ? " item)" : " items)"));
        lines.ids.emplace_back(finding->id());
    }
}

void addFiles(Lines& lines, const Subject& subject, const AskContext& context)
{
    if (subject.extensions.empty() || context.findings.empty())
        return;
    const Amount amount = listedFiles(subject, context);
    const std::string name(subject.name);
    lines.texts.push_back(amount.count == 0 ? "The last scan suggests no " + name + " for a clean-up."
                                            : "Of " + name + " the last scan lists " + counted(amount) +
                                                  "; it doesn't list those it sees no reason to move.");
}

/// For kinds of which the scan has found nothing.
Answer nothingFound(const Subject& subject, const AskContext& context)
{
    if (context.findings.empty())
        return {std::string(AskText::kNoScan), {}};
    return {"The last scan found no " + std::string(subject.name) + " to clean up.", {}};
}

bool isOnlyKinds(const Subject& subject)
{
    return !subject.kinds.empty() && subject.folder.empty() && !subject.category;
}

} // namespace

std::optional<Answer> sizeOfSubject(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    Lines lines;
    addFolder(lines, subject, context.breakdown);
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
    addFindings(lines, subject, context);
    return lines.ids.empty() ? std::nullopt : lines.answer();
}

std::optional<Answer> removingSubject(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    const std::string folder = folderOf(subject);
    // What may go from a folder is another question than whether the folder may go.
    if (!folder.empty() && question.senses.meets({Sense::what, Sense::inside}))
        return std::nullopt;
    Lines lines;
    if (!folder.empty() && context.protection) {
        if (const Protection protection = context.protection(folder); protection != Protection::none)
            lines.texts.push_back(tilde(folder) + " itself is protected, because it belongs to “" +
                                  std::string(label(protection)) + "”: " + std::string(reason(protection)));
    }
    if (subject.category == OrlenCategory::system)
        lines.texts.push_back("System data is protected: " + std::string(reason(Protection::systemFolders)) +
                              " Orlen leaves it alone.");
    addFindings(lines, subject, context);
    if (lines.texts.empty() && isOnlyKinds(subject))
        return nothingFound(subject, context);
    if (!lines.ids.empty())
        lines.texts.emplace_back("A clean-up moves what you tick to the Trash, and History can put it back.");
    return lines.answer();
}

std::optional<Answer> freedBySubject(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    const std::vector<const Finding*> findings = findingsOf(subject, context);
    if (subject.kinds.empty())
        return std::nullopt;
    if (findings.empty())
        return nothingFound(subject, context);
    Answer answer;
    Amount amount;
    std::int64_t safe = 0;
    for (const Finding* const finding : findings) {
        amount.count += finding->items.size();
        amount.bytes = checkedAdd(amount.bytes, finding->totalSize());
        safe = checkedAdd(safe, finding->safeSize());
        answer.findingIDs.emplace_back(finding->id());
    }
    answer.text = "Without the " + std::string(subject.name) + " that the last scan lists you would have " +
                  byteCount(amount.bytes) + " more (" + counted(amount) + "); " + byteCount(safe) +
                  " of that is rated Safe. Space comes back once you empty the Trash.";
    return answer;
}

std::optional<Answer> onePhotoKind(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    if (subject.kinds.size() != 1 || meta(subject.kinds.front()).category != OrlenCategory::photos)
        return std::nullopt;
    return sizeOfSubject(question, context);
}

} // namespace orlen::AskReader
