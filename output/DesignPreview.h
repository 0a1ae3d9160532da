#pragma once

#include "store/Result.h"

#include <QCoreApplication>
#include <QString>
#include <QVariantList>

namespace vorn {

class PreviewController;

// The design preview of the preferences: the default design filled with
// sample data (a fixed invoice and the "PreviewItems" resource) rather than
// a document, with the same language and formatting as real documents.
class DesignPreview
{
    Q_DECLARE_TR_FUNCTIONS(DesignPreview)
public:
    explicit DesignPreview(PreviewController& preview) : m_preview(preview) {}

    // The finished sample HTML in the default design.
    QString invoiceHTMLString();
    // The sample item rows in the default design's row template.
    QString itemsList();
    // The sample items (dictionaries keyed like items).
    static Result<QVariantList> previewItems();
    // The invoice pattern filled with the current offset "invCount" and
    // today's date; the counter never moves.
    QString invoiceNumberString() const;

private:
    PreviewController& m_preview;
};

} // namespace vorn
