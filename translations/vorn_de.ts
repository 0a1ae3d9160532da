<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AtomicFile</name>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>Die Datei „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>“%1” could not be written because a file of that name already exists.</source>
        <translation>„%1“ konnte nicht geschrieben werden, da bereits eine Datei mit diesem Namen existiert.</translation>
    </message>
    <message>
        <source>Choose another name, or move the existing file aside, and try again.</source>
        <translation>Wählen Sie einen anderen Namen oder verschieben Sie die vorhandene Datei und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>CiiSummary</name>
    <message>
        <source>The amount %1 of the e-invoice is not a number.</source>
        <translation>Der Betrag %1 der E-Rechnung ist keine Zahl.</translation>
    </message>
    <message>
        <source>The e-invoice could not be read: %1</source>
        <translation>Die E-Rechnung konnte nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>The sample items of the design preview are missing.</source>
        <translation>Die Beispielposten der Designvorschau fehlen.</translation>
    </message>
    <message>
        <source>The sample items of the design preview are damaged.</source>
        <translation>Die Beispielposten der Designvorschau sind beschädigt.</translation>
    </message>
    <message>
        <source>Federal Tax</source>
        <translation>Bundessteuer</translation>
    </message>
    <message>
        <source>State Tax</source>
        <translation>Landessteuer</translation>
    </message>
    <message>
        <source>Third Tax</source>
        <translation>Dritte Steuer</translation>
    </message>
</context>
<context>
    <name>EInvoiceData</name>
    <message>
        <source>No tax charged</source>
        <translation>Keine Steuer berechnet</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Discount of %1 % on the total</source>
        <translation>Rabatt von %1 % auf den Gesamtbetrag</translation>
    </message>
    <message>
        <source>Discount on the total</source>
        <translation>Rabatt auf den Gesamtbetrag</translation>
    </message>
    <message>
        <source>The amounts are computed without rounding and printed to the cent; the VAT computed per rate from the rounded line amounts differs from the printed total by %1 %2, given as the rounding amount.</source>
        <translation>Die Beträge werden ohne Rundung berechnet und auf den Cent genau ausgegeben; die je Steuersatz aus den gerundeten Postenbeträgen berechnete Umsatzsteuer weicht um %1 %2 von der ausgegebenen Summe ab, die als Rundungsbetrag angegeben ist.</translation>
    </message>
</context>
<context>
    <name>FacturX</name>
    <message>
        <source>The colour profile of PDF/A files is missing.</source>
        <translation>Das Farbprofil für PDF/A-Dateien fehlt.</translation>
    </message>
    <message>
        <source>An encrypted PDF cannot become a PDF/A file.</source>
        <translation>Ein verschlüsseltes PDF kann keine PDF/A-Datei werden.</translation>
    </message>
    <message>
        <source>The PDF could not be made into a Factur-X file.</source>
        <translation>Aus dem PDF konnte keine Factur-X-Datei erstellt werden.</translation>
    </message>
</context>
<context>
    <name>HttpRequest</name>
    <message>
        <source>The answer of %1 is too large.</source>
        <translation>Die Antwort von %1 ist zu groß.</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 hat nicht rechtzeitig geantwortet.</translation>
    </message>
</context>
<context>
    <name>InstanceLock</name>
    <message>
        <source>The Vorn database is in use by another Vorn program.</source>
        <translation>Die Vorn-Datenbank wird von einem anderen Vorn-Programm benutzt.</translation>
    </message>
    <message>
        <source>Quit the other Vorn program (the application or a running vorn-cli) and try again.</source>
        <translation>Beenden Sie das andere Vorn-Programm (die Anwendung oder ein laufendes vorn-cli) und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The Vorn database could not be locked for use.</source>
        <translation>Die Vorn-Datenbank konnte nicht zur Benutzung gesperrt werden.</translation>
    </message>
    <message>
        <source>The lock file “%1” cannot be created.</source>
        <translation>Die Sperrdatei „%1“ kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>InterchangeFile</name>
    <message>
        <source>The file “%1” could not be opened.</source>
        <translation>Die Datei „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>The file “%1” is too large to be a Vorn file.</source>
        <translation>Die Datei „%1“ ist zu groß für eine Vorn-Datei.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file is not a Vorn design.</source>
        <translation>Die Datei ist kein Vorn-Design.</translation>
    </message>
    <message>
        <source>The file is not a Vorn document.</source>
        <translation>Die Datei ist kein Vorn-Dokument.</translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>The file is damaged or not a Vorn file.</source>
        <translation>Die Datei ist beschädigt oder keine Vorn-Datei.</translation>
    </message>
    <message>
        <source>The file holds an object of an unknown class, “%1”.</source>
        <translation>Die Datei enthält ein Objekt einer unbekannten Klasse, „%1“.</translation>
    </message>
    <message>
        <source>The file is an archive of an unknown kind.</source>
        <translation>Die Datei ist ein Archiv unbekannter Art.</translation>
    </message>
    <message>
        <source>The file unfolds into too many values to be a Vorn file.</source>
        <translation>Die Datei entfaltet sich in zu viele Werte, um eine Vorn-Datei zu sein.</translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>&lt;small&gt;&lt;small&gt;Please provide a &apos;Logo Image&apos; in the Preferences&lt;br /&gt;or remove the &apos;LOGO&apos; substitute from the design/template.&lt;/small&gt;&lt;/small&gt;</source>
        <translation>&lt;small&gt;&lt;small&gt;Bitte wählen Sie in den Einstellungen ein „Logo-Bild“&lt;br /&gt;oder entfernen Sie den Platzhalter „LOGO“ aus dem Design/der Vorlage.&lt;/small&gt;&lt;/small&gt;</translation>
    </message>
</context>
<context>
    <name>PdfImageView</name>
    <message>
        <source>The PDF “%1” could not be opened.</source>
        <translation>Das PDF „%1“ konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>PdfRenderer</name>
    <message>
        <source>The PDF could not be made.</source>
        <translation>Das PDF konnte nicht erstellt werden.</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>7 days</source>
        <translation>7 Tage</translation>
    </message>
    <message>
        <source>14 days</source>
        <translation>14 Tage</translation>
    </message>
    <message>
        <source>21 days</source>
        <translation>21 Tage</translation>
    </message>
    <message>
        <source>28 days</source>
        <translation>28 Tage</translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is too large to be a Vorn file.</source>
        <translation>Die Datei ist zu groß für eine Vorn-Datei.</translation>
    </message>
    <message>
        <source>The file is damaged or not a property list.</source>
        <translation>Die Datei ist beschädigt oder keine Property-Liste.</translation>
    </message>
</context>
<context>
    <name>QtUserInterface</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 Files (%2)</source>
        <translation>%1-Dateien (%2)</translation>
    </message>
    <message>
        <source>No printer is set up. Add a printer in the system settings, or export the document as a PDF file and print that.</source>
        <translation>Es ist kein Drucker eingerichtet. Fügen Sie in den Systemeinstellungen einen Drucker hinzu oder exportieren Sie das Dokument als PDF-Datei und drucken Sie diese.</translation>
    </message>
    <message>
        <source>The printer “%1” did not accept the job.</source>
        <translation>Der Drucker „%1“ hat den Auftrag nicht angenommen.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Das Dokument konnte nicht gedruckt werden.</translation>
    </message>
