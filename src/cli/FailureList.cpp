#include "cli/FailureList.h"

#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Session.h"
#include "model/Words.h"

#include <algorithm>
#include <string>

namespace orlen::FailureList {

namespace {

std::string remedies(const std::vector<FailureReason>& reasons)
{
    std::string text;
    for (const FailureReason reason : reasons) {
        if (!remedyText(reason).empty())
            text += shown(remedyText(reason)) + '\n';
    }
    return text;
}

} // namespace

void show(Session& session, const std::vector<CleanFailure>& failures,
          const std::optional<FailureReason>& refusal, const Text& notBegun)
{
    if (refusal) {
        session.complain({notBegun, {{"reason", within(reasonText(*refusal))}}});
        session.note(remedies({*refusal}));
        return;
    }
    std::string text;
    std::vector<FailureReason> reasons;
    for (const CleanFailure& failure : failures) {
        const Message line{
            CliTexts::kPathAndReason,
            {{"path", Format::shownPath(failure.path)}, {"reason", within(reasonText(failure.reason))}}};
        text += "  " + shown(line) + '\n';
        if (std::ranges::find(reasons, failure.reason) == reasons.end())
            reasons.push_back(failure.reason);
    }
    if (!text.empty())
        session.note(text + remedies(reasons));
}

} // namespace orlen::FailureList
