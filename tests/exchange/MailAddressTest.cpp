#include "abuse/Abuse.h"

#include "exchange/MailAddress.h"

#include <gtest/gtest.h>

using namespace exchange;

TEST(MailAddressTest, PlainAddressesAreTaken) {
    for (const auto* text :
         {"bert@example.org", "b@e.org", "Bert.Miller@sub.example.org", "bert+recipes@example.org",
          "o'neill@example.org", "bert_m-1@xn--bcher-kva.example", "r&d@example.org",
          "a=b~c@example.org", "1@2.org"})
        EXPECT_TRUE(IsMailAddress(text)) << text;
    EXPECT_TRUE(IsMailAddress(std::string(64, 'a') + "@example.org"));
}

TEST(MailAddressTest, InvalidAndRoutedAddressesAreRefused) {
    for (const auto* text : AbuseCases::NoMailAddresses())
        EXPECT_FALSE(IsMailAddress(text)) << text;
    EXPECT_FALSE(IsMailAddress(""));
    EXPECT_FALSE(IsMailAddress("bert@example.org\n"));
    EXPECT_FALSE(IsMailAddress(std::string("be\0rt@example.org", 17)));
    EXPECT_FALSE(IsMailAddress(std::string(65, 'a') + "@example.org"));
    EXPECT_FALSE(IsMailAddress("a@" + std::string(64, 'b') + ".org"));
}

TEST(MailAddressTest, TagsDoNotMakeAnotherMailbox) {
    EXPECT_EQ(MailboxOf("Bert@Example.org"), "bert@example.org");
    EXPECT_EQ(MailboxOf("bert+1@example.org"), "bert@example.org");
    EXPECT_EQ(MailboxOf("bert+1+2@example.org"), "bert@example.org");
    EXPECT_EQ(MailboxOf("bert+@example.org"), "bert@example.org");
    EXPECT_EQ(MailboxOf("+bert@example.org"), "+bert@example.org");
    EXPECT_EQ(MailboxOf("bert-1@example.org"), "bert-1@example.org");
}

TEST(MailAddressTest, CharactersThatTheHostIgnoresDoNotMakeAnotherMailbox) {
    EXPECT_EQ(MailboxOf("b.e.r.t+x@gmail.com"), "bert@gmail.com");
    EXPECT_EQ(MailboxOf("be.rt@googlemail.com"), "bert@gmail.com");
    EXPECT_EQ(MailboxOf("b_e-r.t@pm.me"), "bert@proton.me");
    EXPECT_EQ(MailboxOf("b.ert@example.org"), "b.ert@example.org");
    EXPECT_EQ(MailboxOf("b.ert@gmail.com.example.org"), "b.ert@gmail.com.example.org");
}

TEST(MailAddressTest, AnInvalidAddressHasAMailboxToo) {
    EXPECT_EQ(MailboxOf(""), "@");
    EXPECT_EQ(MailboxOf("a+b"), "a@");
    EXPECT_EQ(MailboxOf("@"), "@");
    EXPECT_EQ(MailboxOf("a@b+c"), "a@b+c");
}
