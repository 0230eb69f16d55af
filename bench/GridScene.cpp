#include "GridScene.h"

#include "BaselineDatabase.h"

#include "import/SQLiteParser.h"
#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalHelper.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/TimeObjectAdditions.h"
#include "journal/TimeOfDay.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/RandomSource.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "recipes/DishesViewController.h"
#include "store/CoreDataManager.h"
#include "ui/Appearance.h"
#include "ui/EngineObject.h"
#include "ui/UserInterface.h"

#include <QHash>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <memory>

namespace kesto::bench
{

struct GridScene::Parts
{
    explicit Parts(const QSize &size)
        : defaults(folder.filePath(QStringLiteral("defaults.plist")))
        , platform(Platform::Services{.documentsFolder = folder.path(),
                                      .resourcesFolder = QStringLiteral(KESTO_RESOURCES_FOLDER),
                                      .version = {},
                                      .userDefaults = &defaults,
                                      .strings = &strings,
                                      .notifications = nullptr,
                                      .clock = &clock,
                                      .random = &random,
                                      .cloudStore = nullptr,
                                      .calendar = Calendar()})
        , appearance(nullptr)
        , image(size, QImage::Format_ARGB32_Premultiplied)
        , window(&control)
    {
    }

    QTemporaryDir folder;
    UserDefaults defaults;
    StringTables strings{QStringLiteral(KESTO_RESOURCES_FOLDER), QStringLiteral("ru")};
    SystemClock clock;
    SystemRandomSource random;
    Platform platform;
    std::unique_ptr<ViewController> controller;
    Appearance appearance;
    QQmlEngine engine;
    QImage image;
    QQuickRenderControl control;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> view;
    QQuickItem *grid = nullptr;
};

namespace
{

void giveAllDishesTo(int index)
{
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    CoreDataManager &manager = CoreDataManager::sharedManager();
    manager.persistentStoreCoordinator()->waitForBackgroundWork();
    if (!SQLiteParser::parse())
        qFatal("the catalogue could not be imported");
    qInstallMessageHandler(before);
    DishesCategory *category = manager.dishesCategoryForIndex(index);
    for (Dish *dish : manager.managedObjectContext()->fetchOrLog<Dish>())
        dish->setDishCategory(category);
}

/// What fills a scene.
struct Filling
{
    std::unique_ptr<ViewController> controller;
    QString view;
    QString grid; ///< the name of what scrolls in it
    int count = 0;
};

Filling dishes()
{
    giveAllDishesTo(0);
    auto screen = std::make_unique<DishesViewController>(0);
    const int count = screen->tiles()->count();
    return {std::move(screen), QStringLiteral("recipes/DishesView"), QStringLiteral("tiles"), count};
}

Filling foods()
{
    const QDateTime today = Calendar().startOfDay(QDate::currentDate());
    auto screen = std::make_unique<FoodBalanceRootViewController>(*JornalHelper::dietDayForDate(today));
    screen->loadViewIfNeeded();
    const QList<JornalButton *> buttons = screen->meatButtons();
    for (const JornalButton *button : buttons)
        screen->meatButtonTouched(button->tag());
    return {std::move(screen), QStringLiteral("journal/FoodBalanceRootView"), QStringLiteral("foods"),
            static_cast<int>(buttons.size())};
}

Filling timeRows()
{
    constexpr int rowsOfDay = 60;
    DietDay &day = *JornalHelper::dietDayForDate(Calendar().startOfDay(QDate::currentDate()));
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    for (int i = 0; i < rowsOfDay; ++i) {
        auto &row = context.insert<TimeRow>();
        row.setTime(timeOfDay(QTime(i / 4, 15 * (i % 4) + 1)));
        row.setCompleate(i % 3 == 0);
        row.setRemind(i % 4 == 0);
        day.jornalDay()->addTimeRows(row);
        auto &item = context.insert<TimeObject>();
        item.setType(1 + i % (timeObjectTypeCount - 1));
        item.setValue1(2.5F);
        row.addTimeObjects(item);
        auto &dish = context.insert<Dish>();
        dish.setNameRU(QStringLiteral("Сырники с отрубями №%1").arg(i));
        auto &planned = context.insert<DishInDietDay>();
        planned.setDish(&dish);
        row.addDishesInDietDay(planned);
    }
    auto screen = std::make_unique<JornalSheduleRootViewController>(day);
    screen->loadViewIfNeeded();
    const int count = screen->numberOfRowsInSection(0);
    return {std::move(screen), QStringLiteral("journal/JornalSheduleRootView"), QStringLiteral("list"), count};
}

Filling fillingOf(GridScene::Content content)
{
    switch (content) {
    case GridScene::Content::Foods:
        return foods();
    case GridScene::Content::TimeRows:
        return timeRows();
    default:
        return dishes();
    }
}

} // namespace

GridScene::GridScene(Content content, const QSize &size)
    : parts_(std::make_unique<Parts>(size))
{
    Filling filling = fillingOf(content);
    parts_->controller = std::move(filling.controller);
    count_ = filling.count;
    UserInterface::prepare(parts_->engine, parts_->platform);
    giveTo(parts_->engine, parts_->appearance);
    parts_->appearance.setMotion(false);

    QQmlComponent component(&parts_->engine, QUrl(QStringLiteral("qrc:/qt/qml/Kesto/%1.qml").arg(filling.view)));
    QObject *made = component.createWithInitialProperties(
        {{QStringLiteral("controller"), QVariant::fromValue(parts_->controller.get())}});
    parts_->view.reset(qobject_cast<QQuickItem *>(made));
    if (parts_->view == nullptr)
        fail(component.errorString());
    parts_->grid = parts_->view->findChild<QQuickItem *>(filling.grid);
    parts_->window.setGeometry(0, 0, size.width(), size.height());
    parts_->window.contentItem()->setSize(size);
    parts_->view->setParentItem(parts_->window.contentItem());
    parts_->view->setSize(size);
    parts_->window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&parts_->image));
    drawFrame();
}

GridScene::~GridScene() = default;

double GridScene::length() const { return parts_->grid->property("contentHeight").toDouble() - parts_->grid->height(); }

void GridScene::scrollTo(double position) { parts_->grid->setProperty("contentY", position); }

void GridScene::drawFrame()
{
    parts_->control.polishItems();
    parts_->control.beginFrame();
    parts_->control.sync();
    parts_->control.render();
    parts_->control.endFrame();
}

quint64 GridScene::checksum() const
{
    return qHashBits(parts_->image.constBits(), static_cast<size_t>(parts_->image.sizeInBytes()));
}

} // namespace kesto::bench
