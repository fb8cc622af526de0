#include "toolkit/Labels.h"

#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucButton.h"

#include <QFontMetrics>

namespace {

class LabelsTest : public HalvaneTest {
protected:
    QRect Laid(const QString& text, int width) const {
        return QFontMetrics(font).boundingRect(QRect(0, 0, width, 1000), Qt::TextWordWrap, text);
    }

    const QFont font = TheStyle().text;
    const QString sentence = QStringLiteral(
        "Your recipe has been sent to your friend. Its recipe ID is the number 48642812.");
};

} // namespace

TEST_F(LabelsTest, ABalancedTextTakesTheSameLinesAndNoPixelTooMany) {
    for (const int width : {110, 200, 317, 400}) {
        const int balanced = BalancedWidth(sentence, font, width);
        const int height = Laid(sentence, width).height();
        EXPECT_LE(balanced, width);
        EXPECT_EQ(Laid(sentence, balanced).height(), height) << width;
        EXPECT_GT(Laid(sentence, balanced - 1).height(), height) << width;
    }
}

TEST_F(LabelsTest, AWordThatWouldStandAloneTakesOthersDownWithIt) {
    const QString head = sentence.section(u' ', 0, -2);
    const int width = Laid(head, 1000).width();
    ASSERT_GT(Laid(sentence, width).height(), Laid(head, width).height());
    const int balanced = BalancedWidth(sentence, font, width);
    EXPECT_LT(balanced, width * 2 / 3);
}

TEST_F(LabelsTest, ATextOfOneLineTakesItsOwnWidth) {
    const QString line = QStringLiteral("Please enter a search term.");
    EXPECT_NEAR(BalancedWidth(line, font, 400), Laid(line, 400).width(), 1);
}

TEST_F(LabelsTest, AWordLongerThanThePlaceTakesAllOfIt) {
    EXPECT_EQ(BalancedWidth(QString(200, u'W'), font, 300), 300);
    EXPECT_EQ(BalancedWidth(QString(), font, 0), 0);
}

/// All letters are of one width: two pictures differ only where the last letter can be seen.
class NarrowTextTest : public HalvaneTest {
protected:
    QImage Shown(QWidget* control, int width) {
        control->setFont(QFont("DejaVu Sans Mono", 9));
        control->resize(width, 26);
        return Grab(control);
    }
    QImage ShownLabel(const char* text) { return Shown(MakeLabel(&window, "lbl", text), 45); }
    QImage ShownButton(const char* text) {
        auto* button = new ucButton(&window);
        button->SetCaption(text);
        return Shown(button, 64);
    }
    QWidget window;
};

TEST_F(NarrowTextTest, ALabelWithoutRoomShowsItsLineSmallerNotCut) {
    EXPECT_EQ(ShownLabel("Calories A"), ShownLabel("Calories A"));
    EXPECT_NE(ShownLabel("Calories A"), ShownLabel("Calories B"));
}

TEST_F(NarrowTextTest, AButtonWithoutRoomShowsItsCaptionSmallerNotCut) {
    EXPECT_EQ(ShownButton("Calories A"), ShownButton("Calories A"));
    EXPECT_NE(ShownButton("Calories A"), ShownButton("Calories B"));
}
