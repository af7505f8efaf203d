#pragma once

#include "window/WindowTexts.h"
#include "window/cleaning/FailureListModel.h"
#include "window/lists/DisplayText.h"
#include "window/shell/AppModelElement.h"
#include "window/shell/WindowState.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The running or just finished clean-up, ready to show. Keeps its last state while the overlay closes. Main
/// thread.
class CleaningModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool finished READ isFinished NOTIFY changed)
    /// Progress from 0 to 1; 1 at the end.
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(QString planTitle READ planTitle NOTIFY changed)
    /// Name of the current item.
    Q_PROPERTY(QString current READ current NOTIFY changed)
    /// "12 of 340"
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)
    Q_PROPERTY(int moved READ moved NOTIFY changed)
    /// "12 moved to the Trash"
    Q_PROPERTY(QString movedText READ movedText NOTIFY changed)
    Q_PROPERTY(int failed READ failed NOTIFY changed)
    /// "1 couldn't be moved"
    Q_PROPERTY(QString failedText READ failedText NOTIFY changed)
    Q_PROPERTY(QString freedText READ freedText NOTIFY changed)
    /// What could not be moved; empty until finished.
    Q_PROPERTY(orlen::FailureListModel* failures READ failures CONSTANT)
    /// Whether the clean-up is in the history.
    Q_PROPERTY(bool recorded READ isRecorded NOTIFY changed)
    /// What is told of services that could not be switched off; usually empty.
    Q_PROPERTY(QString stillOn READ stillOn NOTIFY changed)
    /// Whether the user has asked to stop.
    Q_PROPERTY(bool stopping READ isStopping NOTIFY changed)

public:
    explicit CleaningModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isFinished() const { return m_state.finished; }
    [[nodiscard]] double fraction() const;
    [[nodiscard]] QString planTitle() const { return DisplayText::text(m_state.planTitle); }
    [[nodiscard]] QString current() const { return DisplayText::path(m_state.current); }
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] int moved() const { return m_state.moved; }
    [[nodiscard]] QString movedText() const
    {
        return DisplayText::counted(m_state.moved, WindowTexts::kMoved);
    }
    [[nodiscard]] int failed() const { return m_state.failed; }
    [[nodiscard]] QString failedText() const
    {
        return DisplayText::counted(m_state.failed, WindowTexts::kNotMoved);
    }
    [[nodiscard]] QString freedText() const { return DisplayText::size(m_state.freed); }
    [[nodiscard]] FailureListModel* failures() { return &m_failures; }
    [[nodiscard]] bool isRecorded() const { return m_state.isRecorded; }
    [[nodiscard]] QString stillOn() const;
    [[nodiscard]] bool isStopping() const { return m_isStopping && !m_state.finished; }

    /// Stops the clean-up after the current item.
    Q_INVOKABLE void stop();

Q_SIGNALS:
    void changed();

private:
    void follow();

    AppModel& m_app;
    WindowState& m_window;
    CleaningState m_state;
    FailureListModel m_failures{FailureListModel::Where::inPlace};
    bool m_isShown = false;
    bool m_isStopping = false;
    QElapsedTimer m_sinceShown;
    QTimer m_end; ///< delays showing the end of a short clean-up
};

} // namespace orlen
