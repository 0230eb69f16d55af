#pragma once

#include "platform/objectgraph/StoredObject.h"

namespace kesto
{

class Dish;

/// The photo of a dish.
class Image final : public StoredObject<"Image", Attributes<Attribute<"data", QByteArray>>,
                                        Relationships<ToOne<"dish", Dish, "image", Tie::OwnedBy>>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] std::optional<QByteArray> data() const { return get<"data">(); } ///< encoded image
    void setData(const std::optional<QByteArray> &value) { set<"data">(value); }

    [[nodiscard]] Dish *dish() const;
    void setDish(Dish *value);
};

} // namespace kesto
