#pragma once

#include "exchange/NoMail.h"
#include "exchange/Outbox.h"
#include "exchange/Service.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace exchange {

/// Takes mails out of the outbox and hands them to the relay, a few at a time. If the relay does
/// not take a mail, it tries again after growing pauses, for two days. Without a relay it does
/// nothing.
class Postman {
public:
    explicit Postman(const Service& service);
    ~Postman(); ///< breaks off running deliveries; they are tried again later
    Postman(const Postman&) = delete;
    Postman& operator=(const Postman&) = delete;

private:
    void Run();
    bool Pause();
    bool DeliverNext();
    Mailer::Result HandOver(const Outbox::Entry& entry) const;
    void Note(const Outbox::Entry& entry, Mailer::Result result);
    void NoteOnce(const Outbox::Entry& entry, Mailer::Result result) const;

    const Service& service_;
    NoMail noMail_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::atomic<bool> ending_ = false;
    std::vector<std::thread> threads_;
};

} // namespace exchange
