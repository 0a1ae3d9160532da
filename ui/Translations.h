#pragma once

#include <QCoreApplication>
#include <QString>

namespace vorn {

// The language of the windows (which one is the setup assistant's to say:
// AssiController::startupLanguage). Translations are
// compiled into the program (":/i18n/vorn_<code>.qm"); Qt's own texts
// (standard buttons) come from the system's Qt translations.
class Translations
{
    Q_DECLARE_TR_FUNCTIONS(Translations)
public:
    // 0 English, 1 German, 2 French, 3 Spanish (as the languageDefaults setting).
    static QString code(int language);
    // Installs the translators of a language in place of the current ones;
    // open windows that follow language changes retranslate themselves.
    static bool install(int language);
    static int installedLanguage();
};

} // namespace vorn
