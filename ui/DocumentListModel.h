#pragma once

#include "ui/ArrayControllerModel.h"

#include <QColor>

namespace vorn {

// The document list of the main window: one row per document of the
// invoices controller, in its order and under its filter.
class DocumentListModel : public ArrayControllerModel
{
    Q_OBJECT
public:
    enum Column
    {
        NumberColumn,
        TitleColumn,
        ClientColumn,
        DateColumn,
        AmountColumn,
        StatusColumn,
        ColumnCount
    };
    enum Role
    {
        // The stored value behind a cell (string, UTC date, float, integer).
        ValueRole = Qt::UserRole + 1,
        KindRole,
        StatusRole,
        // The status stamp of the row ("StampM0".."StampM5").
        StampRole,
    };

    using ArrayControllerModel::ArrayControllerModel;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // The attribute a column shows, and back (-1 for an attribute no column shows).
    static QString keyOfColumn(int column);
    static int columnOfKey(const QString& key);

    static QString statusText(qint64 status);
    static QString kindText(qint64 kind);
    // The first line of an address block that holds more than white space.
    static QString firstLine(const QString& text);
    static QString amountText(float amount, const QString& currency);
    // The colour of a status stamp.
    static QColor stampColor(const QString& stamp);

protected:
    bool showsKey(const QString& key) const override;
};

} // namespace vorn
