#pragma once

#include "scan/ScanProgress.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace orlen {

/// The steps of the running scan, one row each, and what it is examining. Polls the scan's progress several
/// times a second. Main thread.
class ScanProgressModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Number of files examined so far.
    Q_PROPERTY(QString files READ files NOTIFY changed)
    Q_PROPERTY(int fileCount READ fileCount NOTIFY changed)
    /// How much of the scan is done, 0 to 1.
    Q_PROPERTY(double share READ share NOTIFY changed)
    /// What is being examined; empty at the start.
    Q_PROPERTY(QString current READ current NOTIFY changed)
    /// Whether the user has asked to stop this scan.
    Q_PROPERTY(bool cancelling READ isCancelling NOTIFY cancellingChanged)

public:
    enum State {
        Pending = static_cast<int>(StepState::pending),
        Running = static_cast<int>(StepState::running),
        Done = static_cast<int>(StepState::done),
    };
    Q_ENUM(State)

    enum class Role {
        label = Qt::UserRole, ///< name of the step
        state,                ///< a `State`
        duration,             ///< of a finished step, as text; else empty
        amount,               ///< "40 of 1,200 · 3 minutes left" while a long step runs; else empty
    };
    Q_ENUM(Role)

    explicit ScanProgressModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString files() const { return DisplayText::number(m_files); }
    [[nodiscard]] int fileCount() const { return static_cast<int>(m_files); }
    [[nodiscard]] double share() const { return m_share; }
    [[nodiscard]] QString current() const { return m_current; }
    [[nodiscard]] bool isCancelling() const { return m_isCancelling; }

    /// Asks the running scan to stop.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void changed();
    void cancellingChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_steps.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    void followPhase();
    void poll();
    using Steps = std::array<ScanStep, kScanSteps>;

    void setSteps(const ScanProgress& progress);

    AppModel& m_app;
    QTimer m_timer;
    Steps m_steps;
    std::int64_t m_files = 0;
    double m_share = 0;
    std::array<QString, kScanSteps> m_amounts; ///< by row
    QString m_current;
    bool m_isCancelling = false;
};

} // namespace orlen
