#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace kesto
{

/// A button of a journal screen: a picture, a title or both. Its tag tells the screen which one was touched.
class JornalButton : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int tag READ tag CONSTANT)
    Q_PROPERTY(QString image READ image NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString badge READ badge NOTIFY changed)
    Q_PROPERTY(int shade READ shade NOTIFY changed)
    Q_PROPERTY(bool choosable READ isChoosable NOTIFY changed)
    Q_PROPERTY(bool selected READ isSelected NOTIFY changed)
    Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)
public:
    struct Look
    {
        QString image{};
        QString title{};
        QString name{};  ///< what the picture shows, for those who do not see it
        QString badge{}; ///< how often it was touched; null for never
        int shade = -1;  ///< of the picture's ground; −1 for none
        bool choosable = false;
        bool selected = false; ///< chosen; of buttons that can't be chosen, the one to touch next
        bool enabled = true;

        bool operator==(const Look &) const = default;
    };

    JornalButton(int tag, Look look)
        : tag_(tag)
        , look_(std::move(look))
    {
    }

    [[nodiscard]] int tag() const { return tag_; }
    [[nodiscard]] const Look &look() const { return look_; }
    void setLook(const Look &look)
    {
        if (look_ == look)
            return;
        look_ = look;
        Q_EMIT changed();
    }
    void setSelected(bool selected)
    {
        Look look = look_;
        look.selected = selected;
        setLook(look);
    }

    [[nodiscard]] QString image() const { return look_.image; }
    [[nodiscard]] QString title() const { return look_.title; }
    [[nodiscard]] QString name() const { return look_.name; }
    [[nodiscard]] QString badge() const { return look_.badge; }
    [[nodiscard]] int shade() const { return look_.shade; }
    [[nodiscard]] bool isChoosable() const { return look_.choosable; }
    [[nodiscard]] bool isSelected() const { return look_.selected; }
    [[nodiscard]] bool isEnabled() const { return look_.enabled; }

Q_SIGNALS:
    void changed();

private:
    int tag_;
    Look look_;
};

/// The buttons of a screen in their order, for views. The screen owns them.
class JornalButtons
{
public:
    JornalButton &add(int tag, JornalButton::Look look)
    {
        buttons_.push_back(std::make_unique<JornalButton>(tag, std::move(look)));
        return *buttons_.back();
    }
    /// Null when none has the tag.
    [[nodiscard]] JornalButton *withTag(int tag) const
    {
        for (const auto &button : buttons_) {
            if (button->tag() == tag)
                return button.get();
        }
        return nullptr;
    }
    [[nodiscard]] QList<JornalButton *> all() const
    {
        QList<JornalButton *> result;
        for (const auto &button : buttons_)
            result.append(button.get());
        return result;
    }

private:
    std::vector<std::unique_ptr<JornalButton>> buttons_;
};

} // namespace kesto
