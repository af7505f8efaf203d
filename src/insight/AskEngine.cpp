#include "insight/AskEngine.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/AskReader.h"
#include "model/Words.h"
#include "platform/files/Places.h"
#include "platform/text/ByteCount.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <utility>

namespace orlen::AskEngine {

namespace {

const std::string kInstructions =
    "You are Orlen, a careful Mac storage assistant. Answer using ONLY the scan data provided. Be brief (at "
    "most 5 sentences), plain-spoken, and never claim a file is definitely safe to delete; ratings are "
    "suggestions. Never invent files or sizes.";

/// A model can only read so much: further findings and files are left out.
constexpr std::size_t kFindingsShown = 14;
constexpr std::size_t kDownloadsShown = 10;

bool isBelow(std::string_view path, const std::string& folder)
{
    return !folder.empty() && path.starts_with(folder + "/");
}

std::string joined(const std::vector<std::string>& parts, std::string_view separator)
{
    std::string text;
    for (const std::string& part : parts) {
        if (&part != &parts.front())
            text += separator;
        text += part;
    }
    return text;
}

std::string categoriesLine(const StorageBreakdown& breakdown)
{
    std::vector<std::string> categories;
    for (const auto& category : breakdown.cats)
        categories.push_back(AskText::sized(category).base());
    return "Categories: " + joined(categories, ", ");
}

std::string findingLine(const Finding& finding)
{
    return "- " + std::string(finding.title.base()) + ": " + byteCount(finding.totalSize()) + ", rated " +
           std::string(label(finding.rating).base()) + ". " + std::string(finding.reason.base());
}

/// A suggested question in the person's language becomes the English one, which the answers go by.
std::string inEnglish(const std::string& question)
{
    const std::string plain = AskText::plainWords(question);
    const auto suggested = std::ranges::find_if(
        kSuggestions, [&](const Text& each) { return AskText::plainWords(shown(each)) == plain; });
    return suggested == kSuggestions.end() || plain.empty() ? question : std::string(suggested->base());
}

std::string promptFor(const std::string& question, const AskContext& context)
{
    return "Scan data:\n" + contextText(context) + "\n\nQuestion: " + question;
}

} // namespace

Text introduction(const LanguageModel& model)
{
    return model.isAvailable() ? InsightTexts::kByModel : InsightTexts::kByMatcher;
}

Answer answer(const std::string& question, const AskContext& context, const LanguageModel& model)
{
    return turn(question, context, {}, model).answer;
}

Turn turn(const std::string& question, const AskContext& context, const Conversation& before,
          const LanguageModel& model)
{
    const std::string understood = inEnglish(question);
    Answer answer = fallback(understood, context);
    if (!model.isAvailable()) {
        if (std::optional<Turn> read = AskReader::turn(understood, context, before))
            return *std::move(read);
        Conversation next = AskReader::conversationAfter(understood, context, answer, before);
        return {std::move(answer), std::move(next)};
    }
    if (std::optional<std::string> text = model.respond(kInstructions, promptFor(question, context))) {
        answer.text = Message::verbatim(*std::move(text));
        answer.usedModel = true;
    }
    return {std::move(answer), {}};
}

bool needsPrograms(const std::string& question, const AskContext& context, const LanguageModel& model)
{
    return !model.isAvailable() && AskReader::needsPrograms(inEnglish(question), context);
}

bool needsHome(const std::string& question, const AskContext& context, const LanguageModel& model)
{
    return !model.isAvailable() && AskReader::needsHome(inEnglish(question), context);
}

std::string contextText(const AskContext& context)
{
    const StorageBreakdown& breakdown = context.breakdown;
    std::vector<std::string> lines{"Disk: " + byteCount(breakdown.total) + " total, " +
                                       byteCount(breakdown.free) + " free.",
                                   categoriesLine(breakdown)};
    const std::size_t findings = std::min(context.findings.size(), kFindingsShown);
    for (std::size_t i = 0; i < findings; ++i)
        lines.push_back(findingLine(context.findings[i]));
    lines.emplace_back("Items in Downloads:");
    const std::vector<FileEntry> downloads = downloadsItems(context.findings);
    for (std::size_t i = 0; i < std::min(downloads.size(), kDownloadsShown); ++i)
        lines.push_back("- " + AskText::sized(AskText::fileName(downloads[i]), downloads[i].size).base());
    lines.push_back("Prediction: " + AskText::forecast(context.prediction).base());
    return joined(lines, "\n");
}

std::vector<FileEntry> downloadsItems(const std::vector<Finding>& findings)
{
    std::vector<FileEntry> items;
    std::set<std::string_view> kept;
    for (const Finding& finding : findings) {
        for (const FileEntry& entry : finding.items) {
            if (isInDownloads(entry.path) && kept.insert(entry.path).second)
                items.push_back(entry);
        }
    }
    std::ranges::stable_sort(items, std::greater{}, &FileEntry::size);
    return items;
}

bool isInDownloads(std::string_view path)
{
    const Places& places = Places::current();
    return isBelow(path, places.home + "/Downloads") || isBelow(path, places.downloads);
}

} // namespace orlen::AskEngine
