#pragma once

#include "exchange/NoMail.h"
#include "exchange/RecipeStore.h"
#include "exchange/Router.h"
#include "exchange/Service.h"

#include <string>

namespace exchange {

/// /halvane/sendrecipe.asp: makes a recipe readable and puts its mail into the outbox, once, and
/// says in a sentence what has come of it. The sentence is for the sender and never begins with
/// `<`.
class Sending {
public:
    explicit Sending(const Service& service)
        : service_(service)
        , noMail_(service.secret) {}
    void AddTo(Router& router);

private:
    struct Outcome {
        int status;
        std::string sentence;
    };

    Outcome Send(int id, const Visitor& visitor) const;
    Outcome SendUnfinished(Connection& connection, int id, const RecipeStore::State& state,
                           const Visitor& visitor) const;
    std::string WhyNoMail(Connection& connection, const std::string& to) const;
    Outcome Complete(Connection& connection, int id, const std::string& to,
                     const Visitor& visitor) const;
    bool CompleteWithMail(Connection& connection, int id, const Visitor& visitor) const;
    bool CompleteAlone(Connection& connection, int id) const;
    static Outcome AlreadySent(int id);
    bool MayMail(Connection& connection, const std::string& to, const Visitor& visitor) const;

    const Service& service_;
    NoMail noMail_;
};

} // namespace exchange
