#include "foods/NameTrigrams.h"

#include <gtest/gtest.h>

TEST(NameTrigramsTest, AWordIsAskedForByEachThreeCharacters) {
    EXPECT_EQ(NameTrigrams::Question({"milk"}), "'\"mil\" AND \"ilk\"'");
    EXPECT_EQ(NameTrigrams::Question({"egg", "raw"}), "'\"egg\" AND \"raw\"'");
}

TEST(NameTrigramsTest, ATrigramIsAskedForOnce) {
    EXPECT_EQ(NameTrigrams::Question({"raw", "raw"}), "'\"raw\"'");
}

TEST(NameTrigramsTest, ShortWordsAskForNothing) {
    EXPECT_EQ(NameTrigrams::Question({"", "a", "ab"}), "");
    EXPECT_EQ(NameTrigrams::Question({"a", "egg"}), "'\"egg\"'");
}

TEST(NameTrigramsTest, EveryOtherCharacterOfASCIIIsInTrigrams) {
    EXPECT_EQ(NameTrigrams::Question({" ~!"}), "'\" ~!\"'");
}

TEST(NameTrigramsTest, AWildcardIsInNoTrigram) {
    EXPECT_EQ(NameTrigrams::Question({"mil%raw"}), "'\"mil\" AND \"raw\"'");
    EXPECT_EQ(NameTrigrams::Question({"a_b_c%"}), "");
}

TEST(NameTrigramsTest, ACharacterBeyondASCIIIsInNoTrigram) {
    EXPECT_EQ(NameTrigrams::Question({QStringLiteral("crème")}), "");
    EXPECT_EQ(NameTrigrams::Question({QStringLiteral("crème brûlée")}),
              "'\"me \" AND \"e b\" AND \" br\"'");
}

TEST(NameTrigramsTest, AControlCharacterIsInNoTrigram) {
    EXPECT_EQ(NameTrigrams::Question({QStringLiteral("mil\traw")}), "'\"mil\" AND \"raw\"'");
}

TEST(NameTrigramsTest, ADoubleQuoteIsWrittenTwice) {
    EXPECT_EQ(NameTrigrams::Question({"a\"b"}), "'\"a\"\"b\"'");
}

TEST(NameTrigramsTest, APairOfQuotesIsOneCharacterThatIsInNoTrigram) {
    EXPECT_EQ(NameTrigrams::Question({"kellogg''s"}),
              "'\"kel\" AND \"ell\" AND \"llo\" AND \"log\" AND \"ogg\"'");
}

TEST(NameTrigramsTest, ALoneQuoteMayEndTheTextSoNothingIsAsked) {
    EXPECT_EQ(NameTrigrams::Question({"kellogg's"}), "");
    EXPECT_EQ(NameTrigrams::Question({"milk", "'''"}), "");
}
