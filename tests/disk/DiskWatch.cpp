#include "disk/DiskWatch.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <atomic>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {
std::atomic<DiskWatch*> current = nullptr;

QByteArray FolderOf(QByteArrayView path) {
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : path.first(std::max<qsizetype>(slash, 1)).toByteArray();
}
} // namespace

DiskWatch::DiskWatch(const QString& folder) {
    struct stat file;
    EXPECT_EQ(stat(QFile::encodeName(folder).constData(), &file), 0);
    device_ = file.st_dev;
    numbers_[file.st_ino] = next_++;
    TakeIn(folder);
    EXPECT_EQ(current.exchange(this), nullptr);
}

DiskWatch::~DiskWatch() {
    current = nullptr;
}

DiskWatch* DiskWatch::Current() {
    return current;
}

/// What was there before.
void DiskWatch::TakeIn(const QString& path) {
    for (const QFileInfo& info :
         QDir(path).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        Created(QFile::encodeName(info.filePath()).constData());
        if (info.isDir()) {
            TakeIn(info.filePath());
            continue;
        }
        QFile file(info.filePath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        Record({.kind = DiskStep::Write, .file = next_ - 1, .bytes = file.readAll()});
    }
}

void DiskWatch::Mark() {
    const std::lock_guard turn(turn_);
    Record({.kind = DiskStep::Mark});
}

void DiskWatch::Plan(const DiskFault& fault) {
    fault_ = fault;
    calls_ = 0;
}

int DiskWatch::NumberOf(const struct stat& file) const {
    const auto known = numbers_.find(file.st_ino);
    return file.st_dev != device_ || known == numbers_.end() ? -1 : known->second;
}

int DiskWatch::NumberOf(const char* path) const {
    struct stat file;
    return stat(path, &file) == 0 ? NumberOf(file) : -1;
}

int DiskWatch::NumberOf(int descriptor) const {
    struct stat file;
    return fstat(descriptor, &file) == 0 ? NumberOf(file) : -1;
}

DiskName DiskWatch::NameOf(const char* path) const {
    const QByteArrayView whole(path);
    return {NumberOf(FolderOf(whole).constData()),
            whole.sliced(whole.lastIndexOf('/') + 1).toByteArray()};
}

bool DiskWatch::Knows(int descriptor) const {
    const std::lock_guard turn(turn_);
    return NumberOf(descriptor) >= 0;
}

bool DiskWatch::Knows(const char* path) const {
    const std::lock_guard turn(turn_);
    return NameOf(path).folder >= 0;
}

int DiskWatch::Refusal(DiskCall call) {
    if (!fault_)
        return 0;
    const FaultInfo& info = Info(fault_->kind);
    if (std::ranges::count(info.calls, call) == 0 || ++calls_ < fault_->at)
        return 0;
    const bool first = calls_ == fault_->at;
    shortens_ = first && fault_->kind == FaultKind::ShortWrite;
    return shortens_ || !(first || fault_->lasts) ? 0 : info.number;
}

size_t DiskWatch::Length(size_t asked) {
    return std::exchange(shortens_, false) ? std::max<size_t>(asked / 2, 1) : asked;
}

/// Those that were there before the watch began are safe.
void DiskWatch::Record(DiskStep step) {
    if (Current() == nullptr)
        trace_.before.Apply(step);
    else
        trace_.steps.push_back(std::move(step));
}

void DiskWatch::Written(int descriptor, off_t at, const void* bytes, size_t count) {
    Record({.kind = DiskStep::Write,
            .file = NumberOf(descriptor),
            .at = at,
            .bytes = QByteArray(static_cast<const char*>(bytes), qsizetype(count))});
}

void DiskWatch::Resized(int descriptor, off_t length) {
    Record({.kind = DiskStep::Resize, .file = NumberOf(descriptor), .at = length});
}

void DiskWatch::Resized(const char* path, off_t length) {
    Record({.kind = DiskStep::Resize, .file = NumberOf(path), .at = length});
}

void DiskWatch::Synced(int descriptor) {
    Record({.kind = DiskStep::Sync, .file = NumberOf(descriptor)});
}

void DiskWatch::Created(const char* path) {
    struct stat file;
    if (stat(path, &file) != 0)
        return;
    numbers_[file.st_ino] = next_++;
    Linked(path);
}

void DiskWatch::Linked(const char* path) {
    struct stat file;
    if (stat(path, &file) == 0)
        Record({.kind = DiskStep::Enter,
                .file = NumberOf(file),
                .to = NameOf(path),
                .isFolder = S_ISDIR(file.st_mode)});
}

void DiskWatch::Left(const char* path) {
    Record({.kind = DiskStep::Leave, .from = NameOf(path)});
}

void DiskWatch::Moved(const char* from, const char* to) {
    struct stat file;
    if (stat(to, &file) == 0)
        Record({.kind = DiskStep::Move,
                .file = NumberOf(file),
                .from = NameOf(from),
                .to = NameOf(to),
                .isFolder = S_ISDIR(file.st_mode)});
}

void DiskWatch::Ended(ino_t number) {
    numbers_.erase(number);
}
