#pragma once

#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"

#include <QVariantMap>

#include <gtest/gtest.h>

#include <ostream>

// Readable strings in failure messages.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

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
    ManagedObject* addItem(ManagedObject* document, const QVariantMap& values);
    void select(ManagedObject* document);
    // The current document's HTML with the scratch HOME written as "$HOME".
    QString html();
    // A small PNG for the logo setting.
    static QByteArray pngData(int width = 8, int height = 4);
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
