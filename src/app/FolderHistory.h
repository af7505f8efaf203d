#pragma once

#include "app/ModelPart.h"
#include "clean/FolderReading.h"
#include "platform/values/Time.h"

#include <optional>
#include <vector>

namespace orlen {

/// What the larger folders held at the end of past scans, read from disk when first asked for. A file that
/// cannot be understood counts as empty: it is worth nothing but comfort. Main thread.
class FolderHistory : public ModelPart {
    Q_OBJECT

public:
    enum class Saving { none, all };

    explicit FolderHistory(Saving saving, QObject* parent = nullptr) : ModelPart(parent), m_saving(saving) {}

    /// Oldest first.
    [[nodiscard]] const std::vector<FolderReading>& readings() const;
    /// Adds the reading of a scan that ended just now, thins out the older ones and saves all.
    void record(FolderReading reading, TimePoint now);

Q_SIGNALS:
    void changed();

private:
    const Saving m_saving;
    mutable std::optional<std::vector<FolderReading>> m_readings;
};

} // namespace orlen
