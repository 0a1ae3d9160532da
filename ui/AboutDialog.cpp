#include "ui/AboutDialog.h"

#include "services/KelvoGeneralController.h"
#include "ui/QVLinkButton.h"
#include "ui/QVShadowTextField.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorn {

AboutDialog::AboutDialog(KelvoGeneralController& links, QWidget* parent) : QVBottomBarWindow(Small, parent)
{
    setObjectName(QStringLiteral("aboutWindow"));
    setWindowTitle(tr("About Vorn"));
    setAccessibleName(windowTitle());
    auto* icon = new QLabel(this);
    icon->setPixmap(QApplication::windowIcon().pixmap(96, 96));
    icon->setAlignment(Qt::AlignHCenter);
    icon->setAccessibleName(tr("Vorn"));
    contentLayout()->addWidget(icon);
    auto* name = new QVShadowTextField(QStringLiteral("Vorn"), this);
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.8);
    big.setBold(true);
    name->setFont(big);
    name->setAlignment(Qt::AlignHCenter);
    contentLayout()->addWidget(name);
    auto* version = new QLabel(tr("Version %1").arg(QApplication::applicationVersion()), this);
    version->setAlignment(Qt::AlignHCenter);
    contentLayout()->addWidget(version);
    auto* about = new QLabel(tr("Invoices, quotes and payment reminders."), this);
    about->setAlignment(Qt::AlignHCenter);
    about->setWordWrap(true);
    contentLayout()->addWidget(about);

    auto* row = new QHBoxLayout;
    row->addStretch();
    const auto link = [&](const QString& text, auto command) {
        auto* button = new QVLinkButton(text, QUrl(QStringLiteral("about:blank")), this);
        button->setOpener([&links, command](const QUrl&) { (links.*command)(); });
        row->addWidget(button);
    };
    link(tr("Manual"), &KelvoGeneralController::openManuals);
    link(tr("Website"), &KelvoGeneralController::openKelvo);
    link(tr("Support"), &KelvoGeneralController::openSupport);
    link(tr("Acknowledgements"), &KelvoGeneralController::openACK);
    row->addStretch();
    contentLayout()->addLayout(row);

    auto* ok = new QPushButton(tr("OK"), this);
    ok->setDefault(true);
    ok->setAccessibleName(tr("OK"));
    QHBoxLayout* bar = barLayout();
    bar->addStretch();
    bar->addWidget(ok);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}

} // namespace vorn
