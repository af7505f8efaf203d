#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// What Smart Scan shows beside the lists: its state, the figures of the results, the setting for large
/// files. Main thread.
class HomeModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    /// Whether the last scan left findings.
    Q_PROPERTY(bool hasFindings READ hasFindings NOTIFY resultsChanged)
    Q_PROPERTY(bool hasSafe READ hasSafe NOTIFY resultsChanged)
    /// Bytes rated Safe, and of everything that could be reviewed.
    Q_PROPERTY(QString safeText READ safeText NOTIFY resultsChanged)
    Q_PROPERTY(QString totalText READ totalText NOTIFY resultsChanged)
    /// "12 folders could not be read", empty when all could; and the first of them, one on each line.
    Q_PROPERTY(QString unreadableText READ unreadableText NOTIFY resultsChanged)
    Q_PROPERTY(QString unreadableFolders READ unreadableFolders NOTIFY resultsChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged)
    /// "12 items", each path once; stands still behind a sheet.
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)
    /// Sizes from which a file may count as large, and which of them does; -1 for another one.
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

    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool hasFindings() const;
    [[nodiscard]] bool hasSafe() const { return m_safeBytes > 0; }
    [[nodiscard]] QString safeText() const;
    [[nodiscard]] QString totalText() const;
    [[nodiscard]] QString unreadableText() const;
    [[nodiscard]] QString unreadableFolders() const;
    [[nodiscard]] bool hasSelection() const;
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] static QStringList thresholds();
    [[nodiscard]] int threshold() const;
    void setThreshold(int index);
    [[nodiscard]] QString thresholdText() const;

    /// Opens the review of everything that is selected.
    Q_INVOKABLE void review();

Q_SIGNALS:
    void phaseChanged();
    void resultsChanged();
    void selectionChanged();
    void thresholdChanged();

private:
    void countResults();
    void countSelection();

    AppModel& m_app;
    std::int64_t m_safeBytes = 0;
    std::int64_t m_totalBytes = 0;
    std::int64_t m_selectedCount = 0;
};

} // namespace orlen
