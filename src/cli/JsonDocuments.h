#pragma once

#include "clean/Cleaner.h"
#include "insight/AskEngine.h"
#include "insight/Growth.h"
#include "insight/Predictor.h"
#include "model/CleanPlan.h"
#include "model/Finding.h"
#include "scan/Explanation.h"
#include "scan/StorageBreakdown.h"
#include "scan/duplicates/Duplicates.h"
#include "scan/photos/PhotoAnalyzer.h"
#include "tools/TreeNode.h"
#include "tools/advice/AdviceItem.h"
#include "tools/apps/AppInfo.h"
#include "tools/startup/LaunchItem.h"

#include <chrono>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

class AppModel;

/// What the commands print with `--json`, which is the same in every language. Records look as they do on
/// disk; sizes are in bytes.
namespace JsonDocuments {

using Json = nlohmann::ordered_json;
using Seconds = std::chrono::duration<double>;

[[nodiscard]] Json breakdown(const StorageBreakdown& breakdown);

/// Needs a finished scan.
[[nodiscard]] Json scan(const AppModel& model, Seconds duration);
/// For a plan that was shown but not carried out.
[[nodiscard]] Json dryRun(const CleanPlan& plan);
[[nodiscard]] Json clean(const CleanPlan& plan, const CleanRecord& record,
                         const std::vector<CleanFailure>& failures);
[[nodiscard]] Json history(const std::vector<CleanRecord>& history);
[[nodiscard]] Json restore(const Cleaner::Restored& outcome, const Message& message);
[[nodiscard]] Json answer(const Answer& answer);
[[nodiscard]] Json prediction(const Prediction& prediction, std::size_t snapshots);
/// Nothing: there are no two scans to compare.
[[nodiscard]] Json growth(const std::optional<Growth>& growth);
[[nodiscard]] Json duplicates(const Finding& finding, const Duplicates::Result& result, Seconds duration);
[[nodiscard]] Json photos(const std::vector<Finding>& findings, const std::vector<PhotoInfo>& photos,
                          const PhotoCoverage& coverage, Seconds duration);
[[nodiscard]] Json map(const std::string& folder, const std::vector<TreeNode>& nodes, Seconds duration);
[[nodiscard]] Json explanation(const Explanation& explanation);
[[nodiscard]] Json exclusions(const std::vector<Exclusion>& exclusions);
[[nodiscard]] Json apps(const std::vector<AppInfo>& apps);
[[nodiscard]] Json leftovers(const std::vector<FileEntry>& leftovers);
[[nodiscard]] Json startupItem(const LaunchItem& item);
[[nodiscard]] Json advice(const std::vector<AdviceItem>& advice);
[[nodiscard]] Json startup(const std::vector<LaunchItem>& items);

} // namespace JsonDocuments
} // namespace orlen
