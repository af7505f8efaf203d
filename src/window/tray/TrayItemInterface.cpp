#include "window/tray/TrayItemInterface.h"

#include <utility>

namespace orlen {

TrayItemInterface::TrayItemInterface(const Look& look, Clicks clicks, QObject* parent)
    : QDBusAbstractAdaptor(parent), m_look(look), m_clicks(std::move(clicks))
{
}

void TrayItemInterface::setTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    Q_EMIT NewTitle();
    Q_EMIT NewToolTip();
    Q_EMIT XAyatanaNewLabel(m_title, labelGuide());
}

TrayToolTip TrayItemInterface::toolTip() const
{
    return {m_look.iconName, m_look.pixmaps, m_title, {}};
}

} // namespace orlen
