#pragma once

#include "platform/objectgraph/ManagedObject.h"

#include <vector>

namespace kesto
{

class DishInDietDay;
class JornalDay;
class TimeObject;

/// One slot of a journal day.
class TimeRow final : public StoredObject<6, 1, 2>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    TimeRow(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] std::optional<float> time() const { return floatAt(0); } ///< hours.minutes: 7:05 is 7.05
    void setTime(std::optional<float> value) { setFloatAt(0, value); }
    [[nodiscard]] std::optional<bool> compleate() const { return flagAt(1); }
    void setCompleate(std::optional<bool> value) { setIntegerAt(1, value); }
    [[nodiscard]] std::optional<bool> remind() const { return flagAt(2); }
    void setRemind(std::optional<bool> value) { setIntegerAt(2, value); }
    [[nodiscard]] std::optional<QDateTime> reminderDate() const { return dateAt(3); }
    void setReminderDate(const std::optional<QDateTime> &value) { setDateAt(3, value); }
    [[nodiscard]] std::optional<bool> userCreated() const { return flagAt(4); }
    void setUserCreated(std::optional<bool> value) { setIntegerAt(4, value); }
    [[nodiscard]] QString otherTimeObject() const { return textAt(5); }
    void setOtherTimeObject(const QString &value) { setTextAt(5, value); }

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
