#include "cli/JsonDocuments.h"

#include "app/AppModel.h"
#include "clean/ExclusionJson.h"
#include "clean/RecordJson.h"
#include "model/KeptSets.h"
#include "scan/ScanProgress.h"
#include "tools/DiskMap.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace orlen::JsonDocuments {

namespace {

/// Measured durations are no more precise than milliseconds.
double rounded(Seconds duration)
{
    return std::round(duration.count() * 1000) / 1000;
}

/// Drops the digits that only the conversion to double adds.
double shortened(float number)
{
    return std::round(static_cast<double>(number) * 1e6) / 1e6;
}

template <typename List, typename Encode>
Json array(const List& list, Encode encode)
{
    Json array = Json::array();
    for (const auto& element : list)
        array.push_back(encode(element));
    return array;
}

Json entries(const std::vector<FileEntry>& list)
{
    return array(list, [](const FileEntry& entry) { return RecordJson::encode(entry); });
}

std::string_view rawValue(StepState state)
{
    switch (state) {
    case StepState::pending:
        return "pending";
    case StepState::running:
        return "running";
    case StepState::done:
        return "done";
    }
    return {};
}

Json steps(const ScanProgress& progress)
{
    return array(progress.steps(), [](const ScanStep& step) -> Json {
        return {{"label", label(step.kind).base()},
                {"state", rawValue(step.state)},
                {"seconds", rounded(step.elapsed)}};
    });
}

Json failures(const std::vector<CleanFailure>& stayed)
{
    return array(stayed, [](const CleanFailure& failure) -> Json {
        return {{"path", failure.path}, {"reason", orlen::rawValue(failure.reason)}};
    });
}

Json finding(const Finding& finding)
{
    return {
        {"kind", orlen::rawValue(finding.kind)},
        {"title", finding.title.base()},
        {"explanation", finding.explanation.base()},
        {"symbol", finding.symbol},
        {"category", orlen::rawValue(finding.category)},
        {"rating", orlen::rawValue(finding.rating)},
        {"reason", finding.reason.base()},
        {"cleanable", finding.cleanable},
        {"size", finding.totalSize()},
        {"safeSize", finding.safeSize()},
        {"items", entries(finding.items)},
    };
}

/// Of one finding: identical files as copies, similar photos with what tells them from the kept one.
Json setsOf(const Finding& finding)
{
    Json sets = Json::array();
    for (const KeptSet& set : keptSets(finding.items)) {
        if (set.kept.empty())
            continue;
        Json members = Json::array();
        for (const std::size_t number : set.entries) {
            const FileEntry& entry = finding.items[number];
            if (finding.kind == FindingKind::duplicates)
                members.push_back(entry.path);
            else
                members.push_back({{"path", entry.path}, {"why", noteOf(entry).base()}});
        }
        const char* name = finding.kind == FindingKind::duplicates ? "copies" : "members";
        sets.push_back({{"kept", set.kept}, {name, std::move(members)}});
    }
    return sets;
}

/// Of all findings, each with the kind of its finding.
Json sets(const std::vector<Finding>& findings)
{
    Json all = Json::array();
    for (const Finding& finding : findings) {
        for (Json& set : setsOf(finding)) {
            Json of = {{"kind", orlen::rawValue(finding.kind)}};
            of.update(set);
            all.push_back(std::move(of));
        }
    }
    return all;
}

Json plan(const CleanPlan& plan)
{
    const auto encodeSection = [](const PlanSection& section) -> Json {
        return {{"id", section.id},
                {"title", section.title.base()},
                {"symbol", section.symbol},
                {"entries", entries(section.entries)}};
    };
    return {{"title", plan.title.base()}, {"sections", array(plan.sections, encodeSection)}};
}

} // namespace

Json breakdown(const StorageBreakdown& breakdown)
{
    Json categories = Json::object();
    for (const OrlenCategory category : kAllCategories) {
        const auto bytes = breakdown.cats.find(category);
        categories[std::string(orlen::rawValue(category))] =
            bytes == breakdown.cats.end() ? 0 : bytes->second;
    }
    return {{"total", breakdown.total}, {"free", breakdown.free}, {"cats", std::move(categories)}};
}

