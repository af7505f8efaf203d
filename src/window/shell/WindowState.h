#pragma once

#include "app/AppModel.h"
#include "model/CleanPlan.h"
#include "window/shell/Screens.h"

#include <QObject>

#include <chrono>
#include <optional>
#include <string>
#include <variant>

namespace orlen {

/// The detail of the finding with this id stands over the main window.
struct FindingSheet {
    std::string findingId;
    friend bool operator==(const FindingSheet&, const FindingSheet&) = default;
};

/// The confirmation of a plan stands over the main window.
struct PlanSheet {
    CleanPlan plan;
    friend bool operator==(const PlanSheet&, const PlanSheet&) = default;
};

using SheetKind = std::variant<FindingSheet, PlanSheet>;

/// What the main window shows beside its screen, set from anywhere in it. Main thread.
class WindowState : public QObject {
    Q_OBJECT

public:
    /// The one that belongs to the application model and lives as long.
    [[nodiscard]] static WindowState& of(AppModel& app);

    [[nodiscard]] const std::optional<SheetKind>& sheet() const { return m_sheet; }
    void setSheet(std::optional<SheetKind> sheet);

    /// A screen that the main window is asked to show.
    [[nodiscard]] std::optional<Screens::Screen> requestedScreen() const { return m_requestedScreen; }
    void setRequestedScreen(std::optional<Screens::Screen> screen);

    /// A clean-up is shown at least this long, so that a short one can be seen.
    [[nodiscard]] std::chrono::milliseconds overlayMinimum() const { return m_overlayMinimum; }
    void setOverlayMinimum(std::chrono::milliseconds time) { m_overlayMinimum = time; }

Q_SIGNALS:
    void sheetChanged();
    void requestedScreenChanged();

private:
    using QObject::QObject;

    std::optional<SheetKind> m_sheet;
    std::optional<Screens::Screen> m_requestedScreen;
    std::chrono::milliseconds m_overlayMinimum{1800};
};

} // namespace orlen
