#include "core/Community.h"

#include "core/OpenURL.h"
#include "runtime/Server.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QUuid>

QString Community::InstallationID() {
    const QUuid stored = QUuid::fromString(GetRegValue(Settings::Installation));
    if (!stored.isNull())
        return stored.toString(QUuid::WithoutBraces);
    QString made = QUuid::createUuid().toString(QUuid::WithoutBraces);
    SetRegValue(Settings::Installation, made);
    return made;
}

QString Community::Address() {
    return Server::Address() + "/halvane/community.asp?uid=" + InstallationID();
}

void Community::Open() {
    OpenURL(Address());
}
