#include "support/ExchangeTest.h"
#include "support/SmtpSink.h"
#include "support/Until.h"

#include "exchange/Moderation.h"

#include <csignal>
#include <future>

/// What a sender is told, and the mail that goes out.
class SendingTest : public ExchangeTest {
protected:
    Server::Settings Mailing(const SmtpSink& sink) {
        return {{"mail_relay", sink.Address()}, {"mail_from", "recipes@halvane.test"},
                {"mail_tls", "none"},           {"mail_seconds", "25"},
                {"mail_retry_seconds", "1"},    {"public_url", "https://halvane.test/"}};
    }
    std::string SendCreated(int id) {
        return Text("/halvane/sendrecipe.asp?recID=" + std::to_string(id));
    }
    static bool Receives(const SmtpSink& sink, size_t mails) {
        return Until([&] { return sink.Mails().size() >= mails; });
    }
    bool IsOutboxEmpty() {
        return Until([&] { return Count("SELECT COUNT(*) FROM outbox") == 0; });
    }
    bool IsReadable(int id) {
        return Get("/halvane/api/recipes/" + std::to_string(id))->status == 200;
    }
    static json To(const std::string& address) {
        auto recipe = Soup();
        recipe["EMAILTO"] = address;
        return recipe;
    }
};
ON_BOTH_DATABASES(SendingTest);

TEST_P(SendingTest, TheMailHoldsTheRecipeItsIDAndHowToImportIt) {
    const SmtpSink sink;
    Start(Mailing(sink));
    const auto created = Create();
    Add(created, json::array({Row(200), Row(48, "Onions, raw")}));
    const auto id = std::to_string(created.id);
    EXPECT_EQ(SendCreated(created.id),
              "Your recipe is on its way to your friend. Its recipe ID is " + id + ".");
    ASSERT_TRUE(Receives(sink, 1));
    const auto mail = sink.Mails()[0];
    EXPECT_EQ(mail.from, "recipes@halvane.test");
    EXPECT_EQ(mail.to, std::vector<std::string>{"bert@example.org"});
    EXPECT_EQ(mail.Header("From"), "Halvane <recipes@halvane.test>");
    EXPECT_EQ(mail.Header("To"), "<bert@example.org>");
    EXPECT_EQ(mail.Header("Reply-To"), "<anna@example.com>");
    EXPECT_EQ(mail.Header("Content-Type"), "text/plain; charset=utf-8");
    EXPECT_TRUE(mail.Header("Message-ID").ends_with("@halvane.test>"));
    EXPECT_FALSE(mail.Header("Date").empty());
    for (const auto* part :
         {"Lentil soup", "1 bowl", "4 servings", "45.5 minutes", "62 per serving", "Lentils, raw",
          "Onions, raw", "Rinse the lentils.\nSimmer.", "press Import", "anna@example.com"})
        EXPECT_NE(mail.Body().find(part), std::string::npos) << part << "\n" << mail.Body();
    EXPECT_NE(mail.Body().find("The recipe ID is " + id), std::string::npos);
    EXPECT_NE(mail.Body().find("https://halvane.test/halvane/recipe.asp?recID=" + id),
              std::string::npos);
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE MailedAt > 0"), 1);
}

TEST_P(SendingTest, ARecipeIsMailedOnceHoweverOftenItIsSent) {
    const SmtpSink sink;
    Start(Mailing(sink));
    const auto created = Create();
    SendCreated(created.id);
    EXPECT_EQ(SendCreated(created.id), "This recipe has already been sent. Its recipe ID is " +
                                           std::to_string(created.id) + ".");
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_EQ(sink.Mails().size(), 1U);
}

TEST_P(SendingTest, ManyCallsAtOnceMailOnce) {
    const SmtpSink sink;
    Start(Mailing(sink));
    const auto created = Create();
    std::vector<std::future<std::string>> calls;
    for (int i = 0; i < 8; ++i)
        calls.push_back(std::async(std::launch::async, [&] { return SendCreated(created.id); }));
    int sent = 0;
    for (auto& call : calls)
        sent += call.get().starts_with("Your recipe is on its way");
    EXPECT_EQ(sent, 1);
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_EQ(sink.Mails().size(), 1U);
}

