#pragma once

#include <QCoreApplication>
#include <QString>

namespace vorn {

class Settings;

// The company logo for "%LOGO%": with image data in "prefsLogo" the image is
// written as PNG to logoPath and referenced by its file address; without
// (or when the data is no image) a notice asks for one.
class Logo
{
    Q_DECLARE_TR_FUNCTIONS(Logo)
public:
    static QString element(const Settings& settings, const QString& logoPath);
    static QString notice();
};

} // namespace vorn
