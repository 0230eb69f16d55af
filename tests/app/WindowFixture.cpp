#include "app/WindowFixture.h"

#include "platform/Calendar.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

#include <QCoreApplication>
#include <QDir>
#include <QQuickItem>
#include <QQuickWindow>

namespace kesto::test
{

void WindowFixture::start(std::optional<Device> device, const QSize &size, const QString &language)
{
    program_.reset();
    QString error;
    program_ = Program::start({.dataFolder = root_.filePath(QStringLiteral("data")),
                               .resourcesFolder = QStringLiteral(KESTO_SHARE),
                               .language = language,
                               .device = device,
                               .size = size},
                              &error);
    ASSERT_NE(program_, nullptr) << error.toStdString();
    program_->view().requestActivate();
}

void WindowFixture::prepare(std::optional<int> daysOfDiet)
{
    ASSERT_TRUE(QDir(root_.path()).mkdir(QStringLiteral("data")));
    UserDefaults defaults(root_.filePath(QStringLiteral("data/UserDefaults.plist")));
    const Calendar calendar;
    const QDate today = calendar.dayOf(QDateTime::currentDateTimeUtc());
    defaults.setValue(QCoreApplication::applicationVersion(), Keys::kAppVersionKey);
    if (daysOfDiet)
        defaults.setValue(calendar.startOfDay(today.addDays(-*daysOfDiet)), Keys::kStartDietDateKey);
    defaults.setInteger(5, Keys::kPeriod1Key);
    defaults.setInteger(60, Keys::kPeriod2Key);
    defaults.setInteger(100, Keys::kPeriod3Key);
    ASSERT_TRUE(defaults.synchronize());
}

QQuickItem *WindowFixture::item(QQuickItem &in, const std::function<bool(const QQuickItem &)> &wanted)
{
    if (wanted(in))
        return &in;
    for (QQuickItem *child : in.childItems()) {
        if (QQuickItem *found = item(*child, wanted))
            return found;
    }
    return nullptr;
}

void WindowFixture::TearDown()
{
    program_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList complaints = log_.take().filter(QStringLiteral("interface: "));
    EXPECT_TRUE(complaints.isEmpty()) << complaints.join(u'\n').toStdString();
}

} // namespace kesto::test
