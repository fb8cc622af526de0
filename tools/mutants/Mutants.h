// Included into each rewritten source: the choice of one mutant while the program runs.
#pragma once
#pragma GCC diagnostic ignored "-Wbool-compare"
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wfloat-conversion"
#pragma GCC diagnostic ignored "-Wint-in-bool-context"
#pragma GCC diagnostic ignored "-Wreturn-type"
#pragma GCC diagnostic ignored "-Wsign-compare"
#pragma GCC diagnostic ignored "-Wunused-but-set-variable"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace mutants {
inline int NumberIn(const char* variable) {
    const char* value = std::getenv(variable);
    return value ? std::atoi(value) : -1;
}

/// Collects which mutants a run comes by, for the file that HALVANE_MUTANTS_REACHED names.
class Reached {
public:
    static constexpr int Most = 1 << 16;
    void Note(int id) {
        if (path_)
            ids_[id].store(true, std::memory_order_relaxed);
    }
    ~Reached() {
        std::FILE* file = path_ ? std::fopen(path_, "a") : nullptr;
        for (int id = 0; file && id < Most; ++id)
            if (ids_[id])
                std::fprintf(file, "%d\n", id);
        if (file)
            std::fclose(file);
    }

private:
    const char* path_ = std::getenv("HALVANE_MUTANTS_REACHED");
    std::atomic<bool> ids_[Most] = {};
};

/// Whether this mutant is the one that HALVANE_MUTANT names.
inline bool Is(int id) {
    static const int chosen = NumberIn("HALVANE_MUTANT");
    static Reached reached;
    reached.Note(id);
    return chosen == id;
}

// clang-format off
template <class L, class R> bool Less(int id, const L& l, const R& r) { return Is(id) ? l <= r : l < r; }
template <class L, class R> bool Greater(int id, const L& l, const R& r) { return Is(id) ? l >= r : l > r; }
template <class L, class R> bool NotGreater(int id, const L& l, const R& r) { return Is(id) ? l < r : l <= r; }
template <class L, class R> bool NotLess(int id, const L& l, const R& r) { return Is(id) ? l > r : l >= r; }
template <class L, class R> auto Sum(int id, L l, R r) { return Is(id) ? l - r : l + r; }
template <class L, class R> auto Difference(int id, L l, R r) { return Is(id) ? l + r : l - r; }
template <class L, class R> auto Product(int id, L l, R r) { return Is(id) ? l / r : l * r; }
template <class L, class R> auto Quotient(int id, L l, R r) { return Is(id) ? l * r : l / r; }
template <class L, class R> auto Rest(int id, L l, R r) { return Is(id) ? l * r : l % r; }
template <class L, class R> L& Raise(int id, L& l, R r) { return Is(id) ? l -= r : l += r; }
template <class L, class R> L& Lower(int id, L& l, R r) { return Is(id) ? l += r : l -= r; }
template <class T> T Constant(int id, T value) { return Is(id) ? static_cast<T>(value + 1) : value; }
// clang-format on
} // namespace mutants