Json scan(const AppModel& model, Seconds duration)
{
    return {
        {"findings", array(model.results()->findings(), finding)},
        {"sets", sets(model.results()->findings())},
        {"unreadable", Json(model.results()->unreadableFolders().paths)},
        {"selection", Json(model.results()->selection())},
        {"totalFound", model.results()->totalFound()},
        {"safeBytes", model.results()->safeBytes()},
        {"breakdown", breakdown(model.storage()->breakdown())},
        {"filesExamined", model.results()->scanProgress().files()},
        {"steps", steps(model.results()->scanProgress())},
        {"fullDiskAccess", model.results()->isFdaGranted()},
        {"date", isoText(model.results()->lastScan().value_or(TimePoint()))},
        {"seconds", rounded(duration)},
    };
}

Json dryRun(const CleanPlan& shown)
{
    return {{"plan", plan(shown)}};
}

Json clean(const CleanPlan& carriedOut, const CleanRecord& record, const std::vector<CleanFailure>& stayed)
{
    return {{"plan", plan(carriedOut)},
            {"record", RecordJson::encode(record)},
            {"freed", record.freed()},
            {"failures", failures(stayed)}};
}

Json history(const std::vector<CleanRecord>& history)
{
    return array(history, [](const CleanRecord& record) {
        Json document = RecordJson::encode(record);
        document["freed"] = record.freed();
        return document;
    });
}

Json restore(const Cleaner::Restored& outcome, const Message& message)
{
    return {{"record", RecordJson::encode(outcome.record)},
            {"restored", outcome.restored},
            {"failed", outcome.failed},
            {"message", message.base()},
            {"failures", failures(outcome.failures)}};
}

Json prediction(const Prediction& prediction, std::size_t snapshots)
{
    Json rates = Json::array();
    for (const auto& [category, rate] : prediction.perCategory)
        rates.push_back({{"category", orlen::rawValue(category)}, {"bytesPerDay", rate}});
    return {
        {"enoughData", prediction.enoughData},
        {"headline", prediction.headline.base()},
        {"detail", prediction.detail.base()},
        {"warn", prediction.warn},
        {"perCategory", std::move(rates)},
        {"freeSeries", prediction.freeSeries},
        {"snapshots", snapshots},
    };
}

Json answer(const Answer& answer)
{
    return {{"text", answer.text.base()}, {"findingIDs", answer.findingIDs}, {"usedModel", answer.usedModel}};
}

Json growth(const std::optional<Growth>& growth)
{
    Json document = Json::object();
    if (growth)
        document["since"] = isoText(growth->since);
    Json& folders = document["folders"] = Json::array();
    for (const Growth::Folder& folder : growth.value_or(Growth{}).folders)
        folders.push_back({{"path", folder.path},
                           {"bytes", folder.bytes()},
                           {"before", folder.before},
                           {"now", folder.now}});
    return document;
}

Json duplicates(const Finding& found, const Duplicates::Result& result, Seconds duration)
{
    const auto encodeSet = [](const Duplicates::Set& set) -> Json {
        const auto path = [](const Duplicates::Copy& copy) { return copy.file.path; };
        return {{"kept", set.kept.path}, {"copies", array(set.copies, path)}};
    };
    return {
        {"finding", finding(found)},
        {"sets", array(result.sets, encodeSet)},
        {"filesConsidered", result.filesConsidered},
        {"filesHashed", result.filesHashed},
        {"bytesHashed", result.bytesHashed},
        {"seconds", rounded(duration)},
    };
}

