#pragma once

#include "app/Workers.h"

#include <QObject>

#include <string>
#include <unordered_map>
#include <vector>

namespace orlen {

/// Tells folders from files without making the main thread wait for a disk: what is asked for is answered
/// from memory, and looked at on a worker when it is not known yet. Main thread.
class FolderLookup : public QObject {
    Q_OBJECT

public:
    explicit FolderLookup(QObject* parent = nullptr) : QObject(parent), m_workers(*this) {}

    /// False also while it is not known: `answered` tells when to ask again.
    [[nodiscard]] bool isFolder(const std::string& path);

Q_SIGNALS:
    /// Paths that were asked for have turned out to be folders.
    void answered();

private:
    void lookSoon();
    void look();

    std::unordered_map<std::string, bool> m_known; ///< false also for what is waiting
    std::vector<std::string> m_waiting;
    bool m_isLooking = false;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
