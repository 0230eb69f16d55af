#include "support/TestPlatform.h"
#include "ui/UserInterface.h"

#include <QQmlEngine>
#include <QtQuickTest/quicktest.h>

#include <memory>

namespace
{

/// The platform that the screens of the tests stand on, and what every engine needs.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        kesto::test::TestPlatform::Options options;
        options.language = QStringLiteral("en");
        platform_ = std::make_unique<kesto::test::TestPlatform>(std::move(options));
    }
    void qmlEngineAvailable(QQmlEngine *engine) { kesto::UserInterface::prepare(*engine, platform_->platform()); }
    void cleanupTestCase() { platform_.reset(); }

private:
    std::unique_ptr<kesto::test::TestPlatform> platform_;
};

} // namespace

QUICK_TEST_MAIN_WITH_SETUP(ui, Setup)

#include "main.moc"
