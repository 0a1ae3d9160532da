#pragma once

#include "store/UserInterface.h"

#include <QString>

#include <cstdio>

namespace vorn::bench {

// Answers nothing and shows nothing: benchmarks only load, compute and save.
class QuietUserInterface : public UserInterface
{
public:
    int runAlert(const Alert&) override { return 0; }
    std::optional<QString> runOpenPanel(const FilePanel&) override { return std::nullopt; }
    std::optional<QString> runSavePanel(const FilePanel&) override { return std::nullopt; }
    bool presentError(const Error& error) override
    {
        std::fprintf(stderr, "error: %s\n", qPrintable(error.fullText()));
        return false;
    }
    void beep() override {}
    void centerMainWindow() override {}
    void selectToolbarItem(const QString&) override {}
    void focus(const QString&) override {}
    void showPreferencesWindow() override {}
    bool openUrl(const QUrl&) override { return false; }
    bool openApplication(const QString&) override { return false; }
};

// Points HOME and the XDG folders at home, so a benchmark never touches the
// user's own data.
void useHome(const QString& home);

// The processor time of the whole process (every thread, user and system)
// in milliseconds: on a busy machine it shows the work itself.
double processorMs();

} // namespace vorn::bench
