#pragma once

#include "components/PeriodSelectorDelegate.h"
#include "components/TableViewController.h"

#include <QStringList>
#include <QVariantList>

namespace kesto
{

/// A list that can be narrowed to a phase, by a scope bar below it, and searched. Items are texts, dictionaries or
/// objects; a subclass filters and searches them and shows items().
class SearchBarDietTableViewController : public TableViewController, public PeriodSelectorDelegate
{
    Q_OBJECT
    Q_PROPERTY(bool periodsScopes READ periodsScopes NOTIFY periodsScopesChanged)
    Q_PROPERTY(QStringList scopeTitles READ scopeTitles CONSTANT)
    Q_PROPERTY(int currentPeriod READ currentPeriod WRITE updateToPeriod NOTIFY currentPeriodChanged)
    Q_PROPERTY(bool hasSearchBar READ hasSearchBar CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchChanged)
    Q_PROPERTY(int searchScope READ searchScope WRITE setSearchScope NOTIFY searchChanged)
    Q_PROPERTY(bool searchActive READ isSearchActive NOTIFY searchChanged)
public:
    explicit SearchBarDietTableViewController(QObject *parent = nullptr);

    [[nodiscard]] const QVariantList &content() const { return content_; }
    void setContent(const QVariantList &content) { content_ = content; }
    [[nodiscard]] bool periodsScopes() const { return periodsScopes_; }
    void setPeriodsScopes(bool shows);
    /// "All" and the four phases, short.
    [[nodiscard]] QStringList scopeTitles() const;

    /// The selected scope; 0 shows all.
    [[nodiscard]] int currentPeriod() const { return currentPeriod_; }
    [[nodiscard]] const QVariantList &currentItems() const { return currentItems_; }
    void setCurrentItems(const QVariantList &items) { currentItems_ = items; }
    /// Selects a scope of the bar, or the answer of the period selector, whose popover closes.
    void updateToPeriod(int period) override;
    /// The content of a scope.
    [[nodiscard]] virtual QVariantList filtedItemsForPeriod(int period) const;
    /// Opens the period selector in a popover; nothing happens for a screen that has none.
    Q_INVOKABLE void showPeriodSelector(const QString &anchor);

    [[nodiscard]] virtual bool hasSearchBar() const { return true; }
    [[nodiscard]] QString searchText() const { return searchText_; }
    [[nodiscard]] int searchScope() const { return searchScope_; }
    /// Each change searches; an empty text ends the search.
    void setSearchText(const QString &text);
    void setSearchScope(int scope);
    [[nodiscard]] bool isSearchActive() const { return !searchText_.isEmpty(); }
    Q_INVOKABLE void endSearch() { setSearchText({}); }
    [[nodiscard]] const QVariantList &searchResults() const { return searchResults_; }

    /// What the list shows: the results of a search, otherwise the scope's items, otherwise the content.
    [[nodiscard]] const QVariantList &items() const;
    /// Since the first appearance.
    [[nodiscard]] bool launched() const { return launched_; }

Q_SIGNALS:
    void periodsScopesChanged();
    void currentPeriodChanged();
    void searchChanged();

protected:
    /// Shows items() as they are now.
    virtual void refresh() { reloadData(); }
    /// The items that match; by default none.
    [[nodiscard]] virtual QVariantList searchWithString(const QString &text, int scope) const;
    [[nodiscard]] virtual std::unique_ptr<ViewController> makePeriodSelector(int currentPeriod);
    void viewDidAppear() override;

private:
    void search();

    QVariantList content_;
    QVariantList currentItems_;
    QVariantList searchResults_;
    QString searchText_;
    int searchScope_ = 0;
    int currentPeriod_ = 0;
    bool periodsScopes_ = false;
    bool launched_ = false;
};

} // namespace kesto