</context>
<context>
    <name>SentLock</name>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>Die ausgewählte Rechnung ist bereits als versendet markiert. Wenn Sie wirklich Änderungen vornehmen müssen, setzen Sie ihren Status bitte zuerst auf „Erstellt“ zurück. Dann können Sie die geänderte Rechnung auch erneut versenden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Serialization</name>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a yes/no value</source>
        <translation>ein Ja/Nein-Wert</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>ein Datum</translation>
    </message>
    <message>
        <source>data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>a record has no class name</source>
        <translation>ein Datensatz hat keinen Klassennamen</translation>
    </message>
    <message>
        <source>it names an unknown kind of record, “%1”</source>
        <translation>sie nennt eine unbekannte Art von Datensatz, „%1“</translation>
    </message>
    <message>
        <source>a record of kind “%1” stands where a “%2” belongs</source>
        <translation>ein Datensatz der Art „%1“ steht, wo ein „%2“ hingehört</translation>
    </message>
    <message>
        <source>its records are nested too deeply</source>
        <translation>ihre Datensätze sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>it holds too many records</source>
        <translation>sie enthält zu viele Datensätze</translation>
    </message>
    <message>
        <source>a list of records</source>
        <translation>eine Liste von Datensätzen</translation>
    </message>
    <message>
        <source>a record</source>
        <translation>ein Datensatz</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Die Datei ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>the value of “%1” (%2) is not %3</source>
        <translation>der Wert von „%1“ (%2) ist nicht %3</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>Die Vorn-Datenbank „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Vorn database.</source>
        <translation>Die Datei „%1“ ist keine Vorn-Datenbank.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged and cannot be opened.</source>
        <translation>Die Vorn-Datenbank „%1“ ist beschädigt und kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file is shorter than its contents require; it may have been cut off while copying.</source>
        <translation>Die Datei ist kürzer, als ihr Inhalt verlangt; sie wurde beim Kopieren vielleicht abgeschnitten.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>Die Vorn-Datenbank „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” cannot be written: you don&apos;t have permission.</source>
        <translation>Die Vorn-Datenbank „%1“ kann nicht geschrieben werden: Ihnen fehlt die Berechtigung.</translation>
    </message>
    <message>
        <source>The Vorn database is in use by another program.</source>
        <translation>Die Vorn-Datenbank wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” was made by a newer version of Vorn.</source>
        <translation>Die Vorn-Datenbank „%1“ wurde von einer neueren Vorn-Version erstellt.</translation>
    </message>
    <message>
        <source>This version of Vorn cannot read it. Use the newer version, or restore a backup made with this version.</source>
        <translation>Diese Vorn-Version kann sie nicht lesen. Verwenden Sie die neuere Version oder stellen Sie eine Sicherung wieder her, die mit dieser Version erstellt wurde.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be created.</source>
        <translation>Die Vorn-Datenbank „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The Vorn database could not be saved.</source>
        <translation>Die Vorn-Datenbank konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>The disk is full: the Vorn database could not be saved.</source>
        <translation>Die Festplatte ist voll: Die Vorn-Datenbank konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>Your changes are kept while Vorn runs and saved with the next change once there is space again; what was saved before is not lost. (%1)</source>
        <translation>Ihre Änderungen bleiben erhalten, solange Vorn läuft, und werden mit der nächsten Änderung gesichert, sobald wieder Platz ist; was zuvor gesichert wurde, geht nicht verloren. (%1)</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be brought up to date.</source>
        <translation>Die Vorn-Datenbank „%1“ konnte nicht auf den neuesten Stand gebracht werden.</translation>
    </message>
</context>
<context>
    <name>StoreSnapshot</name>
    <message>
        <source>The disk is full.</source>
        <translation>Die Festplatte ist voll.</translation>
    </message>
    <message>
        <source>The copy “%1” could not be written.</source>
        <translation>Die Kopie „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be written to (%2).</source>
        <translation>In den Ordner „%1“ kann nicht geschrieben werden (%2).</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>Die Vorn-Datenbank „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The copy could not be flushed to disk.</source>
        <translation>Die Kopie konnte nicht auf die Festplatte geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no open Vorn database to copy.</source>
        <translation>Es ist keine Vorn-Datenbank zum Kopieren geöffnet.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>Die Vorn-Datenbank „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged.</source>
        <translation>Die Vorn-Datenbank „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>SQLite&apos;s integrity check found: %1</source>
        <translation>Die Integritätsprüfung von SQLite ergab: %1</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in place.</source>
        <translation>Die Datei „%1“ konnte nicht an ihren Platz gebracht werden.</translation>
    </message>
</context>
<context>
    <name>SyntaxDefinition</name>
    <message>
        <source>The syntax definition “%1” is missing.</source>
        <translation>Die Syntaxdefinition „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The syntax definition “%1” is damaged.</source>
        <translation>Die Syntaxdefinition „%1“ ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>VCardReader</name>
    <message>
        <source>the card beginning on line %1 was cut off by the size limit and was not read.</source>
        <translation>die Karte ab Zeile %1 wurde von der Größenbeschränkung abgeschnitten und nicht gelesen.</translation>
    </message>
    <message>
        <source>the card beginning on line %1 has no end; it was read as far as it goes.</source>
        <translation>die Karte ab Zeile %1 hat kein Ende; sie wurde so weit gelesen, wie sie reicht.</translation>
    </message>
    <message>
        <source>text outside of any card was ignored.</source>
        <translation>Text außerhalb einer Karte wurde ignoriert.</translation>
    </message>
    <message>
        <source>no contact cards found.</source>
        <translation>keine Kontaktkarten gefunden.</translation>
    </message>
    <message>
        <source>card %1: line %2 is longer than the reader accepts and was skipped.</source>
        <translation>Karte %1: Zeile %2 ist länger, als der Leser annimmt, und wurde übersprungen.</translation>
    </message>
    <message>
        <source>card %1: line %2 is not a property and was skipped.</source>
        <translation>Karte %1: Zeile %2 ist keine Eigenschaft und wurde übersprungen.</translation>
    </message>
    <message>
        <source>card %1 has more than %2 properties; the rest were skipped.</source>
        <translation>Karte %1 hat mehr als %2 Eigenschaften; der Rest wurde übersprungen.</translation>
    </message>
    <message>
        <source>card %1 (line %2) uses the unknown character set “%3” and was skipped.</source>
        <translation>Karte %1 (Zeile %2) verwendet den unbekannten Zeichensatz „%3“ und wurde übersprungen.</translation>
    </message>
    <message>
        <source>larger than %1 MB; only the contacts in the first %1 MB were read.</source>
        <translation>größer als %1 MB; nur die Kontakte der ersten %1 MB wurden gelesen.</translation>
    </message>
    <message>
        <source>cannot be read (%1).</source>
        <translation>kann nicht gelesen werden (%1).</translation>
    </message>
    <message>
        <source>does not exist.</source>
        <translation>existiert nicht.</translation>
    </message>
    <message>
        <source>More than %1 contact files were found; only the first %1 were read.</source>
        <translation>Es wurden mehr als %1 Kontaktdateien gefunden; nur die ersten %1 wurden gelesen.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation>Rechnungen, Angebote und Zahlungserinnerungen.</translation>
    </message>
    <message>
        <source>Files to open (Vorn explains how to import them).</source>
        <translation>Zu öffnende Dateien (Vorn erklärt, wie man sie importiert).</translation>
    </message>
    <message>
        <source>Vorn is already running.</source>
        <translation>Vorn läuft bereits.</translation>
    </message>
</context>
<context>
    <name>vorn::AboutDialog</name>
    <message>
        <source>About Vorn</source>
        <translation>Über Vorn</translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation>Rechnungen, Angebote und Zahlungserinnerungen.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Acknowledgements</source>
        <translation>Danksagungen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>vorn::AddressController</name>
    <message>
        <source>You need to provide an address pattern in the Preferences.</source>
        <translation>Bitte geben Sie in den Einstellungen ein Adressmuster an.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
</context>
<context>
    <name>vorn::AddressPage</name>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>&amp;Choose Address…</source>
        <translation>Adresse &amp;wählen …</translation>
    </message>
    <message>
        <source>Client &amp;address:</source>
        <translation>Kunden&amp;adresse:</translation>
    </message>
    <message>
        <source>Client address</source>
        <translation>Kundenadresse</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>Er&amp;zeugen</translation>
    </message>
    <message>
        <source>Generate client number</source>
        <translation>Kundennummer erzeugen</translation>
    </message>
    <message>
        <source>Client &amp;number:</source>
        <translation>Kunden&amp;nummer:</translation>
    </message>
    <message>
        <source>Client number</source>
        <translation>Kundennummer</translation>
    </message>
    <message>
        <source>&amp;Subject:</source>
        <translation>&amp;Betreff:</translation>
    </message>
</context>
<context>
    <name>vorn::AddressPopover</name>
    <message>
        <source>Client Address</source>
        <translation>Kundenadresse</translation>
    </message>
    <message>
        <source>Address source</source>
        <translation>Adressquelle</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Kontakte durchsuchen</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Open Contacts Application</source>
        <translation>Kontakte-Programm öffnen</translation>
    </message>
    <message>
        <source>Recent Addresses</source>
        <translation>Zuletzt verwendete Adressen</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>Er&amp;zeugen</translation>
    </message>
    <message>
        <source>Generate client number</source>
        <translation>Kundennummer erzeugen</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Client &amp;number:</source>
        <translation>Kunden&amp;nummer:</translation>
    </message>
    <message>
        <source>Client number</source>
        <translation>Kundennummer</translation>
    </message>
    <message>
        <source>&amp;Use Address</source>
        <translation>Adresse &amp;übernehmen</translation>
    </message>
    <message>
        <source>No contacts found. Vorn reads vCard files from the contacts folder set in the preferences.</source>
        <translation>Keine Kontakte gefunden. Vorn liest vCard-Dateien aus dem Kontakte-Ordner, der in den Einstellungen festgelegt ist.</translation>
    </message>
