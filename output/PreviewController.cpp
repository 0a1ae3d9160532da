#include "output/PreviewController.h"

#include "output/Logo.h"
#include "output/OutputLog.h"
#include "store/AppState.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace vorn {

namespace {

QString messagePage(const QString& title, const QString& text)
{
    return QStringLiteral(
               "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title><style>"
               "body{font-family:sans-serif;color:#333;margin:3em 2em}h1{font-size:16pt;font-weight:600}"
               "p{font-size:11pt;line-height:1.5}</style></head>"
               "<body><h1>%1</h1><p>%2</p></body></html>\n")
        .arg(title.toHtmlEscaped(), text.toHtmlEscaped());
}

// The preview PDF is a scratch file: written whole under another name and
// renamed into place, so a reader never sees half a file, but not forced to
// disk, which would only add to the wait.
Status writeScratch(const QString& path, const QByteArray& data)
{
    const QString part = path + QStringLiteral(".part");
    QFile file(part);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(data) != data.size()) {
        const QString reason = file.errorString();
        file.close();
        QFile::remove(part);
        return Error::make(ErrorCode::FileWriteUnknown,
                           PreviewController::tr("The PDF “%1” could not be written.").arg(path), reason);
    }
    file.close();
    QFile::remove(path);
    if (!QFile::rename(part, path)) {
        QFile::remove(part);
        return Error::make(ErrorCode::FileWriteUnknown,
                           PreviewController::tr("The PDF “%1” could not be written.").arg(path));
    }
    return {};
}

} // namespace

PreviewController::PreviewController(AppState& state, PdfRenderer& renderer, QObject* parent)
    : QObject(parent), m_state(state), m_renderer(renderer), m_formatter(state.settings())
{
}

ManagedObject* PreviewController::currentDesign()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return nullptr;
    auto designs = context->fetchObjects(Entity::Design,
                                         [](const ManagedObject& o) { return o.boolValue(key::isDefault); });
    if (!designs) {
        m_state.ui().presentError(designs.error());
        return nullptr;
    }
    return designs.value().isEmpty() ? nullptr : designs.value().first();
}

QString PreviewController::missingDesignPage()
{
    return messagePage(
        tr("There is no default design"),
        tr("Make one of the designs in the preferences the default design to see your documents."));
}

QString PreviewController::missingTemplatePage()
{
    return messagePage(
        tr("This design has no page template"),
        tr("Give the default design a page template in the preferences, or make another design the "
           "default design."));
}

ReminderTexts PreviewController::defaultReminderTexts() const
{
    const Settings& s = m_state.settings();
    return {s.stringValue(key::locReminder), s.stringValue(key::tempRemConditions),
            s.stringValue(key::tempRemFooter)};
}

QList<ManagedObject*> PreviewController::displayedItems(const ManagedObject& document) const
{
    // The item list shows the current document's items; any other document
    // shows its items in their stored order.
    const ArrayController& list = m_state.itemsController();
    const QList<ManagedObject*> own = document.items();
    if (&document == m_state.currentInvoice() && list.content().size() == own.size()) {
        bool same = true;
        for (ManagedObject* item : list.content())
            same = same && item->object(key::invoice) == &document;
        if (same)
            return list.arrangedObjects();
    }
    return own;
}

QString PreviewController::itemsList()
{
    ManagedObject* document = m_state.currentInvoice();
    ManagedObject* design = currentDesign();
    if (!document || !design)
        return {};
    QList<ItemValues> items;
    for (ManagedObject* item : displayedItems(*document))
        items.append(ItemValues::fromObject(*item));
    return fillItemsList(design->stringValue(key::item), items,
                         ItemRowSettings::fromSettings(m_state.settings()),
                         document->stringValue(key::currency), m_formatter);
}

QString PreviewController::invoiceHTMLString()
{
    ManagedObject* document = m_state.currentInvoice();
    if (!document)
        return {};
    return documentHTMLString(*document, displayedItems(*document));
}

QString PreviewController::documentHTMLString(const ManagedObject& document,
                                              const QList<ManagedObject*>& itemObjects)
{
    const Settings& settings = m_state.settings();
    // The logo file is rewritten on every generation, whatever the design.
    const QString logo = Logo::element(settings, m_state.locations().logoCache());
    ManagedObject* design = currentDesign();
    if (!design)
        return missingDesignPage();
    QString text = design->stringValue(key::invoice);
    if (text.isEmpty())
        return missingTemplatePage();

    PageValues values =
        pageValuesForDocument(document, settings, m_state.isReminderAction ? &m_reminder : nullptr);
    values.css = design->stringValue(key::css);
    values.logo = logo;
    QList<ItemValues> items;
    items.reserve(itemObjects.size());
    for (ManagedObject* item : itemObjects)
        items.append(ItemValues::fromObject(*item));
    values.itemsList = fillItemsList(design->stringValue(key::item), items,
                                     ItemRowSettings::fromSettings(settings), values.currency, m_formatter);
    Template::apply(text, pageSteps(values, m_formatter));
    return text;
}

PdfRenderer::Job PreviewController::renderJob(const QString& html) const
{
    return PdfRenderer::Job{
        html,
        PdfRenderer::pageLayout(m_state.settings().intValue(QStringLiteral("tempPaperSize"))),
        {m_state.locations().logoCache()}};
}

void PreviewController::showPreview()
{
    if (m_windowVisible) {
        previewWindowClosed();
        return;
    }
    m_windowVisible = true;
    Q_EMIT previewWindowChanged(true);
    generatePreview();
}

void PreviewController::previewWindowClosed()
{
    if (!m_windowVisible)
        return;
    m_windowVisible = false;
    Q_EMIT previewWindowChanged(false);
}

void PreviewController::generatePreview()
{
    m_state.isReminderAction = false;
    m_state.notifyStateChanged();
    generate();
}

void PreviewController::generateReminder(ReminderTexts texts)
{
    m_reminder = std::move(texts);
    m_state.isReminderAction = true;
    m_state.notifyStateChanged();
    if (!m_windowVisible) {
        m_windowVisible = true;
        Q_EMIT previewWindowChanged(true);
    }
    generate();
}

void PreviewController::generate()
{
    if (!m_state.currentInvoice())
        return;
    setGenerating(true);
    m_state.settings().setValue(QStringLiteral("isMainPreviewAction"), true);
    const quint64 generation = ++m_generation;
    QPointer<PreviewController> self(this);
    m_renderer.render(renderJob(invoiceHTMLString()), [self, generation](Result<QByteArray> pdf) {
        // Only the last generation shows; an earlier one finishing late is dropped.
        if (self && generation == self->m_generation)
            self->createPDF(pdf);
    });
}

bool PreviewController::createPDF(const Result<QByteArray>& pdf)
{
    const QString path = m_state.pdfPath.isEmpty() ? m_state.locations().scratchPdf() : m_state.pdfPath;
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (QFile::exists(path))
        QFile::remove(path);
    Status written = pdf ? writeScratch(path, pdf.value()) : Status(pdf.error());
    setGenerating(false);
    if (!written) {
        qCWarning(lcOutput) << "The preview PDF failed:" << written.error().fullText();
        m_state.ui().runAlert({tr("Ooops!"),
                               tr("Something went really wrong while creating the preview."),
                               {tr("OK")},
                               UserInterface::AlertStyle::Warning,
                               false});
        Q_EMIT previewFailed();
        return false;
    }
    Q_EMIT previewReady(path);
    return true;
}

void PreviewController::setGenerating(bool generating)
{
    if (m_generating == generating)
        return;
    m_generating = generating;
    Q_EMIT generatingChanged(generating);
}

} // namespace vorn
