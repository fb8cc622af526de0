#include "fuzz/Target.h"

#include "records/archive/ZipReader.h"
#include "runtime/Attempt.h"

/// A zip is refused, or its members unpack within the limits.
void Fuzz(const std::string& bytes) {
    constexpr ZipReader::Limits limits{.members = 10, .total = 1 << 20, .ratio = 250};
    Attempt([&] {
        ZipReader zip(QByteArray::fromStdString(bytes), limits);
        Expect(zip.Names().size() <= limits.members);
        qint64 total = 0;
        for (const QString& name : zip.Names())
            total += zip.Read(name).size();
        Expect(total <= limits.total);
    });
}
