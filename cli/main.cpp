#include "cli/CliRunner.h"
#include "output/PdfRenderer.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>
#include <cstring>
#include <memory>

int main(int argc, char** argv)
{
    // Only rendering needs the GUI application object (on the offscreen
    // platform, without a display); every other command starts without it.
    std::unique_ptr<QCoreApplication> application;
    if (argc > 1 && (std::strcmp(argv[1], "pdf") == 0 || std::strcmp(argv[1], "einvoice") == 0)) {
        vorn::PdfRenderer::prepareProcess(true);
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("vorn-cli"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("tandrelo.com"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    vorn::CliRunner runner;
    const int code = runner.run(QCoreApplication::arguments().mid(1), out, err);
    out.flush();
    err.flush();
    return code;
}
