#include "window/ask/ConversationModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/shell/WindowState.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>

namespace orlen {

namespace {

QVariant value(const ConversationModel& model, int row, ConversationModel::Role role)
{
    return model.data(model.index(row), static_cast<int>(role));
}

} // namespace

TEST(ConversationModelTest, answersOneQuestionAfterTheOther)
{
    const TempHome home;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    ConversationModel model(app);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_FALSE(model.ask("  \n "));
    EXPECT_TRUE(model.rowCount() == 0);

    EXPECT_TRUE(model.ask("  is there a\n duplicate? "));
    EXPECT_TRUE(model.isThinking());
    EXPECT_FALSE(model.ask("and another?"));
    EXPECT_EQ(model.rowCount(), 1);
    ASSERT_TRUE(waitUntil([&] { return !model.isThinking(); }));
    ASSERT_EQ(model.rowCount(), 2);
    using Role = ConversationModel::Role;
    EXPECT_TRUE(value(model, 0, Role::fromUser).toBool());
    EXPECT_EQ(value(model, 0, Role::text), "is there a duplicate?");
    EXPECT_FALSE(value(model, 1, Role::fromUser).toBool());
    EXPECT_TRUE(value(model, 1, Role::text).toString().startsWith("I don't have scan results yet."));
    model.copy(1);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), value(model, 1, Role::text).toString());
}

TEST(ConversationModelTest, recallsEarlierQuestions)
{
    const TempHome home;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    ConversationModel model(app);
    EXPECT_EQ(model.recall(ConversationModel::Earlier), "");
    for (const char* question : {"first", "second", "second"}) {
        ASSERT_TRUE(model.ask(question));
        ASSERT_TRUE(waitUntil([&] { return !model.isThinking(); }));
    }
    EXPECT_EQ(model.recall(ConversationModel::Earlier), "second");
    EXPECT_EQ(model.recall(ConversationModel::Earlier), "first");
    EXPECT_EQ(model.recall(ConversationModel::Earlier), "first");
    EXPECT_EQ(model.recall(ConversationModel::Later), "second");
    EXPECT_EQ(model.recall(ConversationModel::Later), "");
    EXPECT_EQ(model.recall(ConversationModel::Later), "");
}

TEST(ConversationModelTest, linksOnlyToFindingsThatAreStillThere)
{
    const TempHome home;
    home.fileOfSize("Documents/a.bin", 2'097'152, 7);
    home.fileOfSize("Documents/b.bin", 2'097'152, 7);
    AppModel app({.startup = AppModel::Startup::filesOnly});
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    ConversationModel model(app);
    ASSERT_TRUE(model.ask("duplicate"));
    ASSERT_TRUE(waitUntil([&] { return !model.isThinking(); }));
    auto* links = value(model, 1, ConversationModel::Role::links).value<FindingLinks*>();
    ASSERT_NE(links, nullptr);
    const QAbstractItemModelTester tester(links, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(links->rowCount(), 1);
    EXPECT_EQ(links->data(links->index(0), static_cast<int>(FindingLinks::Role::findingId)), "duplicates");
    EXPECT_EQ(links->data(links->index(0), static_cast<int>(FindingLinks::Role::size)), "2.1 MB");

    app.results()->removeFromFindings({home.path("Documents/a.bin"), home.path("Documents/b.bin")});
    EXPECT_TRUE(links->rowCount() == 0 ||
                links->data(links->index(0), static_cast<int>(FindingLinks::Role::size)) == "0 bytes");
}

TEST(ConversationModelTest, aProposalIsSelectedAloneAndReviewed)
{
    const TempHome home;
    home.fileOfSize(".cache/chromium/pages", 4'000'000);
    home.fileOfSize(".cache/mozilla/covers", 8'000'000);
    home.fileOfSize(".xsession-errors", 70'000);
    AppModel app({.startup = AppModel::Startup::filesOnly});
    ConversationModel model(app);
    const auto ask = [&](const char* question) {
        EXPECT_TRUE(model.ask(question));
        EXPECT_TRUE(waitUntil([&] { return !model.isThinking(); }));
        return model.rowCount() - 1;
    };
    EXPECT_FALSE(value(model, ask("free 3 MB"), ConversationModel::Role::proposes).toBool()) << "no scan yet";
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EXPECT_FALSE(value(model, ask("how much space is free"), ConversationModel::Role::proposes).toBool());
    const int row = ask("free 3 MB");
    ASSERT_TRUE(value(model, row, ConversationModel::Role::proposes).toBool());

    app.results()->selectSafe();
    model.review(row);
    EXPECT_EQ(app.results()->selection(), std::set<std::string>{home.path(".cache/chromium")});
    ASSERT_TRUE(WindowState::of(app).sheet().has_value());
    WindowState::of(app).setSheet({});

    // What is excluded meanwhile is no longer proposed.
    ASSERT_TRUE(app.exclusions()->add(*Exclusion::ofPath(home.path(".cache/chromium"))).ok());
    EXPECT_FALSE(value(model, row, ConversationModel::Role::proposes).toBool());
    model.review(row);
    EXPECT_TRUE(app.results()->selection().empty());
    EXPECT_FALSE(WindowState::of(app).sheet().has_value());
}

} // namespace orlen
