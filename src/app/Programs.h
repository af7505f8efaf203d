#pragma once

#include "app/ModelPart.h"
#include "app/Workers.h"
#include "insight/AskContext.h"

#include <optional>
#include <vector>

namespace orlen {

/// The applications and startup items, as questions about them need them. Main thread; a worker reads.
class Programs : public ModelPart {
    Q_OBJECT

public:
    explicit Programs(QObject* parent = nullptr);

    /// Reads both again; the old ones stay until then. The latest load wins.
    void load();

    /// Nothing until first read.
    [[nodiscard]] const std::optional<std::vector<KnownApp>>& apps() const { return m_apps; }
    [[nodiscard]] const std::optional<std::vector<KnownStartupItem>>& startupItems() const { return m_items; }
    /// What applications that are gone left behind.
    [[nodiscard]] const std::optional<std::vector<FileEntry>>& leftovers() const { return m_leftovers; }

Q_SIGNALS:
    void loaded();

private:
    std::optional<std::vector<KnownApp>> m_apps;
    std::optional<std::vector<KnownStartupItem>> m_items;
    std::optional<std::vector<FileEntry>> m_leftovers;
    Latest m_work;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
