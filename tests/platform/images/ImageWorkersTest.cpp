#include "platform/images/ImageWorkers.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/images/DescriptorSocket.h"
#include "platform/images/ImageMessages.h"
#include "platform/images/PixelBuffer.h"
#include "platform/process/ProcessStart.h"
#include "support/TempHome.h"
#include "support/TestBmp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

const std::string kReady = "printf '" + std::string(ImageMessages::kReady) + "' >&0\n";
constexpr const char* kTake = "head -c 1 >/dev/null\n";

bool hasNoWorkers()
{
    return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

std::vector<pid_t> children()
{
    std::vector<pid_t> all;
    for (const std::string& thread : listNames("/proc/self/task")) {
        std::istringstream numbers(TempHome::content("/proc/self/task/" + thread + "/children"));
        for (pid_t number = 0; numbers >> number;)
            all.push_back(number);
    }
    return all;
}

/// Waits until no process of this one is left, not even one that has ended.
bool becomesChildless()
{
    const Clock::time_point deadline = Clock::now() + 10s;
    while (!hasNoWorkers() && Clock::now() < deadline)
        std::this_thread::sleep_for(2ms);
    return hasNoWorkers();
}

std::size_t openDescriptors()
{
    return listNames("/proc/self/fd").size();
}

class ImageWorkersTest : public testing::Test {
protected:
    ImageWorkersTest() { TempHome::useSystemTools(); }

    /// A recognizer made of shell commands.
    [[nodiscard]] ImageWorkers::Options script(const std::string& commands) const
    {
        const std::string path = home.file("recognizer", "#!/bin/sh\n" + commands);
        TempHome::setMode(path, 0755);
        return {path, 1'500UL * 1024 * 1024, 10s};
    }
    [[nodiscard]] std::size_t starts() const { return TempHome::content(home.path("starts")).size(); }

    const TempHome home;
    const std::string picture = home.file("picture.bmp", testBmp(64, 48));
    const ImageWorkers::Options real{ORLEN_RECOGNIZER};
};

} // namespace

TEST_F(ImageWorkersTest, aPictureIsAnalysed)
{
    const std::size_t descriptors = openDescriptors();
    {
        ImageWorkers workers(real);
        EXPECT_TRUE(hasNoWorkers()) << "nothing is started before the first picture";
        const auto analysis = workers.analyze(picture, {});
        ASSERT_TRUE(analysis);
        EXPECT_EQ(analysis->width, 64);
        EXPECT_EQ(analysis->height, 48);
        EXPECT_TRUE(analysis->print);
        EXPECT_FALSE(workers.analyze(home.file("text.png", "no picture"), {}));
        EXPECT_TRUE(workers.analyze(picture, {}));
        EXPECT_EQ(children().size(), 1U) << "one after the other needs one worker";
    }
    EXPECT_TRUE(hasNoWorkers());
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST_F(ImageWorkersTest, aPictureIsMadeSmall)
{
    ImageWorkers workers(real);
    const auto small = workers.smallPicture(picture, {{16, 16}}, {});
    ASSERT_TRUE(small);
    EXPECT_EQ(small->whole, (PixelSize{64, 48}));
    EXPECT_EQ(small->image.width, 16);
    EXPECT_EQ(small->image.height, 12);
    const auto whole = workers.smallPicture(picture, {{100'000, 100'000}}, {});
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->image.width, 64);
    // The file's last row, from the bottom up, is the first of the picture.
    const std::string file = TempHome::content(picture);
    const std::string firstPixel(whole->image.pixels.begin(), whole->image.pixels.begin() + 3);
    EXPECT_EQ(file.substr(file.size() - std::size_t{64} * 4, 3),
              std::string(firstPixel.rbegin(), firstPixel.rend()));
    const auto square = workers.smallPicture(picture, {{8, 8}, PictureBound::Fit::cover}, {});
    ASSERT_TRUE(square);
    EXPECT_EQ(square->image.pixels.size(), 8U * 8 * 3);
    EXPECT_FALSE(workers.smallPicture(home.file("text.png", "no picture"), {{8, 8}}, {}));
    for (const PixelSize empty : {PixelSize{0, 8}, PixelSize{8, -1}})
        EXPECT_FALSE(workers.smallPicture(picture, {empty}, {}));
    EXPECT_EQ(children().size(), 1U) << "what is no picture costs no worker";
}

TEST_F(ImageWorkersTest, aWorkerWithNothingToDoEndsAndLeavesNothingBehind)
{
    ImageWorkers::Options impatient = real;
    impatient.idle = 300ms;
    ImageWorkers workers(impatient);
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(workers.analyze(picture, {}));
        EXPECT_TRUE(becomesChildless());
    }
}

