#include "platform/images/ImageWorkers.h"

#include "platform/files/FileContent.h"
#include "platform/images/IdleWorkers.h"
#include "platform/images/ImageMessages.h"
#include "platform/process/ChildProcess.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace orlen {

namespace {

constexpr unsigned kMostWorkers = 16;
/// After this many failed starts in a row the recognizer is considered broken.
constexpr int kMostFailedStarts = 3;

} // namespace

class ImageWorkers::Pool {
public:
    Pool(Options options, RecognizerRole role)
        : m_options(std::move(options)), m_role(role),
          m_turns(std::clamp(std::thread::hardware_concurrency(), 1U, kMostWorkers))
    {
    }

    /// Waits for a turn and has `ask` put the question to a worker.
    template <typename Ask>
    [[nodiscard]] auto answer(const Ask& ask, const std::stop_token& stop)
        -> decltype(ask(std::declval<ImageWorker&>()).answer)
    {
        if (!takeTurn(stop))
            return std::nullopt;
        auto [worker, outcome] = answered(ask, stop);
        endTurn(outcome.end == ImageWorker::End::answered ? std::move(worker) : nullptr);
        return std::move(outcome.answer);
    }

    /// Has `ask` put a question about a regular file, which is opened without following a link.
    template <typename Ask>
    [[nodiscard]] auto told(const std::string& path, const Ask& ask, const std::stop_token& stop)
        -> decltype(ask(std::declval<ImageWorker&>(), 0).answer)
    {
        if (stop.stop_requested())
            return std::nullopt;
        const auto file = openFile(path);
        if (!file.ok())
            return std::nullopt;
        return answer([&](ImageWorker& worker) { return ask(worker, file.value().get()); }, stop);
    }

private:
    using Worker = IdleWorkers::Worker;

    /// Asks idle workers until one takes the question, else starts one.
    template <typename Ask>
    [[nodiscard]] auto answered(const Ask& ask, const std::stop_token& stop)
        -> std::pair<Worker, decltype(ask(std::declval<ImageWorker&>()))>
    {
        while (Worker worker = m_idle.take()) {
            auto outcome = ask(*worker);
            if (outcome.end != ImageWorker::End::unreachable)
                return {std::move(worker), std::move(outcome)};
        }
        Worker worker = started(stop);
        if (!worker)
            return {};
        auto outcome = ask(*worker);
        return {std::move(worker), std::move(outcome)};
    }

    /// False if stopped before its turn.
    bool takeTurn(const std::stop_token& stop)
    {
        std::unique_lock lock(m_lock);
        if (!m_turnEnded.wait(lock, stop, [&] { return m_turns > 0; }) || stop.stop_requested())
            return false;
        --m_turns;
        return true;
    }

    void endTurn(Worker worker)
    {
        // First, so that whoever is next finds it.
        if (worker)
            m_idle.add(std::move(worker));
        {
            const std::lock_guard lock(m_lock);
            ++m_turns;
        }
        m_turnEnded.notify_one();
    }

    [[nodiscard]] Worker started(const std::stop_token& stop)
    {
        if (isUnusable())
            return nullptr;
        Worker worker = ImageWorker::started(
            m_options.program, {m_options.memory, m_options.limit, m_options.idle}, m_role, stop);
        const std::lock_guard lock(m_lock);
        if (worker)
            m_failedStarts = 0;
        else if (!stop.stop_requested())
            ++m_failedStarts;
        return worker;
    }

    [[nodiscard]] bool isUnusable()
    {
        const std::lock_guard lock(m_lock);
        return m_failedStarts >= kMostFailedStarts;
    }

    const Options m_options;
    const RecognizerRole m_role;
    std::mutex m_lock;
    std::condition_variable_any m_turnEnded;
    unsigned m_turns; ///< calls that may begin
    int m_failedStarts = 0;
    IdleWorkers m_idle;
};

std::string ImageWorkers::recognizer()
{
    const std::string executable = OwnProgram::executable();
    if (executable.empty())
        return {};
    const std::string_view folder = PathText::parent(executable);
    for (const std::string_view place : {"orlen-recognizer", "../libexec/orlen/orlen-recognizer"}) {
        std::string program = PathText::standardized(PathText::join(folder, place));
        if (!ChildProcess::programPath(program).empty())
            return program;
    }
    return {};
}

ImageWorkers::ImageWorkers(const Options& options)
    : m_pictures(std::make_unique<Pool>(options, RecognizerRole::pictures)),
      m_pages(std::make_unique<Pool>(options, RecognizerRole::pages)),
      m_media(std::make_unique<Pool>(options, RecognizerRole::media))
{
}

ImageWorkers::~ImageWorkers() = default;

std::optional<ImageAnalysis> ImageWorkers::analyze(const std::string& path, const std::stop_token& stop)
{
    return m_pictures->told(
        path, [&](ImageWorker& worker, int file) { return worker.analyze(file, stop); }, stop);
}

std::optional<SmallPicture> ImageWorkers::page(const std::string& path, PixelSize size,
                                               const std::stop_token& stop)
{
    return read(path, {size, PictureBound::Fit::inside}, PictureUse::page, stop);
}

std::optional<ArchiveContents> ImageWorkers::archive(const std::string& path, const std::stop_token& stop)
{
    return m_pictures->told(
        path, [&](ImageWorker& worker, int file) { return worker.archive(file, stop); }, stop);
}

std::optional<MediaFacts> ImageWorkers::media(const std::string& path, const std::stop_token& stop)
{
    return m_media->told(
        path, [&](ImageWorker& worker, int file) { return worker.media(file, stop); }, stop);
}

std::optional<SmallPicture> ImageWorkers::smallPicture(const std::string& path, const PictureBound& bound,
                                                       const std::stop_token& stop)
{
    return read(path, bound, PictureUse::photo, stop);
}

std::optional<SmallPicture> ImageWorkers::icon(const std::string& path, PixelSize size,
                                               const std::stop_token& stop)
{
    return read(path, {size, PictureBound::Fit::inside}, PictureUse::icon, stop);
}

std::optional<SmallPicture> ImageWorkers::read(const std::string& path, const PictureBound& bound,
                                               PictureUse use, const std::stop_token& stop)
{
    if (bound.size.width <= 0 || bound.size.height <= 0)
        return std::nullopt;
    const PictureBound allowed{{std::min(bound.size.width, ImageMessages::kLongestSide),
                                std::min(bound.size.height, ImageMessages::kLongestSide)},
                               bound.fit,
                               bound.part,
                               bound.madeOf};
    const auto& pool = use == PictureUse::page ? m_pages : m_pictures;
    return pool->told(
        path, [&](ImageWorker& worker, int file) { return worker.smallPicture(file, allowed, use, stop); },
        stop);
}

} // namespace orlen
