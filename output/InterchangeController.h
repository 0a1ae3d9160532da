#pragma once

#include "store/AppState.h"
#include "store/Result.h"

#include <QObject>

namespace vorn {

class ManagedObject;

// The document file actions of the main window: importing a document file
// and exporting the documents as a database XML file.
class InterchangeController : public QObject
{
    Q_OBJECT
public:
    explicit InterchangeController(AppState& state, QObject* parent = nullptr);

    // Asks for confirmation, then for a document file, and adds the document
    // it holds to the list (always as a document, whatever the file calls
    // it) with its own number, dates and status; saves. Answers the new
    // document, or null when cancelled or refused (a damaged file is
    // presented as an error and nothing is inserted).
    ManagedObject* importInvoice();
    // The documents the list shows, in its order / every document, in store
    // order: asks where to, then writes them as a database XML file. A write
    // failure is logged and answered, not presented.
    Status exportItems();
    Status exportVornDataXML();

    // Creates a document from the dictionary of a document file in the
    // application's context, its "class" overridden, and adds it to the list.
    Result<ManagedObject*> insertDocument(QVariantMap dictionary);

private:
    Status exportDocuments(const QList<ManagedObject*>& documents, const QString& proposedName);
    void saveContext();

    AppState& m_state;
};

} // namespace vorn
