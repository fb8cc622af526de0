// The calls of the system that change files. Defined in the program itself, they are used by every
// library in the place of the system's own. They do what the system does, and tell DiskWatch.

#include "disk/DiskWatch.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

// The definitions of the system call the functions of 64 bits by both names.
static_assert(sizeof(off_t) == sizeof(off64_t));

namespace {
template <class Function> Function* System(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Runs a call on a descriptor or a path. `done` gets the result of one that succeeded.
template <class Place, class Call, class Done>
auto Watched(DiskCall kind, Place place, Call call, Done done) -> decltype(call()) {
    DiskWatch* watch = DiskWatch::Current();
    if (watch == nullptr || !watch->Knows(place))
        return call();
    const std::lock_guard turn(watch->Turn());
    if (const int refusal = watch->Refusal(kind); refusal != 0) {
        errno = refusal;
        return -1;
    }
    const auto result = call();
    if (result >= 0)
        done(*watch, result);
    return result;
}

constexpr auto Nothing = [](DiskWatch&, auto) {};

size_t LengthOf(int file, size_t asked) {
    DiskWatch* watch = DiskWatch::Current();
    return watch != nullptr && watch->Knows(file) ? watch->Length(asked) : asked;
}

/// Not every file system has files without a name: callers then make one with a name.
bool AsksForNoName(const char* folder, int flags) {
    DiskWatch* watch = DiskWatch::Current();
    return (flags & O_TMPFILE) == O_TMPFILE && watch != nullptr &&
           watch->Knows((std::string(folder) + "/.").c_str());
}

/// A file that is there already is opened, or made empty; otherwise it is made.
int OpenWatched(const char* path, int flags, mode_t mode) {
    static auto* const system = System<int(const char*, int, ...)>("open64");
    if (AsksForNoName(path, flags)) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const bool isThere = access(path, F_OK) == 0;
    const bool makes = (flags & O_CREAT) != 0 && !isThere;
    return Watched(
        makes ? DiskCall::Create : DiskCall::Open, path, [&] { return system(path, flags, mode); },
        [&](DiskWatch& watch, int file) {
            if (makes)
                watch.Created(path);
            else if ((flags & O_TRUNC) != 0)
                watch.Resized(file, 0);
        });
}

mode_t ModeOf(int flags, va_list more) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(more, mode_t) : 0;
}

/// The call writes at the place where the descriptor stands.
template <class Call> ssize_t WriteOn(int file, const void* bytes, size_t count, Call call) {
    return Watched(
        DiskCall::Write, file, [&] { return call(LengthOf(file, count)); },
        [&](DiskWatch& watch, ssize_t written) {
            const off_t end = lseek(file, 0, SEEK_CUR);
            watch.Written(file, end - written, bytes, size_t(written));
        });
}

ssize_t WriteAt(int file, const void* bytes, size_t count, off_t at) {
    static auto* const system = System<ssize_t(int, const void*, size_t, off_t)>("pwrite64");
    return Watched(
        DiskCall::Write, file, [&] { return system(file, bytes, LengthOf(file, count), at); },
        [&](DiskWatch& watch, ssize_t written) {
            watch.Written(file, at, bytes, size_t(written));
        });
}

ssize_t ReadAt(int file, void* bytes, size_t count, off_t at) {
    static auto* const system = System<ssize_t(int, void*, size_t, off_t)>("pread64");
    return Watched(
        DiskCall::Read, file, [&] { return system(file, bytes, count, at); }, Nothing);
}

int Resize(int file, off_t length) {
    static auto* const system = System<int(int, off_t)>("ftruncate64");
    return Watched(
        DiskCall::Resize, file, [&] { return system(file, length); },
        [&](DiskWatch& watch, int) { watch.Resized(file, length); });
}

int Resize(const char* path, off_t length) {
    static auto* const system = System<int(const char*, off_t)>("truncate64");
    return Watched(
        DiskCall::Resize, path, [&] { return system(path, length); },
        [&](DiskWatch& watch, int) { watch.Resized(path, length); });
}

/// The system copies within itself; its callers go on by writing where it does not.
template <class Call> ssize_t CopyWithin(int to, Call call) {
    DiskWatch* watch = DiskWatch::Current();
    if (watch == nullptr || !watch->Knows(to))
        return call();
    errno = EINVAL;
    return -1;
}

template <class Call> int SyncWith(int file, Call call) {
    return Watched(DiskCall::Sync, file, call, [&](DiskWatch& watch, int) { watch.Synced(file); });
}

/// What ends if the path loses its name: a file may have another one.
ino_t EndingWith(const char* path) {
    struct stat file;
    const bool isThere = lstat(path, &file) == 0;
    return isThere && (file.st_nlink == 1 || S_ISDIR(file.st_mode)) ? file.st_ino : 0;
}

template <class Call> int LeaveWith(const char* path, Call call) {
    const ino_t ended = EndingWith(path);
    return Watched(DiskCall::Leave, path, call, [&](DiskWatch& watch, int) {
        watch.Left(path);
        watch.Ended(ended);
    });
}

template <class Call> int MoveWith(const char* from, const char* to, Call call) {
    const ino_t replaced = EndingWith(to);
    return Watched(DiskCall::Enter, to, call, [&](DiskWatch& watch, int) {
        watch.Moved(from, to);
        watch.Ended(replaced);
    });
}

template <class Call> int LinkWith(const char* to, Call call) {
    return Watched(DiskCall::Enter, to, call, [&](DiskWatch& watch, int) { watch.Linked(to); });
}
} // namespace

