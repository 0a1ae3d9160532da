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
</context>
<context>
    <name>Logo</name>
    <message>
        <source>&lt;small&gt;&lt;small&gt;Please provide a 'Logo Image' in the Preferences&lt;br /&gt;or remove the 'LOGO' substitute from the design/template.&lt;/small&gt;&lt;/small&gt;</source>
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
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to 'Created' first. Then you will also be able to resend the modified invoice.</source>
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
        <source>The Vorn database could not be saved because the disk is full.</source>
        <translation>Die Vorn-Datenbank konnte nicht gesichert werden, weil die Festplatte voll ist.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” cannot be written: you don't have permission.</source>
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
        <source>SQLite's integrity check found: %1</source>
        <translation>Die Integritätsprüfung von SQLite ergab: %1</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in place.</source>
        <translation>Die Datei „%1“ konnte nicht an ihren Platz gebracht werden.</translation>
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
        <source>You don't have permission to create it.</source>
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
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the 'File Menu' to open documents and to restore the Vorn database.</source>
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
        <source>It seems that you've already setup Vorn and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
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
        <source>It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or restore it from an internal backup. You should only proceed if you're sure that your database really is not intact, since this action will replace any possible data. Should Vorn not be able to repair or restore your database, please restore it from your own (Time Machine) backups. Do you want to proceed?</source>
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
        <source>You can't convert an invoice into a quote.</source>
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
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the counter for your invoice numbering and you can't undo this action.</source>
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
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to 'Created' first.</source>
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
        <source>You can't delete the default design.</source>
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
        <source>“%1” couldn’t be copied to “%2” because an item with the same name already exists.</source>
        <translation>„%1“ konnte nicht nach „%2“ kopiert werden, weil dort bereits ein Objekt mit demselben Namen existiert.</translation>
    </message>
    <message>
        <source>To save the file, either provide a different name, or move aside or delete the existing file, and try again.</source>
        <translation>Um die Datei zu sichern, geben Sie entweder einen anderen Namen an oder verschieben oder löschen Sie die vorhandene Datei und versuchen Sie es erneut.</translation>
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
    <name>vorn::GUIController</name>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Angebot löschen</translation>
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
    <name>vorn::InterchangeController</name>
    <message>
        <source>Warning!</source>
        <translation>Achtung!</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by design it can't know or care about duplicate invoices, messed up numbers, or if you're having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
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
        <translation>&amp;Dokument</translation>
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
        <translation>Angebot in Rechnung &amp;umwandeln …</translation>
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
        <translation>&amp;Aufgelistete Dokumente als XML exportieren …</translation>
    </message>
    <message>
        <source>Export &amp;All Documents as XML…</source>
        <translation>A&amp;lle Dokumente als XML exportieren …</translation>
    </message>
    <message>
        <source>&amp;Back Up Database…</source>
        <translation>Datenbank &amp;sichern …</translation>
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
        <translation>Als P&amp;DF exportieren …</translation>
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
        <source>Total %1    Paid %2    Due %3</source>
        <translation>Gesamt %1    Bezahlt %2    Offen %3</translation>
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
        <source>You're up to date!</source>
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
