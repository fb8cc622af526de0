#include "support/ExchangeTest.h"
#include "support/SmtpSink.h"
#include "support/Until.h"

#include "exchange/NoMail.h"

/// How a recipient gets no more mails.
class NoMailTest : public ExchangeTest {
protected:
    static constexpr const char* Secret = "the secret of the tests, which is long enough";

    Server& StartMailing(const std::string& publicUrl = "https://halvane.test") {
        return Start({{"mail_relay", sink_.Address()},
                      {"mail_from", "recipes@halvane.test"},
                      {"mail_tls", "none"},
                      {"secret", Secret},
                      {"public_url", publicUrl}});
    }
    static json To(const std::string& address) {
        auto recipe = Soup();
        recipe["EMAILTO"] = address;
        return recipe;
    }
    std::string SendTo(const std::string& address) {
        return Text("/halvane/sendrecipe.asp?recID=" + std::to_string(Create(To(address)).id));
    }
    SmtpSink::Mail FirstMail() {
        EXPECT_TRUE(Until([&] { return !sink_.Mails().empty(); }));
        return sink_.Mails().at(0);
    }
    /// The link's address on this server.
    std::string Link() {
        const auto header = FirstMail().Header("List-Unsubscribe");
        const auto path = header.find("/halvane/");
        return header.substr(path, header.size() - path - 1);
    }
    SmtpSink sink_;
};
ON_BOTH_DATABASES(NoMailTest);

TEST_P(NoMailTest, EachMailTellsHowToStopTheMails) {
    StartMailing();
    SendTo("bert@example.org");
    const auto mail = FirstMail();
    const auto token = exchange::NoMail(Secret).TokenFor("bert@example.org");
    const auto link = "https://halvane.test/halvane/nomail.asp?token=" + token;
    EXPECT_EQ(mail.Header("List-Unsubscribe"), "<" + link + ">");
    EXPECT_EQ(mail.Header("List-Unsubscribe-Post"), "List-Unsubscribe=One-Click");
    EXPECT_NE(mail.Body().find("To get no more mail from this server, open this page and press "
                               "the button:\n" +
                               link),
              std::string::npos);
}

TEST_P(NoMailTest, WithoutAPublicUrlAMailNamesAnAddressToWriteTo) {
    StartMailing("");
    SendTo("bert@example.org");
    const auto mail = FirstMail();
    EXPECT_EQ(mail.Header("List-Unsubscribe"), "<mailto:recipes@halvane.test>");
    EXPECT_EQ(mail.Header("List-Unsubscribe-Post"), "");
    EXPECT_NE(mail.Body().find("write to recipes@halvane.test"), std::string::npos);
}

TEST_P(NoMailTest, TheButtonStopsTheMailsToEverySpellingOfTheAddress) {
    StartMailing();
    SendTo("bert@example.org");
    const auto link = Link();
    EXPECT_NE(Text(link).find("<form action=\"" + link + "\" method=\"post\">"), std::string::npos);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM no_mail"), 0) << "a look at the page is no press";
    const auto reply = Running().Client().Post(link, "", "application/x-www-form-urlencoded");
    EXPECT_EQ(reply->status, 200);
    EXPECT_NE(reply->body.find("will send no more mail to your address"), std::string::npos);
    for (const auto* address : {"bert@example.org", "BERT@example.org", "bert+soup@example.org"})
        EXPECT_NE(SendTo(address).find("does not want mail from this server"), std::string::npos)
            << address;
    SendTo("carl@example.org");
    EXPECT_TRUE(Until([&] { return sink_.Mails().size() == 2; }));
    EXPECT_EQ(sink_.Mails()[1].to, std::vector<std::string>{"carl@example.org"});
}

TEST_P(NoMailTest, AMailProgramCanStopTheMailsWithOneRequest) {
    StartMailing();
    SendTo("bert@example.org");
    for (const auto* type :
         {"application/x-www-form-urlencoded", "multipart/form-data; boundary=x"})
        EXPECT_EQ(Running().Client().Post(Link(), "List-Unsubscribe=One-Click", type)->status, 200);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM no_mail"), 1);
}

TEST_P(NoMailTest, TheDatabaseHoldsNoAddressAndNoToken) {
    StartMailing();
    SendTo("bert@example.org");
    Running().Client().Post(Link(), "", "application/x-www-form-urlencoded");
    const auto digest = Cell("SELECT Digest FROM no_mail");
    EXPECT_EQ(digest.find("bert"), std::string::npos);
    EXPECT_NE(digest, exchange::NoMail(Secret).TokenFor("bert@example.org"));
    EXPECT_EQ(
        Running().Client().Post("/halvane/nomail.asp?token=" + digest, "", "text/plain")->status,
        404);
}

TEST_P(NoMailTest, TheOperatorCanStopTheMailsToAnAddress) {
    StartMailing();
    ::setenv("HALVANE_EXCHANGE_DATABASE", Database().c_str(), 1);
    ::setenv("HALVANE_EXCHANGE_SECRET", Secret, 1);
    EXPECT_EQ(Process::Run({Server::Program(), "--nomail", "bert@example.org"}), 0);
    ::unsetenv("HALVANE_EXCHANGE_DATABASE");
    ::unsetenv("HALVANE_EXCHANGE_SECRET");
    EXPECT_NE(SendTo("bert@example.org").find("does not want mail from this server"),
              std::string::npos);
}

TEST(NoMailTokenTest, ATokenIsValidOnlyForItsSecret) {
    const exchange::NoMail one("one");
    const auto token = one.TokenFor("bert@example.org");
    EXPECT_TRUE(one.IsToken(token));
    EXPECT_EQ(token, one.TokenFor("Bert+x@Example.org"));
    EXPECT_FALSE(exchange::NoMail("other").IsToken(token));
    for (size_t i = 0; i < token.size(); ++i) {
        auto forged = token;
        forged[i] = forged[i] == '0' ? '1' : '0';
        EXPECT_FALSE(one.IsToken(forged)) << i;
    }
    EXPECT_FALSE(one.IsToken(""));
    EXPECT_FALSE(one.IsToken(token + "0"));
}
