#pragma once

#include <QAbstractButton>
#include <QUrl>

#include <functional>

namespace vorn {

// A button drawn as link text, without a bezel, with the hand cursor over
// it. Clicking it opens its URL through the opener (the desktop's browser
// unless one is set).
class QVLinkButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit QVLinkButton(const QString& text, const QUrl& url = {}, QWidget* parent = nullptr);

    const QUrl& url() const { return m_url; }
    void setUrl(const QUrl& url) { m_url = url; }
    void setOpener(std::function<void(const QUrl&)> opener) { m_opener = std::move(opener); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QUrl m_url;
    std::function<void(const QUrl&)> m_opener;
};

} // namespace vorn
