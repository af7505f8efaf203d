#pragma once

#include "app/Workers.h"
#include "tools/startup/LaunchItem.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <map>
#include <string>
#include <vector>

namespace orlen {

/// What starts when the user logs in, with a switch for each item. Main thread, and needs its event loop;
/// workers handle the disk and child processes.
class StartupListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Whether the list is being read; the old one stays until then.
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< display name
        program,             ///< what it runs; empty when unknown
        path,                ///< of its configuration file
        details,             ///< its kind, where it comes from and its purpose
        hint,                ///< why it cannot be switched, its whole command and its file, in lines
        scope,               ///< whose logins it belongs to; the list is grouped by it
        symbol,              ///< icon for the kind of item
        isOn,                ///< whether it starts; during a change, the new value
        isBusy,              ///< whether it is being changed
        isPartOfDesktop,     ///< whether the desktop may need it
        isSwitchable,        ///< whether its switch can work
        reason,              ///< why it cannot, in one sentence; empty when it can
    };
    Q_ENUM(Role)

    explicit StartupListModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] const std::vector<LaunchItem>& items() const { return m_items; }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

    /// Reads the list again, after any change in progress.
    Q_INVOKABLE void load();
    /// Switches an item. It shows the new value at once and the old one again on failure. Ignored while the
    /// item is being changed or when it is not switchable. A notice tells what was done and can undo it.
    Q_INVOKABLE void toggle(int row);

Q_SIGNALS:
    void loadingChanged();
    /// A change failed.
    void failed(const QString& message);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Change {
        bool wasMade = false;
        std::vector<LaunchItem> after; ///< all items after it: one switch may move others
    };
    /// Switches the item over.
    void change(const LaunchItem& item);
    void finishChange(const LaunchItem& item, const Change& change);
    void tell(LaunchItem item);
    [[nodiscard]] bool isOn(const LaunchItem& item) const;
    void setLoading(bool isLoading);

    AppModel& m_app;
    std::vector<LaunchItem> m_items;
    std::map<std::string, bool> m_wanted; ///< changes in progress, by path
    bool m_isLoading = false;
    Latest m_load;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
