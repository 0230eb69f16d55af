#pragma once

#include "platform/objectgraph/ManagedObject.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace kesto
{

/// A name as a template argument.
template <size_t Size>
struct PropertyName
{
    // NOLINTNEXTLINE(google-explicit-constructor): so that a literal can be given
    constexpr PropertyName(const char (&name)[Size]) { std::copy_n(name, Size, text); }
    [[nodiscard]] constexpr std::string_view view() const { return {text, Size - 1}; }

    char text[Size]{};
};

enum class Index { No, Yes };

/// An attribute of an entity: its name in the store and the C++ type of its values (float, int, quint32, bool, QString,
/// QDateTime or QByteArray). Look-ups by the value of an indexed one are fast.
template <PropertyName name, class T, Index index = Index::No>
struct Attribute
{
    using Type = T;
    static constexpr auto kName = name;

    [[nodiscard]] static AttributeDescription description()
    {
        return {std::string(name.view()), attributeTypeOf<T>(), index == Index::Yes};
    }
};

/// What one end of a relationship means to the other one.
enum class Tie {
    None,
    Owns,   ///< deleting the object deletes the other one
    OwnedBy ///< without any of its owners the object can't be reached any more
};

template <PropertyName name, class T, PropertyName inverse, Tie tie, bool toMany>
struct Relationship
{
    using Destination = T;
    static constexpr auto kName = name;
    static constexpr bool kToMany = toMany;

    [[nodiscard]] static RelationshipDescription description()
    {
        return {.name = std::string(name.view()),
                .destination = std::string(T::kEntityName),
                .inverse = std::string(inverse.view()),
                .toMany = toMany,
                .deleteRule = tie == Tie::Owns ? DeleteRule::Cascade : DeleteRule::Nullify,
                .owner = tie == Tie::OwnedBy};
    }
};

/// A link to one object or to none, with its inverse in the class at the other end.
template <PropertyName name, class Destination, PropertyName inverse, Tie tie = Tie::None>
using ToOne = Relationship<name, Destination, inverse, tie, false>;

/// A link to a set of objects.
template <PropertyName name, class Destination, PropertyName inverse, Tie tie = Tie::None>
using ToMany = Relationship<name, Destination, inverse, tie, true>;

template <class... Each>
struct Attributes
{
};

template <class... Each>
struct Relationships
{
};

/// How an accessor gives a value of a type: a text that is absent is null, everything else is optional.
template <class T>
using Accessed = std::conditional_t<std::is_same_v<T, QString>, QString, std::optional<T>>;

template <class T>
[[nodiscard]] Accessed<T> accessed(const AttributeValue &value)
{
    if constexpr (std::is_same_v<T, QString>) {
        const auto *text = std::get_if<QString>(&value);
        return text != nullptr ? *text : QString();
    } else if constexpr (std::is_same_v<T, QByteArray>) {
        const auto *bytes = std::get_if<QByteArray>(&value);
        return bytes != nullptr ? std::optional(*bytes) : std::nullopt;
    } else if constexpr (std::is_same_v<T, float>) {
        const auto *number = std::get_if<double>(&value);
        return number != nullptr ? std::optional(static_cast<float>(*number)) : std::nullopt;
    } else {
        const auto *number = std::get_if<qint64>(&value);
        if (number == nullptr)
            return std::nullopt;
        if constexpr (std::is_same_v<T, QDateTime>)
            return QDateTime::fromMSecsSinceEpoch(*number, Qt::UTC);
        else if constexpr (std::is_same_v<T, bool>)
            return *number != 0;
        else
            return static_cast<T>(*number);
    }
}

template <class T>
[[nodiscard]] AttributeValue stored(const Accessed<T> &value)
{
    if constexpr (std::is_same_v<T, QString>)
        return value.isNull() ? AttributeValue() : AttributeValue(value);
    else if constexpr (std::is_same_v<T, QDateTime>)
        return value && value->isValid() ? AttributeValue(value->toMSecsSinceEpoch()) : AttributeValue();
    else if constexpr (std::is_same_v<T, QByteArray>)
        return value ? AttributeValue(*value) : AttributeValue();
    else if constexpr (std::is_same_v<T, float>)
        return value ? AttributeValue(static_cast<double>(*value)) : AttributeValue();
    else
        return value ? AttributeValue(static_cast<qint64>(*value)) : AttributeValue();
}

template <PropertyName entity, class AttributeList, class RelationshipList>
class StoredObject;

/// Base of the entity classes. Its arguments declare the entity: from them follow the table, the storage inside the
/// object, and where each accessor of the class finds its value; a name that is not declared does not compile.
template <PropertyName entityName, class... A, class... R>
class StoredObject<entityName, Attributes<A...>, Relationships<R...>> : public ManagedObject
{
public:
    static constexpr std::string_view kEntityName = entityName.view();
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    StoredObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : ManagedObject(entity, context, id)
    {
        useStorage(values_.data(), toOne_.data(), toMany_.data());
    }

    [[nodiscard]] static EntityDescription description(ObjectFactory factory)
    {
        return {std::string(kEntityName), {A::description()...}, {R::description()...}, &kTypeTag, factory};
    }

protected:
    template <PropertyName name>
    static consteval int slotOf()
    {
        return find(name.view(), {A::kName.view()...});
    }

    template <PropertyName name>
    [[nodiscard]] auto get() const
    {
        return accessed<TypeOf<name>>(attributeAt(slotOf<name>()));
    }
    template <PropertyName name, class Value>
    void set(const Value &value)
    {
        static_assert(std::is_same_v<Value, Accessed<TypeOf<name>>>);
        setAttribute(slotOf<name>(), stored<TypeOf<name>>(value));
    }

    template <PropertyName name>
    [[nodiscard]] auto one() const
    {
        return static_cast<DestinationOf<name> *>(toOne(linkSlotOf<name, false>()));
    }
    template <PropertyName name, class Destination>
    void setOne(Destination *object)
    {
        static_assert(std::is_same_v<Destination, DestinationOf<name>>);
        setToOne(linkSlotOf<name, false>(), object);
    }
    template <PropertyName name>
    [[nodiscard]] auto many() const
    {
        return objectsAt<DestinationOf<name>>(linkSlotOf<name, true>());
    }
    template <PropertyName name, class Destination>
    void add(Destination &object)
    {
        static_assert(std::is_same_v<Destination, DestinationOf<name>>);
        addToMany(linkSlotOf<name, true>(), &object);
    }
    template <PropertyName name, class Destination>
    void remove(Destination &object)
    {
        static_assert(std::is_same_v<Destination, DestinationOf<name>>);
        removeFromMany(linkSlotOf<name, true>(), &object);
    }

    template <class T>
    [[nodiscard]] std::vector<T *> objectsAt(int slot) const
    {
        std::vector<T *> typed;
        const std::vector<ManagedObject *> members = toMany(slot);
        typed.reserve(members.size());
        for (ManagedObject *member : members)
            typed.push_back(static_cast<T *>(member));
        return typed;
    }

private:
    static constexpr size_t kToManys = (size_t(0) + ... + (R::kToMany ? 1 : 0));

    template <PropertyName name>
    using TypeOf = typename std::tuple_element_t<static_cast<size_t>(slotOf<name>()), std::tuple<A...>>::Type;

    static consteval int find(std::string_view name, std::initializer_list<std::string_view> names)
    {
        const auto *found = std::find(names.begin(), names.end(), name);
        if (found == names.end())
            throw "the entity declares no property of this name";
        return static_cast<int>(found - names.begin());
    }
    template <PropertyName name>
    static consteval size_t linkIndexOf()
    {
        return static_cast<size_t>(find(name.view(), {R::kName.view()...}));
    }
    template <PropertyName name>
    using DestinationOf = typename std::tuple_element_t<linkIndexOf<name>(), std::tuple<R...>>::Destination;

    /// Slots are counted for to-one and to-many relationships apart.
    template <PropertyName name, bool toMany>
    static consteval int linkSlotOf()
    {
        constexpr std::array<bool, sizeof...(R)> kinds{R::kToMany...};
        constexpr size_t index = linkIndexOf<name>();
        static_assert(kinds[index] == toMany, "a link to one is not a link to many");
        return static_cast<int>(std::count(kinds.begin(), kinds.begin() + index, toMany));
    }

    std::array<AttributeValue, sizeof...(A)> values_;
    std::array<ToOneLink, sizeof...(R) - kToManys> toOne_;
    std::array<ToManyLink, kToManys> toMany_;
};

/// The description of an entity class, for the model.
template <class T>
[[nodiscard]] EntityDescription describe()
{
    return T::description(
        [](const EntityDescription &entity, ManagedObjectContext &context,
           qint64 id) -> std::unique_ptr<ManagedObject> { return std::make_unique<T>(entity, context, id); });
}

} // namespace kesto
