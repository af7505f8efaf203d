#pragma once

#include "tools/apps/Uninstall.h"
#include "window/apps/AppListModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The applications that are ticked in the list, on their way to one review. Main thread, and needs its event
/// loop; workers read the disk.
class AppBatchModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppListModel* list READ list WRITE setList NOTIFY listChanged REQUIRED)
    Q_PROPERTY(int count READ count NOTIFY changed)
    /// "2 of 5 selected", and their size with their data; empty until measured.
    Q_PROPERTY(QString chosenText READ chosenText NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    /// Whether their leftovers are being searched for.
    Q_PROPERTY(bool busy READ isBusy NOTIFY changed)

public:
    explicit AppBatchModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] AppListModel* list() const { return m_list; }
    void setList(AppListModel* list);
    [[nodiscard]] int count() const;
    [[nodiscard]] QString chosenText() const;
    [[nodiscard]] QString total() const;
    [[nodiscard]] bool isBusy() const { return m_isBusy; }

    /// Searches for what is surely theirs, then opens the review of all of it. What is found by name only is
    /// left out, and so is an application that is gone meanwhile.
    Q_INVOKABLE void review();
    /// Takes all ticks away.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void listChanged();
    void changed();

private:
    void follow();
    void show(std::vector<Uninstall::Removal> removals);
    void setBusy(bool isBusy);

    AppModel& m_app;
    AppListModel* m_list = nullptr;
    bool m_isBusy = false;
    Latest m_search;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
