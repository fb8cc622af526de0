#include "commands/Session.h"

#include "model/Profiles.h"
#include "records/OwnRecords.h"
#include "runtime/RuntimeError.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {
void Require(const std::ostream& out) {
    if (!out)
        throw RuntimeError(ErrorNumber::FileAccess,
                           QStringLiteral("Standard output cannot be written."));
}
} // namespace

Session::Session(std::ostream& out, std::ostream& error, std::istream* keyboard)
    : out_(out)
    , error_(error)
    , keyboard_(keyboard) {}

RecordsFolder Session::Records() const {
    return folder.empty() ? OwnRecords().Ready() : RecordsFolder(QString::fromStdString(folder));
}

void Session::ChooseProfile() const {
    const QString wanted = QString::fromStdString(profile);
    const auto person = wanted.isEmpty() ? Profiles::First() : Profiles::Find(wanted);
    if (!person)
        throw RuntimeError(ErrorNumber::NoCurrentRecord,
                           wanted.isEmpty()
                               ? QStringLiteral("There is no profile in these records.")
                               : "There is no profile \"" + wanted + "\".");
    User::Current() = *person;
}

void Session::Write(std::string_view bytes) const {
    Require(out_.write(bytes.data(), std::streamsize(bytes.size())));
}

void Session::Flush() const {
    Require(out_.flush());
}

void Session::Print(const QString& line) const {
    out_ << line.toStdString() << '\n';
}

void Session::Print(const QJsonObject& facts) const {
    out_ << QJsonDocument(facts).toJson().toStdString();
}

void Session::Tell(const QString& line) const {
    error_ << "halvane-data: " << line.toStdString() << '\n';
}

int Session::Refuse(const QString& line) const {
    Tell(line);
    return Usage;
}

std::optional<QString> Session::Ask(const QString& question) const {
    std::string answer;
    error_ << question.toStdString() << std::flush;
    if (!std::getline(*keyboard_, answer)) {
        error_ << '\n';
        return {};
    }
    return QString::fromStdString(answer).trimmed();
}

int Session::Run() const {
    try {
        return command_();
    } catch (const RuntimeError& failure) {
        Tell(failure.Description());
        return Cannot;
    }
}
