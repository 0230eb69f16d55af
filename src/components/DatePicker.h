#pragma once

#include "components/Picker.h"

#include <QDateTime>

namespace kesto
{

/// Wheels for a day, for a time of day, or for a span of hours and minutes, in the platform's calendar and language.
class DatePicker : public Picker
{
    Q_OBJECT
public:
    enum class Mode { Date, Time, CountDownTimer };
    Q_ENUM(Mode)

    /// The minutes go in steps of minuteInterval, a divisor of 60; a date between two steps becomes the earlier one.
    explicit DatePicker(Mode mode, int minuteInterval = 1, QObject *parent = nullptr);

    [[nodiscard]] Mode mode() const { return mode_; }
    /// Day and time of day; what the wheels do not show is kept as it was set. In UTC; now at first.
    [[nodiscard]] QDateTime date() const { return date_; }
    void setDate(const QDateTime &date);
    /// Seconds, at least one step of the minutes; only of a span.
    [[nodiscard]] int countDownDuration() const { return duration_; }
    void setCountDownDuration(int seconds);

Q_SIGNALS:
    void dateChanged();

private:
    void turnWheels();
    void read();

    Mode mode_;
    int minuteInterval_;
    int firstYear_ = 0;
    QDateTime date_;
    int duration_ = 0;
};

} // namespace kesto
