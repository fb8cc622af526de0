#pragma once

#include "disk/DiskStep.h"

#include <QMap>
#include <QString>

#include <vector>

/// All files of a folder, with the folders in it, as they stand on the disk at one moment.
class DiskImage {
public:
    DiskImage();
    void Apply(const DiskStep& step);
    /// Replaces all that is in the folder.
    void PutInto(const QString& folder) const;

    qsizetype LengthOf(int file) const { return files_.value(file).bytes.size(); }
    /// Equal for equal names and bytes.
    size_t Hash() const { return HashOf(0); }

private:
    struct File {
        bool isFolder = false;
        QByteArray bytes;
        QMap<QByteArray, int> names; ///< of a folder
    };
    void Put(int number, const QString& path) const;
    size_t HashOf(int number) const;

    QMap<int, File> files_;
};

/// What a program did to the files of a folder.
struct DiskTrace {
    DiskImage before;
    std::vector<DiskStep> steps;
};
