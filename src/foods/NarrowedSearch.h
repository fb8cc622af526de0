#pragma once

#include <QString>

class SearchTerms;

/// A search of the catalogue that reads only the foods that the index of names gives. LIKE then
/// decides, so the rows and their order are those of the statements of SearchTerms. Every operation
/// fails if the index is damaged.
class NarrowedSearch {
public:
    enum class Part { Own, Stock };

    explicit NarrowedSearch(const SearchTerms& terms); ///< the terms must outlive it

    /// Empty if reading the names in order is quicker, or the index cannot be asked.
    QString Statement(Part part) const;

private:
    const SearchTerms* terms_;
    QString question_;
    int most_ = 0; ///< it is quicker for so many foods; 0: the index cannot be asked
};
