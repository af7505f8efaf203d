#include "window/findings/FindingHeader.h"

#include "model/Finding.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

namespace orlen {

namespace {

Text whyText(Rating rating)
{
    switch (rating) {
    case Rating::safe:
        return WindowTexts::kWhySafe;
    case Rating::review:
        return WindowTexts::kWhyReview;
    case Rating::keep:
        return WindowTexts::kWhyKeep;
    }
    return {};
}

} // namespace

FindingHeader FindingHeader::of(const Finding& finding)
{
    FindingHeader header;
    header.title = DisplayText::text(finding.title);
    header.explanation = DisplayText::text(finding.explanation);
    if (!finding.reason.empty())
        header.reason =
            DisplayText::text(Message(whyText(finding.rating), {{"reason", within(finding.reason)}}));
    header.symbol = DisplayText::text(finding.symbol);
    header.tone = DisplayText::colour(finding.category);
    header.rating = RatingValue(finding.rating);
    header.isCleanable = finding.cleanable;
    return header;
}

} // namespace orlen
