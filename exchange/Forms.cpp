#include "exchange/Forms.h"

#include "exchange/Moment.h"
#include "exchange/Pages.h"
#include "exchange/RecipeID.h"
#include "exchange/Refusal.h"
#include "exchange/Reports.h"
#include "exchange/ShownText.h"
#include "exchange/Target.h"
#include "exchange/Text.h"

namespace exchange {
namespace {
constexpr const char* HtmlType = "text/html; charset=utf-8";

/// The fields of a form as the parameters of a request.
Request FieldsOf(const Request& request) {
    if (request.body.size() > Forms::Largest)
        throw Refusal(413, "The form is too large.");
    Request form;
    Target::ReadParams(request.body, form);
    return form;
}

Report ReadReport(const Request& form) {
    Report report{Moment::Now(), form.Param("complaint"), form.Param("words")};
    if (!Reports::IsComplaint(report.complaint))
        throw Refusal(400, "Please choose what is wrong with the recipe.");
    if (!IsUtf8(report.words))
        throw Refusal(400, "Your text contains characters that cannot be read.");
    report.words = ShownText::Line(report.words, Reports::LongestWords);
    return report;
}

[[noreturn]] void NotALink() {
    throw Refusal(404, "This link is not complete. Please copy the whole link from the mail.");
}
} // namespace

void Forms::AddTo(Router& router) {
    router.Add("POST", "/halvane/report.asp",
               [this](const Ask& ask, Reply& reply) { TakeReport(ask, reply); },
               {.body = "application/x-www-form-urlencoded"});
    router.Add("GET", "/halvane/nomail.asp",
               [this](const Ask& ask, Reply& reply) { ShowNoMail(ask, reply); });
    router.Add("POST", "/halvane/nomail.asp",
               [this](const Ask& ask, Reply& reply) { TakeNoMail(ask, reply); }, {.body = ""});
}

void Forms::TakeReport(const Ask& ask, Reply& reply) const {
    const auto form = FieldsOf(ask.request);
    const auto id = RecipeID::Read(form.Param("recID")).value_or(0);
    if (!reportToken_.Fits(form.Param("token"), id, ask.visitor))
        throw Refusal(403,
                      "This form is too old, or your network has changed. Please open the page "
                      "of the recipe again.");
    KeepReport(ask, id, form);
    reply.SetContent(Pages::Notice("Thank you", "The people who run this exchange will look at the "
                                                "recipe."),
                     HtmlType);
}

void Forms::KeepReport(const Ask& ask, int id, const Request& form) const {
    const auto report = ReadReport(form);
    const auto& config = service_.config;
    const Pool::Lease lease(service_.pool);
    Transaction transaction(*lease);
    if (!service_.limits.CountToday(*lease, "report", ask.visitor, config.reports_per_client_day,
                                    config.reports_per_day))
        throw Refusal(429, "Too many reports have been sent today. Please try again tomorrow.",
                      Refusal::Day);
    Reports(*lease).Add(id, report);
    transaction.Commit();
}

void Forms::ShowNoMail(const Ask& ask, Reply& reply) const {
    const auto token = ask.request.Param("token");
    if (!noMail_.IsToken(token))
        NotALink();
    reply.SetContent(Pages::NoMail(token), HtmlType);
}

/// The address says everything: a mail program can send this request for its user. The body does
/// not matter.
void Forms::TakeNoMail(const Ask& ask, Reply& reply) const {
    const auto token = ask.request.Param("token");
    if (!noMail_.IsToken(token))
        NotALink();
    {
        const Pool::Lease lease(service_.pool);
        noMail_.Note(*lease, token);
    }
    reply.SetContent(Pages::Notice("No more mail", "This exchange will send no more mail to your "
                                                   "address."),
                     HtmlType);
}

} // namespace exchange
