#include "records/peers/PeerTest.h"

#include "records/RecordsLock.h"
#include "records/archive/TestZip.h"
#include "runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <SQLiteCpp/Database.h>

namespace {
const QString Servings = "cronometer-servings.csv";

class PeerImportTest : public PeerTest {
protected:
    QByteArray Bytes(const QString& path) const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QByteArray Rejects() const { return Bytes(Folder() + "/rejects.csv"); }
};
} // namespace

TEST_F(PeerImportTest, ASecondImportOfEachProgramsFilesAddsNothing) {
    const std::pair<QString, QStringList> exports[] = {
        {"cronometer",
         {Servings, "cronometer-servings-old.csv", "cronometer-dailysummary.csv",
          "cronometer-biometrics.csv"}},
        {"myfitnesspal",
         {"myfitnesspal-nutrition-a.csv", "myfitnesspal-nutrition-b.csv",
          "myfitnesspal-exercise.csv", "myfitnesspal-measurement.csv"}},
        {"loseit", {"loseit-food-logs.csv"}},
        {"waistline", {"waistline_export.json"}},
        {"opennutritracker", {"opennutritracker-intake.json"}},
    };
    for (const auto& [program, files] : exports) {
        SCOPED_TRACE(program.toStdString());
        SetUpRecordsAnew();
        const Result first = Import(program, files);
        const Result second = Import(program, files);
        EXPECT_GT(first.entries.added, 0);
        EXPECT_EQ(second.entries.added, 0);
        EXPECT_EQ(second.weights.added, 0);
        EXPECT_EQ(second.entries.present, first.entries.added);
        EXPECT_EQ(second.weights.present, first.weights.added);
    }
}

TEST_F(PeerImportTest, ADryRunTellsAndChangesNothing) {
    Options options = From("cronometer", {Servings, "cronometer-biometrics.csv"});
    options.dryRun = true;
    options.rejects.clear();
    const QByteArray users = Bytes(Records().Users());
    const QStringList files = QDir(Folder()).entryList(QDir::Files);
    const Result result = Import(options);
    EXPECT_EQ(result.entries.added, 4);
    EXPECT_EQ(result.weights.added, 2);
    EXPECT_EQ(result.rejects.size(), 3U);
    EXPECT_EQ(Bytes(Records().Users()), users);
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files), files);
}

TEST_F(PeerImportTest, ADryRunReadsWhileTheWindowIsOpenAndAnImportDoesNot) {
    const RecordsLock window(Records());
    Options options = From("cronometer", {Servings});
    EXPECT_EQ(Failure(options), "Halvane is open on these records. Close its window first.");
    options.dryRun = true;
    EXPECT_EQ(Import(options).entries.added, 4);
}

TEST_F(PeerImportTest, RowsThatAreNotTakenAreListedWithTheirReason) {
    const QString file = Write("servings.csv", "Day,Food Name,Amount\n"
                                               "today,=1+1,\"1 \"\"slice\"\"\"\n");
    Import("cronometer", {file});
    EXPECT_EQ(Rejects(), "file,place,what,reason,row\r\n"
                         "servings.csv,line 2,refused,\"\"\"today\"\" is not a date.\","
                         "\"today,=1+1,\"\"1 \"\"\"\"slice\"\"\"\"\"\"\"\r\n");
}

TEST_F(PeerImportTest, ACellOfTheListIsNoFormula) {
    const QString file = Write("servings.csv", "Food Name,Day,Amount\n=HYPERLINK(1),today,1\n");
    Import("cronometer", {file});
    EXPECT_TRUE(Rejects().contains("\"'=HYPERLINK(1),today,1\"")) << Rejects().toStdString();
}

TEST_F(PeerImportTest, TheListStandsBesideTheFirstFileUnlessItIsNamed) {
    Options options = From("cronometer", {Write("a.csv", "Day,Food Name,Amount\n,,\n")});
    options.rejects.clear();
    EXPECT_EQ(Import(options).rejectsFile, Folder() + "/a.csv.rejects.csv");
    EXPECT_TRUE(QFile::exists(Folder() + "/a.csv.rejects.csv"));
}

TEST_F(PeerImportTest, WhereTheListCannotBeWrittenNothingIsChanged) {
    Options options = From("cronometer", {Servings, "cronometer-biometrics.csv"});
    options.rejects = Folder() + "/missing/rejects.csv";
    EXPECT_TRUE(Failure(options).contains("--rejects"));
    EXPECT_EQ(User("SELECT Count(*) FROM USER_FOODS"), 0);
}

TEST_F(PeerImportTest, AnotherWeightOfTheSameDayIsKeptAndTold) {
    const auto file = [this](const QByteArray& weight) {
        return Write("b.csv", "Day,Metric,Unit,Amount\n2026-03-02,Weight,lbs," + weight + "\n");
    };
    Import("cronometer", {file("180")});
    const Result result = Import("cronometer", {file("181.5")});
    EXPECT_EQ(Listed(result, Kind::Refused),
              QStringList("line 2: The records hold another weight of this day: 180 pounds."));
    EXPECT_EQ(User("SELECT Weight FROM USER_WEIGHTS"), 180.0);
}

