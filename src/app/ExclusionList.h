#pragma once

#include "app/ModelPart.h"
#include "clean/Exclusions.h"
#include "platform/values/Result.h"

#include <vector>

namespace orlen {

/// What the user never wants offered, kept in a file. Main thread; calls are synchronous and small.
class ExclusionList : public ModelPart {
    Q_OBJECT

public:
    /// Whether changes can be saved. A reader only knows what the file held when the program started.
    enum class Access { reader, writer };

    ExclusionList(std::vector<Exclusion> lines, Access access, QObject* parent = nullptr);

    /// A copy may be passed to a worker.
    [[nodiscard]] const Exclusions& current() const { return m_current; }

    /// Adds a line at the end and saves the list. Ok without a change if it is there already. On failure
    /// nothing changes; EROFS for a reader.
    [[nodiscard]] Result<void> add(const Exclusion& exclusion);
    /// Removes a line and saves the list. ENOENT if there is none; other failures as for `add`.
    [[nodiscard]] Result<void> remove(const Exclusion& exclusion);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] Result<void> replace(std::vector<Exclusion> lines);

    const Access m_access;
    Exclusions m_current;
};

} // namespace orlen