extern "C" {
int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = ModeOf(flags, more);
    va_end(more);
    return OpenWatched(path, flags, mode);
}

int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t read(int file, void* bytes, size_t count) {
    static auto* const system = System<ssize_t(int, void*, size_t)>("read");
    return Watched(
        DiskCall::Read, file, [&] { return system(file, bytes, count); }, Nothing);
}

ssize_t pread(int file, void* bytes, size_t count, off_t at) {
    return ReadAt(file, bytes, count, at);
}

ssize_t pread64(int file, void* bytes, size_t count, off64_t at) {
    return ReadAt(file, bytes, count, at);
}

ssize_t write(int file, const void* bytes, size_t count) {
    static auto* const system = System<ssize_t(int, const void*, size_t)>("write");
    return WriteOn(file, bytes, count, [&](size_t length) { return system(file, bytes, length); });
}

/// Callers go on with what was not written, so the first piece that is not empty is a short write
/// to them.
ssize_t writev(int file, const iovec* pieces, int count) {
    static auto* const system = System<ssize_t(int, const iovec*, int)>("writev");
    const DiskWatch* watch = DiskWatch::Current();
    if (watch == nullptr || !watch->Knows(file))
        return system(file, pieces, count);
    const auto* const first =
        std::find_if(pieces, pieces + count, [](const iovec& piece) { return piece.iov_len > 0; });
    return first == pieces + count ? 0 : write(file, first->iov_base, first->iov_len);
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t at) {
    return WriteAt(file, bytes, count, at);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) {
    return WriteAt(file, bytes, count, at);
}

ssize_t sendfile(int to, int from, off_t* at, size_t count) noexcept {
    static auto* const system = System<ssize_t(int, int, off_t*, size_t)>("sendfile");
    return CopyWithin(to, [&] { return system(to, from, at, count); });
}

ssize_t copy_file_range(int from, off64_t* at, int to, off64_t* toAt, size_t count,
                        unsigned flags) {
    static auto* const system =
        System<ssize_t(int, off64_t*, int, off64_t*, size_t, unsigned)>("copy_file_range");
    return CopyWithin(to, [&] { return system(from, at, to, toAt, count, flags); });
}

int ftruncate(int file, off_t length) noexcept {
    return Resize(file, length);
}

int ftruncate64(int file, off64_t length) noexcept {
    return Resize(file, length);
}

int truncate(const char* path, off_t length) noexcept {
    return Resize(path, length);
}

int truncate64(const char* path, off64_t length) noexcept {
    return Resize(path, length);
}

int fsync(int file) {
    static auto* const system = System<int(int)>("fsync");
    return SyncWith(file, [&] { return system(file); });
}

int fdatasync(int file) {
    static auto* const system = System<int(int)>("fdatasync");
    return SyncWith(file, [&] { return system(file); });
}

int unlink(const char* path) noexcept {
    static auto* const system = System<int(const char*)>("unlink");
    return LeaveWith(path, [&] { return system(path); });
}

int remove(const char* path) noexcept {
    static auto* const system = System<int(const char*)>("remove");
    return LeaveWith(path, [&] { return system(path); });
}

int rmdir(const char* path) noexcept {
    static auto* const system = System<int(const char*)>("rmdir");
    return LeaveWith(path, [&] { return system(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    static auto* const system = System<int(const char*, mode_t)>("mkdir");
    return Watched(
        DiskCall::Create, path, [&] { return system(path, mode); },
        [&](DiskWatch& watch, int) { watch.Created(path); });
}

int rename(const char* from, const char* to) noexcept {
    static auto* const system = System<int(const char*, const char*)>("rename");
    return MoveWith(from, to, [&] { return system(from, to); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    static auto* const system =
        System<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return MoveWith(from, to, [&] { return system(fromFolder, from, toFolder, to, flags); });
}

int link(const char* from, const char* to) noexcept {
    static auto* const system = System<int(const char*, const char*)>("link");
    return LinkWith(to, [&] { return system(from, to); });
}
}
