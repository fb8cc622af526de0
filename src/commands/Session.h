#pragma once

#include "records/RecordsFolder.h"

#include <QDate>
#include <QString>

#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

class QJsonObject;

/// What the program ends with; scripts rely on these.
enum ExitCode {
    Done = 0,
    Found = 1,  ///< a check has found something, or some rows were refused
    Usage = 2,  ///< unknown command, option or value
    Cannot = 3, ///< what was asked for failed; nothing was changed
};

/// One run of halvane-data: the options that all commands share, and where they print.
class Session {
public:
    /// `keyboard` is where a person can answer questions; null where nobody can.
    Session(std::ostream& out, std::ostream& error, std::istream* keyboard = nullptr);

    std::string folder;  ///< of the records; empty: those of the person who runs the program
    std::string profile; ///< name or key of a person; empty: the first one
    bool json = false;   ///< facts are printed as JSON

    RecordsFolder Records() const;
    /// Makes the person whom `profile` names the current user. Fails if nobody has that name.
    void ChooseProfile() const;

    void Write(std::string_view bytes) const; ///< as they are; fails if they cannot be written
    void Flush() const;                       ///< the same for bytes that are held back
    void Print(const QString& line) const;
    void Print(const QJsonObject& facts) const; ///< indented, with a line end
    void Tell(const QString& line) const;       ///< on standard error, after the program's name
    int Refuse(const QString& line) const;      ///< tells why a value is not accepted; gives Usage

    bool CanAsk() const { return keyboard_ != nullptr && !json; }
    /// Asks on standard error. Null: the person has ended the input.
    std::optional<QString> Ask(const QString& question) const;

    /// What the chosen command does. It gives the exit code and runs once all options are read.
    void Do(std::function<int()> command) { command_ = std::move(command); }
    int Run() const; ///< a failure is told, and gives Cannot

private:
    std::ostream& out_;
    std::ostream& error_;
    std::istream* keyboard_;
    std::function<int()> command_;
};
