#pragma once

#include "tools/apps/AppInfo.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace orlen {

/// The installed applications by name. Names appear at once, sizes as they are measured. Reloads after every
/// clean-up and restore. Main thread, and needs its event loop; workers read the disk.
class AppListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Whether the list is being read; the old one stays until then.
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(bool measuring READ isMeasuring NOTIFY summaryChanged)
    /// How many applications there are and, as far as known, their size.
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)
    /// How many programs of the distribution's packages are not listed; empty when there are none.
    Q_PROPERTY(QString packaged READ packaged NOTIFY summaryChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< display name
        origin,              ///< kind and place of the installation
        usage,               ///< how much of it is data, and its last use; may be empty
        icon,                ///< id for `AppIconProvider`
        isRemovable,         ///< whether it can be ticked
        checked,             ///< whether it is ticked, to be removed with others
        size,                ///< bytes with its data as text; empty until measured
    };
    Q_ENUM(Role)

    explicit AppListModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] bool isMeasuring() const { return m_sizes != nullptr; }
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString packaged() const;
    [[nodiscard]] const std::vector<AppInfo>& apps() const { return m_apps; }

    /// Those that are ticked, in the order of the list.
    [[nodiscard]] std::vector<AppInfo> ticked() const;
    /// Ticks an application, or takes its tick away; ignored when it is not removable.
    Q_INVOKABLE void tick(int row);
    void untickAll();

    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

    /// Reads the list and measures it again. The latest load wins.
    Q_INVOKABLE void load();

Q_SIGNALS:
    void loadingChanged();
    void summaryChanged();
    void tickedChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_apps.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    class Sizes;
    struct Loaded {
        std::vector<AppInfo> apps;
        std::size_t packaged = 0;
    };

    void show(Loaded loaded);
    void measure();
    void takeSizes();
    void setLoading(bool isLoading);

    std::vector<AppInfo> m_apps;
    std::set<std::string> m_ticked; ///< paths
    std::size_t m_packaged = 0;
    bool m_isLoading = false;
    Latest m_work;                  ///< the load, then the measuring
    std::shared_ptr<Sizes> m_sizes; ///< null while nothing is measured
    QTimer m_takeTimer;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
