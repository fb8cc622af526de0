#pragma once

#include <QByteArrayList>
#include <QDate>

#include <optional>

/// A line of the file of cases: fields between tabs, the first of which says what the line is.
class CaseLine {
public:
    explicit CaseLine(const QByteArray& line);

    QByteArray Kind() const { return fields_.first(); }
    QString Text(int field) const { return QString::fromUtf8(fields_.at(field)); }
    std::optional<QString> Known(int field) const; ///< nothing where the field is empty
    int Whole(int field) const { return fields_.at(field).toInt(); }
    bool Flag(int field) const { return Whole(field) != 0; }
    double Number(int field) const { return fields_.at(field).toDouble(); }
    std::optional<double> NumberIfKnown(int field) const;
    QDate Day(int field) const { return QDate::fromString(Text(field), Qt::ISODate); }

private:
    QByteArrayList fields_;
};
