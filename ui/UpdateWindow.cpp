#include "ui/UpdateWindow.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace vorn {

UpdateWindow::UpdateWindow(ZRUpdateChecker& checker, QWidget* parent)
    : QVBottomBarWindow(Regular, parent), m_checker(checker)
{
    setObjectName(QStringLiteral("updateWindow"));
    auto* top = new QHBoxLayout;
    m_icon = new QLabel(this);
    m_icon->setPixmap(QIcon::fromTheme(QStringLiteral("system-software-update"),
                                       QApplication::windowIcon().isNull()
                                           ? style()->standardIcon(QStyle::SP_MessageBoxInformation)
                                           : QApplication::windowIcon())
                          .pixmap(64, 64));
    m_icon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    m_icon->setFixedWidth(72);
    top->setSpacing(12);
    top->addWidget(m_icon);
    auto* texts = new QVBoxLayout;
    m_headline = new QLabel(this);
    QFont bold = m_headline->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    m_headline->setFont(bold);
    m_headline->setWordWrap(true);
    m_version = new QLabel(this);
    m_version->setObjectName(QStringLiteral("updateVersion"));
    m_version->setWordWrap(true);
    texts->addWidget(m_headline);
    texts->addWidget(m_version);
    top->addLayout(texts, 1);
    contentLayout()->addLayout(top);
    m_notesLabel = new QLabel(this);
    contentLayout()->addWidget(m_notesLabel);
    m_notes = new QTextBrowser(this);
    m_notes->setObjectName(QStringLiteral("updateNotes"));
    m_notes->setOpenExternalLinks(false);
    m_notes->setOpenLinks(false);
    m_notesLabel->setBuddy(m_notes);
    contentLayout()->addWidget(m_notes, 1);

    m_later = new QPushButton(this);
    m_later->setAutoDefault(false);
    m_download = new QPushButton(this);
    m_download->setObjectName(QStringLiteral("updateDownload"));
    m_download->setDefault(true);
    QHBoxLayout* bar = barLayout();
    bar->addStretch();
    bar->addWidget(m_later);
    bar->addWidget(m_download);
    connect(m_later, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_download, &QPushButton::clicked, this, [this] {
        m_checker.download();
        accept();
    });
    setTabOrder(m_notes, m_later);
    setTabOrder(m_later, m_download);
    retranslate();
    resize(520, 400);
}

void UpdateWindow::showUpdate(const ZRUpdateChecker::CheckResult& result, const QString& notes)
{
    m_result = result;
    m_notesText = notes;
    retranslate();
    show();
    raise();
    activateWindow();
    m_download->setFocus();
}

void UpdateWindow::retranslate()
{
    setWindowTitle(tr("Software Update"));
    setAccessibleName(windowTitle());
    m_icon->setAccessibleName(tr("Vorn"));
    m_headline->setText(tr("Update available!"));
    const QString newest = m_result.productVersion.isEmpty() ? tr("A new version") : m_result.productVersion;
    m_version->setText(tr("%1 is available; you have Vorn %2. Do you want to download the update now?")
                           .arg(newest, m_checker.applicationVersion()));
    m_notesLabel->setText(tr("&Release notes:"));
    m_notes->setAccessibleName(tr("Release notes"));
    m_notes->setPlainText(m_notesText.isEmpty() ? tr("The release notes could not be loaded.") : m_notesText);
    m_later->setText(tr("&Later"));
    m_later->setAccessibleName(tr("Later"));
    m_download->setText(tr("&Download…"));
    m_download->setAccessibleName(tr("Download"));
}

void UpdateWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QVBottomBarWindow::changeEvent(event);
}

} // namespace vorn
