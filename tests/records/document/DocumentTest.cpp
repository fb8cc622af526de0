#include "DocumentTest.h"

#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Schema.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

void DocumentTest::SetUp() {
    HalvaneTest::SetUp();
    OpenEmptyDatabases();
    FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Calories) VALUES "
                        "(20000, 'Oats', '1 cup', 10), (23508, 'Rye', '1 cup', 20)");
    CloseDatabases();
}

int DocumentTest::Added(const ImportReport& report) {
    int added = 0;
    for (const auto& [section, count] : report.counts)
        added += count.added;
    return added;
}

DocumentTest::Place::Place(const QString& model) {
    for (const char* file : {"/users.mdb", "/foods.mdb"})
        EXPECT_TRUE(QFile::copy(model + QLatin1String(file), folder_.path() + QLatin1String(file)));
}

void DocumentTest::Place::Fill(const QByteArray& sql) const {
    SQLite::Database database(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA synchronous = OFF; ATTACH '" + Records().Foods().toStdString() +
                  "' AS f");
    database.exec(sql.constData());
}

QVariant DocumentTest::Place::Value(const QByteArray& sql) const {
    SQLite::Database database(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
    database.exec("ATTACH '" + Records().Foods().toStdString() + "' AS f");
    SQLite::Statement statement(database, sql.toStdString());
    if (!statement.executeStep() || statement.getColumn(0).isNull())
        return {};
    return QString::fromStdString(statement.getColumn(0).getString());
}

QByteArray DocumentTest::Place::Export() const {
    QByteArray document;
    RecordsDocument::Export(
        Records(),
        [&](std::string_view piece) { document.append(piece.data(), qsizetype(piece.size())); },
        [](qint64, qint64) {});
    return document;
}

ImportReport DocumentTest::Place::Import(const QByteArray& document,
                                         RecordsDocument::ImportOptions options) const {
    const QString path = folder_.filePath(QStringLiteral("document.json"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(document);
    file.close();
    return RecordsDocument::Import(Records(), path, options, [](qint64, qint64) {});
}

QString DocumentTest::Place::Refusal(const QByteArray& document) const {
    const QByteArray before = Export();
    try {
        Import(document);
    } catch (const RuntimeError& failure) {
        EXPECT_EQ(Export(), before);
        return failure.Description();
    }
    return {};
}

QByteArray Document(const QByteArray& members) {
    return R"({"format":"halvane-records","version":1,"nutrients":[{"name":"Calories","unit":"kcal"}])" +
           (members.isEmpty() ? QByteArray() : ',' + members) + '}';
}
