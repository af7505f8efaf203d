#include "window/shell/DesktopNotices.h"

#include "FakeDesktop.h"
#include "PrivateBus.h"
#include "app/EventLoop.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace orlen {

TEST(DesktopNoticesTest, showsOneNoticeAndOpensOnlyOnAClickOnIt)
{
    FakeNotices service;
    DesktopNotices notices(QDBusConnection::sessionBus(), "Open Orlen");
    QSignalSpy opened(&notices, &DesktopNotices::opened);
    notices.show({"Smart Scan finished", "A & B"});
    ASSERT_TRUE(waitUntil([&] { return service.shown().size() == 1; }));
    EXPECT_EQ(service.shown()[0].replaced, 0U);
    EXPECT_EQ(service.shown()[0].text, "A &amp; B");
    EXPECT_EQ(service.shown()[0].actions, (QStringList{"default", "Open Orlen"}));

    service.click(6); // another program's
    service.click(7);
    ASSERT_TRUE(waitUntil([&] { return opened.count() > 0; }));
    EXPECT_EQ(opened.count(), 1);
    EXPECT_EQ(opened[0][0].value<LaunchToken>().wayland, "token");

    notices.show({"Again", {}});
    ASSERT_TRUE(waitUntil([&] { return service.shown().size() == 2; }));
    EXPECT_EQ(service.shown()[1].replaced, 7U);
}

} // namespace orlen
