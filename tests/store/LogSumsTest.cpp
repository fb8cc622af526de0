#include "store/LogSums.h"

#include "StoreTest.h"
#include "store/AmountRows.h"
#include "store/LogPieces.h"
#include "store/Prepared.h"
#include "store/Transaction.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <bit>
#include <cmath>
#include <random>

#include <sqlite3.h>

namespace {
const QDate FirstDay(2001, 1, 1);
constexpr int LogDays = 2000;
const QStringList Columns{"Protein", "Calories", "carbs", "Water", "Zinc"};
constexpr int User = 7;

/// A sum is compared by its bits; a NULL is none.
std::optional<std::uint64_t> Bits(std::optional<double> sum) {
    return sum ? std::optional(std::bit_cast<std::uint64_t>(*sum)) : std::nullopt;
}

class LogSumsTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        users_.Raw().exec("PRAGMA synchronous=OFF");
    }

    /// Amounts of every size, whole numbers, unknown ones, and what another tool may have written.
    std::string Amount() {
        std::uniform_real_distribution<double> part(-1, 1);
        switch (random_() % 8) {
        case 0:
            return "NULL";
        case 1:
            return std::to_string(int(random_() % 2000) - 1000);
        case 2:
            return QByteArray::number(std::ldexp(part(random_), int(random_() % 2000) - 1000), 'g',
                                      17)
                .toStdString();
        case 3:
            return "'3.5 or so'";
        case 4:
            return "x'3132'";
        default:
            return QByteArray::number(part(random_) * 100, 'g', 17).toStdString();
        }
    }
    void Eat(const std::string& day, int user = User) {
        std::string values;
        for (qsizetype i = 0; i < Columns.size(); ++i)
            values += ", " + Amount();
        users_.Raw().exec("INSERT INTO USER_FOODS (UID, UDate, " +
                          Columns.join(u',').toStdString() + ") VALUES (" + std::to_string(user) +
                          ", '" + day + "'" + values + ")");
    }
    std::string RandomDay() {
        const QDate day = FirstDay.addDays(int(random_() % LogDays));
        return day.toString(Qt::ISODate).toStdString();
    }
    void EatOften(int times) {
        SQLite::Transaction together(users_.Raw());
        for (int i = 0; i < times; ++i)
            Eat(RandomDay(), i % 5 == 0 ? User + 1 : User);
        together.commit();
    }
    LogRange Range(QDate from, QDate to) const { return {"USER_FOODS", Columns, User, from, to}; }
    LogRange All() const { return Range(FirstDay, FirstDay.addDays(LogDays - 1)); }

    static std::string Where(const LogRange& range) {
        return " FROM USER_FOODS WHERE UID=7 AND UDate BETWEEN '" +
               range.from.toString(Qt::ISODate).toStdString() + "' AND '" +
               range.to.toString(Qt::ISODate).toStdString() + "'";
    }
    void ExpectSumsOfTheStatement(const LogRange& range) {
        const AmountSums sums = LogSums::Of(users_, range);
        SQLite::Statement statement(users_.Raw(), "SELECT Sum(" +
                                                      Columns.join("), Sum(").toStdString() + ")" +
                                                      Where(range));
        statement.executeStep();
        for (int i = 0; i < statement.getColumnCount(); ++i) {
            const SQLite::Column sum = statement.getColumn(i);
            const auto expected = sum.isNull() ? std::nullopt : std::optional(sum.getDouble());
            EXPECT_EQ(Bits(sums.Of(size_t(i))), Bits(expected)) << Columns[i].toStdString();
        }
        EXPECT_EQ(sums.Days(),
                  users_.Raw().execAndGet("SELECT count(DISTINCT UDate)" + Where(range)).getInt());
    }

    std::mt19937 random_{20261122};
};

AmountRows RowsOf(const char* selected, size_t columns) {
    SQLite::Database memory(":memory:");
    AmountRows::Register(memory.getHandle());
    AmountRows rows(columns);
    Prepared statement(memory.getHandle(), {}, selected);
    statement.BindPointer(1, &rows, AmountRows::Pointer);
    statement.Step();
    return rows;
}
} // namespace

TEST_F(LogSumsTest, SumsOfRandomLogsEqualThoseOfTheStatementToTheLastBit) {
    for (int log = 0; log < 20; ++log) {
        SCOPED_TRACE(log);
        users_.Raw().exec("DELETE FROM USER_FOODS");
        EatOften(int(random_() % 800));
        const QDate from = FirstDay.addDays(int(random_() % LogDays));
        ExpectSumsOfTheStatement(All());
        ExpectSumsOfTheStatement(Range(from, from.addDays(int(random_() % 40))));
        ExpectSumsOfTheStatement(Range(from, from.addDays(int(random_() % 1500))));
    }
}

TEST_F(LogSumsTest, WithoutRowsThereAreNeitherSumsNorDays) {
    for (const LogRange& range :
         {All(), Range(FirstDay, FirstDay), Range(FirstDay, FirstDay.addDays(-1))}) {
        const AmountSums sums = LogSums::Of(users_, range);
        EXPECT_EQ(sums.Of(0), std::nullopt);
        EXPECT_EQ(sums.Days(), 0);
    }
}

TEST_F(LogSumsTest, ADayWithUnknownAmountsCountsAsADayAndItsSumIsUnknown) {
    Run(users_, "INSERT INTO USER_FOODS (UID, UDate, Calories) VALUES (7, '2001-05-05', 100)");
    const AmountSums sums = LogSums::Of(users_, All());
    EXPECT_EQ(sums.Of(0), std::nullopt);
    EXPECT_EQ(sums.Of(1), 100);
    EXPECT_EQ(sums.Days(), 1);
}

