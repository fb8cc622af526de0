#include "StoreTest.h"

#include <cmath>
#include <limits>

/// What is written to a column of each declared type, and what is read back.
class ValuesTest : public StoreTest {
protected:
    Recordset NewRow(const char* table) {
        Recordset set(users_, QStringLiteral("SELECT * FROM ") + table, CursorType::Dynamic,
                      LockType::Optimistic);
        set.AddNew();
        return set;
    }
    Field Written(const char* table, const char* column, const QVariant& value) {
        Recordset set = NewRow(table);
        set.Set(column, value);
        set.Update();
        const Field after = set[column];
        Recordset again(users_,
                        QStringLiteral("SELECT * FROM %1 WHERE rowid = %2")
                            .arg(table, First(users_, "SELECT last_insert_rowid()").toString()));
        EXPECT_EQ(again[column].Value(), after.Value());
        return after;
    }
    int Refusal(const char* table, const char* column, const QVariant& value) {
        return ErrorOf([&] { Written(table, column, value); });
    }
};

TEST_F(ValuesTest, WholeNumbersRoundHalfToEven) {
    const std::pair<double, int> cases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4},   {2.51, 3},
                                            {0.5, 0}, {1.5, 2}, {0, 0},     {70.4999, 70}};
    for (const auto& [value, stored] : cases)
        EXPECT_EQ(Written("profiles", "height", value).Integer(), stored) << value;
}

TEST_F(ValuesTest, WholeNumbersHave32Bits) {
    EXPECT_EQ(Written("profiles", "height", 2147483647).Integer(), 2147483647);
    EXPECT_EQ(Written("profiles", "height", -2147483647 - 1).Integer(), -2147483647 - 1);
    EXPECT_EQ(Written("profiles", "height", 2147483647.4).Integer(), 2147483647);
    EXPECT_EQ(Refusal("profiles", "height", 2147483648.0), ErrorNumber::Overflow);
    EXPECT_EQ(Refusal("profiles", "height", qlonglong(5000000000)), ErrorNumber::Overflow);
    EXPECT_EQ(Refusal("profiles", "height", -3e9), ErrorNumber::Overflow);
    EXPECT_EQ(Refusal("profiles", "height", std::nan("")), ErrorNumber::Overflow);
}

TEST_F(ValuesTest, NumbersAsTextAreConverted) {
    EXPECT_EQ(Written("profiles", "height", "70").Integer(), 70);
    EXPECT_EQ(Written("profiles", "height", " 2.5 ").Integer(), 2);
    EXPECT_EQ(Written("profiles", "age", "31.25").Number(), 31.25);
    for (const char* text : {"", "abc", "1,5", "12x", "--1"}) {
        EXPECT_EQ(Refusal("profiles", "height", text), ErrorNumber::TypeMismatch) << text;
        EXPECT_EQ(Refusal("profiles", "age", text), ErrorNumber::TypeMismatch) << text;
    }
    EXPECT_EQ(Refusal("profiles", "age", "1e400"), ErrorNumber::Overflow);
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 3);
}

TEST_F(ValuesTest, DoublesKeepTheirLastBit) {
    for (const double value : {0.1, 1.0 / 3, 1e308, 5e-324, -0.1, 0.0, 123456789.123456789})
        EXPECT_EQ(Written("profiles", "age", value).Number(), value);
    EXPECT_EQ(Refusal("profiles", "age", std::numeric_limits<double>::infinity()),
              ErrorNumber::Overflow);
    EXPECT_EQ(Refusal("profiles", "age", std::nan("")), ErrorNumber::Overflow);
}

TEST_F(ValuesTest, AWholeDoubleIsReadAsADouble) {
    const Field field = Written("profiles", "age", 31);
    EXPECT_EQ(field.Value().typeId(), QMetaType::Double);
    EXPECT_EQ(field.Text(), "31");
}

