#include "Results.h"

#include <cstdio>

namespace {
std::string Written(double amount, const char* unit, int places = 0) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f%s", places, amount, unit);
    return text;
}
} // namespace

Results::Results() {
    Print("work", "ours", "bare", "ratio", "aim", true);
}

void Results::Print(const std::string& work, const std::string& ours, const std::string& bare,
                    const std::string& ratio, const std::string& aim, bool met) {
    std::printf("%-64s %10s %10s %7s %10s %s\n", work.c_str(), ours.c_str(), bare.c_str(),
                ratio.c_str(), aim.c_str(), met ? "" : "MISSED");
    std::fflush(stdout);
    met_ = met_ && met;
}

void Results::Bare(const std::string& work, double rate) {
    Print(work, "", Written(rate, "/s"), "", "", true);
}

void Results::Ratio(const std::string& work, double rate, double bare, double least) {
    const double ratio = bare > 0 ? rate / bare : 0;
    Print(work, Written(rate, "/s"), Written(bare, "/s"), Written(100 * ratio, " %"),
          Written(100 * least, " %"), ratio >= least);
}

void Results::AtMost(const std::string& work, double amount, double most, const char* unit) {
    Print(work, Written(amount, unit, 1), "", "", Written(most, unit), amount <= most);
}

void Results::Failures(const std::string& work, long failed) {
    if (failed > 0)
        Print(work + ": requests that failed", std::to_string(failed), "", "", "0", false);
}

void Results::Skipped(const std::string& sentence) {
    std::printf("%s\n", sentence.c_str());
}
