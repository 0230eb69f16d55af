#include "support/Printing.h"

#include "platform/StringFormat.h"

#include <ostream>

void PrintTo(const QString &text, std::ostream *out)
{
    *out << (text.isNull() ? std::string("(null)") : '"' + text.toStdString() + '"');
}
void PrintTo(const QDate &day, std::ostream *out) { *out << day.toString(Qt::ISODate).toStdString(); }
void PrintTo(const QTime &time, std::ostream *out) { *out << time.toString(Qt::ISODateWithMs).toStdString(); }
void PrintTo(const QDateTime &date, std::ostream *out) { *out << date.toString(Qt::ISODateWithMs).toStdString(); }
void PrintTo(const QVariant &value, std::ostream *out)
{
    *out << (value.isValid() ? value.typeName() : "nothing") << ' ' << kesto::plainText(value).toStdString();
}
