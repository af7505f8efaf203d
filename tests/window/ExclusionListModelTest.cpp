#include "window/about/ExclusionListModel.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace orlen {

TEST(ExclusionListModelTest, listsSearchesAndRemoves)
{
    const TempHome home;
    AppModel app({AppModel::Startup::filesOnly, AppModel::Access::writer, {}});
    ExclusionListModel model(app);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto shown = [&] {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts
                << model.data(model.index(row), static_cast<int>(ExclusionListModel::Role::what)).toString();
        return texts;
    };
    ASSERT_TRUE(app.exclusions()->add({Exclusion::Kind::path, home.path("Videos/Films")}).ok());
    ASSERT_TRUE(app.exclusions()->add({Exclusion::Kind::name, "Films"}).ok());
    ASSERT_TRUE(app.exclusions()->add({Exclusion::Kind::name, "node_modules"}).ok());
    EXPECT_EQ(shown(), QStringList({"~/Videos/Films", "Films", "node_modules"}));
    model.setFilter(QStringLiteral("film"));
    EXPECT_EQ(shown(), QStringList({"~/Videos/Films", "Films"}));
    EXPECT_EQ(model.total(), 3);
    model.remove(1);
    model.remove(7);
    EXPECT_EQ(shown(), QStringList({"~/Videos/Films"}));
    EXPECT_EQ(app.exclusions()->current().lines().back().text, "node_modules") << "the one that is shown";
}

} // namespace orlen
