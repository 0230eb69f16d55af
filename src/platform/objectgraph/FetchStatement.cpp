#include "platform/objectgraph/Fetcher.h"
#include "platform/objectgraph/SqlStore.h"

#include <algorithm>

namespace kesto
{

namespace
{

const std::string &columnName(const EntityDescription &entity, PropertyReference property)
{
    const auto slot = static_cast<size_t>(property.slot);
    return property.kind == PropertyReference::Kind::Attribute ? entity.attributes()[slot].name
                                                               : entity.toOneRelationships()[slot].name;
}

/// A key path: an optional to-one relationship, then a property of the entity that it leads to.
struct ResolvedPath
{
    const RelationshipDescription *relationship = nullptr;
    const EntityDescription *entity = nullptr;
    std::optional<PropertyReference> property;
};

ResolvedPath resolve(const EntityDescription &entity, std::string_view path)
{
    ResolvedPath resolved;
    resolved.entity = &entity;
    if (const size_t point = path.find('.'); point != std::string_view::npos) {
        const auto first = entity.property(path.substr(0, point));
        if (!first || first->kind != PropertyReference::Kind::ToOne)
            return resolved;
        resolved.relationship = &entity.toOneRelationships()[static_cast<size_t>(first->slot)];
        resolved.entity = resolved.relationship->destinationEntity;
        path = path.substr(point + 1);
    }
    resolved.property = resolved.entity->property(path);
    return resolved;
}

/// Comparisons between different types are refused: SQL would convert the values, the comparison in memory would not.
bool canCompare(const Predicate::Node &node, const EntityDescription &entity, PropertyReference property)
{
    using Operation = Predicate::Operation;
    if (node.operation == Operation::IsAbsent)
        return true;
    const bool noValue = std::holds_alternative<std::monostate>(node.value);
    if (property.kind == PropertyReference::Kind::ToOne)
        return (node.operation == Operation::Equal || node.operation == Operation::NotEqual) && noValue;
    const AttributeType type = entity.attributes()[static_cast<size_t>(property.slot)].type;
    if (node.operation == Operation::Contains && type != AttributeType::String)
        return false;
    return node.object == nullptr && (noValue || isOfType(type, node.value)) &&
           std::all_of(node.list.begin(), node.list.end(),
                       [&](const AttributeValue &value) { return isOfType(type, value); });
}

} // namespace

FetchStatement::FetchStatement(const EntityDescription &entity, const FetchRequest &request, bool keysOnly)
    : entity_(entity)
    , request_(request)
    , keysOnly_(keysOnly)
{
    key_ += keysOnly ? 'k' : 'f';
    key_ += static_cast<char>(entity.index());
    if (request.predicate.node() != nullptr)
        addShape(*request.predicate.node());
    for (const SortDescriptor &sort : request.sortDescriptors) {
        const auto property = entity.property(sort.key);
        if (!property || property->kind != PropertyReference::Kind::Attribute) {
            problem_ = entity.name() + " can't be sorted by " + sort.key;
            return;
        }
        key_ += sort.ascending ? 'a' : 'd';
        key_ += static_cast<char>(property->slot);
        sortKeys_.emplace_back(property->slot, sort.ascending);
    }
}

void FetchStatement::addShape(const Predicate::Node &node)
{
    if (node.kind != Predicate::Node::Kind::Comparison) {
        key_ += node.kind == Predicate::Node::Kind::And ? '&' : (node.kind == Predicate::Node::Kind::Or ? '|' : '!');
        addShape(*node.left);
        if (node.right != nullptr)
            addShape(*node.right);
        return;
    }
    const ResolvedPath path = resolve(entity_, node.path);
    if (!path.property || path.property->kind == PropertyReference::Kind::ToMany) {
        problem_ = entity_.name() + " has no value at " + node.path;
        return;
    }
    if (!canCompare(node, *path.entity, *path.property)) {
        problem_ = entity_.name() + " can't be compared so at " + node.path;
        return;
    }
    key_ += 'c';
    key_ += static_cast<char>(node.operation);
    key_ += static_cast<char>(path.property->kind);
    key_ += static_cast<char>(path.relationship != nullptr ? path.relationship->slot : -1);
    key_ += static_cast<char>(path.property->slot);
    if (node.operation == Predicate::Operation::In)
        key_ += std::to_string(node.list.size()) + ';';
    if (path.relationship != nullptr && std::find(others_.begin(), others_.end(), path.entity) == others_.end())
        others_.push_back(path.entity);
}

void FetchStatement::addComparison(const Predicate::Node &node, const std::string &column, std::string &sql) const
{
    using Operation = Predicate::Operation;
    switch (node.operation) {
    case Operation::Equal:
        sql += column + " = ?";
        return;
    case Operation::NotEqual:
        sql += column + " <> ?";
        return;
    case Operation::Less:
        sql += column + " < ?";
        return;
    case Operation::LessOrEqual:
        sql += column + " <= ?";
        return;
    case Operation::Greater:
        sql += column + " > ?";
        return;
    case Operation::GreaterOrEqual:
        sql += column + " >= ?";
        return;
    case Operation::Contains:
        sql += "instr(" + column + ", ?) > 0";
        return;
    case Operation::In:
        // An absent value makes "x IN ()" false in SQL although every other comparison makes it unknown.
        if (node.list.empty()) {
            sql += column + " <> " + column;
            return;
        }
        sql += column + " IN (";
        for (size_t i = 0; i < node.list.size(); ++i)
            sql += i == 0 ? "?" : ", ?";
        sql += ')';
        return;
    case Operation::IsAbsent:
        sql += column + " IS NULL";
        return;
    }
}

void FetchStatement::addSql(const Predicate::Node &node, bool positive, std::string &sql) const
{
    switch (node.kind) {
    case Predicate::Node::Kind::And:
    case Predicate::Node::Kind::Or:
        sql += '(';
        addSql(*node.left, positive, sql);
        sql += node.kind == Predicate::Node::Kind::And ? " AND " : " OR ";
        addSql(*node.right, positive, sql);
        sql += ')';
        return;
    case Predicate::Node::Kind::Not:
        sql += "NOT (";
        addSql(*node.left, false, sql);
        sql += ')';
        return;
    case Predicate::Node::Kind::Comparison:
        break;
    }
    const ResolvedPath path = resolve(entity_, node.path);
    const std::string column = quoted(columnName(*path.entity, *path.property));
    if (path.relationship == nullptr) {
        addComparison(node, column, sql);
        return;
    }
    const std::string link = quoted(entity_.name()) + '.' + quoted(path.relationship->name);
    const std::string target = quoted(path.entity->name());
    if (positive && node.operation == Predicate::Operation::Equal) {
        // True for the same rows as the other form, and uses the indexes of both tables.
        sql += link + " IN (SELECT \"_pk\" FROM " + target + " WHERE ";
        addComparison(node, column, sql);
        sql += ')';
        return;
    }
    addComparison(node, "(SELECT " + column + " FROM " + target + " AS t WHERE t.\"_pk\" = " + link + ')', sql);
}

std::string FetchStatement::sql() const
{
    std::string sql = "SELECT " + (keysOnly_ ? std::string("\"_pk\"") : Fetcher::columns(entity_)) + " FROM " +
                      quoted(entity_.name());
    if (request_.predicate.node() != nullptr) {
        sql += " WHERE ";
        addSql(*request_.predicate.node(), true, sql);
    }
    sql += " ORDER BY ";
    for (const SortDescriptor &sort : request_.sortDescriptors)
        sql += quoted(sort.key) + (sort.ascending ? ", " : " DESC, ");
    return sql + "\"_pk\" LIMIT ?";
}

void FetchStatement::bindValues(const Predicate::Node &node, SqlStatement &statement, int &position) const
{
    if (node.kind != Predicate::Node::Kind::Comparison) {
        bindValues(*node.left, statement, position);
        if (node.right != nullptr)
            bindValues(*node.right, statement, position);
        return;
    }
    if (node.operation == Predicate::Operation::IsAbsent)
        return;
    if (node.operation == Predicate::Operation::In) {
        for (const AttributeValue &value : node.list)
            statement.bind(position++, value);
        return;
    }
    if (node.object != nullptr)
        statement.bind(position++, node.object->objectID());
    else
        statement.bind(position++, node.value); // absent for a relationship that is compared with no object
}

void FetchStatement::bind(SqlStatement &statement, qint64 limit) const
{
    int position = 1;
    if (request_.predicate.node() != nullptr)
        bindValues(*request_.predicate.node(), statement, position);
    statement.bind(position, limit);
}

} // namespace kesto
