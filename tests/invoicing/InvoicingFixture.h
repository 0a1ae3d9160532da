#pragma once

#include "invoicing/InvoicingControllers.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestValues.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

inline void PrintTo(const QDateTime& date, std::ostream* os)
{
    *os << date.toString(Qt::ISODateWithMs).toStdString();
}

namespace vorn::test {

// The invoicing controllers over an in-memory context, a scratch settings
// file, a fixed clock (Wednesday 5 March 2025, 10:00 UTC) and a scripted user.
class InvoicingFixture : public ::testing::Test
{
protected:
    InvoicingFixture()
        : settings(dir.filePath(QStringLiteral("settings.plist"))),
          state(settings, ui, clock, FileLocations{dir.path(), dir.path(), dir.path(), dir.path()})
    {
        state.setContext(&context);
        controllers = std::make_unique<InvoicingControllers>(state);
    }
    ~InvoicingFixture() override
    {
        controllers.reset();
        state.setContext(nullptr);
    }

    // A document straight in the store and the list (not through addInvoice),
    // due so that the totals keep its status: overdue ones yesterday, others
    // in a month.
    ManagedObject* document(int kind, int status = 0, float amount = 0.0f)
    {
        ManagedObject* doc = context.insertNewObject(Entity::Invoice);
        doc->setValue(key::kind, kind);
        doc->setValue(key::status, status);
        doc->setValue(key::amount, amount);
        doc->setValue(key::date, clock.now());
        doc->setValue(key::due, clock.now().addDays(status == 2 ? -1 : 30));
        state.invoicesController().addObject(doc);
        return doc;
    }

    ManagedObject* item(ManagedObject* doc, float base, float count)
    {
        ManagedObject* it = context.insertNewObject(Entity::Item);
        it->setValue(key::baseAmount, base);
        it->setValue(key::unitCount, count);
        doc->insertObject(key::items, it);
        return it;
    }

    // The given values of each object (titles unless told), as fields() joins them.
    static QStringList texts(const QList<ManagedObject*>& objects, const QStringList& keys = {key::title})
    {
        QStringList list;
        for (const ManagedObject* o : objects)
            list << fields(*o, keys);
        return list;
    }

    void select(ManagedObject* doc) { state.invoicesController().setSelectedObjects({doc}); }

    Calculator& calculator() { return controllers->calculator(); }

    QTemporaryDir dir;
    FixedClock clock{utc(2025, 3, 5, 10)};
    Settings settings;
    ScriptedUserInterface ui;
    ObjectContext context{nullptr, clock};
    AppState state;
    std::unique_ptr<InvoicingControllers> controllers;
};

// A table of cases run on a fresh fixture each: TEST_P(Table, ...), GetParam() the case.
template <class Fixture, class Case>
class CaseTable : public Fixture, public ::testing::WithParamInterface<Case>
{
};

// Names the cases of a table by their `name`.
inline constexpr auto caseName = [](const auto& info) { return std::string(info.param.name); };

} // namespace vorn::test
