#include "store/Dialect.h"

#include "StoreTest.h"

namespace {
QString Adapted(const char* source) {
    return Dialect::Adapt(QString::fromUtf8(source), false).sql;
}

QString Squeezed(const char* source) {
    return Adapted(source).simplified();
}
} // namespace

TEST(DialectTest, DatesReadMonthFirst) {
    EXPECT_EQ(Adapted("SELECT * FROM t WHERE UDATE = #3/4/2002#"),
              "SELECT * FROM t WHERE UDATE = '2002-03-04'");
    EXPECT_EQ(Adapted("UDate Between #1/2/1999# AND #12/31/2002#"),
              "UDate Between '1999-01-02' AND '2002-12-31'");
    EXPECT_EQ(Adapted("#4-3-2002# #2002-04-03# #2/29/2004#"),
              "'2002-04-03' '2002-04-03' '2004-02-29'");
}

TEST(DialectTest, WhatIsNoDateIsHandedOn) {
    for (const char* source : {"UDATE = ##", "UDATE = #", "UDATE = #13/13/2002#", "#2/29/2001#",
                               "UDATE = #abc#", "# #", "UDATE = #4/3/2002", "#'x'#"})
        EXPECT_EQ(Adapted(source), source);
}

TEST(DialectTest, TopBecomesALimitAtTheEnd) {
    EXPECT_EQ(Squeezed("SELECT TOP 300 FoodName,ID  FROM FOODS WHERE ID > 1 ORDER BY FoodName"),
              "SELECT FoodName,ID FROM FOODS WHERE ID > 1 ORDER BY FoodName LIMIT 300");
    EXPECT_EQ(Squeezed("select top 1 * from t;"), "select * from t LIMIT 1 ;");
    EXPECT_EQ(Squeezed("SELECT DISTINCT TOP 5 a FROM t"), "SELECT DISTINCT a FROM t LIMIT 5");
    EXPECT_EQ(Squeezed("SELECT ALL TOP 5 a FROM t"), "SELECT ALL a FROM t LIMIT 5");
}

TEST(DialectTest, EveryDigitMayStandInTheNumberOfATop) {
    EXPECT_EQ(Squeezed("SELECT TOP 9 a FROM t"), "SELECT a FROM t LIMIT 9");
    EXPECT_EQ(Squeezed("SELECT TOP 1234567890 a FROM t"), "SELECT a FROM t LIMIT 1234567890");
}

TEST(DialectTest, OnlyATopWithANumberIsOne) {
    for (const char* source :
         {"SELECT TOP FROM t", "SELECT Top, a FROM t", "SELECT TOP x a FROM t",
          "SELECT a TOP 5 FROM t", "SELECT TOP 1.5 a FROM t", "TOP 5", "SELECT TOP", "SELECT",
          "SELECT DISTINCT", "SELECT 'TOP 5'", "SELECT [TOP] 5"})
        EXPECT_EQ(Adapted(source), source);
}

TEST(DialectTest, TextsAreNeverTouched) {
    for (const char* source :
         {"SELECT 'SELECT TOP 5 #4/3/2002# -- /* [x] \"y\"'", "SELECT \"#4/3/2002#\"",
          "SELECT [#4/3/2002#] FROM [TOP 5]", "SELECT 'O''Brien #1/1/2002#'", "SELECT ''",
          "SELECT \"a\"\"#1/1/2002#\"", "SELECT '🍞 #1/1/2002#'"})
        EXPECT_EQ(Adapted(source), source);
}

TEST(DialectTest, AComparisonWithATextIgnoresCase) {
    EXPECT_EQ(Adapted("MEAL = 'BREAKFAST' AND UDate"),
              "MEAL = ('BREAKFAST' COLLATE HALVANE_TEXT) AND UDate");
    for (const char* sign : {"=", "<>", "!=", "<", ">", "<=", ">=", "=="})
        EXPECT_EQ(Adapted(qPrintable(QStringLiteral("a %1'x'").arg(sign))),
                  QStringLiteral("a %1('x' COLLATE HALVANE_TEXT)").arg(sign));
    EXPECT_EQ(Adapted("'x' = a"), "('x' COLLATE HALVANE_TEXT) = a");
    EXPECT_EQ(Adapted("a='x'AND b=1"), "a=('x' COLLATE HALVANE_TEXT)AND b=1");
    EXPECT_EQ(Adapted("a = '' AND b = 'x'"),
              "a = ('' COLLATE HALVANE_TEXT) AND b = ('x' COLLATE HALVANE_TEXT)");
    EXPECT_EQ(Adapted("a LIKE '%x%'"), "a LIKE '%x%'");
    EXPECT_EQ(Adapted("UDATE = #4/3/2002#"), "UDATE = '2002-04-03'");
    EXPECT_EQ(Adapted("a IN ('x')"), "a IN ('x')");
}

