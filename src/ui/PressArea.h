#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// What a button hears of a finger, the mouse and the keys. A press that is let go inside is a click; one that is let
/// go outside, or that something that scrolls takes over, is none. Space clicks when it is let go, if it was pressed
/// here, too, Enter at once; a key that repeats itself because it is held was meant for somebody else.
class PressArea : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool down READ isDown NOTIFY downChanged FINAL)
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged FINAL)
    Q_PROPERTY(Qt::FocusPolicy focusPolicy READ focusPolicy WRITE setFocusPolicy NOTIFY focusPolicyChanged FINAL)

public:
    explicit PressArea(QQuickItem *parent = nullptr);

    [[nodiscard]] bool isDown() const { return down_; }
    /// The keys are here, and a key brought them.
    [[nodiscard]] bool hasVisualFocus() const { return visualFocus_; }
    /// How the keys come: by Tab, by a touch, both (as it is made), or not at all.
    [[nodiscard]] Qt::FocusPolicy focusPolicy() const { return focusPolicy_; }
    void setFocusPolicy(Qt::FocusPolicy policy);
    /// To the next that Tab leads to, or back to the one before.
    Q_INVOKABLE void passFocus(bool forward);

Q_SIGNALS:
    void clicked();
    void downChanged();
    void visualFocusChanged();
    void focusPolicyChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    enum class Holder { Nobody, Mouse, Finger, Space };

    /// False when somebody else holds the button already.
    bool take(Holder holder);
    void takeFocus(bool released);
    void drop();
    /// Clicks if it is still down; whoever hears of it may end this object.
    void release();
    void setDown(bool down);
    void setVisualFocus(bool shown);

    Qt::FocusPolicy focusPolicy_ = Qt::StrongFocus;
    Holder holder_ = Holder::Nobody;
    int finger_ = 0;
    bool down_ = false;
    bool visualFocus_ = false;
};

} // namespace kesto
