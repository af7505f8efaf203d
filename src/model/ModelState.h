#pragma once

#include "model/CleanFailure.h"
#include "model/Message.h"
#include "platform/values/Uuid.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The values through which the application model shows the screens what is going on.
namespace orlen {

enum class Phase { idle, scanning, results };

/// Progress of a restore.
struct RestoreState {
    int total = 0;       ///< items to put back; 0 until known
    int done = 0;        ///< items handled so far
    std::string current; ///< name of the item being put back
    bool isStopping = false;

    friend bool operator==(const RestoreState&, const RestoreState&) = default;
};

/// Progress of a clean-up.
struct CleaningState {
    int total = 0;       ///< entries to move
    int done = 0;        ///< entries handled so far
    std::string current; ///< name of the entry being moved
    bool finished = false;
    std::optional<Uuid> record; ///< in the history, once finished; nothing if nothing moved
    std::int64_t freed = 0;     ///< bytes moved
    int moved = 0;
    int failed = 0;
    Message planTitle;
    std::vector<CleanFailure> failures;   ///< what could not be moved, in path order; known once finished
    std::optional<FailureReason> refusal; ///< why nothing was started: the plan could not be written down
    bool isRecorded = true; ///< false: the history could not be saved; the next start will do it
    /// Units among the items that could not be switched off before they moved; known once finished.
    std::vector<std::string> servicesStillOn;

    friend bool operator==(const CleaningState&, const CleaningState&) = default;
};

} // namespace orlen
