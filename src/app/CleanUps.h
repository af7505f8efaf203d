#pragma once

#include "app/ModelPart.h"
#include "app/Workers.h"
#include "clean/CleanRecord.h"
#include "clean/Cleaner.h"
#include "model/CleanPlan.h"
#include "model/ModelState.h"

#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class Results;
class Storage;

/// Clean-ups, restores and the history they leave. Main thread; the moving itself is done by workers. When
/// this is destroyed, a clean-up or restore finishes the item in hand and is recorded.
class CleanUps : public ModelPart {
    Q_OBJECT

public:
    /// Whether moves can be recorded; without that, none may be asked for.
    enum class Access { reader, writer };

    /// `results` loses what was moved, `storage` is brought up to date after it; both outlive this.
    CleanUps(std::vector<CleanRecord> history, Access access, Results& results, Storage& storage,
             QObject* parent = nullptr);
    ~CleanUps() override;

    /// Nothing while no clean-up is shown.
    [[nodiscard]] const std::optional<CleaningState>& cleaning() const { return m_cleaning; }
    /// Newest first.
    [[nodiscard]] const std::vector<CleanRecord>& history() const { return m_history; }

    /// Moves all entries of the plan to the Trash. Nothing happens when it holds none. Only for a writer.
    void confirm(const CleanPlan& plan);
    /// Lets the clean-up finish the item in hand and end; ignored when none is running.
    Q_INVOKABLE void cancelCleaning();
    /// Closes the display of a clean-up.
    Q_INVOKABLE void dismissCleaning();

    struct Restoration {
        Cleaner::Restored outcome;
        std::string message;    ///< one line for the user
        bool isRecorded = true; ///< false: the history could not be saved; the next start does it
    };
    /// Puts a past clean-up back before it returns: blocks on the disk, so not for a window. Only for a
    /// writer, and not for a record that is being restored.
    Restoration restore(const CleanRecord& record);
    /// Starts to put a past clean-up back; `restored` follows. False, and nothing happens, while the same
    /// record is being restored. Only for a writer.
    bool startRestore(const CleanRecord& record);
    /// Whether `startRestore` is at work on the record.
    [[nodiscard]] bool isRestoring(const Uuid& record) const;

Q_SIGNALS:
    void cleaningChanged();
    void historyChanged();
    /// A clean-up has ended. The record is in the history only when it holds an item.
    void cleaningFinished(const orlen::CleanRecord& record);
    /// Which records are being restored.
    void restoringChanged();
    /// What was begun by `startRestore` has ended.
    void restored(const orlen::CleanUps::Restoration& restoration);

private:
    /// Of one clean-up, shared with its worker: nothing until the worker has ended.
    using PendingCleanUp = std::shared_ptr<std::optional<Cleaner::Cleaned>>;
    /// A restore whose outcome is shared with its worker in the same manner.
    struct PendingRestore {
        Uuid record;
        std::shared_ptr<std::optional<Cleaner::Restored>> outcome;
    };

    [[nodiscard]] Cleaner::Progress cleaningReport(int number);
    void showCleaning(int number, int done, const std::string& current);
    void finishCleaning(int number, const PendingCleanUp& pending);
    /// Whether the history could be saved.
    bool keep(const CleanRecord& record);
    [[nodiscard]] Restoration finishRestore(Cleaner::Restored outcome);
    void checkWriter() const;

    const Access m_access;
    Results& m_results;
    Storage& m_storage;
    std::optional<CleaningState> m_cleaning;
    std::vector<CleanRecord> m_history;
    int m_number = 0; ///< of the clean-up that is shown
    std::stop_source m_stop{std::nostopstate};
    std::vector<PendingCleanUp> m_pending; ///< clean-ups that are not yet in the history
    std::vector<PendingRestore> m_restores;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
