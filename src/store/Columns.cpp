#include "store/Columns.h"

#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"

#include <cmath>

#include <sqlite3.h>

namespace {
/// Equal for names that differ only in case.
size_t NameHash(QStringView name) {
    size_t hash = static_cast<size_t>(name.size());
    for (const QChar character : name)
        hash = hash * 31 + character.toCaseFolded().unicode();
    return hash;
}

[[noreturn]] void Mismatch(const QString& name) {
    throw RuntimeError(
        ErrorNumber::TypeMismatch,
        QStringLiteral("Type mismatch: the value does not fit the column %1.").arg(name));
}

bool IsNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

double NumberOf(const QVariant& value, const QString& name) {
    if (value.typeId() == QMetaType::QString)
        return ToDouble(value.toString());
    if (!IsNumber(value))
        Mismatch(name);
    const double number = value.toDouble();
    if (!std::isfinite(number))
        throw RuntimeError(
            ErrorNumber::Overflow,
            QStringLiteral("Overflow: the column %1 holds finite numbers.").arg(name));
    return number;
}

QString TextOf(const QVariant& value, const QString& name) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Float:
    case QMetaType::Double:
        return DecimalText(value.toDouble());
    case QMetaType::QDate:
        return Dates::ShortText(value.toDate());
    default:
        if (!value.canConvert<QString>())
            Mismatch(name);
        return value.toString();
    }
}

/// -1 if it has anything but digits.
int WholeNumber(QStringView text) {
    int number = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return -1;
        number = number * 10 + digit.unicode() - u'0';
    }
    return number;
}

/// The general reader takes ten times as long for a date as the store writes it.
QDate StoredDate(const QString& text) {
    const QStringView view = text;
    if (view.size() != 10 || view[4] != u'-' || view[7] != u'-')
        return QDate::fromString(text, Qt::ISODate);
    const int year = WholeNumber(view.first(4));
    return year < 0 ? QDate()
                    : QDate(year, WholeNumber(view.sliced(5, 2)), WholeNumber(view.last(2)));
}

QDate DateOf(const QVariant& value, const QString& name) {
    if (value.typeId() == QMetaType::QString)
        return ToDate(value.toString());
    if (value.typeId() != QMetaType::QDate)
        Mismatch(name);
    return value.toDate();
}

bool BooleanOf(const QVariant& value, const QString& name) {
    const QString text = value.toString();
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    return NumberOf(value, name) != 0;
}

bool IsNull(const QVariant& value) {
    return !value.isValid() || (value.typeId() == QMetaType::QDate && value.toDate().isNull());
}
} // namespace

Columns::Columns(sqlite3_stmt* statement) {
    const int count = sqlite3_column_count(statement);
    columns_.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(sqlite3_column_name(statement, i));
        columns_.push_back(
            {name, TypeNamed(sqlite3_column_decltype(statement, i)), NameHash(name)});
    }
}

Columns::Type Columns::TypeNamed(const char* declared) {
    const auto name = QLatin1String(declared);
    if (name == QLatin1String("INTEGER"))
        return Type::Integer;
    if (name == QLatin1String("REAL"))
        return Type::Real;
    if (name == QLatin1String("TEXT"))
        return Type::Text;
    if (name == QLatin1String("DATE"))
        return Type::Date;
    return name == QLatin1String("BOOLEAN") ? Type::Boolean : Type::Any;
}

int Columns::Find(QStringView name) const {
    const size_t hash = NameHash(name);
    for (int i = 0; i < Count(); ++i) {
        const Column& column = columns_[static_cast<size_t>(i)];
        if (column.hash == hash &&
            (name == column.name || name.compare(column.name, Qt::CaseInsensitive) == 0))
            return i;
    }
    return -1;
}

QVariant Columns::Stored(int position, const QVariant& value) const {
    if (IsNull(value))
        return {};
    const auto& [name, type, hash] = columns_[static_cast<size_t>(position)];
    switch (type) {
    case Type::Integer:
        return Round(NumberOf(value, name));
    case Type::Real:
        return NumberOf(value, name);
    case Type::Text:
        return TextOf(value, name);
    case Type::Date:
        return DateOf(value, name).toString(Qt::ISODate);
    case Type::Boolean:
        return BooleanOf(value, name) ? 1 : 0;
    default:
        return IsNumber(value) ? value : QVariant(TextOf(value, name));
    }
}

QVariant Columns::Read(int position, const QVariant& stored) const {
    const Type type = columns_[static_cast<size_t>(position)].type;
    if (type == Type::Boolean && IsNumber(stored))
        return stored.toDouble() != 0;
    if (type == Type::Real && IsNumber(stored)) // a whole number may come back as one
        return stored.toDouble();
    if (type == Type::Date && stored.typeId() == QMetaType::QString) {
        const QDate date = StoredDate(stored.toString());
        return date.isValid() ? QVariant(date) : stored;
    }
    return stored;
}
