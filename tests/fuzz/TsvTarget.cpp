#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "foods/delivery/TsvTable.h"
#include "runtime/Attempt.h"

/// A table is refused, or it reads back the same after it was written.
void Fuzz(const std::string& bytes) {
    const QString path = Scratch::Write(QStringLiteral("in.tsv"), QByteArray::fromStdString(bytes));
    Attempt([&] {
        const TsvTable table = TsvTable::Read(path);
        const QString copy = Scratch::Path(QStringLiteral("out.tsv"));
        table.Write(copy);
        const TsvTable again = TsvTable::Read(copy);
        Expect(again.Columns() == table.Columns() && again.Rows() == table.Rows());
    });
}
