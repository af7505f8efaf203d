#include "window/shell/Reveal.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace orlen {

namespace {

/// Without a session bus, and with an opener that writes down what it was asked for.
class RevealTest : public testing::Test {
protected:
    void makeOpener(int status) const
    {
        m_home.file(m_home.outside("bin/xdg-open"), "#!/bin/sh\necho \"$1\" > '" + asked() +
                                                        ".new'\n/bin/mv '" + asked() + ".new' '" + asked() +
                                                        "'\nexit " + std::to_string(status) + "\n");
        TempHome::setMode(m_home.outside("bin/xdg-open"), 0755);
    }

    [[nodiscard]] std::string asked() const { return m_home.path("asked"); }

    TempHome m_home;
    Reveal m_reveal;
    QSignalSpy m_failures{&m_reveal, &Reveal::failed};
};

} // namespace

TEST_F(RevealTest, opensTheFolderWhenNoFileManagerAnswers)
{
    makeOpener(0);
    Reveal::show(m_home.path("some folder/caf\xe9%41.bin"));
    ASSERT_TRUE(waitUntil([&] { return TempHome::exists(asked()); }));
    EXPECT_EQ(TempHome::content(asked()), "file://" + m_home.path("some%20folder") + "\n");
    EXPECT_TRUE(m_failures.isEmpty());
}

TEST_F(RevealTest, saysWhenNothingCanShowThePath)
{
    const std::string path = m_home.path("a\nb");
    Reveal::show(path);
    ASSERT_TRUE(waitUntil([&] { return !m_failures.isEmpty(); }));
    EXPECT_EQ(m_failures.takeFirst().first().toString(), QString::fromStdString(m_home.path("a?b")));
    makeOpener(3);
    Reveal::open(path);
    ASSERT_TRUE(waitUntil([&] { return !m_failures.isEmpty(); }));
    EXPECT_EQ(TempHome::content(asked()), "file://" + m_home.path("a%0Ab") + "\n");
}

TEST(RevealWithoutWindowTest, doesNothing)
{
    EXPECT_EQ(Reveal::current(), nullptr);
    Reveal::show("/nowhere");
}

} // namespace orlen
