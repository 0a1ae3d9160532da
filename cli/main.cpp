#include "cli/CliRunner.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
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
