#pragma once

#include <QTimer>

#include <atomic>
#include <thread>

class Trail;

/// Ends the process with a report if the event loop stands still: for over a second of its own
/// computing time, so that a busy machine is no fault of the program, or for a minute of anybody's.
class Watchdog {
public:
    explicit Watchdog(const Trail& trail);
    ~Watchdog();

private:
    void Beat();
    void Watch();
    void Bark(const char* what) const;

    const Trail& trail_;
    QTimer beats_;
    clockid_t clock_; ///< of the thread with the event loop
    std::atomic<qint64> beatAt_ = 0;
    std::atomic<int> silent_ = 0; ///< looks since the last beat
    std::atomic<bool> ends_ = false;
    std::thread thread_;
};