TEST(DialectTest, TextsWithoutAnEndAreHandedOn) {
    for (const char* source : {"UserName = 'x", "UserName = '", "a = \"x", "a = [x", "a = 'x''",
                               "a = 'x #4/3/2002# -- y", "a = [x -- #4/3/2002#"})
        EXPECT_EQ(Adapted(source), source);
    EXPECT_TRUE(Adapted("UserName = 'O'Brien'").endsWith("Brien'"));
}

TEST(DialectTest, CommentsAreRefused) {
    for (const char* source : {"SELECT 1 -- x", "SELECT 1 /* x */", "SELECT/**/1", "--",
                               "UserName = 'x' --' AND UID <>5"})
        EXPECT_EQ(ErrorOf([&] { Adapted(source); }), -1) << source;
    EXPECT_EQ(Adapted("SELECT 1 - -1"), "SELECT 1 - -1");
}

TEST(DialectTest, AnUpdatableSetGetsItsRowHandle) {
    const auto adapt = [](const char* source) { return Dialect::Adapt(source, true); };
    EXPECT_EQ(adapt("SELECT * FROM profiles").sql, "SELECT rowid AS __row__, * FROM profiles");
    EXPECT_EQ(adapt("SELECT * FROM profiles").table, "profiles");
    EXPECT_EQ(adapt("select  *  from [User Foods] where UID=1").table, "User Foods");
    EXPECT_EQ(adapt("SELECT * FROM USER_WEIGHTS  WHERE Weight > 0 ORDER BY UDate").table,
              "USER_WEIGHTS");
    EXPECT_EQ(adapt("SELECT * FROM t\u0080\u00E9").table, "t\u0080\u00E9");
    EXPECT_EQ(adapt("SELECT * FROM t ORDER BY a;").table, "t");
    EXPECT_EQ(adapt("SELECT * FROM t;").table, "t");
    EXPECT_EQ(adapt("SELECT TOP 2 * FROM t").sql.simplified(),
              "SELECT rowid AS __row__, * FROM t LIMIT 2");
}

TEST(DialectTest, OtherStatementsHaveNoRowHandle) {
    for (const char* source :
         {"SELECT a FROM t", "SELECT *, a FROM t", "SELECT DISTINCT * FROM t", "SELECT * FROM a, b",
          "SELECT * FROM a INNER JOIN b ON a.x = b.x", "SELECT * FROM (SELECT 1)", "SELECT *",
          "SELECT Sum(a) FROM t", "DELETE FROM t", "DELETE * FROM t", "SELECT * FROM t GROUP BY a",
          "", " "}) {
        const Dialect::Statement statement = Dialect::Adapt(source, true);
        EXPECT_EQ(statement.sql, source);
        EXPECT_TRUE(statement.table.isEmpty()) << source;
    }
}

TEST(DialectTest, AReadOnlySetHasNoRowHandle) {
    EXPECT_TRUE(Dialect::Adapt("SELECT * FROM t", false).table.isEmpty());
    EXPECT_EQ(Adapted("SELECT * FROM t"), "SELECT * FROM t");
}

TEST(DialectTest, EverythingElseIsHandedOnUnchanged) {
    for (const char* source :
         {"SELECT Sum(USER_FOODS.Protein) AS [Protein] FROM USER_FOODS  WHERE UID=-1",
          "SELECT 1e5, 1.5E-3, .5, 0x1F, a.b, a$1, été FROM t", "SELECT *\n\tFROM t \r\n",
          "SELECT ? | & ~ % @x :y $z {} ^ ` \\", "SELECT a FROM t WHERE x!=1 AND y<=2"})
        EXPECT_EQ(Adapted(source), source);
}

TEST(DialectTest, AnyTextComesOutWholeOrIsRefused) {
    const QString pieces[] = {"'", "\"", "[", "]", "#", "--", "/*", " ", "x", "=", ";", "1"};
    for (int i = 0; i < 12 * 12 * 12 * 12; ++i) {
        QString source;
        for (int rest = i; rest > 0; rest /= 12)
            source += pieces[rest % 12];
        try {
            QString sql = Dialect::Adapt(source, true).sql;
            sql.remove(QStringLiteral(" COLLATE HALVANE_TEXT)")).remove(u'(');
            EXPECT_EQ(sql, source);
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(source.contains("--") || source.contains("/*")) << source.toStdString();
        }
    }
}
