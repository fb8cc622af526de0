#include "foods/NarrowedSearch.h"
#include "foods/FoodSearch.h"
#include "foods/FoodsTest.h"
#include "foods/SearchTerms.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <QFile>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

/// A search gives the rows of the laid-down statements in their order. HALVANE_SEARCH_TERMS and
/// HALVANE_SEARCH_FOODS set how many terms are tried, and over how many own foods;
/// HALVANE_SEARCH_SEED gives others.
class NarrowedSearchTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        OpenDelivered();
        ReadNames();
    }

    void OpenDelivered() {
        CloseDatabases();
        for (const char* name : {"users.mdb", "foods.mdb"})
            QFile::remove(Folder() + u'/' + name);
        OpenDatabases();
    }
    static int Setting(const char* name, int usual) {
        return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : usual;
    }
    int Below(qsizetype bound) { return int(random_.bounded(int(bound))); }

    void ReadNames() {
        for (const QVariantList& row : Rows(FoodDB(), "SELECT FoodName FROM FOODS"))
            names_ << row[0].toString();
    }

    /// Names made of parts of others, some of them with characters that only few names have.
    QString MadeName() {
        if (Below(16) == 0) // equal names have an order, too
            return names_[Below(names_.size())].toUpper();
        static const QStringList odd{
            u"crème"_qs, u"BRÛLÉE"_qs,     u"\u017Foup"_qs,       u"\u212Aale"_qs,
            u"100%"_qs,  u"a_b"_qs,        u"O'Brien"_qs,         u"7\" pie"_qs,
            u"Æble"_qs,  u"\U0001F34E"_qs, QString(u"a\0milk"_qs)};
        QString name = names_[Below(names_.size())].left(20 + Below(60));
        if (Below(4) == 0)
            name += u' ' + odd[Below(odd.size())];
        return name + u", " + names_[Below(names_.size())].section(u',', -1).trimmed();
    }
    void AddOwnFoods(int count) {
        SQLite::Transaction transaction(FoodDB().Raw());
        SQLite::Statement insert(FoodDB().Raw(), "INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, "
                                                 "Serv_Desc_B) VALUES (?, ?, ?, NULL)");
        for (int i = 0; i < count; ++i) {
            insert.reset();
            insert.bind(1, 23509 + i);
            insert.bind(2, MadeName().toStdString());
            insert.bind(3, std::to_string(Below(3)));
            insert.exec();
        }
        transaction.commit();
        ReadNames();
    }

    QString Word() {
        const QString name = names_[Below(names_.size())];
        const qsizetype at = Below(name.size() + 1);
        QString word = name.sliced(at, qMin(name.size() - at, qsizetype(Below(9))));
        if (!word.isEmpty() && Below(8) == 0)
            word[Below(word.size())] = QLatin1Char("%_'\"zé#[;-\\"[Below(11)]);
        return Below(3) == 0 ? word.toUpper() : word;
    }
    QString Term() {
        QString term = Word();
        while (Below(3) == 0)
            term += u' ' + Word();
        return term;
    }

    /// What the statement alone gives, or its failure.
    static QStringList LaidDown(const SearchTerms& terms) {
        QStringList found;
        for (const QString& statement : {terms.CustomSQL(), terms.StockSQL()}) {
            Recordset rows(FoodDB(), statement);
            for (int i = 0; i < qMin(rows.RecordCount(), FoodSearch::MostOfASource); ++i) {
                found << QString::number(rows[1].Integer()) + u'|' + rows[0].Text();
                rows.MoveNext();
            }
        }
        return found;
    }
    static QStringList Searched(const SearchTerms& terms) {
        QStringList found;
        for (const Food& food : FoodSearch::Find(terms, {false, true, true}))
            found << QString::number(food.ID) + u'|' + food.FoodName;
        return found;
    }
    template <class Read> static QStringList OrFailure(Read read) {
        QStringList found{"failed"};
        Attempt([&] { found = read(); });
        return found;
    }
    static void ExpectSame(const QString& term) {
        ExpectSame(SearchTerms(term));
        if (term.contains(u'\'')) // else it makes the same statement
            ExpectSame(SearchTerms::Quoted(term));
    }
    static void ExpectSame(const SearchTerms& terms) {
        ASSERT_EQ(OrFailure([&] { return Searched(terms); }),
                  OrFailure([&] { return LaidDown(terms); }))
            << terms.Words().join(u' ').toStdString();
    }
    static bool IsNarrowed(const QString& term) {
        const SearchTerms terms(term);
        return !NarrowedSearch(terms).Statement(NarrowedSearch::Part::Stock).isEmpty();
    }

    QRandomGenerator random_{quint32(Setting("HALVANE_SEARCH_SEED", 20021204))};
    QStringList names_;
};

