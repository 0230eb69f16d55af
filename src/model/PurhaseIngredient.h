#pragma once

#include "platform/objectgraph/StoredObject.h"

namespace kesto
{

class Ingredient;

/// One line of the shopping list.
class PurhaseIngredient final
    : public StoredObject<"PurhaseIngredient",
                          Attributes<Attribute<"count", QString>, Attribute<"date", QDateTime, Index::Yes>,
                                     Attribute<"purchased", bool>>,
                          Relationships<ToOne<"ingredient", Ingredient, "purchaseIngredient">>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] QString count() const { return get<"count">(); } ///< quantity, free text
    void setCount(const QString &value) { set<"count">(value); }
    [[nodiscard]] std::optional<QDateTime> date() const { return get<"date">(); } ///< of the last addition
    void setDate(const std::optional<QDateTime> &value) { set<"date">(value); }
    [[nodiscard]] std::optional<bool> purchased() const { return get<"purchased">(); }
    void setPurchased(std::optional<bool> value) { set<"purchased">(value); }

    [[nodiscard]] Ingredient *ingredient() const;
    void setIngredient(Ingredient *value);
};

} // namespace kesto
