#include "monkey/Session.h"

#include "model/Profiles.h"
#include "records/RecordsCheck.h"
#include "records/RecordsFolder.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "support/Places.h"
#include "support/SamplePerson.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSettings>

#include <cstdio>

namespace {

constexpr int Lives = 5;
constexpr int Inputs = 400;
constexpr int WithPerson = 85; ///< percent of the sessions; the others begin with a first start
constexpr const char* TextSizes[] = {"72", "96", "120", "144", "192"}; ///< dots per inch
constexpr const char* Scales[] = {"1", "1", "1.25", "2"};
const QDate LastDay(2027, 11, 21); ///< beyond every midnight that passes in a session

Session::Tally total;

/// The search logs a quantity below zero as it was typed.
bool IsOfTheQuantity(const Finding& finding) {
    return finding.problem == u"have an impossible quantity" ||
           finding.problem == u"have impossible amounts";
}

} // namespace

const Session::Tally& Session::Total() {
    return total;
}

Session::Session(quint32 seed)
    : seed_(seed)
    , random_(seed) {
    LayOut();
}

void Session::LayOut() {
    for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
        QFile::copy(Places::Build(QStringLiteral("/delivered/")) + QLatin1String(name),
                    folder_.filePath(QLatin1String(name)));
    if (random_.bounded(100) < WithPerson)
        AddPerson();
}

void Session::AddPerson() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    SetRegValue(Settings::Agreement, QStringLiteral("YES"));
    UserDB().Open(folder_.filePath(QStringLiteral("users.mdb")), DatabaseKind::Users);
    Profiles::Append(SamplePerson(QStringLiteral("Tom")));
    UserDB().Close();
}

bool Session::Run() {
    bool sound = true;
    for (int life = 0; life < Lives && sound; ++life)
        sound = Live(life) && IsSound();
    if (!sound)
        std::printf("in the session with the seed %u\n", seed_);
    return sound;
}

bool Session::Live(int life) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* place : {"HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QLatin1String(place), folder_.path());
    environment.insert(QStringLiteral("QT_FONT_DPI"),
                       TextSizes[random_.bounded(int(std::size(TextSizes)))]);
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"),
                       Scales[random_.bounded(int(std::size(Scales)))]);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--live"), folder_.path(), QString::number(random_.generate()),
                   QString::number(Inputs)});
    process.waitForFinished(-1);
    const QByteArray said = process.readAll();
    Count(said);
    ++total.lives;
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    if (!crashed && process.exitCode() == 0)
        return true;
    std::printf("%s%s in start %d\n", said.constData(),
                crashed ? "finding: the program crashed" : "found", life + 1);
    return false;
}

void Session::Count(const QByteArray& said) {
    for (const QByteArray& line : said.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 4 || words[0] != "done")
            continue;
        total.inputs += words[1].toInt();
        total.changes += words[2].toInt();
        total.alerts += words[3].toInt();
    }
}

bool Session::IsSound() const {
    const RecordsCheck check(RecordsFolder(folder_.path()), LastDay);
    QList<Finding> findings = check.Findings();
    findings.removeIf(IsOfTheQuantity);
    for (const Finding& finding : std::as_const(findings))
        std::printf("finding: %s\n", qUtf8Printable(finding.Line()));
    return findings.isEmpty();
}
