#include "records/peers/RejectsFile.h"

#include "records/text/CsvText.h"
#include "runtime/RuntimeError.h"

#include <QSaveFile>

namespace {
QString Line(const Reject& reject) {
    QStringList cells{reject.origin.file, reject.origin.place, RejectsFile::Word(reject.kind),
                      reject.reason, reject.origin.text};
    for (QString& cell : cells)
        cell = CsvText::ForeignCell(cell);
    return cells.join(u',') + "\r\n";
}

void Require(bool done, const QSaveFile& file) {
    if (!done)
        throw RuntimeError(ErrorNumber::FileAccess,
                           "The rows that were not taken cannot be listed in " + file.fileName() +
                               ": " + file.errorString() +
                               ". Name another file with --rejects. Nothing was changed.");
}
} // namespace

QString RejectsFile::Word(Reject::Kind kind) {
    switch (kind) {
    case Reject::Kind::Refused:
        return QStringLiteral("refused");
    case Reject::Kind::LeftOut:
        return QStringLiteral("left out");
    default:
        return QStringLiteral("changed");
    }
}

void RejectsFile::Write(const QString& path, const std::vector<Reject>& rejects) {
    QSaveFile file(path);
    Require(file.open(QIODevice::WriteOnly), file);
    file.write("file,place,what,reason,row\r\n");
    for (const Reject& reject : rejects)
        file.write(Line(reject).toUtf8());
    Require(file.flush() && file.commit(), file); // commit keeps a file whose last bytes do not fit
}
