#include "window/tray/TrayItem.h"

#include "window/tray/TrayItemInterface.h"
#include "window/tray/TrayMenuInterface.h"
#include "window/tray/TrayRegistration.h"

#include <utility>

namespace orlen {

namespace {

// The default path where desktops look.
const QString kItemPath = QStringLiteral("/StatusNotifierItem");
const QString kMenuPath = QStringLiteral("/MenuBar");

} // namespace

TrayItem::TrayItem(QDBusConnection bus, const Look& look, QObject* parent)
    : QObject(parent), m_bus(std::move(bus)),
      m_item(new TrayItemInterface(
          {look.name, look.iconName, look.pixmaps, kMenuPath},
          {[this](const QPoint& place) { Q_EMIT activated(place); }, [this] { Q_EMIT openRequested(); }},
          &m_itemObject)),
      m_menu(new TrayMenuInterface({look.openLabel, look.quitLabel},
                                   {[this] { Q_EMIT openRequested(); }, [this] { Q_EMIT quitRequested(); }},
                                   &m_menuObject)),
      m_registration(new TrayRegistration(m_bus, this))
{
    registerTrayValues();
    setTitle(look.name);
    m_bus.registerObject(kItemPath, &m_itemObject, QDBusConnection::ExportAdaptors);
    m_bus.registerObject(kMenuPath, &m_menuObject, QDBusConnection::ExportAdaptors);
    m_registration->start();
}

TrayItem::~TrayItem()
{
    m_bus.unregisterObject(kItemPath);
    m_bus.unregisterObject(kMenuPath);
}

void TrayItem::setTitle(const QString& title)
{
    m_item->setTitle(title);
    m_menu->setLine(title);
}

} // namespace orlen
