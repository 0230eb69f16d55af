#include "BaselineDatabase.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "platform/PropertyList.h"

#include <pugixml.hpp>

#include <cstring>

namespace kesto::bench
{

namespace
{

// Both results are told apart by their number of values and the length of their texts.

class OurParse final : public Trial
{
public:
    explicit OurParse(Fixtures &fixtures)
        : bytes_(fixtures.propertyList())
    {
    }
    void run() override { parsed_ = PropertyList::parse(bytes_, QStringLiteral("generated.plist")); }
    quint64 checksum() override { return parsed_ ? weigh(*parsed_) : 0; }

private:
    static quint64 weigh(const QVariant &value)
    {
        quint64 sum = 1;
        if (value.typeId() == QMetaType::QVariantList) {
            for (const QVariant &item : value.toList())
                sum += weigh(item);
        } else if (value.typeId() == QMetaType::QVariantMap) {
            for (const QVariant &item : value.toMap())
                sum += weigh(item);
        } else
            sum += static_cast<quint64>(value.toString().toUtf8().size()) * 1000;
        return sum;
    }

    const QByteArray &bytes_;
    std::optional<QVariant> parsed_;
};

class PugixmlParse final : public Trial
{
public:
    explicit PugixmlParse(Fixtures &fixtures)
        : bytes_(fixtures.propertyList())
    {
    }
    void run() override
    {
        if (!document_.load_buffer(bytes_.constData(), static_cast<size_t>(bytes_.size()), pugi::parse_default,
                                   pugi::encoding_utf8))
            fail(QStringLiteral("the generated property list is no XML"));
    }
    quint64 checksum() override { return weigh(document_.child("plist").first_child()); }

private:
    static quint64 weigh(const pugi::xml_node &node)
    {
        quint64 sum = 1;
        if (std::strcmp(node.name(), "array") == 0 || std::strcmp(node.name(), "dict") == 0) {
            for (const pugi::xml_node &item : node.children()) {
                if (std::strcmp(item.name(), "key") != 0)
                    sum += weigh(item);
            }
        } else
            sum += std::strlen(node.child_value()) * 1000;
        return sum;
    }

    const QByteArray &bytes_;
    pugi::xml_document document_;
};

} // namespace

Workload parseOfPropertyList(Fixtures &fixtures)
{
    return {.name = "parse of a property list of 1.5 MB",
            .contenders = {contender<OurParse>("ours", fixtures), contender<PugixmlParse>("pugixml alone", fixtures)},
            .bars = {{Bar::Kind::TimesContender, 2, "pugixml alone"}}};
}

} // namespace kesto::bench
