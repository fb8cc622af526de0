#include "records/Disk.h"

#include "runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {
std::filesystem::path PathOf(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

[[noreturn]] void Fail(const QString& path, const QString& why) {
    throw RuntimeError(
        ErrorNumber::FileAccess,
        QStringLiteral("%1 cannot be written: %2.").arg(QDir::toNativeSeparators(path), why));
}

void Require(const std::error_code& failure, const QString& path) {
    if (failure)
        Fail(path, QString::fromLocal8Bit(failure.message().c_str()));
}

#ifdef Q_OS_WIN
bool SyncNow(const QString& path) {
    if (QFileInfo(path).isDir())
        return true; // the system keeps the names itself
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && _commit(file.handle()) == 0;
}
#else
bool SyncNow(const QString& path) {
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool synced = fsync(file) == 0 || errno == EINVAL; // some disks know no sync of a folder
    close(file);
    return synced;
}
#endif
} // namespace

void Disk::MakeFolder(const QString& path) {
    std::error_code failure;
    std::filesystem::create_directory(PathOf(path), failure);
    Require(failure, path);
}

/// Where a folder cannot be synced, what is in it is still of use.
void Disk::MakeFolders(const QString& path) {
    const QFileInfo folder(path);
    if (folder.isDir())
        return;
    MakeFolders(folder.path());
    MakeFolder(path);
    SyncNow(folder.path());
}

void Disk::Copy(const QString& from, const QString& to) {
    std::error_code failure;
    std::filesystem::copy_file(PathOf(from), PathOf(to),
                               std::filesystem::copy_options::overwrite_existing, failure);
    Require(failure, to);
    if (QFileInfo(from).size() != QFileInfo(to).size()) // the library misses a disk that gets full
        Fail(to, QStringLiteral("the disk has taken a part of it only"));
}

void Disk::LinkOrCopy(const QString& from, const QString& to) {
    std::error_code failure;
    std::filesystem::create_hard_link(PathOf(from), PathOf(to), failure);
    if (failure)
        Copy(from, to);
}

void Disk::Move(const QString& from, const QString& to) {
    std::error_code failure;
    std::filesystem::rename(PathOf(from), PathOf(to), failure);
    Require(failure, to);
}

void Disk::Remove(const QString& path) {
    std::error_code failure;
    std::filesystem::remove(PathOf(path), failure);
    Require(failure, path);
}

void Disk::RemoveFolder(const QString& path) {
    if (!QDir(path).removeRecursively())
        Fail(path, QStringLiteral("it cannot be removed"));
}

void Disk::Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        Fail(path, file.errorString());
}

void Disk::Sync(const QString& path) {
    if (!SyncNow(path))
        Fail(path, QString::fromLocal8Bit(strerror(errno)));
}
