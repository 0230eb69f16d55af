#include "Fixtures.h"

#include "BaselineDatabase.h"

#include "model/DietDay.h"
#include "model/DietModel.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/FoodObject.h"
#include "model/Ingredient.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"

#include <QFile>

#include <array>
#include <random>

namespace kesto::bench
{

namespace
{

const char *const kRussianWords[] = {"творог", "отруби", "курица",  "лосось",  "йогурт",  "укроп",  "тесто",  "яйцо",
                                     "молоко", "лимон",  "чеснок",  "имбирь",  "кабачок", "томат",  "огурец", "бульон",
                                     "варить", "резать", "смешать", "духовка", "минут",   "тонкий", "свежий", "подать"};
const char *const kEnglishWords[] = {"curd", "bran",  "chicken", "salmon", "yoghurt", "dill",   "dough",   "egg",
                                     "milk", "lemon", "garlic",  "ginger", "squash",  "tomato", "gherkin", "broth",
                                     "boil", "slice", "mix",     "oven",   "minutes", "thin",   "fresh",   "serve"};

class Texts
{
public:
    QString words(bool russian, int count)
    {
        QString text;
        for (int i = 0; i < count; ++i) {
            if (i > 0)
                text += QLatin1Char(' ');
            text += QString::fromUtf8((russian ? kRussianWords : kEnglishWords)[next(24)]);
        }
        return text;
    }
    QString line(bool russian)
    {
        return words(russian, 2) + QStringLiteral(" - %1 ").arg((next(20) + 1) * 25) +
               (russian ? QStringLiteral("г") : QStringLiteral("g"));
    }
    int next(unsigned limit) { return static_cast<int>(random_() % limit); }

private:
    std::mt19937 random_{20140301}; // NOLINT: the same texts in every run
};

std::vector<DishInput> makeDishes(Texts &texts)
{
    std::vector<DishInput> dishes(kDishes);
    for (int i = 0; i < kDishes; ++i) {
        DishInput &dish = dishes[static_cast<size_t>(i)];
        dish.dishID = QStringLiteral("dish%1").arg(i);
        dish.nameRU = texts.words(true, 3) + QStringLiteral(" №%1").arg(i);
        dish.nameENG = texts.words(false, 3) + QStringLiteral(" No. %1").arg(i);
        dish.recipeRU = texts.words(true, 70);
        dish.recipeENG = texts.words(false, 70);
        dish.dietPeriod = QStringLiteral("1234").mid(texts.next(4));
        dish.category = i % kCategories;
        const int lines = kLines * (i + 1) / kDishes - kLines * i / kDishes;
        for (int line = 0; line < lines; ++line) {
            const bool russian = line % 2 == 0;
            dish.lines.push_back({texts.line(russian), line / 2, russian});
        }
    }
    return dishes;
}

void mustSave(ManagedObjectContext &context)
{
    if (const auto saved = context.save(); !saved)
        fail(saved.error().message());
}

/// A day of the journal files: the same in both.
void insertJornal(int number, const QDateTime &date, ManagedObjectContext &context)
{
    constexpr std::array hours{9, 11, 12, 14, 18, 20};
    constexpr int kinds = 8;
    auto &day = context.insert<DietDay>();
    day.setDate(date);
    day.setWeight(80);
    auto &journal = context.insert<JornalDay>();
    day.setJornalDay(&journal);
    const int rows = kTimeRows * (number + 1) / kDays - kTimeRows * number / kDays;
    for (int row = 0; row < rows; ++row) {
        auto &time = context.insert<TimeRow>();
        time.setTime(static_cast<float>(hours.at(static_cast<size_t>(row))));
        time.setCompleate(row % 2 == 0);
        time.setJoranlDay(&journal);
        auto &item = context.insert<TimeObject>();
        item.setType(row == 0 ? 0 : row);
        item.setValue1(2);
        item.setTimeRow(&time);
    }
    const int intakes = kIntakes * (number + 1) / kDays - kIntakes * number / kDays;
    for (int intake = 0; intake < intakes; ++intake) {
        auto &food = context.insert<FoodObject>();
        food.setType(1 + intake % kinds);
        food.setTime(static_cast<float>(9 + intake));
        if (intake % 2 == 0) {
            food.setJornalDayWatter(&journal);
        } else {
            food.setCount(1);
            food.setJornalDayMeat(&journal);
        }
    }
}

} // namespace

Fixtures::Fixtures()
{
    if (!folder_.isValid())
        fail(folder_.errorString());
    Texts texts;
    for (int i = 0; i < kCategories; ++i)
        categories_.push_back({texts.words(true, 2) + QString::number(i), texts.words(false, 2) + QString::number(i)});
    dishes_ = makeDishes(texts);
    const QDateTime first(QDate(2014, 3, 1), QTime(0, 0), Qt::UTC);
    for (int i = 0; i < kDays; ++i)
        days_.push_back(first.addDays(i));
}

QString Fixtures::newPath() { return folder_.filePath(QStringLiteral("%1.sqlite").arg(files_++)); }

const QString &Fixtures::emptyFile()
{
    if (emptyFile_.isNull()) {
        emptyFile_ = newPath();
        const OpenStore store(emptyFile_);
    }
    return emptyFile_;
}

const QString &Fixtures::catalogueFile()
{
    if (catalogueFile_.isNull()) {
        catalogueFile_ = newPath();
        OpenStore store(catalogueFile_);
        insertCatalogue(*this, store.context());
        mustSave(store.context());
    }
    return catalogueFile_;
}

const QString &Fixtures::diaryFile()
{
    if (diaryFile_.isNull()) {
        diaryFile_ = newPath();
        OpenStore store(diaryFile_);
        insertDiary(days_, store.context());
        mustSave(store.context());
    }
    return diaryFile_;
}

const QString &Fixtures::jornalFile(bool tenYears)
{
    QString &file = tenYears ? jornalFile_ : smallJornalFile_;
    if (file.isNull()) {
        file = newPath();
        OpenStore store(file);
        for (size_t i = 0; i < days_.size(); ++i) {
            if (tenYears || i == kJornalDay || i == kJornalDay + 1)
                insertJornal(static_cast<int>(i), days_[i], store.context());
        }
        mustSave(store.context());
    }
    return file;
}

FileCopy::FileCopy(Fixtures &fixtures, const QString &original)
    : path_(fixtures.newPath())
{
    QFile source(original);
    QFile copy(path_);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly) || copy.write(source.readAll()) < 0)
        fail(copy.errorString());
    copy.close();
    const PlainDatabase settled(path_); // syncs it
}

