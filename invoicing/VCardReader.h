#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

namespace vorn {

// One postal address of a contact (the seven parts of ADR).
struct ContactAddress
{
    QString poBox;
    QString extended;
    QString street;
    QString city;
    QString region;
    QString postalCode;
    QString country;
    QStringList types; // lower case: "home", "work" ...
    // Marked preferred; rank is PREF's value (lower is stronger), 0 for a
    // plain "pref" type.
    bool preferred = false;
    int preferenceRank = 0;
};

struct ContactEmail
{
    QString address;
    QStringList types; // lower case; labels of grouped properties are added
    bool preferred = false;
};

// A contact as read from a vCard.
struct Contact
{
    QString firstName;
    QString lastName;
    QString organization;
    QString formattedName;
    QList<ContactAddress> addresses;
    QList<ContactEmail> emails;
    QString sourceFile;
    int indexInFile = 0;

    // The address marked preferred (the strongest), else the first; null
    // when the contact has none.
    const ContactAddress* primaryAddress() const;
    QString displayName() const;
};

struct VCardReadResult
{
    QList<Contact> contacts;
    // One line for each card or file that could not be read, or was read
    // only in part.
    QStringList notes;
};

// Reads contacts from vCard 2.1, 3.0 and 4.0 text: folded lines, escaped
// characters, grouped properties, TYPE parameters in every version's
// spelling, PREF, quoted-printable values and character sets (2.1), UTF-8
// (and UTF-16 with a byte-order mark). Damaged input yields what can be read
// and a note for the rest; limits keep huge input from exhausting memory.
class VCardReader
{
    Q_DECLARE_TR_FUNCTIONS(VCardReader)
public:
    static constexpr qsizetype maximumFileSize = 32 * 1024 * 1024;
    static constexpr qsizetype maximumLineLength = 1024 * 1024;
    static constexpr int maximumPropertiesPerCard = 10000;
    static constexpr int maximumFiles = 100000;
    static constexpr int maximumFolderDepth = 4;

    // source names the input in notes.
    static VCardReadResult parse(const QByteArray& data, const QString& source);
    static VCardReadResult readFile(const QString& path);
    // Files ending in ".vcf" or ".vcard" in the folders (and their
    // subfolders, a few levels deep); a path may also name one file.
    static VCardReadResult readPaths(const QStringList& paths);
};

} // namespace vorn