</context>
<context>
    <name>vorn::AppDelegate</name>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Statt eines Ordners für die Programmdaten wurde eine Datei gefunden (%1).</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to create it.</source>
        <translation>Ihnen fehlt die Berechtigung, ihn anzulegen.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Der Datenspeicher konnte nicht eingerichtet werden</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Beim Aufbau der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>The default settings “%1” are missing.</source>
        <translation>Die Standardeinstellungen „%1“ fehlen.</translation>
    </message>
    <message>
        <source>The default settings “%1” are damaged.</source>
        <translation>Die Standardeinstellungen „%1“ sind beschädigt.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Die Änderungen konnten beim Beenden nicht gesichert werden. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Wenn Sie jetzt beenden, gehen alle Änderungen seit dem letzten erfolgreichen Sichern verloren</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Vorn, Vorn Documents, and the Vorn Database</source>
        <translation>Vorn, Vorn-Dokumente und die Vorn-Datenbank</translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Vorn database.</source>
        <translation>Um doppelte Einträge und Pannen zu vermeiden und die Datenbank intakt zu halten, verwenden Sie bitte das Menü „Datei“, um Dokumente zu öffnen und die Vorn-Datenbank wiederherzustellen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>vorn::AssiController</name>
    <message>
        <source>Warning!</source>
        <translation>Achtung!</translation>
    </message>
    <message>
        <source>It seems that you&apos;ve already setup Vorn and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
        <translation>Offenbar haben Sie Vorn bereits eingerichtet und den Einrichtungsassistenten mindestens einmal ausgeführt. Wenn Sie das erneut tun, werden alle Ihre Anpassungen gelöscht und durch die Standardwerte ersetzt. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Continue…</source>
        <translation>Fortfahren …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>30 Second Introduction</source>
        <translation>30-Sekunden-Einführung</translation>
    </message>
    <message>
        <source>Do you want to see the 30 second introduction video before creating your first invoice?</source>
        <translation>Möchten Sie das 30-sekündige Einführungsvideo sehen, bevor Sie Ihre erste Rechnung schreiben?</translation>
    </message>
    <message>
        <source>Yes, please!</source>
        <translation>Ja, bitte!</translation>
    </message>
    <message>
        <source>No, I prefer to suffer in silence.</source>
        <translation>Nein, ich leide lieber still.</translation>
    </message>
</context>
<context>
    <name>vorn::AssistantSheet</name>
    <message>
        <source>Vorn Setup Assistant</source>
        <translation>Vorn-Einrichtungsassistent</translation>
    </message>
    <message>
        <source>Welcome to Vorn</source>
        <translation>Willkommen bei Vorn</translation>
    </message>
    <message>
        <source>Your Business</source>
        <translation>Ihr Unternehmen</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Auf dem Laufenden bleiben</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Choose your language. Vorn writes its default texts in it: the words printed on your invoices and quotes, the payment terms, the tax names and the number patterns. Its windows use it too.

Running the assistant again replaces your own texts with these defaults.</source>
        <translation>Wählen Sie Ihre Sprache. Vorn schreibt seine Standardtexte darin: die Wörter auf Ihren Rechnungen und Angeboten, die Zahlungsbedingungen, die Steuerbezeichnungen und die Nummernmuster. Auch die Fenster verwenden sie.

Wird der Assistent erneut ausgeführt, ersetzt er Ihre eigenen Texte durch diese Standardtexte.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Who writes the invoices? Your company name and your contact details go into your documents; you can change them later in the preferences.</source>
        <translation>Wer schreibt die Rechnungen? Ihr Firmenname und Ihre Kontaktdaten erscheinen in Ihren Dokumenten; Sie können sie später in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>&amp;Company name:</source>
        <translation>&amp;Firmenname:</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Firmenname</translation>
    </message>
    <message>
        <source>C&amp;ontact:</source>
        <translation>K&amp;ontakt:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Check for &amp;updates once a day when Vorn starts</source>
        <translation>Beim Start einmal täglich nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>Check for updates once a day when Vorn starts</source>
        <translation>Beim Start einmal täglich nach Updates suchen</translation>
    </message>
    <message>
        <source>Subscribe to the Vorn newsletter to hear about new versions and tips. We write rarely, and you can leave at any time. This page is optional.</source>
        <translation>Abonnieren Sie den Vorn-Newsletter, um von neuen Versionen und Tipps zu erfahren. Wir schreiben selten, und Sie können sich jederzeit abmelden. Diese Seite ist freiwillig.</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@beispiel.de</translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation>&amp;Abonnieren</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Abonnieren</translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation>Wird abonniert</translation>
    </message>
    <message>
        <source>Vorn is ready. Create your first invoice with the New Invoice button.

You find this assistant again in the Help menu.</source>
        <translation>Vorn ist bereit. Schreiben Sie Ihre erste Rechnung mit der Schaltfläche „Neue Rechnung“.

Diesen Assistenten finden Sie jederzeit im Menü „Hilfe“.</translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation>Vorn &amp;beenden</translation>
    </message>
    <message>
        <source>Quit Vorn</source>
        <translation>Vorn beenden</translation>
    </message>
    <message>
        <source>&amp;Start Using Vorn</source>
        <translation>&amp;Mit Vorn loslegen</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Start Using Vorn</source>
        <translation>Mit Vorn loslegen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>vorn::BackupController</name>
    <message>
        <source>It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or restore it from an internal backup. You should only proceed if you&apos;re sure that your database really is not intact, since this action will replace any possible data. Should Vorn not be able to repair or restore your database, please restore it from your own (Time Machine) backups. Do you want to proceed?</source>
        <translation>Ihre Vorn-Datenbank scheint beschädigt oder zerstört zu sein. Vorn kann versuchen, sie zu reparieren oder aus einer internen Sicherung wiederherzustellen. Fahren Sie nur fort, wenn Sie sicher sind, dass Ihre Datenbank wirklich nicht intakt ist, denn dabei werden möglicherweise vorhandene Daten ersetzt. Sollte Vorn Ihre Datenbank nicht reparieren oder wiederherstellen können, stellen Sie sie bitte aus Ihren eigenen (Time Machine-)Sicherungen wieder her. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>There is no open Vorn database to back up.</source>
        <translation>Es ist keine Vorn-Datenbank zum Sichern geöffnet.</translation>
    </message>
    <message>
        <source>A backup cannot replace the Vorn database itself.</source>
        <translation>Eine Sicherung kann nicht die Vorn-Datenbank selbst ersetzen.</translation>
    </message>
    <message>
        <source>Please choose another name or folder for the backup.</source>
        <translation>Bitte wählen Sie einen anderen Namen oder Ordner für die Sicherung.</translation>
    </message>
    <message>
        <source>Backup Vorn Database</source>
        <translation>Vorn-Datenbank sichern</translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation>Vorn-Datenbank</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Achtung!</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Vorn database from your own (Time Machine) backups.</source>
        <translation>Es ist keine gültige Sicherungsdatei vorhanden. Bitte stellen Sie Ihre Vorn-Datenbank aus Ihren eigenen (Time Machine-)Sicherungen wieder her.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You are about to restore your complete Vorn database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation>Sie sind dabei, Ihre gesamte Vorn-Datenbank aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Daten unwiderruflich ersetzt. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Wiederherstellen …</translation>
    </message>
    <message>
        <source>Restore Vorn Database</source>
        <translation>Vorn-Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>Nothing was changed: your Vorn database is as it was.</source>
        <translation>Nichts wurde geändert: Ihre Vorn-Datenbank ist unverändert.</translation>
    </message>
    <message>
        <source>There is no place to restore the Vorn database to.</source>
        <translation>Es gibt keinen Ort, an dem die Vorn-Datenbank wiederhergestellt werden kann.</translation>
    </message>
    <message>
        <source>The file “%1” is the Vorn database itself.</source>
        <translation>Die Datei „%1“ ist die Vorn-Datenbank selbst.</translation>
    </message>
    <message>
        <source>The file “%1” could not be found.</source>
        <translation>Die Datei „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The file “%1” disappeared while it was being read.</source>
        <translation>Die Datei „%1“ ist verschwunden, während sie gelesen wurde.</translation>
    </message>
</context>
<context>
    <name>vorn::DataController</name>
    <message>
        <source>New Invoice</source>
        <translation>Neue Rechnung</translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation>Neues Angebot</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation>Leider nicht!</translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation>Eine Rechnung kann nicht in ein Angebot umgewandelt werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation>In Rechnung umwandeln</translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the counter for your invoice numbering and you can&apos;t undo this action.</source>
        <translation>Möchten Sie das ausgewählte Angebot wirklich in eine Rechnung umwandeln? Dabei ändern sich auch der Titel und der Zähler Ihrer Rechnungsnummern, und Sie können diesen Schritt nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation>Die ausgewählte Rechnung ist bereits als versendet markiert. Wenn Sie sie wirklich löschen müssen, setzen Sie ihren Status bitte zuerst auf „Erstellt“ zurück.</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>Das Löschen von Rechnungen ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie die ausgewählte Rechnung wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Angebot löschen</translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation>Das Löschen von Angeboten ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie das ausgewählte Angebot wirklich löschen?</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Versandt</translation>
    </message>
</context>
<context>
    <name>vorn::DesignBuilder</name>
    <message>
        <source>Duplicate Design</source>
        <translation>Design duplizieren</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>Edit Design</source>
        <translation>Design bearbeiten</translation>
    </message>
    <message>
        <source>Choose Logo</source>
        <translation>Logo wählen</translation>
    </message>
    <message>
        <source>The logo was not changed.</source>
        <translation>Das Logo wurde nicht geändert.</translation>
    </message>
    <message>
        <source>“%1” is too large for a logo.</source>
        <translation>„%1“ ist zu groß für ein Logo.</translation>
    </message>
    <message>
        <source>“%1” could not be read.</source>
        <translation>„%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” is not an image.</source>
        <translation>„%1“ ist kein Bild.</translation>
    </message>
