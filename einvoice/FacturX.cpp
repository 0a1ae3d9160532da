#include "einvoice/FacturX.h"

#include "einvoice/EInvoiceLog.h"

#include <QCoreApplication>
#include <QFile>
#include <QTimeZone>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>

namespace vorn::FacturX {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(FacturX)
};

// Annotation flag "print": PDF/A wants every annotation printed as shown.
constexpr int printFlag = 4;

std::string utf8(const QString& text)
{
    return text.toStdString();
}

QString xmlEscaped(const QString& text)
{
    return text.toHtmlEscaped();
}

// The same instant in the forms of the document information dictionary and
// of XMP, which PDF/A wants to agree.
std::string pdfDate(const QDateTime& time)
{
    return utf8(time.toUTC().toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'")));
}

QString xmpDate(const QDateTime& time)
{
    return time.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}

QByteArray xmp(const Metadata& m)
{
    auto property = [](const char* name, const char* description) {
        return QStringLiteral("<rdf:li rdf:parseType=\"Resource\"><pdfaProperty:name>%1</pdfaProperty:name>"
                              "<pdfaProperty:valueType>Text</pdfaProperty:valueType>"
                              "<pdfaProperty:category>external</pdfaProperty:category>"
                              "<pdfaProperty:description>%2</pdfaProperty:description></rdf:li>\n")
            .arg(QLatin1String(name), QLatin1String(description));
    };
    const QString created = xmpDate(m.created);
    QString text;
    text += QStringLiteral("<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
                           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
                           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n");
    text += QStringLiteral("<rdf:Description rdf:about=\"\" xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">"
                           "<pdfaid:part>3</pdfaid:part><pdfaid:conformance>B</pdfaid:conformance>"
                           "</rdf:Description>\n");
    text +=
        QStringLiteral("<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">"
                       "<dc:format>application/pdf</dc:format>"
                       "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>"
                       "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>"
                       "</rdf:Description>\n")
            .arg(xmlEscaped(m.title), xmlEscaped(m.author));
    text += QStringLiteral("<rdf:Description rdf:about=\"\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\">"
                           "<pdf:Producer>Vorn</pdf:Producer></rdf:Description>\n");
    text += QStringLiteral("<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">"
                           "<xmp:CreatorTool>Vorn</xmp:CreatorTool><xmp:CreateDate>%1</xmp:CreateDate>"
                           "<xmp:ModifyDate>%1</xmp:ModifyDate><xmp:MetadataDate>%1</xmp:MetadataDate>"
                           "</rdf:Description>\n")
                .arg(created);
    text += QStringLiteral("<rdf:Description rdf:about=\"\" "
                           "xmlns:fx=\"urn:factur-x:pdfa:CrossIndustryDocument:invoice:1p0#\">"
                           "<fx:DocumentType>INVOICE</fx:DocumentType>"
                           "<fx:DocumentFileName>%1</fx:DocumentFileName>"
                           "<fx:Version>1.0</fx:Version>"
                           "<fx:ConformanceLevel>%2</fx:ConformanceLevel></rdf:Description>\n")
                .arg(QLatin1String(attachmentName), xmlEscaped(m.conformanceLevel));
    text += QStringLiteral(
        "<rdf:Description rdf:about=\"\" xmlns:pdfaExtension=\"http://www.aiim.org/pdfa/ns/extension/\" "
        "xmlns:pdfaSchema=\"http://www.aiim.org/pdfa/ns/schema#\" "
        "xmlns:pdfaProperty=\"http://www.aiim.org/pdfa/ns/property#\">\n"
        "<pdfaExtension:schemas><rdf:Bag><rdf:li rdf:parseType=\"Resource\">\n"
        "<pdfaSchema:schema>Factur-X PDFA Extension Schema</pdfaSchema:schema>\n"
        "<pdfaSchema:namespaceURI>urn:factur-x:pdfa:CrossIndustryDocument:invoice:1p0#</"
        "pdfaSchema:namespaceURI>\n"
        "<pdfaSchema:prefix>fx</pdfaSchema:prefix>\n"
        "<pdfaSchema:property><rdf:Seq>\n");
    text += property("DocumentFileName", "The name of the embedded XML document");
    text +=
        property("DocumentType", "The type of the hybrid document in capital letters, e.g. INVOICE or ORDER");
    text += property("Version", "The actual version of the standard applying to the embedded XML document");
    text += property("ConformanceLevel", "The conformance level of the embedded XML document");
    text += QStringLiteral("</rdf:Seq></pdfaSchema:property>\n</rdf:li></rdf:Bag></pdfaExtension:schemas>\n"
                           "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>");
    return text.toUtf8();
}

} // namespace

QByteArray srgbProfile()
{
    QFile file(QStringLiteral(":/icc/sRGB.icc"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Result<QByteArray> make(const QByteArray& pdfData, const QByteArray& xml, const Metadata& m)
{
    const QByteArray icc = srgbProfile();
    if (icc.isEmpty())
        return Error::make(ErrorCode::FileReadUnknown,
                           Texts::tr("The colour profile of PDF/A files is missing."));
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.processMemoryFile("invoice.pdf", pdfData.constData(), size_t(pdfData.size()));
        if (pdf.isEncrypted())
            return Error::make(ErrorCode::FileReadCorrupt,
                               Texts::tr("An encrypted PDF cannot become a PDF/A file."));
        QPDFObjectHandle root = pdf.getRoot();

        // The invoice's XML, an associated file of the whole document.
        const std::string modDate = pdfDate(m.created);
        QPDFEFStreamObjectHelper stream =
            QPDFEFStreamObjectHelper::createEFStream(pdf, std::string(xml.constData(), size_t(xml.size())));
        stream.setSubtype("text/xml").setModDate(modDate).setCreationDate(modDate);
        QPDFFileSpecObjectHelper spec = QPDFFileSpecObjectHelper::createFileSpec(pdf, attachmentName, stream);
        spec.setDescription("Factur-X invoice");
        QPDFObjectHandle specObject = spec.getObjectHandle();
        specObject.replaceKey("/AFRelationship", QPDFObjectHandle::newName("/Alternative"));
        if (!specObject.isIndirect())
            specObject = pdf.makeIndirectObject(specObject);
        QPDFEmbeddedFileDocumentHelper(pdf).replaceEmbeddedFile(attachmentName,
                                                                QPDFFileSpecObjectHelper(specObject));
        root.replaceKey("/AF", QPDFObjectHandle::newArray(std::vector<QPDFObjectHandle>{specObject}));

        // The colours of the pages are sRGB.
        QPDFObjectHandle profile =
            QPDFObjectHandle::newStream(&pdf, std::string(icc.constData(), size_t(icc.size())));
        profile.getDict().replaceKey("/N", QPDFObjectHandle::newInteger(3));
        QPDFObjectHandle intent = QPDFObjectHandle::newDictionary();
        intent.replaceKey("/Type", QPDFObjectHandle::newName("/OutputIntent"));
        intent.replaceKey("/S", QPDFObjectHandle::newName("/GTS_PDFA1"));
        intent.replaceKey("/OutputConditionIdentifier", QPDFObjectHandle::newString("sRGB IEC61966-2.1"));
        intent.replaceKey("/Info", QPDFObjectHandle::newString("sRGB IEC61966-2.1"));
        intent.replaceKey("/DestOutputProfile", profile);
        root.replaceKey("/OutputIntents", QPDFObjectHandle::newArray(
                                              std::vector<QPDFObjectHandle>{pdf.makeIndirectObject(intent)}));

        const QByteArray metadata = xmp(m);
        QPDFObjectHandle metadataStream =
            QPDFObjectHandle::newStream(&pdf, std::string(metadata.constData(), size_t(metadata.size())));
        metadataStream.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
        metadataStream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
        root.replaceKey("/Metadata", metadataStream);

        // The information dictionary says what the XMP says.
        QPDFObjectHandle info = QPDFObjectHandle::newDictionary();
        info.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(utf8(m.title)));
        info.replaceKey("/Author", QPDFObjectHandle::newUnicodeString(utf8(m.author)));
        info.replaceKey("/Creator", QPDFObjectHandle::newUnicodeString("Vorn"));
        info.replaceKey("/Producer", QPDFObjectHandle::newUnicodeString("Vorn"));
        info.replaceKey("/CreationDate", QPDFObjectHandle::newString(modDate));
        info.replaceKey("/ModDate", QPDFObjectHandle::newString(modDate));
        pdf.getTrailer().replaceKey("/Info", pdf.makeIndirectObject(info));

        for (QPDFPageObjectHelper& page : QPDFPageDocumentHelper(pdf).getAllPages()) {
            for (QPDFAnnotationObjectHelper& annotation : page.getAnnotations())
                annotation.getObjectHandle().replaceKey("/F", QPDFObjectHandle::newInteger(printFlag));
        }

        QPDFWriter writer(pdf);
        writer.setOutputMemory();
        writer.setMinimumPDFVersion("1.7");
        writer.setDeterministicID(true);
        writer.write();
        std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
        return QByteArray(reinterpret_cast<const char*>(buffer->getBuffer()), qsizetype(buffer->getSize()));
    } catch (const std::exception& e) {
        qCWarning(lcEInvoice) << "qpdf:" << e.what();
        return Error::make(ErrorCode::FileReadCorrupt,
                           Texts::tr("The PDF could not be made into a Factur-X file."),
                           QString::fromStdString(e.what()));
    }
}

} // namespace vorn::FacturX
