#pragma once

#include "app/AppModel.h"
#include "window/shell/DesktopNotices.h"

#include <QObject>

#include <functional>

namespace orlen {

/// Tells the user through the desktop that a scan or a clean-up has ended, when the window cannot. Main
/// thread.
class EndNotices : public QObject {
    Q_OBJECT

public:
    /// `isSeen` answers whether the user is at the window anyway. The others outlive this.
    EndNotices(AppModel& app, DesktopNotices& notices, std::function<bool()> isSeen,
               QObject* parent = nullptr);

private:
    void followPhase();
    void showCleaning(const CleanRecord& record);
    void show(const DesktopNotices::Notice& notice);

    AppModel& m_app;
    DesktopNotices& m_notices;
    const std::function<bool()> m_isSeen;
    Phase m_phase; ///< before the last change
};

} // namespace orlen
