#include "CommandTest.h"

#include "commands/Session.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <sys/resource.h>

namespace {
constexpr qint64 Megabyte = 1 << 20;
constexpr qint64 MostMemory = 1024; ///< megabytes; far less than what such files could fill

/// A file that begins as one that a command reads, and then repeats itself.
struct Hostile {
    const char* name;
    QStringList command; ///< before the file
    QString file;
    QByteArray begin;
    QByteArray piece; ///< repeated until the file has so many megabytes
    qint64 megabytes;
    QString message;       ///< a part of what is said
    bool isFolder = false; ///< the command takes the folder of the file
};

const QByteArray Document = R"({"format":"halvane-records","version":1,"nutrients":[],)";
const QStringList Import{"import"};
const QStringList Foods{"foods", "import"};
const QStringList Recipes{"recipes", "import"};

QStringList From(const QString& program) {
    return {"import", "--from", program};
}

const std::vector<Hostile>& Files() {
    static const std::vector<Hostile> files = {
        {"TextOfARow", Import, "a.json", Document + R"("log":[{"food":")", "x", 100,
         "log, row 1: it is longer than 24 megabytes."},
        {"AmountsOfARow", Import, "a.json", Document + R"("log":[{"amounts":[1)", ",1", 100,
         "log, row 1: it is longer than 24 megabytes."},
        {"NumberOfARow", Import, "a.json", Document + R"("log":[{"quantity":1)", "0", 100,
         "log, row 1: it is longer than 24 megabytes."},
        {"NameOfAMember", Import, "a.json", Document + '"', "x", 100,
         "it is longer than 24 megabytes."},
        {"DeepDocument", Import, "a.json", Document + R"("log":)", "[", 20, "log, row 1: "},
        {"LineOfCronometer", From("cronometer"), "servings.csv", "Day,Food Name,Amount\n", "x", 100,
         "servings.csv: Line 2 cannot be read: it is longer than 4194304 bytes."},
        {"FieldsOfMyFitnessPal", From("myfitnesspal"), "a.csv", "Date,Meal,Calories\n", ",", 100,
         "a.csv: Line 2 cannot be read: "},
        {"QuoteOfLoseIt", From("loseit"), "a.csv", "Date,Name,Quantity,Units,Fat (g)\n\"", "x\n",
         100, "a.csv: Line 2 cannot be read: it is longer than 4194304 bytes."},
        {"TextOfWaistline", From("waistline"), "a.json", R"({"foodList":[{"name":")", "x", 150,
         "a.json is larger than 134217728 bytes."},
        {"DeepWaistline", From("waistline"), "a.json", R"({"foodList":)", "[", 20,
         "a.json is not JSON: "},
        {"DeepOpenNutriTracker", From("opennutritracker"), "a.json", "", R"([{"a":)", 20,
         "a.json is not JSON: "},
        {"LineOfAnyTable",
         {"import", "--from", "table", "--map", "map.toml"},
         "a.csv",
         "Date,Food,Energy\n",
         "x",
         100,
         "a.csv: Line 2 cannot be read: it is longer than 4194304 bytes."},
        {"MapOfATable",
         {"import", "--from", "table", "a.csv", "--map"},
         "big.toml",
         "kind = \"",
         "x",
         100,
         "The map cannot be used: it is larger than a megabyte."},
        {"LineOfADownload", Foods, "food.csv", "fdc_id,data_type,description\n", "x", 100,
         "food.csv: Line 2 cannot be read: it is longer than 4194304 bytes.", true},
        {"LargeRelease", Foods, "ABBREV.txt", "", "~x~^", 100,
         "ABBREV.txt is larger than 67108864 bytes", true},
        {"LineOfARelease", Foods, "ABBREV.txt", "", "~x~^", 60, "ABBREV.txt:1: 15728641 fields",
         true},
        {"LargeRecipe", Recipes, "a.json", R"({"@type":"Recipe","name":")", "x", 100,
         "A file of recipes has at most 64 megabytes."},
        {"DeepRecipe", Recipes, "a.json", R"({"@type":"Recipe","recipeIngredient":)", "[", 20,
         "It is not JSON: "},
        {"LineOfMarkdown", Recipes, "a.md", "# Soup\n\n- 1 cup ", "x", 60,
         "A recipe has at most 1000000 characters."},
        {"LineOfMealMaster", Recipes, "a.mmf", "MMMMM----- Recipe via Meal-Master\n\n Title: ", "x",
         60, "A recipe has at most 1000000 characters."},
        {"PageWithoutEnd", Recipes, "a.html", "<html><script type=\"application/ld+json\">", "<",
         60, ""},
    };
    return files;
}
} // namespace

