#include "cli/CommandLine.h"
#include "model/Words.h"
#include "window/shell/Window.h"

#include <QCoreApplication>

#include <clocale>

namespace {

/// Qt remarks on a locale that is not UTF-8, and switches. Nothing printed here depends on it.
void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

int runCommand(int argc, char** argv)
{
    const QtMessageHandler usual = qInstallMessageHandler(ignoreMessage);
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(usual);
    // Numbers are read and written with a point, whatever the user's language.
    std::setlocale(LC_NUMERIC, "C");
    return orlen::CommandLine::run(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    orlen::Words::useInstalled();
    // Without a display the command line says so.
    if (argc == 1 && orlen::Window::canOpen())
        return orlen::Window::run(argc, argv);
    return runCommand(argc, argv);
}
