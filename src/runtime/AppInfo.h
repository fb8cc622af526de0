#pragma once

#include <QString>

/// The settings that the program consults while it runs, read at start.
struct AppInfo {
    bool FAST = false;          ///< keep screens loaded when leaving them
    bool LIMITRESULTS = false;  ///< draw at most 50 lines of a list
    qint32 OSVERSION = 0;       ///< platform family; text is smoothed from 2 up
    bool AUTOUPDATERDI = false; ///< recompute targets on weighing in
    QString HELPPATH;           ///< folder of the help pages, ending in a separator
    qint32 UITOP = 0;           ///< last position of the frame, in twips
    qint32 UILEFT = 0;
    bool SHOWDROPSHADOWS = false; ///< read at start, consulted nowhere
    bool SHOWCUECARDS = false;    ///< cleared at start, consulted nowhere
};
