#include "ui/Pictures.h"
#include "support/LogCapture.h"
#include "ui/ImageProvider.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kesto::test
{

class PicturesTest : public testing::Test
{
protected:
    PicturesTest()
    {
        write(QStringLiteral("ring.svg"),
              R"(<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24">
            <rect x="0" y="0" width="12" height="24" fill="#000000"/></svg>)");
        write(QStringLiteral("app_icon.svg"),
              R"(<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24">
            <rect x="0" y="0" width="24" height="24" fill="#00ff00"/></svg>)");
        write(QStringLiteral("broken.svg"), "<svg");
        QImage photo(40, 20, QImage::Format_RGB32);
        photo.fill(Qt::red);
        EXPECT_TRUE(photo.save(folder_.filePath(QStringLiteral("7.jpg"))));
    }
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder_;
    PictureFolder pictures_{folder_.path()};
};

TEST_F(PicturesTest, FindsANameWithOrWithoutExtension)
{
    const QString ring = folder_.filePath(QStringLiteral("ring.svg"));
    EXPECT_EQ(pictures_.file(QStringLiteral("ring")), ring);
    EXPECT_EQ(pictures_.file(QStringLiteral("ring.png")), ring);
    EXPECT_EQ(pictures_.file(QStringLiteral("ring.PNG")), ring);
    EXPECT_EQ(pictures_.file(QStringLiteral("7.jpg")), folder_.filePath(QStringLiteral("7.jpg")));
    for (const char *name : {"", "rin", "7", "7.png", "ring.jpg", "../ring", "/etc/hosts", ".", "..", "a/ring"})
        EXPECT_EQ(pictures_.file(QString::fromLatin1(name)), QString()) << name;
}

TEST_F(PicturesTest, DrawsAtTheWantedSizeAndTintsByAlpha)
{
    const QImage plain = pictures_.image(QStringLiteral("ring"), QSize(48, 48), {});
    EXPECT_EQ(plain.size(), QSize(48, 48));
    EXPECT_EQ(plain.pixelColor(10, 10), QColor(Qt::black));
    EXPECT_EQ(plain.pixelColor(40, 10).alpha(), 0);

    const QImage tinted = pictures_.image(QStringLiteral("ring"), QSize(48, 48), QColor(10, 20, 30));
    EXPECT_EQ(tinted.pixelColor(10, 10), QColor(10, 20, 30));
    EXPECT_EQ(tinted.pixelColor(40, 10).alpha(), 0);
    // The tint of one is not seen in another.
    EXPECT_EQ(pictures_.image(QStringLiteral("ring"), QSize(48, 48), {}).pixelColor(10, 10), QColor(Qt::black));
    EXPECT_EQ(pictures_.image(QStringLiteral("ring"), QSize(), {}).size(), QSize(24, 24));
    EXPECT_EQ(pictures_.image(QStringLiteral("ring"), QSize(60, 30), {}).size(), QSize(30, 30));
}

TEST_F(PicturesTest, ColouredPicturesKeepTheirColours)
{
    EXPECT_EQ(pictures_.image(QStringLiteral("app_icon"), QSize(8, 8), Qt::blue).pixelColor(4, 4), QColor(0, 255, 0));
    const QImage photo = pictures_.image(QStringLiteral("7.jpg"), QSize(20, 20), Qt::blue);
    EXPECT_EQ(photo.size(), QSize(20, 10));
    EXPECT_GT(photo.pixelColor(10, 5).red(), 240);
}

TEST_F(PicturesTest, AMissingPictureIsTransparentAndLoggedOnce)
{
    LogCapture log;
    ImageProvider provider(folder_.path());
    QSize size;
    for (int i = 0; i < 3; ++i) {
        const QImage image = provider.requestImage(QStringLiteral("no%20such?color=ff0000"), &size, QSize(16, 16));
        EXPECT_EQ(image.size(), QSize(16, 16));
        EXPECT_EQ(size, QSize(16, 16));
        EXPECT_EQ(image.pixelColor(8, 8).alpha(), 0);
    }
    EXPECT_EQ(provider.requestImage(QStringLiteral("broken"), nullptr, QSize()).pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(log.lines().filter(QStringLiteral("no such")), QStringList(QStringLiteral("no picture \"no such\"")));
    EXPECT_TRUE(log.lines().contains(QStringLiteral("no picture \"broken\"")));
}

TEST_F(PicturesTest, ReadsTheColourOfAnAddress)
{
    ImageProvider provider(folder_.path());
    const auto pixel = [&](const char *id) {
        return provider.requestImage(QString::fromLatin1(id), nullptr, QSize(24, 24)).pixelColor(6, 12);
    };
    EXPECT_EQ(pixel("ring?color=ff0000"), QColor(255, 0, 0));
    EXPECT_EQ(pixel("ring.png?color=%23ff0000"), QColor(255, 0, 0));
    EXPECT_EQ(pixel("ring?color=800000ff").alpha(), 128);
    EXPECT_EQ(pixel("ring?color=nonsense"), QColor(Qt::black));
    EXPECT_EQ(pixel("ring"), QColor(Qt::black));
}

} // namespace kesto::test
