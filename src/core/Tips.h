#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

/// The tips of tips.txt, one on each line. Each start shows the next one.
namespace Tips {
/// The lines of a text with any line ends. Text after the last line end counts as a line if there
/// is any.
QList<QByteArrayView> Lines(QByteArrayView text);

struct Tip {
    qint32 number = 0;
    QString text;
};

/// The one after the tip that was remembered last; the first one follows the last. Fails with 53
/// without a file and with 9 if the file is empty.
Tip Next();
/// Waits for the disk. Any thread may do so.
void Remember(const Tip& tip);
} // namespace Tips
