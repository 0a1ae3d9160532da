#include "ui/PreferencesDesignModel.h"

#include "store/ArrayController.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"

namespace vorn {

int PreferencesDesignModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant PreferencesDesignModel::data(const QModelIndex& index, int role) const
{
    const ManagedObject* design = objectAt(index.row());
    if (!design)
        return {};
    const bool isDefault = design->boolValue(QStringLiteral("isDefault"));
    if (index.column() == 0 &&
        (role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::AccessibleTextRole))
        return design->stringValue(QStringLiteral("title"));
    if (index.column() == 1 && (role == Qt::DisplayRole || role == Qt::AccessibleTextRole))
        return isDefault ? tr("Default") : QString();
    return {};
}

bool PreferencesDesignModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    ManagedObject* design = objectAt(index.row());
    if (!design || index.column() != 0 || role != Qt::EditRole)
        return false;
    const QString title = value.toString();
    if (title == design->stringValue(QStringLiteral("title")))
        return true;
    ObjectContext* context = design->context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Rename Design"));
    design->setValue(QStringLiteral("title"), title);
    return true;
}

Qt::ItemFlags PreferencesDesignModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags f = ArrayControllerModel::flags(index);
    if (index.column() == 0)
        f |= Qt::ItemIsEditable;
    return f;
}

QVariant PreferencesDesignModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("Design") : tr("Default");
}

bool PreferencesDesignModel::showsKey(const QString& key) const
{
    return key == QLatin1String("title") || key == QLatin1String("isDefault");
}

} // namespace vorn
