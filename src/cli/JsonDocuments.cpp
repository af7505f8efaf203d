#include "cli/JsonDocuments.h"

#include "app/AppModel.h"
#include "clean/RecordJson.h"
#include "scan/ScanProgress.h"

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

Json entries(const std::vector<FileEntry>& list)
{
    Json array = Json::array();
    for (const FileEntry& entry : list)
        array.push_back(RecordJson::encode(entry));
    return array;
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
    Json array = Json::array();
    for (const ScanStep& step : progress.steps())
        array.push_back({{"label", label(step.kind)},
                         {"state", rawValue(step.state)},
                         {"seconds", rounded(step.elapsed)}});
    return array;
}

Json failures(const std::vector<CleanFailure>& stayed)
{
    Json array = Json::array();
    for (const CleanFailure& failure : stayed)
        array.push_back({{"path", failure.path}, {"reason", orlen::rawValue(failure.reason)}});
    return array;
}

} // namespace

Json finding(const Finding& finding)
{
    return {
        {"kind", orlen::rawValue(finding.kind)},
        {"title", finding.title},
        {"explanation", finding.explanation},
        {"symbol", finding.symbol},
        {"category", orlen::rawValue(finding.category)},
        {"rating", orlen::rawValue(finding.rating)},
        {"reason", finding.reason},
        {"cleanable", finding.cleanable},
        {"size", finding.totalSize()},
        {"safeSize", finding.safeSize()},
        {"items", entries(finding.items)},
    };
}

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

Json plan(const CleanPlan& plan)
{
    Json sections = Json::array();
    for (const PlanSection& section : plan.sections) {
        sections.push_back({{"id", section.id},
                            {"title", section.title},
                            {"symbol", section.symbol},
                            {"entries", entries(section.entries)}});
    }
    return {{"title", plan.title}, {"sections", std::move(sections)}};
}

Json scan(const AppModel& model, Seconds duration)
{
    Json findings = Json::array();
    for (const Finding& found : model.results()->findings())
        findings.push_back(finding(found));
    return {
        {"findings", std::move(findings)},
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
    Json array = Json::array();
    for (const CleanRecord& record : history) {
        Json document = RecordJson::encode(record);
        document["freed"] = record.freed();
        array.push_back(std::move(document));
    }
    return array;
}

Json restore(const Cleaner::Restored& outcome, const std::string& message)
{
    return {{"record", RecordJson::encode(outcome.record)},
            {"restored", outcome.restored},
            {"failed", outcome.failed},
            {"message", message},
            {"failures", failures(outcome.failures)}};
}

Json prediction(const Prediction& prediction, std::size_t snapshots)
{
    Json rates = Json::array();
    for (const auto& [category, rate] : prediction.perCategory)
        rates.push_back({{"category", orlen::rawValue(category)}, {"bytesPerDay", rate}});
    return {
        {"enoughData", prediction.enoughData},
        {"headline", prediction.headline},
        {"detail", prediction.detail},
        {"warn", prediction.warn},
        {"perCategory", std::move(rates)},
        {"freeSeries", prediction.freeSeries},
        {"snapshots", snapshots},
    };
}

Json answer(const Answer& answer)
{
    return {{"text", answer.text}, {"findingIDs", answer.findingIDs}, {"usedModel", answer.usedModel}};
}

Json duplicates(const Finding& found, const Duplicates::Result& result, Seconds duration)
{
    Json sets = Json::array();
    for (const Duplicates::Set& set : result.sets) {
        Json copies = Json::array();
        for (const Duplicates::Copy& copy : set.copies)
            copies.push_back(copy.file.path);
        sets.push_back({{"kept", set.kept.path}, {"copies", std::move(copies)}});
    }
    return {
        {"finding", finding(found)},
        {"sets", std::move(sets)},
        {"filesConsidered", result.filesConsidered},
        {"filesHashed", result.filesHashed},
        {"bytesHashed", result.bytesHashed},
        {"seconds", rounded(duration)},
    };
}

Json photos(const std::vector<Finding>& findings, const std::vector<PhotoInfo>& photos, Seconds duration)
{
    Json found = Json::array();
    for (const Finding& one : findings)
        found.push_back(finding(one));
    Json analyzed = Json::array();
    for (const PhotoInfo& photo : photos) {
        Json labels = Json::array();
        for (const ImageLabel& label : photo.labels)
            labels.push_back({{"label", label.identifier}, {"confidence", shortened(label.confidence)}});
        analyzed.push_back({{"path", photo.cand.path},
                            {"width", photo.width},
                            {"height", photo.height},
                            {"sharpness", photo.sharpness},
                            {"labels", std::move(labels)}});
    }
    return {{"findings", std::move(found)}, {"photos", std::move(analyzed)}, {"seconds", rounded(duration)}};
}

Json map(const std::string& folder, const std::vector<TreeNode>& nodes, Seconds duration)
{
    Json array = Json::array();
    for (const TreeNode& node : nodes) {
        array.push_back({{"name", node.name},
                         {"path", node.path},
                         {"size", node.size},
                         {"isDir", node.isDir},
                         {"isOther", node.isOther}});
    }
    return {{"path", folder}, {"nodes", std::move(array)}, {"seconds", rounded(duration)}};
}

Json apps(const std::vector<AppInfo>& apps)
{
    Json array = Json::array();
    for (const AppInfo& app : apps) {
        Json document = {{"path", app.path}, {"name", app.name}, {"bundleID", app.bundleID}};
        if (app.size)
            document["size"] = *app.size;
        array.push_back(std::move(document));
    }
    return array;
}

Json leftovers(const std::vector<FileEntry>& leftovers)
{
    return entries(leftovers);
}

namespace {

const char* kindOf(LaunchSource source)
{
    switch (source) {
    case LaunchSource::launchAgent:
        return "agent";
    case LaunchSource::systemdUnit:
        return "service";
    case LaunchSource::autostartEntry:
        return "autostart";
    }
    return "";
}

} // namespace

Json startupItem(const LaunchItem& item)
{
    Json json = {{"label", item.label}, {"path", item.path},       {"program", item.program},
                 {"scope", item.scope}, {"enabled", item.enabled}, {"kind", kindOf(item.source)}};
    if (!item.description.empty())
        json["description"] = item.description;
    json["switchable"] = item.isSwitchable;
    if (!item.isSwitchable)
        json["reason"] = item.reason;
    return json;
}

Json startup(const std::vector<LaunchItem>& items)
{
    Json array = Json::array();
    for (const LaunchItem& item : items)
        array.push_back(startupItem(item));
    return array;
}

} // namespace orlen::JsonDocuments
