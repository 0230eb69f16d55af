#pragma once

#include "platform/Clock.h"

#include <utility>

namespace kesto::test
{

/// Stands still until it is set.
class FakeClock final : public Clock
{
public:
    explicit FakeClock(QDateTime now = QDateTime(QDate(2024, 3, 7), QTime(9, 30), Qt::UTC))
        : now_(std::move(now))
    {
    }

    [[nodiscard]] QDateTime now() const override { return now_; }
    void set(const QDateTime &now) { now_ = now.toUTC(); }
    void advance(qint64 seconds) { now_ = now_.addSecs(seconds); }
    void advanceMSecs(qint64 milliseconds) { now_ = now_.addMSecs(milliseconds); }

private:
    QDateTime now_;
};

} // namespace kesto::test
