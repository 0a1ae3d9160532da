#include "ui/Translations.h"

#include "ui/UiLog.h"

#include <QEvent>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>
#include <vector>

namespace vorn {

namespace {

std::vector<std::unique_ptr<QTranslator>>& installed()
{
    static std::vector<std::unique_ptr<QTranslator>> translators;
    return translators;
}

int g_language = 0;

} // namespace

QString Translations::code(int language)
{
    static const char* const codes[] = {"en", "de", "fr", "es"};
    return QLatin1String(codes[qBound(0, language, 3)]);
}

bool Translations::install(int language)
{
    for (const auto& t : installed())
        QCoreApplication::removeTranslator(t.get());
    installed().clear();
    g_language = qBound(0, language, 3);
    if (g_language == 0) {
        // Removing the translators told every window to show English again.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        return true;
    }
    const QString lang = code(g_language);
    auto ours = std::make_unique<QTranslator>();
    if (!ours->load(QStringLiteral(":/i18n/vorn_%1.qm").arg(lang))) {
        qCWarning(lcUi).noquote() << "no translation for" << lang;
        return false;
    }
    auto qt = std::make_unique<QTranslator>();
    if (qt->load(QStringLiteral("qtbase_%1").arg(lang), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qt.get());
        installed().push_back(std::move(qt));
    }
    QCoreApplication::installTranslator(ours.get());
    installed().push_back(std::move(ours));
    // Open windows retranslate now, not at the next turn of the event loop,
    // so that what follows the choice already speaks the new language.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    return true;
}

int Translations::installedLanguage()
{
    return g_language;
}

} // namespace vorn
