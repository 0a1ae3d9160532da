#pragma once

#include <QObject>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <utility>

namespace vorn {

class AppState;

// The main window's logic that is not drawing: menu and toolbar validation,
// the toolbar's delete label, the reminder button, the tabs and the
// reminder sheet's texts. A window binds to this state and calls the actions.
class GUIController : public QObject
{
    Q_OBJECT
public:
    explicit GUIController(AppState& state, QObject* parent = nullptr);

    // Actions as the menus and toolbar name them.
    static inline const QString deleteInvoiceAction = QStringLiteral("deleteInvoice");
    static inline const QString openReminderSheetAction = QStringLiteral("openReminderSheet");

    struct Validation
    {
        bool enabled = true;
        std::optional<QString> title; // a new title, or keep the item's own
    };
    Validation validateUserInterfaceItem(const QString& action) const;
    // Whether a command has what it works on, before the rules above: a
    // store for those that create documents or write files, a current
    // document for those that act on it (also the page commands), a quote
    // for converting, a selected line for deleting one.
    bool hasPrerequisites(const QString& action) const;

    // Labels the delete toolbar item and shows or hides the reminder button
    // for the current document.
    void delayedToolbarLabel();
    // Runs delayedToolbarLabel shortly after a selection change.
    void scheduleToolbarLabel();
    void setDeleteToolbarLabel(const QString& label);
    const QString& deleteToolbarLabel() const { return m_deleteLabel; }
    bool isReminderButtonEnabled() const { return m_reminderEnabled; }

    // Tabs: 0 address, 1 items, 2 info (toolbar items "addressItem",
    // "itemsItem", "infoItem"); the tab follows the mainTabIndex setting.
    static QString toolbarItemForTag(qint64 tag);
    void selectMainTabIndex(qint64 tag);
    void setSelectedToolbarItem(qint64 index);
    void selectInfoView();

    // The split view: the list is at least 184 points wider than the
    // proposed minimum and at most 300 points wide; on resize the list keeps
    // its width and the detail view takes the rest.
    static double constrainMinCoordinate(double proposedMinimum) { return proposedMinimum + 184.0; }
    static double constrainMaxCoordinate(double /*proposedMaximum*/) { return 300.0; }
    static std::pair<QRect, QRect> resizeSubviews(const QSize& newSize, int listWidth, int dividerThickness);

    // The payment reminder sheet, prefilled from the reminder settings.
    struct ReminderSheet
    {
        bool shown = false;
        QString title;
        QString conditions;
        QString footer;
    };
    void openReminderSheet();
    void cancelReminderSheet();
    ReminderSheet& reminderSheet() { return m_reminder; }

    // The list's order, chosen by a click on a column header and kept in
    // the settings (listSortKey, listSortAscending). Keys outside the
    // sortable columns fall back to the date, newest first.
    static QStringList sortableKeys();
    void sortListBy(const QString& key, bool ascending);
    // Puts the remembered order in force (at launch).
    void restoreListSort();
    // At launch the window opens on the first document of the list, as a
    // list that avoids an empty selection would, rather than on nothing;
    // a selection already made is kept.
    void selectFirstDocumentAtLaunch();

    // The list's columns by the attribute they show. The narrow list shows
    // number, client, date and amount; the user may hide or show any of
    // them (the title too), never the last one shown. Kept in the settings
    // (listHiddenColumns, the keys joined by commas).
    static QStringList listColumnKeys();
    QStringList hiddenListColumns() const;
    bool canHideListColumn(const QString& key) const;
    void setListColumnShown(const QString& key, bool shown);

    void showPreferences();
    // Starts the desktop's calculator; says so when there is none.
    void calculatorButtonAction();

Q_SIGNALS:
    void toolbarChanged();
    void reminderSheetChanged();

private:
    AppState& m_state;
    QString m_deleteLabel;
    bool m_reminderEnabled = false;
    ReminderSheet m_reminder;
};

} // namespace vorn
