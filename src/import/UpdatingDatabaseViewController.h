#pragma once

#include "components/ViewController.h"

#include <QString>
#include <QTimer>

namespace kesto
{

/// Covers everything while the shipped catalogue is copied into the store, and notes the version whose catalogue it is
/// when that is done; an import that was cut short is done again at the next start.
class UpdatingDatabaseViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY modeChanged)
    Q_PROPERTY(QString backgroundImage READ backgroundImage CONSTANT)
public:
    using ViewController::ViewController;

    /// 1: the store holds an earlier catalogue; otherwise none.
    [[nodiscard]] int mode() const { return mode_; }
    void setMode(int mode);
    /// The version that is noted.
    [[nodiscard]] QString appVersion() const { return appVersion_; }
    void setAppVersion(const QString &version) { appVersion_ = version; }
    /// Runs from the loading of the screen until the import begins.
    [[nodiscard]] QTimer &timer() { return timer_; }

    [[nodiscard]] QString text() const;
    [[nodiscard]] QString backgroundImage() const { return QStringLiteral("background"); }
    [[nodiscard]] bool canClose() const override { return false; }

Q_SIGNALS:
    void modeChanged();

protected:
    void viewDidLoad() override;

private:
    void importWhenReady();

    int mode_ = 0;
    QString appVersion_;
    QTimer timer_;
};

} // namespace kesto
