#include "plan/CalculatorViewController.h"

#include "components/DayWatch.h"
#include "plan/BodyCalculation.h"
#include "plan/DayTexts.h"
#include "plan/PhaseSpans.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "util/TypedNumber.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace kesto
{

namespace
{

UserDefaults &defaults() { return Platform::current().userDefaults(); }

/// The days that a typed length of a phase stands for.
int typedLength(int period, int days)
{
    return std::clamp(days, 1, period == 0 ? CalculatorViewController::longestAttack : std::numeric_limits<int>::max());
}

QString keyOf(CalculatorInput input) { return CalculatorViewController::keys()[0][static_cast<int>(input)]; }

} // namespace

CalculatorViewController::CalculatorViewController(QObject *parent)
    : TableViewControllerWithEcternalPicker(parent)
{
    connect(&DayWatch::sharedWatch(), &DayWatch::dayChanged, this, [this] {
        if (isVisible())
            reloadRow({PhasesSection, phaseBarRow});
    });
}

const QList<QStringList> &CalculatorViewController::keys()
{
    static const QList<QStringList> labels{
        {QStringLiteral("Возраст"), QStringLiteral("Пол"), QStringLiteral("Вес"), QStringLiteral("Рост"),
         QStringLiteral("Окружность запястья")},
        {QStringLiteral("Ваш ИМТ"), QStringLiteral("Статус тела"), QStringLiteral("Ваш идеальный вес"),
         QStringLiteral("Желаемый вес"), QStringLiteral("Вам нужно сбросить")},
        {QStringLiteral("Атака"), QStringLiteral("Круиз"), QStringLiteral("Консолидация")}};
    return labels;
}

QVariant CalculatorViewController::defaultValueForIndex(int index)
{
    static constexpr std::array values{30, 1, 60, 170, 1};
    return index >= 0 && index < static_cast<int>(values.size()) ? QVariant(values[static_cast<size_t>(index)])
                                                                 : QVariant();
}

QVariant CalculatorViewController::storedValue(int index)
{
    const QVariant stored = defaults().valueForKey(keys()[InputsSection][index]);
    return stored.isValid() ? stored : defaultValueForIndex(index);
}

QString CalculatorViewController::agePrefixForValue(const QVariant &value)
{
    if (localized(QStringLiteral("см")) != QStringLiteral("см"))
        return localized(QStringLiteral("years"));
    const int lastDigit = integerValue(plainText(value).mid(1));
    if (lastDigit >= 2 && lastDigit <= 4)
        return localized(QStringLiteral("года"));
    return lastDigit == 1 ? localized(QStringLiteral("год")) : localized(QStringLiteral("лет"));
}

void CalculatorViewController::viewDidLoad() { setUpData(); }

void CalculatorViewController::viewWillAppear()
{
    reloadRow({PhasesSection, phaseBarRow}); // a day may have passed
}

void CalculatorViewController::setUpData()
{
    content_.clear();
    for (const QStringList &labels : keys()) {
        QStringList titles;
        for (const QString &label : labels)
            titles.append(localized(label));
        content_.append(titles);
    }
    const CoreDataManager &manager = CoreDataManager::sharedManager();
    kgString_ = manager.kgString();
    cmString_ = manager.cmString();
    metrickSystem_ = manager.isMetrickSystem();
    handType_ = 1;
    calculateDiet();
}

void CalculatorViewController::calculateDiet()
{
    calculated_ = false;
    const QVariant sex = defaults().valueForKey(keyOf(CalculatorInput::Sex));
    const BodyCalculation result =
        BodyCalculation::calculate({.weight = defaults().floatForKey(keyOf(CalculatorInput::Weight)),
                                    .height = defaults().floatForKey(keyOf(CalculatorInput::Height)),
                                    .male = sex.isValid() && !defaults().boolForKey(keyOf(CalculatorInput::Sex)),
                                    .handType = handType_,
                                    .wantedWeight = wantedWeight_});
    bmi_ = result.bmi;
    bodyStatus_ = localized(result.bodyStatus);
    idealWeidht_ = result.idealWeidht;
    wantedWeight_ = result.wantedWeight;
    difWeight_ = result.difWeight;
    periods_ = {result.period1, result.period2, result.period3};
    calculated_ = true;
    reloadSection(ResultsSection);
    reloadSection(PhasesSection);
}

CalculatorWheels CalculatorViewController::wheels() const
{
    const int row = pickerOwner() ? pickerOwner()->row : 0;
    return {static_cast<CalculatorInput>(row), metrickSystem_};
}

int CalculatorViewController::selectedRowInComponent(int component) const
{
    const int row = pickerOwner() ? pickerOwner()->row : 0;
    const bool wrist = static_cast<CalculatorInput>(row) == CalculatorInput::Wrist;
    return wheels().row(wrist ? static_cast<float>(handType_) : storedValue(row).toFloat(), component);
}

void CalculatorViewController::pickerView(int didSelectRow, int inComponent)
{
    if (!pickerOwner())
        return;
    const auto input = static_cast<CalculatorInput>(pickerOwner()->row);
    QList<int> rows;
    for (int component = 0; component < wheels().numberOfComponents(); ++component)
        rows.append(component == inComponent ? didSelectRow : picker()->selectedRow(component));
    if (input == CalculatorInput::Sex)
        defaults().setInteger(rows[0], keyOf(input));
    else
        defaults().setFloat(wheels().value(rows), keyOf(input));
    if (input == CalculatorInput::Wrist)
        handType_ = rows[0];
    reloadRow(*pickerOwner());
    calculateDiet();
    wantedWeight_ = idealWeidht_;
    reloadSection(ResultsSection);
}

void CalculatorViewController::textFieldDidEndEditing(const IndexPath &, const RowId &id, const QString &text)
{
    textFieldDidEndEditing(id.number(), text);
}

void CalculatorViewController::textFieldDidEndEditing(int tag, const QString &text)
{
    if (tag == wantedWeightTag) {
        wantedWeight_ = floatValue(text);
        calculateDiet();
        return;
    }
    const int index = tag - firstPeriodTag;
    if (index < 0 || index >= periodCount)
        return;
    periods_[static_cast<size_t>(index)] = typedLength(index, integerValue(text));
    reloadRow({PhasesSection, index});
    reloadRow({PhasesSection, phaseBarRow});
}

void CalculatorViewController::textFieldTextDidChange(const IndexPath &, const RowId &id, const QString &text)
{
    const int index = id.number() - firstPeriodTag;
    const std::optional<int> days = wholeNumber(text);
    if (index < 0 || index >= periodCount || !days)
        return;
    std::array<int, periodCount> periods = periods_;
    periods[static_cast<size_t>(index)] = typedLength(index, *days);
    const ShownPath bar = shownPath({PhasesSection, phaseBarRow});
    if (table()->contains(bar))
        table()->setRow(bar, barRow(periods));
}

void CalculatorViewController::didSelectRow(const IndexPath &path, const RowId &)
{
    if (path.section == InputsSection)
        displayPickerForIndexPath(path);
    else if (path.section == StartSection)
        startDietIntro();
}

int CalculatorViewController::numberOfRowsInSection(int section) const
{
    if (section == StartSection)
        return 1;
    const int labels = static_cast<int>(keys()[section].size());
    return section == PhasesSection ? labels + 1 : labels;
}

QString CalculatorViewController::titleForHeaderInSection(int section) const
{
    return section == InputsSection ? QString() : QStringLiteral("");
}

double CalculatorViewController::shownWeight(float kilograms) const
{
    return metrickSystem_ ? kilograms : kilograms / kilogramsPerPound;
}

TableRow CalculatorViewController::cellForRow(const IndexPath &path) const
{
    switch (path.section) {
    case InputsSection:
        return inputRow(path.row);
    case ResultsSection:
        return resultRow(path.row);
    case PhasesSection:
        return path.row == phaseBarRow ? barRow(periods_) : periodRow(path.row);
    default:
        return {.kind = TableRow::Kind::Button, .title = localized(QStringLiteral("Начать Диету"))};
    }
}

TableRow CalculatorViewController::inputRow(int row) const
{
    static const QStringList images{QStringLiteral("age.png"), QStringLiteral("sex.png"), QStringLiteral("weight.png"),
                                    QStringLiteral("growth.png"), QStringLiteral("wrist.png")};
    const QVariant value = storedValue(row);
    QString text;
    switch (static_cast<CalculatorInput>(row)) {
    case CalculatorInput::Age:
        text = stringWithFormat("%@ %@", value, agePrefixForValue(value));
        break;
    case CalculatorInput::Sex:
        text = CalculatorWheels::sexes()[value.toInt() == 0 ? 0 : 1];
        break;
    case CalculatorInput::Weight:
        text = weightText(value.toFloat(), metrickSystem_, kgString_);
        break;
    case CalculatorInput::Height:
        text = stringWithFormat("%0.1f %@", value.toFloat() / (metrickSystem_ ? 1 : centimetresPerInch), cmString_);
        break;
    case CalculatorInput::Wrist:
        text = handTypes()[handType_];
        break;
    }
    TableRow cell{
        .kind = TableRow::Kind::Value, .title = content_[InputsSection][row], .detail = text, .image = images[row]};
    if (static_cast<CalculatorInput>(row) == CalculatorInput::Wrist) {
        cell.kind = TableRow::Kind::Custom;
        cell.cell = QStringLiteral("WristCell");
        cell.value = CalculatorWheels::handImage(handType_);
    }
    return cell;
}

TableRow CalculatorViewController::fieldRow(const QString &title, const IndexPath &path, const QString &text,
                                            const QString &unit) const
{
    return {.id = path.section * 100 + path.row,
            .kind = TableRow::Kind::Editable,
            .title = title,
            .detail = calculated_ ? QString() : QStringLiteral("-"),
            .selectable = false,
            .text = text,
            .unit = unit,
            .keyboard = Keyboard::Type::Decimal};
}

TableRow CalculatorViewController::resultRow(int row) const
{
    const QString &title = content_[ResultsSection][row];
    QString text;
    switch (row) {
    case BmiRow:
        text = stringWithFormat("%0.2f", bmi_);
        break;
    case BodyStatusRow:
        text = bodyStatus_;
        break;
    case IdealWeightRow:
        text = stringWithFormat("%0.0f %@", shownWeight(idealWeidht_), kgString_);
        break;
    case WantedWeightRow:
        return fieldRow(title, {ResultsSection, row}, stringWithFormat("%0.0f", shownWeight(wantedWeight_)), kgString_);
    default:
        text = weightText(difWeight_, metrickSystem_, kgString_);
        break;
    }
    return {.kind = TableRow::Kind::Value, .title = title, .detail = text, .selectable = false};
}

TableRow CalculatorViewController::periodRow(int row) const
{
    const QString title =
        stringWithFormat("%ld %@. %@", row + 1, localized(QStringLiteral("Этап")), content_[PhasesSection][row]);
    return fieldRow(title, {PhasesSection, row}, stringWithFormat("%d", periods_[static_cast<size_t>(row)]),
                    localized(QStringLiteral("дней")));
}

TableRow CalculatorViewController::barRow(const std::array<int, periodCount> &periods) const
{
    const Platform &platform = Platform::current();
    const QDate today = platform.calendar().dayOf(platform.clock().now());
    const QLocale locale(platform.strings().preferredLanguage());
    const QString start =
        localized(QStringLiteral("Начать диету с")) + u' ' + locale.toString(today, QStringLiteral("d MMMM"));
    return {.kind = TableRow::Kind::Custom,
            .title = start,
            .selectable = false,
            .cell = QStringLiteral("PhaseBarCell"),
            .value = phaseBar(phaseSpans(periods[0], periods[1], periods[2]), today)};
}

} // namespace kesto
