#include "durability/WholeWork.h"

#include "durability/KilledWork.h"
#include "durability/SmallRecords.h"

#include "foods/delivery/DeliveredDatabases.h"
#include "records/RecordsFolder.h"
#include "records/Restoring.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "records/document/RecordsDocument.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/VersionOne.h"
#include "support/Places.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

constexpr int RowCount = 400;

QByteArrayList Rows(const QByteArray& row) {
    QByteArrayList rows;
    for (int i = 1; i <= RowCount; ++i)
        rows << QByteArray(row).replace("%", QByteArray::number(i));
    return rows;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

/// `rows` takes a number `i` of each row from `n`.
void AddRows(const QString& path, const char* rows) {
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
        .exec("WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
              std::to_string(RowCount) + ") INSERT INTO " + rows);
}

/// Rows for both files, as a document.
class DocumentImport : public WholeWork {
public:
    explicit DocumentImport(const QString& ground)
        : WholeWork("import of a document") {
        SmallRecords::CopyTo(Before(), ground);
        Write(Aside("document.json"),
              R"({"format":"halvane-records","version":1,
                  "nutrients":[{"name":"Calories","unit":"kcal"}],
                  "profiles":[{"key":1,"name":"Anna"}],"foods":[)" +
                  Rows(R"({"name":"Food %","amounts":[%]})").join(',') + R"(],"log":[)" +
                  Rows(R"({"profile":1,"date":"2026-03-02","food":"Oats %","amounts":[%]})")
                      .join(',') +
                  "]}");
    }

protected:
    void Do() override {
        RecordsDocument::Import(RecordsFolder(Folder()), Aside("document.json"), {},
                                [](qint64, qint64) {});
    }
};

/// A snapshot of other rows comes back.
class Restore : public WholeWork {
public:
    explicit Restore(const QString& ground)
        : WholeWork("restore") {
        SmallRecords::CopyTo(Before(), ground);
        SmallRecords::CopyTo(Folder(), ground);
        const RecordsFolder records(Folder());
        AddRows(records.Users(), "USER_WEIGHTS (UID, UDate, Weight) SELECT 1, date(i), i FROM n");
        AddRows(records.Foods(), "FOODS (FoodName) SELECT 'Food ' || i FROM n");
        snapshot_ = SnapshotMaking(records, Snapshots(records).Place())
                        .Make(SnapshotKind::Manual, QStringLiteral("other rows"));
    }

protected:
    void Do() override {
        Restoring(RecordsFolder(Folder())).Put(snapshot_, {}, QStringLiteral("before"));
    }

private:
    Snapshot snapshot_;
};

/// Files of the first version are opened: the next start always finds them updated.
class SchemaSteps : public WholeWork {
public:
    SchemaSteps()
        : WholeWork("schema steps") {
        VersionOne::MakeUsers(Before() + "/users.mdb", RowCount);
        VersionOne::MakeFoods(Before() + "/foods.mdb");
    }

protected:
    void Do() override {
        SmallRecords::OpenBoth(Folder());
        SmallRecords::CloseBoth();
    }
};

/// An installation replaces the stock foods.
class StockUpdate : public WholeWork {
public:
    explicit StockUpdate(const QString& ground)
        : WholeWork("stock update") {
        SmallRecords::CopyTo(Before(), ground);
        QDir().mkpath(Aside("tables"));
        QFile foods(Places::Source(QStringLiteral("/data/foods.tsv")));
        if (!foods.open(QIODevice::ReadOnly))
            qFatal("the delivered foods are missing");
        QByteArray few;
        for (int line = 0; line <= RowCount; ++line)
            few += foods.readLine();
        Write(Aside("tables/foods.tsv"), few);
    }

protected:
    void Do() override { DeliveredDatabases(Aside("tables")).Update(Folder()); }
};

} // namespace

WholeWork::WholeWork(const char* name)
    : name_(name)
    , folder_(std::make_unique<QTemporaryDir>()) {
    for (const QString& made : {Folder(), Before()})
        QDir().mkpath(made);
}

WholeWork::~WholeWork() = default;

std::vector<std::unique_ptr<WholeWork>> WholeWork::All(const QString& ground) {
    std::vector<std::unique_ptr<WholeWork>> all;
    all.push_back(std::make_unique<DocumentImport>(ground));
    all.push_back(std::make_unique<Restore>(ground));
    all.push_back(std::make_unique<SchemaSteps>());
    all.push_back(std::make_unique<StockUpdate>(ground));
    for (const auto& work : all)
        work->Measure();
    return all;
}

QString WholeWork::Folder() const {
    return folder_->filePath(QStringLiteral("records"));
}

QString WholeWork::Before() const {
    return folder_->filePath(QStringLiteral("before"));
}

QString WholeWork::Aside(const char* name) const {
    return folder_->filePath(QLatin1String(name));
}

void WholeWork::LayOut() const {
    SmallRecords::CopyTo(Folder(), Before());
}

void WholeWork::Measure() {
    LayOut();
    before_ = SmallRecords::Contents(Folder());
    LayOut();
    QElapsedTimer clock;
    clock.start();
    KilledWork(Folder(), [this](int) { Do(); }).LetItEnd();
    milliseconds_ = int(clock.elapsed()) + 1;
    after_ = SmallRecords::Contents(Folder());
}

bool WholeWork::Kill(QRandomGenerator& random) {
    LayOut();
    KilledWork work(Folder(), [this](int) { Do(); });
    work.KillAtRandom(random, 0, milliseconds_);
    kills_ += work.WasKilled() ? 1 : 0;
    const QByteArray left = SmallRecords::Contents(Folder());
    finished_ += work.WasKilled() && left == after_ ? 1 : 0;
    return left == before_ || left == after_;
}
