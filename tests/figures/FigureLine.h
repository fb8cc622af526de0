#pragma once

#include <QString>

#include <optional>
#include <string>

/// A line of figures on standard output: what they are, then each one after a tab. A number has 17
/// significant digits, so that two of them are equal to the last bit if their texts are. The line
/// is written when the object ends.
class FigureLine {
public:
    explicit FigureLine(const char* what);
    ~FigureLine();
    FigureLine(const FigureLine&) = delete;
    FigureLine& operator=(const FigureLine&) = delete;

    FigureLine& operator<<(double figure);
    FigureLine& operator<<(int figure);
    FigureLine& operator<<(qint64 figure);
    FigureLine& operator<<(std::optional<double> figure); ///< nothing is an empty field
    FigureLine& operator<<(const QString& text);
    FigureLine& operator<<(const char* text);

private:
    std::string line_;
};
