#include "platform/objectgraph/Predicate.h"

#include "platform/objectgraph/ManagedObject.h"

#include <algorithm>

namespace kesto
{

Predicate Predicate::join(Node::Kind kind, const Predicate &left, const Predicate &right)
{
    if (kind == Node::Kind::And) {
        if (left.node_ == nullptr)
            return right;
        if (right.node_ == nullptr)
            return left;
    }
    if (left.node_ == nullptr || (kind == Node::Kind::Or && right.node_ == nullptr)) {
        Q_ASSERT_X(kind == Node::Kind::Or, "Predicate", "the negation of everything");
        return {};
    }
    auto node = std::make_shared<Node>();
    node->kind = kind;
    node->left = left.node_;
    node->right = right.node_;
    return Predicate(std::move(node));
}

Predicate AttributePath::isAbsent() &&
{
    auto node = std::make_shared<Predicate::Node>();
    node->operation = Predicate::Operation::IsAbsent;
    node->path = std::move(path_);
    return Predicate(std::move(node));
}

namespace
{

/// SQL's three truth values.
using Truth = std::optional<bool>;

Truth compare(const Predicate::Node &node, const AttributeValue &value)
{
    using Operation = Predicate::Operation;
    if (node.operation == Operation::IsAbsent)
        return std::holds_alternative<std::monostate>(value);
    if (std::holds_alternative<std::monostate>(value))
        return std::nullopt;
    if (node.operation != Operation::In && std::holds_alternative<std::monostate>(node.value))
        return std::nullopt;
    if (node.operation == Operation::In)
        return std::any_of(node.list.begin(), node.list.end(),
                           [&](const AttributeValue &candidate) { return compareValues(value, candidate) == 0; });
    if (node.operation == Operation::Contains) {
        const auto *text = std::get_if<QString>(&value);
        return text != nullptr && text->contains(std::get<QString>(node.value));
    }
    const int order = compareValues(value, node.value);
    switch (node.operation) {
    case Operation::Equal:
        return order == 0;
    case Operation::NotEqual:
        return order != 0;
    case Operation::Less:
        return order < 0;
    case Operation::LessOrEqual:
        return order <= 0;
    case Operation::Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

Truth compareObject(const Predicate::Node &node, const ManagedObject *other)
{
    if (node.operation == Predicate::Operation::IsAbsent)
        return other == nullptr;
    if (other == nullptr || node.object == nullptr)
        return std::nullopt;
    return (other == node.object) == (node.operation == Predicate::Operation::Equal);
}

Truth evaluate(const Predicate::Node &node, const ManagedObject &object)
{
    switch (node.kind) {
    case Predicate::Node::Kind::And: {
        const Truth left = evaluate(*node.left, object);
        if (left == Truth(false))
            return false;
        const Truth right = evaluate(*node.right, object);
        return right == Truth(false) ? right : (left && right ? Truth(true) : std::nullopt);
    }
    case Predicate::Node::Kind::Or: {
        const Truth left = evaluate(*node.left, object);
        if (left == Truth(true))
            return true;
        const Truth right = evaluate(*node.right, object);
        return right == Truth(true) ? right : (left && right ? Truth(false) : std::nullopt);
    }
    case Predicate::Node::Kind::Not: {
        const Truth operand = evaluate(*node.left, object);
        return operand ? Truth(!*operand) : std::nullopt;
    }
    case Predicate::Node::Kind::Comparison:
        break;
    }
    std::string_view path = node.path;
    const ManagedObject *target = &object;
    if (const size_t point = path.find('.'); point != std::string_view::npos) {
        const auto first = object.entity().property(path.substr(0, point));
        target = first && first->kind == PropertyReference::Kind::ToOne ? object.toOne(first->slot) : nullptr;
        if (target == nullptr)
            return node.operation == Predicate::Operation::IsAbsent ? Truth(true) : std::nullopt;
        path = path.substr(point + 1);
    }
    const auto property = target->entity().property(path);
    if (property && property->kind == PropertyReference::Kind::Attribute)
        return compare(node, target->attributeAt(property->slot));
    if (property && property->kind == PropertyReference::Kind::ToOne)
        return compareObject(node, target->toOne(property->slot));
    return std::nullopt;
}

} // namespace

bool matches(const Predicate &predicate, const ManagedObject &object)
{
    return predicate.node() == nullptr || evaluate(*predicate.node(), object) == Truth(true);
}

} // namespace kesto
