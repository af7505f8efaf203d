#pragma once

#include "app/ModelPart.h"
#include "app/Workers.h"
#include "clean/CleanRecord.h"
#include "clean/Cleaner.h"
#include "model/CleanPlan.h"
#include "model/Message.h"
#include "model/ModelState.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace orlen {

class ExclusionList;
class Results;
class Storage;

/// Clean-ups, restores and the history they leave. Main thread; workers do the moving. On destruction a
/// running clean-up or restore finishes its current item and is recorded.
class CleanUps : public ModelPart {
    Q_OBJECT

public:
    /// Whether moves can be recorded. A reader must not start any.
    enum class Access { reader, writer };

    /// Moved items are removed from `results`, what `exclusions` lists is not moved, and `storage` is updated
    /// afterwards; all outlive this.
    CleanUps(std::vector<CleanRecord> history, Access access, Results& results,
             const ExclusionList& exclusions, Storage& storage, QObject* parent = nullptr);
    ~CleanUps() override;

    /// Empty while no clean-up is shown.
    [[nodiscard]] const std::optional<CleaningState>& cleaning() const { return m_cleaning; }
    /// Newest first.
    [[nodiscard]] const std::vector<CleanRecord>& history() const { return m_history; }

    /// Moves every entry of the plan to the Trash; an empty plan is ignored. Writers only.
    void confirm(const CleanPlan& plan);
    /// Stops the clean-up after its current item; ignored when none is running.
    Q_INVOKABLE void cancelCleaning();
    /// Stops showing the clean-up.
    Q_INVOKABLE void dismissCleaning();

    struct Restoration {
        Cleaner::Restored outcome;
        Message message;        ///< one line for the user
        bool isRecorded = true; ///< false: the history could not be saved; the next start will
    };
    /// Puts a past clean-up back before returning. Blocks on the disk, so not for a window. Writers only, and
    /// not for a record that is being restored.
    Restoration restore(const CleanRecord& record);
    using Done = std::function<void(const Restoration&)>;
    /// Starts putting a past clean-up back, or what is wanted of it; `restored` follows, then `whenDone`.
    /// False, without starting, while the same record is being restored. Writers only.
    bool startRestore(const CleanRecord& record, const Cleaner::Wanted& wanted = {},
                      const Done& whenDone = {});
    /// Stops a restore after its current item; ignored when none of this record is running.
    void cancelRestore(const Uuid& record);
    /// The restore of this record that is running; null if there is none. Valid until the next change.
    [[nodiscard]] const RestoreState* restoring(const Uuid& record) const;
    [[nodiscard]] bool isRestoring(const Uuid& record) const { return restoring(record) != nullptr; }
    /// Why the last try to put this item back failed; nothing if it did not, or nobody tried since the start.
    [[nodiscard]] std::optional<FailureReason> restoreFailure(const Uuid& record,
                                                              const std::string& original) const;
    /// The record in the history; null if it is not there. Valid until the next change.
    [[nodiscard]] const CleanRecord* recordOf(const Uuid& id) const;

Q_SIGNALS:
    void cleaningChanged();
    void historyChanged();
    /// A clean-up has ended. Its record is in the history only if it contains an item.
    void cleaningFinished(const orlen::CleanRecord& record);
    /// The set of records being restored changed.
    void restoringChanged();
    /// The state of a running restore changed.
    void restoreProgressed(const orlen::Uuid& record);
    /// A restore started by `startRestore` has ended.
    void restored(const orlen::CleanUps::Restoration& restoration);

private:
    /// The outcome of a clean-up, shared with its worker; empty until the worker ends.
    using PendingCleanUp = std::shared_ptr<std::optional<Cleaner::Cleaned>>;
    /// A restore whose outcome is shared with its worker in the same way.
    struct PendingRestore {
        Uuid record;
        std::shared_ptr<std::optional<Cleaner::Restored>> outcome;
        RestoreState state;
        std::stop_source stop{std::nostopstate};
    };
    using Show = std::function<void(int done, int total, const std::string& current)>;

    /// For a worker: has `show` run on the main thread, not too often.
    [[nodiscard]] Cleaner::Progress report(Show show) const;
    void showCleaning(int number, int done, const std::string& current);
    void finishCleaning(int number, const PendingCleanUp& pending, std::vector<std::string> stillOn);
    /// Whether the history could be saved.
    bool keep(const CleanRecord& record);
    [[nodiscard]] PendingRestore* pendingRestore(const Uuid& record);
    void showRestore(const Uuid& record, RestoreState state);
    void noteFailures(const Cleaner::Restored& outcome);
    [[nodiscard]] Restoration finishRestore(Cleaner::Restored outcome);
    void checkWriter() const;

    const Access m_access;
    Results& m_results;
    const ExclusionList& m_exclusions;
    Storage& m_storage;
    std::optional<CleaningState> m_cleaning;
    std::vector<CleanRecord> m_history;
    int m_number = 0; ///< of the clean-up shown
    std::stop_source m_stop{std::nostopstate};
    std::vector<PendingCleanUp> m_pending; ///< clean-ups not yet in the history
    std::vector<PendingRestore> m_restores;
    /// Of the last restores, by the record's id and the item's original place.
    std::map<std::pair<std::string, std::string>, FailureReason> m_restoreFailures;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
