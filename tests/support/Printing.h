#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <iosfwd>

// How GoogleTest writes values of Qt in its messages.
void PrintTo(const QString &text, std::ostream *out);
void PrintTo(const QDate &day, std::ostream *out);
void PrintTo(const QTime &time, std::ostream *out);
void PrintTo(const QDateTime &date, std::ostream *out);
void PrintTo(const QVariant &value, std::ostream *out);
