#include "core/Tips.h"

#include "core/TextFile.h"
#include "runtime/Convert.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

namespace {

/// The number of the next of `count` tips. The stored number may be any text.
qint32 NextNumber(qsizetype count) {
    const double last = qMax(0.0, NumberOrZero(GetRegValue(Settings::TipNumber)));
    const double next = last + 1;
    return next > double(count) ? 1 : Round(next);
}

} // namespace

QList<QByteArrayView> Tips::Lines(QByteArrayView text) {
    QList<QByteArrayView> lines;
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != '\n' && text[at] != '\r')
            continue;
        lines << text.sliced(start, at - start);
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n')
            ++at;
        start = at + 1;
    }
    if (start < text.size())
        lines << text.sliced(start);
    return lines;
}

Tips::Tip Tips::Next() {
    const QByteArray text = TextFile::ReadBeside(QStringLiteral("tips.txt"));
    const QList<QByteArrayView> lines = Lines(text);
    const qint32 number = NextNumber(lines.size());
    if (number > lines.size())
        throw RuntimeError(ErrorNumber::NoSuchPosition, QStringLiteral("the file holds no tip"));
    return {number, QString::fromUtf8(lines[number - 1])};
}

void Tips::Remember(const Tip& tip) {
    SetRegValue(Settings::TipNumber, QString::number(tip.number));
}
