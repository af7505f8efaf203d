#pragma once

#include "window/shell/AppModelElement.h"
#include "window/shell/Screens.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <utility>

namespace orlen {

/// What the main window shows: onboarding or a screen, a sheet over it, or the clean-up overlay. Main thread.
class Navigation : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Whether this user has finished onboarding; kept in the user's settings.
    Q_PROPERTY(bool onboarded READ isOnboarded NOTIFY onboardedChanged)
    Q_PROPERTY(orlen::Screens::Screen screen READ screen WRITE setScreen NOTIFY screenChanged)
    Q_PROPERTY(Sheet sheet READ sheet NOTIFY sheetChanged)
    /// Id of the finding sheet's finding; else empty.
    Q_PROPERTY(QString findingId READ findingId NOTIFY sheetChanged)
    /// Whether the clean-up overlay covers everything.
    Q_PROPERTY(bool cleaning READ isCleaning NOTIFY cleaningChanged)

public:
    enum Sheet { NoSheet, FindingSheet, PlanSheet };
    Q_ENUM(Sheet)

    explicit Navigation(AppModel& app = AppModelElement::model());

    [[nodiscard]] static bool isOnboarded();
    [[nodiscard]] Screens::Screen screen() const { return m_screen; }
    void setScreen(Screens::Screen screen);
    [[nodiscard]] Sheet sheet() const;
    [[nodiscard]] QString findingId() const;
    [[nodiscard]] bool isCleaning() const { return m_app.cleanUps()->cleaning().has_value(); }

    Q_INVOKABLE void finishOnboarding();
    /// Opens the detail sheet of this finding; ignored if there is none.
    Q_INVOKABLE void showFinding(const QString& id);
    Q_INVOKABLE void closeSheet();
    /// Shows the disk map, which is to show this folder: a `PathCode`.
    Q_INVOKABLE void showFolder(const QString& code);
    /// The folder that the disk map is to show, once; empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString takeFolder() { return std::exchange(m_folder, {}); }

Q_SIGNALS:
    void onboardedChanged();
    void screenChanged();
    void sheetChanged();
    void cleaningChanged();
    /// There is a folder to take.
    void folderRequested();

private:
    void followRequest();

    AppModel& m_app;
    Screens::Screen m_screen = Screens::Home;
    QString m_folder;
};

} // namespace orlen
