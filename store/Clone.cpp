#include "store/Clone.h"

namespace vorn {

ManagedObject* cloneInContext(const ManagedObject& source, ObjectContext& target,
                              QHash<const ManagedObject*, ManagedObject*>& cache,
                              const QStringList& excludeEntities, const QStringList& excludeAttributes)
{
    if (excludeEntities.contains(source.entityName()))
        return nullptr;
    if (ManagedObject* copy = cache.value(&source))
        return copy;
    const EntityDescription* entity = target.model().entity(source.entityName());
    ManagedObject* copy = entity ? target.insertNewObject(entity->name()) : nullptr;
    if (!copy)
        return nullptr;
    // Entered before the relationships are followed, so a path that leads
    // back here (an item's document) finds the copy instead of recursing.
    cache.insert(&source, copy);

    const auto& attributes = entity->attributes();
    for (int i = 0; i < int(attributes.size()); ++i) {
        const QString& name = attributes[size_t(i)].name;
        if (!excludeAttributes.contains(name))
            copy->setValue(i, source.value(name));
    }

    for (const RelationshipDescription& r : entity->relationships()) {
        if (r.toMany) {
            QList<ManagedObject*> copies;
            for (const ManagedObject* related : source.objects(r.name)) {
                ManagedObject* relatedCopy =
                    cloneInContext(*related, target, cache, excludeEntities, excludeAttributes);
                if (relatedCopy && !copies.contains(relatedCopy))
                    copies.append(relatedCopy);
            }
            // Copies reached through their own to-one link may already sit in
            // the list; setting the whole list gives the source's order.
            if (!copies.isEmpty())
                copy->setObjects(r.name, copies);
        } else if (const ManagedObject* related = source.object(r.name)) {
            if (ManagedObject* relatedCopy =
                    cloneInContext(*related, target, cache, excludeEntities, excludeAttributes))
                copy->setObject(r.name, relatedCopy);
        }
    }
    return copy;
}

ManagedObject* cloneInContext(const ManagedObject& source, ObjectContext& target,
                              const QStringList& excludeEntities, const QStringList& excludeAttributes)
{
    QHash<const ManagedObject*, ManagedObject*> cache;
    return cloneInContext(source, target, cache, excludeEntities, excludeAttributes);
}

} // namespace vorn
