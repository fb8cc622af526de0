#pragma once

#include <QList>
#include <QString>

struct NamedKey {
    QString name;
    qint32 key = 0;
};

/// The order in which a person looks names up: capitals make no difference, and an accented letter
/// comes directly behind its plain one: apple, azuki, Äpfel, bean. It is the same for every
/// language of the system. Equal names keep their order.
namespace NameOrder {
void Sort(QList<NamedKey>& keys);
} // namespace NameOrder
