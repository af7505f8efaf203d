#include "window/preview/Thumbnails.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/lists/PathCode.h"
#include "window/preview/FilePreview.h"
#include "window/preview/PictureReader.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QQuickTextureFactory>
#include <QSignalSpy>

#include <array>
#include <filesystem>

namespace orlen {

namespace {

/// A picture whose left half is red and whose right half is blue.
std::string pictureBytes(const QSize& size, const char* format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = size.width() / 2; x < size.width(); ++x)
            image.setPixelColor(x, y, Qt::blue);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format, 95);
    return bytes.toStdString();
}

/// The same as a JPEG whose note says that it must be turned a quarter to the right to be upright.
std::string turnedPicture(const QSize& size)
{
    constexpr std::array<unsigned char, 36> kTurned{0xff, 0xe1, 0x00, 0x22, 'E',  'x',  'i',  'f',  0x00,
                                                    0x00, 'M',  'M',  0x00, 0x2a, 0x00, 0x00, 0x00, 0x08,
                                                    0x00, 0x01, 0x01, 0x12, 0x00, 0x03, 0x00, 0x00, 0x00,
                                                    0x01, 0x00, 0x06, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};
    std::string bytes = pictureBytes(size, "jpeg");
    return bytes.insert(2, std::string(kTurned.begin(), kTurned.end()));
}

/// Stores a thumbnail of the file like a file manager, in one colour.
void keepThumbnail(const TempHome& home, const std::string& file, const std::string& name, int side,
                   Qt::GlobalColor colour)
{
    QImage image(side, side / 2, QImage::Format_RGB32);
    image.fill(colour);
    const qint64 changed = QFileInfo(QString::fromStdString(file)).lastModified().toSecsSinceEpoch();
    image.setText(QStringLiteral("Thumb::URI"), QStringLiteral("not looked at"));
    image.setText(QStringLiteral("Thumb::MTime"), QString::number(changed));
    const QByteArray md5 =
        QCryptographicHash::hash(QByteArray::fromStdString(name), QCryptographicHash::Md5).toHex();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "png");
    home.file(".cache/thumbnails/" + std::string(side > 128 ? "large/" : "normal/") + md5.toStdString() +
                  ".png",
              bytes.toStdString());
}

QImage answered(Thumbnails& thumbnails, const QString& source, const QSize& size)
{
    const std::unique_ptr<QQuickImageResponse> response(
        thumbnails.requestImageResponse(source.section(u'/', 3), size));
    const QSignalSpy finished(response.get(), &QQuickImageResponse::finished);
    EXPECT_TRUE(waitUntil([&] { return !finished.isEmpty(); }));
    const std::unique_ptr<QQuickTextureFactory> texture(response->textureFactory());
    return texture == nullptr ? QImage() : texture->image();
}

} // namespace

TEST(ThumbnailsTest, coversTheShapeAskedForAndNeverEnlarges)
{
    const TempHome home;
    const std::string path = home.file("wide.jpg", pictureBytes({400, 200}, "jpeg"));
    struct Case {
        const char* name;
        QString suffix;
        QSize asked;
        QSize given;
    };
    const Case cases[] = {
        {"the middle square", "", {50, 50}, {50, 50}},
        {"the whole picture", "/inside", {50, 50}, {50, 25}},
        {"smaller than asked for", "", {800, 800}, {200, 200}},
        {"smaller than asked for, whole", "/inside", {800, 800}, {400, 200}},
        {"a sliver", "/inside", {1, 1}, {1, 1}},
    };
    Thumbnails thumbnails;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(answered(thumbnails, Thumbnails::source(path) + c.suffix, c.asked).size(), c.given);
    }
}

TEST(ThumbnailsTest, turnsPicturesUpright)
{
    const TempHome home;
    const std::string path = home.file("turned.jpg", turnedPicture({400, 200}));
    const auto picture = PictureReader::read(path, {100, 100}, PictureReader::Fit::inside, {});
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->whole, QSize(200, 400));
    ASSERT_EQ(picture->image.size(), QSize(50, 100));
    EXPECT_GT(picture->image.pixelColor(25, 10).red(), 200);
    EXPECT_GT(picture->image.pixelColor(25, 90).blue(), 200);
}