Json photos(const std::vector<Finding>& findings, const std::vector<PhotoInfo>& photos,
            const PhotoCoverage& coverage, Seconds duration)
{
    const auto encodeLabel = [](const ImageLabel& label) -> Json {
        return {{"label", label.identifier}, {"confidence", shortened(label.confidence)}};
    };
    const auto encodePhoto = [&](const PhotoInfo& photo) -> Json {
        return {{"path", photo.cand.path},
                {"width", photo.width},
                {"height", photo.height},
                {"sharpness", photo.sharpness},
                {"labels", array(photo.labels, encodeLabel)}};
    };
    Json similar = Json::array();
    for (const Finding& finding : findings) {
        for (Json& set : setsOf(finding))
            similar.push_back(std::move(set));
    }
    return {{"findings", array(findings, finding)}, {"sets", std::move(similar)},
            {"looked", coverage.lookedAt},          {"total", coverage.all},
            {"photos", array(photos, encodePhoto)}, {"seconds", rounded(duration)}};
}

Json map(const std::string& folder, const std::vector<TreeNode>& nodes, Seconds duration)
{
    const auto encodeNode = [](const TreeNode& node) -> Json {
        return {{"name", node.name},
                {"path", node.path},
                {"size", node.size},
                {"isDir", node.isDir},
                {"isOther", node.isOther}};
    };
    return {{"path", folder},
            {"nodes", array(DiskMap::nameable(nodes, folder), encodeNode)},
            {"seconds", rounded(duration)}};
}

Json explanation(const Explanation& explanation)
{
    Json json = {{"path", explanation.path},
                 {"exists", explanation.exists},
                 {"protected", explanation.protection != Protection::none}};
    if (explanation.protection != Protection::none)
        json["rule"] = label(explanation.protection).base();
    json["excluded"] = explanation.exclusion.has_value();
    if (explanation.exclusion)
        json["exclusion"] = ExclusionJson::encode(*explanation.exclusion);
    json["findings"] = array(explanation.findings, [](const Finding& finding) {
        const FileEntry& entry = finding.items.front();
        Json offer = {{"kind", orlen::rawValue(finding.kind)},
                      {"rating", orlen::rawValue(finding.effectiveRating(entry))},
                      {"reason", finding.reason.base()},
                      {"path", entry.path}};
        if (!entry.notes.empty())
            offer["note"] = noteOf(entry).base();
        return offer;
    });
    json["size"] = explanation.size;
    return json;
}

Json exclusions(const std::vector<Exclusion>& exclusions)
{
    return array(exclusions, ExclusionJson::encode);
}

Json apps(const std::vector<AppInfo>& apps)
{
    return array(apps, [](const AppInfo& app) {
        Json document = {{"path", app.path}, {"name", app.name}, {"bundleID", app.bundleID}};
        if (app.size)
            document["size"] = *app.size;
        if (app.dataSize)
            document["dataSize"] = *app.dataSize;
        if (app.lastUse)
            document[app.lastUse->source == AppUse::Source::desktop ? "lastUsed" : "lastRead"] =
                isoText(app.lastUse->when);
        return document;
    });
}

Json leftovers(const std::vector<FileEntry>& leftovers)
{
    return entries(leftovers);
}

Json advice(const std::vector<AdviceItem>& advice)
{
    return array(advice, [](const AdviceItem& item) {
        Json document = {{"topic", item.topic},
                         {"path", item.places.front()},
                         {"size", item.size},
                         {"complete", item.known == AdviceItem::Known::all},
                         {"text", item.text.base()}};
        if (!item.command.empty())
            document["command"] = item.command;
        return document;
    });
}

Json startupItem(const LaunchItem& item)
{
    Json json = {{"label", item.label},        {"path", item.path},       {"program", item.program},
                 {"scope", item.scope.base()}, {"enabled", item.enabled}, {"kind", rawValue(item.kind())}};
    if (!item.description.empty())
        json["description"] = item.description;
    json["switchable"] = item.isSwitchable;
    if (!item.isSwitchable)
        json["reason"] = item.reason.base();
    return json;
}

Json startup(const std::vector<LaunchItem>& items)
{
    return array(items, startupItem);
}

} // namespace orlen::JsonDocuments
