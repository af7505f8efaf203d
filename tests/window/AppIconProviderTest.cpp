#include "window/apps/AppIconProvider.h"

#include "platform/files/Places.h"
#include "support/TempHome.h"
#include "window/apps/IconFiles.h"

#include <gtest/gtest.h>

#include <QImage>

namespace orlen {

namespace {

constexpr QRgb kRed = 0xffff0000;

void writeIcon(const std::string& path, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(kRed);
    ASSERT_TRUE(image.save(QString::fromStdString(path), "PNG"));
}

QImage drawn(const std::string& icon)
{
    AppIconProvider provider;
    return provider.requestImage(AppIconProvider::id("macwindow", icon), nullptr, {40, 40});
}

} // namespace

TEST(AppIconProviderTest, findsAnIconOfTheThemeThroughALinkAndFitsIt)
{
    const TempHome home;
    home.folder(".local/share/icons/hicolor/48x48/apps");
    writeIcon(home.path("kite.png"), {96, 48});
    home.link(".local/share/icons/hicolor/48x48/apps/org.example.Kite.png", home.path("kite.png"));
    for (const std::string icon : {"org.example.Kite", "org.example.Kite.png"}) {
        SCOPED_TRACE(icon);
        const QImage image = drawn(icon);
        EXPECT_EQ(image.size(), QSize(40, 40));
        EXPECT_EQ(image.pixel(20, 20), kRed);
        EXPECT_EQ(qAlpha(image.pixel(20, 2)), 0) << "wide icons keep their shape";
    }
    EXPECT_EQ(drawn(home.path("kite.png")).pixel(20, 20), kRed);
}

TEST(AppIconProviderTest, onlyTheSystemsDrawingsAreDrawnHere)
{
    const TempHome home;
    const std::string bytes = R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">
        <rect width="8" height="4" fill="#f00"/></svg>)";
    const std::string root = Places::current().systemRoot;
    const std::string system = home.outside("system/usr/share/icons/kite.svg");
    ASSERT_EQ(system, root + "/usr/share/icons/kite.svg");
    for (const std::string& path : {home.file(system, bytes), home.file("kite.svg", bytes)}) {
        SCOPED_TRACE(path);
        const QImage image = drawn(path);
        EXPECT_EQ(image.pixel(20, 10), kRed);
        EXPECT_EQ(qAlpha(image.pixel(20, 30)), 0) << "see-through parts stay";
    }
    struct Case {
        const char* path;
        bool isSystem;
    };
    for (const Case& c : {Case{"/usr/share/icons/a.svg", true}, Case{"/usr/share/icons/a.png", false},
                          Case{"/usr/local/share/icons/a.svg", false}, Case{"/opt/kite/a.svg", false}})
        EXPECT_EQ(IconFiles::isSystemDrawing(root + c.path), c.isSystem) << c.path;
}

TEST(AppIconProviderTest, drawsABadgeInPlaceOfWhatIsNoIcon)
{
    const TempHome home;
    for (const std::string& icon :
         {std::string(), std::string("nothing"), std::string("../secret"),
          home.file("bad.png", "\x89PNG\r\n"), home.folder("folder.png"), home.path("caf\xe9.png"),
          home.file("old.xpm", "/* XPM */\nstatic char* old[] = {\"1 1 1 1\", \"a c red\", \"a\"};")}) {
        SCOPED_TRACE(icon);
        const QImage image = drawn(icon);
        EXPECT_EQ(image.size(), QSize(40, 40));
        EXPECT_EQ(qAlpha(image.pixel(20, 4)), 255);
        EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    }
}

TEST(IconFilesTest, prefersWhatNeedsNotGrow)
{
    const auto paths = IconFiles::candidates("kite", 40);
    const auto at = [&](const char* part) {
        return std::find_if(paths.begin(), paths.end(),
                            [&](const std::string& path) { return path.find(part) != std::string::npos; });
    };
    EXPECT_EQ(at("/scalable/"), paths.begin());
    EXPECT_LT(at("/48x48/"), at("/64x64/"));
    EXPECT_LT(at("/512x512/"), at("/36x36/"));
    EXPECT_LT(at("/36x36/"), at("/16x16/"));
    EXPECT_LT(at("/16x16/"), at("/pixmaps/"));
}

} // namespace orlen
