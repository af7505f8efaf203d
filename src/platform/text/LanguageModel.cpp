#include "platform/text/LanguageModel.h"

namespace orlen {

namespace {

class NoLanguageModel final : public LanguageModel {
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
    [[nodiscard]] std::optional<std::string> respond(const std::string& /*instructions*/,
                                                     const std::string& /*prompt*/) const override
    {
        return std::nullopt;
    }
};

} // namespace

const LanguageModel& LanguageModel::ofSystem()
{
    static const NoLanguageModel none;
    return none;
}

} // namespace orlen
