#include "CommandTest.h"

#include "commands/Program.h"
#include "commands/Session.h"
#include "runtime/AppPath.h"
#include "runtime/Clock.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QFile>
#include <QProcess>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const QDate March(2026, 3, 1);
constexpr auto UsualName = "Bread, whole-wheat, commercially prepared";

class ReportTest : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        Clock::SetToday(QDate(2026, 3, 31));
        Open();
        AddUser("Anna <anna@example.org>");
        CloseDatabases();
    }
    static void Open() {
        UserDB().Open(FileBeside("users.mdb"), DatabaseKind::Users);
        FoodDB().Open(FileBeside("foods.mdb"), DatabaseKind::Foods);
    }
    /// So many foods and a weight on each of so many days from March 1.
    void Fill(int days, int foodsADay, const char* name = UsualName) {
        Open();
        Insert(days, foodsADay, name);
        CloseDatabases();
    }
    static void Insert(int days, int foodsADay, const char* name) {
        SQLite::Transaction transaction(UserDB().Raw());
        SQLite::Statement eat(UserDB().Raw(),
                              "INSERT INTO USER_FOODS (UID, UDate, Meal, FoodName, Serving, ID, "
                              "QTY, Calories, TotalFat, Protein, carbs, Iron) VALUES (1, ?, ?, ?, "
                              "'1 cup', 1, 1.5, 140, 5, 6, 18, 1)");
        SQLite::Statement weigh(UserDB().Raw(), "INSERT INTO USER_WEIGHTS VALUES (1, ?, ?)");
        const char* meals[] = {"Breakfast", "Lunch", "Dinner", "Snacks", ""};
        for (int day = 0; day < days; ++day) {
            const std::string date = March.addDays(day).toString(Qt::ISODate).toStdString();
            for (int food = 0; food < foodsADay; ++food) {
                eat.bind(1, date);
                eat.bind(2, meals[food % 5]);
                eat.bind(3, name);
                eat.exec();
                eat.reset();
            }
            weigh.bind(1, date);
            weigh.bind(2, 200 - day % 40 * 0.25);
            weigh.exec();
            weigh.reset();
        }
        transaction.commit();
    }
    Run Report(const QString& name, const QStringList& options = {}) {
        return Command(QStringList{"report", Folder() + '/' + name} + options);
    }
    QByteArray Bytes(const QString& name) {
        QFile file(Folder() + '/' + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }
    QString PdfFact(const QString& name, const char* fact) {
        return RunTool("pdfinfo", {Folder() + '/' + name})
            .split('\n')
            .filter(QLatin1String(fact))
            .value(0)
            .section(':', 1)
            .trimmed();
    }
    int PageCount(const QString& name) { return PdfFact(name, "Pages").toInt(); }
    QString PdfText(const QString& name) {
        return RunTool("pdftotext", {"-layout", Folder() + '/' + name, "-"});
    }
    static QString RunTool(const QString& tool, const QStringList& arguments) {
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished()) << tool.toStdString();
        EXPECT_EQ(process.exitCode(), 0);
        return QString::fromUtf8(process.readAllStandardOutput());
    }
};

const QStringList MarchOptions{"--from", "2026-03-01", "--to", "2026-03-31"};
} // namespace

TEST_F(ReportTest, AMonthTakesTwoToFourPages) {
    Fill(31, 15);
    EXPECT_EQ(Report("full.pdf", MarchOptions).code, Done);
    EXPECT_LE(PageCount("full.pdf"), 4);
    EXPECT_GE(PageCount("full.pdf"), 2);
}

TEST_F(ReportTest, AMonthWithThreeDaysTakesTwoPages) {
    Fill(3, 4);
    EXPECT_EQ(Report("few.pdf", MarchOptions).code, Done);
    EXPECT_EQ(PageCount("few.pdf"), 2);
}

