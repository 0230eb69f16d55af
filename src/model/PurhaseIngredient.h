#pragma once

#include "platform/objectgraph/ManagedObject.h"

namespace kesto
{

class Ingredient;

/// One line of the shopping list.
class PurhaseIngredient final : public StoredObject<3, 1, 0>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    PurhaseIngredient(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] QString count() const { return textAt(0); } ///< quantity, free text
    void setCount(const QString &value) { setTextAt(0, value); }
    [[nodiscard]] std::optional<QDateTime> date() const { return dateAt(1); } ///< of the last addition
    void setDate(const std::optional<QDateTime> &value) { setDateAt(1, value); }
    [[nodiscard]] std::optional<bool> purchased() const { return flagAt(2); }
    void setPurchased(std::optional<bool> value) { setIntegerAt(2, value); }

    [[nodiscard]] Ingredient *ingredient() const;
    void setIngredient(Ingredient *value);
};

} // namespace kesto
