#pragma once

#include <QString>

namespace vorn {

// Where Vorn keeps its files. Taken from the XDG locations of the process
// environment; tests point HOME or the XDG variables at a scratch folder.
struct FileLocations
{
    QString filesDirectory;     // the store's folder
    QString cachesDirectory;    // scratch PDF and logo
    QString settingsDirectory;  // the settings file
    QString documentsDirectory; // the user's documents

    static FileLocations fromEnvironment();

    QString storeFile() const { return filesDirectory + QStringLiteral("/Vorn.vndb"); }
    QString lockFile() const { return filesDirectory + QStringLiteral("/Vorn.vndb.lock"); }
    QString settingsFile() const
    {
        return settingsDirectory + QStringLiteral("/com.tandrelo.Orvandel.plist");
    }
    QString scratchPdf() const { return cachesDirectory + QStringLiteral("/Invoice.pdf"); }
    QString logoCache() const { return cachesDirectory + QStringLiteral("/Logo.png"); }
};

inline constexpr const char* applicationDomain = "com.tandrelo.Orvandel";

} // namespace vorn