TEST_F(PeerImportTest, WhatNobodyKnowsIsCounted) {
    const Result result = Import("cronometer", {Servings});
    EXPECT_EQ(result.read, 4);
    EXPECT_EQ(result.unknown[Nutrient::Ash], 4);
    EXPECT_EQ(result.unknown[Nutrient::Calories], 1);
    EXPECT_EQ(result.unknown[Nutrient::Iron], 2);
}

TEST_F(PeerImportTest, ColumnsThatAreNotKeptAreTold) {
    const QString file =
        Write("servings.csv", "Day,Food Name,Amount,Energy (kcal),Caffeine (mg),Alcohol (g),Note\n"
                              "2026-03-02,Tea,1 cup,2,40,0.00,strong\n"
                              "2026-03-02,Milk,1 cup,122,,,\n");
    const Result result = Import("cronometer", {file});
    EXPECT_EQ(result.remarks.keys().filter("not kept"),
              QStringList("Columns of servings.csv that are not kept here: Caffeine (mg), Note."));
}

TEST_F(PeerImportTest, AmountsThatAreNotKeptAreTold) {
    const QString file = Write("a.json", R"({"version": 3, "diary": [], "foodList": [
        {"id": 1, "name": "Tea", "portion": "100", "unit": "g",
         "nutrition": {"calories": 2, "kilojoules": 8, "caffeine": "40", "sugars": 0}}]})");
    EXPECT_EQ(Import("waistline", {file}).remarks.keys().filter("not kept"),
              QStringList("Amounts of caffeine are not kept here."));
}

TEST_F(PeerImportTest, AnUnknownAmountCountsAsNothingInASum) {
    Import("cronometer", {Servings});
    EXPECT_EQ(User("SELECT Sum(Iron) FROM USER_FOODS"), 1.70 + 8.00);
}

TEST_F(PeerImportTest, AFileThatBreaksOffTakesNothing) {
    const QByteArray whole = Bytes(Sample(Servings));
    const QString file = Write("servings.csv", whole.left(whole.lastIndexOf("tablet")));
    EXPECT_EQ(Failure(From("cronometer", {file})),
              "servings.csv: Line 5 cannot be read: a quote is opened here and never closed.");
    EXPECT_EQ(User("SELECT Count(*) FROM USER_FOODS"), 0);
}

TEST_F(PeerImportTest, ALineThatIsTooLongIsRefusedWithItsNumber) {
    const QString file = Write("servings.csv", "Day,Food Name,Amount\n2026-03-02," +
                                                   QByteArray(10 << 20, 'x') + ",1\n");
    EXPECT_EQ(Failure(From("cronometer", {file})),
              "servings.csv: Line 2 cannot be read: it is longer than 4194304 bytes.");
}

TEST_F(PeerImportTest, ATextThatIsTooLongForANameIsRefused) {
    const QString file = Write("servings.csv", "Day,Food Name,Amount\n2026-03-02," +
                                                   QByteArray(1'001, 'x') + ",1\n");
    EXPECT_EQ(Listed(Import("cronometer", {file}), Kind::Refused),
              QStringList("line 2: A text is longer than 1000 characters."));
}

TEST_F(PeerImportTest, AZipThatUnpacksToFarTooMuchIsRefused) {
    const QString zip = Write("a.zip", TestZip({{"a.csv", QByteArray(20 << 20, ',')}}));
    EXPECT_EQ(Failure(From("cronometer", {zip})), "a.csv unpacks to more than 250 times its size.");
}

TEST_F(PeerImportTest, WhereNoKeyIsLeftForAFoodNothingIsChanged) {
    SQLite::Database(Records().Foods().toStdString(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO FOODS (ID, FoodName) VALUES (2147483647, 'Last')");
    EXPECT_NE(Failure(From("waistline", {"waistline_export.json"})), "");
    EXPECT_EQ(Food("SELECT count(*) FROM FOODS WHERE ID > 23508 OR ID < 0"), 1);
    EXPECT_EQ(User("SELECT count(*) FROM USER_FOODS"), 0);
}

TEST_F(PeerImportTest, AFileThatIsNotThereIsNamed) {
    EXPECT_TRUE(Failure(From("cronometer", {"/missing/a.csv"})).startsWith("a.csv cannot be read"));
}

TEST_F(PeerImportTest, RandomBytesNeverBringItDown) {
    QRandomGenerator random(5);
    const QStringList programs = PeerImport::Names();
    const QStringList samples = QDir(Sample("")).entryList(QDir::Files);
    for (int i = 0; i < 400; ++i) {
        QByteArray bytes = Bytes(Sample(samples[random.bounded(int(samples.size()))]));
        for (int change = random.bounded(8); change >= 0; --change)
            bytes[random.bounded(int(bytes.size()))] = char(random.bounded(256));
        Options options =
            From(programs[random.bounded(int(programs.size() - 1))], {Write("mutant", bytes)});
        options.dryRun = true;
        options.choices.weightUnit = WeightUnit::Pound;
        Failure(options);
    }
}
