#include "platform/StringTables.h"

#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTablesParser.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QStringDecoder>

#include <utility>

namespace kesto
{

namespace
{

QString folderOf(const QString &resourcesFolder, const QString &code)
{
    return resourcesFolder + u'/' + code + QStringLiteral(".lproj");
}

// A code comes from stored settings, so it might be anything; only a plain name may lead to a folder.
bool hasFolder(const QString &resourcesFolder, const QString &code)
{
    return !code.isEmpty() && !code.contains(u'/') && !code.startsWith(u'.') && !code.contains(QChar(0)) &&
           QFileInfo(folderOf(resourcesFolder, code)).isDir();
}

QString bestCode(const QString &resourcesFolder, const QString &language)
{
    const QString plain = language.section(u'.', 0, 0); // "ru_RU.UTF-8"
    QString hyphens = plain;
    hyphens.replace(u'_', u'-');
    for (const QString &code : {plain, hyphens, hyphens.section(u'-', 0, 0)}) {
        if (hasFolder(resourcesFolder, code))
            return code;
    }
    return QStringLiteral("en");
}

QHash<QString, QString> readTable(const QString &folder)
{
    const QString path = folder + QStringLiteral("/Localizable.strings");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        log("%@:1: %@", path, file.errorString());
        return {};
    }
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        log("%@:1: not valid %@", path, decoder.name());
    return StringTables::parse(text, path);
}

} // namespace

StringTables::StringTables(QString resourcesFolder, const QString &preferredLanguage)
    : resourcesFolder_(std::move(resourcesFolder))
    , preferredLanguage_(bestCode(resourcesFolder_, preferredLanguage))
{
}

void StringTables::setLangluageCode(const QString &code)
{
    const QMutexLocker lock(&mutex_);
    langluageCode_ = code;
}

QString StringTables::langluageCode() const
{
    const QMutexLocker lock(&mutex_);
    return langluageCode_;
}

QString StringTables::preferredLanguage() const { return preferredLanguage_; }

QString StringTables::localized(const QString &key) const
{
    const QMutexLocker lock(&mutex_);
    const auto &entries = cachedTable(preferredLanguage_);
    return entries ? entries->value(key, key) : key;
}

QString StringTables::locolized(const QString &key) const
{
    const QMutexLocker lock(&mutex_);
    const auto &entries = cachedTable(langluageCode_);
    return entries ? entries->value(key, key) : QString();
}

std::optional<QHash<QString, QString>> StringTables::table(const QString &code) const
{
    const QMutexLocker lock(&mutex_);
    return cachedTable(code);
}

const std::optional<QHash<QString, QString>> &StringTables::cachedTable(const QString &code) const
{
    auto found = tables_.constFind(code);
    if (found == tables_.constEnd()) {
        std::optional<QHash<QString, QString>> entries;
        if (hasFolder(resourcesFolder_, code))
            entries = readTable(folderOf(resourcesFolder_, code));
        found = tables_.insert(code, entries);
    }
    return *found;
}

QHash<QString, QString> StringTables::parse(const QString &text, const QString &source)
{
    return StringTablesParser(text, source).parse();
}

QString localized(const QString &key) { return Platform::current().strings().localized(key); }

QString locolized(const QString &key) { return Platform::current().strings().locolized(key); }

} // namespace kesto
