#include "recipes/TransferTest.h"

#include "store/Connection.h"
#include "toolkit/MousePointer.h"

#include <QTest>

void TransferTest::SetUp() {
    RecipesTest::SetUp();
    server = std::make_unique<ScriptedServer>();
    Server::SetAddress(server->Address());
    Server::SetSupport("help@example.org");
    window.resize(766, 562);
    window.show();
}

void TransferTest::TearDown() {
    dialog.reset();
    RecipesTest::TearDown();
}

void TransferTest::Open(ExchangeDialog* opened) {
    dialog.reset(opened);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(opened));
}

void TransferTest::Type(const QString& field, const QString& text) {
    auto* entry = Find<QLineEdit>(dialog.get(), field);
    entry->setFocus();
    entry->clear();
    QTest::keyClicks(entry, text);
}

void TransferTest::ExpectDead(const QString& button) {
    EXPECT_FALSE(Find<ucButton>(dialog.get(), button)->Enabled());
    EXPECT_EQ(Find<ucButton>(dialog.get(), button)->State(), 4);
    EXPECT_TRUE(MousePointer::IsBusy());
    Press(button);
    Press("cmdCancel");
    Find<ucButton>(dialog.get(), "cmdCancel")->Activate();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    dialog->close();
    EXPECT_TRUE(dialog->isVisible());
}

void TransferTest::TellSend(int rows) {
    server->Tell(CreateLine, 201, Created);
    server->Tell(AddLine, 201, "{\"added\":" + QByteArray::number(rows) + '}');
    server->Tell(PageLine, 200, Sentence);
}

QString TransferTest::AllRecipes() {
    QString all;
    for (const char* table : {"Recipes", "Ingredients"})
        for (const QVariantList& row :
             HalvaneTest::Rows(UserDB(), "SELECT * FROM " + QString(table)))
            for (const QVariant& value : row)
                all += value.toString() + '|';
    return all;
}

QList<TransferTest::Oddity> TransferTest::Oddities() {
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n";
    return {
        {"silence", ScriptedServer::Silence()},
        {"a trickle without an end", ScriptedServer::Trickle()},
        {"100 MB", server->Flood(100 * 1024 * 1024)},
        {"an end before the first byte", ScriptedServer::Raw("")},
        {"half a head", ScriptedServer::Raw("HTTP/1.1 200 OK\r\nContent-Le")},
        {"half a body", ScriptedServer::Raw(head + "Content-Length: 900\r\n\r\n{\"RecipeID\":")},
        {"half of a chunked body",
         ScriptedServer::Raw(head + "Transfer-Encoding: chunked\r\n\r\n400\r\n{")},
        {"no HTTP", ScriptedServer::Raw("220 mail.example.org ready\r\n\r\n")},
        {"a length below nothing", ScriptedServer::Raw(head + "Content-Length: -1\r\n\r\n")},
        {"an endless redirection", ScriptedServer::Raw("HTTP/1.1 302 Found\r\nLocation: /\r\n"
                                                       "Content-Length: 0\r\n\r\n")},
        {"a packed reply", ScriptedServer::Raw(head + "Content-Encoding: gzip\r\n"
                                                      "Content-Length: 1\r\n\r\n\x1f")},
    };
}
