#include "model/Image.h"

#include "model/Dish.h"
#include "model/Lookup.h"

namespace kesto
{

EntityDescription Image::description()
{
    return {"Image",
            {{"data", AttributeType::Data}},
            {{.name = "dish", .destination = "Dish", .inverse = "image"}},
            &kTypeTag,
            &makeObject<Image>};
}

Dish *Image::dish() const { return static_cast<Dish *>(toOne(0)); }

void Image::setDish(Dish *value) { setToOne(0, value); }

} // namespace kesto
