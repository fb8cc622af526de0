#pragma once

#include "core/SingleInstance.h"

#include <QApplication>

#include <exception>

/// The application object. Its `notify` is where every failure ends that no routine has handled: a
/// message says what failed, then the process ends. What was committed before stays.
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
