#include "insight/reader/DiskNames.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kDescribed = 6;

/// Which entries in a folder the scan lists; empty if none.
Message listedInside(const std::string& folder, const AskContext& context, Answer& answer)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        const std::size_t before = hits.size();
        for (const FileEntry& entry : finding.items) {
            if (entry.path != folder && PathText::isAtOrBelow(entry.path, folder))
                hits.push_back({&finding, &entry});
        }
        if (hits.size() > before &&
            std::ranges::find(answer.findingIDs, finding.id()) == answer.findingIDs.end())
            answer.findingIDs.emplace_back(finding.id());
    }
    std::int64_t bytes = 0;
    std::int64_t safe = 0;
    hits = eachOnce(std::move(hits));
    for (const Hit& hit : hits) {
        bytes = checkedAdd(bytes, hit.entry->size);
        if (hit.finding->effectiveRating(*hit.entry) == Rating::safe)
            safe = checkedAdd(safe, hit.entry->size);
    }
    if (hits.empty())
        return {};
    return {InsightTexts::kListedInside,
            {{"count", std::ssize(hits)}, {"size", Bytes{bytes}}, {"safe", Bytes{safe}}}};
}

Message described(const SeenName& seen, const AskContext& context, Answer& answer)
{
    const Place size{"size", Bytes{seen.bytes}};
    const Message what = seen.isFolder
                             ? Message{InsightTexts::kFolderTakes, {{"folder", tilde(seen.path)}, size}}
                             : Message{InsightTexts::kFileTakes,
                                       {{"path", tilde(seen.path)}, size, {"date", Moment{seen.modified}}}};
    const Message inside = seen.isFolder ? listedInside(seen.path, context, answer) : Message();
    const Protection protection = context.protection ? context.protection(seen.path) : Protection::none;
    Message fate = InsightTexts::kNotSuggested;
    if (protection != Protection::none)
        fate = {InsightTexts::kItIsProtected,
                {{"group", within(label(protection))}, {"reason", within(reason(protection))}}};
    else if (!inside.empty())
        fate = InsightTexts::kRestNotSuggested;
    return AskText::sentences({what, inside, fate});
}

} // namespace

Answer aboutSeen(const std::vector<SeenName>& seen, const AskContext& context)
{
    Answer answer;
    std::vector<Message> lines;
    for (const SeenName& each : seen) {
        if (lines.size() == kDescribed) {
            lines.push_back(
                {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(seen.size() - kDescribed)}}});
            break;
        }
        lines.push_back(described(each, context, answer));
        answer.paths.push_back(each.path);
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

std::vector<SeenName> seenNamed(const std::string& name, const AskContext& context)
{
    if (context.home == nullptr || name.empty())
        return {};
    std::string path = pathIn(name);
    const std::string& home = Places::current().home;
    if (path.empty() && name.find('/') != std::string::npos)
        path = Places::current().normalized(PathText::join(home, name));
    if (path.empty())
        return context.home->named({lowered(name)});
    const auto status = statusOf(path);
    if (!PathText::isAtOrBelow(path, home) || !status.ok())
        return {};
    const bool isFolder = status.value().type == FileType::folder;
    return {{path, isFolder ? context.home->sizeOf(path) : status.value().allocatedBytes, isFolder,
             status.value().modified}};
}

} // namespace orlen::AskReader
