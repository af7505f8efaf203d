#include "window/findings/FindingHeader.h"

#include "model/Finding.h"
#include "window/lists/DisplayText.h"

namespace orlen {

FindingHeader FindingHeader::of(const Finding& finding)
{
    FindingHeader header;
    header.title = DisplayText::text(finding.title);
    header.explanation = DisplayText::text(finding.explanation);
    if (!finding.reason.empty())
        header.reason = QStringLiteral("Why %1: %2")
                            .arg(DisplayText::text(label(finding.rating)), DisplayText::text(finding.reason));
    header.symbol = DisplayText::text(finding.symbol);
    header.tone = DisplayText::colour(finding.category);
    header.rating = RatingValue(finding.rating);
    header.isCleanable = finding.cleanable;
    return header;
}

} // namespace orlen
