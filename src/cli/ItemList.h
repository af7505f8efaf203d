#pragma once

#include "clean/CleanRecord.h"
#include "cli/Colours.h"
#include "model/CleanPlan.h"
#include "model/Message.h"

#include <cstdint>
#include <string>

namespace orlen {

class Session;

/// The full list shown before anything moves: every item, with its whole path.
class ItemList {
public:
    /// What else is printed: a document takes standard output for itself, so the list goes to standard error.
    enum class Beside { nothing, document };

    [[nodiscard]] static ItemList toClean(const CleanPlan& plan, Beside beside);
    /// The largest items of a proposal, and how many more there are.
    [[nodiscard]] static ItemList toPropose(const CleanPlan& plan);
    /// The items that have not been put back yet.
    [[nodiscard]] static ItemList toRestore(const CleanRecord& record, Beside beside);

    [[nodiscard]] bool isEmpty() const { return m_count == 0; }
    /// A text with the {count} of the items and their {size}. Items listed twice, or inside another item,
    /// count once.
    [[nodiscard]] Message summary(const Text& text) const;
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
