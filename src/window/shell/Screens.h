#pragma once

#include "model/Text.h"
#include "window/lists/RowsModel.h"

#include <QColor>
#include <QtQml/qqmlregistration.h>

#include <string_view>

namespace orlen {

/// The screens of the main window as rows, in the order of the sidebar. Never changes.
class Screens : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Screen { Home, Photos, Ask, Predict, DiskMap, Apps, Startup, History, Safety };
    Q_ENUM(Screen)

    enum class Role {
        title = Qt::UserRole, ///< text
        symbol,               ///< icon name
        tone,                 ///< colour of the badge
        section,              ///< heading of its group
        screen,               ///< a `Screen`, which equals the row
        component,            ///< QML file of its component, which takes a `view`: the MainView
    };
    Q_ENUM(Role)

    enum class Reload {
        none,
        ownKey, ///< F5 reloads the screen
    };

    struct Meta {
        Screen screen;
        Text title;
        std::string_view symbol;
        QRgb colour;
        Text section;
        std::string_view component; ///< name of its QML type
        Reload reload = Reload::none;
    };

    using RowsModel::RowsModel;

    [[nodiscard]] static const Meta& at(Screen screen);
    Q_INVOKABLE [[nodiscard]] static QString title(orlen::Screens::Screen screen);
    /// Whether F5 belongs to the screen, wherever the keyboard is.
    Q_INVOKABLE [[nodiscard]] static bool hasReload(orlen::Screens::Screen screen);

private:
    [[nodiscard]] int length() const override;
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;
};

} // namespace orlen
