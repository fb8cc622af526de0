#include "DocumentTest.h"
#include "JsonSchema.h"

#include "records/document/DocumentSection.h"
#include "support/HostileRows.h"
#include "support/Places.h"

#include <QFile>
#include <QJsonDocument>

#include <SQLiteCpp/SQLiteCpp.h>

class DocumentSchemaTest : public DocumentTest {
protected:
    static QJsonObject Schema() {
        QFile file(Places::Source(QStringLiteral("/data/records-format.schema.json")));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(file.readAll()).object();
    }
    static QString Problem(const QByteArray& document) {
        QJsonParseError error;
        const QJsonDocument parsed = QJsonDocument::fromJson(document, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
        return JsonSchema(Schema()).Problem(parsed.object());
    }
};

TEST_F(DocumentSchemaTest, AnExportOfAnyRowsKeepsIt) {
    const Place place = Empty();
    place.Fill("INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'Pie')");
    {
        SQLite::Database database(place.Records().Users().toStdString(), SQLite::OPEN_READWRITE);
        for (const char* table :
             {"profiles", "Recipes", "Ingredients", "USER_FOODS", "USER_WEIGHTS"})
            for (const char* value : HostileRows::Values())
                HostileRows(database, table, {})
                    .Insert(HostileRows(database, table, {}).With(value).last());
        database.exec("INSERT INTO Ingredients (RecipeID, FoodName) VALUES (1, 'Egg')");
    }
    EXPECT_EQ(Problem(place.Export()).toStdString(), "");
}

TEST_F(DocumentSchemaTest, ItRefusesWhatAnImportRefuses) {
    for (const char* members : {R"("log":1)", R"("log":[{"x":1}])", R"("log":[{"meal":true}])",
                                R"("log":[{"meal":{"number":"NaN"}}])", R"("nonsense":1)",
                                R"("profiles":[{"key":"1"}])", R"("settings":{"FAST":1})"}) {
        EXPECT_NE(Problem(Document(members)), "") << members;
        EXPECT_NE(Empty().Refusal(Document(members)), "") << members;
    }
}

TEST_F(DocumentSchemaTest, ItKnowsTheMembersOfEverySection) {
    const QJsonObject schema = Schema();
    for (const DocumentSection* section : DocumentSections::Lists()) {
        const QString name = schema["properties"][section->name]["items"]["$ref"].toString().mid(8);
        const QJsonObject members = schema["$defs"][name]["properties"].toObject();
        for (const DocumentField& field : section->fields)
            EXPECT_TRUE(members.contains(QLatin1String(field.name)))
                << section->name << ' ' << field.name;
        EXPECT_EQ(members.size(), qsizetype(section->fields.size()) + (section->key != nullptr) +
                                      (section->amounts != nullptr) +
                                      (section->children != nullptr))
            << section->name;
    }
}

/// The page names each member of each section.
TEST_F(DocumentSchemaTest, ThePageOnTheFormatNamesEachMember) {
    QFile file(Places::Source(QStringLiteral("/docs/records-format.md")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = file.readAll();
    for (const DocumentSection* section : DocumentSections::Lists()) {
        EXPECT_TRUE(page.contains(QString("`%1`").arg(section->name))) << section->name;
        for (const DocumentField& field : section->fields)
            EXPECT_TRUE(page.contains(QString("`%1`").arg(field.name))) << field.name;
    }
}
