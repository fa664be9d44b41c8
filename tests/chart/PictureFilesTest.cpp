#include "chart/PictureFiles.h"

#include "platform/Files.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class PictureFiles : public testing::Test {
protected:
    QString file(const char* name, const QByteArray& content) {
        const QString path = folder_.filePath(QLatin1String(name));
        EXPECT_TRUE(platform::files::writeAtomically(path, content));
        return path;
    }
    QTemporaryDir folder_;
};

} // namespace

TEST_F(PictureFiles, ShowNothingForWhatNobodyShouldReadAndTakeNoTime) {
    QByteArray bomb = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"84\">";
    while (bomb.size() < 3'000'000)
        bomb += "<circle cx=\"9\" cy=\"9\" r=\"8\" fill-opacity=\".01\"/>";
    const QString vast = folder_.filePath(QStringLiteral("vast.png"));
    ASSERT_TRUE(QImage(9000, 9000, QImage::Format_Mono).save(vast));
    const QString files[] = {
        folder_.filePath(QStringLiteral("none.png")),
        file("empty.png", {}),
        file("noise.png", QByteArray(5000, '\x5a')),
        file("cut.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\""),
        file("bomb.svg", bomb + "</svg>"),
        file("heavy.png", QByteArray(20 << 20, '\0')),
        vast,
        folder_.path(),
    };
    for (const QString& path : files) {
        SCOPED_TRACE(path.toStdString());
        QElapsedTimer clock;
        clock.start();
        EXPECT_TRUE(loadPicture(path, QSize(40, 84), 2).isNull());
        EXPECT_FALSE(pictureSize(path).isValid() && !pictureSize(path).isEmpty());
        EXPECT_LT(clock.elapsed(), 500);
    }
}

TEST_F(PictureFiles, AreReadOnceForEachDensityAndSoonAsTheyAreThere) {
    const QString path = folder_.filePath(QStringLiteral("tooth.svg"));
    EXPECT_TRUE(loadPicture(path, QSize(40, 84), 1).isNull());
    file("tooth.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"40\">"
                      "<rect width=\"20\" height=\"40\" fill=\"#f00\"/></svg>");
    for (const qreal ratio : {1.0, 1.5}) {
        const QPixmap picture = loadPicture(path, QSize(40, 84), ratio);
        EXPECT_EQ(picture.size(), (QSizeF(40, 80) * ratio).toSize());
        EXPECT_EQ(picture.cacheKey(), loadPicture(path, QSize(40, 84), ratio).cacheKey());
    }
}
