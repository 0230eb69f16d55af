#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace kesto
{

/// A button in a navigation bar or a toolbar: a picture or a title. Without an action it is drawn and does nothing.
class BarButtonItem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(QString highlightedImage READ highlightedImage WRITE setHighlightedImage NOTIFY imageChanged)
    Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY accessibleNameChanged)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool visible READ isVisible WRITE setVisible NOTIFY visibleChanged)
public:
    using Action = std::function<void()>;

    explicit BarButtonItem(QObject *parent = nullptr);

    [[nodiscard]] static std::unique_ptr<BarButtonItem> withTitle(const QString &title, Action action = {});
    /// The accessible name is the localised text of the picture's name without its extension.
    [[nodiscard]] static std::unique_ptr<BarButtonItem> withImage(const QString &image, Action action = {});

    [[nodiscard]] QString title() const { return title_; }
    void setTitle(const QString &title);
    /// The name of a picture, with or without extension.
    [[nodiscard]] QString image() const { return image_; }
    void setImage(const QString &image);
    /// The picture while the button is pressed; null: the same, paler.
    [[nodiscard]] QString highlightedImage() const { return highlightedImage_; }
    void setHighlightedImage(const QString &image);
    /// The one that was set, otherwise the title, otherwise the picture's.
    [[nodiscard]] QString accessibleName() const;
    void setAccessibleName(const QString &name);
    [[nodiscard]] bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool isVisible() const { return visible_; }
    void setVisible(bool visible);
    void setAction(Action action) { action_ = std::move(action); }

    /// Runs the action; nothing happens while the button is disabled or hidden.
    Q_INVOKABLE void trigger();

Q_SIGNALS:
    void titleChanged();
    void imageChanged();
    void accessibleNameChanged();
    void enabledChanged();
    void visibleChanged();

private:
    QString title_;
    QString image_;
    QString highlightedImage_;
    QString accessibleName_;
    bool enabled_ = true;
    bool visible_ = true;
    Action action_;
};

using BarButtonItems = std::vector<std::unique_ptr<BarButtonItem>>;

} // namespace kesto
