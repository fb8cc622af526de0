#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

/// A value of the current row. Null stays null. The conversions fail with 94 on null, and with 13
/// on text that is not a number.
class Field {
public:
    Field(QString name, QVariant value)
        : name_(std::move(name))
        , value_(std::move(value)) {}
    const QString& Name() const { return name_; }
    const QVariant& Value() const { return value_; }
    bool IsNull() const;
    QString Text() const;          ///< empty for null
    double Number() const;         ///< strict
    double NumberOr(double) const; ///< the given number for null
    qint32 Integer() const;        ///< rounded half to even
    bool Boolean() const;
    QDate Date() const;

private:
    QString name_;
    QVariant value_;
};
