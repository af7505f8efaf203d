#include "window/rowmenu/RowMenuModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/lists/Remembered.h"
#include "window/shell/Notices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSettings>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A list of one row.
class OneRow : public RowsModel {
public:
    explicit OneRow(std::optional<RowSubject> subject) : m_subject(std::move(subject)) {}

    [[nodiscard]] std::optional<RowSubject> subject(int /*row*/) const override { return m_subject; }
    void tickIn(const std::string& folder) override { ticked = folder; }

    std::string ticked;

private:
    [[nodiscard]] int length() const override { return 1; }
    [[nodiscard]] QVariant value(std::size_t /*number*/, int /*role*/) const override { return {}; }

    std::optional<RowSubject> m_subject;
};

class RowMenuModelTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<int> actionsFor(const RowSubject& subject)
    {
        OneRow list(subject);
        if (!m_menu.setSubject(&list, 0))
            return {};
        std::vector<int> actions;
        for (int row = 0; row < m_menu.rowCount(); ++row)
            actions.push_back(
                m_menu.data(m_menu.index(row), static_cast<int>(RowMenuModel::Role::choice)).toInt());
        return actions;
    }
    [[nodiscard]] const std::vector<Exclusion>& lines() const
    {
        return m_app.exclusions()->current().lines();
    }

    TempHome m_home;
    AppModel m_app{{AppModel::Startup::filesOnly, AppModel::Access::writer, {}}};
    Notices m_notices{m_app};
    RowMenuModel m_menu{m_app};
    QAbstractItemModelTester m_tester{&m_menu, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(RowMenuModelTest, offersWhatAppliesToTheRow)
{
    using M = RowMenuModel;
    const std::string film = m_home.path("Videos/film");
    EXPECT_THAT(actionsFor({.path = film, .isTickable = true}),
                ElementsAre(M::Preview, M::Reveal, M::CopyPath, M::TickFolder, M::ExcludePath,
                            M::ExcludeFolder, M::ExcludeName));
    EXPECT_THAT(actionsFor({.path = film, .isThere = false, .isOffered = false}), ElementsAre(M::CopyPath));
    EXPECT_THAT(actionsFor({.path = m_home.path(".xsession-errors"), .isThere = false}),
                ElementsAre(M::CopyPath, M::ExcludePath, M::ExcludeName))
        << "not the whole home folder";
    EXPECT_THAT(actionsFor({.path = m_home.path("caf\xe9"), .isThere = false}), ElementsAre(M::CopyPath))
        << "no list can hold such a name";
    ASSERT_TRUE(m_app.exclusions()->add({Exclusion::Kind::path, film + "/scene"}).ok());
    EXPECT_EQ(actionsFor({.path = film}).size(), 6) << "only something inside it is excluded";
    ASSERT_TRUE(m_app.exclusions()->add({Exclusion::Kind::path, m_home.path("Videos")}).ok());
    EXPECT_THAT(actionsFor({.path = film}), ElementsAre(M::Preview, M::Reveal, M::CopyPath));
    OneRow heading(std::nullopt);
    EXPECT_FALSE(m_menu.setSubject(&heading, 0));
    m_menu.choose(M::ExcludePath);
    EXPECT_EQ(lines().size(), 2);
}

TEST_F(RowMenuModelTest, anExclusionIsToldAndCanBeUndone)
{
    OneRow list(RowSubject{.path = m_home.path("Videos/holidays/film"), .isTickable = true});
    ASSERT_TRUE(m_menu.setSubject(&list, 0));
    m_menu.choose(RowMenuModel::TickFolder);
    EXPECT_EQ(list.ticked, m_home.path("Videos/holidays"));
    m_menu.choose(RowMenuModel::CopyPath);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), m_home.path("Videos/holidays/film"));

    m_menu.choose(RowMenuModel::ExcludeFolder);
    EXPECT_THAT(lines(), ElementsAre(Exclusion{Exclusion::Kind::path, m_home.path("Videos/holidays")}));
    EXPECT_TRUE(m_notices.text().startsWith("~/Videos/holidays is excluded"))
        << m_notices.text().toStdString();
    ASSERT_TRUE(m_notices.hasUndo());
    m_notices.undo();
    EXPECT_THAT(lines(), IsEmpty());
    ASSERT_TRUE(waitUntil([&] { return m_notices.text().contains("no longer excluded"); }));
    m_notices.undo();
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(RowMenuModelTest, aCopyOffersTheFoldersAroundIt)
{
    using M = RowMenuModel;
    const RowSubject copy{.path = m_home.path("a/b/c/d/copy"), .isCopy = true};
    EXPECT_THAT(actionsFor(copy),
                ElementsAre(M::Preview, M::Reveal, M::CopyPath, M::KeepFolder, M::KeepFolder, M::KeepFolder,
                            M::AlwaysKeep, M::ExcludePath, M::ExcludeFolder, M::ExcludeName));
    EXPECT_THAT(actionsFor({.path = m_home.path("copy"), .isOffered = false, .isCopy = true}),
                ElementsAre(M::Preview, M::Reveal, M::CopyPath))
        << "not the whole home folder";
    OneRow list(copy);
    ASSERT_TRUE(m_menu.setSubject(&list, 0));
    const auto place = [&](int row) {
        return m_menu.data(m_menu.index(row), static_cast<int>(M::Role::place)).toString();
    };
    m_menu.choose(M::KeepFolder, place(4));
    EXPECT_EQ(m_app.results()->keepRule().folder, m_home.path("a/b/c"));
    m_menu.choose(M::AlwaysKeep);
    const KeepRule rule{.folder = m_home.path("a/b/c"), .references = {m_home.path("a/b/c/d")}};
    EXPECT_EQ(m_app.results()->keepRule(), rule);
}

TEST_F(RowMenuModelTest, theRuleIsRemembered)
{
    const KeepRule rule{KeepRule::Order::oldest, m_home.path("Bücher, alte"), {m_home.path("a"), "/b"}};
    Remembered::setKeepRule(rule);
    EXPECT_EQ(Remembered::keepRule(), rule);
    QSettings().setValue(QStringLiteral("keep/file"), QStringLiteral("largest"));
    QSettings().setValue(QStringLiteral("keep/always"), QStringLiteral("b"));
    EXPECT_EQ(Remembered::keepRule(), (KeepRule{.folder = rule.folder})) << "nonsense is left out";
    QSettings().clear();
    EXPECT_EQ(Remembered::keepRule(), KeepRule());
}

TEST_F(RowMenuModelTest, whatCannotBeSavedIsSaid)
{
    const std::string file = m_home.file(".local/share/Orlen/exclusions.json", "[]");
    TempHome::setMode(file, 0);
    OneRow list(RowSubject{.path = m_home.path("Videos/film")});
    ASSERT_TRUE(m_menu.setSubject(&list, 0));
    m_menu.choose(RowMenuModel::ExcludeName);
    EXPECT_TRUE(m_notices.text().contains("could not be saved")) << m_notices.text().toStdString();
    EXPECT_FALSE(m_notices.hasUndo());
    EXPECT_THAT(lines(), IsEmpty());
    TempHome::setMode(file, 0600);
    EXPECT_EQ(TempHome::content(file), "[]");
}

} // namespace orlen
