#pragma once

#include <QList>
#include <QString>

struct NamedKey {
    QString name;
    qint32 key = 0;
};

/// Sorts names as a person looks them up: case does not matter, and an accented letter follows
/// directly after the plain one: apple, azuki, Äpfel, bean. The order is the same in every locale.
/// Equal names are in the order of their keys.
namespace NameOrder {
void Sort(QList<NamedKey>& keys);
} // namespace NameOrder
