#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ApplyStyle.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucDropDown.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucStrip.h"
#include "toolkit/ucTitleFlat.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <memory>

namespace {

constexpr int NearColour = 3; ///< steps of 255 that rounding a gradient may cost
constexpr double Parts = 65536;
constexpr int Offsets[] = {0, 1, 2, 3, 7};

/// What controls paint at one scale, compared with what the style says.
class PaintedTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        ApplyStyle(*qApp);
        window.resize(300, 160);
    }

    /// As a picture keeps it: in parts of 65536.
    double Ratio() const { return std::floor(percent / 100.0 * Parts) / Parts; }
    int Line(double width = 1) const { return qMax(1, int(std::floor(width * Ratio()))); }

    void Place(QWidget* control, QPoint corner, QSize size) {
        control->setGeometry(QRect(corner, size));
        control->show();
        where = QRect(control->mapTo(&window, QPoint()), size);
        Take();
    }
    void Take() {
        image = QImage((QSizeF(window.size()) * Ratio()).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(Ratio());
        image.fill(TheStyle().canvas);
        window.render(&image);
        image.setDevicePixelRatio(1);
    }

    /// The pixels of the device that the control covers; the platform may clip one at each end.
    QRect OnDevice() const {
        const QPoint corner(qRound(where.left() * Ratio()), qRound(where.top() * Ratio()));
        const auto length = [&](int from, int by) {
            return qMin(qRound(by * Ratio()),
                        qRound((from + by) * Ratio()) - qRound(from * Ratio()));
        };
        return {corner,
                QSize(length(where.left(), where.width()), length(where.top(), where.height()))};
    }

    static bool Near(const QColor& one, const QColor& other) {
        return qAbs(one.red() - other.red()) <= NearColour &&
               qAbs(one.green() - other.green()) <= NearColour &&
               qAbs(one.blue() - other.blue()) <= NearColour;
    }
    void ExpectColour(int x, int y, const QColor& colour, const char* what) const {
        const QColor found = image.pixelColor(x, y);
        EXPECT_TRUE(Near(found, colour))
            << what << " at " << x << ", " << y << " and " << percent << " %: found "
            << found.name().toStdString() << " instead of " << colour.name().toStdString();
    }

    static QColor Between(const Style::Gradient& ground, double share) {
        const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
        return {mix(ground.from.red(), ground.to.red()),
                mix(ground.from.green(), ground.to.green()),
                mix(ground.from.blue(), ground.to.blue())};
    }

    /// A row near the top, free of text: one colour from cap to cap.
    void ExpectGround(const Style::Gradient& ground, int left, int right, int row) const {
        const QRect at = OnDevice();
        const QColor colour = Between(ground, (row + .5) / at.height());
        for (int x = at.left() + left; x <= at.right() - right; ++x)
            ExpectColour(x, at.top() + row, colour, "the ground");
    }

    /// Edges of one width on all four sides, and nothing of them outside.
    void ExpectFrame(const QColor& edge, int line) const {
        const QRect at = OnDevice();
        const QPoint middle = at.center();
        for (int i = 0; i < line; ++i) {
            ExpectColour(at.left() + i, middle.y(), edge, "the left edge");
            ExpectColour(at.right() - i, middle.y(), edge, "the right edge");
            ExpectColour(middle.x(), at.top() + i, edge, "the upper edge");
            ExpectColour(middle.x(), at.bottom() - i, edge, "the lower edge");
        }
        EXPECT_FALSE(Near(image.pixelColor(at.left() + line, middle.y()), edge)) << percent;
        EXPECT_FALSE(Near(image.pixelColor(at.right() - line, middle.y()), edge)) << percent;
        EXPECT_FALSE(Near(image.pixelColor(middle.x(), at.top() + line), edge)) << percent;
        EXPECT_FALSE(Near(image.pixelColor(middle.x(), at.bottom() - line), edge)) << percent;
        if (at.right() + 1 < image.width())
            ExpectColour(at.right() + 1, middle.y(), TheStyle().canvas, "right of it");
        ExpectColour(middle.x(), at.bottom() + 1, TheStyle().canvas, "below it");
    }

    void ExpectFace(const Style::ButtonFace& face, double radius) const {
        const int cap = int(std::ceil(radius * Ratio())) + Line();
        ExpectGround(face.ground, cap, cap, Line());
        ExpectFrame(face.edge, Line());
    }

    int percent = 100;
    QWidget window;
    QRect where; ///< the control in the layout
    QImage image;
};

