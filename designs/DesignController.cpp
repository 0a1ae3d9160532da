#include "designs/DesignController.h"

#include "designs/DesignsLog.h"
#include "documents/InterchangeFile.h"
#include "documents/Serialization.h"
#include "store/AtomicFile.h"
#include "store/Keys.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/UniqueId.h"
#include "store/UserInterface.h"

#include <QFile>

#include <array>

namespace vorn {

namespace {

const QString selectedDesignKey = QStringLiteral("selectedDesign");
const QString isDefaultKey = key::isDefault;
const QString classKey = QStringLiteral("class");
constexpr int builtInCount = 9;

} // namespace

DesignController::DesignController(AppState& state, QObject* parent)
    : QObject(parent), m_state(state), m_resources(&DesignController::bundledResource)
{
    // A table of designs always has a row selected while it has rows.
    m_state.designsController().setAvoidsEmptySelection(true);
}

std::optional<QByteArray> DesignController::bundledResource(const QString& fileName)
{
    QFile file(QStringLiteral(":/designs/") + fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

std::optional<QString> DesignController::resourceText(const QString& fileName)
{
    const auto data = m_resources(fileName);
    if (!data)
        return std::nullopt;
    return QString::fromUtf8(*data);
}

Status DesignController::loadTemplates()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return {};
    std::array<QVariantMap, builtInCount> dictionaries;
    for (int n = 1; n <= builtInCount; ++n) {
        const QString name = QStringLiteral("Temp00%1").arg(n);
        const auto data = m_resources(name + QStringLiteral(".design"));
        if (!data) {
            const Error e =
                Error::make(ErrorCode::FileNotFound, tr("The built-in design “%1” is missing.").arg(name));
            qCWarning(lcDesigns).noquote() << e.message;
            return e;
        }
        auto dictionary = InterchangeFile::rootEntry(*data, InterchangeFile::designKey());
        if (!dictionary) {
            const Error e =
                Error::make(ErrorCode::FileReadCorrupt, tr("The built-in design “%1” is damaged.").arg(name),
                            dictionary.error().message);
            qCWarning(lcDesigns).noquote() << e.fullText();
            return e;
        }
        dictionaries[size_t(n - 1)] = dictionary.value();
        // Kept as the platform did it: from the sixth design on, the class is
        // set on the fifth design's dictionary again, so those designs are
        // created from the class their file carries ("Design" in ours).
        dictionaries[size_t(std::min(n, 5) - 1)].insert(classKey, Entity::Design);
    }
    for (const QVariantMap& dictionary : dictionaries) {
        if (Status s = Serialization::checkDictionary(dictionary, context->model()); !s) {
            qCWarning(lcDesigns).noquote() << s.error().fullText();
            return s;
        }
    }

    // The seeded designs are where the store starts, not an edit to undo.
    UndoManager* undo = context->undoManager();
    const bool undoWasEnabled = undo->isEnabled();
    undo->setEnabled(false);
    for (int n = 1; n <= builtInCount; ++n) {
        auto created =
            Serialization::createManagedObjectFromDictionary(dictionaries[size_t(n - 1)], *context);
        if (created)
            created.value()->setValue(isDefaultKey, n == 1);
    }
    undo->setEnabled(undoWasEnabled);
    m_state.designsController().fetch();
    saveContext();
    return {};
}

ManagedObject* DesignController::addDesign()
{
    if (!m_state.context())
        return nullptr;
    const auto invoice = resourceText(QStringLiteral("Invoice.htm"));
    const auto item = resourceText(QStringLiteral("Item.htm"));
    const auto css = resourceText(QStringLiteral("CSS.css"));
    if (!invoice || !item || !css) {
        m_state.ui().presentError(
            Error::make(ErrorCode::FileNotFound, tr("The texts of a new design are missing.")));
        return nullptr;
    }
    ManagedObject* design = insertDesign(tr("New Design"), tr("New Design"), *invoice, *item, *css);
    ArrayController& list = m_state.designsController();
    // The row of this very object: designs may be equal in every value.
    Q_EMIT editTitleRequested(int(list.arrangedObjects().indexOf(design)));
    save();
    return design;
}

ManagedObject* DesignController::insertDesign(const QString& actionName, const QString& title,
                                              const QString& invoice, const QString& item, const QString& css)
{
    ObjectContext* context = m_state.context();
    if (!context)
        return nullptr;
    ManagedObject* design = nullptr;
    {
        UndoGroup group(context->undoManager(), actionName);
        design = context->insertNewObject(Entity::Design);
        design->setValue(key::uniqueID, globallyUniqueString());
        design->setValue(key::title, title);
        design->setValue(key::invoice, invoice);
        design->setValue(key::item, item);
        design->setValue(key::css, css);
        design->setValue(isDefaultKey, false);
    }
    ArrayController& list = m_state.designsController();
    list.addObject(design);
    list.rearrangeObjects();
    return design;
}

void DesignController::deleteDesign()
{
    ManagedObject* design = m_state.designsController().selectedObject();
    if (!design || !m_state.context())
        return;
    UserInterface& ui = m_state.ui();
    if (design->boolValue(isDefaultKey)) {
        ui.beep();
        ui.runAlert({tr("Error!"),
                     tr("You can't delete the default design."),
                     {tr("OK")},
                     UserInterface::AlertStyle::Critical,
                     false});
        return;
    }
    const int answer =
        ui.runAlert({tr("Delete Design"),
                     tr("Deleting designs is permanent and cannot be undone. Do you really want to "
                        "delete the selected design?"),
                     {tr("Delete"), tr("Cancel")},
                     UserInterface::AlertStyle::Warning,
                     true});
    rootDeleteWarningSheetDidEnd(answer == 0 ? 1 : 0);
}

void DesignController::rootDeleteWarningSheetDidEnd(int returnCode)
{
    ObjectContext* context = m_state.context();
    ArrayController& list = m_state.designsController();
    ManagedObject* design = list.selectedObject();
    if (returnCode != 1 || !context || !design)
        return;
    {
        UndoGroup group(context->undoManager(), tr("Delete Design"));
        context->deleteObject(design);
    }
    save();
}

void DesignController::makeDefaultDesign()
{
    ObjectContext* context = m_state.context();
    ArrayController& list = m_state.designsController();
    ManagedObject* chosen = list.selectedObject();
    // Without a selection there would be no default at all afterwards.
    if (!context || !chosen)
        return;
    {
        UndoGroup group(context->undoManager(), tr("Make Default"));
        for (ManagedObject* design : list.arrangedObjects())
            design->setValue(isDefaultKey, false);
        chosen->setValue(isDefaultKey, true);
    }
    list.rearrangeObjects();
}

ManagedObject* DesignController::currentDesign()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return nullptr;
    const QList<ManagedObject*> designs = context->fetchNamed(QStringLiteral("defaultDesign"));
    return designs.isEmpty() ? nullptr : designs.first();
}

ManagedObject* DesignController::importDesign()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return nullptr;
    UserInterface& ui = m_state.ui();
    const auto path = ui.runOpenPanel({tr("Import Vorn Design"), {QStringLiteral("design")}, {}, {}, false});
    if (!path)
        return nullptr;
    auto dictionary = InterchangeFile::readDesignFile(*path);
    if (!dictionary) {
        ui.presentError(dictionary.error());
        return nullptr;
    }
    QVariantMap read = dictionary.value();
    read.insert(classKey, Entity::Design);
    ManagedObject* design = nullptr;
    {
        UndoGroup group(context->undoManager(), tr("Import Design"));
        auto created = Serialization::createManagedObjectFromDictionary(read, *context);
        if (!created) {
            ui.presentError(InterchangeFile::fileError(*path, created.error()));
            return nullptr;
        }
        design = created.value();
        design->setValue(isDefaultKey, false);
    }
    ArrayController& list = m_state.designsController();
    list.addObject(design);
    list.rearrangeObjects();
    return design;
}

