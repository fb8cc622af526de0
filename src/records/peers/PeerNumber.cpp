#include "records/peers/PeerNumber.h"

#include "runtime/Convert.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

namespace {
constexpr qsizetype GroupLength = 3;

bool IsUnknown(QStringView text) {
    return text.isEmpty() || text.compare(u"n/a", Qt::CaseInsensitive) == 0;
}

/// Between thousands there are groups of three digits: "1,020.5" is one number, "1,5" is none.
bool AreThousands(const QList<QStringView>& groups) {
    return std::all_of(groups.begin() + 1, groups.end(),
                       [](QStringView group) { return group.size() == GroupLength; });
}

[[noreturn]] void Refuse(QStringView text) {
    throw RuntimeError(ErrorNumber::TypeMismatch, u'"' + text.left(40) + "\" is not a number.");
}

QString WithoutThousands(QStringView text, QStringView whole, QChar thousands) {
    if (!AreThousands(whole.split(thousands)))
        Refuse(text);
    return whole.toString().remove(thousands);
}
} // namespace

std::optional<double> PeerNumber::Read(QStringView text, const NumberFormat& format) {
    const QStringView number = text.trimmed();
    if (IsUnknown(number))
        return std::nullopt;
    const qsizetype point = number.indexOf(format.decimal);
    QString plain = number.left(point < 0 ? number.size() : point).toString();
    if (!format.thousands.isNull())
        plain = WithoutThousands(number, plain, format.thousands);
    if (plain.contains(u'.') || plain.contains(u','))
        Refuse(number);
    if (point >= 0)
        plain += u'.' + number.mid(point + 1);
    return ToDouble(plain);
}
