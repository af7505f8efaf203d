#pragma once

#include "clean/CleanRecord.h"
#include "clean/FolderReading.h"
#include "clean/Protection.h"
#include "insight/Predictor.h"
#include "insight/reader/NameIndex.h"
#include "model/Finding.h"
#include "model/Message.h"
#include "platform/values/Time.h"
#include "scan/HomeFiles.h"
#include "scan/StorageBreakdown.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// An installed application, as answers speak of it.
struct KnownApp {
    enum class Source {
        own,
        flatpak,
        snap,
        removed, ///< not installed any more; only its data is there
    };

    std::string name;
    std::optional<std::int64_t> bytes; ///< with what it has stored; nothing until measured
    Source source = Source::own;
    Message advice;                     ///< how to remove it another way than with Orlen; empty if Orlen can
    std::optional<TimePoint> lastUse{}; ///< nothing if nobody knows
    bool isUseNoted = false;            ///< false: its file was read then, which something else may have done
};

/// Something that starts when the person logs in.
struct KnownStartupItem {
    std::string name;
    bool isEnabled = false;
};

/// Everything an answer may be based on.
struct AskContext {
    std::vector<Finding> findings; ///< of the last scan, in display order; empty before the first
    StorageBreakdown breakdown;
    Prediction prediction;
    std::vector<CleanRecord> history; ///< past clean-ups, newest first
    TimePoint now;                    ///< when the question is asked
    /// Which rule protects a path, without touching the disk; empty if nobody knows. Any thread.
    std::function<Protection(std::string_view)> protection;
    std::vector<FolderReading> folders; ///< what folders held at the end of past scans, oldest first
    /// Nothing until they have been read.
    std::optional<std::vector<KnownApp>> apps{};
    std::optional<std::vector<KnownStartupItem>> startupItems{};
    std::optional<std::vector<FileEntry>> leftovers{}; ///< of applications that are gone, largest first
    /// What lies in the home folder; null until it has been walked, then answers know what the scan lists.
    std::shared_ptr<const HomeFiles> home{};
    /// The words in the names of the findings, made when they are first needed. Whoever asks several times
    /// about the same findings hands on the same. Never null.
    std::shared_ptr<NameCache> names = std::make_shared<NameCache>();
};

} // namespace orlen
