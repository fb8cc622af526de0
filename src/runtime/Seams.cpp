#include "runtime/Seams.h"

#include <cstdio>
#include <cstdlib>

Seams& TheSeams() {
    static Seams seams;
    return seams;
}

bool ShowAlert(const QString& message, QObject* owner, bool showCancel) {
    const auto& seam = TheSeams().ShowAlert;
    return seam && seam(message, owner, showCancel);
}

QObject* ShowScreen(const QString& screen) {
    const auto& seam = TheSeams().ShowScreen;
    return seam ? seam(screen) : nullptr;
}

QObject* LoadScreen(const QString& screen) {
    const auto& seam = TheSeams().LoadScreen;
    return seam ? seam(screen) : nullptr;
}

void ShowHome() {
    if (const auto& seam = TheSeams().ShowHome)
        seam();
}

void EndProcess(int exitCode) {
    if (const auto& seam = TheSeams().EndProcess)
        return seam(exitCode);
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
