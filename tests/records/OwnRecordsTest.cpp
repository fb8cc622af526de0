#include "records/OwnRecords.h"

#include "records/RecordsLock.h"
#include "records/Restoring.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "runtime/RuntimeError.h"
#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

/// A person's records where the program is installed for all people of a machine.
class OwnRecordsTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        QDir().mkpath(delivered_);
        Put(delivered_ + "/foods.tsv", Table());
        Put(delivered_ + "/reference-intakes.tsv", "Profile\tIron\nMALE_19_30\t8\n");
        Put(delivered_ + "/delivery.id", "first\n");
    }
    static QByteArray Table(const char* butter = "Butter") {
        return "ID\tFoodName\n16096\t" + QByteArray(butter) + '\n';
    }
    static void Put(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }
    static QByteArray Bytes(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    void DeliverAnew() {
        Put(delivered_ + "/foods.tsv", Table("Butter, salted"));
        Put(delivered_ + "/delivery.id", "second\n");
    }
    void Start() const {
        Own().MakeFolder();
        const RecordsLock lock(records_);
        Own().Update();
    }
    OwnRecords Own() const { return {records_, delivered_}; }
    static void Change(const QString& path, const char* sql) {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }
    static std::string Answer(const QString& path, const char* sql) {
        return SQLite::Database(path.toStdString()).execAndGet(sql).getString();
    }
    std::string Butter() const {
        return Answer(records_.Foods(), "SELECT FoodName FROM FOODS WHERE ID = 16096");
    }
    void Snap() const {
        SnapshotMaking(records_, Snapshots(records_).Place()).Make(SnapshotKind::Manual, "kept");
    }

    QString delivered_ = Folder() + "/share";
    RecordsFolder records_{Folder() + "/data/halvane/records"};
};

TEST_F(OwnRecordsTest, TheFirstStartMakesAFolderThatOnlyItsOwnerMayLookInto) {
    Start();
    EXPECT_EQ(Butter(), "Butter");
    EXPECT_EQ(Answer(records_.Users(), "SELECT COUNT(*) FROM RDI"), "1");
    const auto others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    for (const QString& folder : {records_.Path(), QString(Folder() + "/data/halvane")})
        EXPECT_FALSE(QFile::permissions(folder) & others) << folder.toStdString();
}

TEST_F(OwnRecordsTest, ANewDeliveryReplacesTheStockFoodsAndKeepsEverythingElse) {
    Start();
    Change(records_.Users(), "INSERT INTO profiles (UserName) VALUES ('Anna')");
    Change(records_.Foods(), "INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'My soup')");
    const QByteArray users = Bytes(records_.Users());
    DeliverAnew();
    Start();
    EXPECT_EQ(Butter(), "Butter, salted");
    EXPECT_EQ(Answer(records_.Foods(), "SELECT FoodName FROM FOODS WHERE ID = 23509"), "My soup");
    EXPECT_EQ(Bytes(records_.Users()), users);
}

TEST_F(OwnRecordsTest, TheSameDeliveryIsNotReadAgain) {
    Start();
    Put(delivered_ + "/foods.tsv", "damaged");
    Start();
    EXPECT_EQ(Butter(), "Butter");
}

TEST_F(OwnRecordsTest, AFirstStartThatWasKilledIsFinishedByTheNext) {
    Start();
    QFile::remove(records_.Delivery());
    QFile::remove(records_.Foods());
    Start();
    EXPECT_EQ(Butter(), "Butter");
}

TEST_F(OwnRecordsTest, RecordsThatWereCopiedThereBeforeTheFirstStartAreTaken) {
    Start();
    Change(records_.Users(), "INSERT INTO profiles (UserName) VALUES ('Anna')");
    QFile::remove(records_.Delivery());
    DeliverAnew();
    Start();
    EXPECT_EQ(Answer(records_.Users(), "SELECT UserName FROM profiles"), "Anna");
    EXPECT_EQ(Butter(), "Butter, salted");
}

TEST_F(OwnRecordsTest, ALostFileIsNeverMadeAnew) {
    Start();
    QFile::remove(records_.Users());
    DeliverAnew();
    Start();
    EXPECT_FALSE(QFile::exists(records_.Users()));
    EXPECT_EQ(Butter(), "Butter");
}

TEST_F(OwnRecordsTest, WhereSnapshotsAreLeftALostFolderIsNotMadeAnew) {
    Start();
    Snap();
    QDir(records_.Path()).removeRecursively();
    Start();
    EXPECT_FALSE(QFile::exists(records_.Users()));
}

TEST_F(OwnRecordsTest, FoodsThatCannotBeUpdatedStayAndTheNextStartTriesAgain) {
    Start();
    DeliverAnew();
    Put(delivered_ + "/foods.tsv", "ID\tNoSuchColumn\n1\t2\n");
    Start();
    EXPECT_EQ(Butter(), "Butter");
    DeliverAnew();
    Start();
    EXPECT_EQ(Butter(), "Butter, salted");
}

TEST_F(OwnRecordsTest, AFirstStartThatFailsSaysWhy) {
    QFile::remove(delivered_ + "/foods.tsv");
    EXPECT_THROW(Start(), RuntimeError);
}

TEST_F(OwnRecordsTest, AfterARestoreTheStockFoodsAreThoseOfTheDelivery) {
    Start();
    Snap();
    DeliverAnew();
    Start();
    Restoring(records_).Put(Snapshots(records_).Find("latest"), {}, "test");
    ASSERT_EQ(Butter(), "Butter");
    Start();
    EXPECT_EQ(Butter(), "Butter, salted");
}

TEST_F(OwnRecordsTest, ACommandMakesTheFolderAndFollowsANewDelivery) {
    EXPECT_EQ(Own().Ready().Path(), records_.Path());
    EXPECT_EQ(Butter(), "Butter");
    DeliverAnew();
    Own().Ready();
    EXPECT_EQ(Butter(), "Butter, salted");
}

TEST_F(OwnRecordsTest, ACommandDoesNotUpdateRecordsThatAreInUse) {
    Start();
    DeliverAnew();
    const RecordsLock window(records_);
    EXPECT_EQ(Own().Ready().Path(), records_.Path());
    EXPECT_EQ(Butter(), "Butter");
}

TEST_F(OwnRecordsTest, BesideTheProgramNothingHappens) {
    const OwnRecords beside(RecordsFolder(delivered_), delivered_);
    beside.MakeFolder();
    beside.Update();
    EXPECT_EQ(beside.Ready().Path(), delivered_);
    EXPECT_FALSE(QFile::exists(delivered_ + "/users.mdb"));
}
