#pragma once

#include <QList>
#include <QString>

namespace kesto::test
{

/// A literal text of the program's code.
struct SourceText
{
    QString text;
    QString file; ///< below src/
    int line = 0;
    bool localised = false; ///< an argument of localized() or locolized()
};

/// The literals of a C++ or QML text: adjacent ones joined, escapes resolved, comments and #include left out.
[[nodiscard]] QList<SourceText> textsIn(const QString &code, const QString &file);

/// Those of all .cpp, .h and .qml files below src/.
[[nodiscard]] const QList<SourceText> &textsOfTheProgram();

} // namespace kesto::test
