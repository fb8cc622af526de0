#include "toolkit/PlainTip.h"

#include "support/HalvaneTest.h"
#include "toolkit/ApplyStyle.h"

#include <QApplication>
#include <QLabel>
#include <QToolTip>

#include <algorithm>

namespace {

class PlainTipTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        ApplyStyle(*qApp);
        control_.resize(100, 100);
        control_.show();
    }
    void TearDown() override {
        QToolTip::hideText();
        HalvaneTest::TearDown();
    }

    QSize TipOf(const QString& text) {
        ShowPlainTip(control_.mapToGlobal(QPoint(50, 50)), text, &control_);
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto tip = std::ranges::find_if(windows, [](const QWidget* window) {
            return window->windowType() == Qt::ToolTip && window->isVisible();
        });
        return tip == windows.end() ? QSize() : (*tip)->size();
    }

private:
    QWidget control_;
};

} // namespace

TEST_F(PlainTipTest, AShortTextStaysOnOneLine) {
    const int line = TipOf(QStringLiteral("Fat")).height();
    EXPECT_GT(line, 0);
    EXPECT_EQ(TipOf(QStringLiteral("Monounsaturated Fat: 18.64 g, 53%")).height(), line);
}

TEST_F(PlainTipTest, ALongTextIsBrokenIntoLines) {
    const int line = TipOf(QStringLiteral("Fat")).height();
    const QSize tip = TipOf(QString("A long text of many words. ").repeated(15));
    EXPECT_GT(tip.height(), 2 * line);
    EXPECT_LT(tip.width(), 1200);
}

TEST_F(PlainTipTest, MarkupInATextIsShownAsItIs) {
    TipOf(QStringLiteral("<b>stew</b>"));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;b&gt;stew")));
}
