#include "exchange/RecipeReader.h"
#include "exchange/Refusal.h"

#include <algorithm>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

using namespace exchange;

namespace {
constexpr int Most = 500;
constexpr size_t Mebibyte = 1 << 20;

/// Milliseconds of processor that a mebibyte may cost; the sanitizers multiply what it costs.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double MostCost = 1000;
#else
constexpr double MostCost = 50;
#endif

std::string With(const std::string& fields) {
    return R"({"RecipeName":"x","EMAILFROM":"a@b.cd","EMAILTO":"a@b.cd",)" + fields + "}";
}

/// The status that a body is refused with, and 0 for one that is taken.
template <class Read> int StatusOf(const Read& read) {
    try {
        read();
        return 0;
    } catch (const Refusal& refusal) {
        return refusal.Status();
    }
}

int RecipeStatus(const std::string& body) {
    return StatusOf([&] { RecipeReader::ReadRecipe(body); });
}

int RowsStatus(const std::string& body) {
    return StatusOf([&] { RecipeReader::ReadIngredients(body, Most); });
}

std::string Repeated(const std::string& piece, size_t bytes = Mebibyte) {
    std::string text;
    while (text.size() < bytes)
        text += piece;
    return text;
}

/// Milliseconds of processor time that this thread has used.
double Used() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Milliseconds of processor time. A busy machine counts more than the work itself takes, so a work
/// that seems to cost too much is tried again.
double CostOf(const std::function<void()>& work) {
    constexpr int tries = 5;
    double least = std::numeric_limits<double>::max();
    for (int i = 0; i < tries && least >= MostCost; ++i) {
        const auto begin = Used();
        work();
        least = std::min(least, Used() - begin);
    }
    return least;
}
} // namespace

TEST(RecipeReaderTest, ABodyOfAnyShapeCostsLessThan50MillisecondsAMebibyte) {
    struct Shape {
        const char* name;
        std::string text;
    };
    const Shape shapes[] = {
        {"empty objects", "[" + Repeated("{},") + "{}]"},
        {"empty arrays", "[" + Repeated("[],") + "[]]"},
        {"nested arrays", Repeated("[")},
        {"nested objects", Repeated("{\"a\":")},
        {"one string", "\"" + Repeated("x") + "\""},
        {"one string without end", "\"" + Repeated("x")},
        {"short escapes", "\"" + Repeated("\\n") + "\""},
        {"long escapes", "\"" + Repeated("\\u00e9") + "\""},
        {"pairs of escapes", "\"" + Repeated("\\ud83c\\udf6e") + "\""},
        {"letters of four bytes", "\"" + Repeated("🍮") + "\""},
        {"one number", Repeated("7")},
        {"one fraction", "0." + Repeated("7")},
        {"many numbers", "[" + Repeated("1,") + "1]"},
        {"many fractions", "[" + Repeated("1.7976931348623157e308,") + "1]"},
        {"many small fractions", "[" + Repeated("4.9406564584124654e-324,") + "1]"},
        {"many nulls", "[" + Repeated("null,") + "null]"},
        {"one key again and again", "{" + Repeated("\"RecipeName\":\"x\",") + "\"RecipeName\":1}"},
        {"many keys", "{" +
                          [] {
                              std::string keys;
                              for (int i = 0; keys.size() < Mebibyte; ++i)
                                  keys += "\"" + std::to_string(i) + "\":0,";
                              return keys;
                          }() +
                          "\"\":0}"},
        {"one long key", "{\"" + Repeated("k") + "\":0}"},
        {"blanks", Repeated(" ")},
        {"noise", Repeated("\xff")},
    };
    for (const auto& [name, text] : shapes)
        for (const auto& body : {text, "{\"rows\":" + text + "}", "{\"RecipeName\":" + text + "}",
                                 "{\"rows\":[[" + text + "]]}", "{\"other\":" + text + "}"}) {
            EXPECT_LT(CostOf([&] { RecipeStatus(body); }), MostCost) << name;
            EXPECT_LT(CostOf([&] { RowsStatus(body); }), MostCost) << name;
        }
}

TEST(RecipeReaderTest, TextsOfAnyLengthAndWithAnyControlCharacterAreAccepted) {
    const auto recipe = RecipeReader::ReadRecipe(
        R"({"RecipeName":"a\u0000b\u0001\u001b\u007f\u0085","ServingName":"\t","Instructions":")" +
        Repeated("x") + R"(","EMAILFROM":"a@b.cd","EMAILTO":"a@b.cd"})");
    EXPECT_EQ(recipe.name, std::string("a\0b\x01\x1b\x7f\xc2\x85", 8));
    EXPECT_EQ(recipe.servingName, "\t");
    EXPECT_EQ(recipe.instructions->size(), Mebibyte);
}

