#pragma once

#include "components/TableViewController.h"

#include <QVariantMap>

namespace kesto
{

class WaterValuesDelegate
{
public:
    virtual ~WaterValuesDelegate() = default;
    /// Other portions are stored.
    virtual void waterValsChanged() = 0;
};

/// The editor of the portions of drink: a row with a slider for each. What was changed is stored when it closes.
class WaterValuesTableViewController : public TableViewController
{
    Q_OBJECT
public:
    static constexpr int step = 10; ///< millilitres

    /// The delegate outlives this.
    explicit WaterValuesTableViewController(WaterValuesDelegate &delegate);

    [[nodiscard]] bool haveChanges() const { return haveChanges_; }
    /// The slider of a row stands at so many millilitres, which become the nearest ten.
    void sliderValueChanged(double value, const IndexPath &forIndexPath);
    /// The same for views.
    Q_INVOKABLE void sliderMoved(double value, int row) { sliderValueChanged(value, {0, row}); }

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

    void close() override;

private:
    [[nodiscard]] static int longest(int row);

    WaterValuesDelegate &delegate_;
    QVariantMap portions_;
    bool haveChanges_ = false;
};

} // namespace kesto
