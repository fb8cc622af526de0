#pragma once

#include <QTemporaryDir>

/// Both files in a folder of their own, with the delivered reference intakes. They are not flushed:
/// what matters here is what they hold, not what a power cut leaves.
class Records {
public:
    Records();
    ~Records();
    Records(const Records&) = delete;
    Records& operator=(const Records&) = delete;

    void Clear(); ///< all but the reference intakes and the stock foods

private:
    QTemporaryDir folder_;
};
