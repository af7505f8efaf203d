#include "insight/AskEngine.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "platform/text/LanguageTools.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

/// The built-in matcher: a table of intents; the first that finds one of its words in the question answers.
/// Words match anywhere, even inside others, so the order of the table is what separates "folder" from "old".
/// Do not change it.
namespace orlen::AskEngine {

namespace {

using enum FindingKind;
using Reply = std::function<Answer(const AskContext&)>;

enum class Needs { nothing, scan };

struct Intent {
    std::vector<std::string_view> words;
    Needs needs;
    Reply reply;
};

struct SizedFinding {
    const Finding* finding;
    std::int64_t bytes;
};

/// The largest findings by some size, at most `count`; ties keep their order.
std::vector<SizedFinding> largestBy(std::int64_t (Finding::*size)() const,
                                    const std::vector<Finding>& findings, std::size_t count)
{
    std::vector<SizedFinding> sized;
    sized.reserve(findings.size());
    for (const Finding& finding : findings)
        sized.push_back({&finding, (finding.*size)()});
    std::ranges::stable_sort(sized, std::greater{}, &SizedFinding::bytes);
    sized.resize(std::min(sized.size(), count));
    return sized;
}

Several listed(const std::vector<SizedFinding>& findings)
{
    Several list{{}, Several::Joint::commas};
    for (const auto& [finding, bytes] : findings)
        list.messages.push_back(AskText::sized(within(finding->title), bytes));
    return list;
}

std::vector<std::string> idsOf(const std::vector<SizedFinding>& findings)
{
    std::vector<std::string> ids;
    ids.reserve(findings.size());
    for (const SizedFinding& sized : findings)
        ids.emplace_back(sized.finding->id());
    return ids;
}

template <typename Predicate>
std::vector<std::string> idsOfHolding(const std::vector<Finding>& findings, Predicate isMeant)
{
    std::vector<std::string> ids;
    for (const Finding& finding : findings) {
        const auto isEntryMeant = [&](const FileEntry& entry) { return isMeant(finding, entry); };
        if (std::ranges::any_of(finding.items, isEntryMeant))
            ids.emplace_back(finding.id());
    }
    return ids;
}

Answer noScan()
{
    return {InsightTexts::kNoScan, {}};
}

Answer aboutDownloads(const AskContext& context)
{
    constexpr std::size_t kShown = 6;
    const std::vector<FileEntry> items = downloadsItems(context.findings);
    if (items.empty())
        return {InsightTexts::kNoDownloads, {}};
    std::vector<Message> lines{
        {InsightTexts::kDownloads, {{"count", std::ssize(items)}, {"size", Bytes{sizeOf(items)}}}}};
    for (std::size_t i = 0; i < std::min(items.size(), kShown); ++i)
        lines.push_back({InsightTexts::kDownload,
                         {{"name", AskText::fileName(items[i])}, {"size", Bytes{items[i].size}}}});
    lines.emplace_back(InsightTexts::kInstallersFirst);
    return {AskText::lines(std::move(lines)),
            idsOfHolding(context.findings, [](const Finding& /*finding*/, const FileEntry& entry) {
                return isInDownloads(entry.path);
            })};
}

Answer forecast(const AskContext& context)
{
    return {AskText::forecast(context.prediction), {}};
}

Answer largest(const AskContext& context)
{
    constexpr std::size_t kNamed = 3;
    const Message categories{InsightTexts::kByCategory,
                             {{"categories", AskText::largestCategories(context.breakdown)}}};
    const auto findings = largestBy(&Finding::totalSize, context.findings, kNamed);
    const Message rest = findings.empty()
                             ? Message{InsightTexts::kScanForBreakdown}
                             : Message{InsightTexts::kLargestFindings, {{"findings", listed(findings)}}};
    return {AskText::sentences({categories, rest}), idsOf(findings)};
}

Answer safeToFree(const AskContext& context)
{
    constexpr std::size_t kNamed = 4;
    std::int64_t total = 0;
    for (const Finding& finding : context.findings)
        total = checkedAdd(total, finding.safeSize());
    if (total == 0)
        return {InsightTexts::kNoSafeItems, {}};
    const auto findings = largestBy(&Finding::safeSize, context.findings, kNamed);
    return {Message{InsightTexts::kCouldFree, {{"size", Bytes{total}}, {"findings", listed(findings)}}},
            idsOf(findings)};
}

/// Answers with one line per finding of these kinds, or that there is none.
Reply topic(const Text& nothing, const std::vector<FindingKind>& kinds)
{
    return [nothing, kinds](const AskContext& context) -> Answer {
        Answer answer;
        std::vector<Message> lines;
        for (const Finding& finding : context.findings) {
            if (std::ranges::find(kinds, finding.kind) == kinds.end())
                continue;
            lines.push_back(AskText::rated(finding));
            answer.findingIDs.emplace_back(finding.id());
        }
        answer.text = lines.empty() ? nothing : AskText::lines(std::move(lines));
        return answer;
    };
}

bool isKept(const Finding& finding, const FileEntry& entry)
{
    return finding.effectiveRating(entry) == Rating::keep;
}

Answer kept(const AskContext& context)
{
    constexpr std::int64_t kNamed = 3;
    std::int64_t count = 0;
    Several names{{}, Several::Joint::commas};
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (isKept(finding, entry) && ++count <= kNamed)
                names.messages.push_back(Message::verbatim(AskText::fileName(entry)));
        }
    }
    if (count == 0)
        return {InsightTexts::kNothingKept, {}};
    return {Message{InsightTexts::kKept, {{"count", count}, {"names", std::move(names)}}},
            idsOfHolding(context.findings, isKept)};
}