Status DesignController::exportDesign()
{
    const ManagedObject* design = m_state.designsController().selectedObject();
    if (!design)
        return {};
    const QVariantMap dictionary = InterchangeFile::designDictionary(*design);
    const auto path = m_state.ui().runSavePanel(
        {tr("Export Vorn Design"), {QStringLiteral("design")}, design->stringValue(key::title), {}, true});
    if (!path)
        return {};
    Status written = AtomicFile::write(*path, InterchangeFile::designFileData(dictionary));
    if (!written)
        qCWarning(lcDesigns).noquote() << "design export failed:" << written.error().fullText();
    return written;
}

void DesignController::save()
{
    saveContext();
    const int row = m_state.designsController().selectionIndex();
    if (row >= 0)
        m_state.settings().setValue(selectedDesignKey, qint64(row));
}

void DesignController::restoreSelection()
{
    ArrayController& list = m_state.designsController();
    const qint64 row = m_state.settings().intValue(selectedDesignKey);
    list.setSelectionIndexes({row >= 0 && row < list.count() ? int(row) : 0});
}

void DesignController::saveContext()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return;
    if (Status s = context->save(); !s)
        qCWarning(lcDesigns).noquote()
            << QStringLiteral("Unresolved error %1, %2").arg(s.error().message, s.error().reason);
}

} // namespace vorn
