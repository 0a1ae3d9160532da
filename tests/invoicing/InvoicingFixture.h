#pragma once

#include "invoicing/InvoicingControllers.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"

#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <charconv>
#include <memory>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QDateTime& date, std::ostream* os)
{
    *os << date.toString(Qt::ISODateWithMs).toStdString();
}

namespace vorn::test {

// Sets values in order, on settings or on an object: assign(target, key, value, key, value ...).
template <class Target, class... Rest>
void assign(Target& target, const QString& key, const QVariant& value, const Rest&... rest)
{
    target.setValue(key, value);
    if constexpr (sizeof...(rest) > 0)
        assign(target, rest...);
}

// Several values of an object as text joined by '|' (numbers in their
// shortest form, absent values empty), to compare in one expectation.
inline QString fields(const ManagedObject* object, const QStringList& keys)
{
    QStringList texts;
    for (const QString& k : keys) {
        const QVariant v = object->value(k);
        char single[32];
        const auto end = std::to_chars(single, single + sizeof single, v.toFloat()).ptr;
        texts << (v.typeId() == QMetaType::Float ? QString::fromLatin1(single, end - single) : v.toString());
    }
    return texts.join(QLatin1Char('|'));
}

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

    static QDateTime at(int y, int m, int d, int h = 10, int min = 0)
    {
        return QDateTime(QDate(y, m, d), QTime(h, min), QTimeZone::utc());
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

    void select(ManagedObject* doc) { state.invoicesController().setSelectedObjects({doc}); }

    Calculator& calculator() { return controllers->calculator(); }

    QTemporaryDir dir;
    FixedClock clock{at(2025, 3, 5)};
    Settings settings;
    ScriptedUserInterface ui;
    ObjectContext context{nullptr, clock};
    AppState state;
    std::unique_ptr<InvoicingControllers> controllers;
};

} // namespace vorn::test
