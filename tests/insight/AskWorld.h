#pragma once

#include "insight/AskEngine.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen {

inline constexpr std::int64_t kBytesInMB = 1'000'000;
inline constexpr std::int64_t kBytesInGB = 1'000 * kBytesInMB;

inline TimePoint on(const std::string& date)
{
    return *timeFromIso(date + "T12:00:00Z");
}

/// What an answer must hold, and what not; parts are separated by "|".
struct Row {
    const char* question;
    const char* must;
    const char* mustNot = "";
};

inline std::vector<std::string> parts(std::string_view text)
{
    std::vector<std::string> found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('|'), text.size());
        found.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

/// A home with something of everything that questions are about.
class AskWorld : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char* folder : {"Downloads", "Documents", "Pictures", "Videos", "Music", "Desktop"})
            home.folder(folder);
        home.file(".config/user-dirs.dirs",
                  "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\nXDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n"
                  "XDG_PICTURES_DIR=\"$HOME/Pictures\"\nXDG_VIDEOS_DIR=\"$HOME/Videos\"\n"
                  "XDG_MUSIC_DIR=\"$HOME/Music\"\nXDG_DESKTOP_DIR=\"$HOME/Desktop\"\n");
        TempHome::reloadPlaces();
        addFindings();
        context.now = on("2026-06-01");
        context.breakdown.total = 500 * kBytesInGB;
        context.breakdown.free = 120 * kBytesInGB;
        context.breakdown.cats = {{OrlenCategory::photos, 34 * kBytesInGB},
                                  {OrlenCategory::media, 90 * kBytesInGB},
                                  {OrlenCategory::caches, 7 * kBytesInGB},
                                  {OrlenCategory::apps, 55 * kBytesInGB},
                                  {OrlenCategory::system, 21 * kBytesInGB}};
        context.breakdown.folders = {
            {OrlenCategory::media, home.path("Videos"), 80 * kBytesInGB, {{"Projects", 41 * kBytesInGB}}},
            {OrlenCategory::documents, home.path("Downloads"), 12 * kBytesInGB, {}},
            {OrlenCategory::documents, home.path("Downloads/Torrents"), 3 * kBytesInGB, {}}};
        context.prediction = {true,
                              message("Disk nearly full in about 3 months"),
                              message("Growing by 1 GB per day."),
                              false,
                              90.0,
                              {{OrlenCategory::media, 8e8}},
                              {}};
        context.history = {
            {{},
             on("2026-05-20"),
             "Clean-up",
             {{home.path("Downloads/gone.zip"), "/t/gone.zip", kBytesInGB}}},
            {{}, on("2026-01-02"), "Clean-up", {{home.path("b"), "/t/b", 2 * kBytesInGB, true}}}};
        context.apps = {
            {"Blender", 3 * kBytesInGB, KnownApp::Source::own, {}},
            {"GIMP", 500 * kBytesInMB, KnownApp::Source::flatpak, message("Use Flatpak to remove it.")},
            {"Spotify", std::nullopt, KnownApp::Source::snap, message("Use Snap to remove it.")}};
        (*context.apps)[0].lastUse = on("2025-01-10");
        (*context.apps)[0].isUseNoted = true;
        (*context.apps)[1].lastUse = on("2026-05-01");
        context.startupItems = {{{"Nextcloud", true}, {"Old Helper", false}}};
        context.folders = {reading("2026-04-28", 31, 0, 5), reading("2026-05-20", 61, 12, 5),
                           reading("2026-05-30", 71, 12, 1), reading("2026-05-31", 80, 12, 3)};
        context.protection = [this](std::string_view path) {
            if (path == home.path(".ssh"))
                return Protection::credentials;
            return path == home.path("Documents") ? Protection::mainFolders : Protection::none;
        };
    }

    [[nodiscard]] FolderReading reading(const std::string& date, std::int64_t videos, std::int64_t downloads,
                                        std::int64_t cache) const
    {
        return {on(date),
                kBytesInMB,
                {{home.path(".cache"), cache * kBytesInGB},
                 {home.path("Downloads"), downloads * kBytesInGB},
                 {home.path("Videos"), videos * kBytesInGB}}};
    }

    /// Asks each question by itself.
    void expectAnswers(std::span<const Row> rows) const
    {
        for (const Row& row : rows)
            expectAnswer(row, AskEngine::answer(row.question, context));
    }

    static void expectAnswer(const Row& row, const Answer& answer)
    {
        SCOPED_TRACE(row.question);
        EXPECT_FALSE(answer.usedModel);
        const std::string text = answer.text.base();
        for (const std::string& part : parts(row.must))
            EXPECT_THAT(text, testing::HasSubstr(part));
        for (const std::string& part : parts(row.mustNot))
            EXPECT_THAT(text, testing::Not(testing::HasSubstr(part)));
    }

    void add(FindingKind kind, Rating rating, const Text& reason, std::vector<FileEntry> items)
    {
        Finding finding(kind, std::move(items));
        finding.rating = rating;
        finding.reason = reason;
        context.findings.push_back(std::move(finding));
    }

    [[nodiscard]] FileEntry entry(const std::string& name, std::int64_t size,
                                  const std::string& date = "2024-03-04",
                                  std::optional<Rating> rating = {}) const
    {
        return {home.path(name), size, on(date), on(date), rating, {}};
    }

    void addFindings()
    {
        add(FindingKind::caches, Rating::safe, message("Apps make them again."),
            {entry(".cache/slack", 3 * kBytesInGB), entry(".cache/mozilla", kBytesInGB)});
        add(FindingKind::logs, Rating::safe, message("Only for troubleshooting."),
            {entry(".local/app.log", 20 * kBytesInMB)});
        add(FindingKind::largeFiles, Rating::review, message("Large but maybe wanted."),
            {entry("Videos/wedding.mp4", 9 * kBytesInGB, "2019-05-05"),
             entry("Videos/holiday.mkv", 4 * kBytesInGB, "2025-07-01"),
             entry("Videos/Projects/cut.mov", 2 * kBytesInGB, "2022-02-02"),
             entry("Downloads/debian.iso", 3 * kBytesInGB, "2023-01-05")});
        add(FindingKind::oldFiles, Rating::review, message("Not opened for long."),
            {entry("Documents/contract-2021.docx", 2 * kBytesInMB, "2021-08-08", Rating::keep),
             entry("Documents/report.pdf", 5 * kBytesInMB, "2022-01-01"),
             entry("Videos/wedding.mp4", 9 * kBytesInGB, "2019-05-05")});
        add(FindingKind::oldDownloads, Rating::review, message("Lying around."),
            {entry("Downloads/report-final.pdf", 7 * kBytesInMB, "2025-12-24"),
             entry("Downloads/setup.deb", 80 * kBytesInMB, "2025-11-11")});
        add(FindingKind::duplicates, Rating::safe, message("A copy stays."),
            {entry("Music/a (1).flac", 40 * kBytesInMB)});
        add(FindingKind::photoDuplicates, Rating::review, message("Similar shots."),
            {entry("Pictures/sea2.jpg", 6 * kBytesInMB), entry("Pictures/sea3.jpg", 5 * kBytesInMB)});
        add(FindingKind::screenshots, Rating::review, message("Screen captures."),
            {entry("Pictures/Screenshot 1.png", 2 * kBytesInMB)});
    }

    TempHome home;
    AskContext context;
};

} // namespace orlen
