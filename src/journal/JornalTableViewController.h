#pragma once

#include "components/TableViewController.h"

namespace kesto
{

class DietDay;
class JornalDay;
class JornalHelper;

/// A tab of the journal that shows one day. A table screen whose left bar button closes the whole journal.
class JornalTableViewController : public TableViewController
{
    Q_OBJECT
public:
    /// The day has a journal.
    explicit JornalTableViewController(DietDay &dietDay);

    /// Null before the first day and while the record is deleted.
    [[nodiscard]] DietDay *dietDay() const;
    /// The journal moves to a day: first this is called, then setJornalDay() with the day's journal. Overrides call
    /// this one.
    virtual void setDietDay(DietDay *day);
    /// Null while the record is deleted.
    [[nodiscard]] JornalDay *jornalDay() const;
    virtual void setJornalDay(JornalDay *day);

    /// The journal that this tab belongs to; null outside of one.
    [[nodiscard]] JornalHelper *helper() const;
    void setHelper(JornalHelper *helper);

    /// Leaves the day and closes the journal.
    void close() override;

private:
    DietDay *dietDay_ = nullptr;
    JornalDay *jornalDay_ = nullptr;
    QPointer<JornalHelper> helper_;
};

/// The button at the left of each tab, the timer's as well: runs the tab's close().
[[nodiscard]] std::unique_ptr<BarButtonItem> jornalCloseButton(ViewController &tab);

} // namespace kesto
