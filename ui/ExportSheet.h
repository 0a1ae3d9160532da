#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace vorn {

class AppDelegate;
class PdfPages;

// The sheet every output command goes through: the chosen action as its
// title, the freshly made PDF as a thumbnail, and a confirming button that
// becomes available once the PDF is there. The export controller decides
// when it opens and closes; the sheet only reports the user's choice.
class ExportSheet : public QDialog
{
    Q_OBJECT
public:
    explicit ExportSheet(AppDelegate& app, QWidget* parent = nullptr);
    ~ExportSheet() override;

    QPushButton* okButton() const { return m_ok; }
    // Opens the sheet, window-modal, on the given window.
    void present(QWidget* window);

    void reject() override;
    void accept() override;

private:
    void clearPdf();
    void showPdf(const QString& path);
    void updateTexts();

    AppDelegate& m_app;
    PdfPages* m_pages = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_thumbnail = nullptr;
    QLabel* m_details = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    QPushButton* m_ok = nullptr;
    bool m_ending = false;
};

} // namespace vorn
