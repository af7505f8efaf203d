#include "window/startup/StartupListModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/shell/WindowState.h"
#include "window/startup/StartupOrderModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

namespace {

using ItemRole = StartupListModel::Role;

constexpr const char* kEntry = ".config/autostart/kite.desktop";
constexpr const char* kFolder = ".config/autostart";

void writeEntry(const TempHome& home, const std::string& name, const std::string& label)
{
    home.file(std::string(kFolder) + "/" + name,
              "[Desktop Entry]\nName=" + label + "\nExec=/usr/bin/kite -x\n");
}

QVariant value(const StartupListModel& items, const QString& name, ItemRole role)
{
    const auto found =
        items.match(items.index(0), static_cast<int>(ItemRole::name), name, 1, Qt::MatchExactly);
    return found.isEmpty() ? QVariant() : found.front().data(static_cast<int>(role));
}

int rowOf(const StartupListModel& items, const QString& name)
{
    return items.match(items.index(0), static_cast<int>(ItemRole::name), name, 1, Qt::MatchExactly)
        .value(0)
        .row();
}

[[nodiscard]] bool load(StartupListModel& items)
{
    items.load();
    return waitUntil([&] { return !items.isLoading(); });
}

} // namespace

class StartupListModelTest : public testing::Test {
protected:
    const TempHome m_home;
    AppModel m_app{{}};
    StartupListModel m_items{m_app};
    const QAbstractItemModelTester m_tester{&m_items, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(StartupListModelTest, switchesAnItemAndShowsItAtOnce)
{
    writeEntry(m_home, "kite.desktop", "Kite");
    ASSERT_TRUE(load(m_items));
    EXPECT_EQ(value(m_items, "Kite", ItemRole::program), "/usr/bin/kite");
    EXPECT_EQ(value(m_items, "Kite", ItemRole::path), QString("~/") + kEntry);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::scope), "Your account");
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), true);

    const QSignalSpy failures(&m_items, &StartupListModel::failed);
    const int row = rowOf(m_items, "Kite");
    m_items.toggle(row);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), false);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isBusy), true);
    m_items.toggle(row); // one change at a time
    ASSERT_TRUE(waitUntil([&] { return !value(m_items, "Kite", ItemRole::isBusy).toBool(); }));
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), false);
    EXPECT_TRUE(TempHome::content(m_home.path(kEntry)).find("Hidden=true") != std::string::npos);
    EXPECT_EQ(failures.count(), 0);
}

TEST_F(StartupListModelTest, aNoticeCanUndoTheChange)
{
    writeEntry(m_home, "kite.desktop", "Kite");
    ASSERT_TRUE(load(m_items));
    std::vector<std::function<void()>> undos;
    QObject::connect(&WindowState::of(m_app), &WindowState::said,
                     [&](const QString&, const std::function<void()>& undo) { undos.push_back(undo); });
    m_items.toggle(rowOf(m_items, "Kite"));
    ASSERT_TRUE(waitUntil([&] { return undos.size() == 1; }));
    undos.front()();
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), true);
    ASSERT_TRUE(waitUntil([&] { return undos.size() == 2; }));
    EXPECT_TRUE(TempHome::content(m_home.path(kEntry)).find("Hidden=false") != std::string::npos);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), true);
}

TEST_F(StartupListModelTest, itIsFilteredAndSortedWithinEachGroup)
{
    writeEntry(m_home, "b.desktop", "Birch");
    writeEntry(m_home, "a.desktop", "Alder");
    m_home.file(".config/autostart/c.desktop",
                "[Desktop Entry]\nName=Cedar\nExec=saw --fast\nComment=Cuts\n");
    ASSERT_TRUE(load(m_items));
    StartupOrderModel ordered;
    ordered.setList(&m_items);
    const auto names = [&] {
        QStringList all;
        for (int row = 0; row < ordered.rowCount(); ++row) {
            if (ordered.index(row, 0).data(static_cast<int>(ItemRole::scope)) == "Your account")
                all += ordered.index(row, 0).data(static_cast<int>(ItemRole::name)).toString();
        }
        return all.join(' ');
    };
    EXPECT_EQ(names(), "Alder Birch Cedar");
    ordered.sortBy(StartupOrderModel::ByName);
    EXPECT_EQ(names(), "Alder Birch Cedar");
    ordered.sortBy(StartupOrderModel::ByName);
    EXPECT_EQ(names(), "Cedar Birch Alder");
    for (const char* words : {"--FAST", "cuts", "c.desktop cedar"}) {
        ordered.setFilter(words);
        EXPECT_EQ(names(), "Cedar") << words;
    }
    ordered.toggle(0);
    EXPECT_EQ(value(m_items, "Cedar", ItemRole::isOn), false);
    ASSERT_TRUE(waitUntil([&] { return !value(m_items, "Cedar", ItemRole::isBusy).toBool(); }));
}

TEST_F(StartupListModelTest, goesBackAndSaysSoWhenTheChangeFails)
{
    writeEntry(m_home, "kite.desktop", "Kite");
    ASSERT_TRUE(load(m_items));
    TempHome::setMode(m_home.path(kFolder), 0500);
    const QSignalSpy failures(&m_items, &StartupListModel::failed);
    m_items.toggle(rowOf(m_items, "Kite"));
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), false);
    ASSERT_TRUE(waitUntil([&] { return failures.count() > 0; }));
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), true);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isBusy), false);
    EXPECT_EQ(failures.front().front(), "Kite couldn't be switched off. Nothing has changed.");
    TempHome::setMode(m_home.path(kFolder), 0700);
}

TEST_F(StartupListModelTest, whatCannotBeSwitchedStaysAsItIs)
{
    writeEntry(m_home, "../dotfiles.desktop", "Kite");
    m_home.link(kEntry, m_home.path(".config/dotfiles.desktop"));
    ASSERT_TRUE(load(m_items));
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isSwitchable), false);
    EXPECT_NE(value(m_items, "Kite", ItemRole::reason), "");
    m_items.toggle(rowOf(m_items, "Kite"));
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isBusy), false);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), true);
}

TEST_F(StartupListModelTest, aListReadDuringAChangeDoesNotUndoIt)
{
    writeEntry(m_home, "kite.desktop", "Kite");
    ASSERT_TRUE(load(m_items));
    m_items.load();
    m_items.toggle(rowOf(m_items, "Kite"));
    m_items.load();
    bool wasEverOn = false;
    QObject::connect(&m_items, &QAbstractItemModel::dataChanged,
                     [&] { wasEverOn = wasEverOn || value(m_items, "Kite", ItemRole::isOn).toBool(); });
    ASSERT_TRUE(waitUntil([&] { return !m_items.isLoading(); }));
    EXPECT_FALSE(wasEverOn);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isBusy), false);
    EXPECT_EQ(value(m_items, "Kite", ItemRole::isOn), false);
}

TEST_F(StartupListModelTest, keepsItsRowsWhenItIsReadAgain)
{
    writeEntry(m_home, "b.desktop", "Birch");
    writeEntry(m_home, "c.desktop", "Cedar");
    ASSERT_TRUE(load(m_items));
    const QPersistentModelIndex birch = m_items.index(rowOf(m_items, "Birch"));
    writeEntry(m_home, "a.desktop", "Alder");
    writeEntry(m_home, "b.desktop", "Birch 2");
    ASSERT_TRUE(load(m_items));
    ASSERT_TRUE(birch.isValid());
    EXPECT_EQ(birch.data(static_cast<int>(ItemRole::name)), "Birch 2");
    EXPECT_EQ(birch.row(), rowOf(m_items, "Alder") + 1);
}

} // namespace orlen
