#pragma once

#include <QObject>
#include <QPointer>
#include <QSizeF>
#include <QString>

#include <memory>

namespace kesto
{

class ViewController;

/// A screen in a bubble beside a thing of another screen. Made by ViewController::presentPopover().
class PopoverController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(kesto::ViewController *content READ content CONSTANT)
    Q_PROPERTY(kesto::ViewController *owner READ owner CONSTANT)
    Q_PROPERTY(QString anchor READ anchor CONSTANT)
    Q_PROPERTY(QSizeF sizeHint READ sizeHint WRITE setSizeHint NOTIFY sizeHintChanged)
    Q_MOC_INCLUDE("components/ViewController.h")
public:
    PopoverController(ViewController *content, ViewController *owner, const QString &anchor);

    [[nodiscard]] ViewController *content() const;
    [[nodiscard]] ViewController *owner() const;
    /// The name of the thing it points at, agreed between the screen and its view.
    [[nodiscard]] QString anchor() const { return anchor_; }
    /// Empty: as large as the view finds fit.
    [[nodiscard]] QSizeF sizeHint() const { return sizeHint_; }
    void setSizeHint(const QSizeF &size);

    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void sizeHintChanged();

private:
    QPointer<ViewController> content_;
    QPointer<ViewController> owner_;
    QString anchor_;
    QSizeF sizeHint_;
};

} // namespace kesto
