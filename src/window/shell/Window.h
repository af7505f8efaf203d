#pragma once

class QQmlApplicationEngine;
class QQmlEngine;
class QQuickWindow;

namespace orlen {
class AppModel;
}

/// The program as started from the desktop. Main thread.
namespace orlen::Window {

/// Whether there is a display to open a window on.
[[nodiscard]] bool canOpen();

/// Runs the program until its window is closed and returns the exit status. Creates the application object;
/// there must not be one yet.
[[nodiscard]] int run(int argc, char** argv);

/// Sets the program's name and font. Call after creating the application object and before `load`.
void prepare();

/// Sets up the engine for the window's QML. The model must outlive the engine's objects.
void prepareEngine(QQmlEngine& engine, AppModel& model);

/// Loads the window for the model, which must outlive the engine's objects. Null when the QML cannot be
/// loaded.
[[nodiscard]] QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model);

} // namespace orlen::Window
