#pragma once

#include "window/lists/DisplayText.h"
#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// What Smart Scan shows besides the lists: its state, the totals and the age of the results, and the setting
/// for large files, which is remembered. Main thread.
class HomeModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    /// Whether there are notable findings from the last scan.
    Q_PROPERTY(bool hasFindings READ hasFindings NOTIFY resultsChanged)
    Q_PROPERTY(bool hasSafe READ hasSafe NOTIFY resultsChanged)
    /// "You can safely free 12 GB"
    Q_PROPERTY(QString heroText READ heroText NOTIFY resultsChanged)
    /// Size of everything that can be cleaned.
    Q_PROPERTY(QString totalText READ totalText NOTIFY resultsChanged)
    /// "12 folders could not be read", empty when all could be; and the first of them, one per line.
    Q_PROPERTY(QString unreadableText READ unreadableText NOTIFY resultsChanged)
    Q_PROPERTY(QString unreadableFolders READ unreadableFolders NOTIFY resultsChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged)
    /// Whether everything Safe is selected; like the next, not updated behind a sheet.
    Q_PROPERTY(bool safeSelected READ isSafeSelected NOTIFY selectionChanged)
    /// "12 items · 3 GB", counting each path once.
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)
    /// "Scanned 2 hours ago"
    Q_PROPERTY(QString ageText READ ageText NOTIFY ageChanged)
    /// Why another scan would be better; empty when nothing speaks for it.
    Q_PROPERTY(QString outdatedText READ outdatedText NOTIFY ageChanged)
    /// The choices of size from which a file counts as large, and the index of the current one; -1 if it is
    /// none of them.
    Q_PROPERTY(QStringList thresholds READ thresholds CONSTANT)
    Q_PROPERTY(int threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(QString thresholdText READ thresholdText NOTIFY thresholdChanged)

public:
    enum Phase {
        Idle = static_cast<int>(orlen::Phase::idle),
        Scanning = static_cast<int>(orlen::Phase::scanning),
        Results = static_cast<int>(orlen::Phase::results),
    };
    Q_ENUM(Phase)

    explicit HomeModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] Phase phase() const { return static_cast<Phase>(m_app.results()->phase()); }
    [[nodiscard]] bool hasFindings() const;
    [[nodiscard]] bool hasSafe() const { return m_safeBytes > 0; }
    [[nodiscard]] QString heroText() const;
    [[nodiscard]] QString totalText() const { return DisplayText::size(m_totalBytes); }
    [[nodiscard]] QString unreadableText() const;
    [[nodiscard]] QString unreadableFolders() const;
    [[nodiscard]] bool hasSelection() const { return !m_app.results()->selection().empty(); }
    [[nodiscard]] bool isSafeSelected() const { return m_isSafeSelected; }
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] QString ageText() const { return m_ageText; }
    [[nodiscard]] QString outdatedText() const { return m_outdatedText; }
    [[nodiscard]] static QStringList thresholds();
    [[nodiscard]] int threshold() const;
    void setThreshold(int index);
    [[nodiscard]] QString thresholdText() const;

    /// Opens the review of the whole selection.
    Q_INVOKABLE void review();

Q_SIGNALS:
    void phaseChanged();
    void resultsChanged();
    void selectionChanged();
    void ageChanged();
    void thresholdChanged();

private:
    void updateAge();
    void countResults();
    void countSelection();

    AppModel& m_app;
    std::int64_t m_safeBytes = 0;
    std::int64_t m_totalBytes = 0;
    PathSelection::Amount m_selected;
    bool m_isSafeSelected = true;
    QTimer m_aging;
    QString m_ageText;
    QString m_outdatedText;
};

} // namespace orlen
