#pragma once

#include <QSaveFile>

#include <string_view>

/// A file that a command writes. It appears under its name when it is whole: a failure leaves
/// what was there before.
class OutputFile {
public:
    explicit OutputFile(const std::string& path); ///< fails where it cannot be written

    void Write(std::string_view bytes);
    void Keep(); ///< fails where the disk is full

private:
    [[noreturn]] void Fail() const;

    QSaveFile file_;
};
