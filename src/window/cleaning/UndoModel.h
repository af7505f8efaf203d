#pragma once

#include "window/cleaning/FailureListModel.h"
#include "window/shell/AppModelElement.h"
#include "window/shell/WindowState.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <optional>

namespace orlen {

/// Undoes the last clean-up: at its end, and for a while after it was dismissed by a notice. Main thread.
class UndoModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Whether the clean-up can be undone now, or the rest of it.
    Q_PROPERTY(bool available READ isAvailable NOTIFY changed)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    /// Whether an undoing has ended, and its outcome is shown.
    Q_PROPERTY(bool ended READ isEnded NOTIFY changed)
    /// Whether the undoing is to be shown though the clean-up was dismissed: it takes its time, or failed.
    Q_PROPERTY(bool returned READ isReturned NOTIFY changed)
    /// Progress from 0 to 1.
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    /// "12 of 340"
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)
    /// Name of the item being put back.
    Q_PROPERTY(QString current READ current NOTIFY changed)
    Q_PROPERTY(bool stopping READ isStopping NOTIFY changed)
    /// Items put back when ended.
    Q_PROPERTY(int restored READ restored NOTIFY changed)
    /// "12 restored"
    Q_PROPERTY(QString restoredText READ restoredText NOTIFY changed)
    /// "1 couldn't be restored"; empty for none.
    Q_PROPERTY(QString failedText READ failedText NOTIFY changed)
    /// What could not be put back; empty until ended.
    Q_PROPERTY(orlen::FailureListModel* failures READ failures CONSTANT)
    /// Whether what was put back is noted in the history.
    Q_PROPERTY(bool recorded READ isRecorded NOTIFY changed)

public:
    explicit UndoModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isAvailable() const;
    [[nodiscard]] bool isRunning() const { return m_phase == Phase::running; }
    [[nodiscard]] bool isEnded() const { return m_phase == Phase::ended; }
    [[nodiscard]] bool isReturned() const { return m_isReturned; }
    [[nodiscard]] double fraction() const;
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] QString current() const;
    [[nodiscard]] bool isStopping() const { return m_state.isStopping; }
    [[nodiscard]] int restored() const { return m_restored; }
    [[nodiscard]] QString restoredText() const;
    [[nodiscard]] QString failedText() const;
    [[nodiscard]] FailureListModel* failures() { return &m_failures; }
    [[nodiscard]] bool isRecorded() const { return m_isRecorded; }

    /// Starts putting everything back; ignored unless available.
    Q_INVOKABLE void undo();
    /// Stops after the current item.
    Q_INVOKABLE void stop();
    /// Dismisses the clean-up and what its undoing shows.
    Q_INVOKABLE void dismiss();
    /// Shows the Trash in the file manager.
    Q_INVOKABLE static void openTrash();

Q_SIGNALS:
    void changed();

private:
    enum class Phase { none, running, ended };

    void followCleaning();
    void followHistory();
    void followProgress(const Uuid& record);
    void finish(const CleanUps::Restoration& restoration);
    void offer();
    void withdraw();
    [[nodiscard]] bool isDismissed() const { return !m_app.cleanUps()->cleaning().has_value(); }

    AppModel& m_app;
    WindowState& m_window;
    Phase m_phase = Phase::none;
    std::optional<Uuid> m_record; ///< of the last clean-up, unless it moved nothing
    QString m_offer;              ///< the notice that offers to undo; empty for none
    RestoreState m_state;
    int m_restored = 0;
    bool m_isRecorded = true;
    bool m_isReturned = false;
    FailureListModel m_failures{FailureListModel::Where::inTrash};
    QTimer m_return; ///< delays showing an undoing that may end soon
};

} // namespace orlen
