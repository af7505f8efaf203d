#include "app/AppTexts.h"

#include "app/Format.h"
#include "clean/Exclusion.h"
#include "model/MessageText.h"
#include "tools/ToolsTexts.h"

#include <array>
#include <system_error>

namespace orlen::AppTexts {

namespace {

constexpr std::array kTitles{kScanPlanTitle, ToolsTexts::kLeftBehind, ToolsTexts::kUninstall};

Message sentences(Message first, Message second)
{
    return Message::joined({std::move(first), std::move(second)}, Several::Joint::sentences);
}

Place what(const Exclusion& exclusion)
{
    return {"what", exclusion.kind == Exclusion::Kind::path ? Format::shownPath(exclusion.text)
                                                            : Format::quoted(exclusion.text)};
}

} // namespace

Message damaged(const OwnFile& file)
{
    return sentences(file.damaged, {kKeptAside, {{"name", std::string(file.stem)}}});
}

Message unreadable(const OwnFile& file, int error)
{
    return sentences({file.unreadable, {{"error", std::generic_category().message(error)}}},
                     {kLeftAsItIs, {{"name", std::string(file.stem)}}});
}

Message restored(int restored, int failed)
{
    if (failed == 0)
        return {kRestored, {{"count", restored}}};
    return {kPartlyRestored, {{"count", failed}, {"restored", restored}}};
}

Message nowExcluded(const Exclusion& exclusion)
{
    const bool isPath = exclusion.kind == Exclusion::Kind::path;
    return {isPath ? kNowExcluded : kNameNowExcluded, {what(exclusion)}};
}

Message noLongerExcluded(const Exclusion& exclusion)
{
    return {kNoLongerExcluded, {what(exclusion)}};
}

Message stillOn(const std::string& service)
{
    return {kStillOn, {{"service", service}}};
}

Message bytesDone(std::int64_t done, std::int64_t total)
{
    return {kBytesDone, {{"done", Bytes{done}}, {"total", Bytes{total}}}};
}

Message timeLeft(std::chrono::duration<double> time)
{
    using namespace std::chrono;
    if (time < minutes(1))
        return kNearlyDone;
    return {kMinutesLeft, {{"count", std::int64_t{round<minutes>(time).count()}}}};
}

Message unreadableFolders(std::int64_t count)
{
    return {kUnreadableFolders, {{"count", count}}};
}

Message titleOf(const std::string& kept)
{
    return MessageText::recognized(kept, kTitles).value_or(Message::verbatim(kept));
}

} // namespace orlen::AppTexts
