#pragma once

#include "app/Workers.h"
#include "tools/startup/LaunchItem.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <map>
#include <string>
#include <vector>

namespace orlen {

/// What starts when the user logs in, with a switch for each. Main thread, and needs its event loop; child
/// processes and the disk are left to workers.
class StartupListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Whether the list is being read; the old one stands meanwhile.
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< for people
        program,             ///< what it runs; empty when unknown
        path,                ///< of the file that describes it
        scope,               ///< whose logins it belongs to; the same for neighbours of one group
        symbol,              ///< icon name of what kind of item it is
        isOn,                ///< whether it starts; while a change is made, the value that it will have
        isBusy,              ///< whether a change is being made
        isPartOfDesktop,     ///< whether the desktop may miss it
        isSwitchable,        ///< whether its switch can work
        reason,              ///< why not, in one sentence; empty when it can
    };
    Q_ENUM(Role)

    StartupListModel();
    ~StartupListModel() override;

    [[nodiscard]] bool isLoading() const { return m_isLoading; }

    /// Reads the list anew; while a change is made, after it.
    Q_INVOKABLE void load();
    /// Switches an item, which shows the new value at once and goes back to the old one when that fails.
    /// Nothing happens while a change of the same item is being made, and to what is not switchable.
    Q_INVOKABLE void toggle(int row);

Q_SIGNALS:
    void loadingChanged();
    /// A change could not be made.
    void failed(const QString& message);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    void finishChange(const LaunchItem& item, bool wasMade);
    [[nodiscard]] bool isOn(const LaunchItem& item) const;
    void setLoading(bool isLoading);

    std::vector<LaunchItem> m_items;
    std::map<std::string, bool> m_wanted; ///< by path: changes that are being made
    bool m_isLoading = false;
    Latest m_load;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
