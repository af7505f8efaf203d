#include "cli/FailureList.h"

#include "app/Format.h"
#include "cli/Session.h"

#include <algorithm>
#include <string>

namespace orlen::FailureList {

namespace {

std::string remedies(const std::vector<FailureReason>& reasons)
{
    std::string text;
    for (const FailureReason reason : reasons) {
        if (!remedyText(reason).empty())
            text.append(remedyText(reason)).append("\n");
    }
    return text;
}

} // namespace

void show(Session& session, const std::vector<CleanFailure>& failures,
          const std::optional<FailureReason>& refusal, std::string_view notBegun)
{
    if (refusal) {
        session.complain(std::string(notBegun).append(reasonText(*refusal)) + '.');
        session.note(remedies({*refusal}));
        return;
    }
    std::string text;
    std::vector<FailureReason> reasons;
    for (const CleanFailure& failure : failures) {
        text.append("  ").append(Format::shownPath(failure.path)).append(": ");
        text.append(reasonText(failure.reason)).append("\n");
        if (std::ranges::find(reasons, failure.reason) == reasons.end())
            reasons.push_back(failure.reason);
    }
    if (!text.empty())
        session.note(text + remedies(reasons));
}

} // namespace orlen::FailureList
