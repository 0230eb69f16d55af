#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/StoredObject.h"

#include <vector>

namespace kesto
{

class DishInDietDay;
class JornalDay;

/// One calendar day of the diet plan.
class DietDay final
    : public StoredObject<
          "DietDay",
          Attributes<Attribute<"date", QDateTime, Index::Yes>, Attribute<"weight", float>, Attribute<"chest", float>,
                     Attribute<"hip", float>, Attribute<"waist", float>, Attribute<"biceps", float>,
                     Attribute<"chB", bool>, Attribute<"bO", bool>, Attribute<"feast", bool>>,
          Relationships<ToMany<"dishes", DishInDietDay, "dietDays", Tie::Owns>,
                        ToOne<"jornalDay", JornalDay, "day", Tie::Owns>>>
{
public:
    using StoredObject::StoredObject;

    /// The day of exactly this instant; a new one is saved at once. An error, which was logged, when it could not be
    /// looked up: a second day of the same instant would hide the first one.
    [[nodiscard]] static Result<DietDay *> dietDatWithDate(const QDateTime &date,
                                                           ManagedObjectContext &inManagedObjectContext);
    /// The day of exactly this instant; null when there is none or, with a line in the log, when it could not be looked
    /// up.
    [[nodiscard]] static DietDay *dayWithoutCreation(const QDateTime &date,
                                                     ManagedObjectContext &inManagedObjectContext);

    /// Whether the day has no kind, no weight, no chest, hip or waist measurement, and no journal. A value of 0 counts
    /// as present; the biceps and the planned dishes do not count.
    [[nodiscard]] bool isEmpty() const;

    /// Start of the calendar day; the key.
    [[nodiscard]] std::optional<QDateTime> date() const { return get<"date">(); }
    void setDate(const std::optional<QDateTime> &value) { set<"date">(value); }
    [[nodiscard]] std::optional<float> weight() const { return get<"weight">(); } ///< kilograms
    void setWeight(std::optional<float> value) { set<"weight">(value); }
    [[nodiscard]] std::optional<float> chest() const { return get<"chest">(); } ///< centimetres
    void setChest(std::optional<float> value) { set<"chest">(value); }
    [[nodiscard]] std::optional<float> hip() const { return get<"hip">(); } ///< centimetres
    void setHip(std::optional<float> value) { set<"hip">(value); }
    [[nodiscard]] std::optional<float> waist() const { return get<"waist">(); } ///< centimetres
    void setWaist(std::optional<float> value) { set<"waist">(value); }
    [[nodiscard]] std::optional<float> biceps() const { return get<"biceps">(); } ///< centimetres
    void setBiceps(std::optional<float> value) { set<"biceps">(value); }
    [[nodiscard]] std::optional<bool> chB() const { return get<"chB">(); } ///< pure protein day
    void setChB(std::optional<bool> value) { set<"chB">(value); }
    [[nodiscard]] std::optional<bool> bO() const { return get<"bO">(); } ///< protein and vegetables day
    void setBO(std::optional<bool> value) { set<"bO">(value); }
    [[nodiscard]] std::optional<bool> feast() const { return get<"feast">(); } ///< feast day
    void setFeast(std::optional<bool> value) { set<"feast">(value); }

    [[nodiscard]] JornalDay *jornalDay() const;
    void setJornalDay(JornalDay *value);
    [[nodiscard]] std::vector<DishInDietDay *> dishes() const; ///< planned for this day
    void addDishes(DishInDietDay &object);
    void removeDishes(DishInDietDay &object);
};

} // namespace kesto
