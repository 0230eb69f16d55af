#include "Measured.h"
#include "Probe.h"

#include "app/Program.h"
#include "components/NavigationController.h"
#include "components/SideMenuContainer.h"
#include "components/Window.h"
#include "plan/CalendarViewController.h"

#include <QGuiApplication>

#include <cstdio>
#include <ctime>

namespace
{

using kesto::bench::Measured;

[[noreturn]] void refuse(const char *reason)
{
    std::fprintf(stderr, "kesto_bench_interface: %s\n", reason);
    std::exit(1);
}

double workedNanoseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

/// Turns the calendar's month at each "next" and says what that took until the frame was drawn: nanoseconds of work, as
/// waiting for the frame's turn is none, statements, and which month it was.
class Months
{
public:
    Months(kesto::CalendarViewController &calendar, QQuickWindow &window, kesto::bench::Probe &probe)
        : calendar_(calendar)
        , probe_(probe)
    {
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { shown(); });
    }
    void turn()
    {
        probe_.reset();
        turning_ = true;
        before_ = workedNanoseconds();
        calendar_.nextMonth();
    }

private:
    void shown()
    {
        if (!std::exchange(turning_, false))
            return;
        const double worked = workedNanoseconds() - before_;
        Measured::say("month " + QByteArray::number(worked, 'f', 0) + ' ' + QByteArray::number(probe_.statements()) +
                      ' ' + QByteArray::number(calendar_.month()->month().toJulianDay()));
    }

    kesto::CalendarViewController &calendar_;
    kesto::bench::Probe &probe_;
    bool turning_ = false;
    double before_ = 0;
};

kesto::CalendarViewController &calendarOf(const kesto::SideMenuContainer &container)
{
    auto *stack = qobject_cast<kesto::NavigationController *>(container.centerViewController());
    auto *calendar =
        stack != nullptr ? qobject_cast<kesto::CalendarViewController *>(stack->topViewController()) : nullptr;
    if (calendar == nullptr)
        refuse("the calendar is not there");
    return *calendar;
}

} // namespace

/// Starts the program as it is, on a phone, over the data folder that is named first. Then either "menu", which opens
/// the menu at once, or "months".
int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("kesto"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTO_VERSION));
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        refuse("a data folder and what to do are wanted");
    const bool months = arguments[2] == QStringLiteral("months");
    std::optional<kesto::bench::Probe> probe; // two counters a statement: next to nothing
    if (months)
        probe.emplace();

    QString error;
    const std::unique_ptr<kesto::Program> program =
        kesto::Program::start({.dataFolder = arguments[1],
                               .resourcesFolder = QStringLiteral(KESTO_RESOURCES_FOLDER),
                               .language = QStringLiteral("ru"),
                               .device = kesto::Device::Phone,
                               .size = QSize(390, 844)},
                              &error);
    if (program == nullptr)
        refuse(error.toLocal8Bit().constData());
    auto *container = qobject_cast<kesto::SideMenuContainer *>(program->window().rootViewController());
    if (container == nullptr || !program->window().presentedViewControllers().isEmpty())
        refuse("something else than the menu is in front");
    std::optional<Months> turned;
    if (months) {
        turned.emplace(calendarOf(*container), program->view(), *probe);
    } else {
        program->userInterface().appearance().setMotion(false);
        container->setMenuOpen(true);
    }
    const Measured measured(program->view(), [&](const QByteArray &line) {
        if (line == "next" && turned)
            turned->turn();
        else
            refuse("unknown command");
    });
    return QGuiApplication::exec();
}
