#include "exchange/Target.h"
#include "exchange/Http.h"

#include <gtest/gtest.h>

using namespace exchange;

namespace {
Request ReadFrom(std::string_view target) {
    Request request;
    EXPECT_TRUE(Target::Read(target, request)) << target;
    return request;
}
} // namespace

TEST(TargetTest, PathAndParametersAreDecoded) {
    const auto request = ReadFrom("/a%2Fb+c?q=lentil+soup%21&page=2");
    EXPECT_EQ(request.path, "/a/b+c");
    EXPECT_EQ(request.Param("q"), "lentil soup!");
    EXPECT_EQ(request.Param("page"), "2");
}

TEST(TargetTest, TheFirstOfTwoEqualParametersCounts) {
    EXPECT_EQ(ReadFrom("/?q=a&q=b").Param("q"), "a");
}

TEST(TargetTest, AParameterMayHaveNoValue) {
    const auto request = ReadFrom("/?q&&=x&p=");
    EXPECT_TRUE(request.HasParam("q"));
    EXPECT_TRUE(request.HasParam("p"));
    EXPECT_FALSE(request.HasParam("r"));
    EXPECT_EQ(request.Param("q"), "");
}

TEST(TargetTest, APercentSignWithoutDigitsStays) {
    for (const auto* text : {"%", "%4", "%zz", "%-1", "100%"})
        EXPECT_EQ(Target::Decoded(text), text);
}

TEST(TargetTest, AnEncodedNullIsAByteOfThePath) {
    EXPECT_EQ(ReadFrom("/index.asp%00").path, std::string("/index.asp\0", 11));
}

TEST(TargetTest, AFragmentIsNoPartOfAnAddress) {
    EXPECT_EQ(ReadFrom("/a?q=b#c").Param("q"), "b");
}

TEST(TargetTest, OnlyAPathIsAnAddressOfThisServer) {
    Request request;
    for (const auto* target : {"", "*", "http://example.org/", "example.org:25", "a"})
        EXPECT_FALSE(Target::Read(target, request)) << target;
}

TEST(TargetTest, EncodedTextsAreDecodedToTheSame) {
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    EXPECT_EQ(Target::Decoded(Target::Encoded(all)), all);
    EXPECT_EQ(Target::Encoded("a b&c"), "a%20b%26c");
}
