#include "window/preview/FilePreview.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "support/TestMedia.h"
#include "window/lists/PathCode.h"
#include "window/preview/PreviewModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QImage>

namespace orlen {

namespace {

constexpr std::size_t kTextLimit = 65'536;

} // namespace

TEST(FilePreviewTest, tellsWhatCanBeShown)
{
    using enum FilePreview::Kind;
    const TempHome home;
    QImage(30, 20, QImage::Format_RGB32).save(QString::fromStdString(home.path("real.png")));
    const std::string atLimit = std::string(kTextLimit - 1, 'a');
    const std::string lockedFile = home.file("locked.txt");
    TempHome::setMode(lockedFile, 0);
    struct Case {
        const char* name;
        std::string path;
        FilePreview::Kind kind;
        bool isCut = false;
    };
    const Case cases[] = {
        {"text", home.file("a.txt", "caf\xc3\xa9\n\tx"), text},
        {"text that fills the limit", home.file("b.txt", atLimit + "b"), text},
        {"one byte more", home.file("c.txt", atLimit + "bc"), text, true},
        {"cut in the middle of a letter", home.file("d.txt", atLimit + "\xe2\x82\xac"), text, true},
        {"a letter that is cut but not by the limit", home.file("e.txt", "a\xe2\x82"), other},
        {"Latin-1", home.file("f.txt", "caf\xe9 au lait"), other},
        {"zero bytes", home.file("g.txt", std::string("a\0b", 3)), other},
        {"empty", home.file("h.txt", ""), other},
        {"picture", home.path("real.png"), picture},
        {"text by the name of a picture", home.file("text.png", "words"), text},
        {"text by the name of a document", home.file("a.pdf", "words"), damaged},
        {"empty archive", home.file("a.zip", "PK\5\6" + std::string(18, '\0')), archive},
        {"text by the name of an archive", home.file("b.tar.gz", "words"), damaged},
        {"film", home.file("a.avi", TestMedia::avi()), media},
        {"program by the name of a film", home.file("main.ts", "export {};\n"), text},
        {"zeros by the name of a film", home.file("zeros.mkv", std::string(99, '\0')), damaged},
        {"text that is packed, by its name", home.file("b.gz", "words"), text},
        {"empty by the name of an archive", home.file("c.zip", ""), other},
        {"folder", home.folder("folder"), folder},
        {"link", home.link("link", home.path("a.txt")), other},
        {"locked", lockedFile, locked},
        {"missing", home.path("missing"), missing},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const FilePreview preview = FilePreview::of(c.path, {});
        EXPECT_EQ(preview.kind, c.kind);
        EXPECT_EQ(preview.isCut, c.isCut);
    }
}

TEST(FilePreviewTest, listsAFolderFoldersFirstAndNotWithoutEnd)
{
    const TempHome home;
    home.file("few/b");
    home.file("few/z folder/inside");
    home.file("few/a");
    const FilePreview few = FilePreview::of(home.path("few"), {});
    ASSERT_EQ(few.names.size(), 3U);
    EXPECT_EQ(few.names[0].name, "z folder");
    EXPECT_EQ(few.names[0].bytes, -1);
    EXPECT_EQ(few.names[2].name, "b");
    EXPECT_EQ(few.names[2].bytes, 4096);
    for (int i = 0; i < 501; ++i)
        home.file("many/" + std::to_string(i));
    const FilePreview many = FilePreview::of(home.path("many"), {});
    EXPECT_EQ(many.names.size(), 500U);
    EXPECT_EQ(many.nameCount, 501);
    EXPECT_TRUE(many.isCut);
}

TEST(PreviewModelTest, showsTheLatestOnly)
{
    const TempHome home;
    const QString folder = PathCode::of(home.path());
    const QString text = PathCode::of(home.file("notes.txt", "words"));
    PreviewModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setPath(folder);
    EXPECT_EQ(model.kind(), PreviewModel::Loading);
    model.setPath(text);
    EXPECT_EQ(model.name(), "notes.txt");
    ASSERT_TRUE(waitUntil([&] { return model.kind() != PreviewModel::Loading; }));
    EXPECT_EQ(model.kind(), PreviewModel::Text);
    EXPECT_EQ(model.text(), "words");
    EXPECT_EQ(model.facts(), "Plain text document\u00a0· 4 KB");
    model.setPath(folder);
    ASSERT_TRUE(waitUntil([&] { return model.kind() == PreviewModel::Folder; }));
    EXPECT_GE(model.rowCount(), 1);
    model.setPath(PathCode::of(home.file("evening.mkv", TestMedia::matroska())));
    ASSERT_TRUE(waitUntil([&] { return model.kind() == PreviewModel::Media; }));
    EXPECT_EQ(model.tags(), "Evening");
    EXPECT_TRUE(model.facts().contains(QStringLiteral("1,920 × 1,080\u00a0· 90 min 0 s")))
        << model.facts().toStdString();
    EXPECT_EQ(model.streams(), QStringLiteral("Matroska\u00a0· H.264\u00a0· 25 fps\n"
                                              "AAC\u00a0· 48\u00a0kHz\u00a0· stereo\u00a0· German\n"
                                              "AC-3\u00a0· 48\u00a0kHz\u00a0· 6 channels\u00a0· French"));
    model.setPath({});
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.text(), "");
}

} // namespace orlen
