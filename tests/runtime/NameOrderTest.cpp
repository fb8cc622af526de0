#include "runtime/NameOrder.h"

#include <QCollator>
#include <QStringList>

#include <algorithm>

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

TEST(NameOrder, NamesThatAreInOrderAlreadyStayAndOthersGetTheSameOrder) {
    const QStringList ordered{"",         " a",   "a",   "A-b",        "a.b",  "a b",   "a (b)",
                              "abc",      "abcd", "abd", "abe\u0301a", "abéb", "abf",   "abz",
                              "e\u0301b", "éc",   "ée",  "Straße",     "zoo",  "яблоко"};
    const QString once = Sorted(ordered);
    const QStringList settled = once.split(u'|');
    EXPECT_EQ(Sorted(settled), once);
    for (qsizetype i = 1; i < settled.size(); ++i)
        EXPECT_EQ(Sorted({settled[i], settled[i - 1]}), Sorted({settled[i - 1], settled[i]}));
    EXPECT_EQ(Sorted({settled.crbegin(), settled.crend()}), once);
}

TEST(NameOrder, EqualNamesAreInTheOrderOfTheirKeys) {
    for (QList<NamedKey> keys : {QList<NamedKey>{{"soup", 9}, {"Soup", 2}, {"SOUP", 5}},
                                 QList<NamedKey>{{"SOUP", 9}, {"Soup", 5}, {"soup", 2}},
                                 QList<NamedKey>{{"Éclair", 9}, {"éclair", 2}, {"éCLAIR", 5}},
                                 QList<NamedKey>{{"щи", 9}, {"ЩИ", 2}, {"Щи", 5}}}) {
        NameOrder::Sort(keys);
        EXPECT_EQ(keys[0].key, 2);
        EXPECT_EQ(keys[1].key, 5);
        EXPECT_EQ(keys[2].key, 9);
    }
}

TEST(NameOrder, CapitalsMakeNoDifferenceAndEqualNamesKeepTheirOrder) {
    EXPECT_EQ(Sorted({"b", "Soup", "soup", "SOUP", "A"}), QStringLiteral("A|b|Soup|soup|SOUP"));
}

TEST(NameOrder, CharactersThatCannotBeSeenMakeNoDifferenceBetweenNames) {
    const QString one(QChar(1));
    const QString two(QChar(2));
    for (QList<NamedKey> keys :
         {QList<NamedKey>{{one, 9}, {two, 5}}, QList<NamedKey>{{two, 9}, {one, 5}}}) {
        NameOrder::Sort(keys);
        EXPECT_EQ(keys[0].key, 5);
    }
}

TEST(NameOrder, ANulStandsBeforeEveryLetter) {
    EXPECT_EQ(Sorted({"b", "a", QString(QChar::Null)}), QString(QChar::Null) + "|a|b");
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

TEST(NameOrder, MoreLettersThanAByteCanRankKeepTheirOrder) {
    const QCollator collator{QLocale(QLocale::English)};
    for (const int count : {255, 256, 257, 258}) {
        QStringList letters;
        for (int i = 0; i < count; ++i)
            letters << QString(QChar(0x4E00 + i));
        QStringList reversed(letters.rbegin(), letters.rend());
        std::ranges::sort(letters, [&](const QString& one, const QString& other) {
            return collator.compare(one, other) < 0;
        });
        EXPECT_EQ(Sorted(reversed), letters.join(u'|')) << count;
    }
}

TEST(NameOrder, ALetterBeyondTheFirst65536IsRankedToo) {
    EXPECT_EQ(Sorted({"pie", "apple", "🍏 soup"}), QStringLiteral("🍏 soup|apple|pie"));
}
