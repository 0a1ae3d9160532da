#include "ui/PreferencesBuilderPane.h"

#include "app/AppDelegate.h"
#include "designs/DesignBuilder.h"
#include "designs/DesignController.h"
#include "designs/SyntaxDefinition.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/PreferencesDesignList.h"
#include "ui/PreferencesLivePreview.h"
#include "ui/TemplateEditor.h"

#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace vorn {

namespace {

const QString builderIndexKey = QStringLiteral("selectedBuilderIndex");

// Settings the design preview does not show.
bool previewIgnores(const QString& key)
{
    return key == QLatin1String("selectedBuilderIndex") || key == QLatin1String("selectedDesign") ||
           key == QLatin1String("isMainPreviewAction") || key.startsWith(QLatin1String("SyntaxColoring:"));
}

} // namespace

PreferencesBuilderPane::PreferencesBuilderPane(AppDelegate& app, DesignController& designs,
                                               DesignBuilder& builder, QWidget* parent)
    : QWidget(parent), m_app(app), m_builder(builder),
      m_list(new PreferencesDesignList(app.state(), designs, builder, this)), m_tabs(new QTabWidget(this)),
      m_preview(new PreferencesLivePreview(app, this)), m_pause(new QTimer(this))
{
    Settings& settings = app.settings();
    // Without the colours resource the editors colour nothing (the reason is logged).
    (void)SyntaxDefinition::registerColorDefaults(settings);
    const SyntaxDefinition html = SyntaxDefinition::load(SyntaxDefinition::htmlPath(), &settings);
    const SyntaxDefinition css = SyntaxDefinition::load(SyntaxDefinition::cssPath(), &settings);
    const std::pair<EditorCommands::Editor, QString> tabs[] = {
        {EditorCommands::PageEditor, tr("Page")},
        {EditorCommands::ItemEditor, tr("Item Row")},
        {EditorCommands::StyleSheetEditor, tr("Style Sheet")}};
    for (const auto& [kind, title] : tabs) {
        auto* editor =
            new TemplateEditor(kind, kind == EditorCommands::StyleSheetEditor ? css : html, m_tabs);
        editor->setAccessibleName(tr("%1 template").arg(title));
        m_editors[size_t(kind)] = editor;
        m_tabs->addTab(editor, title);
        connect(editor, &TemplateEditor::edited, this, [this] {
            m_pending = true;
            m_pause->start();
        });
    }
    m_tabs->setAccessibleName(tr("Templates"));
    const qint64 index = settings.intValue(builderIndexKey);
    m_tabs->setCurrentIndex(int(EditorCommands::editorForIndex(index)));
    connect(m_tabs, &QTabWidget::currentChanged, this,
            [&settings](int tab) { settings.setValue(builderIndexKey, qint64(tab)); });

    auto* left = new QSplitter(Qt::Vertical, this);
    left->addWidget(m_list);
    left->addWidget(m_tabs);
    left->setStretchFactor(1, 1);
    left->setSizes({170, 500});
    left->setChildrenCollapsible(false);
    auto* split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(left);
    split->addWidget(m_preview);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    split->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(split);
    setTabOrder(m_list, m_tabs);

    m_pause->setSingleShot(true);
    m_pause->setInterval(PreferencesLivePreview::pauseMs);
    connect(m_pause, &QTimer::timeout, this, &PreferencesBuilderPane::storeEdits);

    ArrayController& list = app.state().designsController();
    connect(&list, &ArrayController::selectionChanged, this, [this] {
        storeEdits();
        showSelectedDesign();
    });
    connect(&list, &ArrayController::arrangedObjectsChanged, m_preview, &PreferencesLivePreview::schedule);
    connect(m_list, &PreferencesDesignList::previewRequested, this, [this, &designs] {
        storeEdits();
        designs.save();
        m_preview->refresh();
    });
    connect(&settings, &Settings::valueChanged, this, [this](const QString& key) {
        if (!previewIgnores(key))
            m_preview->schedule();
    });
    connect(&builder, &DesignBuilder::designChanged, m_preview, &PreferencesLivePreview::schedule);
    showSelectedDesign();
}

void PreferencesBuilderPane::storeEdits()
{
    m_pause->stop();
    if (!m_pending)
        return;
    m_pending = false;
    ArrayController& list = m_app.state().designsController();
    // The design the editors show may have been deleted meanwhile.
    if (!m_shown || !list.arrangedObjects().contains(m_shown))
        return;
    for (TemplateEditor* editor : m_editors)
        m_builder.setTemplateText(*m_shown, editor->kind(), editor->toPlainText());
}

void PreferencesBuilderPane::showSelectedDesign()
{
    m_shown = m_app.state().designsController().selectedObject();
    for (TemplateEditor* editor : m_editors) {
        editor->setTemplateText(m_shown ? m_shown->stringValue(DesignBuilder::attributeFor(editor->kind()))
                                        : QString());
        editor->setReadOnly(!m_shown);
    }
    m_pending = false;
}

} // namespace vorn
