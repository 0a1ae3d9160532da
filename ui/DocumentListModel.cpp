#include "ui/DocumentListModel.h"

#include "invoicing/ValueTransformers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"

#include <QColor>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>

namespace vorn {

namespace {

// In the order of the columns.
const QString* const kColumnKeys[DocumentListModel::ColumnCount] = {&key::number, &key::title,  &key::address,
                                                                    &key::date,   &key::amount, &key::status};

} // namespace

QString DocumentListModel::keyOfColumn(int column)
{
    return column >= 0 && column < ColumnCount ? *kColumnKeys[column] : QString();
}

int DocumentListModel::columnOfKey(const QString& key)
{
    for (int column = 0; column < ColumnCount; ++column)
        if (*kColumnKeys[column] == key)
            return column;
    return -1;
}

int DocumentListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString DocumentListModel::statusText(qint64 status)
{
    switch (status) {
    case 1:
        return tr("Sent");
    case 2:
        return tr("Overdue");
    case 3:
        return tr("Paid");
    case 4:
        return tr("Partly Paid");
    default:
        // Unknown values read as a fresh document, as the status stamps do.
        return tr("Created");
    }
}

QString DocumentListModel::kindText(qint64 kind)
{
    return kind == 0 ? tr("Quote") : tr("Invoice");
}

QString DocumentListModel::firstLine(const QString& text)
{
    static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]"));
    const QStringList lines = text.split(lineBreak);
    for (const QString& line : lines) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty())
            return trimmed;
    }
    return {};
}

QString DocumentListModel::amountText(float amount, const QString& currency)
{
    const QString number = QLocale().toString(double(amount), 'f', 2);
    return currency.isEmpty() ? number : number + QChar(0x00A0) + currency;
}

QVariant DocumentListModel::data(const QModelIndex& index, int role) const
{
    const ManagedObject* doc = objectAt(index.row());
    if (!doc || index.column() < 0 || index.column() >= ColumnCount)
        return {};
    const qint64 kind = doc->intValue(key::kind);
    const qint64 status = doc->intValue(key::status);

    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case NumberColumn:
            return doc->stringValue(key::number);
        case TitleColumn: {
            const QString title = doc->stringValue(key::title).trimmed();
            return title.isEmpty() ? kindText(kind) : title;
        }
        case ClientColumn:
            return firstLine(doc->stringValue(key::address));
        case DateColumn: {
            const QDateTime date = doc->dateValue(key::date);
            return date.isValid() ? QLocale().toString(date.toLocalTime().date(), QLocale::ShortFormat)
                                  : QString();
        }
        case AmountColumn:
            return amountText(doc->floatValue(key::amount), doc->stringValue(key::currency));
        case StatusColumn:
            return statusText(status);
        }
        break;
    case Qt::ToolTipRole:
        switch (index.column()) {
        case TitleColumn:
            return kindText(kind);
        case ClientColumn:
            return doc->stringValue(key::address).trimmed();
        case DateColumn: {
            const QDateTime date = doc->dateValue(key::date);
            return date.isValid() ? QLocale().toString(date.toLocalTime(), QLocale::LongFormat) : QString();
        }
        case StatusColumn:
            return kind == 0 ? kindText(kind) : statusText(status);
        }
        break;
    case Qt::TextAlignmentRole:
        if (index.column() == AmountColumn)
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        // Invoices that need attention stand out; quotes are never overdue.
        if (index.column() == StatusColumn && kind != 0) {
            if (status == 2)
                return QColor(0xc6, 0x28, 0x28);
            if (status == 3)
                return QColor(0x2e, 0x7d, 0x32);
            if (status == 4)
                return QColor(0xb2, 0x6a, 0x00);
        }
        break;
    case ValueRole:
        return doc->value(keyOfColumn(index.column()));
    case StampRole:
        return ValueTransformers::entityToImageTable(doc);
    case KindRole:
        return kind;
    case StatusRole:
        return status;
    }
    return {};
}

QVariant DocumentListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((section == AmountColumn ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    // The status column shows stamps only; its name is in the tooltip.
    if (section == StatusColumn && (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole))
        return tr("Status");
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NumberColumn:
        return tr("Number");
    case TitleColumn:
        return tr("Title");
    case ClientColumn:
        return tr("Client");
    case DateColumn:
        return tr("Date");
    case AmountColumn:
        return tr("Amount");
    case StatusColumn:
        return QString();
    }
    return {};
}

QColor DocumentListModel::stampColor(const QString& stamp)
{
    static const QHash<QString, QColor> colors{{QStringLiteral("StampM0"), QColor(0x9e, 0x9e, 0x9e)},
                                               {QStringLiteral("StampM1"), QColor(0x1e, 0x88, 0xe5)},
                                               {QStringLiteral("StampM2"), QColor(0xc6, 0x28, 0x28)},
                                               {QStringLiteral("StampM3"), QColor(0x2e, 0x7d, 0x32)},
                                               {QStringLiteral("StampM4"), QColor(0xef, 0x8f, 0x00)},
                                               {QStringLiteral("StampM5"), QColor(0x7b, 0x1f, 0xa2)}};
    return colors.value(stamp);
}

bool DocumentListModel::showsKey(const QString& key) const
{
    return key == key::number || key == key::title || key == key::kind || key == key::address ||
           key == key::date || key == key::amount || key == key::currency || key == key::status;
}

} // namespace vorn
