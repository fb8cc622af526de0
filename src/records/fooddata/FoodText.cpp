#include "records/fooddata/FoodText.h"

#include "runtime/Convert.h"

#include <QRegularExpression>

QString FoodText::Allowed(const QString& text) {
    static const QRegularExpression about(QStringLiteral("~(?=\\d)"));
    static const QRegularExpression unreadable(QStringLiteral("[\\x{FFFD}\\x{0}-\\x{1F}]"));
    QString allowed = text;
    allowed.replace(about, QStringLiteral("about "));
    allowed.replace(unreadable, QStringLiteral(" "));
    allowed.replace(u'"', QChar(0x201D)).replace(u'~', u'-').replace(u'^', u'-');
    return allowed.simplified();
}

QString FoodText::WithAmount(const QString& serving, double amount, const QString& unit) {
    const QString weight = DecimalText(amount) + u' ' + unit;
    return serving.isEmpty() ? weight : serving + u" (" + weight + u')';
}
