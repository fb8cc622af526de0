#include "exchange/Turns.h"

#include <boost/asio/post.hpp>

namespace exchange {
namespace {
constexpr int AtATime = 8;
}

void Turns::Enter(Timer& bell) {
    bell.expires_at(Timer::time_point::max());
    waiting_.push_back(&bell);
    if (!giving_)
        GiveLater();
}

void Turns::Leave(Timer& bell) {
    std::erase(waiting_, &bell);
    bell.cancel();
}

void Turns::Give() {
    for (int i = 0; i < AtATime && !waiting_.empty(); ++i) {
        waiting_.front()->cancel();
        waiting_.pop_front();
    }
    giving_ = false;
    if (!waiting_.empty())
        GiveLater();
}

void Turns::GiveLater() {
    giving_ = true;
    boost::asio::post(waiting_.front()->get_executor(), [this] { Give(); });
}

} // namespace exchange
