#include "records/archive/ZipReader.h"

#include "runtime/RuntimeError.h"

#include <algorithm>

#include <zip.h>

namespace {
constexpr qint64 Chunk = 1 << 16;
constexpr qint64 LargeMember = 1 << 20; ///< smaller ones may be packed as well as they like

[[noreturn]] void Fail(const QString& complaint) {
    throw RuntimeError(ErrorNumber::FileAccess, complaint);
}

QString Message(zip_error_t* error) {
    const QString message = QString::fromUtf8(zip_error_strerror(error));
    zip_error_fini(error);
    return message;
}

zip* OpenSource(zip_source_t* source, zip_error_t& error) {
    zip* const archive = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    if (!archive && source)
        zip_source_free(source);
    return archive;
}

template <class MakeSource> zip* Open(MakeSource makeSource) {
    zip_error_t error;
    zip_error_init(&error);
    zip* const archive = OpenSource(makeSource(&error), error);
    if (!archive)
        Fail(QStringLiteral("The zip file cannot be read: ") + Message(&error) + u'.');
    zip_error_fini(&error);
    return archive;
}

zip* OpenFile(const QString& path) {
    return Open([name = path.toUtf8()](zip_error_t* error) {
        return zip_source_file_create(name.constData(), 0, -1, error);
    });
}

zip* OpenContent(const QByteArray& content) {
    return Open([&content](zip_error_t* error) {
        return zip_source_buffer_create(content.constData(),
                                        static_cast<zip_uint64_t>(content.size()), 0, error);
    });
}

/// Appends what it reads. 0 at the end, negative where the member is damaged.
qint64 ReadChunk(zip_file_t* member, QByteArray& content) {
    const qsizetype before = content.size();
    content.resize(before + Chunk);
    const qint64 read = zip_fread(member, content.data() + before, Chunk);
    content.resize(before + std::max<qint64>(read, 0));
    return read;
}

using Member = std::unique_ptr<zip_file_t, int (*)(zip_file_t*)>;
} // namespace

bool ZipReader::IsZip(const QByteArray& start) {
    return start.startsWith("PK\x03\x04") || start.startsWith("PK\x05\x06");
}

ZipReader::ZipReader(const QString& path, Limits limits)
    : ZipReader(Archive(OpenFile(path), zip_discard), {}, limits) {}

ZipReader::ZipReader(const QByteArray& content, Limits limits)
    : ZipReader(Archive(OpenContent(content), zip_discard), content, limits) {}

ZipReader::ZipReader(Archive archive, QByteArray content, Limits limits)
    : content_(std::move(content))
    , archive_(std::move(archive))
    , limits_(limits) {
    ReadNames();
}

ZipReader::~ZipReader() = default;
ZipReader::ZipReader(ZipReader&&) noexcept = default;
ZipReader& ZipReader::operator=(ZipReader&&) noexcept = default;

void ZipReader::ReadNames() {
    const qint64 count = zip_get_num_entries(archive_.get(), 0);
    if (count > limits_.members)
        Fail(QStringLiteral("The zip file holds more than %1 files.").arg(limits_.members));
    for (qint64 i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(zip_get_name(archive_.get(), i, 0));
        if (name.isEmpty() || name.endsWith(u'/') || places_.contains(name))
            continue;
        names_ << name;
        places_[name] = i;
    }
}

QByteArray ZipReader::Read(const QString& name) {
    const qint64 place = places_.value(name, -1);
    zip_stat_t facts;
    zip_stat_init(&facts);
    const Member member(zip_fopen_index(archive_.get(), place, 0), zip_fclose);
    if (!member || zip_stat_index(archive_.get(), place, 0, &facts) != 0)
        Fail(name + " cannot be unpacked: " + zip_strerror(archive_.get()) + u'.');
    QByteArray content;
    while (const qint64 read = ReadChunk(member.get(), content)) {
        if (read < 0)
            Fail(name + " cannot be unpacked: the zip file is damaged.");
        total_ += read;
        RequireWithinLimits(name, content.size(), static_cast<qint64>(facts.comp_size));
    }
    return content;
}

void ZipReader::RequireWithinLimits(const QString& name, qint64 unpacked, qint64 packed) const {
    if (total_ > limits_.total)
        Fail(QStringLiteral("The zip file unpacks to more than %1 bytes.").arg(limits_.total));
    if (unpacked > LargeMember && unpacked / limits_.ratio > packed)
        Fail(QStringLiteral("%1 unpacks to more than %2 times its size.")
                 .arg(name)
                 .arg(limits_.ratio));
}