TEST_P(SendingTest, WithoutARelayTheSenderIsToldTheNumberToPassOn) {
    Start();
    const auto created = Create();
    const auto sentence = SendCreated(created.id);
    EXPECT_NE(sentence.find(std::to_string(created.id)), std::string::npos);
    EXPECT_NE(sentence.find("no mail"), std::string::npos);
    EXPECT_TRUE(IsReadable(created.id));
}

TEST_P(SendingTest, AnInvalidAddressIsToldAndNothingIsSent) {
    const SmtpSink sink;
    Start(Mailing(sink));
    for (const auto* address :
         {"bert", "bert@", "@example.org", "bert@host", "a b@example.org", "a@b@example.org",
          "bert@example.org,carl@example.org", "Bert <bert@example.org>", "bert@example..org",
          ".bert@example.org", "bert@-example.org", "\"bert\"@example.org", "bert@[127.0.0.1]",
          "bert@example.org>", "böt@example.org", "bert@127.0.0.1", "bert@example.org."}) {
        const auto created = Create(To(address));
        const auto sentence = SendCreated(created.id);
        EXPECT_TRUE(sentence.starts_with("Your friend's email address is not valid")) << sentence;
        EXPECT_FALSE(IsReadable(created.id)) << address;
    }
    EXPECT_TRUE(sink.Mails().empty());
    EXPECT_EQ(Count("SELECT COUNT(*) FROM listing"), 0);
}

TEST_P(SendingTest, AnInvalidAddressOfTheSenderIsToldToo) {
    const SmtpSink sink;
    Start(Mailing(sink));
    auto recipe = Soup();
    recipe["EMAILFROM"] = "anna";
    EXPECT_TRUE(SendCreated(Create(recipe).id).starts_with("Your email address is not valid"));
    EXPECT_TRUE(sink.Mails().empty());
}

TEST_P(SendingTest, LineEndsInAnAddressAreRefusedAtOnce) {
    const SmtpSink sink;
    Start(Mailing(sink));
    for (const auto* address : {"bert@example.org\r\nBcc: all@example.org", "bert@example.org\n.\n",
                                "bert\r@example.org", "bert@example.org\x7f"})
        for (const auto* field : {"EMAILTO", "EMAILFROM"}) {
            auto recipe = Soup();
            recipe[field] = address;
            EXPECT_EQ(Post("/halvane/api/recipes", recipe)->status, 400) << field;
        }
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), 0);
}

TEST_P(SendingTest, ANameOfAnyLettersMakesAHarmlessSubject) {
    const SmtpSink sink;
    Start(Mailing(sink));
    auto recipe = Soup();
    recipe["RecipeName"] = "Crème brûlée " + std::string(150, 'x') + " 🍮 =?utf-8?B?eA==?=";
    SendCreated(Create(recipe).id);
    ASSERT_TRUE(Receives(sink, 1));
    const auto mail = sink.Mails()[0];
    for (const char c : mail.text)
        EXPECT_GE(c, 0);
    EXPECT_TRUE(mail.Header("Subject").starts_with("=?utf-8?B?"));
    EXPECT_NE(mail.Body().find(recipe["RecipeName"].get<std::string>()), std::string::npos);
}

