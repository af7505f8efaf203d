#pragma once

#include "app/AppModel.h"
#include "app/EventLoop.h"

#include <gtest/gtest.h>

namespace orlen {

/// A model as a command has it, which shows a clean-up no longer than it takes.
inline const AppModel::Options kCommand{AppModel::Startup::filesOnly, AppModel::Access::writer,
                                        std::chrono::milliseconds(0)};

inline void scan(AppModel& model)
{
    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return model.phase() != Phase::scanning; }));
}

} // namespace orlen
