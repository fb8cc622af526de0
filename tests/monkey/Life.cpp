#include "monkey/Life.h"

#include "monkey/KnownMessages.h"
#include "monkey/Monkey.h"
#include "monkey/Watchdog.h"
#include "network/Connections.h"

#include "core/Application.h"
#include "core/Flow.h"
#include "core/HeldRecords.h"
#include "core/Navigation.h"
#include "core/OpenURL.h"
#include "core/Screens.h"
#include "runtime/AppPath.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "runtime/Server.h"
#include "store/Connection.h"
#include "support/ServedSoup.h"

#include <QSettings>

#include <cstdio>
#include <cstdlib>

namespace {
const QDate FirstDay(2026, 11, 21);
}

Life::Life(Application& application, const QString& folder)
    : application_(application)
    , folder_(folder) {
    UseFolder();
    ServedSoup::TellSoup(exchange_);
    Server::SetAddress(exchange_.Address());
    SetBrowser([](const QUrl&) { return true; });
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    WatchSeams();
    Connections::Watch([this](const std::string& to) {
        if (!Connections::AreAskedFor())
            trail_.Report("nobody asked for a connection to " + QString::fromStdString(to));
    });
}

void Life::UseFolder() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_);
    SetApplicationPath(folder_);
    Clock::SetToday(FirstDay);
}

void Life::WatchSeams() {
    Seams& seams = TheSeams();
    seams.ShowAlert = [this, show = seams.ShowAlert](const QString& message, QObject* owner,
                                                     bool showCancel) {
        ++alerts_;
        if (!KnownMessages::HasAlert(message))
            trail_.Report("an unknown alert: " + message);
        return show(message, owner, showCancel);
    };
    seams.EndProcess = [this, end = seams.EndProcess](int exitCode) {
        UserDB().Close();
        FoodDB().Close();
        end(Close(exitCode));
    };
}

int Life::Run(quint32 seed, int inputs) {
    const Watchdog watchdog(trail_);
    const Monkey monkey(seed, inputs, trail_, rows_);
    const int exitCode = Flow::Main(application_.Instance());
    return Close(Flow::HasWindow() ? Application::exec() : exitCode);
}

int Life::Close(int exitCode) {
    rows_.CompareWith(folder_);
    std::printf("done %d %d %d\n", trail_.Done(), rows_.Changes(), alerts_);
    return trail_.Findings() > 0 ? EXIT_FAILURE : exitCode;
}
