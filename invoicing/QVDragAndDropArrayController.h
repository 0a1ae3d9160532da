#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>

namespace vorn {

class ArrayController;
class ManagedObject;

// The arithmetic of dragging rows inside a table over an array controller:
// what a drag writes, how a drop is validated and accepted, and how moved
// rows land. The table view calls these; the results are plain values.
class QVDragAndDropArrayController : public QObject
{
    Q_OBJECT
public:
    static inline const QString movedRowsType = QStringLiteral("MOVED_ROWS_TYPE");
    static inline const QString copiedRowsType = QStringLiteral("COPIED_ROWS_TYPE");
    static inline const QString urlType = QStringLiteral("public.url");
    static inline const QString stringType = QStringLiteral("public.utf8-plain-text");

    enum Operation : unsigned
    {
        None = 0,
        Copy = 1,
        Link = 2,
        Move = 16
    };
    // The operations offered to other applications: first Link is set, then
    // Copy plus Move, which is what stays in force.
    static constexpr unsigned draggingSourceOperationMaskForNonLocal = Copy | Move;
    // The types the table accepts, in order of registration.
    static QStringList registeredDraggedTypes()
    {
        return {copiedRowsType, movedRowsType, urlType, stringType};
    }
    static constexpr bool allowsMultipleSelection = false;

    // What one drag carries.
    struct Pasteboard
    {
        QStringList types;
        QByteArray movedRows;                   // the archived row indexes
        std::optional<QVariantList> copiedRows; // rows as property lists (never written by this table)
        std::optional<QString> url;
        QString string;
    };

    struct DropProposal
    {
        Operation operation = None;
        int row = 0;
        bool above = true; // always between rows
    };

    // controller: the list the table shows.
    explicit QVDragAndDropArrayController(ArrayController& controller, QObject* parent = nullptr);

    // Where the rows' order lives: the object whose to-many list the table
    // shows and that list's key (a document's "items"). Without an owner the
    // controller's own content is reordered.
    std::function<ManagedObject*()> owner;
    QString relationshipKey;
    // False refuses every drop (a locked document).
    std::function<bool()> mayDrop;
    // Called after rows were moved or inserted.
    std::function<void()> didChangeRows;

    // Writing rows: both row types are declared, the string type for a
    // single row, and the archived indexes under the moved-rows type.
    Pasteboard writeRows(const QList<int>& rows) const;
    // A move when the drag comes from this table without the Option key,
    // otherwise a copy; always dropped above the proposed row.
    DropProposal validateDrop(bool fromThisTable, bool optionHeld, int proposedRow) const;
    // Accepts the drop; answers whether anything was done.
    bool acceptDrop(const Pasteboard& pasteboard, bool fromThisTable, bool optionHeld, int row);

    // Moves the objects at the indexes (of the arranged list) to land as one
    // block above row toIndex; answers the indexes of that block.
    QList<int> moveObjectsInArrangedObjectsFromIndexes(const QList<int>& indexes, int toIndex);

    // The members of a sorted index set within [location, location + length).
    static int countOfIndexesInRange(const QList<int>& indexes, int location, int length);

    static QByteArray archiveIndexes(const QList<int>& indexes);
    static std::optional<QList<int>> unarchiveIndexes(const QByteArray& data);

private:
    void setOrder(const QList<ManagedObject*>& order, const QList<int>& selection);
    bool insertBlock(const QList<ManagedObject*>& objects, int row);

    ArrayController& m_controller;
};

} // namespace vorn
