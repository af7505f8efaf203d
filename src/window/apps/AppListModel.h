#pragma once

#include "app/AppModel.h"
#include "tools/apps/AppInfo.h"

#include <QAbstractListModel>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace orlen {

/// The installed applications by name. Names are shown at once and sizes as they are measured. Loaded again
/// after every clean-up. Main thread, and needs its event loop; the disk is read on workers.
class AppListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// Whether the list is being read; the old one stands meanwhile.
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(bool measuring READ isMeasuring NOTIFY summaryChanged)
    Q_PROPERTY(int count READ count NOTIFY summaryChanged)
    /// How many there are and, as far as it is known, how much they take.
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< of the application, as a person reads it
        origin,              ///< what kind of installation it is, and where
        icon,                ///< identity for `AppIconProvider`
        size,                ///< bytes as text; empty until measured
        bytes,               ///< the same as a number, to sort by; -1 until measured
    };

    explicit AppListModel(QObject* parent = nullptr);
    ~AppListModel() override;

    [[nodiscard]] AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] bool isMeasuring() const { return m_sizes != nullptr; }
    [[nodiscard]] int count() const { return static_cast<int>(m_apps.size()); }
    [[nodiscard]] QString summary() const;
    [[nodiscard]] const std::vector<AppInfo>& apps() const { return m_apps; }

    /// Reads the list anew and measures it. The latest load wins.
    Q_INVOKABLE void load();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void appChanged();
    void loadingChanged();
    void summaryChanged();

private:
    class Sizes;

    void show(std::vector<AppInfo> apps);
    void setRows(std::vector<AppInfo> apps);
    void measure();
    void takeSizes();
    void setLoading(bool isLoading);

    AppModel* m_app = nullptr;
    std::vector<AppInfo> m_apps;
    bool m_isLoading = false;
    int m_generation = 0; ///< number of the latest load
    std::stop_source m_stop{std::nostopstate};
    std::shared_ptr<Sizes> m_sizes; ///< null while nothing is measured
    QTimer m_takeTimer;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