TEST(ThumbnailsTest, goesByTheContentAndRefusesTheRest)
{
    const TempHome home;
    const std::string picture = pictureBytes({30, 30}, "png");
    const std::string misnamed = home.file("misnamed.jpg", picture);
    EXPECT_TRUE(PictureReader::read(misnamed, {40, 40}, PictureReader::Fit::cover, {}));
    // 20,000 x 20,000 pixels, and only the beginning of them.
    std::string huge = pictureBytes({30, 30}, "bmp");
    huge.replace(18, 8, std::string("\x20\x4e\0\0\x20\x4e\0\0", 8));
    struct Case {
        const char* name;
        std::string path;
    };
    const Case cases[] = {
        {"text", home.file("text.png", "not a picture")},
        {"cut off", home.file("cut.png", picture.substr(0, 40))},
        {"empty", home.file("empty.jpg", "")},
        {"drawing with scripts", home.file("drawing.png", "<svg xmlns='http://www.w3.org/2000/svg'/>")},
        {"larger than the memory allowed", home.file("huge.bmp", huge)},
        {"missing", home.path("missing.png")},
        {"folder", home.folder("folder.png")},
        {"link", home.link("link.png", misnamed)},
    };
    Thumbnails thumbnails;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_TRUE(answered(thumbnails, Thumbnails::source(c.path), {40, 40}).isNull());
    }
    EXPECT_TRUE(Thumbnails::source(home.path("letter.txt")).isEmpty());
    EXPECT_TRUE(answered(thumbnails, "image://thumbnail/999999", {40, 40}).isNull());
}

TEST(ThumbnailsTest, whatAFileManagerHasDrawnIsShownWhileItIsOfTheFile)
{
    const TempHome home;
    Thumbnails thumbnails;
    const std::string film = home.file("my film; [1].mkv", "not looked at");
    const auto shown = [&](const QSize& size) {
        return answered(thumbnails, Thumbnails::source(film), size);
    };
    EXPECT_TRUE(shown({40, 40}).isNull());
    // One desktop escapes these, another does not.
    keepThumbnail(home, film, "file://" + home.path("my%20film%3B%20%5B1%5D.mkv"), 128, Qt::red);
    EXPECT_EQ(shown({41, 41}).size(), QSize(41, 41));
    keepThumbnail(home, film, "file://" + home.path("my%20film;%20[1].mkv"), 256, Qt::blue);
    EXPECT_EQ(shown({42, 42}).pixelColor(9, 9), QColor(Qt::red)) << "large enough";
    const auto whole = answered(thumbnails, Thumbnails::sourceOfKept(film), {300, 300});
    EXPECT_EQ(whole.size(), QSize(256, 128));
    EXPECT_EQ(whole.pixelColor(9, 9), QColor(Qt::blue));

    const std::string letter = home.file("letter.odt", std::string("PK\3\4\0", 5));
    EXPECT_TRUE(FilePreview::of(letter, {}).thumbnail.isEmpty());
    keepThumbnail(home, letter, "file://" + letter, 128, Qt::red);
    const FilePreview preview = FilePreview::of(letter, {});
    EXPECT_EQ(preview.thumbnail, QSize(128, 64));

    TempHome::setTimes(film, *timeFromIso("2024-05-01T10:00:00Z"), *timeFromIso("2024-05-01T10:00:00Z"));
    EXPECT_TRUE(shown({43, 43}).isNull()) << "of what the film was before";
    const std::string kept = home.path(".cache/thumbnails");
    std::filesystem::rename(kept, home.path("elsewhere"));
    home.link(".cache/thumbnails", home.path("elsewhere"));
    EXPECT_TRUE(FilePreview::of(letter, {}).thumbnail.isEmpty()) << "behind a link";
}

TEST(ThumbnailsTest, outlivesNobodyAndIsOutlivedByNone)
{
    const TempHome home;
    const std::string path = home.file("wide.jpg", pictureBytes({2000, 1000}, "jpeg"));
    const QString id = Thumbnails::source(path).section(u'/', 3);
    std::vector<std::unique_ptr<QQuickImageResponse>> responses;
    {
        Thumbnails thumbnails;
        for (int size = 10; size < 60; ++size) {
            responses.emplace_back(thumbnails.requestImageResponse(id, {size, size}));
            if (size % 2 == 0)
                responses.back()->cancel();
            if (size % 5 == 0)
                responses.pop_back();
        }
    }
    QCoreApplication::processEvents();
}

TEST(PathCodeTest, keepsEveryByte)
{
    const std::string odd = "/home/sam/\xff%20/?#\xc3\xa9\n.png";
    EXPECT_EQ(PathCode::path(PathCode::of(odd)), odd);
}

} // namespace orlen
