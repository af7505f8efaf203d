#pragma once

#include "tools/apps/Leftovers.h"
#include "window/apps/AppInfoTexts.h"
#include "window/apps/AppListModel.h"
#include "window/apps/LeftoverListModel.h"
#include "window/lists/DisplayText.h"

#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// One application of the list, with its leftover files as a checklist: checked are those that are surely its
/// own. Main thread, and needs its event loop; workers read the disk. Closes when the application is no
/// longer listed.
class AppDetailModel : public orlen::LeftoverListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppListModel* list READ list WRITE setList NOTIFY listChanged REQUIRED)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString origin READ origin NOTIFY changed)
    Q_PROPERTY(QString identifier READ identifier NOTIFY changed)
    Q_PROPERTY(QString icon READ icon NOTIFY changed)
    /// Of the application, and of its data where that is no leftover to choose; empty until measured.
    Q_PROPERTY(QString size READ size NOTIFY changed)
    /// When it was last used, and how much of `size` is data.
    Q_PROPERTY(QString usage READ usage NOTIFY changed)
    /// Whether Orlen can remove it; otherwise `advice` says how to.
    Q_PROPERTY(bool removable READ isRemovable NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QString command READ command NOTIFY changed)
    /// Whether leftovers are not offered because another copy of the application uses them.
    Q_PROPERTY(bool otherCopy READ isOtherCopyInstalled NOTIFY changed)
    /// Asks to quit the application first; empty when it is not running.
    Q_PROPERTY(QString quitFirst READ quitFirst NOTIFY changed)

public:
    explicit AppDetailModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] AppListModel* list() const { return m_list; }
    void setList(AppListModel* list);

    [[nodiscard]] QString name() const { return DisplayText::path(m_info.name); }
    [[nodiscard]] QString origin() const { return AppInfoTexts::origin(m_info); }
    [[nodiscard]] QString identifier() const { return DisplayText::path(m_info.bundleID); }
    [[nodiscard]] QString icon() const { return AppInfoTexts::iconId(m_info); }
    [[nodiscard]] QString size() const;
    [[nodiscard]] QString usage() const
    {
        return isRemovable() ? AppInfoTexts::lastUse(m_info) : AppInfoTexts::usage(m_info);
    }
    [[nodiscard]] bool isRemovable() const { return m_info.isRemovable(); }
    [[nodiscard]] QString advice() const { return DisplayText::text(m_info.advice); }
    [[nodiscard]] QString command() const { return DisplayText::line(m_info.adviceCommand); }
    [[nodiscard]] QString heading() const override { return AppInfoTexts::leftoversHeading(m_info); }
    [[nodiscard]] bool isLoading() const override { return m_isLoading; }
    [[nodiscard]] bool isOtherCopyInstalled() const { return m_isOtherCopyInstalled; }
    [[nodiscard]] QString quitFirst() const;
    /// Of the application and the checked leftovers.
    [[nodiscard]] QString total() const override;
    [[nodiscard]] bool isReady() const override
    {
        return isRemovable() && !m_isLoading && m_info.size.has_value();
    }

    /// Shows the application in this row of the list and searches for its leftovers.
    Q_INVOKABLE void show(int listRow);
    void close() override;
    /// Copies the advice's command to the clipboard.
    Q_INVOKABLE void copyCommand() const;

Q_SIGNALS:
    void listChanged();

protected:
    [[nodiscard]] CleanPlan plan() const override;
    void resumed() override;

private:
    struct Found;

    [[nodiscard]] static Found look(const AppInfo& app, const std::vector<AppInfo>& listed,
                                    const std::stop_token& stop);
    void take(Found found);
    void checkRunning();
    void followList();

    AppListModel* m_list = nullptr;
    AppInfo m_info;
    bool m_isLoading = false;
    bool m_isOtherCopyInstalled = false;
    bool m_isRunning = false;
    Latest m_look;         ///< search for leftovers
    QTimer m_runningTimer; ///< polls whether the application is still running

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