TEST_F(ValuesTest, BooleansAreTrueWhereNotZero) {
    EXPECT_TRUE(Written("profiles", "flagsodium", true).Boolean());
    EXPECT_FALSE(Written("profiles", "flagsodium", false).Boolean());
    EXPECT_TRUE(Written("profiles", "flagsodium", -1).Boolean());
    EXPECT_TRUE(Written("profiles", "flagsodium", 0.5).Boolean());
    EXPECT_FALSE(Written("profiles", "flagsodium", 0).Boolean());
    EXPECT_TRUE(Written("profiles", "flagsodium", "True").Boolean());
    EXPECT_FALSE(Written("profiles", "flagsodium", "false").Boolean());
    EXPECT_TRUE(Written("profiles", "flagsodium", "3").Boolean());
    EXPECT_EQ(Refusal("profiles", "flagsodium", "perhaps"), ErrorNumber::TypeMismatch);
    EXPECT_EQ(First(users_, "SELECT group_concat(flagsodium, '') FROM profiles"), "10110101");
}

TEST_F(ValuesTest, BooleansHaveAValueOfTheirOwn) {
    const Field field = Written("profiles", "flagsodium", true);
    EXPECT_EQ(field.Value(), QVariant(true));
    EXPECT_EQ(field.Text(), "True");
    EXPECT_EQ(field.Number(), 1);
    EXPECT_EQ(Written("profiles", "flagsodium", false).Text(), "False");
    Run(users_, "INSERT INTO profiles (UserName, flagsodium) VALUES ('other tool', -1)");
    EXPECT_TRUE(
        Recordset(users_, "SELECT flagsodium FROM profiles WHERE UserName = 'Other tool'")[0]
            .Boolean());
}

TEST_F(ValuesTest, DatesAreStoredAsIsoTextAndReadAsDates) {
    const QDate day(2002, 4, 3);
    EXPECT_EQ(Written("USER_WEIGHTS", "UDate", day).Date(), day);
    EXPECT_EQ(Written("USER_WEIGHTS", "UDate", "4/3/2002").Date(), day);
    EXPECT_EQ(Written("USER_WEIGHTS", "UDate", "2002-04-03").Text(), "4/3/2002");
    EXPECT_EQ(First(users_, "SELECT group_concat(DISTINCT UDate) FROM USER_WEIGHTS"), "2002-04-03");
    for (const QVariant& value :
         {QVariant("abc"), QVariant("2/29/2001"), QVariant(""), QVariant(5)})
        EXPECT_EQ(Refusal("USER_WEIGHTS", "UDate", value), ErrorNumber::TypeMismatch);
}

TEST_F(ValuesTest, TheFourthOfMarchIsWrittenMonthFirst) {
    Written("USER_WEIGHTS", "UDate", QDate(2002, 3, 4));
    EXPECT_EQ(
        Recordset(users_, "SELECT * FROM USER_WEIGHTS WHERE UDATE = #3/4/2002#").RecordCount(), 1);
    EXPECT_EQ(
        Recordset(users_, "SELECT * FROM USER_WEIGHTS WHERE UDATE = #4/3/2002#").RecordCount(), 0);
}

TEST_F(ValuesTest, DatesOfEveryEraAreFoundAgain) {
    for (const QDate day : {QDate(1970, 1, 1), QDate(1999, 12, 31), QDate(2000, 2, 29),
                            QDate(2106, 2, 7), QDate(9999, 12, 31), QDate(100, 1, 1)}) {
        Written("USER_WEIGHTS", "UDate", day);
        const QString sql = QStringLiteral("SELECT UDate FROM USER_WEIGHTS WHERE UDate = #%1#")
                                .arg(day.toString(Qt::ISODate));
        EXPECT_EQ(Recordset(users_, sql)["UDate"].Date(), day);
    }
}

TEST_F(ValuesTest, EveryDayOfALeapYearIsReadAsItself) {
    Run(users_,
        "INSERT INTO USER_WEIGHTS WITH n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE "
        "i < 365) SELECT 1, date('2028-01-01', i || ' days'), 150 FROM n");
    QDate day(2028, 1, 1);
    for (Recordset rows(users_, "SELECT UDate FROM USER_WEIGHTS"); !rows.AtEnd(); rows.MoveNext()) {
        EXPECT_EQ(rows[0].Date(), day);
        day = day.addDays(1);
    }
    EXPECT_EQ(day, QDate(2029, 1, 1));
}