</context>
<context>
    <name>vorn::DesignController</name>
    <message>
        <source>The built-in design “%1” is missing.</source>
        <translation>Das eingebaute Design „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The built-in design “%1” is damaged.</source>
        <translation>Das eingebaute Design „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The texts of a new design are missing.</source>
        <translation>Die Texte eines neuen Designs fehlen.</translation>
    </message>
    <message>
        <source>New Design</source>
        <translation>Neues Design</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>You can&apos;t delete the default design.</source>
        <translation>Das Standarddesign kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation>Design löschen</translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation>Das Löschen von Designs ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie das ausgewählte Design wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <source>Import Vorn Design</source>
        <translation>Vorn-Design importieren</translation>
    </message>
    <message>
        <source>Import Design</source>
        <translation>Design importieren</translation>
    </message>
    <message>
        <source>Export Vorn Design</source>
        <translation>Vorn-Design exportieren</translation>
    </message>
</context>
<context>
    <name>vorn::DiscountController</name>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
</context>
<context>
    <name>vorn::DiscountPopover</name>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>Show s&amp;ubtitle</source>
        <translation>Untertitel an&amp;zeigen</translation>
    </message>
    <message>
        <source>Fixed amount</source>
        <translation>Fester Betrag</translation>
    </message>
    <message>
        <source>Percentage of the total</source>
        <translation>Prozentsatz vom Gesamtbetrag</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Untertitel:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Prozent:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Betrag:</translation>
    </message>
    <message>
        <source>&amp;No Discount</source>
        <translation>&amp;Kein Rabatt</translation>
    </message>
    <message>
        <source>&amp;Give Discount</source>
        <translation>Rabatt &amp;gewähren</translation>
    </message>
</context>
<context>
    <name>vorn::DocumentEditor</name>
    <message>
        <source>No document is selected.</source>
        <translation>Es ist kein Dokument ausgewählt.</translation>
    </message>
    <message>
        <source>This invoice is marked as sent, so it cannot be changed. Set its status back to &quot;Created&quot; to change it.</source>
        <translation>Diese Rechnung ist als versendet markiert und kann daher nicht geändert werden. Setzen Sie ihren Status auf „Erstellt“ zurück, um sie zu ändern.</translation>
    </message>
    <message>
        <source>Change Title</source>
        <translation>Titel ändern</translation>
    </message>
    <message>
        <source>Change Subtitle</source>
        <translation>Untertitel ändern</translation>
    </message>
    <message>
        <source>Change Subject</source>
        <translation>Betreff ändern</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Adresse ändern</translation>
    </message>
    <message>
        <source>Change E-mail Address</source>
        <translation>E-Mail-Adresse ändern</translation>
    </message>
    <message>
        <source>Change Client Number</source>
        <translation>Kundennummer ändern</translation>
    </message>
    <message>
        <source>Change Number</source>
        <translation>Nummer ändern</translation>
    </message>
    <message>
        <source>Change Date</source>
        <translation>Datum ändern</translation>
    </message>
    <message>
        <source>Change Due Date</source>
        <translation>Fälligkeitsdatum ändern</translation>
    </message>
    <message>
        <source>Change Status</source>
        <translation>Status ändern</translation>
    </message>
    <message>
        <source>Change Paid Date</source>
        <translation>Zahlungsdatum ändern</translation>
    </message>
    <message>
        <source>Change Paid Amount</source>
        <translation>Bezahlten Betrag ändern</translation>
    </message>
    <message>
        <source>Change Dispatched</source>
        <translation>Versandstatus ändern</translation>
    </message>
    <message>
        <source>Change Dispatch Number</source>
        <translation>Versandnummer ändern</translation>
    </message>
    <message>
        <source>Change Currency</source>
        <translation>Währung ändern</translation>
    </message>
    <message>
        <source>Change Notes</source>
        <translation>Notizen ändern</translation>
    </message>
    <message>
        <source>Change Conditions</source>
        <translation>Bedingungen ändern</translation>
    </message>
    <message>
        <source>Change Footer</source>
        <translation>Fußzeile ändern</translation>
    </message>
    <message>
        <source>Change Quantity</source>
        <translation>Menge ändern</translation>
    </message>
    <message>
        <source>Change Unit</source>
        <translation>Einheit ändern</translation>
    </message>
    <message>
        <source>Change Price</source>
        <translation>Preis ändern</translation>
    </message>
    <message>
        <source>Change SKU</source>
        <translation>Artikelnummer ändern</translation>
    </message>
    <message>
        <source>Change Note</source>
        <translation>Notiz ändern</translation>
    </message>
    <message>
        <source>Change Tax</source>
        <translation>Steuer ändern</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change Buyer Country</source>
        <translation>Käuferland ändern</translation>
    </message>
    <message>
        <source>Change Buyer VAT ID</source>
        <translation>USt-IdNr. des Käufers ändern</translation>
    </message>
    <message>
        <source>Change Buyer Reference</source>
        <translation>Käuferreferenz ändern</translation>
    </message>
    <message>
        <source>Change Order Reference</source>
        <translation>Bestellreferenz ändern</translation>
    </message>
</context>
<context>
    <name>vorn::DocumentListModel</name>
    <message>
        <source>Sent</source>
        <translation>Versendet</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Partly Paid</source>
        <translation>Teilbezahlt</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>vorn::EInvoiceController</name>
    <message>
        <source>No invoice is selected.</source>
        <translation>Es ist keine Rechnung ausgewählt.</translation>
    </message>
    <message>
        <source>The invoice changed while its PDF was made.</source>
        <translation>Die Rechnung wurde geändert, während ihr PDF erstellt wurde.</translation>
    </message>
    <message>
        <source>The e-invoice cannot be made</source>
        <translation>Die E-Rechnung kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Export As XRechnung XML</source>
        <translation>Als XRechnung-XML exportieren</translation>
    </message>
    <message>
        <source>Export As E-Invoice (Factur-X PDF)</source>
        <translation>Als E-Rechnung exportieren (Factur-X-PDF)</translation>
    </message>
</context>
<context>
    <name>vorn::EInvoiceValidator</name>
    <message>
        <source>Only invoices can be sent as e-invoices; this is a quote.</source>
        <translation>Nur Rechnungen können als E-Rechnung versendet werden; dies ist ein Angebot.</translation>
    </message>
    <message>
        <source>The invoice&apos;s currency is missing.</source>
        <translation>Die Währung der Rechnung fehlt.</translation>
    </message>
    <message>
        <source>The currency “%1” has no ISO code: write it as a three-letter code such as EUR.</source>
        <translation>Die Währung „%1“ hat keinen ISO-Code: Schreiben Sie sie als dreibuchstabigen Code wie EUR.</translation>
    </message>
    <message>
        <source>The seller&apos;s country is missing.</source>
        <translation>Das Land des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s country “%1” is not a two-letter country code such as DE.</source>
        <translation>Das Land des Verkäufers „%1“ ist kein zweibuchstabiger Ländercode wie DE.</translation>
    </message>
    <message>
        <source>The seller&apos;s VAT identifier or tax number is missing.</source>
        <translation>Die USt-IdNr. oder Steuernummer des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s VAT identifier “%1” must begin with its country code, as in DE123456789.</source>
        <translation>Die USt-IdNr. „%1“ des Verkäufers muss mit ihrem Ländercode beginnen, wie in DE123456789.</translation>
    </message>
    <message>
        <source>The seller&apos;s IBAN is missing.</source>
        <translation>Die IBAN des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The IBAN “%1” is not valid: its length or check digits are wrong.</source>
        <translation>Die IBAN „%1“ ist ungültig: Ihre Länge oder Prüfziffern sind falsch.</translation>
    </message>
    <message>
        <source>The BIC “%1” is not valid: it has 8 or 11 letters and digits.</source>
        <translation>Die BIC „%1“ ist ungültig: Sie besteht aus 8 oder 11 Buchstaben und Ziffern.</translation>
    </message>
    <message>
        <source>The buyer&apos;s country is missing.</source>
        <translation>Das Land des Käufers fehlt.</translation>
    </message>
    <message>
        <source>The buyer&apos;s country “%1” is not a two-letter country code such as DE.</source>
        <translation>Das Land des Käufers „%1“ ist kein zweibuchstabiger Ländercode wie DE.</translation>
    </message>
    <message>
        <source>The buyer&apos;s VAT identifier “%1” must begin with its country code, as in FR12345678901.</source>
        <translation>Die USt-IdNr. „%1“ des Käufers muss mit ihrem Ländercode beginnen, wie in FR12345678901.</translation>
    </message>
    <message>
        <source>The invoice has no items.</source>
        <translation>Die Rechnung hat keine Posten.</translation>
    </message>
    <message>
        <source>Item %1 has no description.</source>
        <translation>Posten %1 hat keine Beschreibung.</translation>
    </message>
    <message>
        <source>The invoice total must be more than zero: an invoice with a negative total is a credit note.</source>
        <translation>Der Gesamtbetrag der Rechnung muss größer als null sein: Eine Rechnung mit negativem Gesamtbetrag ist eine Gutschrift.</translation>
    </message>
    <message>
        <source>The invoice&apos;s amounts do not add up: change an item or recompute the invoice, then export it again.</source>
        <translation>Die Beträge der Rechnung gehen nicht auf: Ändern Sie einen Posten oder berechnen Sie die Rechnung neu und exportieren Sie sie dann erneut.</translation>
    </message>
    <message>
        <source>The invoice number is missing.</source>
        <translation>Die Rechnungsnummer fehlt.</translation>
    </message>
    <message>
        <source>The invoice date is missing.</source>
        <translation>Das Rechnungsdatum fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s legal name is missing.</source>
        <translation>Der Firmenname des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s street is missing.</source>
        <translation>Die Straße des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s postcode is missing.</source>
        <translation>Die Postleitzahl des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s city is missing.</source>
        <translation>Der Ort des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The buyer&apos;s name is missing: it is the first line of the address.</source>
        <translation>Der Name des Käufers fehlt: Er steht in der ersten Zeile der Adresse.</translation>
    </message>
    <message>
        <source>The buyer reference (Leitweg-ID) is missing.</source>
        <translation>Die Käuferreferenz (Leitweg-ID) fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s contact e-mail is missing.</source>
        <translation>Die Kontakt-E-Mail des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The seller&apos;s contact phone is missing.</source>
        <translation>Das Kontakttelefon des Verkäufers fehlt.</translation>
    </message>
    <message>
        <source>The buyer&apos;s e-mail address is missing.</source>
        <translation>Die E-Mail-Adresse des Käufers fehlt.</translation>
    </message>
    <message>
        <source>The buyer&apos;s postcode and city are missing: write them on the last line of the address, as in “10115 Berlin”.</source>
        <translation>Postleitzahl und Ort des Käufers fehlen: Schreiben Sie sie in die letzte Zeile der Adresse, wie in „10115 Berlin“.</translation>
    </message>
