#pragma once

#include "records/peers/Imported.h"

/// Brings what was imported into the open records of the current user. What they hold already is
/// not added again: rows are compared with all their values, and two equal rows count twice.
class RecordsMerge {
public:
    struct Count {
        int added = 0;
        int present = 0; ///< in the records before
    };

    /// Reads the records. Removes what they hold from `imported`, and lists weights that they
    /// contradict.
    explicit RecordsMerge(Imported& imported);

    const Count& Entries() const { return entries_; }
    const Count& Weights() const { return weights_; }
    const Count& Foods() const { return foods_; }
    const Count& Recipes() const { return recipes_; }
    bool AddsNothing() const;

    void Write() const; ///< into open records that can be changed

private:
    void CompareEntries();
    void CompareWeights();
    void CompareFoods();
    void CompareRecipes();
    void WriteEntries() const;
    void WriteWeights() const;
    void WriteFoods() const;
    void WriteRecipes() const;

    Imported& imported_;
    Count entries_, weights_, foods_, recipes_;
};
