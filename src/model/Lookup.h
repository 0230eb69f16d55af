#pragma once

#include "platform/objectgraph/ManagedObjectContext.h"

#include <memory>

namespace kesto
{

/// The object that meets a condition; null when none does.
template <class T>
T *lastMatch(ManagedObjectContext &context, const Predicate &predicate, StoreError *error = nullptr)
{
    FetchRequest request;
    request.predicate = predicate;
    request.fetchLimit = 1;
    const std::vector<T *> found = context.fetch<T>(request, error);
    return found.empty() ? nullptr : found.back();
}

/// The factory of an entity's class.
template <class T>
std::unique_ptr<ManagedObject> makeObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
{
    return std::make_unique<T>(entity, context, id);
}

} // namespace kesto
