#pragma once

#include "exchange/ReportToken.h"
#include "exchange/Router.h"
#include "exchange/Service.h"

namespace exchange {

/// The pages for a browser, and the two addresses by which the server is watched.
class Site {
public:
    explicit Site(const Service& service)
        : service_(service)
        , reportToken_(service.secret) {}
    void AddTo(Router& router);

    /// A page below / and a JSON reason below /halvane/api/.
    static void Fail(const Request& request, Reply& reply, int status, const std::string& reason);

private:
    void AddPages(Router& router);
    void AddFiles(Router& router);
    void AddWatches(Router& router);
    void Community(const Ask& ask, Reply& reply) const;
    void RecipePage(const Ask& ask, Reply& reply) const;

    const Service& service_;
    ReportToken reportToken_;
};

} // namespace exchange
