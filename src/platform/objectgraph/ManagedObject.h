#pragma once

#include "platform/KeyValueCoding.h"
#include "platform/objectgraph/AttributeValue.h"
#include "platform/objectgraph/ManagedObjectModel.h"

#include <QList>

#include <vector>

namespace kesto
{

/// One object of the graph: one row of the store, the same object for the whole life of its context. The context owns
/// it; a pointer stays valid until the context is destroyed, also after the object was deleted (isDeleted() is then
/// true, and changes are refused and logged). Main thread only.
///
/// Values and relationships are read from the store when they are first used. When that read fails, it is logged, the
/// value is absent or the set holds only what was added in memory, and nothing of it is kept. Until the next save ends,
/// the object (or the set) counts as unreadable: changes of it are refused and make that save fail, so that nothing is
/// decided by values that are missing. A later use reads again.
class ManagedObject : public KeyValueCoding
{
public:
    ~ManagedObject() override = default;
    ManagedObject(const ManagedObject &) = delete;
    ManagedObject &operator=(const ManagedObject &) = delete;

    [[nodiscard]] const EntityDescription &entity() const { return entity_; }
    [[nodiscard]] ManagedObjectContext &managedObjectContext() const { return context_; }
    /// The row's key: unique within the entity, permanent from insertion on.
    [[nodiscard]] qint64 objectID() const { return id_; }
    [[nodiscard]] bool isInserted() const { return state_ == State::Inserted; }
    [[nodiscard]] bool isDeleted() const { return state_ == State::Deleted || state_ == State::Gone; }
    [[nodiscard]] bool hasChanges() const { return listed_; }

    /// An attribute (float, qint64, quint32, bool, QString, QDateTime or QByteArray), a to-one relationship
    /// (ManagedObject *) or a to-many one (QList<ManagedObject *>) by name; invalid when absent. An unknown name is
    /// logged and gives nothing.
    [[nodiscard]] QVariant valueForKey(const QString &key) const override;
    /// An invalid variant clears. False, logged and nothing changed, for an unknown name or a value of another type.
    bool setValueForKey(const QVariant &value, const QString &key);

    // By position, for the typed accessors of the entity classes.
    [[nodiscard]] const AttributeValue &attributeAt(int slot) const;
    void setAttribute(int slot, AttributeValue value);
    [[nodiscard]] ManagedObject *toOne(int slot) const;
    void setToOne(int slot, ManagedObject *object);
    /// A copy: the set may be changed while it is walked.
    [[nodiscard]] std::vector<ManagedObject *> toMany(int slot) const;
    [[nodiscard]] size_t toManyCount(int slot) const;
    void addToMany(int slot, ManagedObject *object);
    /// Nothing happens when the object is not in the set.
    void removeFromMany(int slot, ManagedObject *object);

protected:
    struct ToOneLink
    {
        qint64 id = 0;                           ///< key of the other row, 0 is absent
        mutable ManagedObject *object = nullptr; ///< known once it was touched
    };
    struct ToManyLink
    {
        bool loaded = false;
        bool unreadable = false;              ///< the last read failed
        std::vector<ManagedObject *> members; ///< while not loaded: those added in memory
    };

    ManagedObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : entity_(entity)
        , context_(context)
        , id_(id)
    {
    }

    /// Storage lives in the most derived class so that an object is one allocation.
    void useStorage(AttributeValue *values, ToOneLink *toOne, ToManyLink *toMany)
    {
        values_ = values;
        toOne_ = toOne;
        toMany_ = toMany;
    }

private:
    friend class ManagedObjectContext;
    friend class Fetcher;
    friend class Saver;

    /// Fault: the row's values have not been read. Gone: the deletion was saved, or there never was a row.
    enum class State : quint8 { Fault, Clean, Inserted, Updated, Deleted, Gone };

    /// Reads the values unless they are there. False when they can't be read.
    bool fire() const;
    [[nodiscard]] bool canChange() const;
    /// Whether all objects can be read that setToOne() has to change.
    [[nodiscard]] bool canLink(const RelationshipDescription &relationship, ManagedObject *old,
                               ManagedObject *object) const;
    void noteChange(int column);
    ToManyLink &loadedToMany(int slot) const;
    void link(const RelationshipDescription &relationship, ManagedObject *object);
    void unlink(const RelationshipDescription &relationship, ManagedObject *object);

    const EntityDescription &entity_;
    ManagedObjectContext &context_;
    qint64 id_;
    quint64 changedColumns_ = 0; ///< bit i: column i behind the key differs from the store
    State state_ = State::Fault;
    bool listed_ = false;             ///< the context has it among the objects to save
    mutable bool unreadable_ = false; ///< the last read of its values failed
    AttributeValue *values_ = nullptr;
    ToOneLink *toOne_ = nullptr;
    ToManyLink *toMany_ = nullptr;
};

} // namespace kesto

Q_DECLARE_METATYPE(kesto::ManagedObject *)
