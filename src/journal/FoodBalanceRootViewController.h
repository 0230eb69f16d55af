#pragma once

#include "journal/BalanceRootViewController.h"
#include "journal/JornalButton.h"

#include <vector>

namespace kesto
{

class FoodObject;

/// The journal's tab of the protein that was eaten on a day, in grams, against what the body needs.
class FoodBalanceRootViewController : public BalanceRootViewController
{
    Q_OBJECT
    Q_PROPERTY(QList<kesto::JornalButton *> meatButtons READ meatButtons CONSTANT)
    Q_PROPERTY(QList<kesto::JornalButton *> activityButtons READ activityButtons CONSTANT)
    Q_PROPERTY(QString footnote READ footnote CONSTANT)
public:
    explicit FoodBalanceRootViewController(DietDay &dietDay);

    /// A button for each food, whose tag is the food's type and whose badge is the number of portions.
    [[nodiscard]] QList<JornalButton *> meatButtons() const { return meatButtons_.all(); }
    /// A button for each level of activity, which is its tag.
    [[nodiscard]] QList<JornalButton *> activityButtons() const { return activityButtons_.all(); }
    [[nodiscard]] QString footnote() const;

    void setJornalDay(JornalDay *day) override;

    /// One portion more of a food, by the user.
    Q_INVOKABLE void meatButtonTouched(int type);
    /// Chooses a level of activity, or none when it was chosen before.
    Q_INVOKABLE void actionButtonTouched(int level);
    /// The buttons show the level that is stored.
    void updateActivityButtons();
    void recalculateNormalValue();

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

protected:
    void viewWillAppear() override;
    void commitDelete(const IndexPath &path, const RowId &id) override;
    void readIntake() override;
    void readNorm() override { recalculateNormalValue(); }

private:
    void initWtihDietDay();
    [[nodiscard]] int activity() const;
    void updateMeatButtons();

    JornalButtons meatButtons_;
    JornalButtons activityButtons_;
    std::vector<FoodObject *> content_;
};

} // namespace kesto
