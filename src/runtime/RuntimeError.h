#pragma once

#include <QString>

#include <exception>

/// The one exception type of the program.
/// Positive numbers are failures of run-time services, negative ones come from the store.
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

/// Numbers of the run-time failures.
namespace ErrorNumber {
inline constexpr int Overflow = 6;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int NoSuchElement = 340; ///< of a control array
inline constexpr int ServiceFailed = 429; ///< a remote service: not reached, or not as agreed
inline constexpr int NoSuchMember = 438;
inline constexpr int NoCurrentRecord = 3021;
} // namespace ErrorNumber
