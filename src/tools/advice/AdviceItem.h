#pragma once

#include "model/Message.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// Something that fills the disk and that Orlen does not touch, with what its owner can do about it.
struct AdviceItem {
    /// How much of the size is known.
    enum class Known {
        all,
        part,    ///< some of it could not be read: the size is at least `size`
        nothing, ///< the folders could not be looked into at all
        shared,  ///< it shares its blocks with other files, so that no size would be true
    };

    std::string topic;               ///< its name for scripts, such as "kernels"
    Message title;                   ///< a few words
    std::vector<std::string> places; ///< the folders it is about, in the form all rules compare; never empty
    std::int64_t size = 0;           ///< bytes that could be read
    Known known = Known::all;
    bool isOnHomeDisk = true; ///< whether this space and the home folder's are the same
    Message text;             ///< what it is, why it grows and what the command does
    std::string command;      ///< for the user to run in a terminal; empty if another program does it

    /// "1.2 GB", "at least 1.2 GB", "needs administrator rights"
    [[nodiscard]] Message sizeText() const;

    friend bool operator==(const AdviceItem&, const AdviceItem&) = default;
};

} // namespace orlen
