#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>

namespace kesto
{

class Platform;

/// The look that every screen shares. The interface's table of tokens reads it; nothing else names these values. One a
/// platform: Platform::shared().
class Styllesheet : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor barTintColor READ barTintColor CONSTANT)
    Q_PROPERTY(QColor tintColor READ tintColor CONSTANT)
    Q_PROPERTY(QColor barTitleColor READ barTitleColor CONSTANT)
    Q_PROPERTY(int barTitleSize READ barTitleSize CONSTANT)
    Q_PROPERTY(QColor tabTitleColor READ tabTitleColor CONSTANT)
    Q_PROPERTY(QColor selectedTabTitleColor READ selectedTabTitleColor CONSTANT)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)
    Q_PROPERTY(bool lightWeight READ isLightWeight CONSTANT)
    Q_PROPERTY(QString backgroundImage READ backgroundImage CONSTANT)

public:
    explicit Styllesheet(Platform &) {}

    /// Gives the application's own font to all that states none. Before that, and without a window system, nothing is
    /// changed; the constants below hold all the same.
    void customizeUIthroughtApperanceProtocol();

    /// Of navigation bars, toolbars, tab bars and search bars: a light green.
    [[nodiscard]] QColor barTintColor() const;
    /// Of what can be touched, in the whole window: grey.
    [[nodiscard]] QColor tintColor() const;
    [[nodiscard]] QColor barTitleColor() const;
    [[nodiscard]] int barTitleSize() const; ///< points
    [[nodiscard]] QColor tabTitleColor() const;
    [[nodiscard]] QColor selectedTabTitleColor() const;
    /// The first of the wanted fonts that the device has; its default one otherwise, or when nothing was customized.
    [[nodiscard]] QString fontFamily() const;
    /// The family is there in a light cut.
    [[nodiscard]] bool isLightWeight() const { return lightWeight_; }
    /// The image's name; it is repeated over the window.
    [[nodiscard]] QString backgroundImage() const;

    /// The first wanted family that is installed; null when none is.
    [[nodiscard]] static QString chosenFamily(const QStringList &installed);

private:
    QString fontFamily_;
    bool lightWeight_ = false;
};

} // namespace kesto
