#include "util/SKHelpManager.h"

#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/KeyValueCoding.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/PropertyList.h"
#include "platform/TextOrder.h"

#include <QHash>
#include <QLocale>

#include <algorithm>
#include <utility>
#include <vector>

namespace kesto
{

namespace
{

std::optional<QVariant> contentOf(const QString &name, QMetaType::Type type)
{
    const QString path = Platform::current().resourcesFolder() + u'/' + name + QStringLiteral(".plist");
    const Result<QVariant> content = PropertyList::read(path);
    if (!content) {
        if (!AtomicFile::isMissing(content.error()))
            log(content.error().message());
        return std::nullopt;
    }
    return content->typeId() == type ? std::optional(*content) : std::nullopt;
}

QVariant valueOf(const QVariant &item, const QString &key)
{
    if (item.typeId() == QMetaType::QVariantMap)
        return item.toMap().value(key);
    const auto *object = item.value<KeyValueCoding *>();
    return object ? object->valueForKey(key) : QVariant();
}

bool isText(const QVariant &value) { return value.typeId() == QMetaType::QString; }

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

// An empty text for a value that is absent.
QString textOf(const QVariant &value)
{
    if (!value.isValid())
        return {};
    return isText(value) ? value.toString() : plainText(value);
}

struct Named
{
    QVariant value; // what the item is sorted by
    QString text;
    QVariant item;
};

struct Group
{
    QVariant name;
    std::vector<Named> members;
};

bool comesBefore(const QVariant &left, const QString &leftText, const QVariant &right, const QString &rightText)
{
    if (isNumber(left) && isNumber(right))
        return left.toDouble() < right.toDouble();
    return compareLiterally(leftText, rightText) < 0;
}

// Groups in the order in which they first occur.
class Groups
{
public:
    void append(const QString &identity, const QVariant &name, Named member)
    {
        const auto found = positions_.constFind(identity);
        const size_t position = found != positions_.constEnd() ? *found : groups_.size();
        if (position == groups_.size()) {
            positions_.insert(identity, position);
            groups_.push_back({name, {}});
        }
        groups_[position].members.push_back(std::move(member));
    }

    std::optional<QVariantList> sections()
    {
        if (groups_.empty())
            return std::nullopt;
        std::stable_sort(groups_.begin(), groups_.end(), [](const Group &left, const Group &right) {
            return comesBefore(left.name, textOf(left.name), right.name, textOf(right.name));
        });
        QVariantList sections;
        for (Group &group : groups_) {
            std::stable_sort(group.members.begin(), group.members.end(), [](const Named &left, const Named &right) {
                return comesBefore(left.value, left.text, right.value, right.text);
            });
            QVariantList content;
            for (const Named &member : group.members)
                content.append(member.item);
            sections.append(QVariantMap{{QStringLiteral("section name"), group.name},
                                        {QStringLiteral("section content"), content}});
        }
        return sections;
    }

private:
    QHash<QString, size_t> positions_;
    std::vector<Group> groups_;
};

// A character above U+FFFF takes two units of the text.
QString firstLetter(const QString &name)
{
    const bool pair = name.size() > 1 && name[0].isHighSurrogate() && name[1].isLowSurrogate();
    return name.first(pair ? 2 : 1).toUpper();
}

} // namespace

std::optional<QVariantList> SKHelpManager::arrayFromPlist(const QString &name)
{
    if (const std::optional<QVariant> content = contentOf(name, QMetaType::QVariantList))
        return content->toList();
    log("SKHelpManager error for array - no local plist file for fileName - |%@|", name);
    return std::nullopt;
}

std::optional<QVariantMap> SKHelpManager::dictionaryFromPlist(const QString &name)
{
    if (const std::optional<QVariant> content = contentOf(name, QMetaType::QVariantMap))
        return content->toMap();
    log("SKHelpManager error for dictionary - no local plist file for fileName - |%@|", name);
    return std::nullopt;
}

std::optional<QVariantList> SKHelpManager::groupedItemsByFirstLetterInNameFromItems(const QVariantList &items,
                                                                                    const QString &byNameKey)
{
    const bool stringMode = std::any_of(items.begin(), items.end(), isText);
    Groups groups;
    for (const QVariant &item : items) {
        const QString name = textOf(isText(item) ? item : valueOf(item, byNameKey));
        if (name.isEmpty())
            continue;
        const QString letter = firstLetter(name);
        groups.append(letter, letter, {name, stringMode ? name.toCaseFolded() : name, item});
    }
    return groups.sections();
}

std::optional<QVariantList> SKHelpManager::groupedItems(const QVariantList &items, const QString &byKey)
{
    Groups groups;
    for (const QVariant &item : items) {
        const QVariant group = valueOf(item, byKey);
        const QString identity = textOf(group);
        if (identity.isEmpty())
            continue;
        const QVariant name = valueOf(item, QStringLiteral("name"));
        groups.append(identity, group, {name, textOf(name), item});
    }
    return groups.sections();
}

QString SKHelpManager::documentsDirectoryPathForFile(const QString &fileName)
{
    return Platform::current().documentsFolder() + u'/' + fileName;
}

QString SKHelpManager::curentShortStyleDate()
{
    const Platform &platform = Platform::current();
    const QDate today = platform.calendar().dayOf(platform.clock().now());
    return QLocale().toString(today, QLocale::ShortFormat).replace(u'/', u'.');
}

QImage SKHelpManager::scalledImageFromImage(const QImage &image, const QSizeF &scaledToSize, qreal devicePixelRatio)
{
    const QSize pixels = (scaledToSize * devicePixelRatio).toSize();
    if (image.isNull() || pixels.isEmpty())
        return {};
    QImage scaled = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatio);
    return scaled;
}

QImage SKHelpManager::standartScalledImageFromImage(const QImage &image, qreal devicePixelRatio)
{
    return scalledImageFromImage(image, QSizeF(35, 35), devicePixelRatio);
}

} // namespace kesto
