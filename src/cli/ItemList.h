#pragma once

#include "clean/CleanRecord.h"
#include "cli/Colours.h"
#include "model/CleanPlan.h"

#include <cstdint>
#include <string>

namespace orlen {

class Session;

/// The full list that is shown before anything moves: every item, no path shortened.
class ItemList {
public:
    /// Where the list goes: beside a document on standard output there is room for nothing else.
    enum class Beside { nothing, document };

    [[nodiscard]] static ItemList toClean(const CleanPlan& plan, Beside beside);
    /// The items that are not yet back.
    [[nodiscard]] static ItemList toRestore(const CleanRecord& record, Beside beside);

    [[nodiscard]] bool isEmpty() const { return m_count == 0; }
    /// "12 items (3.1 GB)"; an item that is listed twice, or lies in another one, counts once.
    [[nodiscard]] std::string summary() const;
    void show(Session& session) const;

private:
    explicit ItemList(Beside beside);

    Beside m_beside;
    Colours m_colours;
    std::string m_text;
    std::int64_t m_count = 0;
    std::int64_t m_bytes = 0;
};

} // namespace orlen
