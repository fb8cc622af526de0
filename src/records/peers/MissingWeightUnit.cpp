#include "records/peers/MissingWeightUnit.h"

#include "runtime/RuntimeError.h"

void MissingWeightUnit::Infer(WeightUnit unit, const QString& reason) {
    inferred_ = unit;
    reason_ = reason;
}

WeightUnit MissingWeightUnit::Of(const QString& file) const {
    if (choices_.weightUnit)
        return *choices_.weightUnit;
    if (!inferred_)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           file + " does not say in which unit its weights are. Say it: "
                                  "--weight-unit kg or --weight-unit lb.");
    const QString unit =
        *inferred_ == WeightUnit::Kilogram ? QStringLiteral("kg") : QStringLiteral("lb");
    into_.Remark("Weights were read in " + unit + ", because " + reason_ +
                 ". --weight-unit says otherwise.");
    return *inferred_;
}
