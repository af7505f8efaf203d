#pragma once

#include "tools/apps/Leftovers.h"
#include "window/apps/AppInfoTexts.h"
#include "window/apps/AppListModel.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// One application of the list, with its leftover files as a checklist. Main thread, and needs its event
/// loop; workers read the disk. Closes when the application is no longer listed, and during the review; comes
/// back if the review ends without a clean-up.
class AppDetailModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppListModel* list READ list WRITE setList NOTIFY listChanged REQUIRED)
    /// Whether an application is shown.
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString origin READ origin NOTIFY changed)
    Q_PROPERTY(QString identifier READ identifier NOTIFY changed)
    Q_PROPERTY(QString icon READ icon NOTIFY changed)
    /// Of the application without leftovers; empty until measured.
    Q_PROPERTY(QString size READ size NOTIFY changed)
    /// Whether Orlen can remove it; otherwise `advice` says how to.
    Q_PROPERTY(bool removable READ isRemovable NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QString command READ command NOTIFY changed)
    /// Whether it is part of the system.
    Q_PROPERTY(bool apple READ isApple NOTIFY changed)
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    /// Whether the search for leftovers is still running.
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
    /// Whether leftovers are not offered because another copy of the application uses them.
    Q_PROPERTY(bool otherCopy READ isOtherCopyInstalled NOTIFY changed)
    /// Asks to quit the application first; empty when it is not running.
    Q_PROPERTY(QString quitFirst READ quitFirst NOTIFY changed)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY selectionChanged)
    Q_PROPERTY(QString chosenText READ chosenText NOTIFY selectionChanged)
    /// Size of the application and the checked leftovers.
    Q_PROPERTY(QString total READ total NOTIFY selectionChanged)
    /// Whether everything the review shows is known.
    Q_PROPERTY(bool ready READ isReady NOTIFY changed)

public:
    enum class Role {
        name = Qt::UserRole, ///< last path component
        folder,              ///< that contains it
        size,                ///< bytes as text
        note,                ///< why to look twice; often empty
        checked,             ///< whether it is removed with the application
    };
    Q_ENUM(Role)

    explicit AppDetailModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] AppListModel* list() const { return m_list; }
    void setList(AppListModel* list);

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] QString name() const { return DisplayText::path(m_info.name); }
    [[nodiscard]] QString origin() const { return AppInfoTexts::origin(m_info); }
    [[nodiscard]] QString identifier() const { return DisplayText::path(m_info.bundleID); }
    [[nodiscard]] QString icon() const { return AppInfoTexts::iconId(m_info); }
    [[nodiscard]] QString size() const { return m_info.size ? DisplayText::size(*m_info.size) : QString(); }
    [[nodiscard]] bool isRemovable() const { return m_info.isRemovable(); }
    [[nodiscard]] QString advice() const { return DisplayText::path(m_info.advice); }
    [[nodiscard]] QString command() const { return DisplayText::path(m_info.adviceCommand); }
    [[nodiscard]] bool isApple() const { return Leftovers::isApple(m_info.bundleID); }
    [[nodiscard]] QString heading() const { return AppInfoTexts::leftoversHeading(m_info); }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] bool isOtherCopyInstalled() const { return m_isOtherCopyInstalled; }
    [[nodiscard]] QString quitFirst() const;
    [[nodiscard]] Qt::CheckState checkState() const;
    [[nodiscard]] QString chosenText() const;
    [[nodiscard]] QString total() const;
    [[nodiscard]] bool isReady() const { return isRemovable() && !m_isLoading && m_info.size.has_value(); }

    /// Shows the application in this row of the list and searches for its leftovers.
    Q_INVOKABLE void show(int listRow);
    Q_INVOKABLE void close();
    Q_INVOKABLE void toggle(int row);
    /// Checks all rows, or unchecks all if all are checked.
    Q_INVOKABLE void toggleAll();
    /// Copies the advice's command to the clipboard.
    Q_INVOKABLE void copyCommand() const;
    /// Closes this and opens the review.
    Q_INVOKABLE void review();

Q_SIGNALS:
    void listChanged();
    void openChanged();
    void changed();
    void selectionChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        FileEntry entry;
        bool isChecked = true;

        friend bool operator==(const Row&, const Row&) = default;
    };
    struct Found;

    [[nodiscard]] static Found look(const AppInfo& app, const std::vector<AppInfo>& listed,
                                    const std::stop_token& stop);
    void take(Found found);
    void setOpen(bool isOpen);
    void checkRunning();
    void followList();
    void followSheet();
    void resume();
    [[nodiscard]] std::vector<FileEntry> chosen() const;

    AppModel& m_app;
    AppListModel* m_list = nullptr;
    bool m_isOpen = false;
    AppInfo m_info;
    std::vector<Row> m_rows;
    bool m_isLoading = false;
    bool m_isOtherCopyInstalled = false;
    bool m_isRunning = false;
    Latest m_look;                  ///< search for leftovers
    std::optional<Uuid> m_reviewed; ///< plan of a review opened from here and still open
    QTimer m_runningTimer;          ///< polls whether the application is still running

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
