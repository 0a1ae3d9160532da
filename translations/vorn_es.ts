<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AtomicFile</name>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>The sample items of the design preview are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sample items of the design preview are damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Federal Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third Tax</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HttpRequest</name>
    <message>
        <source>The answer of %1 is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InstanceLock</name>
    <message>
        <source>The Vorn database is in use by another Vorn program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit the other Vorn program (the application or a running vorn-cli) and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database could not be locked for use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lock file “%1” cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InterchangeFile</name>
    <message>
        <source>The file “%1” could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” is too large to be a Vorn file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a Vorn design.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a Vorn document.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>The file is damaged or not a Vorn file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds an object of an unknown class, “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is an archive of an unknown kind.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>&lt;small&gt;&lt;small&gt;Please provide a &apos;Logo Image&apos; in the Preferences&lt;br /&gt;or remove the &apos;LOGO&apos; substitute from the design/template.&lt;/small&gt;&lt;/small&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PdfImageView</name>
    <message>
        <source>The PDF “%1” could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PdfRenderer</name>
    <message>
        <source>The PDF could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>The file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large to be a Vorn file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged or not a property list.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtUserInterface</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Files (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is set up. Add a printer in the system settings, or export the document as a PDF file and print that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer “%1” did not accept the job.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SentLock</name>
    <message>
        <source>Error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Serialization</name>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a yes/no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a record has no class name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it names an unknown kind of record, “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a record of kind “%1” stands where a “%2” belongs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its records are nested too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds too many records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value of “%1” (%2) is not %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” is not a Vorn database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged and cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is shorter than its contents require; it may have been cut off while copying.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database could not be saved because the disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” cannot be written: you don&apos;t have permission.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database is in use by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” was made by a newer version of Vorn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This version of Vorn cannot read it. Use the newer version, or restore a backup made with this version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StoreSnapshot</name>
    <message>
        <source>The disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy “%1” could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be written to (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be flushed to disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no open Vorn database to copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SQLite&apos;s integrity check found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” could not be put in place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VCardReader</name>
    <message>
        <source>the card beginning on line %1 was cut off by the size limit and was not read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the card beginning on line %1 has no end; it was read as far as it goes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text outside of any card was ignored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no contact cards found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>card %1: line %2 is longer than the reader accepts and was skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>card %1: line %2 is not a property and was skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>card %1 has more than %2 properties; the rest were skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>card %1 (line %2) uses the unknown character set “%3” and was skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>larger than %1 MB; only the contacts in the first %1 MB were read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %1 contact files were found; only the first %1 were read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files to open (Vorn explains how to import them).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn is already running.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::AboutDialog</name>
    <message>
        <source>About Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledgements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::AddressController</name>
    <message>
        <source>You need to provide an address pattern in the Preferences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::AppDelegate</name>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You don&apos;t have permission to create it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default settings “%1” are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default settings “%1” are damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn, Vorn Documents, and the Vorn Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Vorn database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::AssiController</name>
    <message>
        <source>Warning!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It seems that you&apos;ve already setup Vorn and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30 Second Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to see the 30 second introduction video before creating your first invoice?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes, please!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No, I prefer to suffer in silence.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::AssistantSheet</name>
    <message>
        <source>Vorn Setup Assistant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Business</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose your language. Vorn writes its default texts in it: the words printed on your invoices and quotes, the payment terms, the tax names and the number patterns. Its windows use it too.

Running the assistant again replaces your own texts with these defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who writes the invoices? Your company name and your contact details go into your documents; you can change them later in the preferences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Company name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ontact:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;updates once a day when Vorn starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates once a day when Vorn starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribe to the Vorn newsletter to hear about new versions and tips. We write rarely, and you can leave at any time. This page is optional.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn is ready. Create your first invoice with the New Invoice button.

You find this assistant again in the Help menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Using Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Using Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::BackupController</name>
    <message>
        <source>It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or restore it from an internal backup. You should only proceed if you&apos;re sure that your database really is not intact, since this action will replace any possible data. Should Vorn not be able to repair or restore your database, please restore it from your own (Time Machine) backups. Do you want to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no open Vorn database to back up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A backup cannot replace the Vorn database itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose another name or folder for the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup Vorn Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Vorn database from your own (Time Machine) backups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are about to restore your complete Vorn database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Vorn Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: your Vorn database is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no place to restore the Vorn database to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” is the Vorn database itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” could not be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” disappeared while it was being read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::DataController</name>
    <message>
        <source>New Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the counter for your invoice numbering and you can&apos;t undo this action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::DesignController</name>
    <message>
        <source>The built-in design “%1” is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The built-in design “%1” is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texts of a new design are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can&apos;t delete the default design.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Vorn Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Vorn Design</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::DiscountController</name>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::DocumentListModel</name>
    <message>
        <source>Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partly Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ExportController</name>
    <message>
        <source>Print Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because an item with the same name already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To save the file, either provide a different name, or move aside or delete the existing file, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The PDF “%1” could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export As Vorn Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The e-mail could not be prepared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No mail program could be started. The PDF is shown in the file manager so that you can attach it to a message yourself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ExportSheet</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No document is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mail program opens a new message with the PDF attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mail program opens a new message to %1 with the PDF attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The invoice will be marked as sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::GUIController</name>
    <message>
        <source>Delete Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::HelpMenu</name>
    <message>
        <source>Vorn &amp;Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Introduction Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact &amp;Support…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn &amp;Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn on &amp;Twitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn on &amp;App.net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tandrelo &amp;Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribe to the &amp;Newsletter…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup Assis&amp;tant…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart Vorn?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The main window shows the language you chose after Vorn starts again. Restart now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Introduction Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::InterchangeController</name>
    <message>
        <source>Warning!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Vorn Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no database to import into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Vorn Database As XML</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ItemController</name>
    <message>
        <source>Add Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all changes to the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Convert Quote to Invoice…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark as &amp;Dispatched Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment &amp;Reminder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Document…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;Listed Documents as XML…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;All Documents as XML…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back Up Database…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore Database…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export as P&amp;DF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send by &amp;E-mail…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport Document…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No documents yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Vorn database could not be opened, so there are no documents to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total %1    Paid %2    Due %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterSubscription</name>
    <message>
        <source>Error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please provide a valid email address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Success!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I promise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterWindow</name>
    <message>
        <source>Vorn Newsletter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hear about new versions and tips. We write rarely, and you can leave at any time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ObjectContext</name>
    <message>
        <source>There is no entity named “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::PdfRenderer</name>
    <message>
        <source>Laying out the document took too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rendering needs the graphical application object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout engine stopped unexpectedly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document could not be laid out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout engine did not print the document.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::PreviewController</name>
    <message>
        <source>The PDF “%1” could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no default design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make one of the designs in the preferences the default design to see your documents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This design has no page template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the default design a page template in the preferences, or make another design the default design.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::PreviewWindow</name>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a document to see how it will look on paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the preview…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview – %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ReminderSheet</name>
    <message>
        <source>Payment Reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Reminder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ScreenCastController</name>
    <message>
        <source>Please check your internet connection!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::Settings</name>
    <message>
        <source>Your settings could not be read from “%1”. Vorn leaves the file as it is and uses its standard settings until it is repaired or removed; changes to settings are not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not hold a dictionary.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings were not saved because the settings file “%1” could not be read at start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ShippingController</name>
    <message>
        <source>Shipping</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is available; you have Vorn %2. Do you want to download the update now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Release notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Download…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vorn::ZRUpdateChecker</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should %1 look for a newer version once a day when it starts? You can change this at any time in the preferences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server answered with status %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version list is not a readable property list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version list has no version for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of available versions could not be loaded. Please check your internet connection and try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is the newest version available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to download the update now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