TEST_F(ReportTest, TheFirstPageTellsWhoWhenAndWhatEachAverageIsDividedBy) {
    Fill(3, 4);
    Report("few.pdf", MarchOptions);
    const QString text = PdfText("few.pdf").simplified();
    for (const char* expected :
         {"Nutrition report", "Anna <anna@example.org>, male, 40 years, 5 ft 10 in, 200 lb",
          "March 1, 2026 to March 31, 2026",
          "3 of 31 days have entries in the log: 12 entries in all.",
          "divided by the 3 days with entries, not by all 31 days.", "560 kcal", "2000 kcal", "28%",
          "Coverage", "Fat 32%", "Breakfast", "200.0 lb, March 1, 2026", "0.5 lb less",
          "Mean of seven days", "Sunday, March 1, 2026", "1 cup Bread, whole-wheat"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected << "\n"
                                                                << text.toStdString();
}

TEST_F(ReportTest, APeriodWithoutEntriesSaysSoOnOnePage) {
    EXPECT_EQ(Report("empty.pdf", MarchOptions).code, Done);
    EXPECT_EQ(PageCount("empty.pdf"), 1);
    const QString text = PdfText("empty.pdf");
    EXPECT_TRUE(text.contains("Nothing was logged in this period."));
    EXPECT_TRUE(text.contains("No weight was entered in this period."));
}

TEST_F(ReportTest, ThePaperIsA4OrLetter) {
    EXPECT_EQ(Report("a4.pdf", MarchOptions).code, Done);
    EXPECT_EQ(Report("letter.pdf", MarchOptions + QStringList{"--paper", "letter"}).code, Done);
    EXPECT_TRUE(PdfFact("a4.pdf", "Page size").contains("A4"));
    EXPECT_TRUE(PdfFact("letter.pdf", "Page size").contains("letter"));
}

TEST_F(ReportTest, WithoutAPeriodItCoversTheLastThirtyDays) {
    Report("usual.html");
    EXPECT_TRUE(Bytes("usual.html").contains("March 2, 2026 to March 31, 2026"));
}

TEST_F(ReportTest, HtmlIsOneWellFormedFileThatLoadsNothing) {
    Fill(31, 5);
    EXPECT_EQ(Report("march.html", MarchOptions).code, Done);
    const QByteArray page = Bytes("march.html");
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>"));
    EXPECT_EQ(page.count("src=\"data:image/png;base64,"), 2);
    for (const char* loading : {"url(", "href=", "src=\"http", "@import"})
        EXPECT_FALSE(page.contains(loading)) << loading;
    EXPECT_FALSE(page.contains("<script"));
}

TEST_F(ReportTest, HtmlEscapesEveryTextOfTheRecords) {
    Fill(2, 5, "<script>alert(\"1\")</script> & 'tea'");
    Report("march.html", MarchOptions);
    const QByteArray page = Bytes("march.html");
    EXPECT_FALSE(page.contains("<script"));
    EXPECT_TRUE(page.contains("&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; &amp; "));
    EXPECT_TRUE(page.contains("Anna &lt;anna@example.org&gt;"));
}

TEST_F(ReportTest, AnotherEndingOfTheNameIsAUsageError) {
    for (const char* name : {"march.doc", "march", "pdf"}) {
        const Run run = Report(name);
        EXPECT_EQ(run.code, Usage) << name;
        EXPECT_TRUE(run.error.contains("must end with .pdf or .html")) << run.error.toStdString();
    }
    EXPECT_EQ(Report("march.pdf", {"--paper", "a5"}).code, Usage);
    EXPECT_EQ(Report("march.pdf", {"--from", "2026-03-02", "--to", "2026-03-01"}).code, Usage);
    EXPECT_EQ(Command({"report"}).code, Usage);
}

TEST_F(ReportTest, AFileThatCannotBeWrittenIsTold) {
    const Run run = Report("missing/march.pdf");
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("march.pdf cannot be written")) << run.error.toStdString();
}

TEST_F(ReportTest, AnUnknownPersonIsTold) {
    const Run run = Report("march.pdf", {"--profile", "Berta"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_FALSE(QFile::exists(Folder() + "/march.pdf"));
}

TEST_F(ReportTest, OnlyAReportNeedsAnApplicationThatDraws) {
    EXPECT_TRUE(NeedsDrawing({"halvane-data", "report", "march.pdf"}));
    EXPECT_TRUE(NeedsDrawing({"halvane-data", "--folder", "x", "report", "march.pdf"}));
    EXPECT_FALSE(NeedsDrawing({"halvane-data", "table", "log"}));
}

TEST_F(ReportTest, AsAProcessOfItsOwnItNeedsNoDisplay) {
    Fill(3, 4);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(Places::Build("/src/halvane-data"),
                  QStringList{"report", Folder() + "/own.pdf", "--folder", Folder()} +
                      MarchOptions);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), Done) << process.readAllStandardError().toStdString();
    EXPECT_EQ(PageCount("own.pdf"), 2);
}

TEST_F(ReportTest, ShowsAnExampleInItsHelp) {
    EXPECT_TRUE(Command({"report", "--help"}).out.contains("Example: halvane-data report"));
}
