#pragma once

#include "platform/objectgraph/AttributeValue.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kesto
{

class ManagedObject;
class ManagedObjectContext;
class EntityDescription;

/// A named value of an entity. Every attribute is optional.
struct AttributeDescription
{
    std::string name;
    AttributeType type;
    bool indexed = false; ///< look-ups by this value are fast
};

/// What happens to the objects at the other end when an object is deleted.
enum class DeleteRule { Nullify, Cascade };

/// A named link to one object or to an unordered set of objects, with its inverse. One side at least is to-one.
struct RelationshipDescription
{
    std::string name;
    std::string destination; ///< name of the entity at the other end
    std::string inverse;     ///< name of the relationship that leads back
    bool toMany = false;
    DeleteRule deleteRule = DeleteRule::Nullify;
    bool owner = false; ///< of a to-one: an object that none of its owners has can't be reached any more

    // Set when the model is put together.
    const EntityDescription *destinationEntity = nullptr;
    int slot = -1;        ///< position among the entity's to-one or to-many relationships
    int inverseSlot = -1; ///< position of the inverse among its own kind in the destination
    bool inverseToMany = false;
};

/// Where a key leads: to an attribute or to a relationship, by position.
struct PropertyReference
{
    enum class Kind { Attribute, ToOne, ToMany };
    Kind kind;
    int slot;
};

/// Makes the object of a class for one row.
using ObjectFactory = std::unique_ptr<ManagedObject> (*)(const EntityDescription &, ManagedObjectContext &, qint64 id);

/// One entity of a model: its table has the key "_pk", a column an attribute and a column a to-one relationship.
class EntityDescription
{
public:
    /// typeTag identifies the C++ class that factory makes; without both, objects carry their values by name only.
    EntityDescription(std::string name, std::vector<AttributeDescription> attributes,
                      std::vector<RelationshipDescription> relationships, const void *typeTag = nullptr,
                      ObjectFactory factory = nullptr);

    [[nodiscard]] const std::string &name() const { return name_; }
    [[nodiscard]] int index() const { return index_; }
    [[nodiscard]] const void *typeTag() const { return typeTag_; }
    [[nodiscard]] const std::vector<AttributeDescription> &attributes() const { return attributes_; }
    [[nodiscard]] const std::vector<RelationshipDescription> &toOneRelationships() const { return toOne_; }
    [[nodiscard]] const std::vector<RelationshipDescription> &toManyRelationships() const { return toMany_; }
    /// Nothing when the entity has no property of this name.
    [[nodiscard]] std::optional<PropertyReference> property(std::string_view name) const;
    /// Null when the entity has no relationship of this name.
    [[nodiscard]] const RelationshipDescription *relationship(std::string_view name) const;
    /// Attributes, then to-one relationships: the order of the columns behind the key.
    [[nodiscard]] int columnCount() const { return static_cast<int>(attributes_.size() + toOne_.size()); }
    [[nodiscard]] const std::string &columnName(int column) const;
    [[nodiscard]] std::unique_ptr<ManagedObject> make(ManagedObjectContext &context, qint64 id) const;

private:
    friend class ManagedObjectModel;

    std::string name_;
    int index_ = -1;
    const void *typeTag_;
    ObjectFactory factory_;
    std::vector<AttributeDescription> attributes_;
    std::vector<RelationshipDescription> toOne_;
    std::vector<RelationshipDescription> toMany_;
};

/// The entities that a store file holds. Immutable once made; read from any thread.
class ManagedObjectModel
{
public:
    /// version grows with every change of what the entities store; a file remembers the version and the fingerprint
    /// that last wrote it. Throws std::invalid_argument when an inverse is missing or both sides are to-many: the model
    /// is part of the program.
    ManagedObjectModel(std::string name, int version, std::vector<EntityDescription> entities);
    ManagedObjectModel(const ManagedObjectModel &) = delete;
    ManagedObjectModel &operator=(const ManagedObjectModel &) = delete;

    [[nodiscard]] const std::string &name() const { return name_; }
    [[nodiscard]] int version() const { return version_; }
    /// A number that is another one when an entity, an attribute, its type or index, or a relationship is another one.
    [[nodiscard]] qint64 fingerprint() const { return fingerprint_; }
    [[nodiscard]] const std::vector<EntityDescription> &entities() const { return entities_; }
    /// Null when there is none.
    [[nodiscard]] const EntityDescription *entity(std::string_view name) const;
    [[nodiscard]] const EntityDescription *entityForTag(const void *typeTag) const;

private:
    std::string name_;
    int version_;
    qint64 fingerprint_ = 0;
    std::vector<EntityDescription> entities_;
};

} // namespace kesto
