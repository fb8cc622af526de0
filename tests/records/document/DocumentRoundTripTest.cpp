#include "DocumentTest.h"

#include "store/Connection.h"
#include "support/HostileRows.h"
#include "support/RunSize.h"

#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int OrdinaryFolders = 25;
constexpr unsigned Seed = 20261122;

/// The environment variable HALVANE_FOLDERS asks for more folders than an ordinary run.
int Folders() {
    return RunSize("HALVANE_FOLDERS", OrdinaryFolders);
}

struct Table {
    const char* name;
    const char* key; ///< null if it has none
    int firstKey;
};
constexpr Table Tables[] = {
    {"profiles", "UID", 1},   {"FOODS", "ID", 23509},     {"Recipes", "RecipeID", 1},
    {"Ingredients", "ID", 1}, {"USER_FOODS", "RecID", 1}, {"USER_WEIGHTS", nullptr, 0},
};
constexpr const char* Names[] = {"'Anna'", "'ANNA'", "'Émile'", "'Zoë \"Z\" \\ \n'", "NULL"};

QByteArray Number(QRandomGenerator& random, int count) {
    return QByteArray::number(random.bounded(count));
}

/// What may equal another row of the same or of another folder.
HostileRows::Row Common(const Table& table, QRandomGenerator& random) {
    HostileRows::Row row;
    const QByteArray name = Names[random.bounded(int(std::size(Names)))];
    if (table.key != nullptr && random.bounded(2) == 0)
        row[table.key] = QByteArray::number(table.firstKey + random.bounded(40));
    if (QByteArray(table.name) == "profiles")
        row["UserName"] = name;
    if (QByteArray(table.name).startsWith("USER_")) {
        row["UID"] = Number(random, 6);
        row["UDate"] = "'2026-03-0" + Number(random, 9) + "'";
    }
    if (QByteArray(table.name) == "USER_FOODS")
        row["ID"] = QByteArray::number((random.bounded(2) == 0 ? 0 : 23509) + random.bounded(40));
    if (QByteArray(table.name) == "Ingredients")
        row["RecipeID"] = Number(random, 12);
    return row;
}

/// The lines of a document that hold a row.
QSet<QByteArray> RowsOf(const QByteArray& document) {
    QSet<QByteArray> rows;
    for (const QByteArray& line : document.split('\n'))
        if (line.startsWith("{\"profile\"") || line.startsWith("{\"key\":") ||
            line.startsWith("{\"recipe\""))
            rows.insert(line.endsWith(',') ? line.chopped(1) : line);
    return rows;
}

void FillAtRandom(SQLite::Database& database, QRandomGenerator& random) {
    for (const Table& table : Tables)
        for (int count = random.bounded(8); count > 0; --count) {
            HostileRows rows(database, table.name, Common(table, random));
            try {
                rows.Insert(random.bounded(3) == 0 ? Common(table, random) : rows.Random(random));
            } catch (const SQLite::Exception&) {
                continue; // the key is taken
            }
        }
    if (random.bounded(2) == 0)
        database.exec(
            "DELETE FROM profiles WHERE UID > 20; DELETE FROM Recipes WHERE RecipeID > 9;"
            "UPDATE sqlite_sequence SET seq = min(seq, 2000000000)"); // above, imports refuse it
}
} // namespace

class DocumentRoundTripTest : public DocumentTest {
protected:
    Place Random(unsigned seed) const {
        Place place = Empty();
        SQLite::Database database(place.Records().Users().toStdString(), SQLite::OPEN_READWRITE);
        database.exec("PRAGMA synchronous = OFF; ATTACH '" + place.Records().Foods().toStdString() +
                      "' AS f; BEGIN");
        QRandomGenerator random(seed);
        FillAtRandom(database, random);
        database.exec("COMMIT");
        return place;
    }
};

TEST_F(DocumentRoundTripTest, ExportImportAndExportGiveTheSameBytes) {
    for (unsigned seed = Seed; seed < Seed + unsigned(Folders()) && !HasFailure(); ++seed) {
        const QByteArray first = Random(seed).Export();
        const Place copy = Empty();
        const ImportReport report = copy.Import(first);
        EXPECT_TRUE(report.kept.empty() && report.refused.empty());
        EXPECT_TRUE(copy.Export() == first) << "seed " << seed;
    }
}

