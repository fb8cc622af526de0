#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "runtime/StartSettings.h"

#include <QDir>

namespace {
constexpr qsizetype LongestValue = 255;

QStringList Values() {
    QStringList values;
    for (const Setting* setting : Settings::All)
        values << GetRegValue(*setting);
    return values;
}

void ExpectSound(const QStringList& values) {
    for (const QString& value : values)
        Expect(value.size() <= LongestValue && !value.contains(QChar::Null));
}

void ExpectAllowed(const AppInfo& info) {
    Expect(info.OSVERSION == 2 && info.HELPPATH.endsWith(QDir::separator()) && !info.SHOWCUECARDS);
}
} // namespace

/// Whatever the file of the settings holds, the program starts with allowed values, and to write
/// one setting loses no other.
void Fuzz(const std::string& bytes) {
    QDir().mkpath(Scratch::Path(QStringLiteral("Brindlewick")));
    Scratch::Write(QStringLiteral("Brindlewick/HALVANE.ini"), QByteArray::fromStdString(bytes));
    QStringList values = Values();
    ExpectSound(values);
    AppInfo info;
    StartSettings::ReadFirst(info);
    StartSettings::ReadRest(info);
    ExpectAllowed(info);
    SetRegValue(Settings::Fast, QStringLiteral("True"));
    const QStringList after = Values();
    Expect(after.sliced(1) == values.sliced(1));
    Expect(after.first() == QStringLiteral("True") || after.first() == values.first());
}
