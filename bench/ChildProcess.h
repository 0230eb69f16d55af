#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

namespace kesto::bench
{

/// A measured process. It has Qt's libraries for itself: what this one has mapped of them would count as shared. A
/// failure of it ends the program.
class ChildProcess
{
public:
    enum class Screen {
        None,   ///< drawn by the software renderer
        Display ///< drawn as people see it; only where there is one
    };

    ChildProcess(QString program, QStringList arguments, Screen screen = Screen::None);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Whether there is one.
    [[nodiscard]] static bool hasDisplay();

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
