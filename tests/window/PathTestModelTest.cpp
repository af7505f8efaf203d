#include "window/about/PathTestModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace orlen {

namespace {

class PathTestModelTest : public testing::Test {
protected:
    QString answerTo(const std::string& text)
    {
        m_model.setText(QString::fromStdString(text));
        EXPECT_TRUE(waitUntil([&] { return !m_model.isLooking(); }));
        return m_model.answer();
    }

    TempHome m_home;
    AppModel m_app{{AppModel::Startup::filesOnly, AppModel::Access::writer, {}}};
    PathTestModel m_model{m_app};
};

} // namespace

TEST_F(PathTestModelTest, saysWhatIsDoneWithAPathAndWhy)
{
    const std::string cache = m_home.path(".cache/mesa_shader_cache");
    (void)m_home.fileOfSize(".cache/mesa_shader_cache/a b", 2'097'152);
    (void)m_home.file(".ssh/id", "key");
    EXPECT_TRUE(answerTo("~/.ssh/id").startsWith("Protected, "));
    EXPECT_TRUE(answerTo(" " + cache + "/ ").contains("Safe: ")) << m_model.answer().toStdString();
    EXPECT_TRUE(m_model.heading().startsWith("~/.cache/mesa_shader_cache"));
    EXPECT_TRUE(answerTo("file://" + cache + "/a%20b").contains("Moves with ~/.cache/mesa_shader_cache, "));

    ASSERT_TRUE(m_app.exclusions()->add({Exclusion::Kind::name, "mesa_shader_cache"}).ok());
    ASSERT_TRUE(waitUntil([&] { return !m_model.isLooking(); }));
    EXPECT_TRUE(m_model.answer().startsWith("Excluded by the name ")) << m_model.answer().toStdString();
    EXPECT_TRUE(m_model.answer().contains("Safe: ")) << "and what else it would be";
}

TEST_F(PathTestModelTest, saysWhatIsNoPathAndWhatIsNotThere)
{
    EXPECT_TRUE(answerTo("film.mkv").startsWith("That is no whole path"));
    EXPECT_TRUE(m_model.heading().isEmpty());
    EXPECT_TRUE(answerTo("~/Videos/gone").startsWith("Not protected"));
    EXPECT_TRUE(m_model.heading().endsWith("nothing there"));
    EXPECT_TRUE(answerTo("  ").isEmpty());
    m_model.setText(QStringLiteral("~/Videos/gone"));
    m_model.setText({});
    EXPECT_FALSE(m_model.isLooking());
}

} // namespace orlen