TEST_F(NarrowedSearchTest, RandomTermsGiveTheRowsOfTheStatementAloneInTheirOrder) {
    AddOwnFoods(Setting("HALVANE_SEARCH_FOODS", 2000));
    const int terms = Setting("HALVANE_SEARCH_TERMS", 300);
    for (int i = 0; i < terms && !HasFatalFailure(); ++i)
        ExpectSame(Term());
}

TEST_F(NarrowedSearchTest, OddTermsGiveTheRowsOfTheStatementAlone) {
    AddOwnFoods(2000);
    for (const char* term : {"",
                             " ",
                             "a",
                             "ab",
                             "%",
                             "_",
                             "%%%",
                             "a%",
                             "100%",
                             "a_b",
                             "soup",
                             "SOUP",
                             "kale",
                             "Kale",
                             "\u017Foup",
                             "crème",
                             "CRÈME",
                             "brûlée",
                             "\"",
                             "7\" pie",
                             "'",
                             "''",
                             "o'brien",
                             "milk' OR 'a' = 'a",
                             "milk%' OR FoodName LIKE '%egg",
                             "milk",
                             "a milk",
                             "milk whole dry",
                             "and",
                             "or not",
                             "near",
                             "mil*",
                             "^milk",
                             "-milk",
                             "FoodName:milk",
                             "(milk)",
                             "\\",
                             "[a]",
                             "#1/2/2003#",
                             "zzz",
                             "milk\n",
                             "--",
                             "/*milk*/",
                             ";",
                             "\U0001F34E"})
        ExpectSame(QString::fromUtf8(term));
    ExpectSame(QString(u"a\0milk"_qs));
}

TEST_F(NarrowedSearchTest, TheIndexAnswersForARareWordAndNotForACommonOne) {
    EXPECT_TRUE(IsNarrowed("turkey"));
    EXPECT_TRUE(IsNarrowed("no such food"));
    EXPECT_FALSE(IsNarrowed("raw"));
    EXPECT_FALSE(IsNarrowed("ab"));
    EXPECT_FALSE(IsNarrowed("o'brien"));
}

TEST_F(NarrowedSearchTest, TheIndexAnswersInAFileThatIsOpenTogetherWithTheDiary) {
    FoodDB().OpenTogether(Folder() + "/foods.mdb", DatabaseKind::Foods, UserDB());
    EXPECT_TRUE(IsNarrowed("turkey"));
    ExpectSame("turkey");
}

TEST_F(NarrowedSearchTest, ANameIsFoundAsSoonAsItIsWrittenAndNoLongerThanItIsThere) {
    const auto found = [](const char* term) { return Searched(SearchTerms(term)).size(); };
    AddFood({.id = 23509, .name = "Zwieback of mine"});
    EXPECT_EQ(found("zwieback mine"), 1);
    FoodDB().Raw().exec("UPDATE FOODS SET FoodName = 'Pumpernickel of mine' WHERE ID = 23509");
    EXPECT_EQ(found("zwieback mine"), 0);
    EXPECT_EQ(found("pumpernickel mine"), 1);
    FoodDB().Raw().exec("UPDATE FOODS SET ID = 23600 WHERE ID = 23509");
    EXPECT_EQ(Searched(SearchTerms("pumpernickel mine")),
              QStringList{"23600|Pumpernickel of mine"});
    FoodDB().Raw().exec("DELETE FROM FOODS WHERE ID = 23600");
    EXPECT_EQ(found("pumpernickel mine"), 0);
}

