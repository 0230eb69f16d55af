#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

namespace kesto::bench
{

/// A measured process without a screen, drawn by the software renderer. A failure of it ends the program.
class ChildProcess
{
public:
    ChildProcess(QString program, QStringList arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    void start();
    void tell(const QByteArray &line);
    /// The words of its next line, without the first, which must be this one.
    [[nodiscard]] QList<QByteArray> hear(const QByteArray &word);
    /// Its proportional share of memory when it has had time to settle.
    [[nodiscard]] double kilobytes() const;

private:
    QString program_;
    QStringList arguments_;
    QProcess process_;
};

} // namespace kesto::bench
