#pragma once

#include "platform/Calendar.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "store/StoreProblem.h"

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
class DietDay;
class Dish;
class DishesCategory;
class Ingredient;
class Platform;
class PurhaseIngredient;

/// Owns the store file, the object context that every screen uses, and the settings that the whole program reads: the
/// start of the diet, units and language. Main thread only. The store file is opened in the background; a read waits
/// until it is open.
class CoreDataManager : public QObject
{
    Q_OBJECT
public:
    /// Posted through the NotificationCenter as soon as the context exists.
    static const QString kCoreDataReadyNotification;

    /// The current platform's manager, created on the first call.
    static CoreDataManager &sharedManager();
    explicit CoreDataManager(Platform &platform);
    ~CoreDataManager() override;

    /// Set this before the manager is created to have the calendar rebuilt at the end of its creation.
    static bool updateSqliteStoreWhenStoreWillReady;

    /// Created on the first call.
    [[nodiscard]] ManagedObjectContext *managedObjectContext();
    [[nodiscard]] PersistentStoreCoordinator *persistentStoreCoordinator();
    [[nodiscard]] const ManagedObjectModel &managedObjectModel() const;
    [[nodiscard]] QUrl documentsDirectoryURL() const;

    /// Why the store file could not be opened; nothing while it is open or being opened. storeOpened() or
    /// storeRefused() is emitted when the attempt ends.
    [[nodiscard]] const std::optional<StoreProblem> &storeProblem() const { return storeProblem_; }
    /// Waits until the attempt to open the store file has ended.
    [[nodiscard]] bool isStoreOpen();
    /// Sets the file of storeProblem() aside and opens a new, empty store, with a new context. Forgets which version of
    /// the catalogue was imported. On an error nothing has changed.
    [[nodiscard]] Result<void> startWithEmptyStore();

    /// Null while the use of the cloud is off or the platform has no cloud.
    [[nodiscard]] CloudKeyValueStore *cloudStore() const { return cloudStore_; }

    /// The first day of the diet; absent before the first start.
    [[nodiscard]] std::optional<QDateTime> startDietDay() const { return startDietDay_; }
    void setStartDietDay(const std::optional<QDateTime> &date) { startDietDay_ = date; }
    [[nodiscard]] bool isMetrickSystem() const { return metrickSystem_; }
    void setMetrickSystem(bool metric) { metrickSystem_ = metric; }
    /// The code of the language chosen in the program; null without a choice.
    [[nodiscard]] QString langluageCode() const { return langluageCode_; }
    [[nodiscard]] QString kgString() const;
    [[nodiscard]] QString cmString() const;

    /// Copies the plan and the favourites into the user defaults after another device has changed them. Connected to
    /// the cloud store while its use is on.
    void cloudStoreChanged();
    /// Deletes the diet days before the stored start and marks its Attack days.
    void updateSqliteFileForNewStartDietDay();
    /// The diet days that a start at this moment deletes.
    [[nodiscard]] Result<std::vector<DietDay *>> dietDaysBefore(const QDateTime &date);
    /// Deletes those days with all that belongs to them, without saving. Logs a failed read and then deletes nothing.
    void deleteDietDaysBefore(const QDateTime &date);
    /// Marks days as pure protein, from a date on in steps of 86,400 seconds, and creates missing ones, without saving.
    /// Logs a failed read and then marks nothing.
    void markAttackDays(const QDateTime &start, qint64 days);
    /// Runs the import of the catalogue once in the life of the settings.
    void reparseSqliteIfNeeded(const std::function<void()> &parse);

    /// The dishes allowed in a phase (0 to 3) by category: sections of KeyValueCoding *, named after the category in
    /// Russian.
    [[nodiscard]] QVariantList dishesForDietPeriod(int period);
    /// Whether the store is known to hold no dish; false when it cannot be read. Waits for the store.
    [[nodiscard]] bool holdsNoDish();
    /// The category with this display order, or null.
    [[nodiscard]] DishesCategory *dishesCategoryForIndex(int index);
    /// Deletes a dish and its placements in days and journals. Its lines that are on the shopping list stay as products
    /// of their own.
    void deleteDish(Dish &dish);
    /// For maintainers: writes every dish in the catalogue's format to "recipes.plist" in the documents folder.
    [[nodiscard]] Result<void> saveRecipesToPlist();

    /// The shopping list, the latest line first. Changes that cannot be saved are saved with the next change, also in
    /// the operations below.
    [[nodiscard]] std::vector<PurhaseIngredient *> purhaseIngredients();
    /// The line whose product has the ingredient's name, or null.
    [[nodiscard]] PurhaseIngredient *purchaseIngredintWithIng(const Ingredient &ingredient);
    /// Puts a product on top of the list; each name is there once. Cuts a quantity behind " - " off. Ignores a text
    /// that begins with a hyphen, because it is a remark.
    void addIngredientToCard(const QString &text);
    /// Deletes a line, and its product unless it is an ingredient of a dish.
    void removePurchaseIngredientFromCard(PurhaseIngredient &line);
    /// The same for all lines, with one save.
    void removeAllPurchaseIngredientsFromCard();

    /// Random dishes for a day of a phase: one from each category of the automatic filling and, at the end, a second
    /// one from the first of these categories. Without an allowed dish a category is left out; without a second dish
    /// that one is left out.
    [[nodiscard]] std::vector<Dish *> autoFilledDishesForPeriod(int period);

    /// The phase of a date in the stored plan: −1 before the start, 0 Attack, 1 Cruise, 2 Consolidation,
    /// 3 Stabilization.
    [[nodiscard]] static int dietPeriodForCalendar(const Calendar &calendar, const QDateTime &date);
    /// The localised name of a phase; null outside 0 to 3.
    [[nodiscard]] static QString periodNameForDietPeriod(int period);
    /// The colour of a phase; nothing outside 0 to 3.
    [[nodiscard]] static std::optional<QColor> colorForPeriod(int period);

Q_SIGNALS:
    void storeOpened();
    void storeRefused();

private:
    void attachInBackground(const std::function<std::optional<StoreProblem>()> &attachment);
    void attachmentEnded(const std::optional<StoreProblem> &problem);
    std::optional<StoreProblem> attachStores();
    std::optional<StoreProblem> moveFromCloud(const QString &local, const QString &cloud);
    std::optional<StoreProblem> mergeIntoCloud(const QString &local, const QString &cloud);
    std::optional<StoreProblem> openStore(const QString &path, bool isCloudFile);
    std::optional<StoreProblem> attach(const QString &path, const PersistentStoreOptions &options);
    [[nodiscard]] Result<PurhaseIngredient *> lineOf(const Ingredient &ingredient);
    [[nodiscard]] QString cloudPath() const;
    Result<void> recordMove(const std::vector<std::pair<QString, bool>> &markers);

    Platform &platform_;
    CloudKeyValueStore *cloudStore_ = nullptr;
    bool useCloud_ = false;
    std::optional<QDateTime> startDietDay_;
    bool metrickSystem_ = true;
    QString langluageCode_;
    std::unique_ptr<PersistentStoreCoordinator> coordinator_;
    std::unique_ptr<ManagedObjectContext> context_;
    std::vector<std::unique_ptr<ManagedObjectContext>> formerContexts_; ///< a screen that is closing may show them
    std::optional<StoreProblem> storeProblem_;
};

} // namespace kesto
