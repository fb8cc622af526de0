#pragma once

/// A port of the loopback for a program that cannot tell which one it took. It is held without
/// listening: the system gives it to nobody else, and the program can listen at it, since a server
/// binds with SO_REUSEADDR.
class Port {
public:
    Port();
    ~Port();
    Port(const Port&) = delete;
    Port& operator=(const Port&) = delete;
    int Number() const { return number_; }

private:
    int socket_;
    int number_ = 0;
};
