#include "runtime/NameOrder.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {
QString Sorted(const QStringList& names) {
    QList<NamedKey> keys;
    for (const QString& name : names)
        keys.append({name, qint32(keys.size())});
    NameOrder::Sort(keys);
    QStringList sorted;
    for (const NamedKey& key : std::as_const(keys))
        sorted << key.name;
    return sorted.join(u'|');
}
} // namespace

TEST(NameOrder, AnAccentedLetterComesDirectlyBehindItsPlainOne) {
    EXPECT_EQ(Sorted({"Zebra", "éclair", "Äpfel", "apple"}),
              QStringLiteral("apple|Äpfel|éclair|Zebra"));
    EXPECT_EQ(Sorted({"bean", "Äpfel", "azuki", "Apfel"}),
              QStringLiteral("Apfel|azuki|Äpfel|bean"));
    EXPECT_EQ(Sorted({"zoo", "pie", "Øre", "œuf", "łosoś", "malt", "lotus", "oz"}),
              QStringLiteral("lotus|łosoś|malt|oz|Øre|œuf|pie|zoo"));
}

TEST(NameOrder, ALetterAndItsAccentMayBeTwoCharacters) {
    EXPECT_EQ(Sorted({"zebra", QString::fromUtf8("e\u0301clair"), "fig", "apple"}),
              QString::fromUtf8("apple|e\u0301clair|fig|zebra"));
}

TEST(NameOrder, CapitalsMakeNoDifferenceAndEqualNamesKeepTheirOrder) {
    EXPECT_EQ(Sorted({"b", "Soup", "soup", "SOUP", "A"}), QStringLiteral("A|b|Soup|soup|SOUP"));
}

TEST(NameOrder, AnEmptyNameStandsFirstAndNoNameIsLost) {
    EXPECT_EQ(Sorted({"b", "", "a", ""}), QStringLiteral("||a|b"));
    EXPECT_EQ(Sorted({}), QString());
}

TEST(NameOrder, OtherAlphabetsStandBehindTheLatinOne) {
    EXPECT_EQ(Sorted({"яблоко", "Борщ", "zucchini"}), QStringLiteral("zucchini|Борщ|яблоко"));
}

TEST(NameOrder, AccentsAndCapitalsTogetherFollowBothRules) {
    EXPECT_EQ(Sorted({"ZÜRI", "zuri", "ZUG", "Zürcher", "zucchini"}),
              QStringLiteral("zucchini|ZUG|zuri|Zürcher|ZÜRI"));
}

TEST(NameOrder, ALetterBeyondTheFirst65536IsRankedToo) {
    EXPECT_EQ(Sorted({"pie", "apple", "🍏 soup"}), QStringLiteral("🍏 soup|apple|pie"));
}
