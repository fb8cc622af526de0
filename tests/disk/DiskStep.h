#pragma once

#include <QByteArray>

#include <cstdint>

/// A name in a folder. Files and folders have numbers; the watched folder is 0.
struct DiskName {
    int folder = 0;
    QByteArray name;
};

/// One change that the program asked of the disk, or a moment in between.
struct DiskStep {
    enum Kind {
        Write,  ///< `bytes` at `at`
        Resize, ///< the file is `at` bytes long
        Enter,  ///< the file gets the name `to`
        Leave,  ///< the name `from` is gone
        Move,   ///< the file has the name `to` in the place of `from`
        Sync,   ///< what was asked of this file or folder before is safe
        Mark,   ///< something was acknowledged
    };
    Kind kind = Mark;
    int file = 0;
    int64_t at = 0;
    QByteArray bytes = {};
    DiskName from = {};
    DiskName to = {};
    bool isFolder = false;
};
