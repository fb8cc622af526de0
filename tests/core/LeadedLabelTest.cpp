#include "core/LeadedLabel.h"

#include "support/HalvaneTest.h"

namespace {

class LeadedLabelTest : public HalvaneTest {
protected:
    static constexpr int Narrow = 60;
    static constexpr int Wide = 600;
    LeadedLabel label_{QStringLiteral("lblTip"), nullptr};
};

} // namespace

TEST_F(LeadedLabelTest, TheHeightFollowsTheWidth) {
    label_.setText(QStringLiteral("one word and another"));
    const int oneLine = label_.heightForWidth(Wide);
    EXPECT_GT(label_.heightForWidth(Narrow), oneLine);
    EXPECT_EQ(label_.heightForWidth(Wide), oneLine);
}

TEST_F(LeadedLabelTest, TheHeightFollowsTheText) {
    label_.setText(QStringLiteral("one"));
    const int oneLine = label_.heightForWidth(Narrow);
    label_.setText(QStringLiteral("one word and another"));
    EXPECT_GT(label_.heightForWidth(Narrow), oneLine);
}

TEST_F(LeadedLabelTest, TheHeightFollowsTheFont) {
    label_.setText(QStringLiteral("one word and another"));
    const int small = label_.heightForWidth(Narrow);
    QFont large = label_.font();
    large.setPointSizeF(2 * large.pointSizeF());
    label_.setFont(large);
    EXPECT_GT(label_.heightForWidth(Narrow), small);
}
