#include "window/tray/TrayItem.h"

#include "FakeDesktop.h"
#include "PrivateBus.h"
#include "app/EventLoop.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <memory>

namespace orlen {

namespace {

/// An item on a connection of its own, as the program has it, seen from another.
class TrayItemTest : public testing::Test {
protected:
    TrayItemTest() : m_bus(PrivateBus::connection("item")), m_desktop(PrivateBus::connection("desktop")) {}
    ~TrayItemTest() override
    {
        QDBusConnection::disconnectFromBus("item");
        QDBusConnection::disconnectFromBus("desktop");
    }

    TrayItem& makeItem()
    {
        QImage icon(1, 1, QImage::Format_ARGB32);
        icon.setPixelColor(0, 0, QColor(0x11, 0x22, 0x33, 0x44));
        m_item = std::make_unique<TrayItem>(
            m_bus, TrayItem::Look{"Orlen", "drive", {TrayPixmap::fromImage(icon)}, "Open Orlen", "Quit"});
        return *m_item;
    }

    QVariantList call(const char* path, const char* interface, const char* method,
                      const QVariantList& arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(m_bus.baseService(), path, interface, method);
        message.setArguments(arguments);
        const QDBusMessage answer = answered(m_desktop, message);
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << qPrintable(answer.errorMessage());
        return answer.arguments();
    }

    QVariantList callMenu(const char* method, const QVariantList& arguments)
    {
        return call("/MenuBar", "com.canonical.dbusmenu", method, arguments);
    }

    QVariant property(const char* name)
    {
        const QVariantList values = call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                                         {"org.kde.StatusNotifierItem", name});
        return values.value(0).value<QDBusVariant>().variant();
    }

    void chooseFromMenu(int id, const char* event = "clicked")
    {
        callMenu("Event", {id, event, QVariant::fromValue(QDBusVariant(0)), 0U});
    }

    QDBusConnection m_bus;
    QDBusConnection m_desktop;
    std::unique_ptr<TrayItem> m_item;
};

} // namespace

TEST_F(TrayItemTest, tellsItsTextsAndPicture)
{
    TrayItem& item = makeItem();
    EXPECT_EQ(property("Title").toString(), "Orlen");
    item.setTitle("1.5 GB free");
    EXPECT_EQ(property("Title").toString(), "1.5 GB free");
    EXPECT_EQ(property("XAyatanaLabel").toString(), "1.5 GB free");
    EXPECT_EQ(property("Status").toString(), "Active");
    EXPECT_EQ(property("IconName").toString(), "drive");
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), "/MenuBar");
    EXPECT_FALSE(property("ItemIsMenu").toBool());
    EXPECT_EQ(qdbus_cast<TrayToolTip>(property("ToolTip")).title, "1.5 GB free");
    const auto pixmaps = qdbus_cast<TrayPixmaps>(property("IconPixmap"));
    ASSERT_EQ(pixmaps.size(), 1);
    EXPECT_EQ(pixmaps[0].width, 1);
    EXPECT_EQ(pixmaps[0].bytes, QByteArray::fromHex("44112233"));
}

TEST_F(TrayItemTest, hasAMenuWhoseQuietLineFollowsTheTitle)
{
    makeItem().setTitle("2 GB free");
    const QVariantList answer = callMenu("GetLayout", {0, -1, QStringList()});
    ASSERT_EQ(answer.size(), 2);
    const auto menu = qdbus_cast<TrayMenuNode>(answer[1]);
    ASSERT_EQ(menu.children.size(), 4);
    EXPECT_EQ(menu.children[0].properties, (QVariantMap{{"label", "2 GB free"}, {"enabled", false}}));
    EXPECT_EQ(menu.children[1].properties.value("type"), "separator");
    EXPECT_EQ(menu.children[2].properties.value("label"), "Open Orlen");
    EXPECT_EQ(menu.children[3].properties.value("label"), "Quit");

    const auto flat = qdbus_cast<TrayMenuNode>(callMenu("GetLayout", {0, 0, QStringList()}).value(1));
    EXPECT_TRUE(flat.children.isEmpty());
    const QVariantList some =
        callMenu("GetGroupProperties", {QVariant::fromValue(QList<int>{1, 3, 99}), QStringList{"label"}});
    const auto properties = qdbus_cast<TrayMenuPropertiesList>(some.value(0));
    ASSERT_EQ(properties.size(), 2);
    EXPECT_EQ(properties[0].properties, (QVariantMap{{"label", "2 GB free"}}));
    EXPECT_EQ(properties[1].properties, (QVariantMap{{"label", "Open Orlen"}}));
}

TEST_F(TrayItemTest, passesClicksOn)
{
    TrayItem& item = makeItem();
    QSignalSpy activated(&item, &TrayItem::activated);
    QSignalSpy opened(&item, &TrayItem::openRequested);
    QSignalSpy quit(&item, &TrayItem::quitRequested);
    call("/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate", {100, 20});
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated[0][0].toPoint(), QPoint(100, 20));
    chooseFromMenu(1);
    chooseFromMenu(3, "hovered");
    EXPECT_EQ(opened.count() + quit.count(), 0);
    chooseFromMenu(3);
    EXPECT_EQ(opened.count(), 1);
    const QVariantList unknown =
        callMenu("EventGroup", {QVariant::fromValue(TrayMenuEvents{{4, "clicked", QDBusVariant(0), 0},
                                                                   {99, "clicked", QDBusVariant(0), 0}})});
    EXPECT_EQ(quit.count(), 1);
    EXPECT_EQ(qdbus_cast<QList<int>>(unknown.value(0)), QList<int>{99});
}

TEST_F(TrayItemTest, tellsTheDesktopWhenTheTextChanges)
{
    TrayItem& item = makeItem();
    (void)property("Title");
    SignalLog log;
    for (const char* name : {"NewTitle", "NewToolTip", "ItemsPropertiesUpdated"})
        m_desktop.connect(m_bus.baseService(), {}, {}, name, &log, SLOT(add(QDBusMessage)));
    item.setTitle("3 GB free");
    EXPECT_TRUE(waitUntil([&] { return log.names().size() == 3; }));
    item.setTitle("3 GB free");
    (void)property("Title");
    EXPECT_EQ(log.names(), (QStringList{"NewTitle", "NewToolTip", "ItemsPropertiesUpdated"}));
}

TEST_F(TrayItemTest, comesBackWhenTheTrayRestarts)
{
    makeItem();
    const QStringList itself{m_bus.baseService()};
    for (const char* round : {"a tray that comes later", "the same after a restart"}) {
        SCOPED_TRACE(round);
        const FakeTray tray(true);
        EXPECT_TRUE(waitUntil([&] { return !tray.items().isEmpty(); }));
        EXPECT_EQ(tray.items(), itself);
    }
}

TEST_F(TrayItemTest, isNotThereUntilSomethingShowsTheTray)
{
    FakeTray tray(false);
    makeItem();
    // An answered call of the same connection means that the ones before it were answered too.
    (void)property("Title");
    (void)answered(m_bus,
                   QDBusMessage::createMethodCall("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                                                  "org.freedesktop.DBus.Peer", "Ping"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(tray.items().isEmpty());
    tray.addHost();
    EXPECT_TRUE(waitUntil([&] { return tray.items() == QStringList{m_bus.baseService()}; }));
}

} // namespace orlen
