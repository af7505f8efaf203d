#pragma once

#include "window/apps/AppListModel.h"
#include "window/apps/LeftoverListModel.h"

#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Folders left behind by applications that are gone, as a checklist in a sheet. Nothing is checked at first.
/// Searches whenever the list of applications has been read. Main thread, and needs its event loop; workers
/// read the disk.
class LeftBehindModel : public orlen::LeftoverListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppListModel* list READ list WRITE setList NOTIFY listChanged REQUIRED)
    /// How many folders there are, and their size.
    Q_PROPERTY(QString summary READ summary NOTIFY changed)

public:
    explicit LeftBehindModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] AppListModel* list() const { return m_list; }
    void setList(AppListModel* list);

    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString heading() const override;
    [[nodiscard]] bool isLoading() const override { return m_isLoading; }
    [[nodiscard]] QString total() const override;
    [[nodiscard]] bool isReady() const override { return checkState() != Qt::Unchecked; }

    Q_INVOKABLE void show();

Q_SIGNALS:
    void listChanged();

protected:
    [[nodiscard]] CleanPlan plan() const override;
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

private:
    void search();
    void take(std::vector<FileEntry> entries);

    AppListModel* m_list = nullptr;
    bool m_isLoading = false;
    Latest m_search;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
