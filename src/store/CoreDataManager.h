#pragma once

#include "platform/Calendar.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"

#include <QColor>
#include <QObject>
#include <QUrl>
#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kesto
{

class CloudKeyValueStore;
class Dish;
class DishesCategory;
class Ingredient;
class Platform;
class PurhaseIngredient;

/// The one owner of the store file, of the object context that every screen works in, and of the settings that the
/// whole program reads: start of the diet, units, language. Main thread only; the store file is attached in the
/// background, and whoever reads meanwhile waits.
class CoreDataManager : public QObject
{
    Q_OBJECT
public:
    /// Posted through the NotificationCenter as soon as the context exists.
    static const QString kCoreDataReadyNotification;

    /// The one manager of the current platform, made on the first call.
    static CoreDataManager &sharedManager();
    explicit CoreDataManager(Platform &platform);
    ~CoreDataManager() override;

    /// To be set before the manager is made: rebuild the calendar at the end of its making.
    static bool updateSqliteStoreWhenStoreWillReady;

    /// Made on the first call.
    [[nodiscard]] ManagedObjectContext *managedObjectContext();
    [[nodiscard]] PersistentStoreCoordinator *persistentStoreCoordinator();
    [[nodiscard]] const ManagedObjectModel &managedObjectModel() const;
    [[nodiscard]] QUrl documentsDirectoryURL() const;

    /// Null while the use of the cloud is off or the platform has no cloud.
    [[nodiscard]] CloudKeyValueStore *cloudStore() const { return cloudStore_; }

    /// The first day of the diet; absent until one was started.
    [[nodiscard]] std::optional<QDateTime> startDietDay() const { return startDietDay_; }
    void setStartDietDay(const std::optional<QDateTime> &date) { startDietDay_ = date; }
    [[nodiscard]] bool isMetrickSystem() const { return metrickSystem_; }
    void setMetrickSystem(bool metric) { metrickSystem_ = metric; }
    /// The code of the language chosen in the program; null until one was chosen.
    [[nodiscard]] QString langluageCode() const { return langluageCode_; }
    [[nodiscard]] QString kgString() const;
    [[nodiscard]] QString cmString() const;

    /// Another device changed the plan or the favourites: they are copied into the user defaults. Connected to the
    /// cloud store while its use is on.
    void cloudStoreChanged();
    /// Deletes the diet days before the stored start and marks the Attack days, one every 86,400 seconds.
    void updateSqliteFileForNewStartDietDay();
    /// Runs the import of the catalogue unless it ran this way before.
    void reparseSqliteIfNeeded(const std::function<void()> &parse);

    /// The dishes allowed in a phase (0 to 3), by category: sections of KeyValueCoding * named by the category's
    /// Russian name.
    [[nodiscard]] QVariantList dishesForDietPeriod(int period);
    /// The category of a position, or null.
    [[nodiscard]] DishesCategory *dishesCategoryForIndex(int index);
    /// Deletes a dish and its placements in days and journals. Products of its lines that stand in the shopping list
    /// stay as products of their own.
    void deleteDish(Dish &dish);
    /// For maintainers: writes every dish in the layout of the catalogue to "recipes.plist" in the documents folder.
    /// False, and a log line, when that failed.
    bool saveRecipesToPlist();

    /// The shopping list, the line that was added last first. What can't be saved stays to be saved with the next
    /// change, here and in the following.
    [[nodiscard]] std::vector<PurhaseIngredient *> purhaseIngredients();
    /// The line of the product of an ingredient's name, or null.
    [[nodiscard]] PurhaseIngredient *purchaseIngredintWithIng(const Ingredient &ingredient);
    /// Puts a product on top of the list, once a name; a quantity behind " - " is left out. A text that begins with a
    /// hyphen is a remark and adds nothing.
    void addIngredientToCard(const QString &text);
    /// Deletes a line, and its product unless a dish needs it.
    void removePurchaseIngredientFromCard(PurhaseIngredient &line);
    /// The same with every line, and one save at the end.
    void removeAllPurchaseIngredientsFromCard();

    /// Dishes for a day of a phase, chosen at random: one each from the categories that a day is
    /// made of, and at the end a second, different one from the first of these. A category without a dish for the
    /// phase is left out; so is the second dish when there is no other.
    [[nodiscard]] std::vector<Dish *> autoFilledDishesForPeriod(int period);

    /// The phase of a date by the stored plan: −1 before the start, 0 Attack, 1 Cruise, 2 Consolidation, 3
    /// Stabilization.
    [[nodiscard]] static int dietPeriodForCalendar(const Calendar &calendar, const QDateTime &date);
    /// The localised name of a phase; null outside 0 to 3.
    [[nodiscard]] static QString periodNameForDietPeriod(int period);
    /// The colour of a phase; nothing outside 0 to 3.
    [[nodiscard]] static std::optional<QColor> colorForPeriod(int period);

private:
    void attachStores();
    void moveFromCloud(const QString &local, const QString &cloud);
    void mergeIntoCloud(const QString &local, const QString &cloud);
    [[nodiscard]] Result<PurhaseIngredient *> lineOf(const Ingredient &ingredient);
    void openStore(const QString &local, const QString &cloud);

    Platform &platform_;
    CloudKeyValueStore *cloudStore_ = nullptr;
    bool useCloud_ = false;
    std::optional<QDateTime> startDietDay_;
    bool metrickSystem_ = true;
    QString langluageCode_;
    std::unique_ptr<PersistentStoreCoordinator> coordinator_;
    std::unique_ptr<ManagedObjectContext> context_;
};

} // namespace kesto
