#include "store/TextCompare.h"

#include "store/LikePattern.h"

#include <QString>

#include <random>

#include <gtest/gtest.h>

using TextCompare::Compare;
using TextCompare::Like;

TEST(TextCompareTest, CaseDoesNotMatterForAnyLetter) {
    const std::pair<const char*, const char*> same[] = {
        {"breakfast", "BREAKFAST"},
        {"crème brûlée", "CRÈME BRÛLÉE"},
        {"ΣΊΓΜΑ", "σίγμα"},
        {"straße", "STRAßE"},
        {"ЩИ", "щи"},
        {"ǆ", "Ǆ"},
        {"𐐀", "𐐨"},
        {"", ""},
    };
    for (const auto& [left, right] : same) {
        EXPECT_EQ(Compare(left, right), 0) << left << ' ' << right;
        EXPECT_TRUE(Like(left, right)) << left << ' ' << right;
    }
}

TEST(TextCompareTest, AccentsDoMatter) {
    EXPECT_NE(Compare("creme", "crème"), 0);
    EXPECT_FALSE(Like("%creme%", "crème"));
}

TEST(TextCompareTest, TheOrderIsThatOfTheFoldedTexts) {
    EXPECT_LT(Compare("apple", "Banana"), 0);
    EXPECT_GT(Compare("Cherry", "banana"), 0);
    EXPECT_LT(Compare("ap", "Apple"), 0);
    EXPECT_GT(Compare("apple", ""), 0);
    EXPECT_LT(Compare("z", "é"), 0);
    EXPECT_LT(Compare("É", "ê"), 0);
}

TEST(TextCompareTest, PercentStandsForAnyRun) {
    EXPECT_TRUE(Like("%", ""));
    EXPECT_TRUE(Like("%%", "anything"));
    EXPECT_TRUE(Like("%%", ""));
    EXPECT_TRUE(Like("%beef%", "Ground BEEF, raw"));
    EXPECT_TRUE(Like("%beef%", "beef"));
    EXPECT_FALSE(Like("%beef%", "bee f"));
    EXPECT_TRUE(Like("beef%", "Beefsteak"));
    EXPECT_FALSE(Like("beef%", "roast beef"));
    EXPECT_TRUE(Like("%beef", "roast beef"));
    EXPECT_FALSE(Like("%beef", "beefsteak"));
    EXPECT_TRUE(Like("%b%f%", "a beef b"));
    EXPECT_TRUE(Like("%raw%beef%", "raw lean beef"));
    EXPECT_FALSE(Like("%raw%beef%", "beef raw"));
    EXPECT_TRUE(Like("a%a%ab", "aaab"));
    EXPECT_FALSE(Like("a%a%a%ab", "aaab"));
}

TEST(TextCompareTest, UnderscoreStandsForOneCharacter) {
    EXPECT_TRUE(Like("b_ef", "beef"));
    EXPECT_FALSE(Like("b_ef", "bef"));
    EXPECT_TRUE(Like("cr_me", "CRÈME"));
    EXPECT_TRUE(Like("_", "🍞"));
    EXPECT_FALSE(Like("_", ""));
    EXPECT_TRUE(Like("%_%", "a"));
    EXPECT_FALSE(Like("%_%", ""));
    EXPECT_TRUE(Like("%__", "ab"));
}

TEST(TextCompareTest, BracketsStarsAndQuestionMarksAreThemselves) {
    EXPECT_TRUE(Like("%[a-c]%", "x [A-C] y"));
    EXPECT_FALSE(Like("%[a-c]%", "b"));
    EXPECT_FALSE(Like("%*%", "beef"));
    EXPECT_FALSE(Like("b?ef", "beef"));
    EXPECT_TRUE(Like("%\\%", "a\\b"));
}

TEST(TextCompareTest, TheEmptyPatternMatchesTheEmptyTextAlone) {
    EXPECT_TRUE(Like("", ""));
    EXPECT_FALSE(Like("", "a"));
    EXPECT_FALSE(Like("a", ""));
}

TEST(TextCompareTest, LettersBeyondAsciiThatFoldIntoItAreFound) {
    EXPECT_TRUE(Like("%skin%", "\u017F\u212A\u0130n \u017F\u212Ain"));
    EXPECT_TRUE(Like("%k%", "\u212A"));
    EXPECT_TRUE(Like("%s%", "\u017F"));
    EXPECT_EQ(Compare("\u212A", "k"), 0);
    EXPECT_FALSE(Like("%k%", "ž"));
}

TEST(TextCompareTest, EmojiAndLongTexts) {
    const std::string text = std::string(5000, 'a') + "🍞 Brot" + std::string(5000, 'b');
    EXPECT_TRUE(Like("%🍞 BROT%", text));
    EXPECT_TRUE(Like("%brot%", text));
    EXPECT_FALSE(Like("%🥐%", text));
    EXPECT_TRUE(Like('%' + text + '%', 'x' + text + 'y'));
    EXPECT_FALSE(Like('%' + text + "c%", text));
}

TEST(TextCompareTest, ManyWildcardsEndInTime) {
    std::string pattern;
    for (int i = 0; i < 3000; ++i)
        pattern += "a%";
    EXPECT_FALSE(Like(pattern + "b", std::string(10000, 'a')));
    EXPECT_TRUE(Like(pattern, std::string(10000, 'a')));
}

