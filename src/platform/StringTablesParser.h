#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

namespace kesto
{

/// One pass over the text of a string table; StringTables::parse() says what it takes and gives.
class StringTablesParser
{
public:
    StringTablesParser(QStringView text, const QString &source)
        : text_(text)
        , source_(source)
    {
    }

    QHash<QString, QString> parse();

private:
    bool skipBlanksAndComments();
    bool readEntry(QString &key, QString &value);
    bool readText(QString &result);
    bool readUnquoted(QString &result);
    void readEscape(QString &result);
    bool expect(QChar expected);
    void slip(qsizetype position, const QString &reason) const;
    [[nodiscard]] bool atEnd() const { return position_ >= text_.size(); }
    [[nodiscard]] qsizetype endOfLine(qsizetype position) const;

    QStringView text_;
    QString source_;
    qsizetype position_ = 0;
};

} // namespace kesto
