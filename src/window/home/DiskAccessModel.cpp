#include "window/home/DiskAccessModel.h"

#include "app/DiskAccess.h"
#include "platform/files/Places.h"
#include "window/lists/DisplayText.h"

#include <QClipboard>
#include <QGuiApplication>

namespace orlen {

DiskAccessModel::DiskAccessModel(AppModel& app)
    : m_app(app), m_command(DisplayText::text(DiskAccess::grantingCommand(Places::current())))
{
    connect(m_app.results(), &Results::fdaGrantedChanged, this, &DiskAccessModel::grantedChanged);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            m_app.results()->refreshAccess();
    });
}

void DiskAccessModel::copyCommand() const
{
    QGuiApplication::clipboard()->setText(m_command);
}

} // namespace orlen
