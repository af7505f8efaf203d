#include "cli/ProgressLine.h"

#include "platform/process/Terminal.h"
#include "platform/text/DisplayWidth.h"

#include <iostream>

namespace orlen {

namespace {

constexpr int kUsualWidth = 80;
constexpr std::string_view kEraseLine = "\r\x1b[K";

} // namespace

ProgressLine::ProgressLine() : m_isShown(Terminal::isTerminal(Terminal::Stream::error)) {}

ProgressLine::~ProgressLine()
{
    erase();
}

void ProgressLine::show(std::string_view text)
{
    if (!m_isShown)
        return;
    // One column short, since some terminals wrap as soon as the last one is written.
    const int width = Terminal::width(Terminal::Stream::error).value_or(kUsualWidth) - 1;
    std::cerr << kEraseLine << DisplayWidth::elidedEnd(text, width) << std::flush;
    m_isDirty = true;
}

void ProgressLine::erase()
{
    if (m_isDirty)
        std::cerr << kEraseLine << std::flush;
    m_isDirty = false;
}

} // namespace orlen
