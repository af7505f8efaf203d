#pragma once

#include "app/AppModel.h"
#include "model/CleanPlan.h"
#include "window/shell/Screens.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <variant>

namespace orlen {

/// The detail sheet of a finding.
struct FindingSheet {
    std::string findingId;
    friend bool operator==(const FindingSheet&, const FindingSheet&) = default;
};

/// The sheet that asks to confirm a plan.
struct PlanSheet {
    CleanPlan plan;
    friend bool operator==(const PlanSheet&, const PlanSheet&) = default;
};

using SheetKind = std::variant<FindingSheet, PlanSheet>;

/// What the main window shows besides its screen; any screen may set it. Main thread.
class WindowState : public QObject {
    Q_OBJECT

public:
    /// The application model's state, which lives as long as the model.
    [[nodiscard]] static WindowState& of(AppModel& app);

    [[nodiscard]] const std::optional<SheetKind>& sheet() const { return m_sheet; }
    void setSheet(std::optional<SheetKind> sheet);

    /// The screen that the main window is asked to show.
    [[nodiscard]] std::optional<Screens::Screen> requestedScreen() const { return m_requestedScreen; }
    void setRequestedScreen(std::optional<Screens::Screen> screen);

    /// How long a clean-up is shown at least, so that a short one can be seen.
    [[nodiscard]] std::chrono::milliseconds overlayMinimum() const { return m_overlayMinimum; }
    void setOverlayMinimum(std::chrono::milliseconds time) { m_overlayMinimum = time; }

    /// How long a clean-up can be undone from the notice about it.
    [[nodiscard]] std::chrono::milliseconds undoTime() const { return m_undoTime; }
    void setUndoTime(std::chrono::milliseconds time) { m_undoTime = time; }

    /// Shows a notice. With `undo`, the user can take back what it tells of. With a time, it is there that
    /// long, and gives way to others meanwhile.
    void say(const QString& text, const std::function<void()>& undo = {},
             std::chrono::milliseconds time = {});
    /// For a restore: shows a notice of how it ended.
    [[nodiscard]] CleanUps::Done outcomeNotice();
    /// Takes a notice back that is shown or waits.
    void unsay(const QString& text);

Q_SIGNALS:
    void sheetChanged();
    void said(const QString& text, const std::function<void()>& undo, std::chrono::milliseconds time);
    void unsaid(const QString& text);
    void requestedScreenChanged();

private:
    using QObject::QObject;

    std::optional<SheetKind> m_sheet;
    std::optional<Screens::Screen> m_requestedScreen;
    std::chrono::milliseconds m_overlayMinimum{1800};
    std::chrono::milliseconds m_undoTime{60'000};
};

} // namespace orlen
