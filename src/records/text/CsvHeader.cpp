#include "records/text/CsvHeader.h"

#include "records/text/CsvReader.h"

CsvHeader::CsvHeader(const CsvReader& firstRecord) {
    for (int i = 0; i < firstRecord.Count(); ++i)
        names_ << firstRecord.Text(i).trimmed();
    for (int i = Count() - 1; i >= 0; --i)
        places_[Key(names_[i])] = i;
}

int CsvHeader::Find(QStringView name) const {
    return places_.value(Key(name), -1);
}

/// Qt's case folding turns the micro sign into the Greek letter.
QString CsvHeader::Key(QStringView name) {
    return name.trimmed().toString().toCaseFolded().replace(QChar(0xB5), QChar(0x3BC));
}
