#include "plan/CalFooterView.h"

#include "model/DietDay.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <QLocale>

#include <limits>

namespace kesto
{

namespace
{

constexpr std::array fieldTitles{u"Вес", u"Грудь", u"Талия", u"Бедра"};
constexpr int weightTag = 0;

/// Six significant digits below 1,000, since a weight converted from pounds has more than a person types. From 1,000 on
/// as many as identify the float. Never with an exponent.
QString textOf(float value)
{
    constexpr int fewestDigits = 6;
    constexpr int mostDigits = std::numeric_limits<float>::max_digits10;
    const auto rounded = [&](int digits) { return QString::number(value, 'g', digits).toDouble(); };
    int digits = fewestDigits;
    while (value >= 1000 && digits < mostDigits && static_cast<float>(rounded(digits)) != value)
        ++digits;
    return QString::number(rounded(digits), 'f', QLocale::FloatingPointShortest);
}

} // namespace

void CalKindButton::set(bool visible, bool selected)
{
    if (visible_ == visible && selected_ == selected)
        return;
    visible_ = visible;
    selected_ = selected;
    Q_EMIT changed();
}

CalFooterField::CalFooterField(int tag, const char16_t *key)
    : tag_(tag)
    , key_(key)
{
}

QString CalFooterField::title() const { return localized(QString::fromUtf16(key_)); }

QString CalFooterField::unit() const
{
    return tag_ == weightTag ? CoreDataManager::sharedManager().kgString() : localized(QStringLiteral("см"));
}

QString CalFooterField::placeholder() const { return localized(QStringLiteral("Введите данные")); }

void CalFooterField::setText(const QString &text)
{
    text_ = text;
    Q_EMIT textChanged();
}

const std::array<QString, CalFooterView::fieldCount> &CalFooterView::fieldKeys()
{
    static const std::array<QString, fieldCount> keys{QStringLiteral("weight"), QStringLiteral("chest"),
                                                      QStringLiteral("waist"), QStringLiteral("hip")};
    return keys;
}

CalFooterView::CalFooterView(CalFooterViewDelegate *delegate)
    : delegate_(delegate)
{
    for (size_t tag = 0; tag < fieldCount; ++tag)
        fields_[tag] = std::make_unique<CalFooterField>(static_cast<int>(tag), fieldTitles[tag]);
    for (size_t tag = 0; tag < kindButtons_.size(); ++tag)
        kindButtons_[tag] = std::make_unique<CalKindButton>(static_cast<int>(tag));
}

QList<CalFooterField *> CalFooterView::fields() const
{
    QList<CalFooterField *> result;
    for (const auto &field : fields_)
        result.append(field.get());
    return result;
}

QList<CalKindButton *> CalFooterView::kindButtons() const
{
    QList<CalKindButton *> result;
    for (const auto &button : kindButtons_)
        result.append(button.get());
    return result;
}

QString CalFooterView::jornalTitle() const { return localized(QStringLiteral("Дневник Диеты")); }

void CalFooterView::setDietPeriod(int period, const DietDay *forDay, const QDateTime &date)
{
    activeButtonsCount_ = DayKinds::offeredIn(period);
    enabled_ = period >= 0;
    date_ = date;
    for (size_t tag = 0; tag < kindButtons_.size(); ++tag)
        kindButtons_[tag]->set(static_cast<int>(tag) < activeButtonsCount_,
                               forDay != nullptr && forDay->valueForKey(DayKinds::keys()[tag]).toBool());
    Q_EMIT dayChanged();
}

void CalFooterView::fillFields(const DietDay *day)
{
    for (size_t tag = 0; tag < fieldCount; ++tag) {
        const float value = day != nullptr ? day->valueForKey(fieldKeys()[tag]).toFloat() : 0;
        fields_[tag]->setText(value > 0 ? textOf(value) : QString());
    }
}

void CalFooterView::buttonTouched(int tag)
{
    if (!enabled_ || tag < 0 || tag >= activeButtonsCount_)
        return;
    CalKindButton &touched = *kindButtons_[static_cast<size_t>(tag)];
    touched.setSelected(!touched.isSelected());
    if (delegate_ != nullptr)
        delegate_->dietDayTypeButtonTouched(touched, date_, indexPath_);
}

void CalFooterView::endEditing(int tag, const QString &text)
{
    if (!enabled_ || delegate_ == nullptr || tag < 0 || tag >= static_cast<int>(fieldCount))
        return;
    delegate_->textFieldDidEndEditing(tag, text);
}

void CalFooterView::openJornal()
{
    if (enabled_ && delegate_ != nullptr)
        delegate_->openJornal();
}

} // namespace kesto
