#pragma once

#include "components/ViewController.h"

#include <QColor>
#include <QList>
#include <QSizeF>

namespace kesto
{

class Platform;

/// The program's one window: the screens that are in it, and its size class. Whoever ends the program takes the root
/// away first: screens that are left are destroyed with the platform, without a word to them.
class Window : public QObject
{
    Q_OBJECT
    Q_PROPERTY(kesto::ViewController *rootViewController READ rootViewController NOTIFY rootViewControllerChanged)
    Q_PROPERTY(QList<kesto::ViewController *> presentedViewControllers READ presentedViewControllers NOTIFY
                   presentedViewControllersChanged)
    Q_PROPERTY(QList<kesto::PopoverController *> popovers READ popovers NOTIFY popoversChanged)
    Q_PROPERTY(kesto::ViewController *lockScreen READ lockScreen NOTIFY lockScreenChanged)
    Q_PROPERTY(QSizeF size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool isTablet READ isTablet NOTIFY isTabletChanged)
    Q_PROPERTY(bool isPortrait READ isPortrait NOTIFY isPortraitChanged)
    Q_PROPERTY(QColor tintColor READ tintColor WRITE setTintColor NOTIFY lookChanged)
    Q_PROPERTY(QString backgroundImage READ backgroundImage WRITE setBackgroundImage NOTIFY lookChanged)
    Q_MOC_INCLUDE("components/PopoverController.h")
public:
    enum class Device { BySize, Phone, Tablet };
    Q_ENUM(Device)

    static Window &sharedWindow();
    explicit Window(Platform &platform);
    ~Window() override;

    [[nodiscard]] ViewController *rootViewController() const { return root_; }
    /// The earlier root goes with everything that it presented. Null empties the window, the lock screen too.
    void setRootViewController(std::unique_ptr<ViewController> controller);
    /// What is presented over the root, the topmost last.
    [[nodiscard]] QList<ViewController *> presentedViewControllers() const;
    /// Those of the screens that can be seen, the topmost last.
    [[nodiscard]] QList<PopoverController *> popovers() const { return popovers_; }

    /// Lies above everything; null takes it away.
    [[nodiscard]] ViewController *lockScreen() const { return lockScreen_; }
    void setLockScreen(std::unique_ptr<ViewController> controller, bool animated);

    [[nodiscard]] QSizeF size() const { return size_; }
    void setSize(const QSizeF &size);
    /// As forced, otherwise a window whose shorter side has 600 points or more.
    [[nodiscard]] bool isTablet() const { return tablet_; }
    void setDevice(Device device);
    [[nodiscard]] bool isPortrait() const { return portrait_; }

    [[nodiscard]] QColor tintColor() const { return tintColor_; }
    void setTintColor(const QColor &color);
    [[nodiscard]] QString backgroundImage() const { return backgroundImage_; }
    void setBackgroundImage(const QString &image);

    /// One step back, as by Escape: closes the topmost popover, an open menu, the top of the visible stack, or the
    /// presented screen that allows it. False when there was nothing to leave.
    Q_INVOKABLE bool back();

Q_SIGNALS:
    void rootViewControllerChanged();
    void presentedViewControllersChanged();
    void popoversChanged();
    void lockScreenChanged();
    void sizeChanged();
    void isTabletChanged();
    void isPortraitChanged();
    void lookChanged();

private:
    friend class ViewController;
    void updateAppearance();
    void changeAppearance(const QList<ViewController *> &wanted);
    static void collect(ViewController *controller, QList<ViewController *> &into,
                        QList<PopoverController *> &popovers);
    void updateSizeClass();

    ViewController *root_ = nullptr;       // owned
    ViewController *lockScreen_ = nullptr; // owned
    QList<QPointer<ViewController>> visible_;
    QList<QPointer<ViewController>> presentedBefore_;
    QList<PopoverController *> popovers_;
    bool updating_ = false;
    bool updateAgain_ = false;
    QSizeF size_;
    Device device_ = Device::BySize;
    bool tablet_ = false;
    bool portrait_ = true;
    QColor tintColor_;
    QString backgroundImage_;
};

} // namespace kesto
