#include "ui/ReminderSheet.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorn {

ReminderSheet::ReminderSheet(AppDelegate& app, QWidget* parent) : QDialog(parent), m_app(app)
{
    setObjectName(QStringLiteral("reminderSheet"));
    setWindowTitle(tr("Payment Reminder"));
    setWindowModality(Qt::WindowModal);

    m_title = new QLineEdit(this);
    m_title->setObjectName(QStringLiteral("reminderTitleField"));
    m_conditions = new QPlainTextEdit(this);
    m_conditions->setObjectName(QStringLiteral("reminderConditionsField"));
    m_conditions->setTabChangesFocus(true);
    m_footer = new QPlainTextEdit(this);
    m_footer->setObjectName(QStringLiteral("reminderFooterField"));
    m_footer->setTabChangesFocus(true);
    const int lines = fontMetrics().lineSpacing();
    m_conditions->setMinimumHeight(lines * 5);
    m_footer->setMinimumHeight(lines * 4);

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("Title:"), m_title);
    form->addRow(tr("Conditions:"), m_conditions);
    form->addRow(tr("Footer:"), m_footer);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* create = buttons->addButton(tr("Create Reminder"), QDialogButtonBox::AcceptRole);
    create->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &ReminderSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ReminderSheet::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    resize(520, sizeHint().height());

    connect(&m_app.invoicing().gui(), &GUIController::reminderSheetChanged, this, &ReminderSheet::sync);
}

void ReminderSheet::sync()
{
    const GUIController::ReminderSheet& sheet = m_app.invoicing().gui().reminderSheet();
    if (!sheet.shown) {
        if (isVisible())
            QDialog::done(QDialog::Rejected);
        return;
    }
    if (isVisible())
        return;
    m_title->setText(sheet.title);
    m_conditions->setPlainText(sheet.conditions);
    m_footer->setPlainText(sheet.footer);
    m_title->setFocus();
    open();
}

void ReminderSheet::accept()
{
    GUIController::ReminderSheet& sheet = m_app.invoicing().gui().reminderSheet();
    sheet.title = m_title->text();
    sheet.conditions = m_conditions->toPlainText();
    sheet.footer = m_footer->toPlainText();
    m_app.generateReminder();
}

void ReminderSheet::reject()
{
    m_app.invoicing().gui().cancelReminderSheet();
}

} // namespace vorn
