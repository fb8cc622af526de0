#include "core/StartFailure.h"

#include "core/FailureText.h"
#include "runtime/Seams.h"
#include "store/StoreError.h"

#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

constexpr int lastSilentNumber = 400;
constexpr auto title = "Update to MDAC required";
constexpr auto text =
    "Halvane could not initialize. The most likely cause of this error is that your computer needs "
    "to be updated with the latest Microsoft Data Access Components (free from Microsoft).\n\n"
    "Please download and install this package from: ";

QString Address() {
    return QString::fromLatin1(StartFailure::downloadPage);
}

QString HelpText(const std::exception& error) {
    return Address() + "\n\n" + FailureText::Description(error) + "  " +
           QString::number(FailureText::Number(error));
}

/// The help button opens its text over the message and leaves the message standing.
void AddHelp(QMessageBox& box, const QString& help) {
    QPushButton* button = box.addButton(QMessageBox::Help);
    button->disconnect();
    QObject::connect(button, &QPushButton::clicked, &box, [&box, help] {
        QMessageBox(QMessageBox::Information, QLatin1String(title), help, QMessageBox::Ok, &box)
            .exec();
    });
}

/// What only the person can decide is told in words of its own.
void ShowChoice(const RuntimeError& error) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Halvane cannot start"),
                    error.Description(), QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void ShowMessage(const std::exception& error) {
    QMessageBox box(QMessageBox::NoIcon, QLatin1String(title), QLatin1String(text) + Address(),
                    QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(QMessageBox::Ok);
    AddHelp(box, HelpText(error));
    box.exec();
}

} // namespace

void StartFailure::Report(const std::exception& error, const QString& file) {
    const QString line = "halvane: could not start: " + file + ": " +
                         FailureText::Short(error).replace(QLatin1String("\n\n"), " ") + '\n';
    std::fputs(line.toLocal8Bit().constData(), stderr);
    if (FailureText::Number(error) <= lastSilentNumber)
        return;
    const auto* known = dynamic_cast<const RuntimeError*>(&error);
    if (known != nullptr && known->Number() == StoreError::JournalDoesNotFit)
        ShowChoice(*known);
    else
        ShowMessage(error);
    EndProcess(1);
}
