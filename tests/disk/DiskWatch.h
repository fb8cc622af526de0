#pragma once

#include "disk/DiskFault.h"
#include "disk/DiskImage.h"

#include <mutex>
#include <optional>
#include <unordered_map>

#include <sys/types.h>

struct stat;

/// Sees, while it lives, each call of this process that concerns the files in a folder: those of
/// SQLite, of Qt and of the standard library. It records the changes, and lets calls fail.
/// SystemCalls.cpp calls it. At most one lives at a time.
class DiskWatch {
public:
    explicit DiskWatch(const QString& folder);
    ~DiskWatch();
    DiskWatch(const DiskWatch&) = delete;
    DiskWatch& operator=(const DiskWatch&) = delete;
    static DiskWatch* Current();

    void Mark(); ///< something was acknowledged
    const DiskTrace& Trace() const { return trace_; }

    void Plan(const DiskFault& fault);
    int Calls() const { return calls_; } ///< that could fail in the planned way

    // For the system calls. A path counts if its folder is watched.
    bool Knows(int descriptor) const;
    bool Knows(const char* path) const;
    std::recursive_mutex& Turn() { return turn_; }
    int Refusal(DiskCall call);  ///< the error number; 0: the call may go on
    size_t Length(size_t asked); ///< what a write may write of it

    void Written(int descriptor, off_t at, const void* bytes, size_t count);
    void Resized(int descriptor, off_t length);
    void Resized(const char* path, off_t length);
    void Synced(int descriptor);
    void Created(const char* path); ///< a new file or folder
    void Linked(const char* path);
    void Left(const char* path);
    void Moved(const char* from, const char* to);
    /// The system gives its number to another file, perhaps to one outside the folder.
    void Ended(ino_t number);

private:
    int NumberOf(const struct stat& file) const; ///< -1 if it is not watched
    int NumberOf(const char* path) const;
    int NumberOf(int descriptor) const;
    DiskName NameOf(const char* path) const;
    void Record(DiskStep step);
    void TakeIn(const QString& path);

    dev_t device_ = 0;
    std::unordered_map<ino_t, int> numbers_;
    int next_ = 0;
    DiskTrace trace_;
    std::optional<DiskFault> fault_;
    int calls_ = 0;
    bool shortens_ = false;
    mutable std::recursive_mutex turn_;
};
