#include "ui/LockBanner.h"

#include "invoicing/ValueTransformers.h"
#include "store/AppState.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"

namespace vorn {

LockBanner::LockBanner(AppState& state, QWidget* parent) : QLabel(parent), m_state(state)
{
    setObjectName(QStringLiteral("lockBanner"));
    setWordWrap(true);
    setMargin(6);
    setStyleSheet(QStringLiteral("QLabel { background: palette(alternate-base); border-radius: 4px; }"));
    setText(tr("This invoice is marked as sent, so its fields are read-only. To change it, set its status "
               "back to \"Created\" on the Info page."));
    connect(&m_state, &AppState::currentInvoiceChanged, this, &LockBanner::refresh);
    connect(&m_state, &AppState::contextChanged, this, &LockBanner::refresh);
    connect(&m_state, &AppState::currentInvoiceValueChanged, this, [this](const QString& k) {
        if (k == key::status)
            refresh();
    });
    refresh();
}

void LockBanner::refresh()
{
    const ManagedObject* doc = m_state.currentInvoice();
    setVisible(doc && !ValueTransformers::invoiceSentToBool(doc));
}

} // namespace vorn
