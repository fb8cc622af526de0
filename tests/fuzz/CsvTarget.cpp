#include "fuzz/Target.h"

#include "records/text/ByteOrderMark.h"
#include "records/text/CsvHeader.h"
#include "records/text/CsvReader.h"
#include "runtime/Attempt.h"

#include <QBuffer>
#include <QStringList>

namespace {
using Record = QStringList;

Record Fields(const CsvReader& reader) {
    Record fields;
    for (int i = 0; i < reader.Count(); ++i)
        fields << reader.Text(i);
    return fields;
}

/// A record that is written again holds the same fields. A single empty field makes an empty line.
/// The file has a byte order mark, because the record may begin with one of its own.
void ReadAgain(const CsvReader& reader) {
    QBuffer buffer;
    buffer.setData(ByteOrderMark::Bytes.toByteArray() + reader.Source().toUtf8());
    buffer.open(QIODevice::ReadOnly);
    CsvReader again(buffer);
    const Record fields = Fields(reader);
    Expect(again.Next() ? Fields(again) == fields : fields == Record{QString()});
    Expect(!again.Next());
}

void Read(const std::string& bytes, char separator) {
    QBuffer buffer;
    buffer.setData(QByteArray::fromStdString(bytes));
    buffer.open(QIODevice::ReadOnly);
    CsvReader reader(buffer, separator, {.record = 1000, .fields = 50});
    int line = 0;
    while (reader.Next()) {
        Expect(reader.Line() > line && reader.Count() > 0 && reader.Count() <= 50);
        line = reader.Line();
        Expect(CsvHeader(reader).Count() == reader.Count());
        if (separator == ',')
            ReadAgain(reader);
    }
}
} // namespace

/// Bytes are refused, or each record is the same after it was written again.
void Fuzz(const std::string& bytes) {
    Attempt([&] { Read(bytes, ','); });
    Attempt([&] { Read(bytes, ';'); });
}
