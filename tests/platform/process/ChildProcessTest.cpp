#include "platform/process/ChildProcess.h"
#include "platform/files/UniqueFd.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using ChildProcess::Call;
using testing::HasSubstr;
using testing::Not;

Call shell(const std::string& script)
{
    return {{"sh", "-c", script}, {}};
}

bool hasNoChildren()
{
    return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

/// Looks until it is so, for at most ten seconds.
template <typename Condition>
bool becomesTrue(Condition condition)
{
    const auto end = std::chrono::steady_clock::now() + 10s;
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(2ms);
    return condition();
}

/// False for one that has ended and that nobody has taken note of.
bool isAlive(const std::string& process)
{
    const std::string status = TempHome::content("/proc/" + process + "/stat");
    const std::size_t state = status.rfind(") ");
    return state != std::string::npos && status[state + 2] != 'Z';
}

/// A set of signals that a process tells of itself, without those of the C library's own.
std::uint64_t signalsOf(const ChildProcess::Outcome& status, const std::string& name)
{
    const std::size_t at = status.output.find(name + ":\t");
    if (at == std::string::npos)
        return ~std::uint64_t{0};
    const std::uint64_t own = (1ULL << (32U - 1U)) | (1ULL << (33U - 1U));
    return std::stoull(status.output.substr(at + name.size() + 2, 16), nullptr, 16) & ~own;
}

std::string firstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

class ChildProcessTest : public testing::Test {
protected:
    ChildProcessTest() { TempHome::useSystemTools(); }

    const TempHome home;
};

} // namespace

TEST_F(ChildProcessTest, outputAndStatusComeBack)
{
    Call call = shell("printf '%s|%s' \"$ORLEN_WORD\" \"$HOME\"; echo unheard >&2; exit 3");
    call.environment = {"ORLEN_WORD=a b", "HOME=/elsewhere"};
    const auto outcome = ChildProcess::run(call);
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->status, 3);
    EXPECT_EQ(outcome->output, "a b|/elsewhere");
    EXPECT_TRUE(hasNoChildren());
}

TEST_F(ChildProcessTest, argumentsAreNotReadByAShell)
{
    const auto outcome = ChildProcess::run({{"echo", "$HOME; exit 1", "*", ""}, {}});
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->output, "$HOME; exit 1 * \n");
}

TEST_F(ChildProcessTest, standardInputIsEmpty)
{
    const auto outcome = ChildProcess::run({{"cat"}, {}});
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->output, "");
}

TEST_F(ChildProcessTest, whatGoesWrongGivesNothing)
{
    struct Case {
        const char* name;
        Call call;
    };
    const std::string limit = std::to_string(ChildProcess::kOutputLimit);
    const Case cases[] = {
        {"no program", {}},
        {"empty name", {{""}, {}}},
        {"unknown program", {{"orlen-has-no-such-program"}, {}}},
        {"missing file", {{"/nowhere/program"}, {}}},
        {"a folder", {{"/"}, {}}},
        {"a zero byte", {{"echo", std::string("a\0b", 3)}, {}}},
        {"ended by a signal", shell("kill -9 $$")},
        {"not UTF-8", shell("printf '\\377'")},
        {"cut off inside a character", shell("printf 'a\\342\\202'")},
        {"too much output", shell("head -c " + limit + " /dev/zero; echo")},
        {"endless output", shell("trap '' TERM PIPE; while :; do echo endless; done")},
        {"time over", {{"sleep", "60"}, {}, 50ms}},
        {"time over, deaf", {{"sh", "-c", "trap '' TERM; while :; do sleep 0.01; done"}, {}, 50ms}},
        {"time over, output closed", {{"sh", "-c", "exec >&-; sleep 60"}, {}, 50ms}},
        {"no time at all", {{"true"}, {}, 0ms}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto before = std::chrono::steady_clock::now();
        EXPECT_FALSE(ChildProcess::run(c.call));
        EXPECT_LT(std::chrono::steady_clock::now() - before, 30s);
        EXPECT_TRUE(hasNoChildren());
    }
}

TEST_F(ChildProcessTest, asMuchOutputAsIsAllowedComesBack)
{
    const auto outcome = ChildProcess::run(
        shell("head -c " + std::to_string(ChildProcess::kOutputLimit) + " /dev/zero | tr '\\0' x"));
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->output, std::string(ChildProcess::kOutputLimit, 'x'));
}

TEST_F(ChildProcessTest, theWholeGroupEndsWithTheTime)
{
    const std::string number = home.path("number");
    Call call = shell("sleep 600 & echo $! > '" + number + "'; wait");
    call.limit = 300ms;
    EXPECT_FALSE(ChildProcess::run(call));
    const std::string grandchild = firstLine(TempHome::content(number));
    ASSERT_FALSE(grandchild.empty());
    EXPECT_TRUE(becomesTrue([&] { return !isAlive(grandchild); }));
}

