#pragma once

#include <string>

/// The table that the benchmark prints: work, ours, bare, ratio, aim.
class Results {
public:
    Results();

    void Bare(const std::string& work, double rate);
    /// A rate beside the bare one; the aim is the least ratio.
    void Ratio(const std::string& work, double rate, double bare, double least);
    /// An amount that must not be above the aim.
    void AtMost(const std::string& work, double amount, double most, const char* unit);
    void Failures(const std::string& work, long failed); ///< nothing if there were none
    void Skipped(const std::string& sentence);
    bool Met() const { return met_; }

private:
    void Print(const std::string& work, const std::string& ours, const std::string& bare,
               const std::string& ratio, const std::string& aim, bool met);
    bool met_ = true;
};
