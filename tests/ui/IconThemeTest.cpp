#include <QIcon>
#include <QPixmap>
#include <QStringList>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

// On a desktop without an icon theme ("hicolor" only) every icon name the
// windows ask for is answered by Vorn's own theme, drawn at the toolbars' size.
TEST(IconThemeTest, VornThemeDrawsEveryNameTheWindowsUse)
{
    const QString desktopTheme = QIcon::themeName();
    QIcon::setThemeName("hicolor");
    const QStringList names =
        QStringLiteral(
            "accessories-calculator accessories-text-editor application-exit application-pdf "
            "applications-development applications-graphics applications-internet appointment-soon "
            "contact-new document-edit document-export document-import document-new document-open "
            "document-print document-print-preview document-properties document-revert "
            "document-save document-save-as edit-copy edit-delete edit-redo edit-undo "
            "emblem-default help-about help-contents help-faq list-add list-remove mail-mark-read "
            "mail-send media-playback-start preferences-desktop-locale system-software-update "
            "system-users text-x-generic-template text-xml user-info view-filter "
            "view-financial-account-savings view-list-details x-office-address-book "
            "x-office-document zoom-fit-width zoom-in zoom-out")
            .split(QLatin1Char(' '));
    for (const QString& name : names) {
        const QIcon icon = QIcon::fromTheme(name);
        EXPECT_FALSE(icon.isNull()) << name.toStdString();
        EXPECT_EQ(icon.pixmap(24, 24).deviceIndependentSize(), QSizeF(24, 24)) << name.toStdString();
    }
    QIcon::setThemeName(desktopTheme);
}

} // namespace
} // namespace vorn::test
