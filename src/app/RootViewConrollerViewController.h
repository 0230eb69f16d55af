#pragma once

#include "app/ScreenFactory.h"
#include "components/Shell.h"
#include "components/TableViewController.h"

namespace kesto
{

/// The root menu: twelve sections, and at the top information and settings.
class RootViewConrollerViewController : public TableViewController, public Shell
{
    Q_OBJECT
public:
    static constexpr int calculatorRow = 4;
    static constexpr int calendarRow = 6;
    static constexpr int favoritesRow = 9;

    explicit RootViewConrollerViewController(QObject *parent = nullptr);

    /// Opens what a row leads to, or says why it can't be opened yet.
    void openRow(int row);
    void showInfo();
    void showSettings();
    /// A recipe was sent: thanks, the first time only.
    void dishSucsesfullySended();

    void openDetailViewController(std::unique_ptr<ViewController> controller) override;
    void openCalendar() override { openRow(calendarRow); }
    void openHome() override;

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;

private:
    void openFirstSection();
    void selectRowOfTablet(int row);
    void openInDetail(std::unique_ptr<ViewController> controller, int row);
    void presentScreen(ScreenName name);

    int selectedRow_ = -1;
    int rowOnStack_ = -1; // the last that was opened there
    bool loaded_ = false; // has appeared once
};

} // namespace kesto
