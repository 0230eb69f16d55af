#pragma once

#include "platform/objectgraph/ManagedObject.h"

namespace kesto
{

class Dish;

/// The photo of a dish.
class Image final : public StoredObject<1, 1, 0>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    Image(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] std::optional<QByteArray> data() const { return bytesAt(0); } ///< encoded image
    void setData(const std::optional<QByteArray> &value) { setBytesAt(0, value); }

    [[nodiscard]] Dish *dish() const;
    void setDish(Dish *value);
};

} // namespace kesto
