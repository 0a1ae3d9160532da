#pragma once

#include <QFrame>
#include <QPointer>

namespace vorn {

// A small window that opens below the button it belongs to and closes when
// the user clicks elsewhere or presses Escape. The core decides whether it
// is shown; dismissed() tells it when the user closed it.
class Popover : public QFrame
{
    Q_OBJECT
public:
    explicit Popover(QWidget* parent = nullptr);

    // The button it opens below when shown without one.
    void setAnchor(QWidget* anchor) { m_anchor = anchor; }
    void showBelow(QWidget* anchor = nullptr);
    // Hides without reporting a dismissal (the core closed it).
    void close();

Q_SIGNALS:
    void dismissed();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    QPointer<QWidget> m_anchor;
    bool m_closing = false;
};

} // namespace vorn
