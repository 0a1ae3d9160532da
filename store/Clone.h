#pragma once

#include "store/ManagedObject.h"
#include "store/ObjectContext.h"

#include <QHash>
#include <QStringList>

namespace vorn {

// Deep copy of an object graph into a context (document duplication).
//
// Every attribute is copied by value, absent values included, except the
// excluded ones, which keep the defaults the new object was inserted with
// (a fresh uniqueID, for instance). Relationships are followed: to-many
// lists keep their order, to-one links point at the copy of their target.
// Objects of an excluded entity are not copied and give no result, so a
// list simply loses them. The cache maps each source object to its copy:
// an object reached twice is copied once, which also ends the cycles of
// inverse relationships.
ManagedObject* cloneInContext(const ManagedObject& source, ObjectContext& target,
                              QHash<const ManagedObject*, ManagedObject*>& cache,
                              const QStringList& excludeEntities, const QStringList& excludeAttributes = {});

// As above with a fresh cache.
ManagedObject* cloneInContext(const ManagedObject& source, ObjectContext& target,
                              const QStringList& excludeEntities, const QStringList& excludeAttributes = {});

} // namespace vorn
