#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

/// The tips that are delivered in tips.txt, one a line; each start shows the next one.
namespace Tips {
/// The lines of a text, whichever line ends it has. What follows the last line end counts as a line
/// only where it holds something.
QList<QByteArrayView> Lines(QByteArrayView text);

/// The tip after the one shown last, the first after the last; remembers its number. Fails with 53
/// where there is no file and with 9 where it holds no line.
QString Next();
} // namespace Tips
