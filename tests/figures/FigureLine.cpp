#include "figures/FigureLine.h"

#include <cstdio>

FigureLine::FigureLine(const char* what)
    : line_(what) {}

FigureLine::~FigureLine() {
    std::puts(line_.c_str());
}

FigureLine& FigureLine::operator<<(double figure) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", figure);
    return *this << text;
}

FigureLine& FigureLine::operator<<(int figure) {
    return *this << qint64(figure);
}

FigureLine& FigureLine::operator<<(qint64 figure) {
    return *this << std::to_string(figure).c_str();
}

FigureLine& FigureLine::operator<<(std::optional<double> figure) {
    return figure ? *this << *figure : *this << "";
}

FigureLine& FigureLine::operator<<(const QString& text) {
    return *this << text.toUtf8().constData();
}

FigureLine& FigureLine::operator<<(const char* text) {
    line_ += '\t';
    line_ += text;
    return *this;
}
