#pragma once

#include "tools/apps/Leftovers.h"
#include "window/apps/AppListModel.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// One application of the list, with the files that it left as a checklist. Main thread, and needs its event
/// loop; the disk is read on workers. Closes when its application is no longer listed. It closes for the
/// review too, and is back when that ends without a clean-up.
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
    /// Of the application alone; empty until measured.
    Q_PROPERTY(QString size READ size NOTIFY changed)
    /// Whether the program itself can remove it; else `advice` says how it is done.
    Q_PROPERTY(bool removable READ isRemovable NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QString command READ command NOTIFY changed)
    /// Whether it is one of the system's own.
    Q_PROPERTY(bool apple READ isApple NOTIFY changed)
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    /// Whether the leftovers are still looked for.
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
    /// Whether leftovers are withheld because another copy of the application uses them.
    Q_PROPERTY(bool otherCopy READ isOtherCopyInstalled NOTIFY changed)
    /// What to do first while the application runs; empty when it does not.
    Q_PROPERTY(QString quitFirst READ quitFirst NOTIFY changed)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY selectionChanged)
    Q_PROPERTY(QString chosenText READ chosenText NOTIFY selectionChanged)
    /// Of the application and the chosen leftovers.
    Q_PROPERTY(QString total READ total NOTIFY selectionChanged)
    /// Whether all is known that a review shows.
    Q_PROPERTY(bool ready READ isReady NOTIFY changed)

public:
    enum class Role {
        name = Qt::UserRole, ///< last component of the path
        folder,              ///< that holds it
        size,                ///< bytes as text
        note,                ///< why one should look twice; often empty
        checked,             ///< whether it goes with the application
    };
    Q_ENUM(Role)

    explicit AppDetailModel(AppModel& app = AppModelElement::model());
    ~AppDetailModel() override;

    [[nodiscard]] AppListModel* list() const { return m_list; }
    void setList(AppListModel* list);

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString origin() const;
    [[nodiscard]] QString identifier() const;
    [[nodiscard]] QString icon() const;
    [[nodiscard]] QString size() const;
    [[nodiscard]] bool isRemovable() const { return m_info.isRemovable(); }
    [[nodiscard]] QString advice() const;
    [[nodiscard]] QString command() const;
    [[nodiscard]] bool isApple() const { return Leftovers::isApple(m_info.bundleID); }
    [[nodiscard]] QString heading() const;
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] bool isOtherCopyInstalled() const { return m_isOtherCopyInstalled; }
    [[nodiscard]] QString quitFirst() const;
    [[nodiscard]] Qt::CheckState checkState() const;
    [[nodiscard]] QString chosenText() const;
    [[nodiscard]] QString total() const;
    [[nodiscard]] bool isReady() const;

    /// Shows the application in a row of the list and looks for what it left.
    Q_INVOKABLE void show(int listRow);
    Q_INVOKABLE void close();
    Q_INVOKABLE void toggle(int row);
    /// Chooses all, or none when all are chosen.
    Q_INVOKABLE void toggleAll();
    /// Puts the command of the advice on the clipboard.
    Q_INVOKABLE void copyCommand() const;
    /// Closes this and opens the review of what would be moved.
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
    Latest m_look;                  ///< at the application that is shown
    std::optional<Uuid> m_reviewed; ///< plan whose review was opened from here and is not over
    QTimer m_runningTimer;          ///< looks again whether the application still runs

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
