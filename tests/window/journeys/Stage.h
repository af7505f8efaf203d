#pragma once

#include "app/AppModel.h"
#include "support/TempHome.h"
#include "window/cleaning/FailureListModel.h"

#include <QFile>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace orlen {

/// What a journey through the window stands on: a home folder with known content, the real model over it, and
/// a look at the files. QML sees it as `stage`.
class Stage : public QObject {
    Q_OBJECT

public:
    /// How large the texts are, as a factor; before the first window.
    void setTextScale(double scale) { m_textScale = scale; }
    /// A new user's home folder, and a model over it.
    void prepare(QQmlEngine& engine);

    Q_INVOKABLE [[nodiscard]] bool exists(const QString& name) const;
    /// Whether the Trash holds a file or folder of this name.
    Q_INVOKABLE [[nodiscard]] bool isInTrash(const QString& name) const;
    /// The content of a file below the home folder.
    Q_INVOKABLE [[nodiscard]] QString content(const QString& name) const;
    /// Whether pictures are looked at from now on, or never done with.
    Q_INVOKABLE void setRecognizing(bool recognizing) const;
    Q_INVOKABLE void write(const QString& name, const QString& content) const;
    /// Puts a link in the place of a file; both names lie below the home folder.
    Q_INVOKABLE void link(const QString& name, const QString& target) const;
    /// Renames a file or folder.
    Q_INVOKABLE void move(const QString& name, const QString& other) const;
    /// Removes a file or folder.
    Q_INVOKABLE void remove(const QString& name) const;
    /// Has a program write to a file, or none if the name is empty.
    Q_INVOKABLE void writeTo(const QString& name);
    /// Puts what was not used for months into Downloads: "old.txt", and a folder "papers" with a "paper.txt",
    /// both copies of the report in Documents.
    Q_INVOKABLE void makeOldDownloads() const;
    /// Starts to clean up all files of a folder, one by one.
    Q_INVOKABLE void cleanUp(const QString& folder) const;
    /// Fills the list with items that were in use, and one that was gone.
    Q_INVOKABLE void fill(orlen::FailureListModel* failures) const;

    /// The item of this object name that can be seen in a window or an item, the topmost if there are
    /// several; else null. Delegates and popups count too, which `findChild` does not know.
    Q_INVOKABLE [[nodiscard]] QQuickItem* find(QObject* where, const QString& name) const;
    /// What can be seen in the window and used, but has no name for a screen reader; a line for each.
    Q_INVOKABLE [[nodiscard]] QStringList nameless(QObject* window) const;
    /// What is wrong with the item that has the keyboard; empty if nothing.
    Q_INVOKABLE [[nodiscard]] QString focusFault(QObject* window) const;

    /// What can be seen in the window and was not looked up, or is cut off, in the language of the test
    /// catalogue; a line for each.
    Q_INVOKABLE [[nodiscard]] QStringList notLookedUp(QObject* window) const;
    Q_INVOKABLE [[nodiscard]] QStringList cut(QObject* window) const;

    // What the test program calls at its stages.
    Q_INVOKABLE void applicationAvailable();
    Q_INVOKABLE void qmlEngineAvailable(QQmlEngine* engine);
    Q_INVOKABLE void cleanupTestCase();

private:
    void fillHome() const;
    /// Scans of the past six weeks, the last one two hours ago.
    void fillPast() const;
    [[nodiscard]] QStringList names() const;

    double m_textScale = 1;
    QFile m_written; ///< by another program
    std::optional<TempHome> m_home;
    std::unique_ptr<AppModel> m_model;
};

} // namespace orlen
