#include "core/StartFailure.h"

#include "core/Appearance.h"
#include "core/FailureText.h"
#include "records/Snapshots.h"
#include "records/SoundRecords.h"
#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"

#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

constexpr int LastSilentNumber = 400;
constexpr auto Title = "Update to MDAC required";
constexpr auto Text =
    "Halvane could not initialize. The most likely cause of this error is that your computer needs "
    "to be updated with the latest Microsoft Data Access Components (free from Microsoft).\n\n"
    "Please download and install this package from: ";

QString Address() {
    return QString::fromLatin1(StartFailure::DownloadPage);
}

QString HelpText(const std::exception& error) {
    return Address() + "\n\n" + FailureText::Description(error) + "  " +
           QString::number(FailureText::Number(error));
}

/// The help button shows its text over the message; the message stays open.
void AddHelp(QMessageBox& box, const QString& help) {
    QPushButton* button = box.addButton(QMessageBox::Help);
    button->disconnect();
    QObject::connect(button, &QPushButton::clicked, &box, [&box, help] {
        QMessageBox(QMessageBox::Information, QLatin1String(Title), help, QMessageBox::Ok, &box)
            .exec();
    });
}

/// A case that only the user can decide has its own message.
bool IsForTheUser(int number) {
    return number == ErrorNumber::JournalDoesNotFit || number == ErrorNumber::RecordsInUse;
}

/// How the user brings back a missing or damaged file. Empty for any other failure, or if there is
/// no sound snapshot.
QString Rescue(const RuntimeError* error) {
    const RecordsFolder records(RecordsPath());
    if (error == nullptr || IsForTheUser(error->Number()) ||
        !SoundRecords::MeansDamage(*error, records))
        return {};
    const Snapshots snapshots(records);
    const auto sound = snapshots.NewestSound();
    if (!sound)
        return {};
    return QStringLiteral(
               "The newest sound snapshot is of %1: %2.\n\nThis command brings it back:\n\n"
               "halvane-data restore %3")
        .arg(sound->When(), sound->counts.Text(), QString::number(snapshots.NumberOf(*sound)));
}

void ShowChoice(const QString& text) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Halvane cannot start"), text,
                    QMessageBox::Ok);
    box.setObjectName(QStringLiteral("frmStartFailure"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void ShowMessage(const std::exception& error) {
    QMessageBox box(QMessageBox::NoIcon, QLatin1String(Title), QLatin1String(Text) + Address(),
                    QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(QMessageBox::Ok);
    AddHelp(box, HelpText(error));
    box.exec();
}

void PrintLine(QString text) {
    text = text.replace(QLatin1String("\n\n"), QLatin1String(" ")).trimmed();
    std::fputs(("halvane: could not start: " + text + u'\n').toLocal8Bit().constData(), stderr);
}

} // namespace

void StartFailure::Report(const std::exception& error, const QString& step) {
    const auto* known = dynamic_cast<const RuntimeError*>(&error);
    const QString rescue = Rescue(known);
    PrintLine(step + ": " + FailureText::Short(error) + u' ' + rescue);
    Appearance::Take();
    if (!rescue.isEmpty())
        return ShowChoice(known->Description() + "\n\n" + rescue);
    if (FailureText::Number(error) <= LastSilentNumber)
        return;
    if (IsForTheUser(FailureText::Number(error)))
        ShowChoice(FailureText::Description(error));
    else
        ShowMessage(error);
    EndProcess(1);
}