TEST_F(ChildProcessTest, whoStaysBehindWithTheOutputOpenIsNotWaitedFor)
{
    Call call = shell("sleep 600 & echo $!; echo said");
    call.limit = 60s;
    const auto before = std::chrono::steady_clock::now();
    const auto outcome = ChildProcess::run(call);
    EXPECT_LT(std::chrono::steady_clock::now() - before, 30s);
    ASSERT_TRUE(outcome);
    EXPECT_THAT(outcome->output, HasSubstr("said\n"));
    const std::string grandchild = firstLine(outcome->output);
    EXPECT_TRUE(isAlive(grandchild));
    ::kill(std::stoi(grandchild), SIGKILL);
}

TEST_F(ChildProcessTest, neitherSignalsNorDescriptorsAreHandedDown)
{
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    const UniqueFd open(::open("/dev/zero", O_RDONLY)); // NOLINT: left open on purpose
    const auto status = ChildProcess::run({{"cat", "/proc/self/status"}, {}});
    const auto files = ChildProcess::run({{"ls", "-l", "/proc/self/fd"}, {}});
    std::signal(SIGPIPE, pipeBefore);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ASSERT_TRUE(status && files);
    EXPECT_EQ(signalsOf(*status, "SigBlk"), 0U);
    EXPECT_EQ(signalsOf(*status, "SigIgn"), 0U);
    EXPECT_THAT(files->output, HasSubstr("/dev/null"));
    EXPECT_THAT(files->output, Not(HasSubstr("/dev/zero")));
}

TEST_F(ChildProcessTest, aProcessThatHearsNothingOfItsChildrenIsNotHeldUp)
{
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_FALSE(ChildProcess::run(shell("echo gone")));
    std::signal(SIGCHLD, before);
}

TEST_F(ChildProcessTest, threadsDoNotMixUpTheirPrograms)
{
    std::vector<int> wrong(8, 0);
    {
        std::vector<std::jthread> threads;
        for (std::size_t number = 0; number < wrong.size(); ++number) {
            threads.emplace_back([&wrong, number] {
                for (int round = 0; round < 10; ++round) {
                    const std::string word = std::to_string(number) + "-" + std::to_string(round);
                    const auto outcome = ChildProcess::run({{"echo", word}, {}, 60s});
                    wrong[number] += outcome && outcome->output == word + "\n" ? 0 : 1;
                }
            });
        }
    }
    EXPECT_THAT(wrong, testing::Each(0));
    EXPECT_TRUE(hasNoChildren());
}

TEST_F(ChildProcessTest, aDetachedProgramRunsInASessionOfItsOwn)
{
    const std::string noted = home.path("noted");
    EXPECT_FALSE(ChildProcess::startDetached({"orlen-has-no-such-program"}));
    ASSERT_TRUE(ChildProcess::startDetached(
        {"sh", "-c", "cat /proc/$$/stat > \"$1.new\"; mv \"$1.new\" \"$1\"", "sh", noted}));
    ASSERT_TRUE(becomesTrue([&] { return TempHome::exists(noted); }));
    // Number, name, state, parent, group, session.
    std::istringstream fields(TempHome::content(noted));
    std::string number;
    std::string name;
    std::string state;
    std::string parent;
    std::string group;
    std::string session;
    fields >> number >> name >> state >> parent >> group >> session;
    EXPECT_EQ(session, number);
    EXPECT_EQ(group, number);
    EXPECT_TRUE(becomesTrue(hasNoChildren));
}

TEST_F(ChildProcessTest, programsAreFoundInAbsoluteFoldersOfPath)
{
    for (const char* name : {"first/tool", "second/tool", "second/other"})
        TempHome::setMode(home.file(name, "#!/bin/sh\n"), 0755);
    home.file("first/other");
    home.folder("first/folder");
    TempHome::setVariable("PATH", "relative::" + home.path("first") + ":" + home.path("second"));
    struct Case {
        const char* name;
        std::string expected;
    };
    const Case cases[] = {
        {"tool", home.path("first/tool")},
        {"other", home.path("second/other")}, // the first may not be executed
        {"folder", ""},
        {"missing", ""},
        {"", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ChildProcess::programPath(c.name), c.expected);
    }
    EXPECT_EQ(ChildProcess::programPath(home.path("second/tool")), home.path("second/tool"));
    EXPECT_EQ(ChildProcess::programPath(home.path("first/other")), "");
}

} // namespace orlen
