#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QPointer>

namespace vorn {

class ArrayController;
class ManagedObject;
class ObjectContext;

// A table model over the arranged objects of an ArrayController, one row per
// object. It keeps its own copy of the rows and turns each change of the
// arranged list into the smallest change a view understands (rows inserted,
// rows removed, the same rows in a new order), so that views keep their
// scroll position and selection; any other change resets the model.
// Subclasses supply the columns.
class ArrayControllerModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ArrayControllerModel(ArrayController& controller, QObject* parent = nullptr);

    ArrayController& controller() const { return m_controller; }
    int rowCount(const QModelIndex& parent = {}) const override;

    ManagedObject* objectAt(int row) const;
    int rowOf(const ManagedObject* object) const;
    const QList<ManagedObject*>& rows() const { return m_rows; }

    // True while the model takes over a change of the controller's list: the
    // selection changes views make meanwhile do not come from the user.
    bool isSyncing() const { return m_syncing; }

Q_SIGNALS:
    // The rows match the controller's arranged objects again.
    void synced();

protected:
    // Whether a change of this attribute alters what a row shows.
    virtual bool showsKey(const QString& key) const;

private:
    void sync();
    void watchContext();
    void objectChanged(ManagedObject* object, const QString& key);

    ArrayController& m_controller;
    QList<ManagedObject*> m_rows;
    mutable QHash<const ManagedObject*, int> m_rowIndex;
    QPointer<ObjectContext> m_context;
    QMetaObject::Connection m_changeConnection;
    QMetaObject::Connection m_destroyConnection;
    bool m_syncing = false;
};

} // namespace vorn
