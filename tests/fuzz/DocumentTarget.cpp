#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "records/document/DocumentMerge.h"
#include "records/document/DocumentReader.h"
#include "records/document/DocumentStage.h"
#include "records/document/DocumentWriter.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
/// A connection has room for one stage.
void DropStage() {
    std::string drop;
    SQLite::Statement table(UserDB().Raw(),
                            "SELECT name FROM temp.sqlite_master WHERE type = 'table'");
    while (table.executeStep())
        drop += "DROP TABLE temp." + table.getColumn(0).getString() + ';';
    table.reset();
    UserDB().Raw().exec(drop);
}

int Merge(const QString& path) {
    DropStage();
    return StoreError::Guarded(path, [&] {
        ImportReport report;
        DocumentStage stage;
        DocumentMerge::Run(DocumentReader::Read(path, stage, [](qint64, qint64) {}), report);
        int added = 0;
        for (const auto& [section, count] : report.counts)
            added += count.added;
        return added;
    });
}

bool Take(const QString& path) {
    Transaction change(UserDB());
    return Attempt([&] {
        Merge(path);
        change.Commit();
    });
}

QByteArray Export() {
    QByteArray document;
    const auto add = [&](std::string_view piece) {
        document.append(piece.data(), qsizetype(piece.size()));
    };
    DocumentWriter(add, [](qint64, qint64) {}).Write();
    return document;
}

void RemoveRows() {
    UserDB().Raw().exec("DELETE FROM profiles; DELETE FROM Recipes; DELETE FROM Ingredients;"
                        "DELETE FROM USER_FOODS; DELETE FROM USER_WEIGHTS;"
                        "DELETE FROM FOODS WHERE ID > 23508; DELETE FROM sqlite_sequence");
}
} // namespace

/// A document is refused, or all that it adds is in the next export, which adds nothing.
void Fuzz(const std::string& bytes) {
    Scratch::OpenRecords();
    const QString name = QStringLiteral("records.json");
    if (!Take(Scratch::Write(name, QByteArray::fromStdString(bytes))))
        return;
    const QString again = Scratch::Write(name, Export());
    Expect(Merge(again) == 0);
    RemoveRows();
}
