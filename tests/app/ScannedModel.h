#pragma once

#include "app/AppModel.h"
#include "app/EventLoop.h"

#include <gtest/gtest.h>

namespace orlen {

/// A model as a command has it.
inline const AppModel::Options kCommand{AppModel::Startup::filesOnly, AppModel::Access::writer, {}};

inline void scan(AppModel& model)
{
    model.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return model.results()->phase() != Phase::scanning; }));
}

} // namespace orlen
