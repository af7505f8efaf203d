#include "window/home/DiskAccessModel.h"

#include "app/DiskAccess.h"
#include "platform/files/Places.h"
#include "window/lists/DisplayText.h"

#include <QClipboard>
#include <QGuiApplication>

namespace orlen {

DiskAccessModel::DiskAccessModel(QObject* parent)
    : QObject(parent), m_command(DisplayText::text(DiskAccess::grantingCommand(Places::current())))
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (m_app != nullptr && state == Qt::ApplicationActive)
            m_app->refreshAccess();
    });
}

void DiskAccessModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr)
        connect(m_app, &AppModel::fdaGrantedChanged, this, &DiskAccessModel::grantedChanged);
    Q_EMIT appChanged();
    Q_EMIT grantedChanged();
}

bool DiskAccessModel::isGranted() const
{
    return m_app != nullptr && m_app->isFdaGranted();
}

void DiskAccessModel::copyCommand() const
{
    QGuiApplication::clipboard()->setText(m_command);
}

} // namespace orlen
