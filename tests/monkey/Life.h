#pragma once

#include "monkey/RowWatch.h"
#include "monkey/Trail.h"

#include "support/ScriptedServer.h"

#include <QString>

class Application;

/// One start of the program in this process, used by a monkey until it ends.
class Life {
public:
    Life(Application& application, const QString& folder);
    int Run(quint32 seed, int inputs); ///< 0 if nothing was found

private:
    void UseFolder();
    void WatchSeams();
    int Close(int exitCode); ///< compares the files with the model and tells what was done

    Application& application_;
    QString folder_;
    ScriptedServer exchange_;
    Trail trail_;
    RowWatch rows_{trail_};
    int alerts_ = 0;
};
