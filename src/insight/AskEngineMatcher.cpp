#include "insight/AskEngine.h"

#include "insight/AskText.h"
#include "platform/text/ByteCount.h"
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

std::string listed(const std::vector<SizedFinding>& findings)
{
    std::vector<std::string> parts;
    parts.reserve(findings.size());
    for (const auto& [finding, bytes] : findings)
        parts.push_back(AskText::sized(finding->title, bytes));
    return AskText::joined(parts, ", ");
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
    return {std::string(AskText::kNoScan), {}};
}

Answer aboutDownloads(const AskContext& context)
{
    constexpr std::size_t kShown = 6;
    const std::vector<FileEntry> items = downloadsItems(context.findings);
    if (items.empty())
        return {"I didn't find anything in Downloads that looks worth removing. Items there are only listed "
                "if they're old or duplicated.",
                {}};
    std::string text = "Downloads has " + std::to_string(items.size()) + " item" +
                       (items.size() == 1 ? "" : "s") + " you haven't touched in over a month, about " +
                       byteCount(sizeOf(items)) + ":\n";
    for (std::size_t i = 0; i < std::min(items.size(), kShown); ++i)
        text += "• " + AskText::fileName(items[i]) + " — " + byteCount(items[i].size) + '\n';
    text += "Installers (.dmg, .pkg) are usually safe to remove; check the rest first.";
    return {std::move(text), idsOfHolding(context.findings, [](const Finding&, const FileEntry& entry) {
                return isInDownloads(entry.path);
            })};
}

Answer forecast(const AskContext& context)
{
    return {context.prediction.headline + ". " + context.prediction.detail, {}};
}

Answer largest(const AskContext& context)
{
    constexpr std::size_t kNamed = 3;
    const std::string categories = "By category: " + AskText::largestCategories(context.breakdown) + '.';
    if (context.findings.empty())
        return {categories + " Run a Smart Scan for a detailed breakdown.", {}};
    const auto findings = largestBy(&Finding::totalSize, context.findings, kNamed);
    return {categories + " The largest findings are " + listed(findings) + '.', idsOf(findings)};
}

Answer safeToFree(const AskContext& context)
{
    constexpr std::size_t kNamed = 4;
    std::int64_t total = 0;
    for (const Finding& finding : context.findings)
        total = checkedAdd(total, finding.safeSize());
    if (total == 0)
        return {"Nothing is rated Safe right now. Look at the Review items, remembering these ratings are "
                "suggestions.",
                {}};
    const auto findings = largestBy(&Finding::safeSize, context.findings, kNamed);
    return {
        "You could free about " + byteCount(total) + " from items rated Safe: " + listed(findings) +
            ". Ratings are suggestions, so you can look at every file before anything moves to the Trash.",
        idsOf(findings)};
}

/// Answers with one line per finding of these kinds.
Reply topic(std::string_view title, const std::vector<FindingKind>& kinds)
{
    return [title, kinds](const AskContext& context) -> Answer {
        Answer answer;
        std::vector<std::string> lines;
        for (const Finding& finding : context.findings) {
            if (std::ranges::find(kinds, finding.kind) == kinds.end())
                continue;
            lines.push_back(finding.title + ": " + byteCount(finding.totalSize()) + " — rated " +
                            std::string(label(finding.rating)) + ". " + finding.reason);
            answer.findingIDs.emplace_back(finding.id());
        }
        answer.text = lines.empty() ? std::string(title) + ": I found nothing in the last scan."
                                    : AskText::joined(lines, "\n");
        return answer;
    };
}

bool isKept(const Finding& finding, const FileEntry& entry)
{
    return finding.effectiveRating(entry) == Rating::keep;
}

Answer kept(const AskContext& context)
{
    constexpr std::size_t kNamed = 3;
    std::size_t count = 0;
    std::vector<std::string> names;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (isKept(finding, entry) && ++count <= kNamed)
                names.push_back(AskText::fileName(entry));
        }
    }
    if (count == 0)
        return {"Nothing in the last scan is rated Keep. Keep means a name looks like an invoice, tax, "
                "contract or similar paperwork, or a known system-sync location.",
                {}};
    return {std::to_string(count) + " item(s) are rated Keep, such as " + AskText::joined(names, ", ") +
                ". Their names or locations suggest they matter.",
            idsOfHolding(context.findings, isKept)};
}

Answer help()
{
    return {"I can answer questions about your scan, for example “what is using the most space?”, “what can "
            "I delete from my Downloads folder?”, “are there duplicates?” or “when will my disk be full?”.",
            {}};
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
        {{"duplicate", "same file", "copies"}, Needs::scan, topic("Duplicate files", {duplicates})},
        {{"screenshot", "photo", "picture", "image", "meme", "blur", "receipt"},
         Needs::scan,
         topic("Photo clean-ups", {photoDuplicates, screenshots, receipts, memes, blurry})},
        {{"xcode", "developer", "derived", "simulator", "build", "code"},
         Needs::scan,
         topic("Developer data",
               {xcodeDerived, xcodeArchives, simulators, deviceSupport, homebrew, npm, pip, gradle})},
        {{"cache"}, Needs::scan, topic("Caches", {caches})},
        {{"log"}, Needs::scan, topic("Logs", {logs})},
        {{"backup", "iphone", "ipad", "ios"},
         Needs::scan,
         topic("Device backups", {iosBackups, softwareUpdates})},
        {{"language", "translation"}, Needs::scan, topic("Language packs", {languagePacks})},
        {{"large", "big file", "video", "movie"}, Needs::scan, topic("Large files", {largeFiles})},
        {{"old", "unused", "not opened", "haven't"},
         Needs::scan,
         topic("Old files", {oldFiles, oldDownloads})},
        {{"trash", "bin"}, Needs::scan, topic("Trash", {trash})},
        {{"mail", "attachment"}, Needs::scan, topic("Mail attachments", {mailDownloads})},
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
