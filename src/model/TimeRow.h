#pragma once

#include "platform/objectgraph/StoredObject.h"

#include <vector>

namespace kesto
{

class DishInDietDay;
class JornalDay;
class TimeObject;

/// One slot of a journal day.
class TimeRow final
    : public StoredObject<"TimeRow",
                          Attributes<Attribute<"time", float>, Attribute<"compleate", bool>, Attribute<"remind", bool>,
                                     Attribute<"reminderDate", QDateTime>, Attribute<"userCreated", bool>,
                                     Attribute<"otherTimeObject", QString>>,
                          Relationships<ToOne<"joranlDay", JornalDay, "timeRows", Tie::OwnedBy>,
                                        ToMany<"timeObjects", TimeObject, "timeRow", Tie::Owns>,
                                        ToMany<"dishesInDietDay", DishInDietDay, "jornalTimeRow", Tie::Owns>>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] std::optional<float> time() const { return get<"time">(); } ///< hours.minutes: 7:05 is 7.05
    void setTime(std::optional<float> value) { set<"time">(value); }
    [[nodiscard]] std::optional<bool> compleate() const { return get<"compleate">(); }
    void setCompleate(std::optional<bool> value) { set<"compleate">(value); }
    [[nodiscard]] std::optional<bool> remind() const { return get<"remind">(); }
    void setRemind(std::optional<bool> value) { set<"remind">(value); }
    [[nodiscard]] std::optional<QDateTime> reminderDate() const { return get<"reminderDate">(); }
    void setReminderDate(const std::optional<QDateTime> &value) { set<"reminderDate">(value); }
    [[nodiscard]] std::optional<bool> userCreated() const { return get<"userCreated">(); }
    void setUserCreated(std::optional<bool> value) { set<"userCreated">(value); }
    [[nodiscard]] QString otherTimeObject() const { return get<"otherTimeObject">(); }
    void setOtherTimeObject(const QString &value) { set<"otherTimeObject">(value); }

    [[nodiscard]] JornalDay *joranlDay() const;
    void setJoranlDay(JornalDay *value);
    [[nodiscard]] std::vector<TimeObject *> timeObjects() const;
    void addTimeObjects(TimeObject &object);
    void removeTimeObjects(TimeObject &object);
    [[nodiscard]] std::vector<DishInDietDay *> dishesInDietDay() const;
    void addDishesInDietDay(DishInDietDay &object);
    void removeDishesInDietDay(DishInDietDay &object);
};

} // namespace kesto
