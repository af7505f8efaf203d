#pragma once

#include "insight/AskEngine.h"
#include "platform/values/Uuid.h"

#include <string>
#include <utility>
#include <vector>

namespace orlen {

/// One message on the Ask screen.
struct ChatMessage {
    Uuid id = Uuid::random();
    bool fromUser = false;
    Message text;
    std::vector<std::string> findingIDs; ///< findings a reply links to
    bool usedModel = false;
    std::vector<std::string> proposal{}; ///< items that a reply proposes for a clean-up

    [[nodiscard]] static ChatMessage question(std::string text)
    {
        return {Uuid::random(), true, Message::verbatim(std::move(text)), {}, false};
    }
    [[nodiscard]] static ChatMessage reply(Answer answer)
    {
        return {Uuid::random(),         false,
                std::move(answer.text), std::move(answer.findingIDs),
                answer.usedModel,       std::move(answer.proposal)};
    }
};

} // namespace orlen
