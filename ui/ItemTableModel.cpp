#include "ui/ItemTableModel.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "invoicing/ValueTransformers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/DocumentFields.h"
#include "ui/ItemCellView.h"
#include "ui/ItemsPage.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

namespace vorn {

ItemTableModel::ItemTableModel(AppDelegate& app, QObject* parent)
    : ArrayControllerModel(app.state().itemsController(), parent), m_app(app)
{
}

int ItemTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ItemTableModel::keyOfColumn(int column)
{
    switch (column) {
    case TitleColumn:
        return key::title;
    case SubtitleColumn:
        return key::subtitle;
    case QuantityColumn:
        return key::unitCount;
    case UnitColumn:
        return key::unit;
    case PriceColumn:
        return key::baseAmount;
    case Tax1Column:
        return key::isTax1Applied;
    case Tax2Column:
        return key::isTax2Applied;
    case Tax3Column:
        return key::isTax3Applied;
    case NetColumn:
        return key::subAmount;
    }
    return {};
}

bool ItemTableModel::showsKey(const QString& key) const
{
    static const QStringList keys{key::title,      key::subtitle,      key::unitCount,     key::unit,
                                  key::baseAmount, key::isTax1Applied, key::isTax2Applied, key::isTax3Applied,
                                  key::subAmount,  key::amount};
    return keys.contains(key);
}

QVariant ItemTableModel::data(const QModelIndex& index, int role) const
{
    const ManagedObject* item = objectAt(index.row());
    if (!item)
        return {};
    const int column = index.column();
    const bool taxColumn = column >= Tax1Column && column <= Tax3Column;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (taxColumn)
            return {};
        if (column == QuantityColumn || column == PriceColumn || column == NetColumn)
            return DocumentFields::formatNumber(item->floatValue(keyOfColumn(column)));
        return item->stringValue(keyOfColumn(column));
    case Qt::CheckStateRole:
        if (taxColumn)
            return item->boolValue(keyOfColumn(column)) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::TextAlignmentRole:
        if (column == QuantityColumn || column == PriceColumn || column == NetColumn)
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        if (taxColumn)
            return QVariant::fromValue(Qt::AlignCenter);
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    case ItemCellView::SubtitleRole:
    case Qt::AccessibleDescriptionRole:
        return column == TitleColumn ? item->stringValue(key::subtitle) : QVariant();
    case Qt::ToolTipRole:
        if (column == TitleColumn)
            return item->stringValue(key::note);
        if (column == NetColumn)
            return tr("Gross %1").arg(DocumentFields::formatNumber(item->floatValue(key::amount)));
        return {};
    }
    return {};
}

QVariant ItemTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const Settings& s = m_app.settings();
    switch (section) {
    case TitleColumn:
        return tr("Title");
    case SubtitleColumn:
        return tr("Subtitle");
    case QuantityColumn:
        return tr("Quantity");
    case UnitColumn:
        return tr("Unit");
    case PriceColumn:
        return tr("Unit Price");
    case Tax1Column:
    case Tax2Column:
    case Tax3Column:
        return ItemsPage::taxTitle(s, section - Tax1Column + 1);
    case NetColumn:
        return tr("Net");
    }
    return {};
}

Qt::ItemFlags ItemTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    // Lines of a sent document are read-only; the page says why.
    if (!m_app.state().isCurrentInvoiceSent() && index.column() != NetColumn)
        f |= index.column() >= Tax1Column && index.column() <= Tax3Column ? Qt::ItemIsUserCheckable
                                                                          : Qt::ItemIsEditable;
    return f;
}

bool ItemTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    ManagedObject* item = objectAt(index.row());
    if (!item)
        return false;
    const QString key = keyOfColumn(index.column());
    DocumentEditor& editor = m_app.invoicing().editor();
    if (role == Qt::CheckStateRole)
        return editor.setItemValue(item, key, value.toInt() == Qt::Checked);
    if (role == ItemCellView::TitleAndSubtitleRole && index.column() == TitleColumn) {
        const QStringList lines = value.toStringList();
        return editor.setItemValues(item, {{key::title, lines.value(0)}, {key::subtitle, lines.value(1)}});
    }
    if (role != Qt::EditRole)
        return false;
    if (index.column() == QuantityColumn || index.column() == PriceColumn)
        return editor.setItemValue(item, key, DocumentFields::readNumber(value.toString()));
    return editor.setItemValue(item, key, value.toString());
}

QStringList ItemTableModel::mimeTypes() const
{
    return {movedRowsMimeType, QStringLiteral("text/uri-list"), QStringLiteral("text/plain")};
}

QMimeData* ItemTableModel::mimeData(const QModelIndexList& indexes) const
{
    QList<int> rows;
    for (const QModelIndex& i : indexes)
        if (!rows.contains(i.row()))
            rows << i.row();
    std::sort(rows.begin(), rows.end());
    const QVDragAndDropArrayController::Pasteboard board =
        m_app.invoicing().items().dragAndDrop().writeRows(rows);
    auto* data = new QMimeData;
    data->setData(movedRowsMimeType, board.movedRows);
    if (!board.string.isEmpty())
        data->setText(board.string);
    return data;
}

bool ItemTableModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                                     const QModelIndex&) const
{
    return data && !m_app.state().isCurrentInvoiceSent() &&
           (data->hasFormat(movedRowsMimeType) || data->hasUrls());
}

bool ItemTableModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                  const QModelIndex& parent)
{
    Q_UNUSED(column);
    if (!data)
        return false;
    // Dropped on a row: the rows land above it.
    if (row < 0)
        row = parent.isValid() ? parent.row() : rowCount();
    QVDragAndDropArrayController::Pasteboard board;
    const bool fromThisTable = data->hasFormat(movedRowsMimeType);
    if (fromThisTable) {
        board.types << QVDragAndDropArrayController::copiedRowsType
                    << QVDragAndDropArrayController::movedRowsType;
        board.movedRows = data->data(movedRowsMimeType);
    }
    if (data->hasUrls() && !data->urls().isEmpty()) {
        board.types << QVDragAndDropArrayController::urlType;
        board.url = data->urls().first().toString();
    }
    const bool optionHeld =
        action == Qt::CopyAction || (QGuiApplication::keyboardModifiers() & Qt::AltModifier);
    return m_app.invoicing().items().dropRows(board, fromThisTable, optionHeld, row);
}

} // namespace vorn
