#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace vorn {

class AppDelegate;
class DocumentFields;

// The document's particulars: number (with the next number), title, dates
// (the due date also as days from today), status with the payment, the
// dispatch, currency, the notes, conditions and footer texts, and what an
// e-invoice says about the buyer and the order.
class InfoPage : public QWidget
{
    Q_OBJECT
public:
    InfoPage(AppDelegate& app, QWidget* parent = nullptr);

    DocumentFields* fields() const { return m_fields; }
    QComboBox* statusField() const { return m_status; }
    QSpinBox* dueDaysField() const { return m_dueDays; }

private:
    void showDueDays();
    void showRelevance();

    AppDelegate& m_app;
    DocumentFields* m_fields;
    QComboBox* m_status;
    QSpinBox* m_dueDays;
    QLabel* m_paidLabel;
};

} // namespace vorn
