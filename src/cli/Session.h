#pragma once

#include "cli/Colours.h"
#include "cli/ProgressLine.h"
#include "model/Message.h"
#include "platform/process/Interrupts.h"

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orlen {

/// How a command ends.
enum class ExitStatus {
    done = 0,
    someFailed = 1,    ///< done, but at least one item could not be moved or restored
    wrongCall = 2,     ///< wrong arguments, or refused
    interrupted = 130, ///< by Ctrl-C
};

/// One run of the program from a terminal or script: its output and its interruption.
class Session {
public:
    /// Work done while the event loop runs.
    struct Work {
        std::function<bool()> isDone;
        std::function<void()> cancel;    ///< called on Ctrl-C; the work then ends on its own
        std::function<Message()> status; ///< the live line; called only if it is shown
        /// Whether a second Ctrl-C may end the program at once: never while files are moved.
        enum class Nature { harmless, moving } nature = Nature::harmless;
    };

    /// Runs the event loop until the work is done.
    void run(const Work& work);

    /// Whether Ctrl-C has been pressed.
    [[nodiscard]] bool isInterrupted();
    /// Readable once Ctrl-C is pressed, until `isInterrupted` is called.
    [[nodiscard]] int interruptDescriptor() const { return m_interrupts.descriptor(); }

    /// To standard output.
    static void print(std::string_view text);
    /// One sentence, or several lines, to standard output.
    static void print(const Message& message);
    static void printDocument(const nlohmann::ordered_json& document);
    /// To standard error.
    void note(std::string_view text);
    /// One sentence to standard error, with the program's name.
    void complain(const Message& sentence);
    /// One per line.
    void complain(std::span<const Message> sentences);
    /// Complains, for a command that ends as a wrong call.
    [[nodiscard]] ExitStatus refuse(const Message& sentence);
    /// Says so, for a command that ends because of Ctrl-C before anything was moved.
    [[nodiscard]] ExitStatus cancelled();

    /// For text on standard output.
    [[nodiscard]] static Colours colours() { return Colours(Terminal::Stream::output); }
    [[nodiscard]] static std::optional<int> width() { return Terminal::width(Terminal::Stream::output); }

private:
    void interrupt(const Work& work);

    Interrupts m_interrupts;
    int m_interrupted = 0;
    ProgressLine m_progress;
};

} // namespace orlen
