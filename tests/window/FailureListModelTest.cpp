#include "window/cleaning/FailureListModel.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

TEST(FailureListModelTest, groupsByReasonAndKeepsTheOrderInEach)
{
    const TempHome home;
    FailureListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const std::vector<CleanFailure> failures{{home.path(".cache/a\nb"), FailureReason::inUse},
                                             {"/srv/b", FailureReason::missing},
                                             {"/srv/c", FailureReason::inUse}};
    model.setFailures(failures);
    const auto shown = [&](FailureListModel::Role role) {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts << model.data(model.index(row), static_cast<int>(role)).toString();
        return texts;
    };
    using enum FailureListModel::Role;
    EXPECT_EQ(shown(name), QStringList({"b", "a?b", "c"}));
    EXPECT_EQ(shown(folder), QStringList({"/srv", "~/.cache", "/srv"}));
    EXPECT_EQ(shown(reason), QStringList({"no longer there", "in use", "in use"}));
    EXPECT_EQ(shown(startsReason), QStringList({"true", "true", "false"}));
    EXPECT_EQ(shown(remedy).at(0), "");
    EXPECT_TRUE(shown(remedy).at(1).startsWith("Quit the program"));
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setFailures(failures);
    EXPECT_TRUE(resets.isEmpty()) << "the same list keeps its place";
    model.setFailures({});
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace orlen