FileCopy::~FileCopy()
{
    for (const char *suffix : {"", "-wal", "-shm"})
        QFile::remove(path_ + QLatin1String(suffix));
}

OpenStore::OpenStore(const QString &path)
    : coordinator_(std::make_unique<PersistentStoreCoordinator>(dietModel()))
{
    if (const auto added = coordinator_->addPersistentStore(path, {}); !added)
        fail(added.error().message());
    renewContext();
}

OpenStore::~OpenStore() = default;

void OpenStore::renewContext()
{
    context_.reset();
    context_ = std::make_unique<ManagedObjectContext>(*coordinator_);
}

void OpenStore::close()
{
    context_.reset();
    coordinator_.reset();
}

void insertDiary(const std::vector<QDateTime> &days, ManagedObjectContext &context)
{
    Texts texts;
    for (int i = 0; i < static_cast<int>(days.size()); ++i) {
        auto &day = context.insert<DietDay>();
        day.setDate(days[static_cast<size_t>(i)]);
        day.setWeight(60.0F + static_cast<float>(texts.next(300)) / 10);
        if (i % 7 == 0) {
            day.setChest(static_cast<float>(90 + texts.next(20)));
            day.setWaist(static_cast<float>(70 + texts.next(20)));
        }
        if (i % 2 == 0)
            day.setChB(true);
        auto &journal = context.insert<JornalDay>();
        journal.setSportDay(i % 3 == 0);
        journal.setMeatSportActivity(1 + texts.next(4));
        day.setJornalDay(&journal);
        const int rows = kTimeRows * (i + 1) / kDays - kTimeRows * i / kDays;
        for (int row = 0; row < rows; ++row) {
            auto &time = context.insert<TimeRow>();
            time.setTime(7.0F + static_cast<float>(row) * 2.5F);
            time.setCompleate(texts.next(2) == 0);
            time.setRemind(row == 0);
            if (row == 0)
                time.setReminderDate(days[static_cast<size_t>(i)].addSecs(7 * 3600));
            if (row == 1)
                time.setOtherTimeObject(texts.words(true, 2));
            time.setJoranlDay(&journal);
        }
    }
}

void insertCatalogue(const Fixtures &fixtures, ManagedObjectContext &context)
{
    std::vector<DishesCategory *> categories;
    for (const CategoryInput &input : fixtures.categories()) {
        auto &category = context.insert<DishesCategory>();
        category.setNameRU(input.nameRU);
        category.setNameENG(input.nameENG);
        category.setDisplayOrder(static_cast<quint32>(categories.size()));
        categories.push_back(&category);
    }
    for (const DishInput &input : fixtures.dishes()) {
        auto &dish = context.insert<Dish>();
        dish.setDishID(input.dishID);
        dish.setNameRU(input.nameRU);
        dish.setNameENG(input.nameENG);
        dish.setRecipeRU(input.recipeRU);
        dish.setRecipeENG(input.recipeENG);
        dish.setDietPeriod(input.dietPeriod);
        dish.setRecipeNew(true);
        dish.setDishCategory(categories[static_cast<size_t>(input.category)]);
        for (const LineInput &line : input.lines) {
            auto &ingredient = context.insert<Ingredient>();
            ingredient.setName(line.name);
            ingredient.setDisplayOrder(line.displayOrder);
            if (line.russian)
                dish.addIngredientsRU(ingredient);
            else
                dish.addIngredientsENG(ingredient);
        }
    }
}

} // namespace kesto::bench
