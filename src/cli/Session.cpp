#include "cli/Session.h"

#include "cli/CliTexts.h"
#include "model/Words.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <nlohmann/json.hpp>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kStatusInterval{66};
constexpr int kIndent = 2;

} // namespace

void Session::run(const Work& work)
{
    QSocketNotifier interrupted(m_interrupts.descriptor(), QSocketNotifier::Read);
    QObject::connect(&interrupted, &QSocketNotifier::activated, [&] { interrupt(work); });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { m_progress.show(shown(work.status())); });
    if (m_progress.isShown())
        timer.start(kStatusInterval);
    if (isInterrupted())
        work.cancel();
    while (!work.isDone())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    m_progress.erase();
}

void Session::interrupt(const Work& work)
{
    const int before = m_interrupted;
    if (!isInterrupted() || m_interrupted == before)
        return;
    if (before > 0 && work.nature == Work::Nature::harmless) {
        // The work is stuck, perhaps on a dead server; it has nothing to lose.
        m_progress.erase();
        std::_Exit(static_cast<int>(ExitStatus::interrupted));
    }
    work.cancel();
}

bool Session::isInterrupted()
{
    m_interrupted += m_interrupts.take();
    return m_interrupted > 0;
}

void Session::print(std::string_view text)
{
    std::cout << text << std::flush;
}

void Session::print(const Message& message)
{
    print(shown(message) + '\n');
}

void Session::printDocument(const nlohmann::ordered_json& document)
{
    using Json = nlohmann::ordered_json;
    print(document.dump(kIndent, ' ', false, Json::error_handler_t::replace) + '\n');
}

void Session::note(std::string_view text)
{
    m_progress.erase();
    std::cerr << text << std::flush;
}

void Session::complain(const Message& sentence)
{
    note("orlen: " + shown(sentence) + '\n');
}

void Session::complain(std::span<const Message> sentences)
{
    for (const Message& sentence : sentences)
        complain(sentence);
}

ExitStatus Session::refuse(const Message& sentence)
{
    complain(sentence);
    return ExitStatus::wrongCall;
}

ExitStatus Session::cancelled()
{
    complain(CliTexts::kCancelled);
    return ExitStatus::interrupted;
}

} // namespace orlen
