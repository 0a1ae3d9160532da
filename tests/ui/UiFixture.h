#pragma once

#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"

#include <QMap>
#include <QTimeZone>

#include <gtest/gtest.h>

// Readable strings in failure messages.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace vorn::test {

// The shared main-window state over an in-memory context, with documents
// named by their number.
class UiFixture : public ::testing::Test
{
public:
    UiFixture()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile()), context(nullptr, clock),
          state(settings, ui, clock, env.locations())
    {
        state.setContext(&context);
    }

    ArrayController& list() { return state.invoicesController(); }

    // Creates a document dated the given number of days from now and adds
    // it to the list as the add commands do (add, then rearrange).
    ManagedObject* add(const QString& number, int days, qint64 kind = 1)
    {
        UndoGroup group(context.undoManager(), QStringLiteral("New Document"));
        ManagedObject* doc = context.insertNewObject(Entity::Invoice);
        doc->setValue(QStringLiteral("number"), number);
        doc->setValue(QStringLiteral("kind"), kind);
        doc->setValue(QStringLiteral("date"), clock.now().addDays(days));
        docs.insert(number, doc);
        list().addObject(doc);
        list().rearrangeObjects();
        return doc;
    }

    ManagedObject* doc(const QString& number) const { return docs.value(number); }

    QStringList numbers(const QList<ManagedObject*>& objects) const
    {
        QStringList result;
        for (const ManagedObject* o : objects)
            result << o->stringValue(QStringLiteral("number"));
        return result;
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    ObjectContext context;
    AppState state;
    QMap<QString, ManagedObject*> docs;
};

} // namespace vorn::test
