#include "fuzz/Target.h"

#include "exchange/NetworkAddress.h"

/// What is a network address has one way to be written, and is in each of its networks.
void Fuzz(const std::string& bytes) {
    exchange::Network::Read(bytes);
    const auto address = exchange::NetworkAddress::ReadForwarded(bytes);
    if (!address)
        return;
    Expect(exchange::NetworkAddress::Read(address->Written()) == address);
    for (const auto& name : address->Networks()) {
        const auto network = exchange::Network::Read(name);
        Expect(network && network->Has(*address));
    }
}
