#pragma once

#include "core/SingleInstance.h"

#include <QApplication>

#include <exception>

/// The application object. Every failure that no routine handles ends in its `notify`: a message
/// says what failed, then the process ends. Whatever was committed before stays.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    SingleInstance& Instance() { return instance_; }
    bool notify(QObject* receiver, QEvent* event) override;

private:
    void Fail(const std::exception& error);
    [[noreturn]] void EndNow(int exitCode);

    SingleInstance instance_;
    bool failing_ = false;
};
