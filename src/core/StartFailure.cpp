#include "core/StartFailure.h"

#include "core/FailureText.h"
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
void ShowChoice(const RuntimeError& error) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Halvane cannot start"),
                    error.Description(), QMessageBox::Ok);
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

} // namespace

void StartFailure::Report(const std::exception& error, const QString& step) {
    const QString line = "halvane: could not start: " + step + ": " +
                         FailureText::Short(error).replace(QLatin1String("\n\n"), " ") + '\n';
    std::fputs(line.toLocal8Bit().constData(), stderr);
    if (FailureText::Number(error) <= LastSilentNumber)
        return;
    const auto* known = dynamic_cast<const RuntimeError*>(&error);
    if (known != nullptr && known->Number() == ErrorNumber::JournalDoesNotFit)
        ShowChoice(*known);
    else
        ShowMessage(error);
    EndProcess(1);
}
