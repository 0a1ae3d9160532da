#include "output/InterchangeController.h"

#include "documents/InterchangeFile.h"
#include "documents/Serialization.h"
#include "output/OutputLog.h"
#include "store/ObjectContext.h"
#include "store/UserInterface.h"

namespace vorn {

InterchangeController::InterchangeController(AppState& state, QObject* parent)
    : QObject(parent), m_state(state)
{
}

ManagedObject* InterchangeController::importInvoice()
{
    UserInterface& ui = m_state.ui();
    if (!m_state.context())
        return nullptr;
    const int answer = ui.runAlert({tr("Warning!"),
                                    tr("The integrity of your data is your responsibility, and yours alone. "
                                       "Vorn is just a stupid App and by "
                                       "design it can't know or care about duplicate invoices, messed up "
                                       "numbers, or if you're having a bad hair "
                                       "day. So please, do yourself a favor and check what you are doing "
                                       "here. Do you still want to import the "
                                       "invoice?"),
                                    {tr("Import…"), tr("Cancel")},
                                    UserInterface::AlertStyle::Warning,
                                    false});
    if (answer != 0)
        return nullptr;
    const auto path = ui.runOpenPanel({tr("Import Vorn Document"), {QStringLiteral("vorn")}, {}, {}, false});
    if (!path)
        return nullptr;

    auto dictionary = InterchangeFile::readDocumentFile(*path);
    if (!dictionary) {
        ui.presentError(dictionary.error());
        return nullptr;
    }
    auto document = insertDocument(dictionary.value());
    if (!document) {
        ui.presentError(InterchangeFile::fileError(*path, document.error()));
        return nullptr;
    }
    ui.selectToolbarItem(QStringLiteral("addressItem"));
    saveContext();
    return document.value();
}

Result<ManagedObject*> InterchangeController::insertDocument(QVariantMap dictionary)
{
    ObjectContext* context = m_state.context();
    if (!context)
        return Error::make(ErrorCode::StoreInitFailed, tr("There is no database to import into."));
    // Whatever the file calls its top record, it comes in as a document.
    dictionary.insert(QStringLiteral("class"), Entity::Invoice);
    UndoGroup group(context->undoManager(), tr("Import"));
    auto document = Serialization::createManagedObjectFromDictionary(dictionary, *context);
    if (!document)
        return document.error();
    ArrayController& list = m_state.invoicesController();
    list.addObject(document.value());
    list.rearrangeObjects();
    return document;
}

Status InterchangeController::exportItems()
{
    return exportDocuments(m_state.invoicesController().arrangedObjects(), QString());
}

Status InterchangeController::exportVornDataXML()
{
    ObjectContext* context = m_state.context();
    return exportDocuments(context ? context->fetch(Entity::Invoice) : QList<ManagedObject*>(),
                           tr("Vorn Database"));
}

Status InterchangeController::exportDocuments(const QList<ManagedObject*>& documents,
                                              const QString& proposedName)
{
    const auto path = m_state.ui().runSavePanel(
        {tr("Export Vorn Database As XML"), {QStringLiteral("xml")}, proposedName, {}, true});
    if (!path)
        return {};
    Status written = InterchangeFile::writeDatabaseXml(*path, documents);
    if (!written)
        qCWarning(lcOutput).noquote() << "database export failed:" << written.error().fullText();
    return written;
}

void InterchangeController::saveContext()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return;
    if (Status s = context->save(); !s)
        qCWarning(lcOutput).noquote()
            << QStringLiteral("Unresolved error %1, %2").arg(s.error().message, s.error().reason);
}

} // namespace vorn
