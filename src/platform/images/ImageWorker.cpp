#include "platform/images/ImageWorker.h"

#include "platform/files/Retrying.h"
#include "platform/images/ArchiveMessage.h"
#include "platform/images/DescriptorSocket.h"
#include "platform/images/ImageMessages.h"
#include "platform/images/PixelBuffer.h"
#include "platform/process/ChildEnd.h"
#include "platform/process/ProcessStart.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <poll.h>
#include <sys/eventfd.h>

namespace orlen {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Waits until the socket is readable. False if it timed out or was stopped.
bool becomesReadable(int socket, Clock::time_point deadline, const std::stop_token& stop)
{
    const UniqueFd stopped(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!stopped.isOpen())
        return false;
    const std::stop_callback wake(stop, [&] { (void)::eventfd_write(stopped.get(), 1); });
    while (true) {
        const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return false;
        constexpr milliseconds::rep kLongest = 60'000;
        std::array<pollfd, 2> waiting{{{socket, POLLIN, 0}, {stopped.get(), POLLIN, 0}}};
        const int ready =
            ::poll(waiting.data(), waiting.size(), static_cast<int>(std::min(left.count(), kLongest)));
        if (waiting[1].revents != 0 || (ready < 0 && errno != EINTR))
            return false;
        if (ready > 0 && waiting[0].revents != 0)
            return true;
    }
}

/// Bytes in the buffer.
std::size_t lengthOf(PixelSize size, bool hasAlpha)
{
    const std::size_t pixels = RgbImage::byteCount(size.width, size.height);
    return hasAlpha ? pixels + pixels / 3 : pixels;
}

} // namespace

std::unique_ptr<ImageWorker> ImageWorker::started(const std::string& program, const Limits& limits,
                                                  RecognizerRole role, const std::stop_token& stop)
{
    auto sockets = DescriptorSocket::makePair();
    if (!sockets.ok())
        return nullptr;
    // The process also limits its own time, in case this program is killed.
    const auto seconds = std::chrono::ceil<std::chrono::seconds>(limits.limit) + std::chrono::seconds(1);
    ChildProcess::Call call{{program, std::to_string(limits.memory), std::to_string(seconds.count()),
                             std::to_string(limits.idle.count()),
                             std::string(kRecognizerRoles[static_cast<std::size_t>(role)])},
                            {}};
    // Environment variables are none of a picture reader's business.
    call.variables = ChildProcess::Variables::given;
    const std::optional<pid_t> process =
        ProcessStart::start(call, ProcessStart::Belonging::ownGroup, {.input = sockets.value().theirs.get()});
    if (!process)
        return nullptr;
    sockets.value().theirs.reset();
    std::unique_ptr<ImageWorker> worker(
        new ImageWorker(*process, std::move(sockets.value().ours), limits.limit));
    return worker->nextMessage(stop) == ImageMessages::kReady ? std::move(worker) : nullptr;
}

ImageWorker::~ImageWorker()
{
    ::kill(-m_process, SIGKILL); // Not waited for yet, so the number is still its own.
    ChildEnd::awaitKilled(m_process);
}

bool ImageWorker::hasEnded() const
{
    pollfd end{m_socket.get(), 0, 0};
    return ::poll(&end, 1, 0) > 0 && end.revents != 0;
}

ImageWorker::End ImageWorker::ask(std::string_view question, std::span<const int> files, std::string& answer,
                                  const std::stop_token& stop)
{
    if (!DescriptorSocket::sendWithFiles(m_socket.get(), question, files))
        return End::unreachable;
    std::optional<std::string> message = nextMessage(stop);
    if (!message)
        return End::failed;
    answer = *std::move(message);
    return End::answered;
}

ImageWorker::Outcome<ImageAnalysis> ImageWorker::analyze(int file, const std::stop_token& stop)
{
    std::string bytes;
    const std::array files{file};
    const End end = ask(ImageMessages::encoded(ImageMessages::Question{}), files, bytes, stop);
    if (end != End::answered)
        return {end, {}};
    auto answer = ImageMessages::decodedAnswer(bytes);
    if (!answer)
        return {End::failed, {}};
    return {End::answered, std::move(answer->analysis)};
}

ImageWorker::Outcome<SmallPicture> ImageWorker::smallPicture(int file, const PictureBound& bound,
                                                             PictureUse use, const std::stop_token& stop)
{
    const bool isIcon = use == PictureUse::icon;
    const auto buffer = PixelBuffer::ofSize(lengthOf(bound.size, isIcon));
    if (!buffer.ok())
        return {};
    std::string bytes;
    const std::array files{file, buffer.value().get()};
    if (const End outcome =
            ask(ImageMessages::encoded(ImageMessages::Question{bound, use}), files, bytes, stop);
        outcome != End::answered)
        return {outcome, {}};
    const auto answer = ImageMessages::decodedPictureAnswer(bytes, bound.size);
    if (!answer)
        return {};
    if (!answer->sizes)
        return {End::answered, {}};
    const auto& [whole, small, pages] = *answer->sizes;
    auto pixels = PixelBuffer::read(buffer.value().get(), lengthOf(small, isIcon));
    if (!pixels)
        return {};
    const auto end = pixels->begin() + static_cast<std::ptrdiff_t>(lengthOf(small, false));
    std::vector<std::uint8_t> alpha(end, pixels->end());
    pixels->erase(end, pixels->end());
    return {End::answered,
            SmallPicture{whole, {small.width, small.height, *std::move(pixels)}, pages, std::move(alpha)}};
}

ImageWorker::Outcome<ArchiveContents> ImageWorker::archive(int file, const std::stop_token& stop)
{
    const auto buffer = PixelBuffer::ofSize(ArchiveMessage::kLongest);
    if (!buffer.ok())
        return {};
    std::string bytes;
    const std::array files{file, buffer.value().get()};
    const std::string question = ImageMessages::encoded(ImageMessages::Question{.isAboutArchive = true});
    if (const End outcome = ask(question, files, bytes, stop); outcome != End::answered)
        return {outcome, {}};
    const auto answer = ImageMessages::decodedArchiveAnswer(bytes);
    if (!answer)
        return {};
    if (answer->length == 0)
        return {End::answered, {}};
    const auto message = PixelBuffer::read(buffer.value().get(), answer->length);
    auto contents = message ? ArchiveMessage::decoded(*message) : std::nullopt;
    if (!contents)
        return {};
    return {End::answered, std::move(contents)};
}

ImageWorker::Outcome<MediaFacts> ImageWorker::media(int file, const std::stop_token& stop)
{
    std::string bytes;
    const std::array files{file};
    const std::string question = ImageMessages::encoded(ImageMessages::Question{.isAboutMedia = true});
    if (const End outcome = ask(question, files, bytes, stop); outcome != End::answered)
        return {outcome, {}};
    auto answer = ImageMessages::decodedMediaAnswer(bytes);
    if (!answer)
        return {};
    return {End::answered, std::move(answer->facts)};
}

std::optional<std::string> ImageWorker::nextMessage(const std::stop_token& stop) const
{
    if (!becomesReadable(m_socket.get(), Clock::now() + m_limit, stop))
        return std::nullopt;
    return DescriptorSocket::receive(m_socket.get(), ImageMessages::kLongest);
}

} // namespace orlen
