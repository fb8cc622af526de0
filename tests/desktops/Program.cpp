#include "desktops/Program.h"

#include "desktops/Patience.h"
#include "drawing/Twips.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QSettings>

Program::Program(const QString& folder)
    : folder_(folder) {
    for (const char* name : {"run", "config/Brindlewick"})
        QDir().mkpath(Path(name));
    QFile::setPermissions(Path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (const char* name : {"tips.txt", "agreement.txt"})
        QFile::copy(Places::Build(QStringLiteral("/delivered/")) + name, Path(name));
    QFile::copy(Places::Build(QStringLiteral("/src/halvane")), Path("halvane"));
    SetPlace({});
}

QString Program::Path(const char* name) const {
    return folder_ + u'/' + QLatin1String(name);
}

void Program::SetPlace(QPoint place) const {
    QSettings settings(Path("config/Brindlewick/HALVANE.ini"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("EULA"), QStringLiteral("YES"));
    settings.setValue(QStringLiteral("UISTYLE"), QStringLiteral("LIGHT"));
    settings.setValue(QStringLiteral("UILEFT"), QString::number(Twips::FromPixels(place.x())));
    settings.setValue(QStringLiteral("UITOP"), QString::number(Twips::FromPixels(place.y())));
}

QPoint Program::Place() const {
    const QSettings settings(Path("config/Brindlewick/HALVANE.ini"), QSettings::IniFormat);
    return {Twips::ToPixels(settings.value(QStringLiteral("UILEFT")).toInt()),
            Twips::ToPixels(settings.value(QStringLiteral("UITOP")).toInt())};
}

QProcessEnvironment Program::Environment(QProcessEnvironment platform) const {
    platform.insert(QStringLiteral("XDG_CONFIG_HOME"), Path("config"));
    platform.insert(QStringLiteral("XDG_DATA_HOME"), Path("data"));
    platform.insert(QStringLiteral("HOME"), folder_);
    platform.insert(QStringLiteral("XDG_RUNTIME_DIR"), Path("run"));
    // Without an address each program could start a bus of its own, which would stay.
    platform.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    return platform;
}

void Program::Start(const QProcessEnvironment& platform) {
    process_.setProcessEnvironment(Environment(platform));
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(Path("halvane"), QStringList());
}

bool Program::EndedWell() const {
    return !Runs() && process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
}

bool Program::StartAgain(const QProcessEnvironment& platform) const {
    QProcess second;
    second.setProcessEnvironment(Environment(platform));
    second.start(Path("halvane"), QStringList());
    return second.waitForFinished(LongestWait) && second.exitCode() == 0;
}
