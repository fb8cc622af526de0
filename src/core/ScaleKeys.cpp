#include "core/ScaleKeys.h"

#include "core/WindowScale.h"
#include "core/frmHOME.h"

#include <QScreen>
#include <QShortcut>

namespace {

QString Percent(int scale) {
    return QString::number(scale) + " %";
}

void Keep(frmHOME& frame, int scale) {
    WindowScale::Keep(scale);
    const bool stays = scale == WindowScale::Started();
    frame.Tell(stays ? QString("The size stays at " + Percent(scale))
                     : QString("The size will be " + Percent(scale) + " from the next start"));
}

void Enlarge(frmHOME& frame) {
    const int kept = WindowScale::Stored();
    const int larger = WindowScale::Larger(kept);
    const int fitting = WindowScale::LargestThatFits(frame.size(), frame.screen()->availableSize(),
                                                     WindowScale::Started());
    if (larger == kept)
        frame.Tell(Percent(kept) + " is the largest size");
    else if (larger > fitting)
        frame.Tell(Percent(larger) + " does not fit this screen");
    else
        Keep(frame, larger);
}

void Reduce(frmHOME& frame) {
    const int kept = WindowScale::Stored();
    if (kept == WindowScale::Normal)
        frame.Tell(Percent(kept) + " is the smallest size");
    else
        Keep(frame, WindowScale::Smaller(kept));
}

void UseNormal(frmHOME& frame) {
    Keep(frame, WindowScale::Normal);
}

struct KeyRow {
    Qt::Key key;
    void (*act)(frmHOME& frame);
};

/// On many keyboards plus is on the key of the equals sign.
constexpr KeyRow KeyRows[] = {{Qt::Key_Plus, Enlarge},
                              {Qt::Key_Equal, Enlarge},
                              {Qt::Key_Minus, Reduce},
                              {Qt::Key_0, UseNormal}};

} // namespace

void ScaleKeys::AddTo(frmHOME& frame) {
    for (const KeyRow& row : KeyRows)
        QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | row.key), &frame),
                         &QShortcut::activated, &frame, [&frame, &row] { row.act(frame); });
}
