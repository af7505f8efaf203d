#pragma once

#include "app/AppModel.h"
#include "window/shell/DesktopNotices.h"

#include <QObject>

#include <functional>

namespace orlen {

/// Shows a desktop notice when a scan or clean-up ends while the user is not at the window. Main thread.
class EndNotices : public QObject {
    Q_OBJECT

public:
    /// `isSeen` says whether the user is looking at the window. The other arguments outlive this.
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
