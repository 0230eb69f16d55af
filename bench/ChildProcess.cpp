#include "ChildProcess.h"

#include "BaselineDatabase.h"

#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

namespace kesto::bench
{

namespace
{

constexpr int kPatience = 30'000;
constexpr unsigned long kSettling = 400;

/// The folder of the children's own copies of the libraries of Qt that are mapped here.
QString librariesOfChildren()
{
    static const QTemporaryDir folder;
    static const bool copied = [] {
        QFile maps(QStringLiteral("/proc/self/maps"));
        if (!maps.open(QIODevice::ReadOnly))
            fail(maps.errorString());
        static const QRegularExpression library(QStringLiteral("(/\\S*/(libQt6\\w+\\.so\\.\\d+)[\\d.]*)\\n"));
        QStringList done;
        for (auto found = library.globalMatch(QString::fromLocal8Bit(maps.readAll())); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            if (done.contains(match.captured(2)))
                continue;
            done.append(match.captured(2));
            if (!QFile::copy(match.captured(1), folder.filePath(match.captured(2))))
                fail(QStringLiteral("%1 can't be copied").arg(match.captured(1)));
        }
        return true;
    }();
    return copied ? folder.path() : QString();
}

} // namespace

bool ChildProcess::hasDisplay()
{
    static const bool has = !qEnvironmentVariableIsEmpty("DISPLAY");
    return has;
}

ChildProcess::ChildProcess(QString program, QStringList arguments, Screen screen)
    : program_(std::move(program))
    , arguments_(std::move(arguments))
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"), librariesOfChildren());
    if (screen == Screen::Display) {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.remove(QStringLiteral("QT_QUICK_BACKEND"));
    } else {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    }
    process_.setProcessEnvironment(environment);
}

ChildProcess::~ChildProcess()
{
    process_.closeWriteChannel();
    if (!process_.waitForFinished(kPatience))
        process_.kill();
}

void ChildProcess::start() { process_.start(program_, arguments_); }

void ChildProcess::tell(const QByteArray &line) { process_.write(line + '\n'); }

QList<QByteArray> ChildProcess::hear(const QByteArray &word)
{
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(kPatience))
            fail(QStringLiteral("%1 says nothing; its log: %2")
                     .arg(program_, QString::fromLocal8Bit(process_.readAllStandardError())));
    }
    QList<QByteArray> words = process_.readLine().trimmed().split(' ');
    if (words.takeFirst() != word)
        fail(QStringLiteral("%1 says something else").arg(program_));
    return words;
}

double ChildProcess::kilobytes() const
{
    QThread::msleep(kSettling);
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process_.processId()));
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).trimmed().split(' ').first().toDouble();
    }
    fail(QStringLiteral("the memory of %1 is not known").arg(program_));
}

} // namespace kesto::bench
