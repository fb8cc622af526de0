#include "records/peers/RejectsFile.h"

#include "records/OutputFile.h"
#include "records/text/CsvText.h"
#include "runtime/RuntimeError.h"

namespace {
std::string Line(const Reject& reject) {
    return CsvText::ForeignLine({reject.origin.file, reject.origin.place,
                                 RejectsFile::Word(reject.kind), reject.reason,
                                 reject.origin.text});
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
    try {
        OutputFile file(path);
        file.Write("file,place,what,reason,row\r\n");
        for (const Reject& reject : rejects)
            file.Write(Line(reject));
        file.Keep();
    } catch (const RuntimeError& failure) {
        throw RuntimeError(failure.Number(),
                           failure.Description() +
                               " It is to list the rows that are not taken. Name another file "
                               "with --rejects. Nothing was changed.");
    }
}
