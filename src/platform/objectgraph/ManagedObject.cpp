#include "platform/objectgraph/ManagedObject.h"

#include "platform/Log.h"
#include "platform/objectgraph/ManagedObjectContext.h"

#include <algorithm>
#include <cmath>

namespace kesto
{

bool ManagedObject::fire() const
{
    if (state_ == State::Fault && !unreadable_)
        context_.fireFault(const_cast<ManagedObject &>(*this)); // reading a value is not a change
    return state_ != State::Fault;
}

bool ManagedObject::canChange() const
{
    if (!fire()) {
        context_.refuseChange(*this);
        return false;
    }
    if (isDeleted()) {
        log("%@ %ld was deleted and can't be changed", QString::fromStdString(entity_.name()), id_);
        return false;
    }
    return true;
}

void ManagedObject::noteChange(int column)
{
    changedColumns_ |= quint64(1) << column;
    if (state_ == State::Clean)
        state_ = State::Updated;
    context_.noteChange(*this);
}

const AttributeValue &ManagedObject::attributeAt(int slot) const
{
    fire();
    return values_[slot];
}

void ManagedObject::setAttribute(int slot, AttributeValue value)
{
    if (const auto *number = std::get_if<double>(&value); number != nullptr && std::isnan(*number))
        value = AttributeValue(); // the store can't keep it
    if ((fire() && values_[slot] == value) || !canChange())
        return;
    noteChange(slot);
    values_[slot] = std::move(value);
}

ManagedObject *ManagedObject::toOne(int slot) const
{
    fire();
    const ToOneLink &link = toOne_[slot];
    if (link.object == nullptr && link.id != 0)
        link.object =
            context_.objectFor(*entity_.toOneRelationships()[static_cast<size_t>(slot)].destinationEntity, link.id);
    return link.object;
}

void ManagedObject::setToOne(int slot, ManagedObject *object)
{
    ManagedObject *old = toOne(slot);
    if (old == object && fire())
        return;
    if (object != nullptr && object->isDeleted()) {
        log("%@ %ld was deleted and can't be linked", QString::fromStdString(object->entity_.name()), object->id_);
        return;
    }
    const RelationshipDescription &relationship = entity_.toOneRelationships()[static_cast<size_t>(slot)];
    Q_ASSERT(object == nullptr || &object->entity_ == relationship.destinationEntity);
    if (!canChange() || !canLink(relationship, old, object))
        return;
    noteChange(static_cast<int>(entity_.attributes().size()) + slot);
    toOne_[slot] = {object != nullptr ? object->id_ : 0, object};
    if (old != nullptr)
        unlink(relationship, old);
    if (object != nullptr)
        link(relationship, object);
}

bool ManagedObject::canLink(const RelationshipDescription &relationship, ManagedObject *old,
                            ManagedObject *object) const
{
    const int inverse = relationship.inverseSlot;
    const ManagedObject *unreadable = nullptr;
    if (relationship.inverseToMany) {
        if (object != nullptr && object->toMany_[inverse].unreadable)
            unreadable = object;
    } else {
        ManagedObject *before = object != nullptr ? object->toOne(inverse) : nullptr; // loses its partner
        for (const ManagedObject *partner : {old, object, before}) {
            if (partner != nullptr && !partner->fire())
                unreadable = partner;
        }
    }
    if (unreadable != nullptr)
        context_.refuseChange(*unreadable);
    return unreadable == nullptr;
}

// Keeps the inverse in step. A to-many inverse changes in memory only: its rows are found through this side's column.
void ManagedObject::link(const RelationshipDescription &relationship, ManagedObject *object)
{
    if (relationship.inverseToMany)
        object->toMany_[relationship.inverseSlot].members.push_back(this);
    else
        object->setToOne(relationship.inverseSlot, this);
}

void ManagedObject::unlink(const RelationshipDescription &relationship, ManagedObject *object)
{
    if (relationship.inverseToMany) {
        auto &members = object->toMany_[relationship.inverseSlot].members;
        // Most objects are removed at the end or at the front.
        if (!members.empty() && members.back() == this)
            members.pop_back();
        else if (const auto found = std::find(members.begin(), members.end(), this); found != members.end())
            members.erase(found);
    } else if (object->toOne(relationship.inverseSlot) == this)
        object->setToOne(relationship.inverseSlot, nullptr);
}

ManagedObject::ToManyLink &ManagedObject::loadedToMany(int slot) const
{
    ToManyLink &link = toMany_[slot];
    if (!link.loaded && !link.unreadable)
        context_.loadToMany(const_cast<ManagedObject &>(*this), slot);
    return link;
}

std::vector<ManagedObject *> ManagedObject::toMany(int slot) const { return loadedToMany(slot).members; }

size_t ManagedObject::toManyCount(int slot) const { return loadedToMany(slot).members.size(); }

void ManagedObject::addToMany(int slot, ManagedObject *object)
{
    object->setToOne(entity_.toManyRelationships()[static_cast<size_t>(slot)].inverseSlot, this);
}

void ManagedObject::removeFromMany(int slot, ManagedObject *object)
{
    const int inverse = entity_.toManyRelationships()[static_cast<size_t>(slot)].inverseSlot;
    if (object->toOne(inverse) == this)
        object->setToOne(inverse, nullptr);
    else if (!object->fire())
        context_.refuseChange(*object);
}

QVariant ManagedObject::valueForKey(const QString &key) const
{
    const auto property = entity_.property(key.toStdString());
    if (!property) {
        log("%@ has no key - %@", QString::fromStdString(entity_.name()), key);
        return {};
    }
    switch (property->kind) {
    case PropertyReference::Kind::Attribute:
        return toVariant(entity_.attributes()[static_cast<size_t>(property->slot)].type, attributeAt(property->slot));
    case PropertyReference::Kind::ToOne: {
        ManagedObject *object = toOne(property->slot);
        return object != nullptr ? QVariant::fromValue(object) : QVariant();
    }
    case PropertyReference::Kind::ToMany: {
        const auto members = toMany(property->slot);
        return QVariant::fromValue(QList<ManagedObject *>(members.begin(), members.end()));
    }
    }
    return {};
}

bool ManagedObject::setValueForKey(const QVariant &value, const QString &key)
{
    const auto property = entity_.property(key.toStdString());
    if (!property) {
        log("%@ has no key - %@", QString::fromStdString(entity_.name()), key);
        return false;
    }
    const auto slot = static_cast<size_t>(property->slot);
    const auto fits = [](const ManagedObject *object, const EntityDescription *entity) {
        return object == nullptr || &object->entity() == entity;
    };
    switch (property->kind) {
    case PropertyReference::Kind::Attribute:
        if (auto stored = attributeValue(entity_.attributes()[slot].type, value)) {
            setAttribute(property->slot, std::move(*stored));
            return true;
        }
        break;
    case PropertyReference::Kind::ToOne: {
        if (value.isValid() && !value.canConvert<ManagedObject *>())
            break;
        auto *object = value.value<ManagedObject *>();
        if (!fits(object, entity_.toOneRelationships()[slot].destinationEntity))
            break;
        setToOne(property->slot, object);
        return true;
    }
    case PropertyReference::Kind::ToMany: {
        const EntityDescription *destination = entity_.toManyRelationships()[slot].destinationEntity;
        if (value.isValid() && !value.canConvert<QList<ManagedObject *>>())
            break;
        const auto wanted = value.value<QList<ManagedObject *>>();
        if (!std::all_of(wanted.begin(), wanted.end(),
                         [&](const ManagedObject *object) { return object != nullptr && fits(object, destination); }))
            break;
        const auto before = toMany(property->slot);
        if (toMany_[slot].unreadable) {
            context_.refuseChange(*this);
            return false;
        }
        for (ManagedObject *member : before) {
            if (!wanted.contains(member))
                removeFromMany(property->slot, member);
        }
        for (ManagedObject *object : wanted)
            addToMany(property->slot, object);
        return true;
    }
    }
    log("%@ can't hold such a value for the key - %@", QString::fromStdString(entity_.name()), key);
    return false;
}

} // namespace kesto
