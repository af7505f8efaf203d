#include "window/startup/LoginItemModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace orlen {

class LoginItemModelTest : public testing::Test {
protected:
    [[nodiscard]] bool settle()
    {
        return waitUntil([&] { return !m_items.isBusy(); });
    }

    const TempHome m_home;
    LoginItemModel m_items;
};

TEST_F(LoginItemModelTest, opensTheProgramAtLoginAndNoLonger)
{
    m_items.toggleRegistered();
    EXPECT_TRUE(m_items.isRegistered());
    ASSERT_TRUE(settle());
    EXPECT_TRUE(m_items.isRegistered());
    EXPECT_EQ(m_items.obstacle(), "");
    EXPECT_TRUE(TempHome::exists(m_home.path(".config/autostart/orlen.desktop")));
    m_items.toggleRegistered();
    ASSERT_TRUE(settle());
    EXPECT_FALSE(m_items.isRegistered());
    EXPECT_FALSE(TempHome::exists(m_home.path(".config/autostart/orlen.desktop")));
}

TEST_F(LoginItemModelTest, returnsToTheRealStateWhenThatFails)
{
    TempHome::setMode(m_home.folder(".config/autostart"), 0500);
    m_items.toggleRegistered();
    ASSERT_TRUE(settle());
    EXPECT_FALSE(m_items.isRegistered());
    EXPECT_EQ(m_items.obstacle(), "the autostart folder can't be written to.");
    TempHome::setMode(m_home.path(".config/autostart"), 0700);
    m_items.toggleRegistered();
    ASSERT_TRUE(settle());
    EXPECT_TRUE(m_items.isRegistered());
    EXPECT_EQ(m_items.obstacle(), "");
}

} // namespace orlen
