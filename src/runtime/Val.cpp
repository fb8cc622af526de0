#include "runtime/Val.h"

#include "runtime/NumberText.h"

#include <QString>

#include <cmath>

namespace {
bool IsSkipped(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

QString WithoutBlanks(QStringView text) {
    QString kept = text.toString();
    kept.removeIf(IsSkipped);
    return kept;
}
} // namespace

double Val(QStringView text) {
    const QString packed = WithoutBlanks(text);
    const QStringView number = QStringView(packed).left(NumberText::LeadingLength(packed));
    const double value = NumberText::Value(number);
    return std::isfinite(value) ? value : 0;
}
