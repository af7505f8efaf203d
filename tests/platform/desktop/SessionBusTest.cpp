#include "platform/desktop/SessionBus.h"

#include "platform/process/ChildProcess.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace orlen {
namespace {

TEST(SessionBusTest, noBusIsStartedWhereThereIsNone)
{
    struct Case {
        const char* name;
        const char* address;
        bool hasSocket;
        const char* expected;
    };
    const Case cases[] = {
        {"nothing known", "", false, "disabled:"},
        {"one to be started", "autolaunch:scope=x", true, "disabled:"},
        {"the usual socket", "", true, ""},
        {"an address", "unix:path=/nowhere", false, "unix:path=/nowhere"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        TempHome::useSystemTools();
        TempHome::setVariable("DBUS_SESSION_BUS_ADDRESS", c.address);
        TempHome::setVariable("XDG_RUNTIME_DIR", home.folder("run"));
        if (c.hasSocket)
            home.file("run/bus");
        SessionBus::startNone();
        EXPECT_STREQ(std::getenv("DBUS_SESSION_BUS_ADDRESS"), c.expected);
        EXPECT_EQ(SessionBus::isMissing(), std::string(c.expected) == "disabled:");
        const auto child =
            ChildProcess::run({{"sh", "-c", "printf %s \"${DBUS_SESSION_BUS_ADDRESS-none}\""}, {}});
        ASSERT_TRUE(child);
        EXPECT_EQ(child->output, SessionBus::isMissing() ? "none" : c.expected);
    }
}

} // namespace
} // namespace orlen
