#pragma once

#include <QByteArray>
#include <QList>

/// The bytes of a zip file that holds these members, as other programs write them. A name that ends
/// with a slash is a folder.
QByteArray TestZip(const QList<std::pair<QByteArray, QByteArray>>& members);
