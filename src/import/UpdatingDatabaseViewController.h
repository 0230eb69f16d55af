#pragma once

#include "components/ViewController.h"

#include <QString>
#include <QTimer>

namespace kesto
{

/// Covers everything while the shipped catalogue is copied into the store, then records the version of that catalogue.
/// An import that was interrupted is repeated at the next start.
class UpdatingDatabaseViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY modeChanged)
    Q_PROPERTY(QString backgroundImage READ backgroundImage CONSTANT)
public:
    using ViewController::ViewController;

    /// 1 when the store holds an earlier catalogue.
    [[nodiscard]] int mode() const { return mode_; }
    void setMode(int mode);
    /// The version to record.
    [[nodiscard]] QString appVersion() const { return appVersion_; }
    void setAppVersion(const QString &version) { appVersion_ = version; }
    /// Runs until the store is open and the import begins.
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
