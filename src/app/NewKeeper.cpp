#include "app/NewKeeper.h"

#include "app/AppTexts.h"
#include "model/Rater.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"
#include "scan/Cand.h"
#include "scan/OtherDisk.h"
#include "scan/ScanTexts.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <variant>

namespace orlen::NewKeeper {

namespace {

constexpr FindingKind kKind = FindingKind::photoDuplicates;

bool isInRepository(const std::string& path)
{
    for (std::string_view folder = PathText::parent(path); folder.size() > 1;
         folder = PathText::parent(folder)) {
        if (exists(PathText::join(folder, ".git")))
            return true;
    }
    return false;
}

bool dependsOn(const FileEntry& entry, const KeptFile& kept)
{
    return entry.kept && entry.kept->path == kept.path;
}

/// Whether a note says what the entry is similar or identical to.
bool namesKept(const Message& note)
{
    if (note.text == AppTexts::kYouKeep || note.text == ScanTexts::kSimilar ||
        note.text == ScanTexts::kIdentical)
        return true;
    return std::ranges::any_of(note.places, [](const Place& place) {
        const auto* several = std::get_if<Several>(&place.value);
        return several != nullptr && std::ranges::any_of(several->messages, namesKept);
    });
}

} // namespace

Message noteNaming(const std::string& kept)
{
    return {AppTexts::kYouKeep, {{"name", std::string(PathText::lastComponent(kept))}}};
}

bool isStill(const std::string& path, const FileStamp& stamp)
{
    const auto status = statusOf(path);
    return status.ok() && FileStamp::of(status.value()) == stamp;
}

void noteChoice(FileEntry& entry, Message note)
{
    std::erase_if(entry.notes, namesKept);
    addNoteBefore(entry, std::move(note));
}

std::optional<FileEntry> asEntry(const KeptFile& former, const KeptFile& kept, FindingKind kind, Message note)
{
    const auto status = statusOf(former.path);
    if (!status.ok() || FileStamp::of(status.value()) != former.stamp)
        return std::nullopt;
    const Cand cand{.path = former.path,
                    .size = status.value().allocatedBytes,
                    .modified = status.value().modified,
                    .stamp = former.stamp,
                    .hasOtherNames = status.value().links > 1,
                    .isInRepository = isInRepository(former.path)};
    FileEntry entry = toEntryByContent(cand, std::move(note));
    entry.kept = kept;
    std::vector<Finding> alone{Finding(kind, {std::move(entry)})};
    noteOtherDisks(alone);
    return Rater::rate(std::move(alone)).front().items.front();
}

std::optional<Exchange> of(const std::vector<Finding>& findings, const std::string& path)
{
    const auto finding = std::ranges::find(findings, kKind, &Finding::kind);
    if (finding == findings.end())
        return std::nullopt;
    const auto entry = std::ranges::find(finding->items, path, &FileEntry::path);
    if (entry == finding->items.end() || !entry->kept || !entry->stamp)
        return std::nullopt;
    return Exchange{*entry, *entry->kept};
}

std::optional<FileEntry> listed(const Exchange& exchange)
{
    const auto& [chosen, former] = exchange;
    if (!isStill(chosen.path, *chosen.stamp))
        return std::nullopt;
    return asEntry(former, {chosen.path, *chosen.stamp}, kKind, noteNaming(chosen.path));
}

void apply(std::vector<Finding>& findings, const Exchange& exchange, const FileEntry& former)
{
    const auto finding = std::ranges::find(findings, kKind, &Finding::kind);
    if (finding == findings.end())
        return;
    const KeptFile kept{exchange.chosen.path, *exchange.chosen.stamp};
    for (FileEntry& entry : finding->items) {
        if (entry.path == kept.path) {
            entry = former;
        } else if (dependsOn(entry, exchange.former)) {
            entry.kept = kept;
            noteChoice(entry, noteNaming(exchange.chosen.path));
        }
    }
    std::ranges::stable_sort(finding->items, std::greater(), &FileEntry::size);
}

} // namespace orlen::NewKeeper
