#pragma once

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>

/// When the window is painted and no events are left, prints the resident memory in KiB and quits.
class ReportFirstPaint : public QObject {
public:
    ReportFirstPaint(QWidget* window, void (*quit)())
        : quit_(quit) {
        window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !painted_) {
            painted_ = true;
            QTimer::singleShot(0, this, &ReportFirstPaint::End);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static long ResidentKiB() {
        QFile status(QStringLiteral("/proc/self/status"));
        if (!status.open(QIODevice::ReadOnly))
            return 0;
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmRSS:"))
                return line.mid(6).trimmed().split(' ').first().toLong();
        return 0;
    }

    void End() {
        std::printf("%ld\n", ResidentKiB());
        std::fflush(stdout);
        quit_();
    }

    void (*quit_)();
    bool painted_ = false;
};
