#pragma once

#include <QGuiApplication>

#include <memory>

/// Creates the application object on a display that may not answer.
namespace orlen::GuiStart {

/// Ends the program with a sentence and exit status 1 when there is no display to open a window on. The
/// arguments outlive the application.
[[nodiscard]] std::unique_ptr<QGuiApplication> makeApplication(int& argc, char** argv);

} // namespace orlen::GuiStart
