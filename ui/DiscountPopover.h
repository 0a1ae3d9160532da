#pragma once

#include "ui/Popover.h"

class QComboBox;
class QLineEdit;

namespace vorn {

class AppDelegate;
class DocumentFields;

// The discount popover: title, subtitle, a fixed amount or a percentage of
// the total; its fields edit the current document directly.
class DiscountPopover : public Popover
{
    Q_OBJECT
public:
    explicit DiscountPopover(AppDelegate& app, QWidget* parent = nullptr);

    QComboBox* kindField() const { return m_kind; }
    QLineEdit* percentField() const { return m_percent; }
    QLineEdit* amountField() const { return m_amount; }
    void accept();
    void sync();

private:
    void showKind();

    AppDelegate& m_app;
    DocumentFields* m_fields;
    QLineEdit* m_title;
    QComboBox* m_kind;
    QLineEdit* m_percent;
    QLineEdit* m_amount;
};

} // namespace vorn
