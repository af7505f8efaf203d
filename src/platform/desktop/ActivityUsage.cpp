#include "platform/desktop/ActivityUsage.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <sqlite3.h>
#include <string_view>

namespace orlen {

namespace {

struct Release {
    void operator()(sqlite3* database) const { ::sqlite3_close(database); }
    void operator()(sqlite3_stmt* query) const { ::sqlite3_finalize(query); }
};
using Database = std::unique_ptr<sqlite3, Release>;
using Query = std::unique_ptr<sqlite3_stmt, Release>;

/// What gives names of launchers and times in seconds. A program that opens documents names itself.
constexpr const char* kQueries[] = {
    "SELECT substr(targettedResource, 14), max(lastUpdate) FROM ResourceScoreCache "
    "WHERE targettedResource GLOB 'applications:*' GROUP BY 1 LIMIT 10000",
    "SELECT initiatingAgent || '.desktop', max(lastUpdate) FROM ResourceScoreCache GROUP BY 1 LIMIT 10000",
};

/// It has not to be modified by whoever else may have written it.
bool harden(sqlite3* database)
{
    constexpr int kOff = 0;
    constexpr int kOn = 1;
    return ::sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, kOn, nullptr) == SQLITE_OK &&
           ::sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, kOff, nullptr) == SQLITE_OK &&
           ::sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, kOff, nullptr) == SQLITE_OK &&
           ::sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, kOff, nullptr) == SQLITE_OK;
}

/// Reads these bytes, which it must not outlive; nothing is opened.
Database opened(std::string& bytes)
{
    sqlite3* made = nullptr;
    const int outcome =
        ::sqlite3_open_v2(":memory:", &made, SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY, nullptr);
    Database database(made);
    if (outcome != SQLITE_OK || !harden(made))
        return nullptr;
    const auto length = static_cast<sqlite3_int64>(bytes.size());
    auto* const start = reinterpret_cast<unsigned char*>(bytes.data());
    if (::sqlite3_deserialize(made, "main", start, length, length, SQLITE_DESERIALIZE_READONLY) != SQLITE_OK)
        return nullptr;
    // A damaged one could lead it astray for long.
    constexpr int kSteps = 50'000'000;
    ::sqlite3_progress_handler(
        made, kSteps, [](void*) { return 1; }, nullptr);
    return database;
}

/// Those that are written with a log beside them say so in two bytes, and then cannot be read from memory.
/// What is in the log is later than anything that is read here.
bool withoutLog(std::string& bytes)
{
    constexpr std::string_view kStart("SQLite format 3\0", 16);
    constexpr std::size_t kHeader = 100;
    constexpr std::size_t kWriteVersion = 18;
    constexpr std::size_t kReadVersion = 19;
    if (bytes.size() < kHeader || !std::string_view(bytes).starts_with(kStart))
        return false;
    bytes[kWriteVersion] = 1;
    bytes[kReadVersion] = 1;
    return true;
}

} // namespace

ActivityUsage ActivityUsage::ofUser(const Places& places)
{
    constexpr std::size_t kSizeLimit = 64UL * 1024 * 1024;
    for (const std::string& file : places.expand("{DATA}/kactivitymanagerd/resources/database")) {
        const auto before = statusOf(file);
        auto bytes = readSmallFile(file, kSizeLimit);
        const auto after = statusOf(file);
        if (bytes && before.ok() && after.ok() && before.value().modified == after.value().modified)
            return parse(*std::move(bytes));
    }
    return {};
}

ActivityUsage ActivityUsage::parse(std::string bytes)
{
    // In the year 2286; later ones cannot be true.
    constexpr sqlite3_int64 kLatestSeconds = 9'999'999'999;
    ActivityUsage usage;
    if (!withoutLog(bytes))
        return usage;
    const Database database = opened(bytes);
    if (!database)
        return usage;
    for (const char* text : kQueries) {
        sqlite3_stmt* made = nullptr;
        (void)::sqlite3_prepare_v2(database.get(), text, -1, &made, nullptr);
        const Query query(made);
        while (query && ::sqlite3_step(query.get()) == SQLITE_ROW) {
            const auto* const name = reinterpret_cast<const char*>(::sqlite3_column_text(query.get(), 0));
            const sqlite3_int64 seconds = ::sqlite3_column_int64(query.get(), 1);
            if (name == nullptr || seconds <= 0 || seconds > kLatestSeconds)
                continue;
            const TimePoint when{std::chrono::seconds(seconds)};
            TimePoint& latest = usage.m_uses.try_emplace(name, when).first->second;
            latest = std::max(latest, when);
        }
    }
    return usage;
}

std::optional<TimePoint> ActivityUsage::lastUse(const std::string& launcher) const
{
    const auto use = m_uses.find(launcher);
    return use == m_uses.end() ? std::nullopt : std::optional(use->second);
}

} // namespace orlen
