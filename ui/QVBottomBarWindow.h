#pragma once

#include <QDialog>

class QHBoxLayout;
class QVBoxLayout;

namespace vorn {

class QVBox;

// A window with a bar along its bottom edge that holds its buttons; the bar
// has a fixed thickness by size (small, regular, big). The content goes into
// contentLayout(), the buttons into barLayout().
class QVBottomBarWindow : public QDialog
{
    Q_OBJECT
public:
    enum BarSize
    {
        Small = 32,
        Regular = 44,
        Big = 60
    };

    explicit QVBottomBarWindow(BarSize size, QWidget* parent = nullptr);

    BarSize barSize() const { return m_size; }
    QVBoxLayout* contentLayout() const { return m_content; }
    QHBoxLayout* barLayout() const { return m_barLayout; }
    QVBox* bar() const { return m_bar; }
    // Resizes the window to a content size (the bar added), animated on request.
    void resizeToSize(const QSize& contentSize, bool animate);

private:
    BarSize m_size;
    QVBoxLayout* m_content = nullptr;
    QVBox* m_bar = nullptr;
    QHBoxLayout* m_barLayout = nullptr;
};

} // namespace vorn
