#include "plan/GraphViewController.h"

#include "components/AlertCenter.h"
#include "components/DayWatch.h"
#include "components/NavigationController.h"
#include "components/SplitViewController.h"
#include "model/DietDay.h"
#include "plan/CalculatorWheels.h"
#include "plan/DayTexts.h"
#include "plan/GraphTableViewController.h"
#include "plan/PlanContext.h"
#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "util/MNAdditions.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kesto
{

namespace
{

constexpr int fewest = 2;
/// The trend at the left edge knows the weights of so many days before it; older ones would count less than half a
/// percent.
constexpr int trendDays = 56;
constexpr int daysOfAWeek = 7;

CoreDataManager &manager() { return CoreDataManager::sharedManager(); }

QString axisDate(const QDateTime &date)
{
    return Platform::current().calendar().dayOf(date).toString(QStringLiteral("dd.MM"));
}

QString localizedFormat(const char16_t *key, const QString &first, const QString &second = {})
{
    const QByteArray format = localized(QString::fromUtf16(key)).toUtf8();
    return second.isNull() ? stringWithFormat(format.constData(), first)
                           : stringWithFormat(format.constData(), first, second);
}

} // namespace

GraphViewController::GraphViewController()
{
    setTitle(localized(QStringLiteral("График контроля веса")));
    connect(&DayWatch::sharedWatch(), &DayWatch::dayChanged, this, [this] {
        if (isVisible())
            loadData();
    });
}

void GraphViewController::viewDidLoad()
{
    setRightBarButtonItem(BarButtonItem::withImage(QStringLiteral("share.png"), [this] { share(); }));
}

// Weights may have been entered since.
void GraphViewController::viewWillAppear() { loadData(); }

bool GraphViewController::isTablet() const { return enclosing<SplitViewController>() != nullptr; }

QStringList GraphViewController::rangeTitles() const
{
    QStringList titles;
    for (const GraphRange &range : graphRanges(isTablet()))
        titles.append(localized(QString::fromUtf16(range.title)));
    return titles;
}

void GraphViewController::setSelectedRange(int segment)
{
    if (std::exchange(range_, segment) != segment)
        loadData();
}

QString GraphViewController::titleOf(Measure measure) const
{
    static constexpr std::array titles{u"Вес", u"Талия", u"Бедра", u"Грудь", u"Бицепс"};
    return localized(QString::fromUtf16(titles.at(measure)));
}

std::optional<float> GraphViewController::valueOf(const DietDay &day, Measure measure)
{
    switch (measure) {
    case Weight:
        return day.weight();
    case Waist:
        return day.waist();
    case Hip:
        return day.hip();
    case Chest:
        return day.chest();
    case Biceps:
        return day.biceps();
    }
    return std::nullopt;
}

// A girth needs two values in the range; the weight is always offered, and what was chosen stays in sight.
QStringList GraphViewController::measureTitles() const
{
    QStringList titles;
    for (int i = 0; i < measureCount; ++i) {
        const auto measure = static_cast<Measure>(i);
        if (measure == Weight || records_.at(i).size() - firstInRange_.at(i) >= fewest)
            titles.append(titleOf(measure));
    }
    return titles;
}

int GraphViewController::selectedMeasure() const
{
    return std::max(0, static_cast<int>(measureTitles().indexOf(titleOf(shownMeasure()))));
}

void GraphViewController::setSelectedMeasure(int index)
{
    const QString title = measureTitles().value(index);
    for (int i = 0; i < measureCount; ++i) {
        if (titleOf(static_cast<Measure>(i)) == title && wanted_ != i) {
            wanted_ = static_cast<Measure>(i);
            loadData();
            return;
        }
    }
}

GraphViewController::Measure GraphViewController::shownMeasure() const
{
    return records_.at(wanted_).size() - firstInRange_.at(wanted_) >= fewest ? wanted_ : Weight;
}

bool GraphViewController::isTrendShown() const
{
    return Platform::current().userDefaults().boolForKey(Keys::kGraphTrendKey);
}

void GraphViewController::setTrendShown(bool shown)
{
    if (shown == isTrendShown())
        return;
    Platform::current().userDefaults().setBool(shown, Keys::kGraphTrendKey);
    loadData();
}

QString GraphViewController::trendTitle() const { return localized(QStringLiteral("Линия тренда")); }

QString GraphViewController::tableTitle() const { return localized(QStringLiteral("Таблица значений")); }

// One fetch for everything that the screen may show of the range. A change of the measure or of the trend reads it
// again, because a value may have been entered on another screen beside this one.
void GraphViewController::readRecords()
{
    const Calendar &calendar = Platform::current().calendar();
    const QDateTime now = Platform::current().clock().now();
    const QDateTime upper = mn_beginningOfDay(now);
    const QDateTime lower = now.addSecs(-graphSpan(range_, isTablet()));
    const QDateTime warmUp = calendar.dateByAdding(-trendDays, Calendar::Unit::Day, lower);
    FetchRequest request;
    request.predicate = (attribute("weight") != 0 || attribute("waist") > 0 || attribute("hip") > 0 ||
                         attribute("chest") > 0 || attribute("biceps") > 0) &&
                        attribute("date") > warmUp && attribute("date") <= upper;
    request.sortDescriptors = {{"date"}};
    const std::vector<DietDay *> days = planContext().fetchOrLog<DietDay>(request);
    for (int i = 0; i < measureCount; ++i) {
        const auto measure = static_cast<Measure>(i);
        QList<GraphPoint> &records = records_.at(i);
        records.clear();
        qsizetype before = 0;
        for (const DietDay *day : days) {
            const std::optional<float> value = valueOf(*day, measure);
            if (!value || !std::isfinite(*value) || !(measure == Weight ? *value != 0 : *value > 0))
                continue;
            const QDateTime date = day->date().value_or(QDateTime());
            before += date <= lower ? 1 : 0;
            records.append({date, *value});
        }
        firstInRange_.at(i) = before;
    }
}

void GraphViewController::loadData()
{
    readRecords();
    const Measure measure = shownMeasure();
    const QList<GraphPoint> &records = records_.at(measure);
    const qsizetype first = firstInRange_.at(measure);
    const qsizetype count = records.size() - first;
    content_ = {};
    selected_ = -1;
    if (count >= fewest) {
        const QList<float> trend = isTrendShown() ? graphTrend(records) : QList<float>();
        for (const qsizetype index : thinnedIndices(count)) {
            const GraphPoint &point = records[first + index];
            content_.points.append(point);
            content_.phases.append(CoreDataManager::dietPeriodForCalendar(Platform::current().calendar(), point.date));
            if (!trend.isEmpty())
                content_.trend.append(trend[first + index]);
        }
        const auto [least, most] =
            std::minmax_element(content_.points.begin(), content_.points.end(),
                                [](const GraphPoint &a, const GraphPoint &b) { return a.value < b.value; });
        content_.minValue = least->value;
        content_.maxValue = most->value;
        content_.unit = inUserUnits(1) > 0 ? 1 / inUserUnits(1) : 1;
        const QVariant ideal = Platform::current().userDefaults().valueForKey(Keys::kIdealWidth);
        if (measure == Weight && ideal.isValid())
            content_.ideal = Platform::current().userDefaults().floatForKey(Keys::kIdealWidth);
    }
    upadteLabels();
    Q_EMIT reloaded();
    Q_EMIT selectedPointChanged();
}

QList<QDateTime> GraphViewController::dates() const
{
    QList<QDateTime> dates;
    for (const GraphPoint &point : content_.points)
        dates.append(point.date);
    return dates;
}

QList<float> GraphViewController::values() const
{
    QList<float> values;
    for (const GraphPoint &point : content_.points)
        values.append(point.value);
    return values;
}

std::optional<float> GraphViewController::difWeight() const
{
    if (content_.points.isEmpty())
        return std::nullopt;
    return content_.points.last().value - content_.points.first().value;
}

QString GraphViewController::errorText() const
{
    return content_.points.isEmpty() ? localized(QStringLiteral("Слишком мало данных для построения графика"))
                                     : QString();
}

void GraphViewController::upadteLabels()
{
    minText_.clear();
    idealText_.clear();
    maxText_.clear();
    if (difWeight()) {
        const auto line = [](const QString &name, const QString &value) {
            return stringWithFormat("%@: %@", name, value);
        };
        minText_ = line(localized(QStringLiteral("Мин")), valueText(content_.minValue));
        maxText_ = line(localized(QStringLiteral("Макс")), valueText(content_.maxValue));
        if (content_.ideal)
            idealText_ = line(localized(QStringLiteral("Ваш идеальный вес")), kgStringFromNumber(*content_.ideal));
    }
    updateRootLabels();
}

void GraphViewController::updateRootLabels()
{
    period_.clear();
    difference_.clear();
    if (!difWeight())
        return;
    period_ = stringWithFormat("%@ %@ %@ %@", localized(QStringLiteral("от")), axisDate(content_.points.first().date),
                               localized(QStringLiteral("до")), axisDate(content_.points.last().date));
    difference_ = valueText(*difWeight());
}

QString GraphViewController::minText() const { return minText_; }

QString GraphViewController::idealText() const { return idealText_; }

QString GraphViewController::maxText() const { return maxText_; }

QVariantList GraphViewController::phases() const
{
    QVariantList phases;
    int previous = -1;
    for (const int phase : content_.phases) {
        const auto color = CoreDataManager::colorForPeriod(phase);
        if (phase != previous && color) {
            phases.append(QVariantMap{{QStringLiteral("name"), CoreDataManager::periodNameForDietPeriod(phase)},
                                      {QStringLiteral("color"), *color}});
        }
        previous = phase;
    }
    return phases;
}

QString GraphViewController::kgStringFromNumber(double number) const
{
    return stringWithFormat("%0.1f %@", manager().isMetrickSystem() ? number : number / kilogramsPerPound,
                            manager().kgString());
}

double GraphViewController::inUserUnits(double value) const
{
    if (manager().isMetrickSystem())
        return value;
    return value / (shownMeasure() == Weight ? kilogramsPerPound : centimetresPerInch);
}

QString GraphViewController::unitText() const
{
    return shownMeasure() == Weight ? manager().kgString() : manager().cmString();
}

QString GraphViewController::valueText(double value) const
{
    return stringWithFormat("%0.1f %@", inUserUnits(value), unitText());
}

void GraphViewController::setSelectedPoint(int index)
{
    const int selected = index >= 0 && index < numberOfDates() ? index : -1;
    if (std::exchange(selected_, selected) != selected)
        Q_EMIT selectedPointChanged();
}

void GraphViewController::moveSelection(int steps)
{
    const int last = static_cast<int>(numberOfDates()) - 1;
    if (last < 0)
        return;
    setSelectedPoint(selected_ < 0 ? last : std::clamp(selected_ + steps, 0, last));
}

QString GraphViewController::flagText() const
{
    if (selected_ < 0)
        return {};
    const GraphPoint &point = content_.points[selected_];
    return stringWithFormat("%@\n%@", dayTitle(point.date), valueText(point.value));
}

// Against the week before where a value was recorded that day, otherwise against the value recorded before.
QString GraphViewController::comparedText(const GraphPoint &point) const
{
    const QList<GraphPoint> &records = records_.at(shownMeasure());
    const auto at = std::find(records.begin(), records.end(), point);
    if (at == records.begin() || at == records.end())
        return {};
    const Calendar &calendar = Platform::current().calendar();
    const QDateTime weekBefore = calendar.dateByAdding(-daysOfAWeek, Calendar::Unit::Day, point.date);
    const auto week =
        std::find_if(records.begin(), at, [&](const GraphPoint &each) { return each.date == weekBefore; });
    const GraphPoint &other = week != at ? *week : *std::prev(at);
    const double change = inUserUnits(point.value) - inUserUnits(other.value);
    const QString amount = stringWithFormat("%0.1f", std::abs(change));
    const bool same = amount == QLatin1String("0.0");
    if (week != at) {
        return same ? localized(QStringLiteral("столько же, сколько неделю назад"))
                    : localizedFormat(
                          change < 0 ? u"на %@ меньше, чем неделю назад" : u"на %@ больше, чем неделю назад", amount);
    }
    const QString day = dayTitle(other.date);
    return same ? localizedFormat(u"столько же, сколько %@", day)
                : localizedFormat(change < 0 ? u"на %@ меньше, чем %@" : u"на %@ больше, чем %@", amount, day);
}

QString GraphViewController::spokenText() const
{
    if (!difWeight())
        return errorText();
    QStringList parts;
    if (selected_ >= 0) {
        const GraphPoint &point = content_.points[selected_];
        parts = {dayTitle(point.date), valueText(point.value), comparedText(point)};
    } else {
        parts = {titleOf(shownMeasure()), period_, difference_, minText_, maxText_, idealText_};
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void GraphViewController::showTable()
{
    const Measure measure = shownMeasure();
    QList<GraphTableRow> rows;
    const QList<GraphPoint> &records = records_.at(measure);
    for (qsizetype i = records.size() - 1; i >= firstInRange_.at(measure); --i)
        rows.append({dayTitle(records[i].date), valueText(records[i].value), comparedText(records[i])});
    auto table = std::make_unique<GraphTableViewController>(titleOf(measure), std::move(rows));
    if (navigationController() != nullptr)
        navigationController()->pushViewController(std::move(table), true);
}

void GraphViewController::share()
{
    if (errorText().isEmpty()) {
        Alert sheet{.style = Alert::Style::ActionSheet,
                    .buttons = {{localized(QStringLiteral("Сохранить картинку"))},
                                {localized(QStringLiteral("Скопировать картинку"))},
                                {localized(QStringLiteral("Отменить")), Alert::Role::Cancel}},
                    .anchor = QStringLiteral("bar/share.png"),
                    .context = this};
        sheet.answered = [this](const AlertAnswer &answer) {
            if (!answer.isCancel)
                Q_EMIT pictureRequested(answer.buttonIndex == 0 ? Destination::File : Destination::Clipboard);
        };
        AlertCenter::sharedCenter().show(std::move(sheet));
    } else {
        showAlert({}, errorText());
    }
}

QString GraphViewController::pictureTitle() const
{
    return stringWithFormat("%@, %@: %@", titleOf(shownMeasure()), period_, difference_);
}

void GraphViewController::takePicture(const QImage &picture, Destination destination)
{
    if (destination == Destination::Clipboard) {
        QGuiApplication::clipboard()->setImage(picture);
        return;
    }
    const Result<QString> saved = savedPicture(picture);
    if (saved)
        showAlert(localized(QStringLiteral("Картинка сохранена")), *saved);
    else
        showAlert(localized(QStringLiteral("Картинку не удалось сохранить")), saved.error().reason);
}

// Under a name of its own: a picture saved earlier stays.
Result<QString> GraphViewController::savedPicture(const QImage &picture) const
{
    const QString what = QStringLiteral("cannot save the graph");
    const Platform &platform = Platform::current();
    QBuffer png;
    if (!png.open(QIODevice::WriteOnly) || !picture.save(&png, "PNG"))
        return failure(what, {}, QStringLiteral("the picture cannot be encoded"));
    const QDir folder(platform.picturesFolder());
    if (platform.picturesFolder().isEmpty() || !folder.mkpath(QStringLiteral(".")))
        return failure(what, folder.path(), QStringLiteral("the folder cannot be created"));
    const QString day = platform.calendar().dayOf(platform.clock().now()).toString(Qt::ISODate);
    for (int i = 1;; ++i) {
        const QString suffix = i == 1 ? QString() : QStringLiteral("-%1").arg(i);
        const QString path = folder.filePath(QStringLiteral("kesto-%1%2.%3").arg(day, suffix, QStringLiteral("png")));
        if (QFileInfo::exists(path))
            continue;
        if (const Result<void> written = AtomicFile::write(png.data(), path); !written)
            return tl::unexpected(written.error());
        return path;
    }
}

} // namespace kesto
