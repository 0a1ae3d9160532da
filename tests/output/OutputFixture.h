#pragma once

#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "tests/support/TestValues.h"

#include <QColor>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace vorn::test {

// An in-memory store with settings, a scripted user and a preview
// controller in a scratch HOME. Labels read as "{locName}" so a page shows
// which label went where.
class OutputFixture : public ::testing::Test
{
public:
    OutputFixture();
    ~OutputFixture() override;

    ManagedObject* addDesign(const QString& page, const QString& item, const QString& css = {},
                             bool isDefault = true);
    ManagedObject* addDocument(int kind, const QVariantMap& values = {});
    // addDocument(kind, key, value, key, value ...)
    template <class... Values>
    ManagedObject* addDocument(int kind, const QString& key, const Values&... values)
    {
        ManagedObject* document = addDocument(kind);
        assign(*document, key, values...);
        return document;
    }
    ManagedObject* addItem(ManagedObject* document, const QVariantMap& values);
    // addItem(document, key, value, key, value ...)
    template <class... Values>
    ManagedObject* addItem(ManagedObject* document, const QString& key, const Values&... values)
    {
        ManagedObject* item = addItem(document, QVariantMap());
        assign(*item, key, values...);
        return item;
    }
    void select(ManagedObject* document);
    // The current document's HTML with the scratch HOME written as "$HOME".
    QString html();
    // A small PNG of one colour, as for the logo setting.
    static QByteArray pngData(int width = 8, int height = 4, QColor colour = QColor(200, 40, 40));
    void setValues(ManagedObject* object, const QVariantMap& values);

    TestEnvironment environment;
    FileLocations locations;
    Settings settings;
    ScriptedUserInterface ui;
    FixedClock clock;
    ObjectContext context;
    AppState state;
    PdfRenderer renderer;
    PreviewController preview;
};

} // namespace vorn::test
