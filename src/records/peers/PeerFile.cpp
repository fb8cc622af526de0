#include "records/peers/PeerFile.h"

#include "records/archive/ZipReader.h"
#include "records/peers/Imported.h"
#include "runtime/RuntimeError.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace {
constexpr qint64 LargestWhole = 128 << 20;

std::unique_ptr<QIODevice> Opened(std::unique_ptr<QIODevice> device, const QString& name) {
    if (!device->open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileAccess,
                           name + " cannot be read: " + device->errorString() + u'.');
    return device;
}

bool IsData(const QString& member) {
    return member.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive) ||
           member.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

void AddMembers(const QString& path, std::vector<PeerFile>& files, Imported& into) {
    ZipReader zip(path);
    for (const QString& member : zip.Names()) {
        const QString name = QFileInfo(path).fileName() + ": " + member;
        if (IsData(member))
            files.push_back({name, {}, zip.Read(member), true});
        else
            into.LeaveOut({name, {}, {}}, QStringLiteral("It is neither CSV nor JSON."));
    }
}
} // namespace

std::unique_ptr<QIODevice> PeerFile::Open() const {
    if (!isMember)
        return Opened(std::make_unique<QFile>(path), name);
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(content);
    return Opened(std::move(buffer), name);
}

QByteArray PeerFile::ReadAll() const {
    const auto device = Open();
    const QByteArray all = device->read(LargestWhole + 1);
    if (all.size() > LargestWhole)
        throw RuntimeError(ErrorNumber::FileAccess,
                           name + QStringLiteral(" is larger than %1 bytes.").arg(LargestWhole));
    return all;
}

std::vector<PeerFile> PeerFile::Of(const QStringList& paths, Imported& into) {
    std::vector<PeerFile> files;
    for (const QString& path : paths) {
        const PeerFile file{QFileInfo(path).fileName(), path, {}, false};
        if (ZipReader::IsZip(file.Open()->read(4)))
            AddMembers(path, files, into);
        else
            files.push_back(file);
    }
    return files;
}
