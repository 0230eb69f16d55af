#include "model/Image.h"

#include "model/Dish.h"

namespace kesto
{

Dish *Image::dish() const { return one<"dish">(); }

void Image::setDish(Dish *value) { setOne<"dish">(value); }

} // namespace kesto
