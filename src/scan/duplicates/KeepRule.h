#pragma once

#include <string>
#include <vector>

namespace orlen {

/// Which file of a set of identical ones stays.
struct KeepRule {
    enum class Order {
        usual, ///< as `KeepOrder` says
        newest,
        oldest,
        shortest, ///< path in characters
    };

    Order order = Order::usual;
    /// A file in this folder is kept rather than another one that is in no reference folder; empty for none.
    std::string folder;
    /// Folders whose files stay: one of them is kept rather than any other file, and none is ever a copy that
    /// may go.
    std::vector<std::string> references;

    friend bool operator==(const KeepRule&, const KeepRule&) = default;
};

} // namespace orlen
