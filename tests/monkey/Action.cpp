#include "monkey/Action.h"

QString Action::Line() const {
    static constexpr const char* names[] = {"press", "key",   "text",  "drag",
                                            "move",  "wheel", "close", "wait"};
    return QStringLiteral("%1 %2 in \"%3\" over %4 at %5")
        .arg(QLatin1String(names[kind]), detail, window, screen, controls.join(u'/'));
}
