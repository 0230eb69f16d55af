#pragma once

#include "components/IndexPath.h"
#include "plan/DayKinds.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <array>
#include <memory>

namespace kesto
{

class DietDay;

/// A button in the calendar's footer that sets the kind of the day.
class CalKindButton : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int tag READ tag CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString image READ image NOTIFY changed)
    Q_PROPERTY(bool selected READ isSelected NOTIFY changed)
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
public:
    explicit CalKindButton(int tag)
        : tag_(tag)
    {
    }

    /// The kind, 0 to 2.
    [[nodiscard]] int tag() const { return tag_; }
    [[nodiscard]] QString title() const { return DayKinds::title(tag_); }
    [[nodiscard]] QString image() const { return selected_ ? QStringLiteral("Checked") : QStringLiteral("Unchecked"); }
    [[nodiscard]] bool isSelected() const { return selected_; }
    [[nodiscard]] bool isVisible() const { return visible_; }
    void set(bool visible, bool selected);
    void setSelected(bool selected) { set(visible_, selected); }

Q_SIGNALS:
    void changed();

private:
    int tag_;
    bool selected_ = false;
    bool visible_ = false;
};

/// A field in the calendar's footer: the weight or a girth of the day.
class CalFooterField : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int tag READ tag CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString unit READ unit NOTIFY textChanged)
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
public:
    CalFooterField(int tag, const char16_t *key);

    /// The index in CalFooterView::fieldKeys(), 0 to 3.
    [[nodiscard]] int tag() const { return tag_; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString unit() const;
    [[nodiscard]] QString placeholder() const;
    [[nodiscard]] QString text() const { return text_; }
    /// Signals even the same text, because the view may show a text that the user typed.
    void setText(const QString &text);

Q_SIGNALS:
    void textChanged();

private:
    int tag_;
    const char16_t *key_;
    QString text_;
};

/// Told what the user does in the footer.
class CalFooterViewDelegate
{
public:
    virtual ~CalFooterViewDelegate() = default;
    virtual void dietDayTypeButtonTouched(const CalKindButton &button, const QDateTime &date,
                                          const IndexPath &indexPath) = 0;
    /// The user has left the field with this tag after typing.
    virtual void textFieldDidEndEditing(int tag, const QString &text) = 0;
    virtual void openJornal() = 0;
};

/// The area below the month: measures and kind of the selected day, and a button that opens its journal.
class CalFooterView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<kesto::CalFooterField *> fields READ fields CONSTANT)
    Q_PROPERTY(QList<kesto::CalKindButton *> kindButtons READ kindButtons CONSTANT)
    Q_PROPERTY(int activeButtonsCount READ activeButtonsCount NOTIFY dayChanged)
    Q_PROPERTY(bool enabled READ isEnabled NOTIFY dayChanged)
    Q_PROPERTY(QString jornalTitle READ jornalTitle CONSTANT)
public:
    static constexpr size_t fieldCount = 4;

    /// The names of the fields' DietDay attributes.
    [[nodiscard]] static const std::array<QString, fieldCount> &fieldKeys();

    /// The delegate outlives this or is null.
    explicit CalFooterView(CalFooterViewDelegate *delegate);

    [[nodiscard]] QList<CalFooterField *> fields() const;
    [[nodiscard]] QList<CalKindButton *> kindButtons() const;
    [[nodiscard]] int activeButtonsCount() const { return activeButtonsCount_; }
    [[nodiscard]] QDateTime date() const { return date_; }
    [[nodiscard]] IndexPath indexPath() const { return indexPath_; }
    /// The index path of the selected cell.
    void setIndexPath(const IndexPath &indexPath) { indexPath_ = indexPath; }
    /// Disabled while the day is before the start of the diet.
    [[nodiscard]] bool isEnabled() const { return enabled_; }
    [[nodiscard]] QString jornalTitle() const;

    /// Shows the kind buttons of a phase and the kind of the day. The day is null when it has no record.
    void setDietPeriod(int period, const DietDay *forDay, const QDateTime &date);
    /// Shows the day's measures; one that is not above 0 stays empty.
    void fillFields(const DietDay *day);

    Q_INVOKABLE void buttonTouched(int tag);
    Q_INVOKABLE void endEditing(int tag, const QString &text);
    Q_INVOKABLE void openJornal();

Q_SIGNALS:
    void dayChanged();

private:
    CalFooterViewDelegate *delegate_;
    std::array<std::unique_ptr<CalFooterField>, fieldCount> fields_;
    std::array<std::unique_ptr<CalKindButton>, DayKinds::count> kindButtons_;
    int activeButtonsCount_ = 0;
    bool enabled_ = false;
    QDateTime date_;
    IndexPath indexPath_;
};

} // namespace kesto
