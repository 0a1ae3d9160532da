// The design builder's editors at the size of a long template, and its live
// preview: build/bin/editor_bench
//
// Prints: a keystroke in a 5,000-line template (the colouring engine alone
// and the whole editor with its highlighter), opening that template
// coloured, the line-number ruler painted while scrolling, and the builder
// preview from the end of a typing pause to the PDF shown (warm engine).

#include "app/AppDelegate.h"
#include "bench/BenchSupport.h"
#include "designs/SyntaxColorizer.h"
#include "output/PdfRenderer.h"
#include "store/Clock.h"
#include "store/FileLocations.h"
#include "store/Settings.h"
#include "ui/LineNumberRuler.h"
#include "ui/PreferencesBuilderPane.h"
#include "ui/PreferencesLivePreview.h"
#include "ui/PreferencesWindow.h"
#include "ui/TemplateEditor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace vorn;

namespace {

// Thread CPU time in milliseconds: on a shared, loaded machine the wall
// clock also counts the time other processes held the CPU.
double cpuMs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
}

struct Figures
{
    std::vector<double> ms;
    std::vector<double> cpu;
    static double percentile(std::vector<double> v, double p)
    {
        std::sort(v.begin(), v.end());
        return v[std::min(v.size() - 1, size_t(p * double(v.size())))];
    }
    void print(const char* what, double budget)
    {
        const double median = percentile(ms, 0.5);
        const double p99 = percentile(ms, 0.99);
        std::printf("%-56s median %7.3f ms  p99 %7.3f ms", what, median, p99);
        if (!cpu.empty())
            std::printf("  (CPU: median %.3f, p99 %.3f)", percentile(cpu, 0.5), percentile(cpu, 0.99));
        std::printf("  budget %.0f ms\n", budget);
    }
    // Times one run of work.
    template <typename Work> void time(Work work)
    {
        QElapsedTimer t;
        const double c = cpuMs();
        t.start();
        work();
        ms.push_back(double(t.nsecsElapsed()) / 1e6);
        cpu.push_back(cpuMs() - c);
    }
};

// A template of the given length made of a real design's page template:
// its body repeated, with a few comments and strings across lines.
QString longTemplate(int lines)
{
    QFile file(QStringLiteral(VORN_SOURCE_DIR "/resources/designs/Temp001/invoice.html"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the template is missing");
    const QStringList source = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    QStringList out;
    for (int i = 0; out.size() < lines; ++i) {
        out << source[i % source.size()];
        if (i % 97 == 0)
            out << QStringLiteral("<!-- a note") << QStringLiteral("   spanning lines -->");
    }
    return out.mid(0, lines).join(QLatin1Char('\n'));
}

} // namespace

int main(int argc, char** argv)
{
    PdfRenderer::prepareProcess(true);
    QApplication application(argc, argv);
    QTemporaryDir home;
    bench::useHome(home.path());

    const QString text = longTemplate(5000);
    const SyntaxDefinition html = SyntaxDefinition::load(SyntaxDefinition::htmlPath(), nullptr);

    // The engine alone: a character typed in the middle of a line, then
    // removed, at lines spread over the template.
    {
        SyntaxColorizer engine(html);
        engine.setText(text);
        Figures f;
        for (int i = 0; i < 2000; ++i) {
            const int at = int((qint64(i) * 7919) % (text.size() - 10));
            f.time([&] { engine.textChanged(at, 0, QStringLiteral("x")); });
            engine.textChanged(at, 1, QString());
        }
        f.print("keystroke, 5,000-line template, colouring engine", 2);
    }

    TemplateEditor editor(EditorCommands::PageEditor, html);
    editor.resize(900, 700);
    editor.show();
    {
        Figures f;
        for (int i = 0; i < 5; ++i) {
            editor.setTemplateText(QString());
            f.time([&] { editor.setTemplateText(text); });
        }
        f.print("opening a 5,000-line template, coloured", 100);
    }
    {
        // Typing through the editor: the document change, the engine and
        // the highlighter's formats for the blocks it recoloured.
        Figures f;
        QTextCursor cursor(editor.document());
        for (int i = 0; i < 1000; ++i) {
            const QTextBlock block = editor.document()->findBlockByNumber((i * 37) % 5000);
            cursor.setPosition(block.position() + std::min(3, block.length() - 1));
            f.time([&] { cursor.insertText(QStringLiteral("x")); });
            cursor.deletePreviousChar();
        }
        f.print("keystroke, 5,000-line template, editor and highlighter", 2);
    }
    {
        Figures f;
        // Each step scrolls a few lines, as a wheel or a dragged scroll bar
        // does; the text is drawn first (laying its lines out), then the
        // ruler is timed.
        QImage image(editor.ruler()->size(), QImage::Format_ARGB32_Premultiplied);
        QImage text(editor.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
        QScrollBar* bar = editor.verticalScrollBar();
        for (int i = 0; i < 400; ++i) {
            bar->setValue((i * 3) % bar->maximum());
            editor.viewport()->render(&text);
            f.time([&] { editor.ruler()->render(&image); });
        }
        f.print("ruler repaint while scrolling", 4);
    }

    // The builder preview on a launched application, the engine warmed up.
    Settings settings(FileLocations::fromEnvironment().settingsFile());
    bench::QuietUserInterface ui;
    AppDelegate app(settings, ui, Clock::system(), FileLocations::fromEnvironment());
    app.setLaunchChecksEnabled(false);
    app.awakeFromNib();
    app.applicationDidFinishLaunching();
    PreferencesWindow window(app);
    PreferencesLivePreview& preview = *window.builderPane()->preview();
    Figures f;
    for (int i = 0; i < 15; ++i) {
        QSignalSpy shown(&preview, &PreferencesLivePreview::refreshed);
        preview.refresh();
        if (!shown.wait(60000)) {
            std::printf("the preview did not render\n");
            return 1;
        }
        if (i >= 3)
            f.ms.push_back(double(shown.first().first().toLongLong()));
    }
    f.print("builder preview, typing pause to PDF shown (warm)", 150);
    return 0;
}
