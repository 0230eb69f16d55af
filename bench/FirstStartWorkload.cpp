#include "BaselineDatabase.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "import/SQLiteParser.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/RandomSource.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"

#include <QFile>
#include <QTemporaryDir>

#include <pugixml.hpp>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kesto::bench
{

namespace
{

quint64 contentOf(const QString &path) { return contentChecksum(path, {"DishesCategory", "Dish", "Ingredient"}); }

/// The program's own first start: the shipped catalogue, read, imported and saved.
class OurFirstStart final : public Trial
{
public:
    OurFirstStart()
        : silenced_(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
        , defaults_(std::in_place, folder_.filePath(QStringLiteral("defaults.plist")))
        , strings_(resources(), QStringLiteral("ru"))
        , platform_(std::in_place, Platform::Services{.documentsFolder = folder_.path(),
                                                      .resourcesFolder = resources(),
                                                      .version = {},
                                                      .userDefaults = &*defaults_,
                                                      .strings = &strings_,
                                                      .notifications = nullptr,
                                                      .clock = &clock_,
                                                      .random = &random_,
                                                      .cloudStore = nullptr,
                                                      .calendar = Calendar()})
    {
        CoreDataManager::sharedManager().persistentStoreCoordinator()->waitForBackgroundWork();
    }
    ~OurFirstStart() override
    {
        platform_.reset();
        qInstallMessageHandler(silenced_);
    }
    void run() override
    {
        if (!SQLiteParser::parse())
            qFatal("the catalogue could not be imported");
    }
    quint64 checksum() override
    {
        platform_.reset(); // closes the file
        return contentOf(folder_.filePath(QStringLiteral("Diet.sqlite")));
    }

    static QString resources() { return QStringLiteral(KESTO_RESOURCES_FOLDER); }

private:
    QTemporaryDir folder_;
    QtMessageHandler silenced_;
    std::optional<UserDefaults> defaults_;
    StringTables strings_;
    SystemClock clock_;
    SystemRandomSource random_;
    std::optional<Platform> platform_;
};

/// pugixml and the C API, with nothing between them: the texts go from the parsed file into the statements as they are.
class PlainFirstStart final : public Trial
{
public:
    explicit PlainFirstStart(Fixtures &fixtures)
        : file_(fixtures, fixtures.emptyFile())
        , database_(std::in_place, file_.path())
    {
    }
    void run() override
    {
        pugi::xml_document document;
        const QByteArray path = QFile::encodeName(OurFirstStart::resources() + QStringLiteral("/recipes.plist"));
        if (!document.load_file(path.constData()))
            fail(QStringLiteral("the catalogue can't be read"));
        PlainDatabase::Statement category(
            *database_, "INSERT INTO DishesCategory (_pk, nameRU, nameENG, displayOrder) VALUES (?, ?, ?, ?)");
        PlainDatabase::Statement dish(
            *database_, "INSERT INTO Dish (_pk, dishID, nameRU, nameENG, recipeRU, recipeENG, dietPeriod, recipeNew, "
                        "dishCategory) VALUES (?, ?, ?, ?, ?, ?, ?, 1, ?)");
        PlainDatabase::Statement line(
            *database_, "INSERT INTO Ingredient (_pk, name, displayOrder, dishRU, dishENG) VALUES (?, ?, ?, ?, ?)");
        std::map<std::string, qint64> categories;
        qint64 dishes = 0;
        qint64 lines = 0;
        database_->execute("BEGIN IMMEDIATE");
        for (const pugi::xml_node &record : document.child("plist").child("array").children("dict")) {
            std::map<std::string_view, pugi::xml_node> fields;
            for (const pugi::xml_node &key : record.children("key"))
                fields[key.child_value()] = key.next_sibling();
            const auto text = [&](const char *key) { return fields[key].child_value(); };
            auto [known, added] = categories.try_emplace(text("catRU"), categories.size() + 1);
            if (added) {
                category.bind(1, known->second);
                category.bindUtf8(2, text("catRU"));
                category.bindUtf8(3, text("catENG"));
                category.bind(4, known->second - 1);
                category.execute();
            }
            dish.bind(1, ++dishes);
            int position = 2;
            for (const char *key : {"dishID", "nameRU", "nameENG", "recipeRU", "recipeENG", "dietPeriod"})
                dish.bindUtf8(position++, text(key));
            dish.bind(position, known->second);
            dish.execute();
            for (const auto &[key, own, other] : {std::tuple("ingredientsRU", 4, 5), {"ingredientsENG", 5, 4}}) {
                qint64 order = 0;
                for (const pugi::xml_node &name : fields[key].children("string")) {
                    line.bind(1, ++lines);
                    line.bindUtf8(2, name.child_value());
                    line.bind(3, order++);
                    line.bind(own, dishes);
                    line.bindNull(other);
                    line.execute();
                }
            }
        }
        database_->execute("COMMIT");
    }
    quint64 checksum() override
    {
        database_.reset();
        return contentOf(file_.path());
    }

private:
    FileCopy file_;
    std::optional<PlainDatabase> database_;
};

} // namespace

Workload firstStart(Fixtures &fixtures)
{
    return {.name = "first start: the shipped catalogue parsed, imported and saved",
            .contenders = {contender<OurFirstStart>("ours"),
                           contender<PlainFirstStart>("pugixml and plain C API", fixtures)},
            .bars = {{Bar::Kind::TimesContender, 1.3, "pugixml and plain C API"}, {Bar::Kind::SyncsExactly, 1}}};
}

} // namespace kesto::bench