</context>
<context>
    <name>vorn::ExportController</name>
    <message>
        <source>Print Invoice</source>
        <translation>Rechnung drucken</translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation>Rechnung als PDF-Datei exportieren</translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation>Rechnung als E-Mail-Anhang senden</translation>
    </message>
    <message>
        <source>Export Invoice</source>
        <translation>Rechnung exportieren</translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation>Als PDF-Datei exportieren</translation>
    </message>
    <message>
        <source>The PDF “%1” could not be read.</source>
        <translation>Das PDF „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation>Als XML-Dokument exportieren</translation>
    </message>
    <message>
        <source>Export As Vorn Document</source>
        <translation>Als Vorn-Dokument exportieren</translation>
    </message>
    <message>
        <source>The e-mail could not be prepared</source>
        <translation>Die E-Mail konnte nicht vorbereitet werden</translation>
    </message>
    <message>
        <source>No mail program could be started. The PDF is shown in the file manager so that you can attach it to a message yourself.</source>
        <translation>Es konnte kein E-Mail-Programm gestartet werden. Das PDF wird im Dateimanager angezeigt, damit Sie es selbst an eine Nachricht anhängen können.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation>Als versendet markieren</translation>
    </message>
</context>
<context>
    <name>vorn::ExportSheet</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Making the PDF…</source>
        <translation>PDF wird erstellt …</translation>
    </message>
    <message>
        <source>No PDF</source>
        <translation>Kein PDF</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Sichern …</translation>
    </message>
    <message>
        <source>Write E-mail</source>
        <translation>E-Mail schreiben</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>No document is selected.</source>
        <translation>Es ist kein Dokument ausgewählt.</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>Your mail program opens a new message with the PDF attached.</source>
        <translation>Ihr E-Mail-Programm öffnet eine neue Nachricht mit dem PDF im Anhang.</translation>
    </message>
    <message>
        <source>Your mail program opens a new message to %1 with the PDF attached.</source>
        <translation>Ihr E-Mail-Programm öffnet eine neue Nachricht an %1 mit dem PDF im Anhang.</translation>
    </message>
    <message>
        <source>The invoice will be marked as sent.</source>
        <translation>Die Rechnung wird als versendet markiert.</translation>
    </message>
</context>
<context>
    <name>vorn::FilterPopover</name>
    <message>
        <source>All Documents</source>
        <translation>Alle Dokumente</translation>
    </message>
    <message>
        <source>Sent Invoices</source>
        <translation>Versendete Rechnungen</translation>
    </message>
    <message>
        <source>Overdue Invoices</source>
        <translation>Überfällige Rechnungen</translation>
    </message>
    <message>
        <source>Paid Invoices</source>
        <translation>Bezahlte Rechnungen</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Angebote</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>This Week</source>
        <translation>Diese Woche</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>This Year</source>
        <translation>Dieses Jahr</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Dated within</source>
        <translation>Zeitraum</translation>
    </message>
</context>
<context>
    <name>vorn::GUIController</name>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Angebot löschen</translation>
    </message>
    <message>
        <source>No calculator found</source>
        <translation>Kein Taschenrechner gefunden</translation>
    </message>
    <message>
        <source>Vorn starts GNOME Calculator, KCalc, Galculator or Qalculate, but none of them is installed.</source>
        <translation>Vorn startet GNOME Rechner, KCalc, Galculator oder Qalculate, aber keines davon ist installiert.</translation>
    </message>
</context>
<context>
    <name>vorn::HelpMenu</name>
    <message>
        <source>Vorn &amp;Manual</source>
        <translation>Vorn-&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Introduction Video</source>
        <translation>&amp;Einführungsvideo</translation>
    </message>
    <message>
        <source>Contact &amp;Support…</source>
        <translation>&amp;Support kontaktieren …</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Feedback senden …</translation>
    </message>
    <message>
        <source>Vorn &amp;Website</source>
        <translation>Vorn-&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Blog</source>
        <translation>&amp;Blog</translation>
    </message>
    <message>
        <source>Vorn on &amp;Twitter</source>
        <translation>Vorn auf &amp;Twitter</translation>
    </message>
    <message>
        <source>Vorn on &amp;App.net</source>
        <translation>Vorn auf &amp;App.net</translation>
    </message>
    <message>
        <source>Tandrelo &amp;Apps</source>
        <translation>Tandrelo-&amp;Apps</translation>
    </message>
    <message>
        <source>Subscribe to the &amp;Newsletter…</source>
        <translation>&amp;Newsletter abonnieren …</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Nach &amp;Updates suchen …</translation>
    </message>
    <message>
        <source>Setup Assis&amp;tant…</source>
        <translation>Einrichtungs&amp;assistent …</translation>
    </message>
    <message>
        <source>&amp;About Vorn</source>
        <translation>&amp;Über Vorn</translation>
    </message>
    <message>
        <source>Restart Vorn?</source>
        <translation>Vorn neu starten?</translation>
    </message>
    <message>
        <source>The main window shows the language you chose after Vorn starts again. Restart now?</source>
        <translation>Das Hauptfenster erscheint in der gewählten Sprache, sobald Vorn neu gestartet ist. Jetzt neu starten?</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Introduction Video</source>
        <translation>Einführungsvideo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>vorn::InfoPage</name>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Ne&amp;xt Number</source>
        <translation>Nächste Nu&amp;mmer</translation>
    </message>
    <message>
        <source>Next number</source>
        <translation>Nächste Nummer</translation>
    </message>
    <message>
        <source>Number this document from the numbering pattern</source>
        <translation>Dieses Dokument nach dem Nummernmuster nummerieren</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nummer:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source> days from today</source>
        <translation> Tage ab heute</translation>
    </message>
    <message>
        <source>Due in days from today</source>
        <translation>Fällig in Tagen ab heute</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>Fällig&amp;keit:</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fälligkeit</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>&amp;Status:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Paid amount</source>
        <translation>Bezahlter Betrag</translation>
    </message>
    <message>
        <source>Paid &amp;amount:</source>
        <translation>&amp;Bezahlter Betrag:</translation>
    </message>
    <message>
        <source>&amp;Paid on:</source>
        <translation>Bezahlt &amp;am:</translation>
    </message>
    <message>
        <source>Paid on</source>
        <translation>Bezahlt am</translation>
    </message>
    <message>
        <source>D&amp;ispatched</source>
        <translation>&amp;Versandt</translation>
    </message>
    <message>
        <source>Dispatch number</source>
        <translation>Versandnummer</translation>
    </message>
    <message>
        <source>Stamp &amp;Now</source>
        <translation>Jetzt &amp;eintragen</translation>
    </message>
    <message>
        <source>Mark as dispatched now</source>
        <translation>Jetzt als versandt markieren</translation>
    </message>
    <message>
        <source>Dispatch:</source>
        <translation>Versand:</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Versandt</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>N&amp;otes:</source>
        <translation>N&amp;otizen:</translation>
    </message>
    <message>
        <source>Con&amp;ditions:</source>
        <translation>Bedin&amp;gungen:</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>&amp;Fußzeile:</translation>
    </message>
    <message>
        <source>Quotes are not paid; convert the quote into an invoice first.</source>
        <translation>Angebote werden nicht bezahlt; wandeln Sie das Angebot zuerst in eine Rechnung um.</translation>
    </message>
    <message>
        <source>E-Invoice</source>
        <translation>E-Rechnung</translation>
    </message>
    <message>
        <source>e.g. DE</source>
        <translation>z.&#xa0;B. DE</translation>
    </message>
    <message>
        <source>The buyer&apos;s country as a two-letter code</source>
        <translation>Das Land des Käufers als Code aus zwei Buchstaben</translation>
    </message>
    <message>
        <source>Buyer countr&amp;y:</source>
        <translation>Käufer&amp;land:</translation>
    </message>
    <message>
        <source>Buyer country</source>
        <translation>Käuferland</translation>
    </message>
    <message>
        <source>&amp;Buyer VAT ID:</source>
        <translation>&amp;USt-IdNr. des Käufers:</translation>
    </message>
    <message>
        <source>Buyer VAT ID</source>
        <translation>USt-IdNr. des Käufers</translation>
    </message>
    <message>
        <source>The reference the buyer gave, for public bodies their Leitweg-ID</source>
        <translation>Die Referenz des Käufers, bei öffentlichen Auftraggebern die Leitweg-ID</translation>
    </message>
    <message>
        <source>Buyer reference (&amp;Leitweg-ID):</source>
        <translation>Käufe&amp;rreferenz (Leitweg-ID):</translation>
    </message>
    <message>
        <source>Order &amp;reference:</source>
        <translation>Bestellreferen&amp;z:</translation>
    </message>