TEST_F(ImageWorkersTest, aWorkerEndsWithTheProgramEvenInTheMiddleOfAPicture)
{
    // About as large as is allowed, and nearly nothing on the disk: its sides stand in the header.
    constexpr std::int32_t kSides[] = {15'000, 16'000};
    std::string header = testBmp(64, 48).substr(0, 54);
    std::memcpy(header.data() + 18, kSides, sizeof kSides);
    const std::string large = home.file("large.bmp", header);
    ASSERT_EQ(::truncate(large.c_str(), 54 + 4L * kSides[0] * kSides[1]), 0);
    const auto timeOfEnd = [&](auto&& end) {
        const UniqueFd file = std::move(openFile(large).value());
        auto sockets = DescriptorSocket::makePair();
        ChildProcess::Call call{{ORLEN_RECOGNIZER, "1500000000", "60", "240000", "pictures"}, {}};
        const auto process = ProcessStart::start(call, ProcessStart::Belonging::ownGroup,
                                                 {.input = sockets.value().theirs.get()});
        sockets.value().theirs.reset();
        std::array<pollfd, 1> waiting{{{sockets.value().ours.get(), POLLIN, 0}}};
        EXPECT_EQ(::poll(waiting.data(), 1, 30'000), 1);
        (void)DescriptorSocket::receive(sockets.value().ours.get(), ImageMessages::kLongest);
        const std::array files{file.get()};
        EXPECT_TRUE(DescriptorSocket::sendWithFiles(
            sockets.value().ours.get(), ImageMessages::encoded(ImageMessages::Question{}), files));
        const Clock::time_point asked = Clock::now();
        end(sockets.value().ours);
        EXPECT_EQ(::waitpid(process.value(), nullptr, 0), *process);
        return Clock::now() - asked;
    };
    const auto whole = timeOfEnd([](UniqueFd& socket) {
        pollfd answer{socket.get(), POLLIN, 0};
        EXPECT_EQ(::poll(&answer, 1, 240'000), 1);
        socket.reset();
    });
    EXPECT_LT(timeOfEnd([](UniqueFd& socket) { socket.reset(); }), whole / 2);
}

TEST_F(ImageWorkersTest, onlyRegularFilesAreOpened)
{
    ImageWorkers workers(real);
    const std::string fifo = home.path("fifo.bmp");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(workers.analyze(home.link("link.bmp", picture), {}));
    EXPECT_FALSE(workers.analyze(fifo, {}));
    EXPECT_FALSE(workers.analyze(home.folder("folder.bmp"), {}));
    EXPECT_FALSE(workers.analyze(home.path("missing.bmp"), {}));
    EXPECT_TRUE(hasNoWorkers());
}

TEST_F(ImageWorkersTest, workersCanDoLittle)
{
    ImageWorkers workers(real);
    ASSERT_TRUE(workers.analyze(picture, {}));
    ASSERT_EQ(children().size(), 1U);
    const std::string process = "/proc/" + std::to_string(children().front());
    std::istringstream limits(TempHome::content(process + "/limits"));
    int found = 0;
    for (std::string line; std::getline(limits, line);) {
        if (line.starts_with("Max file size") || line.starts_with("Max core file size")) {
            ++found;
            EXPECT_NE(line.find(" 0 "), std::string::npos) << line;
        }
    }
    EXPECT_EQ(found, 2);
    EXPECT_NE(TempHome::content(process + "/status").find("NoNewPrivs:\t1"), std::string::npos);
    EXPECT_EQ(children().size(), 1U);
}

TEST_F(ImageWorkersTest, manyThreadsAreServedAtOnce)
{
    ImageWorkers workers(real);
    std::atomic<int> answers{0};
    {
        std::vector<std::jthread> threads;
        threads.reserve(12);
        for (int i = 0; i < 12; ++i) {
            threads.emplace_back([&] {
                for (int round = 0; round < 10; ++round)
                    answers += workers.analyze(picture, {}).has_value() ? 1 : 0;
            });
        }
    }
    EXPECT_EQ(answers, 120);
    EXPECT_LE(children().size(), std::max(1U, std::thread::hardware_concurrency()));
}

TEST_F(ImageWorkersTest, aWorkerThatWasKilledBetweenPicturesIsReplaced)
{
    ImageWorkers workers(real);
    ASSERT_TRUE(workers.analyze(picture, {}));
    const std::vector<pid_t> first = children();
    ASSERT_EQ(first.size(), 1U);
    ::kill(first.front(), SIGKILL);
    EXPECT_TRUE(becomesChildless()) << "before the next picture";
    EXPECT_TRUE(workers.analyze(picture, {})) << "the picture had no part in it";
    ASSERT_EQ(children().size(), 1U);
    EXPECT_NE(children().front(), first.front());
}

TEST_F(ImageWorkersTest, whateverAWorkerDoesThePictureIsUnreadableAndItIsGone)
{
    struct Case {
        const char* name;
        std::string commands;
    };
    const std::string ready = kReady;
    const Case cases[] = {
        {"ends at once", "exit 0"},
        {"says something else", "printf hello >&0; sleep 60"},
        {"never gets ready", "sleep 60"},
        {"is of another version", "printf 'orlen-recognizer 0' >&0; sleep 60"},
        {"dies of the picture", ready + kTake + "kill -SEGV $$"},
        {"hangs", ready + "sleep 60"},
        {"says nonsense", ready + kTake + "printf nonsense >&0; sleep 60"},
        {"says too much", ready + kTake + "head -c 100000 /dev/zero >&0; sleep 60"},
        {"hangs and ignores signals", ready + "trap '' TERM INT HUP; while :; do :; done"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::size_t descriptors = openDescriptors();
        {
            auto options = script(c.commands);
            options.limit = 300ms;
            ImageWorkers workers(options);
            const Clock::time_point started = Clock::now();
            EXPECT_FALSE(workers.analyze(picture, {}));
            EXPECT_FALSE(workers.smallPicture(picture, {{1, 1}}, {}));
            EXPECT_LT(Clock::now() - started, 5s);
            EXPECT_TRUE(hasNoWorkers());
        }
        EXPECT_EQ(openDescriptors(), descriptors);
    }
}

TEST_F(ImageWorkersTest, aDeadlyPictureCostsOneWorkerEach)
{
    ImageWorkers workers(script("printf s >>" + home.path("starts") + "\n" + kReady + kTake + "exit 1"));
    for (int i = 0; i < 5; ++i)
        EXPECT_FALSE(workers.analyze(picture, {}));
    EXPECT_EQ(starts(), 5U);
}

TEST_F(ImageWorkersTest, anUnusableRecognizerIsNotStartedAgainAndAgain)
{
    ImageWorkers broken(script("printf s >>" + home.path("starts")));
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(broken.analyze(picture, {}));
    EXPECT_EQ(starts(), 3U);
    ImageWorkers none(ImageWorkers::Options{""});
    EXPECT_FALSE(none.analyze(picture, {}));
    ImageWorkers missing(ImageWorkers::Options{home.path("no-such-program")});
    EXPECT_FALSE(missing.analyze(picture, {}));
}

TEST_F(ImageWorkersTest, stoppedCallsReturnAtOnce)
{
    // More callers than workers: some wait for the answer of one, the others for their turn.
    ImageWorkers workers(script("printf s >>" + home.path("starts") + "\n" + kReady + "sleep 60"));
    std::stop_source stop;
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < std::thread::hardware_concurrency() + 2; ++i)
        threads.emplace_back([&] { EXPECT_FALSE(workers.analyze(picture, stop.get_token())); });
    while (starts() == 0)
        std::this_thread::sleep_for(2ms);
    const Clock::time_point stopped = Clock::now();
    stop.request_stop();
    threads.clear();
    EXPECT_LT(Clock::now() - stopped, 2s);
    EXPECT_TRUE(hasNoWorkers());
    EXPECT_FALSE(workers.analyze(picture, stop.get_token()));
}

TEST(PixelBufferTest, isNotReadBeyondItsEnd)
{
    const auto buffer = PixelBuffer::ofSize(6);
    ASSERT_TRUE(buffer.ok());
    const std::vector<std::uint8_t> pixels{1, 2, 3, 4, 5, 6};
    EXPECT_TRUE(PixelBuffer::write(buffer.value().get(), pixels));
    EXPECT_EQ(PixelBuffer::read(buffer.value().get(), 6), pixels);
    EXPECT_FALSE(PixelBuffer::read(buffer.value().get(), 7));
    EXPECT_FALSE(PixelBuffer::write(buffer.value().get(), std::vector<std::uint8_t>(7)));
    ASSERT_EQ(::ftruncate(buffer.value().get(), 5), 0) << "as the other side may do";
    EXPECT_FALSE(PixelBuffer::read(buffer.value().get(), 6));
}

} // namespace orlen
