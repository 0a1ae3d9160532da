#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>

namespace vorn {

class AppState;
class Calculator;
class ManagedObject;

// The edits the document pages make: one attribute of the current document
// or of one of its lines at a time, each one undoable action with a name,
// followed by the arithmetic when the value takes part in it. A sent
// document keeps everything but its payment and dispatch state.
class DocumentEditor : public QObject
{
    Q_OBJECT
public:
    DocumentEditor(AppState& state, Calculator& calculator, QObject* parent = nullptr);

    // Why the attribute of the current document cannot be changed right
    // now; empty when it can.
    QString lockReason(const QString& key) const;
    bool isEditable(const QString& key) const { return lockReason(key).isEmpty(); }
    // Whether a page field of this attribute is shown as usable: the paid
    // date once the invoice is paid or partly paid, the paid amount only
    // when partly paid.
    bool isRelevant(const QString& key) const;

    // Sets the attribute of the current document; answers false (changing
    // nothing) without a document, for a locked attribute, or for an equal
    // value. Numbers typed as text read the forgiving way.
    bool setDocumentValue(const QString& key, const QVariant& value);
    // Sets a date attribute to a calendar day (local time), as a date field
    // picks one: the time of day it had stays, a date not set before starts
    // at noon; an invalid day clears it.
    bool setDocumentDay(const QString& key, const QDate& day);
    // The same for one line of the current document; lines of a sent
    // document are refused with the sent-lock alert. The line and the
    // document are recomputed at once, the list totals on the next turn of
    // the event loop.
    bool setItemValue(ManagedObject* item, const QString& key, const QVariant& value);
    // Several attributes of one line changed by one user action (the title
    // and subtitle of its cell): one undo step, named after the first that
    // changes.
    bool setItemValues(ManagedObject* item, const QList<std::pair<QString, QVariant>>& values);

    // The name of the undoable action that changes an attribute.
    static QString actionName(const QString& key);
    // Whether the attribute takes part in the amounts, the status or the
    // list totals.
    static bool affectsAmounts(const QString& key);
    // Whole calendar days from today (local time) to a date; negative in the past.
    qint64 daysFromToday(const QDateTime& date) const;
    // The start of the day this many days from today, as stored dates are.
    QDateTime dateDaysFromToday(qint64 days) const;

private:
    void scheduleListTotals();

    AppState& m_state;
    Calculator& m_calculator;
    bool m_totalsScheduled = false;
};

} // namespace vorn
