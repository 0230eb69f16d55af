#pragma once

#include "platform/objectgraph/AttributeValue.h"

#include <QDateTime>
#include <QString>

#include <concepts>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kesto
{

class ManagedObject;

/// A condition on the objects of one entity: attribute("date") < date && attribute("weight") != 0. It runs as SQL with
/// bound values and, for objects with unsaved changes, in memory, with the same answer. A comparison with an absent
/// value is neither true nor false, whatever is done to it (also under !), so an object without a weight is not found
/// by attribute("weight") != 0. Copying is cheap.
class Predicate
{
public:
    enum class Operation { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Contains, In, IsAbsent };

    struct Node
    {
        enum class Kind { Comparison, And, Or, Not };
        Kind kind = Kind::Comparison;
        Operation operation = Operation::Equal;
        std::string path;                      ///< "name" or "relationship.name"
        AttributeValue value;                  ///< of a comparison with one value
        const ManagedObject *object = nullptr; ///< of a comparison of a to-one relationship
        std::vector<AttributeValue> list;      ///< of In
        std::shared_ptr<const Node> left;
        std::shared_ptr<const Node> right;
    };

    /// Every object.
    Predicate() = default;
    explicit Predicate(std::shared_ptr<const Node> node)
        : node_(std::move(node))
    {
    }

    [[nodiscard]] const Node *node() const { return node_.get(); }

    friend Predicate operator&&(const Predicate &left, const Predicate &right)
    {
        return join(Node::Kind::And, left, right);
    }
    friend Predicate operator||(const Predicate &left, const Predicate &right)
    {
        return join(Node::Kind::Or, left, right);
    }
    friend Predicate operator!(const Predicate &operand) { return join(Node::Kind::Not, operand, {}); }

private:
    static Predicate join(Node::Kind kind, const Predicate &left, const Predicate &right);

    std::shared_ptr<const Node> node_;
};

/// The left side of a comparison; see attribute().
class AttributePath
{
public:
    explicit AttributePath(std::string path)
        : path_(std::move(path))
    {
    }

    template <class T>
    friend Predicate operator==(AttributePath path, const T &value)
    {
        return compare(std::move(path), Predicate::Operation::Equal, value);
    }
    template <class T>
    friend Predicate operator!=(AttributePath path, const T &value)
    {
        return compare(std::move(path), Predicate::Operation::NotEqual, value);
    }
    template <class T>
    friend Predicate operator<(AttributePath path, const T &value)
    {
        return compare(std::move(path), Predicate::Operation::Less, value);
    }
    template <class T>
    friend Predicate operator<=(AttributePath path, const T &value)
    {
        return compare(std::move(path), Predicate::Operation::LessOrEqual, value);
    }
    template <class T>
    friend Predicate operator>(AttributePath path, const T &value)
    {
        return compare(std::move(path), Predicate::Operation::Greater, value);
    }
    template <class T>
    friend Predicate operator>=(AttributePath path, const T &value)
    {
        return compare(std::move(path), Predicate::Operation::GreaterOrEqual, value);
    }

    /// A text that contains another one, letter for letter; every text contains the empty one.
    [[nodiscard]] Predicate contains(const QString &text) &&
    {
        return compare(std::move(*this), Predicate::Operation::Contains, text.isNull() ? QStringLiteral("") : text);
    }
    [[nodiscard]] Predicate isAbsent() &&;

    template <class T>
    [[nodiscard]] Predicate in(const std::vector<T> &values) &&
    {
        auto node = std::make_shared<Predicate::Node>();
        node->operation = Predicate::Operation::In;
        node->path = std::move(path_);
        for (const T &value : values)
            node->list.push_back(stored(value));
        return Predicate(std::move(node));
    }

private:
    static AttributeValue stored(bool value) { return static_cast<qint64>(value); }
    static AttributeValue stored(std::integral auto value) { return static_cast<qint64>(value); }
    static AttributeValue stored(std::floating_point auto value) { return static_cast<double>(value); }
    static AttributeValue stored(const QString &value) { return value.isNull() ? AttributeValue() : value; }
    static AttributeValue stored(const QDateTime &value)
    {
        return value.isValid() ? AttributeValue(value.toMSecsSinceEpoch()) : AttributeValue();
    }

    template <class T>
    static Predicate compare(AttributePath path, Predicate::Operation operation, const T &value)
    {
        auto node = std::make_shared<Predicate::Node>();
        node->operation = operation;
        node->path = std::move(path.path_);
        if constexpr (std::is_pointer_v<T>)
            node->object = value;
        else
            node->value = stored(value);
        return Predicate(std::move(node));
    }

    std::string path_;
};

/// An attribute or a to-one relationship of the entity by name, or an attribute behind one to-one relationship
/// ("ingredient.name"). A relationship compares with an object by == and != only.
[[nodiscard]] inline AttributePath attribute(std::string path) { return AttributePath(std::move(path)); }
[[nodiscard]] inline AttributePath attribute(QStringView path) { return AttributePath(path.toUtf8().toStdString()); }

/// Whether an object meets the condition, by its values in memory.
[[nodiscard]] bool matches(const Predicate &predicate, const ManagedObject &object);

/// One key of an order. Ties are broken by the objects' keys, so an order is always defined. Absent values come first.
struct SortDescriptor
{
    std::string key;
    bool ascending = true;
};

/// What to fetch, of one entity.
struct FetchRequest
{
    Predicate predicate;
    std::vector<SortDescriptor> sortDescriptors; ///< none: in the order of insertion
    int fetchLimit = 0;                          ///< 0: no limit
    int fetchBatchSize = 0; ///< 0: values are read at once; else when they are touched, this many objects at a time
    /// Relationships read along with the objects, "jornalDay" or "jornalDay.timeRows". Those of one level that lead to
    /// the same entity take one statement.
    std::vector<std::string> relationshipKeyPathsForPrefetching;
};

} // namespace kesto
