#pragma once

#include "components/AlertCenter.h"
#include "components/DayWatch.h"
#include "components/Shell.h"
#include "components/Window.h"
#include "plan/CalculatorViewController.h"
#include "plan/CalendarViewController.h"
#include "store/StoreFixture.h"

namespace kesto::test
{

/// A program with the screens of the plan.
class PlanFixture : public StoreFixture
{
public:
    explicit PlanFixture(TestPlatform::Options options = {}, bool metric = true)
        : StoreFixture(std::move(options))
    {
        if (!metric)
            defaults().setInteger(1, Keys::kSystemKey);
    }

    [[nodiscard]] const Calendar &calendar() { return platform.calendar(); }
    [[nodiscard]] QDateTime dayStart(int year, int month, int day) const { return platform.date(year, month, day); }

    void storePlan(const QDateTime &start, int attack, int cruise, int consolidation)
    {
        defaults().setValue(start, Keys::kStartDietDateKey);
        defaults().setInteger(attack, Keys::kPeriod1Key);
        defaults().setInteger(cruise, Keys::kPeriod2Key);
        defaults().setInteger(consolidation, Keys::kPeriod3Key);
        manager().setStartDietDay(start);
    }

    /// Date (of the zone's clock) and kind of every diet day, in order of dates.
    [[nodiscard]] QStringList days()
    {
        QStringList lines;
        FetchRequest request;
        request.sortDescriptors = {{"date"}};
        for (const DietDay *day : context().fetchOrLog<DietDay>(request)) {
            QString line = day->date()->toTimeZone(calendar().timeZone()).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
            for (const char *kind : {"chB", "bO", "feast"}) {
                const QVariant value = day->valueForKey(QLatin1String(kind));
                if (value.isValid())
                    line += u' ' + QLatin1String(kind) + (value.toBool() ? QString() : QStringLiteral("=NO"));
            }
            lines.append(line);
        }
        return lines;
    }
};

/// Arranges screens as the program does: the calendar that it is asked for becomes the one in sight.
class TestShell : public Shell
{
public:
    void openDetailViewController(std::unique_ptr<ViewController>) override {}
    void openCalendar() override
    {
        calendar = std::make_unique<CalendarViewController>();
        calendar->loadViewIfNeeded();
    }
    void openHome() override { openCalendar(); }

    std::unique_ptr<CalendarViewController> calendar;
};

/// The user sees this screen while this lives.
class InWindow
{
public:
    explicit InWindow(std::unique_ptr<ViewController> screen)
    {
        Window::sharedWindow().setRootViewController(std::move(screen));
    }
    ~InWindow()
    {
        Window::sharedWindow().setRootViewController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    InWindow(const InWindow &) = delete;
    InWindow &operator=(const InWindow &) = delete;
};

/// The texts at the right of a section's rows.
inline QStringList details(const CalculatorViewController &screen, int section)
{
    QStringList texts;
    for (int row = 0; row < screen.numberOfRowsInSection(section); ++row) {
        const TableRow cell = screen.cellForRow({section, row});
        if (cell.kind == TableRow::Kind::Editable)
            texts.append(cell.text + u' ' + cell.unit);
        else if (!cell.detail.isEmpty())
            texts.append(cell.detail);
    }
    return texts;
}

} // namespace kesto::test