</context>
<context>
    <name>vorn::InterchangeController</name>
    <message>
        <source>Warning!</source>
        <translation>Achtung!</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>Für die Richtigkeit Ihrer Daten sind Sie verantwortlich, und zwar ganz allein. Vorn ist nur eine dumme App und kann von Haus aus weder wissen noch sich darum kümmern, ob es doppelte Rechnungen oder durcheinandergeratene Nummern gibt oder ob Sie einen schlechten Tag haben. Tun Sie sich also bitte selbst einen Gefallen und prüfen Sie, was Sie hier tun. Möchten Sie die Rechnung trotzdem importieren?</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import Vorn Document</source>
        <translation>Vorn-Dokument importieren</translation>
    </message>
    <message>
        <source>There is no database to import into.</source>
        <translation>Es gibt keine Datenbank, in die importiert werden kann.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation>Vorn-Datenbank</translation>
    </message>
    <message>
        <source>Export Vorn Database As XML</source>
        <translation>Vorn-Datenbank als XML exportieren</translation>
    </message>
</context>
<context>
    <name>vorn::ItemCellView</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
</context>
<context>
    <name>vorn::ItemController</name>
    <message>
        <source>Add Item</source>
        <translation>Posten hinzufügen</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Posten löschen</translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation>Das Löschen von Posten ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie den ausgewählten Posten wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Move Items</source>
        <translation>Posten verschieben</translation>
    </message>
</context>
<context>
    <name>vorn::ItemPopover</name>
    <message>
        <source>New Item</source>
        <translation>Neuer Posten</translation>
    </message>
    <message>
        <source>Item source</source>
        <translation>Postenquelle</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Untertitel:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>&amp;Menge:</translation>
    </message>
    <message>
        <source>U&amp;nit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Unit &amp;price:</source>
        <translation>Einzel&amp;preis:</translation>
    </message>
    <message>
        <source>S&amp;KU:</source>
        <translation>Artikel&amp;nummer:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>N&amp;otiz:</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Steuern:</translation>
    </message>
    <message>
        <source>Recent Items</source>
        <translation>Zuletzt verwendete Posten</translation>
    </message>
    <message>
        <source>&amp;Add Item</source>
        <translation>Posten &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Use Item</source>
        <translation>Posten ü&amp;bernehmen</translation>
    </message>
</context>
<context>
    <name>vorn::ItemTableModel</name>
    <message>
        <source>Gross %1</source>
        <translation>Brutto %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Einzelpreis</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Netto</translation>
    </message>
</context>
<context>
    <name>vorn::ItemsPage</name>
    <message>
        <source>Items</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>Add Item…</source>
        <translation>Posten hinzufügen …</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Posten löschen</translation>
    </message>
    <message>
        <source>Shipping…</source>
        <translation>Versand …</translation>
    </message>
    <message>
        <source>Discount…</source>
        <translation>Rabatt …</translation>
    </message>
    <message>
        <source>Subtotal %1</source>
        <translation>Zwischensumme %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>Shipping %1</source>
        <translation>Versand %1</translation>
    </message>
    <message>
        <source>Discount %1 %</source>
        <translation>Rabatt %1 %</translation>
    </message>
    <message>
        <source>Discount %1</source>
        <translation>Rabatt %1</translation>
    </message>
    <message>
        <source>Total %1 %2</source>
        <translation>Gesamt %1 %2</translation>
    </message>
</context>
<context>
    <name>vorn::LineNumberRuler</name>
    <message>
        <source>Line numbers</source>
        <translation>Zeilennummern</translation>
    </message>
</context>
<context>
    <name>vorn::LockBanner</name>
    <message>
        <source>This invoice is marked as sent, so its fields are read-only. To change it, set its status back to &quot;Created&quot; on the Info page.</source>
        <translation>Diese Rechnung ist als versendet markiert, daher sind ihre Felder schreibgeschützt. Um sie zu ändern, setzen Sie ihren Status auf der Seite „Info“ auf „Erstellt“ zurück.</translation>
    </message>
</context>
<context>
    <name>vorn::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>Save all changes to the database</source>
        <translation>Alle Änderungen in der Datenbank sichern</translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation>Vorn &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Widerrufen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>D&amp;okument</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>New &amp;Invoice</source>
        <translation>Neue &amp;Rechnung</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>New &amp;Quote</source>
        <translation>Neues &amp;Angebot</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;uplizieren</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>&amp;Convert Quote to Invoice…</source>
        <translation>Angebot in Rechnung u&amp;mwandeln …</translation>
    </message>
    <message>
        <source>Mark as &amp;Dispatched Now</source>
        <translation>Jetzt als &amp;versendet markieren</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
    <message>
        <source>Payment &amp;Reminder…</source>
        <translation>Zahlungs&amp;erinnerung …</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>&amp;Import Document…</source>
        <translation>Dokument &amp;importieren …</translation>
    </message>
    <message>
        <source>Export &amp;Listed Documents as XML…</source>
        <translation>Aufgelis&amp;tete Dokumente als XML exportieren …</translation>
    </message>
    <message>
        <source>Export &amp;All Documents as XML…</source>
        <translation>A&amp;lle Dokumente als XML exportieren …</translation>
    </message>
    <message>
        <source>&amp;Back Up Database…</source>
        <translation>Datenbank si&amp;chern …</translation>
    </message>
    <message>
        <source>&amp;Restore Database…</source>
        <translation>Datenbank &amp;wiederherstellen …</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Export as P&amp;DF…</source>
        <translation>Als &amp;PDF exportieren …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Send by &amp;E-mail…</source>
        <translation>Per &amp;E-Mail senden …</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>E&amp;xport Document…</source>
        <translation>Dokument e&amp;xportieren …</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>No documents yet.</source>
        <translation>Noch keine Dokumente.</translation>
    </message>
    <message>
        <source>The Vorn database could not be opened, so there are no documents to show.</source>
        <translation>Die Vorn-Datenbank konnte nicht geöffnet werden, daher gibt es keine Dokumente anzuzeigen.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Widerrufen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 Rechnung</translation>
    </message>
    <message>
        <source>%1 invoices</source>
        <translation>%1 Rechnungen</translation>
    </message>
    <message>
        <source>1 quote</source>
        <translation>1 Angebot</translation>
    </message>
    <message>
        <source>%1 quotes</source>
        <translation>%1 Angebote</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Posten</translation>
    </message>
    <message>
        <source>&amp;Calculator</source>
        <translation>&amp;Taschenrechner</translation>
    </message>
    <message>
        <source>Ctrl+Shift+K</source>
        <translation>Ctrl+Shift+K</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Taschenrechner</translation>
    </message>
    <message>
        <source>Choose &amp;Address…</source>
        <translation>&amp;Adresse wählen …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Add Item…</source>
        <translation>&amp;Posten hinzufügen …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+I</source>
        <translation>Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>De&amp;lete Item</source>
        <translation>Posten &amp;löschen</translation>
    </message>
    <message>
        <source>Ctrl+Backspace</source>
        <translation>Ctrl+Backspace</translation>
    </message>
    <message>
        <source>&amp;Shipping…</source>
        <translation>&amp;Versand …</translation>
    </message>
    <message>
        <source>D&amp;iscount…</source>
        <translation>&amp;Rabatt …</translation>
    </message>
    <message>
        <source>&amp;Filter List…</source>
        <translation>Liste &amp;filtern …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Show the %1 page</source>
        <translation>Seite „%1“ anzeigen</translation>
    </message>
    <message>
        <source>Export as E-Invoice (&amp;Factur-X PDF)…</source>
        <translation>Als E-Rechnung exportieren (&amp;Factur-X-PDF) …</translation>
    </message>
    <message>
        <source>Export as XRec&amp;hnung XML…</source>
        <translation>Als XRec&amp;hnung-XML exportieren …</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Select a document in the list, or make a new invoice or quote.</source>
        <translation>Wählen Sie ein Dokument in der Liste aus oder erstellen Sie eine neue Rechnung oder ein neues Angebot.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Showing %1</source>
        <translation>Angezeigt: %1</translation>
    </message>
    <message>
        <source>Showing all documents</source>
        <translation>Alle Dokumente werden angezeigt</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation>Liste filtern</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Widerrufen: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Total %1
