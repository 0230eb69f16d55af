#pragma once

#include "platform/Log.h"
#include "platform/objectgraph/ManagedObjectContext.h"

#include <memory>

namespace kesto
{

/// The object that meets a condition; null when none does.
template <class T>
[[nodiscard]] Result<T *> lastMatch(ManagedObjectContext &context, const Predicate &predicate)
{
    FetchRequest request;
    request.predicate = predicate;
    request.fetchLimit = 1;
    return context.fetch<T>(request).map(
        [](const std::vector<T *> &found) -> T * { return found.empty() ? nullptr : found.back(); });
}

/// The same, with a line in the log when it could not be looked up: "<operation>: error - <why>".
template <class T>
[[nodiscard]] Result<T *> lastMatchOrLog(ManagedObjectContext &context, const Predicate &predicate,
                                         const char *operation)
{
    auto found = lastMatch<T>(context, predicate);
    if (!found)
        log("%@: error - %@", QString::fromLatin1(operation), found.error().message());
    return found;
}

/// The factory of an entity's class.
template <class T>
std::unique_ptr<ManagedObject> makeObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
{
    return std::make_unique<T>(entity, context, id);
}

} // namespace kesto
