#pragma once

#include "exchange/NoMail.h"
#include "exchange/ReportToken.h"
#include "exchange/Router.h"
#include "exchange/Service.h"

namespace exchange {

/// The two forms that change something: one reports a recipe, one stops the mails to an address. A
/// GET changes nothing, since programs that test links send one.
class Forms {
public:
    static constexpr size_t Largest = size_t{16} * 1024; ///< a form that is filled in, in bytes

    explicit Forms(const Service& service)
        : service_(service)
        , noMail_(service.secret)
        , reportToken_(service.secret) {}
    void AddTo(Router& router);

private:
    void TakeReport(const Ask& ask, Reply& reply) const;
    void KeepReport(const Ask& ask, int id, const Request& form) const;
    void ShowNoMail(const Ask& ask, Reply& reply) const;
    void TakeNoMail(const Ask& ask, Reply& reply) const;

    const Service& service_;
    NoMail noMail_;
    ReportToken reportToken_;
};

} // namespace exchange
