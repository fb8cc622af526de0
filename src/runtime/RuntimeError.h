#pragma once

#include <QString>

#include <exception>

/// The only exception type of the program.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString description);

    int Number() const { return number_; }
    const QString& Description() const { return description_; }
    const char* what() const noexcept override { return text_.constData(); }

private:
    int number_;
    QString description_;
    QByteArray text_;
};

/// Every error number that the program raises or tests. A failure inside the store has the negative
/// of its result code.
namespace ErrorNumber {
inline constexpr int RefusedStatement = -1;
inline constexpr int NoSuchKey = 5; ///< of a keyed collection
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int NoSuchPosition = 9; ///< of a list
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAccess = 75;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int NoSuchElement = 340; ///< of a control array
inline constexpr int ServiceFailed = 429; ///< a remote service: not reached, or not as agreed
inline constexpr int NoSuchMember = 438;
inline constexpr int KeyInUse = 457; ///< of a keyed collection
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int CannotBeChanged = 3251; ///< a result set that is not the rows of one table
inline constexpr int NoSuchColumn = 3265;
inline constexpr int JournalDoesNotFit = 3343; ///< only the user can decide: the text is for them
inline constexpr int RecordsInUse = 3356;      ///< another program writes: the text is for the user
inline constexpr int NotOpen = 3704;           ///< a connection or a result set
} // namespace ErrorNumber
