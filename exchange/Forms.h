#pragma once

#include "exchange/NoMail.h"
#include "exchange/ReportToken.h"
#include "exchange/Router.h"
#include "exchange/Service.h"

namespace exchange {

/// The two forms of the pages that change something: to report a recipe, and to have no more mails.
/// Nothing changes by a GET, as programs that test links make one.
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