Paid %2 · Due %3</source>
        <translation>Gesamt %1
Bezahlt %2 · Fällig %3</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Weitere Werkzeuge</translation>
    </message>
    <message>
        <source>Divider between list and document</source>
        <translation>Trennlinie zwischen Liste und Dokument</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterSubscription</name>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>Please provide a valid email address.</source>
        <translation>Bitte geben Sie eine gültige E-Mail-Adresse an.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Success!</source>
        <translation>Geschafft!</translation>
    </message>
    <message>
        <source>Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I promise.</source>
        <translation>Danke für Ihr Abonnement. Und ja, es ist viel mehr als nur langweiliger Spam von Kelvo Apps. Versprochen.</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>Bitte prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterWindow</name>
    <message>
        <source>Vorn Newsletter</source>
        <translation>Vorn-Newsletter</translation>
    </message>
    <message>
        <source>Hear about new versions and tips. We write rarely, and you can leave at any time.</source>
        <translation>Erfahren Sie von neuen Versionen und Tipps. Wir schreiben selten, und Sie können sich jederzeit abmelden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@beispiel.de</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation>Wird abonniert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation>&amp;Abonnieren</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Abonnieren</translation>
    </message>
</context>
<context>
    <name>vorn::ObjectContext</name>
    <message>
        <source>There is no entity named “%1”.</source>
        <translation>Es gibt keine Entität namens „%1“.</translation>
    </message>
</context>
<context>
    <name>vorn::PdfRenderer</name>
    <message>
        <source>Laying out the document took too long.</source>
        <translation>Das Setzen des Dokuments hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>Rendering needs the graphical application object.</source>
        <translation>Das Rendern benötigt das grafische Anwendungsobjekt.</translation>
    </message>
    <message>
        <source>The layout engine stopped unexpectedly.</source>
        <translation>Die Satz-Engine wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>The document could not be laid out.</source>
        <translation>Das Dokument konnte nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The layout engine did not print the document.</source>
        <translation>Die Satz-Engine hat das Dokument nicht gedruckt.</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesBuilderPane</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Item Row</source>
        <translation>Postenzeile</translation>
    </message>
    <message>
        <source>Style Sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>%1 template</source>
        <translation>Vorlage „%1“</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesDesignList</name>
    <message>
        <source>Designs</source>
        <translation>Designs</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>New design</source>
        <translation>Neues Design</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Duplicate the selected design</source>
        <translation>Ausgewähltes Design duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the selected design</source>
        <translation>Ausgewähltes Design löschen</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <source>Render every document with the selected design</source>
        <translation>Jedes Dokument mit dem ausgewählten Design darstellen</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Import a design file</source>
        <translation>Eine Designdatei importieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Export the selected design</source>
        <translation>Ausgewähltes Design exportieren</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preview the default design</source>
        <translation>Vorschau des Standarddesigns</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesDesignModel</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Rename Design</source>
        <translation>Design umbenennen</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesLivePreview</name>
    <message>
        <source>Design preview</source>
        <translation>Designvorschau</translation>
    </message>
    <message>
        <source>Preview status</source>
        <translation>Vorschaustatus</translation>
    </message>
    <message>
        <source>Rendering…</source>
        <translation>Wird dargestellt …</translation>
    </message>
    <message>
        <source>The preview could not be made: %1</source>
        <translation>Die Vorschau konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Builder</source>
        <translation>Baukasten</translation>
    </message>
    <message>
        <source>&amp;Panes</source>
        <translation>&amp;Bereiche</translation>
    </message>
    <message>
        <source>Your company</source>
        <translation>Ihre Firma</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation>&amp;Kontakt:</translation>
    </message>
    <message>
        <source>&amp;Letterbox line:</source>
        <translation>&amp;Absenderzeile:</translation>
    </message>
    <message>
        <source>&amp;Slogan:</source>
        <translation>&amp;Slogan:</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Choose logo</source>
        <translation>Logo wählen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove logo</source>
        <translation>Logo entfernen</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo:</translation>
    </message>
    <message>
        <source>No logo</source>
        <translation>Kein Logo</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Number new invoices</source>
        <translation>Neue Rechnungen nummerieren</translation>
    </message>
    <message>
        <source>Invoice number pattern:</source>
        <translation>Muster für Rechnungsnummern:</translation>
    </message>
    <message>
        <source>Invoice counter offset:</source>
        <translation>Versatz des Rechnungszählers:</translation>
    </message>
    <message>
        <source>Give new invoices a due date</source>
        <translation>Neuen Rechnungen ein Fälligkeitsdatum geben</translation>
    </message>
    <message>
        <source>Due after:</source>
        <translation>Fällig nach:</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Angebote</translation>
    </message>
    <message>
        <source>Number new quotes</source>
        <translation>Neue Angebote nummerieren</translation>
    </message>
    <message>
        <source>Quote number pattern:</source>
        <translation>Muster für Angebotsnummern:</translation>
    </message>
    <message>
        <source>Quote counter offset:</source>
        <translation>Versatz des Angebotszählers:</translation>
    </message>
    <message>
        <source>Give new quotes an expiry date</source>
        <translation>Neuen Angeboten ein Ablaufdatum geben</translation>
    </message>
    <message>
        <source>Valid for:</source>
        <translation>Gültig für:</translation>
    </message>
    <message>
        <source>Document texts</source>
        <translation>Dokumenttexte</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>%1 conditions:</source>
        <translation>Bedingungen für %1:</translation>
    </message>
    <message>
        <source>%1 footer:</source>
        <translation>Fußzeile für %1:</translation>
    </message>
    <message>
        <source>Miscellaneous:</source>
        <translation>Sonstiges:</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Tax %1 applies</source>
        <translation>Steuer %1 wird erhoben</translation>
    </message>
    <message>
        <source>Tax %1 title:</source>
        <translation>Bezeichnung von Steuer %1:</translation>
    </message>
    <message>
        <source>Tax %1 rate:</source>
        <translation>Satz von Steuer %1:</translation>
    </message>
    <message>
        <source>Tax %1 is charged on the taxes before it</source>
        <translation>Steuer %1 wird auf die vorherigen Steuern erhoben</translation>
    </message>
    <message>
        <source>Words printed on documents</source>
        <translation>Wörter auf Dokumenten</translation>
    </message>
    <message>
        <source>Invoice:</source>
        <translation>Rechnung:</translation>
    </message>
    <message>
        <source>Quote:</source>
        <translation>Angebot:</translation>
    </message>
    <message>
        <source>Reminder:</source>
        <translation>Erinnerung:</translation>
    </message>
    <message>
        <source>Invoice number:</source>
        <translation>Rechnungsnummer:</translation>
    </message>
    <message>
        <source>Quote number:</source>
        <translation>Angebotsnummer:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Kundennummer:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Fällig:</translation>
    </message>
    <message>
        <source>Subtotal:</source>
        <translation>Zwischensumme:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Gesamt:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Rabatt:</translation>
    </message>
    <message>
        <source>Shipping:</source>
        <translation>Versand:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Menge:</translation>
    </message>
    <message>
        <source>Unit price:</source>
        <translation>Einzelpreis:</translation>
    </message>
    <message>
        <source>Page numbers:</source>
        <translation>Seitenzahlen:</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print page numbers</source>
        <translation>Seitenzahlen drucken</translation>
    </message>
    <message>
        <source>Print the document&apos;s details beside the page numbers</source>
        <translation>Die Angaben des Dokuments neben die Seitenzahlen drucken</translation>
    </message>
    <message>
        <source>Print without margins</source>
        <translation>Ohne Ränder drucken</translation>
    </message>
    <message>
        <source>Item rows show the net amount</source>
        <translation>Postenzeilen zeigen den Nettobetrag</translation>
    </message>
    <message>
        <source>Item rows show the article number</source>
        <translation>Postenzeilen zeigen die Artikelnummer</translation>
    </message>
    <message>
        <source>Printing or exporting marks the document as sent</source>
        <translation>Drucken oder Exportieren markiert das Dokument als versendet</translation>
    </message>
    <message>
        <source>Border font</source>
        <translation>Randschrift</translation>
    </message>
    <message>
        <source>Choose border font</source>
        <translation>Randschrift wählen</translation>
    </message>
    <message>
        <source>Border font:</source>
        <translation>Randschrift:</translation>
    </message>
    <message>
        <source>Border Font</source>
        <translation>Randschrift</translation>
    </message>
    <message>
        <source>Every document is rendered with the default design. Edit designs in the Builder.</source>
        <translation>Jedes Dokument wird mit dem Standarddesign dargestellt. Designs bearbeiten Sie im Baukasten.</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>JIS B4</source>
        <translation>JIS B4</translation>
    </message>
    <message>
        <source>JIS B5</source>
        <translation>JIS B5</translation>
    </message>
    <message>
        <source>Money and dates</source>
        <translation>Geld und Datum</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>&amp;Date pattern:</source>
        <translation>&amp;Datumsmuster:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Client addresses</source>
        <translation>Kundenadressen</translation>
    </message>
    <message>
        <source>&amp;Address pattern:</source>
        <translation>&amp;Adressmuster:</translation>
    </message>
    <message>
        <source>Client number &amp;pattern:</source>
        <translation>Muster für Kunden&amp;nummern:</translation>
    </message>
    <message>
        <source>Client counter offset:</source>
        <translation>Versatz des Kundenzählers:</translation>
    </message>
    <message>
        <source>E-invoices</source>
        <translation>E-Rechnungen</translation>
    </message>
    <message>
        <source>Le&amp;gal name:</source>
        <translation>&amp;Firmenname:</translation>
    </message>
    <message>
        <source>S&amp;treet:</source>
        <translation>St&amp;raße:</translation>
    </message>
    <message>
        <source>&amp;Postcode:</source>
        <translation>&amp;Postleitzahl:</translation>
    </message>
    <message>
        <source>C&amp;ity:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>Co&amp;untry code:</source>
        <translation>&amp;Ländercode:</translation>
    </message>
    <message>
        <source>&amp;VAT identifier:</source>
        <translation>&amp;USt-IdNr.:</translation>
    </message>
    <message>
        <source>Ta&amp;x number:</source>
        <translation>Steuernu&amp;mmer:</translation>
    </message>
    <message>
        <source>Contact &amp;e-mail:</source>
        <translation>Kontakt-&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Contact p&amp;hone:</source>
        <translation>Kontakt&amp;telefon:</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Zahlungen</translation>
    </message>
    <message>
        <source>&amp;IBAN:</source>
        <translation>&amp;IBAN:</translation>
    </message>
    <message>
        <source>&amp;BIC:</source>
        <translation>&amp;BIC:</translation>
    </message>
    <message>
        <source>Account &amp;holder:</source>
        <translation>Kontoin&amp;haber:</translation>
    </message>
    <message>
        <source>Export invoices as Factur-X PDF (e-invoice)</source>
        <translation>Rechnungen als Factur-X-PDF exportieren (E-Rechnung)</translation>
    </message>