TEST(TextCompareTest, EveryCharacterIsTakenWholeAndFolded) {
    for (char32_t character = 1; character <= QChar::LastValidCodePoint; ++character) {
        if (QChar::isSurrogate(character))
            continue;
        const std::string bytes =
            QStringView(QChar::fromUcs4(character)).toString().toStdString() + 'x';
        std::string_view rest = bytes;
        ASSERT_EQ(TextCompare::TakeFolded(rest), QChar::toCaseFolded(character)) << +character;
        ASSERT_EQ(rest, "x") << +character;
    }
}

TEST(TextCompareTest, ControlCharactersBeyondAsciiAreFoundInAWord) {
    EXPECT_TRUE(Like("%a\u0080%", "xa\u0080y"));
    EXPECT_FALSE(Like("%a\u0080%", "xa\u0081y"));
}

TEST(TextCompareTest, AByteThatStartsNoCharacterIsTheReplacementCharacter) {
    for (const char* broken : {"\x80", "\xBF", "\xC1", "\xF5", "\xFF"})
        EXPECT_EQ(Compare(broken, "\uFFFD"), 0);
}

TEST(TextCompareTest, EveryLetterOfAWordIsFoundInEitherCase) {
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const std::string lower(3, letter);
        const std::string upper(3, char(letter - 'a' + 'A'));
        EXPECT_TRUE(Like('%' + lower + '%', '-' + upper)) << letter;
        EXPECT_TRUE(Like('%' + upper + '%', '-' + lower)) << letter;
    }
}

TEST(TextCompareTest, AWordIsFoundBehindARunOfItsRarestLetter) {
    EXPECT_TRUE(Like("%xo%", "xxo"));
    EXPECT_TRUE(Like("%oxo%", "oxxoxo"));
    EXPECT_FALSE(Like("%xoo%", "xxxo"));
}

TEST(TextCompareTest, NothingBehindTheEndOfATextIsCompared) {
    EXPECT_FALSE(Like("%ka%", std::string_view("xkax").substr(0, 2)));
    EXPECT_FALSE(Like("a", std::string_view("a\0", 2)));
    EXPECT_TRUE(Like("a_", std::string_view("a\0", 2)));
    EXPECT_TRUE(Like("%\u0080%", "a\u0080b"));
}

TEST(TextCompareTest, ACharacterThatIsCutOffIsNotReadBeyondTheEnd) {
    for (const std::string_view whole : {"é", "€", "🍞"}) {
        std::string_view cut = whole.substr(0, whole.size() - 1);
        const size_t length = cut.size();
        EXPECT_EQ(TextCompare::TakeFolded(cut), U'\uFFFD');
        EXPECT_EQ(cut.size(), length - 1);
    }
}

TEST(TextCompareTest, BytesThatAreNoTextAreCharactersOfTheirOwn) {
    const char* broken[] = {"\xFF",         "\xC3",  "\xE2\x82", "\x80",
                            "\xF0\x9F\x8D", "\xC3(", "\xC0\x80"};
    for (const char* text : broken) {
        EXPECT_EQ(Compare(text, text), 0);
        EXPECT_TRUE(Like("%_%", text));
        EXPECT_FALSE(Like("%brot%", text));
    }
    EXPECT_TRUE(Like("____", "\xF5\x80\x80\x80"));
    EXPECT_TRUE(Like("_a", "\xFF"
                           "a"));
}

TEST(TextCompareTest, NulIsACharacter) {
    const std::string_view text("a\0b", 3);
    EXPECT_NE(Compare(text, "a"), 0);
    EXPECT_TRUE(Like("a_b", text));
    EXPECT_TRUE(Like("%B%", text));
    EXPECT_FALSE(Like("a", text));
}

TEST(TextCompareTest, OnePatternServesManyTexts) {
    const LikePattern pattern("%rice%");
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(pattern.Matches("Brown RICE, raw"));
        EXPECT_FALSE(pattern.Matches("ric"));
        EXPECT_FALSE(pattern.Matches(""));
        EXPECT_TRUE(pattern.Matches("é rice"));
        EXPECT_TRUE(pattern.Matches("priced"));
    }
}

/// The definition, letter by letter, as the reference for the fast search.
static bool PlainLike(std::u32string_view pattern, std::u32string_view text) {
    if (pattern.empty())
        return text.empty();
    if (pattern.front() == U'%')
        return PlainLike(pattern.substr(1), text) ||
               (!text.empty() && PlainLike(pattern, text.substr(1)));
    return !text.empty() && (pattern.front() == U'_' || pattern.front() == text.front()) &&
           PlainLike(pattern.substr(1), text.substr(1));
}

TEST(TextCompareTest, AgreesWithThePlainDefinitionOnRandomTexts) {
    std::mt19937 random(20020403); // NOLINT: the same texts in every run
    const std::u32string letters = U"abkséÉ%_ABK";
    const auto text = [&](size_t longest, size_t kinds) {
        std::u32string result(random() % (longest + 1), U' ');
        for (char32_t& letter : result)
            letter = letters[random() % kinds];
        return result;
    };
    const auto utf8 = [](const std::u32string& source) {
        return QString::fromUcs4(source.data(), qsizetype(source.size())).toStdString();
    };
    const auto folded = [](const std::u32string& source) {
        return QString::fromUcs4(source.data(), qsizetype(source.size()))
            .toCaseFolded()
            .toStdU32String();
    };
    for (int i = 0; i < 20000; ++i) {
        const std::u32string pattern = text(7, letters.size());
        std::u32string subject = text(9, 6);
        EXPECT_EQ(Like(utf8(pattern), utf8(subject)), PlainLike(folded(pattern), folded(subject)))
            << utf8(pattern) << " on " << utf8(subject);
    }
}
