#pragma once

#include <QMainWindow>

class QAction;
class QLabel;
class QListWidget;
class QPdfView;
class QProgressBar;
class QStackedWidget;

namespace vorn {

class AppDelegate;
class PdfPages;

// The preview window: the current document as it will print, its pages as
// thumbnails beside it, and the output commands that act on what is shown.
// It follows the preview controller: shown and closed on its request,
// refilled whenever a new preview PDF is ready.
class PreviewWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit PreviewWindow(AppDelegate& app, QWidget* parent = nullptr);
    ~PreviewWindow() override;

    QPdfView* pdfView() const { return m_view; }
    QListWidget* thumbnailView() const { return m_thumbnails; }
    int pageCount() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createToolBar();
    void setWindowShown(bool visible);
    void showPdf(const QString& path);
    void setGenerating(bool generating);
    void fillThumbnails();
    void drawThumbnails(quint64 generation, int first);
    void showPlaceholder(const QString& text);
    void updateTitle();

    AppDelegate& m_app;
    PdfPages* m_pages = nullptr;
    QStackedWidget* m_stack = nullptr;
    QLabel* m_placeholder = nullptr;
    QPdfView* m_view = nullptr;
    QListWidget* m_thumbnails = nullptr;
    QProgressBar* m_indicator = nullptr;
    QLabel* m_pageLabel = nullptr;
    bool m_closingFromController = false;
    quint64 m_thumbnailGeneration = 0;
};

} // namespace vorn
