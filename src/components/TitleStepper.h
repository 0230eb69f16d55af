#pragma once

#include "components/BarButtonItem.h"

#include <memory>

namespace kesto
{

/// In the title's place a text between two buttons, which lead to the one before and to the one after.
class TitleStepper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(kesto::BarButtonItem *previous READ previous CONSTANT)
    Q_PROPERTY(kesto::BarButtonItem *next READ next CONSTANT)
public:
    TitleStepper(std::unique_ptr<BarButtonItem> previous, std::unique_ptr<BarButtonItem> next)
        : previous_(std::move(previous))
        , next_(std::move(next))
    {
    }

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString &text)
    {
        if (text_ == text)
            return;
        text_ = text;
        Q_EMIT textChanged();
    }
    [[nodiscard]] BarButtonItem *previous() const { return previous_.get(); }
    [[nodiscard]] BarButtonItem *next() const { return next_.get(); }

Q_SIGNALS:
    void textChanged();

private:
    QString text_;
    std::unique_ptr<BarButtonItem> previous_;
    std::unique_ptr<BarButtonItem> next_;
};

} // namespace kesto
