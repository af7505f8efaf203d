#pragma once

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orlen {

/// Runs the program as its user does.
struct Process {
    struct Outcome {
        int status = -1; ///< exit status; minus the signal's number when one ended it
        std::string out; ///< with a terminal: everything that appeared on it
        std::string err;

        /// The document, which must be all that was printed; discarded when it is none.
        [[nodiscard]] nlohmann::ordered_json document() const
        {
            return nlohmann::ordered_json::parse(out, nullptr, false);
        }
    };

    std::vector<std::string> arguments;
    std::string program = ORLEN_BINARY;

    /// Without a terminal; standard input is empty.
    [[nodiscard]] Outcome run() const;
    /// The same with Ctrl-C already pressed when the program begins.
    [[nodiscard]] Outcome runInterrupted() const;
    /// On a terminal of 80 columns. `typed` is what the user types once `prompt` has appeared.
    [[nodiscard]] Outcome runOnTerminal(const std::string& prompt,
                                        const std::function<std::string()>& typed) const;
};

/// The program called with these arguments, without a terminal.
[[nodiscard]] inline Process::Outcome orlen(std::vector<std::string> arguments)
{
    return Process{std::move(arguments)}.run();
}

} // namespace orlen
