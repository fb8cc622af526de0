#include "disk/DiskImage.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {
void Overwrite(QByteArray& bytes, const DiskStep& step) {
    const auto end = qsizetype(step.at) + step.bytes.size();
    if (bytes.size() < end)
        bytes.resize(end, '\0');
    std::copy(step.bytes.begin(), step.bytes.end(), bytes.begin() + step.at);
}
} // namespace

DiskImage::DiskImage() {
    files_[0].isFolder = true;
}

void DiskImage::Apply(const DiskStep& step) {
    switch (step.kind) {
    case DiskStep::Write:
        return Overwrite(files_[step.file].bytes, step);
    case DiskStep::Resize:
        return files_[step.file].bytes.resize(qsizetype(step.at), '\0');
    case DiskStep::Leave:
        files_[step.from.folder].names.remove(step.from.name);
        return;
    case DiskStep::Move:
        files_[step.from.folder].names.remove(step.from.name);
        [[fallthrough]];
    case DiskStep::Enter:
        files_[step.to.folder].names[step.to.name] = step.file;
        files_[step.file].isFolder = step.isFolder;
        return;
    case DiskStep::Sync:
    case DiskStep::Mark:
        return;
    }
}

void DiskImage::PutInto(const QString& folder) const {
    QDir(folder).removeRecursively();
    Put(0, folder);
}

void DiskImage::Put(int number, const QString& path) const {
    const File file = files_.value(number);
    if (file.isFolder) {
        ASSERT_TRUE(QDir().mkpath(path)) << path.toStdString();
        for (auto [name, inside] : file.names.asKeyValueRange())
            Put(inside, path + u'/' + QFile::decodeName(name));
        return;
    }
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::WriteOnly)) << path.toStdString();
    written.write(file.bytes);
}

size_t DiskImage::HashOf(int number) const {
    const File file = files_.value(number);
    size_t hash = qHash(file.bytes, size_t(file.isFolder));
    for (auto [name, inside] : file.names.asKeyValueRange())
        hash = qHashMulti(hash, name, HashOf(inside));
    return hash;
}