TEST_F(ValuesTest, ATextThatOnlyLooksLikeADateIsReadAsText) {
    for (const char* text :
         {"2002-04x03", "2002x04-03", "2002-04-0:", "abcd-01-01", "-200-01-01", "+200-01-01",
          "0000-01-01", "2002-1a-01", "2002-13-01", "2002-02-30", "2002-01- 1"}) {
        Run(users_, QStringLiteral("DELETE FROM USER_WEIGHTS"));
        Run(users_, QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '%1', 150)")
                        .arg(QLatin1String(text)));
        EXPECT_EQ(Recordset(users_, "SELECT * FROM USER_WEIGHTS")["UDate"].Text(), text);
    }
}

TEST_F(ValuesTest, ADateWithATimeBehindItIsReadAsItsDay) {
    for (const char* text : {"2002-04-03T", "2002-04-03T10:15:00", "2002-04-03 10:15"}) {
        Run(users_, QStringLiteral("DELETE FROM USER_WEIGHTS"));
        Run(users_, QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '%1', 150)")
                        .arg(QLatin1String(text)));
        EXPECT_EQ(Recordset(users_, "SELECT * FROM USER_WEIGHTS")["UDate"].Day(), QDate(2002, 4, 3))
            << text;
    }
}

TEST_F(ValuesTest, ADateInAColumnOfTextsIsReadAsText) {
    AddFood(30001, "2002-03-04");
    EXPECT_EQ(Recordset(foods_, "SELECT FoodName FROM FOODS WHERE ID = 30001")[0].Value().typeId(),
              QMetaType::QString);
}

TEST_F(ValuesTest, ADateOfAnotherToolThatIsNoneIsReadAsText) {
    Run(users_, "INSERT INTO USER_WEIGHTS VALUES (1, 'soon', 150)");
    const Recordset set(users_, "SELECT * FROM USER_WEIGHTS");
    EXPECT_EQ(set["UDate"].Text(), "soon");
    EXPECT_EQ(ErrorOf([&] { set["UDate"].Date(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { set["UDate"].Number(); }), ErrorNumber::TypeMismatch);
}

TEST_F(ValuesTest, NullIsWrittenAsNull) {
    for (const char* column : {"UserName", "age", "height", "flagsodium"})
        EXPECT_TRUE(Written("profiles", column, QVariant()).IsNull()) << column;
    EXPECT_TRUE(Written("USER_WEIGHTS", "UDate", QDate()).IsNull());
}

TEST_F(ValuesTest, AnEmptyTextIsNotNull) {
    for (const QString& empty : {QString(), QStringLiteral("")}) {
        const Field field = Written("profiles", "UserName", empty);
        EXPECT_FALSE(field.IsNull());
        EXPECT_EQ(field.Text(), "");
    }
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles WHERE UserName = ''"), 2);
}

TEST_F(ValuesTest, TextsComeBackWhole) {
    QString nul = QStringLiteral("before");
    nul += QChar(0);
    nul += QStringLiteral("after");
    const QString texts[] = {
        QStringLiteral("O'Brien"),
        QStringLiteral("100% _ [x] \"y\" # -- ; /*"),
        QStringLiteral("crème brûlée"),
        QString::fromUtf8("🍞🥐 👩‍🍳"),
        QString(10000, u'x'),
        QString::fromUtf8("🍞").repeated(10000),
        QStringLiteral("a\r\nb\tc"),
        nul,
        QString(1, QChar(0)),
        QStringLiteral("'; DROP TABLE profiles; --"),
        QStringLiteral(" blanks kept "),
        QStringLiteral("007"),
        QStringLiteral("\uFEFFbehind a byte order mark"),
    };
    for (const QString& text : texts) {
        EXPECT_EQ(Written("profiles", "UserName", text).Text(), text);
        EXPECT_EQ(Written("Recipes", "Instructions", text).Value(), text);
    }
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), qlonglong(std::size(texts)));
}

