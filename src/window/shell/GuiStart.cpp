#include "window/shell/GuiStart.h"

#include "model/Words.h"
#include "window/WindowTexts.h"

#include <cstdio>
#include <cstdlib>

namespace orlen::GuiStart {

namespace {

/// Qt prints a long message about a display that does not answer and then aborts; it offers no way to ask
/// first. Its earlier warnings say the same.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/)
{
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "orlen: %s\n", shown(WindowTexts::kNoWindow).c_str());
    std::_Exit(EXIT_FAILURE);
}

} // namespace

std::unique_ptr<QGuiApplication> makeApplication(int& argc, char** argv)
{
    const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(usual);
    return application;
}

} // namespace orlen::GuiStart
