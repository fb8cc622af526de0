#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

/// One value of the current row, which any tool may have written. Null is null.
///
/// Number, Integer, Boolean and Date are for what must be there: they fail with 94 on null and with
/// 13 on text that is no number. What a screen shows is read by the others, which never fail, so
/// that no row keeps a screen from opening.
class Field {
public:
    Field(QString name, QVariant value)
        : name_(std::move(name))
        , value_(std::move(value)) {}
    const QString& Name() const { return name_; }
    const QVariant& Value() const { return value_; }
    bool IsNull() const;
    QString Text() const;   ///< empty for null
    double Number() const;  ///< strict
    qint32 Integer() const; ///< rounded half to even
    bool Boolean() const;
    QDate Date() const;
    /// The given number for null and for what is no number; finite in any case.
    double NumberOr(double) const;
    qint32 WholeOr(qint32) const; ///< the same, rounded for display
    QDate Day() const;            ///< invalid for all but a date as the store writes it
    bool IsKey() const;           ///< a whole number of 32 bits, as every key of ours is

private:
    QString name_;
    QVariant value_;
};
