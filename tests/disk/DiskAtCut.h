#pragma once

#include "disk/DiskImage.h"

class QRandomGenerator;

/// The disk while a program works: what is safe, and what a power cut may still take. A file is
/// safe to the byte after a sync of it, and its name after a sync of its folder.
class DiskAtCut {
public:
    explicit DiskAtCut(DiskImage before)
        : safe_(std::move(before)) {}

    void Take(const DiskStep& step);

    /// After a kill: the system goes on, so every step reaches the disk.
    DiskImage AfterKill() const;
    /// After a power cut. Of the steps that are not safe some are lost. Writes reach the disk in
    /// any order, and each in sectors of 512 bytes. A file may have grown without its bytes.
    DiskImage AfterCut(QRandomGenerator& random) const;

private:
    DiskImage safe_;
    std::vector<DiskStep> unsafe_;
};
