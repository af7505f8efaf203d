#pragma once

#include "app/ModelPart.h"
#include "app/Workers.h"
#include "scan/HomeFiles.h"

#include <memory>

namespace orlen {

/// What lies in the home folder, as questions about files and folders need it. Main thread; a worker walks.
class HomeContents : public ModelPart {
    Q_OBJECT

public:
    explicit HomeContents(QObject* parent = nullptr);

    /// Walks the home folder; what was read before stays until then. The latest walk wins.
    void load();
    /// The same after something changed, if anybody ever asked for it.
    void refresh();

    /// Null until first read.
    [[nodiscard]] const std::shared_ptr<const HomeFiles>& files() const { return m_files; }

Q_SIGNALS:
    void loaded();

private:
    std::shared_ptr<const HomeFiles> m_files;
    bool m_isWanted = false;
    Latest m_work;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
