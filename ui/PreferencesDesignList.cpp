#include "ui/PreferencesDesignList.h"

#include "designs/DesignBuilder.h"
#include "designs/DesignController.h"
#include "store/AppState.h"
#include "store/UserInterface.h"
#include "ui/PreferencesDesignModel.h"
#include "ui/SelectionSync.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace vorn {

PreferencesDesignList::PreferencesDesignList(AppState& state, DesignController& designs,
                                             DesignBuilder& builder, QWidget* parent)
    : QWidget(parent), m_designs(designs),
      m_model(new PreferencesDesignModel(state.designsController(), this)), m_table(new QTableView(this))
{
    m_table->setModel(m_model);
    m_table->setAccessibleName(tr("Designs"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_table->setTabKeyNavigation(false);
    m_sync = new SelectionSync(*m_model, *m_table, this);
    connect(&designs, &DesignController::editTitleRequested, this, [this](int row) {
        const QModelIndex index = m_model->index(row, 0);
        m_table->setCurrentIndex(index);
        m_table->edit(index);
    });

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    auto add = [&](const QString& name, const QString& text, const char* theme, const QString& tip,
                   std::function<void()> run) {
        QPushButton* b = addButton(name, text, theme, tip);
        buttons->addWidget(b);
        connect(b, &QPushButton::clicked, this, std::move(run));
    };
    add(QStringLiteral("add"), tr("New"), "list-add", tr("New design"), [this] { m_designs.addDesign(); });
    add(QStringLiteral("duplicate"), tr("Duplicate"), "edit-copy", tr("Duplicate the selected design"),
        [&builder] { builder.duplicateDesign(); });
    add(QStringLiteral("delete"), tr("Delete"), "list-remove", tr("Delete the selected design"),
        [this] { m_designs.deleteDesign(); });
    add(QStringLiteral("makeDefault"), tr("Make Default"), "emblem-default",
        tr("Render every document with the selected design"), [this] { m_designs.makeDefaultDesign(); });
    buttons->addStretch();
    add(QStringLiteral("import"), tr("Import…"), "document-open", tr("Import a design file"),
        [this] { m_designs.importDesign(); });
    add(QStringLiteral("export"), tr("Export…"), "document-save-as", tr("Export the selected design"),
        [this, &state] {
            // A design that could not be written is said, not only logged.
            if (Status written = m_designs.exportDesign(); !written)
                state.ui().presentError(written.error());
        });
    add(QStringLiteral("preview"), tr("Preview"), "document-print-preview", tr("Preview the default design"),
        [this] { Q_EMIT previewRequested(); });
}

QPushButton* PreferencesDesignList::addButton(const QString& name, const QString& text, const char* theme,
                                              const QString& tip)
{
    auto* b = new QPushButton(QIcon::fromTheme(QLatin1String(theme)), text, this);
    b->setObjectName(name);
    b->setToolTip(tip);
    b->setAccessibleName(text);
    b->setAccessibleDescription(tip);
    b->setAutoDefault(false);
    return b;
}

QPushButton* PreferencesDesignList::button(const QString& name) const
{
    return findChild<QPushButton*>(name);
}

} // namespace vorn
