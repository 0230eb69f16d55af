#pragma once

#include "journal/BalanceRootViewController.h"
#include "journal/WaterBalance.h"
#include "journal/WaterPicker.h"
#include "journal/WaterValuesTableViewController.h"

namespace kesto
{

/// The journal's tab of what was drunk on a day, in millilitres, against what the body needs.
class WaterBalanceRootViewController : public BalanceRootViewController, public WaterValuesDelegate
{
    Q_OBJECT
    Q_PROPERTY(kesto::WaterPicker *picker READ picker CONSTANT)
    Q_PROPERTY(QList<kesto::JornalButton *> actionButtons READ actionButtons CONSTANT)
public:
    /// The tags of the action buttons.
    enum Action { VolumeAction, HeatAction, ActivityAction };

    explicit WaterBalanceRootViewController(DietDay &dietDay);

    [[nodiscard]] WaterPicker *picker() { return &picker_; }
    [[nodiscard]] QList<JornalButton *> actionButtons() const { return actionButtons_.all(); }

    void setJornalDay(JornalDay *day) override;

    /// By the user, with a button's tag. Heat and activity raise the norm that is shown by 480 ml, or lower it again,
    /// until it is computed anew; both are kept as the day's sport.
    Q_INVOKABLE void actionButtonTouched(int tag);
    /// Logs the portion that was touched.
    void waterButtonTouchedInPicker(const WaterPicker &picker);
    void calculateNormalValue();
    void waterValsChanged() override;

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

protected:
    void commitDelete(const IndexPath &path, const RowId &id) override;
    void readIntake() override;
    void readNorm() override { calculateNormalValue(); }

private:
    [[nodiscard]] std::optional<float> weight() const;
    void showDayFlags();

    WaterPicker picker_{WaterPicker::Mode::Touch};
    JornalButtons actionButtons_;
    QVariantMap portions_;
    std::vector<WaterIntake> content_;
};

} // namespace kesto
