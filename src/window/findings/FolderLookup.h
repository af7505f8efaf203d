#pragma once

#include "app/Workers.h"

#include <QObject>

#include <string>
#include <unordered_map>
#include <vector>

namespace orlen {

/// Tells folders from files without blocking the main thread on the disk: answers come from a cache, and
/// unknown paths are looked up on a worker. Main thread.
class FolderLookup : public QObject {
    Q_OBJECT

public:
    explicit FolderLookup(QObject* parent = nullptr) : QObject(parent), m_workers(*this) {}

    /// Also false while unknown; `answered` says when to ask again.
    [[nodiscard]] bool isFolder(const std::string& path);

Q_SIGNALS:
    /// Some of the requested paths have turned out to be folders.
    void answered();

private:
    void lookSoon();
    void look();

    std::unordered_map<std::string, bool> m_known; ///< also false while waiting
    std::vector<std::string> m_waiting;
    bool m_isLooking = false;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
