#pragma once

#include <QSaveFile>

#include <string_view>

/// A file that is written for the user. It appears under its name when it is whole: a failure
/// leaves what was there before. Each failure is a RuntimeError that names the file.
class OutputFile {
public:
    explicit OutputFile(const QString& path);

    void Write(std::string_view bytes);
    void Keep(); ///< the file is whole; without this call it never appears

private:
    [[noreturn]] void Fail() const;

    QSaveFile file_;
};
