#include "support/Command.h"
#include "support/PrivateMounts.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace orlen {
namespace {

using testing::HasSubstr;
using Arguments = std::vector<std::string>;

/// A home folder, parts of which lie on a server that is gone.
struct Stricken {
    const char* name;
    const char* runtime;        ///< folder of sockets, beside the home folder
    Arguments dead;             ///< mount points below the home folder; "." for itself
    const char* link = nullptr; ///< leads to a dead mount outside
    bool isNamedByLink = false; ///< the home folder itself is given through a link
    const char* told = nullptr; ///< what a look into the history says of it
    int status = 0;
};

const Stricken kHomes[] = {
    {"what is scanned", "run1", {"Downloads", ".config", ".var/app/x"}, "Pictures"},
    {"what is written",
     "server",
     {".local/share", ".local/state", ".cache"},
     "Videos",
     true,
     "~/.local/share lies"},
    {"the program's own",
     "run3",
     {".local/share/Trash", ".local/share/Orlen", ".cache/foo"},
     ".nv",
     false,
     "Orlen lies"},
    {"the home folder", "run4", {"."}, nullptr, false, "home folder", 2},
};

class DeadMountTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!mounts.obstacle().empty())
            GTEST_SKIP() << mounts.obstacle();
        const std::string server = home.folder(home.outside("server"));
        if (!mounts.dead(server))
            GTEST_SKIP() << "no file system in user space can be mounted";
        for (const Stricken& stricken : kHomes) {
            const std::string folder = folderOf(stricken);
            if (home.outside(stricken.runtime) != server)
                home.folder(home.outside(stricken.runtime));
            home.fileOfSize(folder + "/.xsession-errors", 65'536);
            home.fileOfSize(folder + "/Documents/film.mkv", 1'228'800);
            if (stricken.link != nullptr)
                home.link(folder + "/" + stricken.link, server);
            for (const std::string& point : stricken.dead)
                ASSERT_TRUE(mounts.dead(home.folder(folder + "/" + point))) << point;
        }
        home.link(home.outside("home-link"), folderOf(kHomes[1]));
    }

    [[nodiscard]] std::string folderOf(const Stricken& stricken) const { return home.outside(stricken.name); }

    /// The program in that home folder; killed, which the status tells, when it hangs.
    [[nodiscard]] CommandOutcome run(const Stricken& stricken, const Arguments& arguments,
                                     const Arguments& around) const
    {
        Arguments words{"sh",
                        "-c",
                        "cd /; exec \"$@\" 2>&1",
                        "sh",
                        "env",
                        "HOME=" + (stricken.isNamedByLink ? home.outside("home-link") : folderOf(stricken)),
                        "QT_QPA_PLATFORM=offscreen",
                        "XDG_RUNTIME_DIR=" + home.outside(stricken.runtime),
                        "ASAN_OPTIONS=detect_leaks=0", // the window keeps what it has drawn
                        "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"};
        words.insert(words.end(), around.begin(), around.end());
        words.emplace_back(ORLEN_BINARY);
        words.insert(words.end(), arguments.begin(), arguments.end());
        return runCommand(words);
    }

    TempHome home;
    PrivateMounts mounts; ///< undone before the home folder is emptied
};

TEST_F(DeadMountTest, nothingWaitsForAServerThatIsGone)
{
    const Arguments kill{"timeout", "-s", "KILL", "25"};
    // Long enough to open the window, which then is closed as by the session.
    const Arguments close{"timeout", "--preserve-status", "-k", "20", "5"};
    const Arguments commands[] = {{},
                                  {"scan"},
                                  {"clean", "--dry-run"},
                                  {"history"},
                                  {"map"},
                                  {"apps"},
                                  {"breakdown"},
                                  {"startup"},
                                  {"ask", "What is taking up space?"},
                                  {"predict"},
                                  {"duplicates"}};
    const Arguments moving{"clean", "--yes"};
    struct Run {
        const Stricken& stricken;
        const Arguments& command;
        CommandOutcome outcome;
    };
    std::vector<Run> runs;
    for (const Stricken& stricken : kHomes) {
        for (const Arguments& command : commands)
            runs.push_back({stricken, command, {}});
    }
    // Without Trash and history a clean-up is refused.
    const std::size_t firstRefused = runs.size();
    for (const Stricken* stricken : {&kHomes[1], &kHomes[2]})
        runs.push_back({*stricken, moving, {}});
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t at = next++; at < runs.size(); at = next++)
            runs[at].outcome =
                run(runs[at].stricken, runs[at].command, runs[at].command.empty() ? close : kill);
    };
    {
        // Most of them only wait.
        std::vector<std::jthread> workers;
        for (int i = 0; i < 16; ++i)
            workers.emplace_back(work);
    }
    for (const Run& run : std::span(runs).subspan(firstRefused)) {
        EXPECT_EQ(run.outcome.status, 2) << run.outcome.output;
        EXPECT_THAT(run.outcome.output, HasSubstr("the Trash or the history lies on a network disk"));
        EXPECT_TRUE(TempHome::exists(folderOf(run.stricken) + "/.xsession-errors"));
    }
    for (const Run& run : std::span(runs).first(firstRefused)) {
        const std::string command = run.command.empty() ? "window" : run.command.front();
        SCOPED_TRACE(std::string(run.stricken.name) + ": " + command);
        EXPECT_EQ(run.outcome.status, run.stricken.status) << run.outcome.output;
        if (run.stricken.told != nullptr && command == "history") {
            EXPECT_THAT(run.outcome.output, HasSubstr(run.stricken.told));
        }
    }
}

} // namespace
} // namespace orlen
