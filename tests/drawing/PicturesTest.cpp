#include "drawing/Pictures.h"

#include "drawing/Style.h"
#include "runtime/ScreenTable.h"
#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QDir>
#include <QPainter>

using PicturesTest = HalvaneTest;

static int InkedPixels(const QPixmap& picture, const QColor& colour = {}) {
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    int inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor at = image.pixelColor(x, y);
            inked += colour.isValid() ? at == colour : at.alpha() > 0;
        }
    return inked;
}

TEST_F(PicturesTest, EveryNamedPictureIsThere) {
    for (const char* name :
         {"logo",        "calendar", "daily",     "reports",    "apple",      "book",
          "community",   "minimise", "close",     "settings",   "person",     "trash",
          "examine",     "add",      "bars",      "values",     "pie",        "arrow-up",
          "arrow-down",  "scale",    "food-mark", "scale-mark", "recipe",     "food",
          "custom-food", "radio-on", "radio-off", "switch-on",  "switch-off", "overlay",
          "background",  "check-on", "check-off", "drop-arrow", "day-cell"})
        EXPECT_TRUE(Pictures::Exists(QLatin1String(name))) << name;
    EXPECT_FALSE(Pictures::Exists(QStringLiteral("nothing")));
}

TEST_F(PicturesTest, EveryButtonOfAScreenHasItsPicture) {
    for (const ScreenRow* row : Screens::All) {
        const bool needsPicture = row->button != nullptr;
        EXPECT_EQ(Pictures::Exists(QLatin1String(row->picture)), needsPicture) << row->name;
    }
}

TEST_F(PicturesTest, EveryPictureOfTheFolderIsCompiledInAndDraws) {
    const QStringList files = QDir(Places::Source(QStringLiteral("/assets")))
                                  .entryList({QStringLiteral("*.svg")}, QDir::Files);
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        ASSERT_TRUE(Pictures::Exists(name)) << name.toStdString();
        EXPECT_GT(InkedPixels(Pictures::Get(name, {24, 24}, Qt::black)), 5) << name.toStdString();
    }
}

TEST_F(PicturesTest, EveryColourThatAPictureNamesIsOneOfTheStyle) {
    const QStringList files =
        QDir(Places::Source(QStringLiteral("/assets"))).entryList({QStringLiteral("*.svg")});
    for (const QString& file : files)
        EXPECT_FALSE(Pictures::Source(file.chopped(4), Qt::black).contains('@'))
            << file.toStdString();
}

TEST_F(PicturesTest, APictureThatWasDrawnTakesTheColoursOfTheNextStyle) {
    const auto inked = [] {
        return InkedPixels(Pictures::Get(QStringLiteral("food-mark"), {48, 48}),
                           TheStyle().foodMark);
    };
    EXPECT_GT(inked(), 50);
    UseStyle(StyleKind::Dark);
    EXPECT_GT(inked(), 50);
    UseStyle(StyleKind::Light);
    EXPECT_GT(inked(), 50);
}

TEST_F(PicturesTest, CurrentColorTakesTheTint) {
    const QColor tint(200, 10, 60);
    EXPECT_GT(InkedPixels(Pictures::Get(QStringLiteral("bars"), {48, 48}, tint), tint), 20);
}

TEST_F(PicturesTest, APictureIsAsSharpAsTheScreenAllows) {
    const QPixmap picture = Pictures::Get(QStringLiteral("trash"), {24, 24}, Qt::black, 2);
    EXPECT_EQ(picture.size(), QSize(48, 48));
    EXPECT_EQ(picture.devicePixelRatio(), 2);
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(24, 24));
}

TEST_F(PicturesTest, APictureIsKeptOnceDrawn) {
    const QPixmap first = Pictures::Get(QStringLiteral("trash"), {24, 24}, Qt::black);
    const QPixmap again = Pictures::Get(QStringLiteral("trash"), {24, 24}, Qt::black);
    EXPECT_EQ(first.cacheKey(), again.cacheKey());
}

TEST_F(PicturesTest, AnUnknownPictureOrNoSizeDrawsNothing) {
    EXPECT_EQ(InkedPixels(Pictures::Get(QStringLiteral("nothing"), {24, 24})), 0);
    EXPECT_TRUE(Pictures::Get(QStringLiteral("trash"), {0, 24}).isNull());
}

TEST_F(PicturesTest, PaintingPutsThePictureIntoItsPlace) {
    QImage page(60, 60, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    Pictures::Paint(painter, QRectF(20, 20, 24, 24), QStringLiteral("add"), Qt::black);
    painter.end();
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x)
            ASSERT_TRUE(page.pixelColor(x, y) == Qt::white || QRect(20, 20, 24, 24).contains(x, y))
                << x << ',' << y;
    EXPECT_EQ(page.pixelColor(32, 32), QColor(Qt::black));
}
