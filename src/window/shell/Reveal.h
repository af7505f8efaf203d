#pragma once

#include "app/Workers.h"

#include <QObject>
#include <QString>

#include <functional>
#include <string>

namespace orlen {

/// Shows files in the desktop's file manager and opens them with other programs. Nothing here waits: the
/// file manager is asked over the session bus, then the desktop portal, then `xdg-open` for the folder.
///
/// Main thread. The window makes the one instance and C++ of any screen calls `Reveal::show(path)`; a failure
/// is shown by the window.
class Reveal : public QObject {
    Q_OBJECT

public:
    explicit Reveal(QObject* parent = nullptr);
    ~Reveal() override;

    /// The one instance; null while there is no window.
    [[nodiscard]] static Reveal* current();

    /// Shows the path in its folder, through the one instance; nothing without one.
    static void show(const std::string& path);
    /// Opens the file or folder itself with the program that the desktop has for it.
    static void open(const std::string& path);

Q_SIGNALS:
    /// Nothing could show the path, or open it. The text is for display and for the clipboard.
    void failed(const QString& path);

private:
    using Failure = std::function<void()>;

    void askFileManager(const std::string& path);
    void askPortal(const std::string& path);
    void openFolder(const std::string& path);
    void runOpener(const std::string& target, const Failure& failure);
    [[nodiscard]] Failure reportOf(const std::string& path);

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
