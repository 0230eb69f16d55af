#pragma once

#include "components/TableViewController.h"
#include "components/Window.h"
#include "journal/JornalHelper.h"
#include "model/DietDay.h"
#include "model/FoodObject.h"
#include "model/JornalDay.h"
#include "store/StoreFixture.h"

namespace kesto::test
{

/// A program with the journal of 7 March, and one tab of it in sight.
class BalanceFixture : public testing::Test
{
protected:
    ~BalanceFixture() override { leave(); }

    [[nodiscard]] DietDay &dayOf(int day) { return *JornalHelper::dietDayForDate(program.platform.date(2024, 3, day)); }
    [[nodiscard]] JornalDay &journal() { return *dayOf(7).jornalDay(); }
    template <class Screen, class... Arguments>
    Screen &show(Arguments &&...arguments)
    {
        auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
        Screen &shown = *screen;
        Window::sharedWindow().setRootViewController(std::move(screen));
        return shown;
    }
    static void leave()
    {
        Window::sharedWindow().setRootViewController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void restart()
    {
        leave();
        program.restart();
    }
    /// Title and detail of each row.
    [[nodiscard]] static QStringList rowsOf(const TableViewController &screen)
    {
        QStringList rows;
        for (int row = 0; row < screen.table()->numberOfRowsInSection(0); ++row) {
            const TableRow &shown = screen.table()->rowAt({0, row});
            rows.append(shown.title + u'|' + shown.detail);
        }
        return rows;
    }

    StoreFixture program;
};

} // namespace kesto::test
