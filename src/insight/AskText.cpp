#include "insight/AskText.h"

#include "insight/InsightTexts.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <functional>

namespace orlen::AskText {

std::string fileName(const FileEntry& entry)
{
    return PathText::forDisplay(PathText::lastComponent(entry.path));
}

Several largestCategories(const StorageBreakdown& breakdown)
{
    constexpr std::size_t kNamed = 4;
    using Category = std::pair<OrlenCategory, std::int64_t>;
    std::vector<Category> categories(breakdown.cats.begin(), breakdown.cats.end());
    std::ranges::stable_sort(categories, std::greater{}, &Category::second);
    Several largest{{}, Several::Joint::commas};
    for (std::size_t i = 0; i < std::min(categories.size(), kNamed); ++i)
        largest.messages.push_back(sized(categories[i]));
    return largest;
}

Message sized(const std::pair<const OrlenCategory, std::int64_t>& category)
{
    return {InsightTexts::kCategory,
            {{"category", within(label(category.first))}, {"size", Bytes{category.second}}}};
}

Message sized(Value name, std::int64_t bytes)
{
    return {InsightTexts::kNamed, {{"name", std::move(name)}, {"size", Bytes{bytes}}}};
}

Message rated(const Finding& finding)
{
    // The reason speaks of Xcode; what is found here are devices of Android.
    const bool isElsewhere = finding.kind == FindingKind::simulators;
    return sentences({Message{InsightTexts::kRated.of(finding.rating),
                              {{"title", within(finding.title)}, {"size", Bytes{finding.totalSize()}}}},
                      isElsewhere ? Message() : Message{finding.reason}});
}

Message forecast(const Prediction& prediction)
{
    return {InsightTexts::kForecast,
            {{"headline", within(prediction.headline)}, {"detail", within(prediction.detail)}}};
}

Message sentences(std::vector<Message> messages)
{
    return Message::joined(std::move(messages), Several::Joint::sentences);
}

Message lines(std::vector<Message> messages)
{
    return Message::joined(std::move(messages), Several::Joint::lines);
}

std::string plainWords(std::string_view question)
{
    std::string plain;
    for (const std::string& word : LanguageTools::words(LanguageTools::lowerCase(question)))
        plain += word + ' ';
    return plain;
}

} // namespace orlen::AskText
