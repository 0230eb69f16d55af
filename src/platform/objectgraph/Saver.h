#pragma once

#include "platform/objectgraph/ManagedObjectContext.h"

namespace kesto
{

/// One save of a context: every changed object as one row, in one transaction.
class Saver
{
public:
    Saver(ManagedObjectContext &context, SqlStore &store)
        : context_(context)
        , store_(store)
    {
    }

    [[nodiscard]] Result<void> save();

private:
    [[nodiscard]] bool writeEntity(const EntityDescription &entity, const std::vector<ManagedObject *> &changed);
    [[nodiscard]] bool insertRows(const EntityDescription &entity, const ManagedObject *const *first,
                                  const ManagedObject *const *last);
    /// Runs one prepared statement, `rows` rows at a time, and returns where fewer are left; null on failure.
    [[nodiscard]] const ManagedObject *const *insertRows(const EntityDescription &entity, int rows,
                                                         const ManagedObject *const *first,
                                                         const ManagedObject *const *last);
    [[nodiscard]] bool updateRow(const EntityDescription &entity, const ManagedObject &object);
    [[nodiscard]] bool deleteRow(const EntityDescription &entity, const ManagedObject &object);
    void settle();

    ManagedObjectContext &context_;
    SqlStore &store_;
};

} // namespace kesto
