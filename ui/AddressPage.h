#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace vorn {

class AppDelegate;
class AddressPopover;
class DocumentFields;

// The client of the current document: the address block, e-mail address,
// client number (with its generate button) and the subject, with the
// address popover behind "Choose Address…".
class AddressPage : public QWidget
{
    Q_OBJECT
public:
    AddressPage(AppDelegate& app, QWidget* parent = nullptr);

    QPlainTextEdit* addressField() const { return m_address; }
    QLineEdit* subjectField() const { return m_subject; }
    QPushButton* chooseButton() const { return m_choose; }
    AddressPopover* popover() const { return m_popover; }
    DocumentFields* fields() const { return m_fields; }

private:
    AppDelegate& m_app;
    DocumentFields* m_fields;
    QPlainTextEdit* m_address;
    QLineEdit* m_subject;
    QPushButton* m_choose;
    AddressPopover* m_popover;
};

} // namespace vorn