/// At each scale in turn, whatever the screen has.
class ScaleTest : public PaintedTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override {
        PaintedTest::SetUp();
        percent = GetParam();
    }
};

/// At the scale of the screen, which the environment of the process sets.
class ScreenScaleTest : public PaintedTest {
protected:
    void SetUp() override {
        PaintedTest::SetUp();
        percent = qRound(window.devicePixelRatioF() * 100);
    }
};

std::string NameOfScale(const ::testing::TestParamInfo<int>& scale) {
    return "Percent" + std::to_string(scale.param);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(EveryScale, ScaleTest, ::testing::Range(100, 301, 5), NameOfScale);

TEST_P(ScaleTest, ButtonsHaveTheirGroundAndEdgesInEveryState) {
    ucButton button(QString(), &window);
    for (const int offset : Offsets)
        for (const bool mainAction : {false, true})
            for (int state = 1; state <= 4; ++state) {
                button.SetMainAction(mainAction);
                button.setEnabled(state != 4);
                button.Reset();
                Place(&button, {offset, offset}, {87 + offset, 26});
                const auto type = state == 3 ? QEvent::MouseButtonPress : QEvent::MouseMove;
                if (state == 2 || state == 3) {
                    QMouseEvent event(type, QPointF(9, 9), QPointF(9, 9), Qt::LeftButton,
                                      Qt::NoButton, Qt::NoModifier);
                    QApplication::sendEvent(&button, &event);
                }
                ASSERT_EQ(button.State(), state);
                Take();
                const Style& style = TheStyle();
                ExpectFace((mainAction ? style.mainAction : style.button)[state - 1],
                           style.buttonRadius);
            }
}

TEST_P(ScaleTest, PictureButtonsWithAnEdgeAreTheSame) {
    ucButtonA view(&window);
    view.SetPictures(QStringLiteral("bars"), QStringLiteral("Bars"));
    view.SetBordered(true);
    for (const int offset : Offsets) {
        Place(&view, {offset, offset}, {34 + offset, 34});
        ExpectFace(TheStyle().button[0], TheStyle().buttonRadius);
    }
    view.SetChosen(true);
    Take();
    ExpectFace({TheStyle().chosenDay, TheStyle().frame, {}}, TheStyle().buttonRadius);
}

TEST_P(ScaleTest, TheChosenDayHasItsFrameAndGround) {
    ucCalButton day(&window);
    day.SetCaption(QString());
    for (const int offset : Offsets) {
        Place(&day, {offset, offset}, {66 + offset, 71});
        const Style::ButtonFace& face = TheStyle().dayButton[0];
        ExpectGround(face.ground, Line(2), Line(2), Line(2));
        ExpectFrame(face.edge, Line(2));
    }
}

TEST_P(ScaleTest, ListsHaveTheirEdgeAndPaper) {
    ucDropDown list(&window);
    list.SetText(QString());
    for (const int offset : Offsets) {
        Place(&list, {offset, offset}, {109 + offset, 24});
        const QColor paper = TheStyle().paper;
        ExpectFace({{paper, paper}, TheStyle().fieldEdge, {}}, TheStyle().fieldRadius);
    }
}

TEST_P(ScaleTest, HeadersAndStripsReachTheirEnds) {
    ucHeader header(&window);
    ucStrip strip(&window);
    for (PaintedPanel* panel :
         {static_cast<PaintedPanel*>(&header), static_cast<PaintedPanel*>(&strip)}) {
        header.hide();
        strip.hide();
        panel->SetCaption(QString());
        for (const int offset : Offsets) {
            Place(panel, {offset, offset}, {201 + offset, 24});
            ExpectGround(TheStyle().header, 0, 0, 1);
        }
    }
}

TEST_P(ScaleTest, ATitleHasTheFrameOfItsWindowAtThreeSides) {
    ucTitleFlat title(&window);
    title.SetCaption(QString());
    for (const int offset : Offsets) {
        Place(&title, {offset, offset}, {201 + offset, 24});
        ExpectGround(TheStyle().window, Line(), Line(), Line());
        const QRect at = OnDevice();
        for (int i = 0; i < Line(); ++i) {
            ExpectColour(at.center().x(), at.top() + i, TheStyle().frame, "the upper edge");
            ExpectColour(at.left() + i, at.center().y(), TheStyle().frame, "the left edge");
            ExpectColour(at.right() - i, at.center().y(), TheStyle().frame, "the right edge");
        }
    }
}

TEST_P(ScaleTest, ABoxHasOneFrame) {
    for (const char* caption : {"", " "})
        for (const int offset : Offsets) {
            ucBox box(QString::fromLatin1(caption), &window);
            Place(&box, {offset, offset}, {201 + offset, 90 + offset});
            ExpectFrame(TheStyle().frame, Line());
        }
}

TEST_F(ScreenScaleTest, TheContentsOfABoxLeaveItsFrame) {
    for (const char* caption : {"", " "})
        for (const int offset : Offsets) {
            ucBox box(QString::fromLatin1(caption), &window);
            Place(&box, {offset, offset}, {201 + offset, 90 + offset});
            QWidget contents(&box);
            contents.setAutoFillBackground(true);
            contents.setGeometry(box.Inner());
            contents.show();
            Take();
            ExpectFrame(TheStyle().frame, Line());
        }
}

TEST_P(ScaleTest, AHeaderMeetsTheFrameOfItsBox) {
    for (const int offset : Offsets) {
        ucBox box(QStringLiteral(" "), &window);
        Place(&box, {offset, offset}, {201 + offset, 90});
        const int row = int(4 * Ratio());
        const QRect at = OnDevice();
        const QColor ground = image.pixelColor(at.center().x(), at.top() + row);
        for (int x = at.left() + Line(); x <= at.right() - Line(); ++x)
            ExpectColour(x, at.top() + row, ground, "the header");
    }
}

TEST_P(ScaleTest, ALineIsAsWideEverywhere) {
    QImage page(int(60 * Ratio()), int(60 * Ratio()), QImage::Format_RGB32);
    page.setDevicePixelRatio(Ratio());
    page.fill(Qt::white);
    QPainter painter(&page);
    for (int row = 3; row < 50; row += 7)
        PaintEdge(painter, QRect(5, row, 40, 1), Qt::TopEdge, Qt::black);
    painter.end();
    int dark = 0;
    for (int y = 0; y < page.height(); ++y)
        dark += page.pixelColor(int(20 * Ratio()), y) == QColor(Qt::black);
    EXPECT_EQ(dark, 7 * Line());
}

TEST_P(ScaleTest, APictureIsAsLargeWhereverItWasCachedFirst) {
    const QSize size(24, 24);
    const QPixmap one = Pictures::Get(QStringLiteral("trash"), size, Qt::black, Ratio());
    const QSize pixels = one.size();
    const QPixmap same = Pictures::Get(QStringLiteral("trash"), pixels, Qt::black);
    EXPECT_NEAR(one.devicePixelRatio(), Ratio(), 1e-4);
    EXPECT_EQ(same.devicePixelRatio(), 1);
    EXPECT_EQ(same.size(), pixels);
}