TEST(RecipeReaderTest, EveryFiniteNumberIsAccepted) {
    using Numbers = std::numeric_limits<double>;
    const auto recipe = RecipeReader::ReadRecipe(
        With(R"("RecipeYield":1.7976931348623157e308,"PrepTime":-5e-324)"));
    EXPECT_EQ(recipe.yield, Numbers::max());
    EXPECT_EQ(recipe.prepTime, -Numbers::denorm_min());
    EXPECT_EQ(RecipeStatus(With(R"("PrepTime":1e309)")), 400);
    EXPECT_EQ(RecipeStatus(With(R"("PrepTime":NaN)")), 400);
    EXPECT_EQ(RecipeReader::ReadRecipe(With(R"("PrepTime":18446744073709551615)")).prepTime,
              18446744073709551615.0);
    EXPECT_EQ(RecipeReader::ReadRecipe(With(R"("PrepTime":-9)")).prepTime, -9);
}

TEST(RecipeReaderTest, ANameOfOneBlankIsANameNullStaysNullAndAnEmptyOneIsRefused) {
    const std::string rest = R"(,"EMAILFROM":"a@b.cd","EMAILTO":"a@b.cd"})";
    EXPECT_EQ(RecipeStatus(R"({"RecipeName":" ")" + rest), 0);
    EXPECT_EQ(RecipeStatus(R"({"RecipeName":"")" + rest), 400);
    EXPECT_EQ(RecipeStatus(R"({"RecipeName":null)" + rest), 0);
}

TEST(RecipeReaderTest, TheLastOfTwoEqualKeysCounts) {
    EXPECT_EQ(RecipeReader::ReadRecipe(With(R"("PrepTime":1,"PrepTime":2)")).prepTime, 2);
    EXPECT_EQ(RecipeReader::ReadRecipe(With(R"("PrepTime":1,"PrepTime":null)")).prepTime,
              std::nullopt);
    const auto rows = RecipeReader::ReadIngredients(R"({"rows":[[null,1]],"rows":[[null,2]]})", 1);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].nutrients[11], 2) << "calories come first in older programs";
}

TEST(RecipeReaderTest, UnknownKeysAreIgnored) {
    EXPECT_EQ(RecipeStatus(With(R"("other":{"RecipeName":7,"PrepTime":["x"]})")), 0);
    EXPECT_EQ(RecipeReader::ReadRecipe(With(R"("other":{"PrepTime":7},"PrepTime":3)")).prepTime, 3);
    EXPECT_EQ(RowsStatus(R"({"other":{"rows":7},"rows":[[1]],"more":[[]]})"), 0);
}

TEST(RecipeReaderTest, ArraysAndObjectsAreAcceptedUpToFourLevels) {
    EXPECT_EQ(RecipeStatus(With(R"("other":[[[1]]])")), 0);
    EXPECT_EQ(RecipeStatus(With(R"("other":[[[[1]]]])")), 400);
    EXPECT_EQ(RowsStatus(R"({"rows":[[[[1]]]]})"), 400);
}

TEST(RecipeReaderTest, ValuesOfARowAreReadByPosition) {
    std::string row = "[9";
    for (int i = 1; i <= 31; ++i)
        row += "," + std::to_string(i);
    const auto rows = RecipeReader::ReadIngredients(
        R"({"rows":[)" + row + R"(,"food","serving",7,2.5],[null],[null,null,5]]})", Most);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].nutrients[11], 1);
    EXPECT_EQ(rows[0].nutrients[10], 31);
    EXPECT_EQ(rows[0].foodName, "food");
    EXPECT_EQ(rows[0].serving, "serving");
    EXPECT_EQ(rows[0].quantity, 2.5);
    EXPECT_FALSE(rows[1].foodName);
    EXPECT_FALSE(rows[2].nutrients[11]);
    EXPECT_EQ(rows[2].nutrients[13], 5);
}

TEST(RecipeReaderTest, MoreRowsThanTheLimitAreRefusedEarly) {
    EXPECT_EQ(StatusOf([] { RecipeReader::ReadIngredients(R"({"rows":[[1],[1]]})", 2); }), 0);
    EXPECT_EQ(StatusOf([] { RecipeReader::ReadIngredients(R"({"rows":[[1],[1],[)", 2); }), 413);
}
