#include "designs/DesignBuilder.h"

#include "designs/DesignController.h"
#include "designs/DesignsLog.h"
#include "store/AppState.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QFile>
#include <QFileInfo>

namespace vorn {

namespace {

// A logo is a picture of a few hundred kilobytes; anything far larger is
// refused before it is decoded.
constexpr qint64 maximumLogoSize = 16 * 1024 * 1024;

// Whether data starts like one of the picture formats the renderer shows.
bool looksLikeImage(const QByteArray& data)
{
    static const QByteArray signatures[] = {QByteArray("\x89PNG\r\n\x1a\n", 8),
                                            QByteArray("\xff\xd8\xff", 3),
                                            QByteArray("GIF87a"),
                                            QByteArray("GIF89a"),
                                            QByteArray("BM"),
                                            QByteArray("II*\0", 4),
                                            QByteArray("MM\0*", 4)};
    for (const QByteArray& signature : signatures)
        if (data.startsWith(signature))
            return data.size() > signature.size();
    if (data.startsWith("RIFF") && data.mid(8, 4) == "WEBP")
        return true;
    // A vector logo: an SVG document, perhaps after an XML declaration.
    const QByteArray head = data.left(1024);
    return head.contains("<svg") && !head.contains("<html");
}

} // namespace

DesignBuilder::DesignBuilder(AppState& state, DesignController& designs, QObject* parent)
    : QObject(parent), m_state(state), m_designs(designs)
{
}

QString DesignBuilder::attributeFor(EditorCommands::Editor editor)
{
    switch (editor) {
    case EditorCommands::ItemEditor:
        return key::item;
    case EditorCommands::StyleSheetEditor:
        return key::css;
    case EditorCommands::PageEditor:
        break;
    }
    return key::invoice;
}

ManagedObject* DesignBuilder::duplicateDesign()
{
    ArrayController& list = m_state.designsController();
    const ManagedObject* original = list.selectedObject();
    if (!original)
        return nullptr;
    ManagedObject* copy =
        m_designs.insertDesign(tr("Duplicate Design"), tr("%1 copy").arg(original->stringValue(key::title)),
                               original->stringValue(key::invoice), original->stringValue(key::item),
                               original->stringValue(key::css));
    if (!copy)
        return nullptr;
    list.setSelectedObjects({copy});
    m_designs.save();
    return copy;
}

void DesignBuilder::setTemplateText(ManagedObject& design, EditorCommands::Editor editor, const QString& text)
{
    ObjectContext* context = m_state.context();
    const QString key = attributeFor(editor);
    if (!context || design.stringValue(key) == text)
        return;
    {
        UndoGroup group(context->undoManager(), tr("Edit Design"));
        design.setValue(key, text);
    }
    if (design.boolValue(key::isDefault))
        Q_EMIT designChanged();
}

Status DesignBuilder::chooseLogo()
{
    const auto path =
        m_state.ui().runOpenPanel({tr("Choose Logo"),
                                   {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"),
                                    QStringLiteral("gif"), QStringLiteral("bmp"), QStringLiteral("svg"),
                                    QStringLiteral("webp"), QStringLiteral("tif"), QStringLiteral("tiff")},
                                   {},
                                   {},
                                   false});
    if (!path)
        return {};
    Status set = setLogoFromFile(*path);
    if (!set)
        m_state.ui().inform(tr("The logo was not changed."), set.error().message);
    return set;
}

Status DesignBuilder::setLogoFromFile(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (QFileInfo(path).size() > maximumLogoSize)
        return Error::make(ErrorCode::FileReadCorrupt, tr("“%1” is too large for a logo.").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return Error::make(ErrorCode::FileNotFound, tr("“%1” could not be read.").arg(name),
                           file.errorString());
    const QByteArray data = file.readAll();
    if (!looksLikeImage(data))
        return Error::make(ErrorCode::FileReadCorrupt, tr("“%1” is not an image.").arg(name));
    m_state.settings().setValue(key::prefsLogo, data);
    Q_EMIT designChanged();
    return {};
}

void DesignBuilder::removeLogo()
{
    m_state.settings().removeValue(key::prefsLogo);
    Q_EMIT designChanged();
}

} // namespace vorn
