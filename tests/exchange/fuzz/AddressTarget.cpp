#include "fuzz/Target.h"

#include "exchange/MailAddress.h"

#include <algorithm>

/// What is a mail address holds nothing that a header or a relay could take for more.
void Fuzz(const std::string& bytes) {
    const auto mailbox = exchange::MailboxOf(bytes);
    Expect(exchange::MailboxOf(mailbox).size() <= mailbox.size());
    if (!exchange::IsMailAddress(bytes))
        return;
    Expect(std::count(bytes.begin(), bytes.end(), '@') == 1 && bytes.size() <= 254);
    Expect(bytes.find_first_of("\r\n\t <>,;:\"\\()[]%!|`$/{}*?#^") == std::string::npos);
    Expect(mailbox.find('@') != std::string::npos && mailbox.size() <= bytes.size() + 4);
}