TEST_F(ValuesTest, OtherValuesBecomeText) {
    EXPECT_EQ(Written("profiles", "UserName", 5).Text(), "5");
    EXPECT_EQ(Written("profiles", "UserName", 0.5).Text(), "0.5");
    EXPECT_EQ(Written("profiles", "UserName", 1e20).Text(), "100000000000000000000");
    EXPECT_EQ(Written("profiles", "UserName", true).Text(), "True");
    EXPECT_EQ(Written("profiles", "UserName", false).Text(), "False");
    EXPECT_EQ(Written("profiles", "UserName", QDate(2002, 4, 3)).Text(), "4/3/2002");
    EXPECT_EQ(Refusal("profiles", "UserName", QVariantList{1, 2}), ErrorNumber::TypeMismatch);
    EXPECT_EQ(Refusal("profiles", "age", QDate(2002, 4, 3)), ErrorNumber::TypeMismatch);
    EXPECT_EQ(Refusal("profiles", "flagsodium", QDate(2002, 4, 3)), ErrorNumber::TypeMismatch);
}

TEST_F(ValuesTest, ARefusedValueLeavesTheRowAsItWas) {
    Written("profiles", "UserName", "Anna");
    Recordset set(users_, "SELECT * FROM profiles", CursorType::Dynamic, LockType::Pessimistic);
    set.Set("UserName", "Berta");
    EXPECT_EQ(ErrorOf([&] { set.Set("height", "tall"); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(First(users_, "SELECT UserName FROM profiles"), "Anna");
    set.Update();
    EXPECT_EQ(First(users_, "SELECT UserName FROM profiles"), "Berta");
    EXPECT_TRUE(set["height"].IsNull());
}

TEST_F(ValuesTest, FieldsConvertStrictly) {
    const Field number(QStringLiteral("a"), 2.5);
    EXPECT_EQ(number.Integer(), 2);
    EXPECT_EQ(number.Text(), "2.5");
    EXPECT_TRUE(number.Boolean());
    EXPECT_EQ(number.NumberOr(9), 2.5);
    const Field text(QStringLiteral("a"), QStringLiteral("3.5"));
    EXPECT_EQ(text.Number(), 3.5);
    EXPECT_EQ(text.Integer(), 4);
    EXPECT_TRUE(text.Boolean());
    const Field word(QStringLiteral("a"), QStringLiteral("x"));
    EXPECT_EQ(ErrorOf([&] { word.Number(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(word.NumberOr(1), 1);
    EXPECT_FALSE(word.Day().isValid());
    EXPECT_FALSE(word.IsKey());
    EXPECT_EQ(ErrorOf([&] { word.Boolean(); }), ErrorNumber::TypeMismatch);
    const Field date(QStringLiteral("a"), QStringLiteral("4/3/2002"));
    EXPECT_EQ(date.Date(), QDate(2002, 4, 3));
    const Field day(QStringLiteral("a"), QDate(2002, 4, 3));
    EXPECT_EQ(ErrorOf([&] { day.Number(); }), ErrorNumber::TypeMismatch);
    const Field large(QStringLiteral("a"), 3e9);
    EXPECT_EQ(ErrorOf([&] { large.Integer(); }), ErrorNumber::Overflow);
    EXPECT_EQ(large.WholeOr(0), 2147483647);
    EXPECT_EQ(Field(QStringLiteral("a"), HUGE_VAL).NumberOr(0), 1.7976931348623157e308);
    EXPECT_EQ(day.Day(), QDate(2002, 4, 3));
    EXPECT_TRUE(Field(QStringLiteral("a"), qlonglong(7)).IsKey());
    EXPECT_FALSE(Field(QStringLiteral("a"), qlonglong(1) << 40).IsKey());
}

TEST_F(ValuesTest, ColumnsWithoutADeclaredTypeTakeWhatTheyGet) {
    Run(users_, "CREATE TABLE loose (a)");
    EXPECT_EQ(Written("loose", "a", 5).Value(), QVariant(5));
    EXPECT_EQ(Written("loose", "a", 2.5).Value(), QVariant(2.5));
    EXPECT_EQ(Written("loose", "a", "x").Value(), QVariant("x"));
    EXPECT_EQ(Written("loose", "a", QDate(2002, 4, 3)).Value(), QVariant("4/3/2002"));
}
