#pragma once

#include "clean/Safety.h"
#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"

#include <gtest/gtest.h>

#include <string>

namespace orlen {

/// A home folder whose Trash is looked at.
class TrashFixture : public testing::Test {
protected:
    TrashFixture() { Safety::refresh(); }

    /// Moves something in that must go in.
    static std::string trashed(const std::string& path)
    {
        const auto moved = Trash::moveIn(path);
        EXPECT_TRUE(moved.ok()) << path << ": errno " << moved.error();
        return moved.ok() ? moved.value() : std::string();
    }

    /// Of a clean-up that has just finished and noted no file numbers.
    static Trash::Recognition now() { return {std::nullopt, std::chrono::system_clock::now()}; }

    [[nodiscard]] std::string files() const { return trash + "/files"; }
    [[nodiscard]] std::string info() const { return trash + "/info"; }

    /// Puts an item and its info file into the Trash, as another program would.
    [[nodiscard]] std::string plant(const std::string& name, const std::string& infoText) const
    {
        (void)home.file(trash + "/info/" + name + ".trashinfo", infoText);
        return home.file(trash + "/files/" + name, "planted");
    }

    static std::string infoText(const std::string& path, const std::string& date)
    {
        return "[Trash Info]\nPath=" + path + "\nDeletionDate=" + date + "\n";
    }

    TempHome home;
    std::string trash = home.path(".local/share/Trash");
};

} // namespace orlen