</context>
<context>
    <name>vorn::PreviewController</name>
    <message>
        <source>The PDF “%1” could not be written.</source>
        <translation>Das PDF „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no default design</source>
        <translation>Es gibt kein Standarddesign</translation>
    </message>
    <message>
        <source>Make one of the designs in the preferences the default design to see your documents.</source>
        <translation>Legen Sie in den Einstellungen eines der Designs als Standarddesign fest, um Ihre Dokumente zu sehen.</translation>
    </message>
    <message>
        <source>This design has no page template</source>
        <translation>Dieses Design hat keine Seitenvorlage</translation>
    </message>
    <message>
        <source>Give the default design a page template in the preferences, or make another design the default design.</source>
        <translation>Geben Sie dem Standarddesign in den Einstellungen eine Seitenvorlage oder legen Sie ein anderes Design als Standard fest.</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>Hoppla!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Beim Erstellen der Vorschau ist etwas gründlich schiefgegangen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>vorn::PreviewWindow</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The preview could not be made.</source>
        <translation>Die Vorschau konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Select a document to see how it will look on paper.</source>
        <translation>Wählen Sie ein Dokument, um zu sehen, wie es auf Papier aussieht.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Auf Breite einpassen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation>Die Vorschau konnte nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Making the preview…</source>
        <translation>Vorschau wird erstellt …</translation>
    </message>
    <message>
        <source>Preview – %1</source>
        <translation>Vorschau – %1</translation>
    </message>
    <message>
        <source>Page thumbnails</source>
        <translation>Seitenminiaturen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>vorn::ReminderSheet</name>
    <message>
        <source>Payment Reminder</source>
        <translation>Zahlungserinnerung</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Bedingungen:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Fußzeile:</translation>
    </message>
    <message>
        <source>Create Reminder</source>
        <translation>Erinnerung erstellen</translation>
    </message>
</context>
<context>
    <name>vorn::ScreenCastController</name>
    <message>
        <source>Please check your internet connection!</source>
        <translation>Bitte prüfen Sie Ihre Internetverbindung!</translation>
    </message>
</context>
<context>
    <name>vorn::Settings</name>
    <message>
        <source>Your settings could not be read from “%1”. Vorn leaves the file as it is and uses its standard settings until it is repaired or removed; changes to settings are not saved.</source>
        <translation>Ihre Einstellungen konnten nicht aus „%1“ gelesen werden. Vorn lässt die Datei unverändert und verwendet seine Standardeinstellungen, bis sie repariert oder entfernt ist; Änderungen an den Einstellungen werden nicht gesichert.</translation>
    </message>
    <message>
        <source>The file does not hold a dictionary.</source>
        <translation>Die Datei enthält kein Wörterbuch.</translation>
    </message>
    <message>
        <source>Your settings were not saved because the settings file “%1” could not be read at start.</source>
        <translation>Ihre Einstellungen wurden nicht gesichert, weil die Einstellungsdatei „%1“ beim Start nicht gelesen werden konnte.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Ihre Einstellungen konnten nicht gesichert werden.</translation>
    </message>
</context>
<context>
    <name>vorn::ShippingController</name>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
</context>
<context>
    <name>vorn::ShippingPopover</name>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Shipping source</source>
        <translation>Versandquelle</translation>
    </message>
    <message>
        <source>Show s&amp;ubtitle</source>
        <translation>Untertitel an&amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Untertitel:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Betrag:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>&amp;Notiz:</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Steuer %1</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Steuern:</translation>
    </message>
    <message>
        <source>Recent Shipping</source>
        <translation>Zuletzt verwendete Versandarten</translation>
    </message>
    <message>
        <source>&amp;No Shipping</source>
        <translation>&amp;Kein Versand</translation>
    </message>
    <message>
        <source>&amp;Charge Shipping</source>
        <translation>&amp;Versand berechnen</translation>
    </message>
</context>
<context>
    <name>vorn::TemplateEditor</name>
    <message>
        <source>Indent</source>
        <translation>Einrücken</translation>
    </message>
    <message>
        <source>Unindent</source>
        <translation>Ausrücken</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>vorn::UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Update verfügbar!</translation>
    </message>
    <message>
        <source>A new version</source>
        <translation>Eine neue Version</translation>
    </message>
    <message>
        <source>%1 is available; you have Vorn %2. Do you want to download the update now?</source>
        <translation>%1 ist verfügbar; Sie haben Vorn %2. Möchten Sie das Update jetzt herunterladen?</translation>
    </message>
    <message>
        <source>&amp;Release notes:</source>
        <translation>&amp;Versionshinweise:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Die Versionshinweise konnten nicht geladen werden.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>&amp;Download…</source>
        <translation>&amp;Herunterladen …</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
</context>
<context>
    <name>vorn::ZRUpdateChecker</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch nach Updates suchen?</translation>
    </message>
    <message>
        <source>Should %1 look for a newer version once a day when it starts? You can change this at any time in the preferences.</source>
        <translation>Soll %1 beim Start einmal täglich nach einer neueren Version suchen? Sie können das jederzeit in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The server answered with status %1.</source>
        <translation>Der Server antwortete mit Status %1.</translation>
    </message>
    <message>
        <source>The version list is not a readable property list.</source>
        <translation>Die Versionsliste ist keine lesbare Property-Liste.</translation>
    </message>
    <message>
        <source>The version list has no version for %1.</source>
        <translation>Die Versionsliste enthält keine Version für %1.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The list of available versions could not be loaded. Please check your internet connection and try again later.</source>
        <translation>Die Liste der verfügbaren Versionen konnte nicht geladen werden. Bitte prüfen Sie Ihre Internetverbindung und versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Sie sind auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version available.</source>
        <translation>%1 %2 ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>Do you want to download the update now?</source>
        <translation>Möchten Sie das Update jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Update verfügbar!</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Herunterladen …</translation>
    </message>
</context>
</TS>
