#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObject.h"

#include <vector>

namespace kesto
{

class DishInDietDay;
class JornalDay;

/// One calendar day of the diet plan.
class DietDay final : public StoredObject<9, 1, 1>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    DietDay(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    /// The day of exactly this instant; a new one is saved at once. An error, which was logged, when it could not be
    /// looked up: a second day of the same instant would hide the first one.
    [[nodiscard]] static Result<DietDay *> dietDatWithDate(const QDateTime &date,
                                                           ManagedObjectContext &inManagedObjectContext);
    /// The day of exactly this instant; null when there is none or, with a line in the log, when it could not be looked
    /// up.
    [[nodiscard]] static DietDay *dayWithoutCreation(const QDateTime &date,
                                                     ManagedObjectContext &inManagedObjectContext);

    /// No kind, no weight, no girth but the biceps, and no journal. A value of 0 counts as present; the biceps and the
    /// planned dishes do not count.
    [[nodiscard]] bool isEmpty() const;

    [[nodiscard]] std::optional<QDateTime> date() const { return dateAt(0); } ///< start of the calendar day; the key
    void setDate(const std::optional<QDateTime> &value) { setDateAt(0, value); }
    [[nodiscard]] std::optional<float> weight() const { return floatAt(1); } ///< kilograms
    void setWeight(std::optional<float> value) { setFloatAt(1, value); }
    [[nodiscard]] std::optional<float> chest() const { return floatAt(2); } ///< centimetres
    void setChest(std::optional<float> value) { setFloatAt(2, value); }
    [[nodiscard]] std::optional<float> hip() const { return floatAt(3); } ///< centimetres
    void setHip(std::optional<float> value) { setFloatAt(3, value); }
    [[nodiscard]] std::optional<float> waist() const { return floatAt(4); } ///< centimetres
    void setWaist(std::optional<float> value) { setFloatAt(4, value); }
    [[nodiscard]] std::optional<float> biceps() const { return floatAt(5); } ///< centimetres
    void setBiceps(std::optional<float> value) { setFloatAt(5, value); }
    [[nodiscard]] std::optional<bool> chB() const { return flagAt(6); } ///< pure protein day
    void setChB(std::optional<bool> value) { setIntegerAt(6, value); }
    [[nodiscard]] std::optional<bool> bO() const { return flagAt(7); } ///< protein and vegetables day
    void setBO(std::optional<bool> value) { setIntegerAt(7, value); }
    [[nodiscard]] std::optional<bool> feast() const { return flagAt(8); } ///< feast day
    void setFeast(std::optional<bool> value) { setIntegerAt(8, value); }

    [[nodiscard]] JornalDay *jornalDay() const;
    void setJornalDay(JornalDay *value);
    [[nodiscard]] std::vector<DishInDietDay *> dishes() const; ///< planned for this day
    void addDishes(DishInDietDay &object);
    void removeDishes(DishInDietDay &object);
};

} // namespace kesto
