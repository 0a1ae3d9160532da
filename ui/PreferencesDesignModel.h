#pragma once

#include "ui/ArrayControllerModel.h"

namespace vorn {

class ObjectContext;

// The designs list: the title (editable, one undo step per rename) and a
// mark on the default design.
class PreferencesDesignModel : public ArrayControllerModel
{
    Q_OBJECT
public:
    using ArrayControllerModel::ArrayControllerModel;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

protected:
    bool showsKey(const QString& key) const override;
};

} // namespace vorn
