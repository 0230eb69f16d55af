#pragma once

#include <QDateTime>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace kesto
{
class ManagedObjectContext;
class PersistentStoreCoordinator;
} // namespace kesto

namespace kesto::bench
{

inline constexpr int kDishes = 300;
inline constexpr int kLines = 8000;
inline constexpr int kCategories = 9;
inline constexpr int kDays = 3650;
inline constexpr int kTimeRows = 20000;
inline constexpr int kIntakes = 40000;
inline constexpr size_t kJornalDay = 1800; ///< the first of the two days of the smaller journal file

struct LineInput
{
    QString name;
    int displayOrder;
    bool russian;
};

struct DishInput
{
    QString dishID, nameRU, nameENG, recipeRU, recipeENG, dietPeriod;
    int category;
    std::vector<LineInput> lines;
};

struct CategoryInput
{
    QString nameRU, nameENG;
};

/// What the workloads read: generated texts, always the same ones, and store files made of them in a temporary folder.
/// Everything is made when it is first asked for.
class Fixtures
{
public:
    Fixtures();

    [[nodiscard]] const std::vector<CategoryInput> &categories() const { return categories_; }
    [[nodiscard]] const std::vector<DishInput> &dishes() const { return dishes_; }
    /// The days of the diary file, in order.
    [[nodiscard]] const std::vector<QDateTime> &days() const { return days_; }

    // Paths of store files, closed. A trial works on a copy.
    [[nodiscard]] const QString &emptyFile();
    [[nodiscard]] const QString &catalogueFile(); ///< the dishes and their lines
    /// Days whose journals have rows with items and records of water and protein: ten years of them, or only the two
    /// that a workload opens.
    [[nodiscard]] const QString &jornalFile(bool tenYears);
    [[nodiscard]] const QString &diaryFile(); ///< ten years of days, each with a journal, and its time rows

    [[nodiscard]] QString newPath();

private:
    QTemporaryDir folder_;
    int files_ = 0;
    std::vector<CategoryInput> categories_;
    std::vector<DishInput> dishes_;
    std::vector<QDateTime> days_;
    QString emptyFile_, catalogueFile_, diaryFile_, jornalFile_, smallJornalFile_;
};

/// A private copy of a store file, on the disk before this returns, removed at the end.
class FileCopy
{
public:
    FileCopy(Fixtures &fixtures, const QString &original);
    ~FileCopy();
    FileCopy(const FileCopy &) = delete;
    FileCopy &operator=(const FileCopy &) = delete;
    [[nodiscard]] const QString &path() const { return path_; }

private:
    QString path_;
};

/// A store file opened as the program does, and one context.
class OpenStore
{
public:
    explicit OpenStore(const QString &path);
    ~OpenStore();
    [[nodiscard]] ManagedObjectContext &context() { return *context_; }
    /// Forgets all objects in memory; the connection and its prepared statements stay.
    void renewContext();
    void close();

private:
    std::unique_ptr<PersistentStoreCoordinator> coordinator_;
    std::unique_ptr<ManagedObjectContext> context_;
};

/// Puts the days in, each with a journal, and time rows in the measure of ten years' 20,000; the caller saves.
void insertDiary(const std::vector<QDateTime> &days, ManagedObjectContext &context);

/// Puts the dishes in as an importer does; the caller saves.
void insertCatalogue(const Fixtures &fixtures, ManagedObjectContext &context);

} // namespace kesto::bench
