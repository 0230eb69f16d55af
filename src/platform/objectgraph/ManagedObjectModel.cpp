#include "platform/objectgraph/ManagedObjectModel.h"

#include "platform/objectgraph/ManagedObject.h"

#include <algorithm>
#include <stdexcept>

namespace kesto
{

namespace
{

/// An object without a class of its own: its values are reached by name.
class PlainManagedObject final : public ManagedObject
{
public:
    PlainManagedObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : ManagedObject(entity, context, id)
        , values_(entity.attributes().size())
        , toOne_(entity.toOneRelationships().size())
        , toMany_(entity.toManyRelationships().size())
    {
        useStorage(values_.data(), toOne_.data(), toMany_.data());
    }

private:
    std::vector<AttributeValue> values_;
    std::vector<ToOneLink> toOne_;
    std::vector<ToManyLink> toMany_;
};

template <class List>
int position(const List &list, std::string_view name)
{
    for (size_t i = 0; i < list.size(); ++i) {
        if (list[i].name == name)
            return static_cast<int>(i);
    }
    return -1;
}

/// FNV-1a: the same in every build and on every machine, which std::hash is not.
qint64 hash(std::string_view text)
{
    quint64 value = 0xcbf29ce484222325;
    for (const char byte : text)
        value = (value ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return static_cast<qint64>(value);
}

/// Everything about an entity that its table depends on, one line each.
void addSchema(const EntityDescription &entity, std::vector<std::string> &lines)
{
    const std::string start = entity.name() + '.';
    for (const AttributeDescription &attribute : entity.attributes())
        lines.push_back(start + attribute.name + ' ' + std::to_string(static_cast<int>(attribute.type)) +
                        (attribute.indexed ? " indexed" : ""));
    for (const auto *list : {&entity.toOneRelationships(), &entity.toManyRelationships()}) {
        for (const RelationshipDescription &relationship : *list)
            lines.push_back(start + relationship.name + (relationship.toMany ? " >> " : " > ") +
                            relationship.destination + '.' + relationship.inverse);
    }
}

} // namespace

EntityDescription::EntityDescription(std::string name, std::vector<AttributeDescription> attributes,
                                     std::vector<RelationshipDescription> relationships, const void *typeTag,
                                     ObjectFactory factory)
    : name_(std::move(name))
    , typeTag_(typeTag)
    , factory_(factory)
    , attributes_(std::move(attributes))
{
    for (RelationshipDescription &relationship : relationships) {
        auto &list = relationship.toMany ? toMany_ : toOne_;
        relationship.slot = static_cast<int>(list.size());
        list.push_back(std::move(relationship));
    }
}

std::optional<PropertyReference> EntityDescription::property(std::string_view name) const
{
    using Kind = PropertyReference::Kind;
    if (const int slot = position(attributes_, name); slot >= 0)
        return PropertyReference{Kind::Attribute, slot};
    if (const int slot = position(toOne_, name); slot >= 0)
        return PropertyReference{Kind::ToOne, slot};
    if (const int slot = position(toMany_, name); slot >= 0)
        return PropertyReference{Kind::ToMany, slot};
    return std::nullopt;
}

const RelationshipDescription *EntityDescription::relationship(std::string_view name) const
{
    const auto reference = property(name);
    if (!reference || reference->kind == PropertyReference::Kind::Attribute)
        return nullptr;
    const auto &list = reference->kind == PropertyReference::Kind::ToOne ? toOne_ : toMany_;
    return &list[static_cast<size_t>(reference->slot)];
}

const std::string &EntityDescription::columnName(int column) const
{
    const auto index = static_cast<size_t>(column);
    return index < attributes_.size() ? attributes_[index].name : toOne_[index - attributes_.size()].name;
}

std::unique_ptr<ManagedObject> EntityDescription::make(ManagedObjectContext &context, qint64 id) const
{
    if (factory_ != nullptr)
        return factory_(*this, context, id);
    return std::make_unique<PlainManagedObject>(*this, context, id);
}

ManagedObjectModel::ManagedObjectModel(std::string name, int version, std::vector<EntityDescription> entities)
    : name_(std::move(name))
    , version_(version)
    , entities_(std::move(entities))
{
    for (size_t i = 0; i < entities_.size(); ++i)
        entities_[i].index_ = static_cast<int>(i);
    for (EntityDescription &source : entities_) {
        for (auto *list : {&source.toOne_, &source.toMany_}) {
            for (RelationshipDescription &relationship : *list) {
                relationship.destinationEntity = entity(relationship.destination);
                const RelationshipDescription *inverse =
                    relationship.destinationEntity == nullptr
                        ? nullptr
                        : relationship.destinationEntity->relationship(relationship.inverse);
                if (inverse == nullptr || inverse->destination != source.name() ||
                    inverse->inverse != relationship.name || (inverse->toMany && relationship.toMany))
                    throw std::invalid_argument("no usable inverse for " + source.name() + "." + relationship.name);
                relationship.inverseSlot = inverse->slot;
                relationship.inverseToMany = inverse->toMany;
            }
        }
    }
    std::vector<std::string> lines;
    for (const EntityDescription &each : entities_)
        addSchema(each, lines);
    std::sort(lines.begin(), lines.end());
    std::string schema;
    for (const std::string &line : lines)
        schema += line + '\n';
    fingerprint_ = hash(schema);
}

const EntityDescription *ManagedObjectModel::entity(std::string_view name) const
{
    for (const EntityDescription &candidate : entities_) {
        if (candidate.name() == name)
            return &candidate;
    }
    return nullptr;
}

const EntityDescription *ManagedObjectModel::entityForTag(const void *typeTag) const
{
    for (const EntityDescription &candidate : entities_) {
        if (candidate.typeTag() == typeTag)
            return &candidate;
    }
    return nullptr;
}

} // namespace kesto
