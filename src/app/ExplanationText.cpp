#include "app/ExplanationText.h"

#include "app/AppTexts.h"
#include "app/Format.h"

#include <utility>

namespace orlen::ExplanationText {

namespace {

/// Which line excludes the path. With findings, it leads over to what they would do otherwise.
Message exclusionText(const Exclusion& exclusion, bool isAll)
{
    std::vector<Message> sentences;
    if (exclusion.kind == Exclusion::Kind::path)
        sentences.push_back({AppTexts::kExcludedByPath, {{"path", Format::shownPath(exclusion.text)}}});
    else
        sentences.push_back({AppTexts::kExcludedByName, {{"name", Format::quoted(exclusion.text)}}});
    if (!isAll)
        sentences.emplace_back(AppTexts::kOtherwise);
    return Message::joined(std::move(sentences), Several::Joint::sentences);
}

/// "App caches, Safe: Browser cache, rebuilt as you browse."
Message offer(const Finding& finding, const std::function<Value(Rating)>& ratingText)
{
    const FileEntry& entry = finding.items.front();
    const Message why = entry.notes.empty() ? finding.reason : Format::displayable(noteOf(entry));
    return {AppTexts::kOffer,
            {{"finding", within(finding.title)},
             {"rating", ratingText(finding.effectiveRating(entry))},
             {"why", within(why)}}};
}

} // namespace

std::vector<Message> sentences(const Explanation& told, const std::function<Value(Rating)>& ratingText)
{
    std::vector<Message> sentences;
    if (told.protection != Protection::none)
        sentences.push_back(
            {AppTexts::kProtected,
             {{"what", within(label(told.protection))}, {"why", within(reason(told.protection))}}});
    if (told.exclusion)
        sentences.push_back(exclusionText(*told.exclusion, told.findings.empty()));
    for (const Finding& finding : told.findings) {
        sentences.push_back(offer(finding, ratingText));
        const FileEntry& entry = finding.items.front();
        if (entry.path != told.path)
            sentences.push_back({AppTexts::kMovesWith,
                                 {{"path", Format::shownPath(entry.path)}, {"size", Bytes{entry.size}}}});
    }
    if (sentences.empty())
        sentences.emplace_back(AppTexts::kOfferedNowhere);
    return sentences;
}

} // namespace orlen::ExplanationText
