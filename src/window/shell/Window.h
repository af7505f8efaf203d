#pragma once

class QQmlApplicationEngine;
class QQmlEngine;
class QQuickWindow;

namespace orlen {
class AppModel;
}

/// The window: the program as it is started from the desktop. Main thread.
namespace orlen::Window {

/// Whether there is a display to open a window on.
[[nodiscard]] bool canOpen();

/// Opens the window and returns the exit status when it has been closed. Makes the application object: there
/// must be none.
[[nodiscard]] int run(int argc, char** argv);

/// Names the program to the desktop and sets its font. With the application object made, before `load`.
void prepare();

/// Gives the engine what the window's QML needs. The model must outlive the engine's objects.
void prepareEngine(QQmlEngine& engine, AppModel& model);

/// Loads the window over the model, which must outlive the engine's objects. Null when the QML cannot be
/// loaded.
[[nodiscard]] QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model);

} // namespace orlen::Window