/// The program itself, on files that were made to harm it.
class HostileFilesTest : public CommandTest, public testing::WithParamInterface<Hostile> {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        UserDB().Open(Folder() + "/users.mdb", DatabaseKind::Users);
        AddUser();
        CloseDatabases();
        Write("map.toml", "kind = \"log\"\n[columns]\ndate = \"Date\"\nname = \"Food\"\n"
                          "[nutrients]\nCalories = { column = \"Energy\", unit = \"kcal\" }\n");
        Write("a.csv", "Date,Food,Energy\n");
        Write("food_nutrient.csv", "id,fdc_id,nutrient_id,amount\n");
        Write("nutrient.csv", "id,name,unit_name\n");
        Write("FOOD_DES.txt", "");
        Write("WEIGHT.txt", "");
    }
    void Write(const QString& name, const QByteArray& begin, const QByteArray& piece = {},
               qint64 megabytes = 0) const {
        QFile file(Folder() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(begin);
        const QByteArray much = piece.repeated(Megabyte / std::max<qsizetype>(1, piece.size()));
        for (qint64 i = 0; i < megabytes; ++i)
            ASSERT_EQ(file.write(much), much.size());
    }
    Run Start(const QStringList& arguments) const {
        QProcess process;
        process.setWorkingDirectory(Folder());
        process.start(Places::Build(QStringLiteral("/src/halvane-data")),
                      arguments + QStringList{"--folder", Folder()});
        EXPECT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
    static qint64 MegabytesOfChildren() {
        rusage used{};
        getrusage(RUSAGE_CHILDREN, &used);
        return used.ru_maxrss / 1024;
    }
};

TEST_P(HostileFilesTest, IsRefusedInAFewWordsAndNeverFillsTheMemory) {
    const Hostile& hostile = GetParam();
    Write(hostile.file, hostile.begin, hostile.piece, hostile.megabytes);
    const Run run =
        Start(hostile.command + QStringList{hostile.isFolder ? QStringLiteral(".") : hostile.file});
    EXPECT_TRUE(run.code == Cannot || run.code == Found) << run.code;
    EXPECT_TRUE(run.error.contains(hostile.message)) << run.error.left(500).toStdString();
    EXPECT_LT(run.error.size(), 1000);
    EXPECT_LT(MegabytesOfChildren(), MostMemory);
}

INSTANTIATE_TEST_SUITE_P(Each, HostileFilesTest, testing::ValuesIn(Files()),
                         [](const auto& file) { return std::string(file.param.name); });

class WrongEncodingTest : public HostileFilesTest {};

TEST_P(WrongEncodingTest, IsRefusedAndChangesNothing) {
    const Hostile& hostile = GetParam();
    const QString text = QString::fromUtf8(hostile.begin) + QString(40, QChar(0xE9));
    QByteArray bytes("\xFF\xFE");
    for (const QChar letter : text)
        bytes.append(char(letter.unicode() & 0xFF)).append(char(letter.unicode() >> 8));
    Write(hostile.file, bytes);
    const Run run =
        Start(hostile.command + QStringList{hostile.isFolder ? QStringLiteral(".") : hostile.file});
    EXPECT_TRUE(run.code == Cannot || run.code == Found) << run.code;
    EXPECT_NE(run.error, "");
}

INSTANTIATE_TEST_SUITE_P(Each, WrongEncodingTest, testing::ValuesIn(Files()),
                         [](const auto& file) { return std::string(file.param.name); });
