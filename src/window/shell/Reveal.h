#pragma once

#include "app/Workers.h"

#include <QObject>
#include <QString>

#include <functional>
#include <string>

namespace orlen {

/// Shows files in the file manager and opens them with other programs. Never blocks: tries the file manager
/// over the session bus, then the desktop portal, then `xdg-open` for the folder.
///
/// Main thread. The window creates the only instance and reports failures; any screen's C++ code calls
/// `Reveal::show(path)`.
class Reveal : public QObject {
    Q_OBJECT

public:
    explicit Reveal(QObject* parent = nullptr);
    ~Reveal() override;

    /// The only instance; null while there is no window.
    [[nodiscard]] static Reveal* current();

    /// Shows the path in its folder; ignored without an instance.
    static void show(const std::string& path);
    /// Opens the file or folder itself with its default program; ignored without an instance.
    static void open(const std::string& path);
    /// Shows the Trash, all volumes together where the file manager can; ignored without an instance.
    static void openTrash();

Q_SIGNALS:
    /// Nothing could show or open the path. The text is for display and the clipboard.
    void failed(const QString& path);

private:
    using Failure = std::function<void()>;

    void askFileManager(const std::string& path);
    void askPortal(const std::string& path);
    void openFolder(const std::string& path);
    void runOpener(const QString& target, const Failure& failure);
    [[nodiscard]] Failure reportOf(const std::string& path);

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
