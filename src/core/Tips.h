#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

/// The tips of tips.txt, one on each line. Each start shows the next one.
namespace Tips {
/// The lines of a text with any line ends. Text after the last line end counts as a line if there
/// is any.
QList<QByteArrayView> Lines(QByteArrayView text);

/// The next tip; the first one follows the last. Remembers its number. Fails with 53 without a file
/// and with 9 if the file is empty.
QString Next();
} // namespace Tips
