#include "network/Connections.h"

#include "toolkit/MousePointer.h"

#include <QApplication>
#include <QWidget>

#include <mutex>

#include <arpa/inet.h>
#include <dlfcn.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {

std::mutex& Turn() {
    static std::mutex turn;
    return turn;
}

Connections::Watcher& TheWatcher() {
    static Connections::Watcher watcher;
    return watcher;
}

/// The platform looks for printers there when a preview opens.
bool IsPrintService(const std::string& to) {
    return to == "127.0.0.1:631" || to == "[::1]:631";
}

void Tell(const std::string& to) {
    if (IsPrintService(to))
        return;
    const std::scoped_lock lock(Turn());
    if (TheWatcher())
        TheWatcher()(to);
}

template <class Address> std::string Text(int family, const Address& address, in_port_t port) {
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop(family, &address, text, sizeof text);
    const std::string host = family == AF_INET6 ? '[' + std::string(text) + ']' : text;
    return host + ':' + std::to_string(ntohs(port));
}

void TellOf(const sockaddr* to) {
    if (to == nullptr)
        return;
    if (to->sa_family == AF_INET) {
        const auto* v4 = reinterpret_cast<const sockaddr_in*>(to);
        Tell(Text(AF_INET, v4->sin_addr, v4->sin_port));
    } else if (to->sa_family == AF_INET6) {
        const auto* v6 = reinterpret_cast<const sockaddr_in6*>(to);
        Tell(Text(AF_INET6, v6->sin6_addr, v6->sin6_port));
    }
}

template <class Function> Function* Original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

void Connections::Watch(Watcher watcher) {
    const std::scoped_lock lock(Turn());
    TheWatcher() = std::move(watcher);
}

bool Connections::AreAskedFor() {
    const QWidget* dialog = QApplication::activeModalWidget();
    const bool isExchange =
        dialog && (dialog->objectName() == u"frmImport" || dialog->objectName() == u"frmSend");
    return isExchange && MousePointer::IsBusy();
}

extern "C" {

int connect(int descriptor, const sockaddr* to, socklen_t length) {
    TellOf(to);
    return Original<decltype(connect)>("connect")(descriptor, to, length);
}

ssize_t sendto(int descriptor, const void* bytes, size_t count, int flags, const sockaddr* to,
               socklen_t length) {
    TellOf(to);
    return Original<decltype(sendto)>("sendto")(descriptor, bytes, count, flags, to, length);
}

int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found) {
    Tell(name == nullptr ? "" : name);
    return Original<decltype(getaddrinfo)>("getaddrinfo")(name, service, hints, found);
}

} // extern "C"