TEST_P(SendingTest, ANameOfAnyLengthWithLineEndsMakesAHarmlessMailToo) {
    const SmtpSink sink;
    Start(Mailing(sink));
    auto recipe = Soup();
    recipe["RecipeName"] = "Soup\r\nBcc: all@example.org\r\n\u202e" + std::string(400'000, 'x');
    recipe["Instructions"] = std::string(400'000, 'y');
    SendCreated(Create(recipe).id);
    ASSERT_TRUE(Receives(sink, 1));
    const auto mail = sink.Mails()[0];
    EXPECT_EQ(mail.to, std::vector<std::string>{"bert@example.org"});
    EXPECT_EQ(mail.Header("Bcc"), "");
    EXPECT_LT(mail.Header("Subject").size(), 1000U);
    EXPECT_TRUE(mail.Body().find("Soup Bcc: all@example.org x") != std::string::npos);
    EXPECT_NE(mail.Body().find("too long for a mail"), std::string::npos);
    EXPECT_LT(mail.text.size(), 200'000U);
}

TEST_P(SendingTest, AMailShowsAnInvisibleNameAsNoName) {
    const SmtpSink sink;
    Start(Mailing(sink));
    auto recipe = Soup();
    recipe["RecipeName"] = "\u200b";
    SendCreated(Create(recipe).id);
    ASSERT_TRUE(Receives(sink, 1));
    EXPECT_NE(sink.Mails()[0].Body().find("(no name)"), std::string::npos);
}

TEST_P(SendingTest, InstructionsCannotEndTheMail) {
    const SmtpSink sink;
    Start(Mailing(sink));
    auto recipe = Soup();
    recipe["Instructions"] = "one\r\n.\r\nMAIL FROM:<x@example.org>\r\n";
    SendCreated(Create(recipe).id);
    ASSERT_TRUE(Receives(sink, 1));
    EXPECT_NE(sink.Mails()[0].Body().find("MAIL FROM"), std::string::npos);
}

TEST_P(SendingTest, AMailThatTheRelayRefusesForGoodIsGivenUpAtOnce) {
    const SmtpSink sink(SmtpSink::Manner::RefusesRecipients);
    Start(Mailing(sink));
    const auto created = Create();
    SendCreated(created.id);
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_TRUE(IsReadable(created.id));
    EXPECT_EQ(sink.Tries(), 1);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE MailedAt > 0"), 0);
    EXPECT_TRUE(
        Until([&] { return Running().Log().find("\"mail given up\"") != std::string::npos; }));
}

TEST_P(SendingTest, ARelayThatGreylistsGetsTheMailAgainAndTakesItOnce) {
    const SmtpSink sink(SmtpSink::Manner::Greylists);
    Start(Mailing(sink));
    SendCreated(Create().id);
    EXPECT_TRUE(Receives(sink, 1));
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_EQ(sink.Tries(), SmtpSink::GreylistedTries);
    EXPECT_EQ(sink.Mails().size(), 1U);
}

TEST_P(SendingTest, ARelayThatIsDownGetsTheMailWhenItIsBackAcrossARestart) {
    SmtpSink sink(SmtpSink::Manner::IsDown);
    const auto settings = Mailing(sink);
    Start(settings);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(SendCreated(Create().id).starts_with("Your recipe is on its way"));
    EXPECT_TRUE(Until([&] { return Count("SELECT SUM(Tries) FROM outbox") > 2; }));
    Running().TheProcess().Signal(SIGKILL);
    Running().TheProcess().Wait();
    sink.ComeUp();
    exchange::Connection(Database()).Once("UPDATE outbox SET Due = 0");
    Start(settings);
    EXPECT_TRUE(Receives(sink, 3));
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_EQ(sink.Mails().size(), 3U);
}

TEST_P(SendingTest, SeveralServersMailEachRecipeOnce) {
    const SmtpSink sink;
    auto settings = Mailing(sink);
    Start(settings);
    settings["database"] = Database();
    const Server second(settings);
    std::vector<std::future<void>> calls;
    for (int i = 0; i < 12; ++i) {
        const auto created = Create(To("friend" + std::to_string(i) + "@example.org"));
        calls.push_back(std::async(std::launch::async, [this, created] {
            EXPECT_TRUE(SendCreated(created.id).starts_with("Your recipe is on its way"));
        }));
    }
    for (auto& call : calls)
        call.get();
    EXPECT_TRUE(Receives(sink, 12));
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_EQ(sink.Mails().size(), 12U);
}

TEST_P(SendingTest, AMailIsGivenUpAfterTwoDays) {
    const SmtpSink sink(SmtpSink::Manner::IsDown);
    Start(Mailing(sink));
    SendCreated(Create().id);
    exchange::Connection(Database())
        .Once("UPDATE outbox SET QueuedAt = QueuedAt - 172900000000, Due = 0");
    EXPECT_TRUE(IsOutboxEmpty());
    EXPECT_TRUE(
        Until([&] { return Running().Log().find("\"mail given up\"") != std::string::npos; }));
}

TEST_P(SendingTest, ARelayThatHangsHoldsUpNeitherReadersNorTheEnd) {
    const SmtpSink sink(SmtpSink::Manner::Hangs);
    Start(Mailing(sink));
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(SendCreated(Create().id).starts_with("Your recipe is on its way"));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(Get("/ready")->status, 200);
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(100)) << "a mail has 25 seconds";
    const auto end = Clock::now();
    EXPECT_EQ(Running().End(), 0);
    EXPECT_LT(Clock::now() - end, Soon) << "a mail has 25 seconds";
    EXPECT_EQ(Count("SELECT COUNT(*) FROM outbox"), 5);
}

TEST_P(SendingTest, AnUnknownOrBrokenIDIsASentenceToo) {
    Start();
    for (const auto* id : {"123456", "0", "1", "-5", "abc", "", "99999999999999999999", "12.5"}) {
        const auto reply = Get("/halvane/sendrecipe.asp?recID=" + std::string(id));
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->status, 404);
        EXPECT_EQ(reply->get_header_value("Content-Type"), "text/plain; charset=utf-8");
        EXPECT_EQ(reply->body, "There is no recipe to send under this ID.");
    }
}

TEST_P(SendingTest, AskingForTheHeadAloneSendsNothing) {
    Start();
    const auto created = Create();
    Running().Client().Head("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    EXPECT_FALSE(IsReadable(created.id));
}

TEST_P(SendingTest, RecipientsClientsAndDaysHaveTheirLimits) {
    AwaitFreshHour();
    struct Case {
        const char* setting;
        const char* other;
    };
    for (const auto& [setting, other] : {Case{"mails_per_recipient_day", "BERT+1@example.org"},
                                         Case{"mails_per_client_day", "carl@example.org"},
                                         Case{"mails_per_day", "dora@example.org"}}) {
        const SmtpSink sink;
        auto settings = Mailing(sink);
        settings[setting] = "2";
        settings["database"] = OnServer() ? Cluster::One().CreateDatabase() : Database() + setting;
        Start(settings);
        for (int i = 0; i < 2; ++i)
            EXPECT_TRUE(SendCreated(Create().id).starts_with("Your recipe is on its way"));
        const auto created = Create(To(other));
        EXPECT_NE(SendCreated(created.id).find("limit for today"), std::string::npos) << setting;
        EXPECT_TRUE(IsReadable(created.id));
        EXPECT_TRUE(Receives(sink, 2)) << setting;
        long long counted = 0;
        exchange::Connection(settings["database"])
            .First("SELECT SUM(Hits) FROM counters WHERE Name LIKE 'mail%'", soci::into(counted));
        // Two mails, each counted for the recipient, for three networks and for all.
        EXPECT_EQ(counted, 10) << setting << " uses up nothing of the other limits";
    }
}

TEST_P(SendingTest, AddressesAreInNoReplyPageOrLog) {
    const SmtpSink sink;
    auto settings = Mailing(sink);
    Start(settings);
    const int id = Send();
    const auto number = std::to_string(id);
    std::string seen;
    for (const auto& path :
         {"/halvane/api/recipes/" + number, "/halvane/api/recipes/" + number + "/ingredients",
          "/halvane/recipe.asp?recID=" + number, std::string("/halvane/community.asp")})
        seen += Text(path);
    EXPECT_EQ(Running().End(), 0);
    const auto log = Running().Log();
    seen += log;
    for (const auto* word : {"anna", "bert", "example.com", "example.org"})
        EXPECT_EQ(seen.find(word), std::string::npos) << word;
    EXPECT_EQ(log.find(number), std::string::npos) << "an ID is in the log";
    EXPECT_EQ(log.find("127.0.0.1"), log.rfind("127.0.0.1")) << "more than its own address";
    EXPECT_NE(log.find("sendrecipe"), std::string::npos);
}

TEST_P(SendingTest, AMailThatWaitsIsNotSentOnceItsRecipeIsHiddenOrRemoved) {
    for (const auto act : {&exchange::Moderation::Hide, &exchange::Moderation::Remove}) {
        const SmtpSink sink(SmtpSink::Manner::Greylists);
        auto settings = Mailing(sink);
        settings["mail_retry_seconds"] = "3600";
        Start(settings);
        const auto created = Create();
        SendCreated(created.id);
        ASSERT_TRUE(Until([&] { return Count("SELECT SUM(Tries) FROM outbox") == 1; }));
        exchange::Connection connection(Database());
        EXPECT_TRUE((exchange::Moderation(connection).*act)(created.id));
        connection.Once("UPDATE outbox SET Due = 0");
        EXPECT_TRUE(IsOutboxEmpty());
        EXPECT_EQ(Running().End(), 0);
        EXPECT_EQ(sink.Tries(), 1);
        EXPECT_TRUE(sink.Mails().empty());
    }
}