Answer help()
{
    return {InsightTexts::kHelp, {}};
}

const std::vector<Intent>& intents()
{
    static const std::vector<Intent> inOrder{
        {{"download"}, Needs::scan, aboutDownloads},
        {{"full", "how long", "predict", "when will", "grow", "running out", "run out"},
         Needs::nothing,
         forecast},
        {{"most", "biggest", "largest", "using", "taking", "hogging", "what is using"},
         Needs::nothing,
         largest},
        {{"safe", "free up", "delete", "clean", "remove", "get rid", "space"}, Needs::scan, safeToFree},
        {{"duplicate", "same file", "copies"},
         Needs::scan,
         topic(message("Duplicate files: I found nothing in the last scan."), {duplicates})},
        {{"screenshot", "photo", "picture", "image", "meme", "blur", "receipt"},
         Needs::scan,
         topic(message("Photo clean-ups: I found nothing in the last scan."),
               {photoDuplicates, screenshots, receipts, memes, blurry})},
        {{"xcode", "developer", "derived", "simulator", "build", "code"},
         Needs::scan,
         topic(message("Developer data: I found nothing in the last scan."),
               {xcodeDerived, xcodeArchives, simulators, deviceSupport, homebrew, npm, pip, gradle})},
        {{"cache"}, Needs::scan, topic(message("Caches: I found nothing in the last scan."), {caches})},
        {{"log"}, Needs::scan, topic(message("Logs: I found nothing in the last scan."), {logs})},
        {{"backup", "iphone", "ipad", "ios"},
         Needs::scan,
         topic(message("Device backups: I found nothing in the last scan."), {iosBackups, softwareUpdates})},
        {{"language", "translation"},
         Needs::scan,
         topic(message("Language packs: I found nothing in the last scan."), {languagePacks})},
        {{"large", "big file", "video", "movie"},
         Needs::scan,
         topic(message("Large files: I found nothing in the last scan."), {largeFiles})},
        {{"old", "unused", "not opened", "haven't"},
         Needs::scan,
         topic(message("Old files: I found nothing in the last scan."), {oldFiles, oldDownloads})},
        {{"trash", "bin"}, Needs::scan, topic(message("Trash: I found nothing in the last scan."), {trash})},
        {{"mail", "attachment"},
         Needs::scan,
         topic(message("Mail attachments: I found nothing in the last scan."), {mailDownloads})},
        {{"keep", "important", "why"}, Needs::scan, kept},
    };
    return inOrder;
}

} // namespace

Answer fallback(std::string_view question, const AskContext& context)
{
    const std::string lower = LanguageTools::lowerCase(question);
    const auto occurs = [&lower](std::string_view word) { return lower.find(word) != std::string::npos; };
    const auto intent = std::ranges::find_if(
        intents(), [&occurs](const Intent& each) { return std::ranges::any_of(each.words, occurs); });
    if (intent == intents().end())
        return help();
    if (intent->needs == Needs::scan && context.findings.empty())
        return noScan();
    return intent->reply(context);
}

} // namespace orlen::AskEngine
