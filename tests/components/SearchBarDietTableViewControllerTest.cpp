#include "Screens.h"

#include "components/SearchBarDietTableViewController.h"

namespace kesto::test
{

namespace
{

/// Names with the digits of their phases behind: "egg 013".
class Products : public SearchBarDietTableViewController
{
    Q_OBJECT
public:
    explicit Products(QStringList *diary)
        : diary_(diary)
    {
        setContent({QStringLiteral("egg 013"), QStringLiteral("bread 3"), QStringLiteral("beef 01")});
        setPeriodsScopes(true);
    }
    [[nodiscard]] int numberOfRowsInSection(int) const override { return static_cast<int>(items().size()); }
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override
    {
        return {.title = items().at(path.row).toString()};
    }
    [[nodiscard]] QVariantList filtedItemsForPeriod(int period) const override
    {
        return matching(content(), QString::number(period - 1));
    }
    [[nodiscard]] std::string shown()
    {
        QStringList titles;
        for (const TableRow &row : table()->section(0).rows)
            titles.append(row.title.section(QLatin1Char(' '), 0, 0));
        return titles.join(QLatin1Char(' ')).toStdString();
    }

protected:
    [[nodiscard]] QVariantList searchWithString(const QString &text, int scope) const override
    {
        return scope == 1 ? QVariantList() : matching(currentPeriod() == 0 ? content() : currentItems(), text);
    }
    std::unique_ptr<ViewController> makePeriodSelector(int currentPeriod) override
    {
        return diary_ ? std::make_unique<Screen>(QStringLiteral("selector %1").arg(currentPeriod), *diary_) : nullptr;
    }

private:
    static QVariantList matching(const QVariantList &items, const QString &text)
    {
        QVariantList result;
        for (const QVariant &item : items) {
            if (item.toString().contains(text, Qt::CaseInsensitive))
                result.append(item);
        }
        return result;
    }
    QStringList *diary_;
};

} // namespace

class SearchBarDietTableViewControllerTest : public ScreensTest
{
protected:
    Products *productsInWindow(bool withSelector)
    {
        auto made = std::make_unique<Products>(withSelector ? &diary : nullptr);
        Products *products = made.get();
        EXPECT_FALSE(products->launched());
        window().setRootViewController(std::make_unique<NavigationController>(std::move(made)));
        EXPECT_TRUE(products->launched());
        return products;
    }
};

TEST_F(SearchBarDietTableViewControllerTest, AScopeNarrowsTheListAndASearchNarrowsItFurther)
{
    Products *products = productsInWindow(false);
    EXPECT_EQ(products->shown(), "egg bread beef");
    EXPECT_EQ(products->scopeTitles().size(), 5);
    const struct
    {
        int period;
        const char *text;
        int scope;
        const char *shown;
        bool searching;
    } steps[] = {
        {1, "", 0, "egg beef", false},       {1, "E", 0, "egg beef", true},
        {1, "be", 0, "beef", true},          {4, "be", 0, "", true},
        {4, "br", 0, "bread", true},         {0, "br", 0, "bread", true},
        {0, "b", 0, "bread beef", true},     {0, "b", 1, "", true},
        {0, "", 1, "egg bread beef", false}, {3, "", 1, "", false},
        {0, "", 0, "egg bread beef", false},
    };
    for (const auto &step : steps) {
        products->updateToPeriod(step.period);
        products->setSearchText(QString::fromLatin1(step.text));
        products->setSearchScope(step.scope);
        const auto label = QStringLiteral("period %1, text %2").arg(step.period).arg(QLatin1String(step.text));
        EXPECT_EQ(products->shown(), step.shown) << label.toStdString();
        EXPECT_EQ(products->isSearchActive(), step.searching) << label.toStdString();
    }
    EXPECT_TRUE(products->currentItems().isEmpty());
    EXPECT_TRUE(products->searchResults().isEmpty());
}

TEST_F(SearchBarDietTableViewControllerTest, ThePeriodSelectorsAnswerClosesIt)
{
    Products *products = productsInWindow(true);
    products->updateToPeriod(2);
    products->showPeriodSelector(QStringLiteral("filter"));
    ASSERT_TRUE(products->popover());
    events();
    static_cast<PeriodSelectorDelegate *>(products)->updateToPeriod(4);
    EXPECT_EQ(events(), "selector 2 -, selector 2 x");
    EXPECT_FALSE(products->popover());
    EXPECT_EQ(products->currentPeriod(), 4);
    EXPECT_EQ(products->shown(), "egg bread");

    Products *without = productsInWindow(false);
    without->showPeriodSelector(QStringLiteral("filter"));
    EXPECT_FALSE(without->popover());
}

} // namespace kesto::test

#include "SearchBarDietTableViewControllerTest.moc"