TEST_F(LogSumsTest, InfiniteSumsAreThoseOfTheStatement) {
    for (const char* amount : {"9e999", "1.7e308", "1.7e308", "-9e999", "5"}) {
        Run(users_, QStringLiteral("INSERT INTO USER_FOODS (UID, UDate, Water, Zinc, carbs) VALUES "
                                   "(7, '2002-01-01', %1, abs(%1), 1.7e308)")
                        .arg(QLatin1String(amount)));
        ExpectSumsOfTheStatement(All());
    }
}

TEST_F(LogSumsTest, ATextThatIsNoDayCountsWhereItSortsBetweenTheDays) {
    EatOften(300);
    for (const char* day : {"2001-02-31", "2001-13-01 noon", "2003", "2004-1", "2005-06-1", "20"})
        Eat(day);
    ExpectSumsOfTheStatement(All());
    ExpectSumsOfTheStatement(Range(QDate(2003, 1, 1), QDate(2005, 12, 31)));
    users_.Raw().exec("DELETE FROM USER_FOODS WHERE UDate LIKE '____-__-__'");
    ExpectSumsOfTheStatement(All());
}

TEST_F(LogSumsTest, ALongLogIsReadAloneWhereItsFileCannotBeOpenedAgain) {
    EatOften(500);
    ASSERT_TRUE(QFile::rename(UsersFile(), File("moved.mdb")));
    ExpectSumsOfTheStatement(All());
    QFile::rename(File("moved.mdb"), UsersFile());
}

TEST_F(LogSumsTest, AnOpenChangeCounts) {
    EatOften(5000);
    const Transaction change(users_);
    for (int i = 0; i < 1000; ++i)
        Eat(RandomDay());
    for (int look = 0; look < 20; ++look) // a second reader would not see it, but may come too late
        ExpectSumsOfTheStatement(All());
}

TEST_F(LogSumsTest, ALogOfAFileThatIsOpenWithAnotherOneIsSummed) {
    EatOften(500);
    const double before = *LogSums::Of(users_, All()).Of(1);
    users_.Close();
    users_.OpenTogether(UsersFile(), DatabaseKind::Users, foods_);
    EXPECT_EQ(LogSums::Of(users_, All()).Of(1), before);
}

TEST_F(LogSumsTest, AfterwardsTheFileCanBeChangedByOthers) {
    EatOften(500);
    LogSums::Of(users_, All());
    SQLite::Database other(UsersFile().toStdString(), SQLite::OPEN_READWRITE);
    EXPECT_EQ(other.exec("DELETE FROM USER_FOODS WHERE UID=8"), 100);
    ExpectSumsOfTheStatement(All());
}

TEST_F(LogSumsTest, AStatementThatFailsIsAnErrorOfTheStore) {
    EatOften(500);
    LogRange range = All();
    range.columns << "NoSuchColumn";
    EXPECT_EQ(ErrorOf([&] { LogSums::Of(users_, range); }), -SQLITE_ERROR);
    Run(users_, "DELETE FROM USER_FOODS WHERE UID=8"); // no transaction is left open
}

TEST_F(LogSumsTest, NoStatementWithoutTheRowsCanUseTheFunction) {
    for (const char* sql : {"SELECT keep_amounts()", "SELECT keep_amounts(1, 2, 3)",
                            "SELECT keep_amounts(NULL, '2001-01-01', 1)"})
        EXPECT_THROW(users_.Raw().execAndGet(sql), SQLite::Exception) << sql;
}

TEST(AmountSumsTest, CompensatedSumsKeepWhatRoundingLoses) {
    const AmountRows rows = RowsOf("SELECT keep_amounts(?1, day, a, b) FROM "
                                   "(SELECT 1 AS day, 1e16 AS a, 1e300 AS b UNION ALL "
                                   "SELECT 2, 1.0, NULL UNION ALL SELECT 2, -1e16, 9e999)",
                                   2);
    AmountSums plain(2, AmountSums::Adding::Plain);
    AmountSums compensated(2, AmountSums::Adding::Compensated);
    plain.Add(rows);
    compensated.Add(rows);
    EXPECT_EQ(plain.Of(0), 0);
    EXPECT_EQ(compensated.Of(0), 1);
    EXPECT_EQ(plain.Of(1), INFINITY);
    EXPECT_EQ(compensated.Of(1), INFINITY);
    EXPECT_EQ(plain.Days(), 2);
}

TEST(LogPiecesTest, AShortRangeIsOnePiece) {
    const std::vector<LogPiece> pieces =
        LogPieces::Of(QDate(2002, 1, 1), QDate(2002, 1, 31), QDate(2002, 1, 1), QDate(2002, 1, 31));
    EXPECT_EQ(pieces, (std::vector<LogPiece>{{"2002-01-01", "2002-01-31", {}}}));
}

TEST(LogPiecesTest, EachPieceEndsWhereTheNextOneBegins) {
    const QDate from(1900, 1, 1);
    const QDate to(2099, 12, 31);
    const auto pieces = LogPieces::Of(from, to, QDate(2001, 1, 1), QDate(2010, 12, 31));
    ASSERT_GT(pieces.size(), 100U);
    EXPECT_LE(pieces.size(), 122U);
    EXPECT_EQ(pieces.front().from, "1900-01-01");
    EXPECT_EQ(pieces.back().to, "2099-12-31");
    EXPECT_EQ(pieces.back().next, QString());
    for (size_t i = 1; i < pieces.size(); ++i) {
        EXPECT_EQ(pieces[i - 1].next, pieces[i].from);
        EXPECT_EQ(pieces[i - 1].to, pieces[i].from);
        EXPECT_GT(pieces[i].from, "2001-01-01");
        EXPECT_LT(pieces[i].from, "2011-01-01");
    }
}
