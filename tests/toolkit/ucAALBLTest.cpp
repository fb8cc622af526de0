#include "toolkit/Input.h"

#include "drawing/Contrast.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "runtime/AppState.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucAALBL.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QtMath>

using ucAALBLTest = HalvaneTest;

static qsizetype ColoursOf(const QImage& image) {
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return colours.size();
}

static QImage Printed(const QFont& font) {
    QImage page(200, 40, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    SmoothedPrint(painter, QPointF(3, 4), QStringLiteral("Average 2,114"), font);
    return page;
}

TEST_F(ucAALBLTest, StartsWithItsDefaults) {
    ucAALBL label;
    EXPECT_EQ(label.property("Caption").toString(), "AntiAlias");
    EXPECT_EQ(label.BackColor(), QColor(Qt::white));
    EXPECT_EQ(label.ForeColor(), label.palette().color(QPalette::ButtonText));
    EXPECT_TRUE(label.property("Enabled").toBool());
}

TEST_F(ucAALBLTest, InEveryStyleItsDefaultInkCanBeReadOnItsDefaultGround) {
    for (const StyleKind kind : {StyleKind::Dark, StyleKind::HighContrast, StyleKind::Light}) {
        UseStyle(kind);
        EXPECT_GE(Contrast(TheStyle().ink, ucAALBL().BackColor()), 4.5) << int(kind);
    }
}

TEST_F(ucAALBLTest, AnEmptyCaptionHasNoWidth) {
    ucAALBL label;
    label.SetCaption(QString());
    EXPECT_EQ(label.width(), 0);
}

TEST_F(ucAALBLTest, ALongerCaptionWidensItAtOnceAndMovesNoNeighbour) {
    QWidget parent;
    ucAALBL label(&parent);
    ucAALBL neighbour(&parent);
    neighbour.move(60, 0);
    label.SetCaption(QStringLiteral("Fat"));
    const int width = label.width();
    label.SetCaption(QStringLiteral("Fat and a good deal more"));
    EXPECT_GT(label.width(), width);
    EXPECT_EQ(neighbour.pos(), QPoint(60, 0));
}

TEST_F(ucAALBLTest, WhateverSizeItIsGivenItEndsUpAroundItsText) {
    ucAALBL label;
    label.SetCaption(QStringLiteral("Protein 20%"));
    label.show();
    label.resize(300, 90);
    const QFontMetricsF metrics(SmoothedFont(label.font()));
    EXPECT_EQ(label.size(),
              QSize(qCeil(metrics.horizontalAdvance(label.Caption())), qCeil(metrics.height())));
}

TEST_F(ucAALBLTest, ALargerFontMakesItLarger) {
    ucAALBL label;
    const QSize before = label.size();
    label.setProperty("Font", TheStyle().cardTitle);
    EXPECT_GT(label.width(), before.width());
    EXPECT_GT(label.height(), before.height());
}

TEST_F(ucAALBLTest, PaintsItsColours) {
    ucAALBL label;
    label.SetCaption(QStringLiteral("Carbs."));
    label.setProperty("BackColor", QColor(1, 2, 3));
    label.setProperty("ForeColor", QColor(250, 0, 0));
    const QImage drawn = Grab(&label);
    EXPECT_EQ(drawn.pixelColor(drawn.width() - 1, 0), QColor(1, 2, 3));
    bool red = false;
    for (int x = 0; x < drawn.width(); ++x)
        red |= drawn.pixelColor(x, drawn.height() / 2).red() > 200;
    EXPECT_TRUE(red);
}

TEST_F(ucAALBLTest, PassesItsMouseEventsOn) {
    ucAALBL label;
    QSignalSpy downs(&label, &ucAALBL::MouseDown);
    QSignalSpy moves(&label, &ucAALBL::MouseMove);
    QSignalSpy ups(&label, &ucAALBL::MouseUp);
    QSignalSpy clicks(&label, &ucAALBL::Click);
    SendPress(&label, QPointF(2, 3));
    SendMove(&label, QPointF(4, 3), Qt::LeftButton);
    SendRelease(&label, QPointF(4, 3));
    EXPECT_EQ(downs.value(0), (QVariantList{1, 0, 30.0, 45.0}));
    EXPECT_EQ(moves.value(0), (QVariantList{1, 0, 60.0, 45.0}));
    EXPECT_EQ(ups.value(0), (QVariantList{1, 0, 60.0, 45.0}));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucAALBLTest, PrintsSmoothFromPlatformFamily2UpAndPlainBelow) {
    const QFont font = TheStyle().text;
    App().AppInfo.OSVERSION = 2;
    EXPECT_EQ(SmoothedFont(font).styleStrategy(), QFont::PreferAntialias);
    EXPECT_GT(ColoursOf(Printed(font)), 2);
    App().AppInfo.OSVERSION = 1;
    EXPECT_EQ(SmoothedFont(font).styleStrategy(), QFont::NoAntialias);
    EXPECT_EQ(ColoursOf(Printed(font)), 2);
}

TEST_F(ucAALBLTest, SmoothedTextKeepsSizeWeightAndStyle) {
    QFont font = TheStyle().strong;
    font.setItalic(true);
    font.setUnderline(true);
    font.setStrikeOut(true);
    App().AppInfo.OSVERSION = 2;
    QFont smoothed = SmoothedFont(font);
    smoothed.setStyleStrategy(font.styleStrategy());
    EXPECT_EQ(smoothed, font);
}

TEST_F(ucAALBLTest, PrintingLeavesThePaintersFontAsItWas) {
    QImage page(20, 20, QImage::Format_RGB32);
    QPainter painter(&page);
    painter.setFont(TheStyle().small);
    SmoothedPrint(painter, QPointF(), QStringLiteral("x"), TheStyle().cardTitle);
    EXPECT_EQ(painter.font(), TheStyle().small);
}

TEST(FittingTextTest, ATextThatFitsToThePixelIsNotCut) {
    const QFont font = TheStyle().small;
    for (const char* text : {"1 cup", "(x 0.5)", "(x 1)", "1 serving"}) {
        const QString whole = QString::fromLatin1(text);
        const int width = qCeil(QFontMetricsF(SmoothedFont(font)).horizontalAdvance(whole));
        EXPECT_EQ(FittingText(whole, font, width), whole);
    }
}

TEST(FittingTextTest, ATextTooLongEndsInAnEllipsis) {
    EXPECT_TRUE(FittingText(QString(200, u'm'), TheStyle().small, 60).endsWith(QChar(0x2026)));
}
