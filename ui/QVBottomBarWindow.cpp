#include "ui/QVBottomBarWindow.h"

#include "ui/QVBox.h"

#include <QHBoxLayout>
#include <QPropertyAnimation>
#include <QVBoxLayout>

namespace vorn {

QVBottomBarWindow::QVBottomBarWindow(BarSize size, QWidget* parent) : QDialog(parent), m_size(size)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    m_content = new QVBoxLayout;
    m_content->setContentsMargins(16, 16, 16, 12);
    outer->addLayout(m_content, 1);
    m_bar = new QVBox(QVBox::Gray, this);
    m_bar->setObjectName(QStringLiteral("bottomBar"));
    m_bar->setFixedHeight(int(size));
    m_barLayout = new QHBoxLayout(m_bar);
    m_barLayout->setContentsMargins(12, 2, 12, 2);
    outer->addWidget(m_bar);
}

void QVBottomBarWindow::resizeToSize(const QSize& contentSize, bool animate)
{
    const QSize target(contentSize.width(), contentSize.height() + int(m_size));
    if (!animate || !isVisible()) {
        resize(target);
        return;
    }
    auto* animation = new QPropertyAnimation(this, "size", this);
    animation->setDuration(180);
    animation->setEndValue(target);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace vorn
