#pragma once

#include "exchange/RecipeStore.h"
#include "exchange/Router.h"
#include "exchange/Service.h"

namespace exchange {

/// The paths below /halvane/api/, for the program: JSON in and out.
class Api {
public:
    explicit Api(const Service& service)
        : service_(service) {}
    void AddTo(Router& router);

private:
    void CountRecipe(const Visitor& visitor) const;
    void Create(const Ask& ask, Reply& reply) const;
    void RequireCreator(int id, const std::string& token) const;
    void AddIngredients(const Ask& ask, Reply& reply) const;
    void Read(const Ask& ask, Reply& reply, RecipeStore::Part part) const;

    const Service& service_;
};

} // namespace exchange