TEST_F(DocumentRoundTripTest, ASecondImportAddsNothing) {
    for (unsigned seed = Seed; seed < Seed + unsigned(Folders()) && !HasFailure(); ++seed) {
        const QByteArray document = Random(seed).Export();
        const Place other = Random(seed + 100000);
        const ImportReport first = other.Import(document);
        const QByteArray merged = other.Export();
        const ImportReport second = other.Import(document);
        EXPECT_EQ(Added(second), 0) << "seed " << seed;
        EXPECT_EQ(second.refused, first.refused) << "seed " << seed;
        EXPECT_TRUE(other.Export() == merged) << "seed " << seed;
    }
}

TEST_F(DocumentRoundTripTest, WhatWasThereNeverChanges) {
    for (unsigned seed = Seed; seed < Seed + unsigned(Folders()) && !HasFailure(); ++seed) {
        const Place place = Random(seed);
        const QSet<QByteArray> before = RowsOf(place.Export());
        place.Import(Random(seed + 100000).Export());
        EXPECT_TRUE(RowsOf(place.Export()).contains(before)) << "seed " << seed;
    }
}

TEST_F(DocumentRoundTripTest, EveryHostileValueInEveryColumnComesBack) {
    for (const char* value : HostileRows::Values()) {
        const Place place = Empty();
        {
            SQLite::Database database(place.Records().Users().toStdString(),
                                      SQLite::OPEN_READWRITE);
            database.exec("PRAGMA synchronous = OFF; ATTACH '" +
                          place.Records().Foods().toStdString() + "' AS f; BEGIN");
            for (const Table& table : Tables) {
                const bool ofFoods = QByteArray(table.name) == "FOODS";
                const HostileRows rows(database, table.name, {});
                int key = 23509;
                for (HostileRows::Row row : rows.With(value)) {
                    if (ofFoods)
                        row["ID"] = QByteArray::number(key++);
                    rows.Insert(row);
                }
            }
            database.exec("COMMIT");
        }
        const QByteArray first = place.Export();
        const Place copy = Empty();
        copy.Import(first);
        EXPECT_TRUE(copy.Export() == first) << value;
    }
}

TEST_F(DocumentRoundTripTest, NumbersComeBackToTheLastBit) {
    const Place place = Empty();
    place.Fill("INSERT INTO USER_FOODS (UID, Calories, Water, Zinc, Iron, ID) VALUES "
               "(9007199254740993, 0.1, 5e-324, 1.7976931348623157e308, -0.0, 9223372036854775807);"
               "INSERT INTO USER_WEIGHTS VALUES (1, 20260302, 150.10000000000002)");
    const QByteArray document = place.Export();
    for (const char* text : {"\"profile\":9007199254740993", "5e-324", "1.7976931348623157e+308",
                             "9223372036854775807", "\"date\":20260302", "150.10000000000002"})
        EXPECT_TRUE(document.contains(text)) << text;
    const Place copy = Empty();
    copy.Import(document);
    EXPECT_EQ(copy.Export(), document);
    EXPECT_EQ(copy.Value("SELECT typeof(UID) FROM USER_FOODS"), "integer");
}

TEST_F(DocumentRoundTripTest, WhatJsonHasNoFormForComesBack) {
    const Place place = Empty();
    place.Fill("INSERT INTO USER_FOODS (FoodName, Serving, Meal, Calories) VALUES "
               "(CAST(x'ff' AS TEXT), x'00ff', char(0, 9, 31, 127, 8232), -9e999)");
    const QByteArray document = place.Export();
    for (const char* text : {R"("food":{"text":"/w=="})", R"("serving":{"binary":"AP8="})",
                             R"("meal":"\u0000\u0009\u001f)", R"({"number":"-Infinity"})"})
        EXPECT_TRUE(document.contains(text)) << text << '\n' << document.constData();
    const Place copy = Empty();
    copy.Import(document);
    EXPECT_TRUE(copy.Export() == document);
    EXPECT_EQ(copy.Value("SELECT typeof(FoodName) || typeof(Serving) FROM USER_FOODS"), "textblob");
}
