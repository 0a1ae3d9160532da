#pragma once

#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestValues.h"

#include <QColor>

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
    // addDocument(kind, key, value, key, value ...): an invoice (kind 1) or
    // quote (0) numbered INV-2025-17 with the given values.
    template <class... Values> ManagedObject* addDocument(int kind, const Values&... values)
    {
        ManagedObject* document = newDocument(kind);
        if constexpr (sizeof...(values) > 0)
            assign(*document, values...);
        return document;
    }
    // addItem(document, key, value, key, value ...)
    template <class... Values> ManagedObject* addItem(ManagedObject* document, const Values&... values)
    {
        ManagedObject* item = newItem(document);
        if constexpr (sizeof...(values) > 0)
            assign(*item, values...);
        return item;
    }
    void select(ManagedObject* document);
    // A path in the scratch HOME; write() puts data there and answers the path.
    QString home(const QString& name) const;
    QString write(const QString& name, const QByteArray& data) const;
    // The current document's HTML with the scratch HOME written as "$HOME".
    QString html();
    // A small PNG of one colour, as for the logo setting.
    static QByteArray pngData(int width = 8, int height = 4, QColor colour = QColor(200, 40, 40));
    ManagedObject* newDocument(int kind);
    ManagedObject* newItem(ManagedObject* document);

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