TEST_F(NarrowedSearchTest, EveryLetterThatFoldsToALetterOfATermIsFound) {
    SQLite::Transaction transaction(FoodDB().Raw());
    SQLite::Statement insert(FoodDB().Raw(), "INSERT INTO FOODS (ID, FoodName) VALUES (?, ?)");
    for (char32_t at = 1; at < 0x110000; ++at) {
        const char32_t folded = QChar::toCaseFolded(at);
        if (folded >= 0x80 || QChar::isSurrogate(at))
            continue;
        insert.reset();
        insert.bind(1, 30000 + int(at % 0x2000));
        insert.bind(2, QStringLiteral("qx%1xq").arg(QString::fromUcs4(&at, 1)).toStdString());
        insert.exec();
    }
    transaction.commit();
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const QString term = QStringLiteral("qx") + QLatin1Char(letter) + u"xq";
        ASSERT_TRUE(IsNarrowed(term));
        ExpectSame(term);
        EXPECT_EQ(Searched(SearchTerms(term)).size(), letter == 'k' || letter == 's' ? 3 : 2);
    }
}

TEST_F(NarrowedSearchTest, NamesThatAreNoTextOrNoUTF8AreFoundAsBefore) {
    FoodDB().Raw().exec(
        "INSERT INTO FOODS (ID, FoodName) VALUES (23509, NULL), (23510, x'7175696e6f6120ff'),"
        "(23511, CAST(x'c37175696e6f61' AS TEXT)), (23512, CAST(x'7175e0818169' AS TEXT)),"
        "(23513, CAST(x'00007175696e6f61' AS TEXT)), (23514, 4711), (23515, x'00717569'),"
        "(23516, CAST(x'e284e0818171756161e281' AS TEXT))");
    for (const char* term : {"quinoa", "4711", "qui", "qua", "quaa", "qu\u00E9"})
        ExpectSame(QString::fromUtf8(term));
    EXPECT_TRUE(Searched(SearchTerms("quinoa")).filter("23513|").size() == 1);
}

TEST_F(NarrowedSearchTest, AMissingOrDamagedIndexChangesNoResult) {
    for (const char* damage :
         {"DROP TABLE FOODS_Trigrams", "DROP TABLE FOODS_Trigrams_data",
          "DROP TABLE FOODS_Trigrams_idx", "DROP TABLE FOODS_Trigrams_config",
          "DELETE FROM FOODS_Trigrams_data", "DELETE FROM FOODS_Trigrams_config",
          "UPDATE FOODS_Trigrams_data SET block = x'00' WHERE id = 10",
          "DELETE FROM FOODS_Trigrams_data WHERE id > 10",
          "DROP TRIGGER FOODS_Trigrams_Added; INSERT INTO FOODS (ID, FoodName) VALUES "
          "(23509, 'Turkey of mine')",
          "DROP INDEX FOODS_Unindexed", "DROP INDEX FOODS_Name"}) {
        OpenDelivered();
        SQLite::Database(FoodDB().Path().toStdString(), SQLite::OPEN_READWRITE).exec(damage);
        for (const bool forWriting : {false, true}) {
            forWriting ? FoodDB().Open(FoodDB().Path(), DatabaseKind::Foods)
                       : FoodDB().OpenForReading(FoodDB().Path(), DatabaseKind::Foods);
            SCOPED_TRACE(damage);
            ExpectSame("turkey");
            ExpectSame("quinoa");
        }
        AddFood({.id = 23600, .name = "Zwieback of mine"});
        ExpectSame("zwieback");
        EXPECT_EQ(Searched(SearchTerms("zwieback mine")).size(), 1) << damage;
    }
}

TEST_F(NarrowedSearchTest, WithoutTheIndexOfOrderedNamesEqualNamesComeAsInTheStatementAlone) {
    FoodDB().Raw().exec("DROP INDEX FOODS_Name");
    AddFood({.id = 23600, .name = "Zwieback", .servA = "2 slices"});
    AddFood({.id = 23601, .name = "Zwieback", .servA = "1 slice"});
    ExpectSame("zwieback");
}
