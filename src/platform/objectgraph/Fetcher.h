#pragma once

#include "platform/objectgraph/ManagedObjectContext.h"

#include <QByteArray>

#include <string>
#include <utility>
#include <vector>

namespace kesto
{

/// Turns one fetch request into SQL: its shape (which finds the prepared statement), its text, and its bound values.
class FetchStatement
{
public:
    /// `keysOnly` leaves the values to be read later. The request must outlive this.
    FetchStatement(const EntityDescription &entity, const FetchRequest &request, bool keysOnly);

    /// False when the request names something that the entity does not have.
    [[nodiscard]] bool isValid() const { return problem_.empty(); }
    [[nodiscard]] const std::string &problem() const { return problem_; }
    /// Valid as long as this.
    [[nodiscard]] QByteArray key() const
    {
        return QByteArray::fromRawData(key_.data(), static_cast<qsizetype>(key_.size()));
    }
    [[nodiscard]] std::string sql() const;
    void bind(SqlStatement &statement, qint64 limit) const;
    /// The slots of the attributes to sort by, and whether ascending.
    [[nodiscard]] const std::vector<std::pair<int, bool>> &sortKeys() const { return sortKeys_; }
    /// The entities behind relationships that the predicate looks at.
    [[nodiscard]] const std::vector<const EntityDescription *> &otherEntities() const { return others_; }

private:
    void addShape(const Predicate::Node &node);
    void addSql(const Predicate::Node &node, bool positive, std::string &sql) const;
    void addComparison(const Predicate::Node &node, const std::string &column, std::string &sql) const;
    void bindValues(const Predicate::Node &node, SqlStatement &statement, int &position) const;

    const EntityDescription &entity_;
    const FetchRequest &request_;
    bool keysOnly_;
    std::string key_; // short ones need no allocation
    std::string problem_;
    std::vector<std::pair<int, bool>> sortKeys_;
    std::vector<const EntityDescription *> others_;
};

/// One fetch of a context: SQL for what is saved, memory for what is not, then the relationships asked for.
class Fetcher
{
public:
    Fetcher(ManagedObjectContext &context, SqlStore *store)
        : context_(context)
        , store_(store)
    {
    }

    [[nodiscard]] Result<std::vector<ManagedObject *>> fetch(const EntityDescription &entity,
                                                             const FetchRequest &request);
    /// Reads the values of faults of one entity with one statement. A fault without a row stays a fault.
    [[nodiscard]] Result<void> readFaults(const EntityDescription &entity, const std::vector<ManagedObject *> &faults);
    /// Reads the objects of a to-many relationship of one owner.
    [[nodiscard]] Result<void> readToMany(ManagedObject &owner, const RelationshipDescription &relationship);

    /// The SELECT list of an entity: the key and every column.
    static std::string columns(const EntityDescription &entity);

private:
    [[nodiscard]] Result<std::vector<ManagedObject *>>
    readRows(const FetchStatement &request, const EntityDescription &entity, bool keysOnly, qint64 limit);
    /// Runs a statement to its end and hands each of its rows, as an object, to `take`.
    template <class Take>
    [[nodiscard]] Result<void> readObjects(SqlStatement &statement, const EntityDescription &entity, const Take &take);
    [[nodiscard]] Error readError(const EntityDescription &entity) const;
    void addUnsaved(const EntityDescription &entity, const FetchStatement &statement, const FetchRequest &request,
                    bool everything, std::vector<ManagedObject *> &found);
    [[nodiscard]] Result<void> prefetch(const EntityDescription &entity, const std::vector<ManagedObject *> &objects,
                                        const std::vector<std::string> &paths);
    [[nodiscard]] Result<void> prefetchToMany(const EntityDescription &destination,
                                              const std::vector<const RelationshipDescription *> &relationships,
                                              const std::vector<ManagedObject *> &owners);
    static void adopt(ManagedObject &owner, const RelationshipDescription &relationship,
                      std::vector<ManagedObject *> rows);

    ManagedObjectContext &context_;
    SqlStore *store_;
};

} // namespace kesto
