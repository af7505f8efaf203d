#include "platform/desktop/ActivityUsage.h"

#include "platform/files/Places.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <sqlite3.h>

namespace orlen {

namespace {

constexpr const char* kDatabase = ".local/share/kactivitymanagerd/resources/database";

/// Makes a database like the desktop's.
void make(const TempHome& home, const std::string& rows, const std::string& mode = "WAL")
{
    home.file(kDatabase, "");
    sqlite3* database = nullptr;
    ASSERT_EQ(::sqlite3_open(home.path(kDatabase).c_str(), &database), SQLITE_OK);
    const std::string text =
        "PRAGMA journal_mode = " + mode +
        "; CREATE TABLE ResourceScoreCache (usedActivity TEXT, initiatingAgent TEXT, "
        "targettedResource TEXT, scoreType INTEGER, cachedScore FLOAT, firstUpdate INTEGER, "
        "lastUpdate INTEGER);" +
        rows;
    EXPECT_EQ(::sqlite3_exec(database, text.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    ::sqlite3_close(database);
}

std::string row(const std::string& agent, const std::string& resource, const std::string& last)
{
    return "INSERT INTO ResourceScoreCache VALUES ('a', '" + agent + "', '" + resource + "', 0, 1.5, 1, " +
           last + ");";
}

std::optional<long long> lastUse(const TempHome& /*home*/, const std::string& launcher)
{
    const auto when = ActivityUsage::ofUser(Places::current()).lastUse(launcher);
    return when ? std::optional<long long>(std::chrono::system_clock::to_time_t(*when)) : std::nullopt;
}

} // namespace

TEST(ActivityUsageTest, tellsWhenSomethingWasStartedOrOpenedADocument)
{
    const TempHome home;
    EXPECT_EQ(lastUse(home, "org.kde.kate.desktop"), std::nullopt) << "no database";
    for (const char* mode : {"WAL", "DELETE"}) {
        SCOPED_TRACE(mode);
        std::filesystem::remove(home.path(kDatabase));
        make(home,
             row("org.kde.plasma.kicker", "applications:org.kde.kate.desktop", "1700000000") +
                 row("org.kde.krunner", "applications:org.kde.kate.desktop", "1700000500") +
                 row("org.kde.gwenview", "/home/a/picture.png", "1710000000") +
                 row("org.kde.plasma.kicker", "applications:org.kde.gwenview.desktop", "1600000000") +
                 row("org.kde.plasma.kicker", "applications:never.desktop", "0") +
                 row("org.kde.plasma.kicker", "applications:odd.desktop", "'soon'"),
             mode);
        EXPECT_EQ(lastUse(home, "org.kde.kate.desktop"), 1'700'000'500);
        EXPECT_EQ(lastUse(home, "org.kde.gwenview.desktop"), 1'710'000'000);
        for (const char* name : {"never.desktop", "odd.desktop", "/home/a/picture.png", "kate.desktop"})
            EXPECT_EQ(lastUse(home, name), std::nullopt) << name;
    }
}

TEST(ActivityUsageTest, aDamagedDatabaseTellsNothing)
{
    const TempHome home;
    make(home, row("org.kde.krunner", "applications:org.kde.kate.desktop", "1700000500"));
    const std::string whole = TempHome::content(home.path(kDatabase));
    ASSERT_GT(whole.size(), 4096U);
    for (std::size_t length = 0; length < whole.size(); length += 512)
        EXPECT_FALSE(ActivityUsage::parse(whole.substr(0, length)).lastUse("org.kde.kate.desktop")) << length;
    for (std::size_t at = 100; at < whole.size(); at += 97) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(~damaged[at]);
        (void)ActivityUsage::parse(std::move(damaged));
    }
    std::string views = "DROP TABLE ResourceScoreCache; CREATE VIEW ResourceScoreCache AS SELECT "
                        "'applications:org.kde.kate.desktop' AS targettedResource, 'a' AS initiatingAgent, "
                        "1700000500 AS lastUpdate;";
    std::filesystem::remove(home.path(kDatabase));
    make(home, views);
    EXPECT_EQ(lastUse(home, "org.kde.kate.desktop"), std::nullopt) << "not the desktop's own";
    EXPECT_EQ(TempHome::content(home.path(kDatabase)).substr(0, 6), "SQLite");
    EXPECT_FALSE(TempHome::exists(home.path(std::string(kDatabase) + "-shm")))
        << "nothing is written beside it";
    std::filesystem::rename(home.path(kDatabase), home.path("elsewhere"));
    home.link(kDatabase, home.path("elsewhere"));
    EXPECT_EQ(lastUse(home, "a.desktop"), std::nullopt);
}

} // namespace orlen
