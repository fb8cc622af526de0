#include "Attacks.h"

#include "support/Cluster.h"
#include "support/RawClient.h"

#include "exchange/Connection.h"

#include <atomic>
#include <thread>

namespace Attacks {
namespace {
std::string From(int network, int host = 1) {
    return "127.9." + std::to_string(network) + "." + std::to_string(host);
}

/// Threads that do one thing again and again, each from an address of its own.
class Crowd {
public:
    using Step = std::function<void(const std::string& from)>;
    Crowd(int size, const Step& step) {
        for (int i = 0; i < size; ++i)
            threads_.emplace_back([this, step, from = From(i)] {
                while (!ending_)
                    step(from);
            });
    }
    ~Crowd() {
        ending_ = true;
        for (auto& thread : threads_)
            thread.join();
    }
    Crowd(const Crowd&) = delete;
    Crowd& operator=(const Crowd&) = delete;

private:
    std::atomic<bool> ending_ = false;
    std::vector<std::thread> threads_;
};

/// Connections that are open and do nothing.
using Held = std::vector<std::unique_ptr<RawClient>>;

std::string Ask(const Target& target, const std::string& from, const std::string& request) {
    RawClient client(target.port, from);
    client.Send(request);
    return client.ReadReply();
}

std::string Get(const std::string& path) {
    return "GET " + path + " HTTP/1.1\r\nHost: x\r\n\r\n";
}

std::string HeadOfPost(size_t length) {
    return "POST /halvane/api/recipes HTTP/1.1\r\nHost: x\r\nContent-Type: application/json\r\n"
           "Content-Length: " +
           std::to_string(length) + "\r\n\r\n";
}

std::string Post(const std::string& body) {
    return HeadOfPost(body.size()) + body;
}

std::string EmptyObjects() {
    std::string body = "[{}";
    while (body.size() + 4 < (1 << 20))
        body += ",{}";
    return body + "]";
}

const char* const Soup = R"({"RecipeName":"Soup","EMAILFROM":"a@example.org",)"
                         R"("EMAILTO":"b@example.org","ISPUBLIC":true})";

std::shared_ptr<void> Bodies(const Target& target) {
    return std::make_shared<Crowd>(16, [target, request = Post(EmptyObjects())](const auto& from) {
        Ask(target, from, request);
    });
}

std::shared_ptr<void> Sends(const Target& target) {
    return std::make_shared<Crowd>(8, [target](const std::string& from) {
        const auto reply = Ask(target, from, Post(Soup));
        const auto number = reply.find("\"RecipeID\":");
        if (number != std::string::npos)
            Ask(target, from,
                Get("/halvane/sendrecipe.asp?recID=" +
                    std::to_string(std::atoi(reply.c_str() + number + 11))));
    });
}

std::shared_ptr<void> Searches(const Target& target) {
    return std::make_shared<Crowd>(16, [target](const std::string& from) {
        Ask(target, from, Get("/halvane/community.asp?q=quick+sunday"));
    });
}

std::shared_ptr<void> Guesses(const Target& target) {
    return std::make_shared<Crowd>(16, [target](const std::string& from) {
        static std::atomic<int> next = 2'000'000'000;
        Ask(target, from, Get("/halvane/api/recipes/" + std::to_string(++next)));
    });
}

std::shared_ptr<void> Silence(const Target& target) {
    auto held = std::make_shared<Held>();
    for (int i = 0; i < 1500; ++i)
        held->push_back(std::make_unique<RawClient>(target.port, From(i % 16)));
    return held;
}

/// Another program holds the database's lock for writing, and many want to write.
struct BlockedWriter {
    explicit BlockedWriter(const Target& target)
        : holder(target.database)
        , held(holder)
        , crowd(16, [target](const std::string& from) { Ask(target, from, Post(Soup)); }) {
        holder.Change("UPDATE settings SET Value = Value");
    }
    exchange::Connection holder;
    exchange::Transaction held;
    Crowd crowd;
};

struct FrozenCluster {
    explicit FrozenCluster(const Target& target)
        : crowd(16, [target](const std::string& from) {
            Ask(target, from, Get("/halvane/community.asp"));
        }) {
        Cluster::One().Freeze();
    }
    ~FrozenCluster() { Cluster::One().Thaw(); }
    FrozenCluster(const FrozenCluster&) = delete;
    FrozenCluster& operator=(const FrozenCluster&) = delete;
    Crowd crowd;
};

template <class What> std::shared_ptr<void> Begin(const Target& target) {
    return std::make_shared<What>(target);
}
} // namespace

std::shared_ptr<void> HalfBodies(const Target& target) {
    const std::string half(1 << 19, ' ');
    auto held = std::make_shared<Held>();
    for (int i = 0; i < 1000; ++i) {
        held->push_back(std::make_unique<RawClient>(target.port, From(i % 20)));
        held->back()->Send(HeadOfPost(2 * half.size()));
        held->back()->Send(half);
    }
    return held;
}

std::vector<Attack> All(bool embedded) {
    std::vector<Attack> all = {
        {"bodies of empty objects", Bodies},
        {"sends while the relay is down", Sends},
        {"searches of two words that never meet", Searches},
        {"guesses of IDs", Guesses},
        {"1,500 silent connections", Silence},
        {"1,000 half-sent bodies", HalfBodies},
    };
    if (embedded)
        all.push_back({"a writer that another program blocks", Begin<BlockedWriter>});
    else
        all.push_back({"a database that is frozen", Begin<FrozenCluster>, false});
    return all;
}
} // namespace Attacks
