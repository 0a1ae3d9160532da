<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AtomicFile</name>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>“%1” could not be written because a file of that name already exists.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être écrit, car un fichier portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>Choose another name, or move the existing file aside, and try again.</source>
        <translation>Choisissez un autre nom ou déplacez le fichier existant, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>CiiSummary</name>
    <message>
        <source>The amount %1 of the e-invoice is not a number.</source>
        <translation>Le montant %1 de la facture électronique n’est pas un nombre.</translation>
    </message>
    <message>
        <source>The e-invoice could not be read: %1</source>
        <translation>La facture électronique n’a pas pu être lue&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>The sample items of the design preview are missing.</source>
        <translation>Les articles d’exemple de l’aperçu du modèle sont introuvables.</translation>
    </message>
    <message>
        <source>The sample items of the design preview are damaged.</source>
        <translation>Les articles d’exemple de l’aperçu du modèle sont endommagés.</translation>
    </message>
    <message>
        <source>Federal Tax</source>
        <translation>Taxe fédérale</translation>
    </message>
    <message>
        <source>State Tax</source>
        <translation>Taxe d’État</translation>
    </message>
    <message>
        <source>Third Tax</source>
        <translation>Troisième taxe</translation>
    </message>
</context>
<context>
    <name>EInvoiceData</name>
    <message>
        <source>No tax charged</source>
        <translation>Aucune taxe facturée</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Livraison</translation>
    </message>
    <message>
        <source>Discount of %1 % on the total</source>
        <translation>Remise de %1&#xa0;% sur le total</translation>
    </message>
    <message>
        <source>Discount on the total</source>
        <translation>Remise sur le total</translation>
    </message>
    <message>
        <source>The amounts are computed without rounding and printed to the cent; the VAT computed per rate from the rounded line amounts differs from the printed total by %1 %2, given as the rounding amount.</source>
        <translation>Les montants sont calculés sans arrondi et imprimés au centime près&#xa0;; la TVA calculée par taux à partir des montants arrondis des lignes diffère du total imprimé de %1 %2, indiqués comme montant d’arrondi.</translation>
    </message>
</context>
<context>
    <name>FacturX</name>
    <message>
        <source>The colour profile of PDF/A files is missing.</source>
        <translation>Le profil colorimétrique des fichiers PDF/A est manquant.</translation>
    </message>
    <message>
        <source>An encrypted PDF cannot become a PDF/A file.</source>
        <translation>Un PDF chiffré ne peut pas devenir un fichier PDF/A.</translation>
    </message>
    <message>
        <source>The PDF could not be made into a Factur-X file.</source>
        <translation>Le PDF n’a pas pu être converti en fichier Factur-X.</translation>
    </message>
</context>
<context>
    <name>HttpRequest</name>
    <message>
        <source>The answer of %1 is too large.</source>
        <translation>La réponse de %1 est trop volumineuse.</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 n’a pas répondu à temps.</translation>
    </message>
</context>
<context>
    <name>InstanceLock</name>
    <message>
        <source>The Vorn database is in use by another Vorn program.</source>
        <translation>La base de données Vorn est utilisée par un autre programme Vorn.</translation>
    </message>
    <message>
        <source>Quit the other Vorn program (the application or a running vorn-cli) and try again.</source>
        <translation>Quittez l’autre programme Vorn (l’application ou un vorn-cli en cours) et réessayez.</translation>
    </message>
    <message>
        <source>The Vorn database could not be locked for use.</source>
        <translation>La base de données Vorn n’a pas pu être verrouillée.</translation>
    </message>
    <message>
        <source>The lock file “%1” cannot be created.</source>
        <translation>Le fichier de verrou «&#xa0;%1&#xa0;» ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>InterchangeFile</name>
    <message>
        <source>The file “%1” could not be opened.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>The file “%1” is too large to be a Vorn file.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est trop volumineux pour être un fichier Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The file is not a Vorn design.</source>
        <translation>Le fichier n’est pas un modèle Vorn.</translation>
    </message>
    <message>
        <source>The file is not a Vorn document.</source>
        <translation>Le fichier n’est pas un document Vorn.</translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>The file is damaged or not a Vorn file.</source>
        <translation>Le fichier est endommagé ou n’est pas un fichier Vorn.</translation>
    </message>
    <message>
        <source>The file holds an object of an unknown class, “%1”.</source>
        <translation>Le fichier contient un objet d’une classe inconnue, «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file is an archive of an unknown kind.</source>
        <translation>Le fichier est une archive d’un type inconnu.</translation>
    </message>
    <message>
        <source>The file unfolds into too many values to be a Vorn file.</source>
        <translation>Le fichier se déploie en trop de valeurs pour être un fichier Vorn.</translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>&lt;small&gt;&lt;small&gt;Please provide a &apos;Logo Image&apos; in the Preferences&lt;br /&gt;or remove the &apos;LOGO&apos; substitute from the design/template.&lt;/small&gt;&lt;/small&gt;</source>
        <translation>&lt;small&gt;&lt;small&gt;Veuillez indiquer une «&#xa0;image de logo&#xa0;» dans les préférences&lt;br /&gt;ou retirer le substitut «&#xa0;LOGO&#xa0;» du modèle.&lt;/small&gt;&lt;/small&gt;</translation>
    </message>
</context>
<context>
    <name>PdfImageView</name>
    <message>
        <source>The PDF “%1” could not be opened.</source>
        <translation>Le PDF «&#xa0;%1&#xa0;» n’a pas pu être ouvert.</translation>
    </message>
</context>
<context>
    <name>PdfRenderer</name>
    <message>
        <source>The PDF could not be made.</source>
        <translation>Le PDF n’a pas pu être créé.</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>7 days</source>
        <translation>7 jours</translation>
    </message>
    <message>
        <source>14 days</source>
        <translation>14 jours</translation>
    </message>
    <message>
        <source>21 days</source>
        <translation>21 jours</translation>
    </message>
    <message>
        <source>28 days</source>
        <translation>28 jours</translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file is too large to be a Vorn file.</source>
        <translation>Le fichier est trop volumineux pour être un fichier Vorn.</translation>
    </message>
    <message>
        <source>The file is damaged or not a property list.</source>
        <translation>Le fichier est endommagé ou n’est pas une liste de propriétés.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 Files (%2)</source>
        <translation>Fichiers %1 (%2)</translation>
    </message>
    <message>
        <source>No printer is set up. Add a printer in the system settings, or export the document as a PDF file and print that.</source>
        <translation>Aucune imprimante n’est configurée. Ajoutez une imprimante dans les paramètres du système, ou exportez le document en PDF et imprimez celui-ci.</translation>
    </message>
    <message>
        <source>The printer “%1” did not accept the job.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’a pas accepté la tâche.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Le document n’a pas pu être imprimé.</translation>
    </message>
</context>
<context>
    <name>SentLock</name>
    <message>
        <source>Error!</source>
        <translation>Erreur&#xa0;!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>La facture sélectionnée est déjà marquée comme envoyée. Si vous devez vraiment la modifier, remettez d’abord son statut sur «&#xa0;Créée&#xa0;». Vous pourrez alors aussi renvoyer la facture modifiée.</translation>
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
        <translation>du texte</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a yes/no value</source>
        <translation>une valeur oui/non</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>une date</translation>
    </message>
    <message>
        <source>data</source>
        <translation>des données</translation>
    </message>
    <message>
        <source>a record has no class name</source>
        <translation>un enregistrement n’a pas de nom de classe</translation>
    </message>
    <message>
        <source>it names an unknown kind of record, “%1”</source>
        <translation>il nomme un type d’enregistrement inconnu, «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a record of kind “%1” stands where a “%2” belongs</source>
        <translation>un enregistrement de type «&#xa0;%1&#xa0;» se trouve là où un «&#xa0;%2&#xa0;» est attendu</translation>
    </message>
    <message>
        <source>its records are nested too deeply</source>
        <translation>ses enregistrements sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>it holds too many records</source>
        <translation>il contient trop d’enregistrements</translation>
    </message>
    <message>
        <source>a list of records</source>
        <translation>une liste d’enregistrements</translation>
    </message>
    <message>
        <source>a record</source>
        <translation>un enregistrement</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Le fichier est endommagé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>the value of “%1” (%2) is not %3</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» (%2) n’est pas %3</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Vorn database.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas une base de données Vorn.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged and cannot be opened.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» est endommagée et ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>The file is shorter than its contents require; it may have been cut off while copying.</source>
        <translation>Le fichier est plus court que son contenu ne l’exige&#xa0;; il a peut-être été tronqué lors d’une copie.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” cannot be written: you don&apos;t have permission.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» ne peut pas être écrite&#xa0;: vous n’en avez pas l’autorisation.</translation>
    </message>
    <message>
        <source>The Vorn database is in use by another program.</source>
        <translation>La base de données Vorn est utilisée par un autre programme.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” was made by a newer version of Vorn.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» a été créée par une version plus récente de Vorn.</translation>
    </message>
    <message>
        <source>This version of Vorn cannot read it. Use the newer version, or restore a backup made with this version.</source>
        <translation>Cette version de Vorn ne peut pas la lire. Utilisez la version plus récente ou restaurez une sauvegarde faite avec cette version.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be created.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» n’a pas pu être créée.</translation>
    </message>
    <message>
        <source>The Vorn database could not be saved.</source>
        <translation>La base de données Vorn n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>The disk is full: the Vorn database could not be saved.</source>
        <translation>Le disque est plein&#xa0;: la base de données Vorn n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Your changes are kept while Vorn runs and saved with the next change once there is space again; what was saved before is not lost. (%1)</source>
        <translation>Vos modifications sont conservées tant que Vorn est ouvert et enregistrées avec la prochaine modification dès qu’il y aura de nouveau de la place&#xa0;; ce qui a été enregistré auparavant n’est pas perdu. (%1)</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be brought up to date.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» n’a pas pu être mise à jour.</translation>
    </message>
</context>
<context>
    <name>StoreSnapshot</name>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The copy “%1” could not be written.</source>
        <translation>La copie «&#xa0;%1&#xa0;» n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be written to (%2).</source>
        <translation>Impossible d’écrire dans le dossier «&#xa0;%1&#xa0;» (%2).</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The copy could not be flushed to disk.</source>
        <translation>La copie n’a pas pu être écrite sur le disque.</translation>
    </message>
    <message>
        <source>There is no open Vorn database to copy.</source>
        <translation>Aucune base de données Vorn n’est ouverte pour être copiée.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged.</source>
        <translation>La base de données Vorn «&#xa0;%1&#xa0;» est endommagée.</translation>
    </message>
    <message>
        <source>SQLite&apos;s integrity check found: %1</source>
        <translation>La vérification d’intégrité de SQLite a trouvé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in place.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être mis en place.</translation>
    </message>
</context>
<context>
    <name>SyntaxDefinition</name>
    <message>
        <source>The syntax definition “%1” is missing.</source>
        <translation>La définition de syntaxe «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>The syntax definition “%1” is damaged.</source>
        <translation>La définition de syntaxe «&#xa0;%1&#xa0;» est endommagée.</translation>
    </message>
</context>
<context>
    <name>VCardReader</name>
    <message>
        <source>the card beginning on line %1 was cut off by the size limit and was not read.</source>
        <translation>la fiche commençant à la ligne %1 a été tronquée par la limite de taille et n’a pas été lue.</translation>
    </message>
    <message>
        <source>the card beginning on line %1 has no end; it was read as far as it goes.</source>
        <translation>la fiche commençant à la ligne %1 n’a pas de fin&#xa0;; elle a été lue aussi loin que possible.</translation>
    </message>
    <message>
        <source>text outside of any card was ignored.</source>
        <translation>le texte situé hors de toute fiche a été ignoré.</translation>
    </message>
    <message>
        <source>no contact cards found.</source>
        <translation>aucune fiche de contact trouvée.</translation>
    </message>
    <message>
        <source>card %1: line %2 is longer than the reader accepts and was skipped.</source>
        <translation>fiche %1&#xa0;: la ligne %2 dépasse la longueur acceptée et a été ignorée.</translation>
    </message>
    <message>
        <source>card %1: line %2 is not a property and was skipped.</source>
        <translation>fiche %1&#xa0;: la ligne %2 n’est pas une propriété et a été ignorée.</translation>
    </message>
    <message>
        <source>card %1 has more than %2 properties; the rest were skipped.</source>
        <translation>la fiche %1 a plus de %2 propriétés&#xa0;; les autres ont été ignorées.</translation>
    </message>
    <message>
        <source>card %1 (line %2) uses the unknown character set “%3” and was skipped.</source>
        <translation>la fiche %1 (ligne %2) utilise le jeu de caractères inconnu «&#xa0;%3&#xa0;» et a été ignorée.</translation>
    </message>
    <message>
        <source>larger than %1 MB; only the contacts in the first %1 MB were read.</source>
        <translation>dépasse %1 Mo&#xa0;; seuls les contacts des %1 premiers Mo ont été lus.</translation>
    </message>
    <message>
        <source>cannot be read (%1).</source>
        <translation>ne peut pas être lu (%1).</translation>
    </message>
    <message>
        <source>does not exist.</source>
        <translation>n’existe pas.</translation>
    </message>
    <message>
        <source>More than %1 contact files were found; only the first %1 were read.</source>
        <translation>Plus de %1 fichiers de contacts ont été trouvés&#xa0;; seuls les %1 premiers ont été lus.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation>Factures, devis et rappels de paiement.</translation>
    </message>
    <message>
        <source>Files to open (Vorn explains how to import them).</source>
        <translation>Fichiers à ouvrir (Vorn explique comment les importer).</translation>
    </message>
    <message>
        <source>Vorn is already running.</source>
        <translation>Vorn est déjà ouvert.</translation>
    </message>
</context>
<context>
    <name>vorn::AboutDialog</name>
    <message>
        <source>About Vorn</source>
        <translation>À propos de Vorn</translation>
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
        <translation>Factures, devis et rappels de paiement.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Acknowledgements</source>
        <translation>Remerciements</translation>
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
        <translation>Veuillez indiquer un modèle d’adresse dans les préférences.</translation>
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
        <translation>&amp;Choisir une adresse…</translation>
    </message>
    <message>
        <source>Client &amp;address:</source>
        <translation>&amp;Adresse du client&#xa0;:</translation>
    </message>
    <message>
        <source>Client address</source>
        <translation>Adresse du client</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Générer</translation>
    </message>
    <message>
        <source>Generate client number</source>
        <translation>Générer un numéro de client</translation>
    </message>
    <message>
        <source>Client &amp;number:</source>
        <translation>&amp;Numéro de client&#xa0;:</translation>
    </message>
    <message>
        <source>Client number</source>
        <translation>Numéro de client</translation>
    </message>
    <message>
        <source>&amp;Subject:</source>
        <translation>&amp;Objet&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vorn::AddressPopover</name>
    <message>
        <source>Client Address</source>
        <translation>Adresse du client</translation>
    </message>
    <message>
        <source>Address source</source>
        <translation>Source de l’adresse</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Rechercher dans les contacts</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>Open Contacts Application</source>
        <translation>Ouvrir l’application Contacts</translation>
    </message>
    <message>
        <source>Recent Addresses</source>
        <translation>Adresses récentes</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Générer</translation>
    </message>
    <message>
        <source>Generate client number</source>
        <translation>Générer un numéro de client</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Client &amp;number:</source>
        <translation>&amp;Numéro de client&#xa0;:</translation>
    </message>
    <message>
        <source>Client number</source>
        <translation>Numéro de client</translation>
    </message>
    <message>
        <source>&amp;Use Address</source>
        <translation>&amp;Utiliser l’adresse</translation>
    </message>
    <message>
        <source>No contacts found. Vorn reads vCard files from the contacts folder set in the preferences.</source>
        <translation>Aucun contact trouvé. Vorn lit les fichiers vCard du dossier de contacts défini dans les préférences.</translation>
    </message>
</context>
<context>
    <name>vorn::AppDelegate</name>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Un dossier était attendu pour les données de l’application, mais un fichier a été trouvé (%1).</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to create it.</source>
        <translation>Vous n’avez pas l’autorisation de le créer.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Impossible d’initialiser le stockage</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Une erreur s’est produite lors de la création du fichier de données.</translation>
    </message>
    <message>
        <source>The default settings “%1” are missing.</source>
        <translation>Les réglages par défaut «&#xa0;%1&#xa0;» sont introuvables.</translation>
    </message>
    <message>
        <source>The default settings “%1” are damaged.</source>
        <translation>Les réglages par défaut «&#xa0;%1&#xa0;» sont endommagés.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Les modifications n’ont pas pu être enregistrées en quittant. Quitter quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si vous quittez maintenant, toutes les modifications faites depuis le dernier enregistrement réussi seront perdues</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Vorn, Vorn Documents, and the Vorn Database</source>
        <translation>Vorn, les documents Vorn et la base de données Vorn</translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Vorn database.</source>
        <translation>Pour éviter les doublons et les incidents, et pour garder la base de données intacte, utilisez le menu «&#xa0;Fichier&#xa0;» pour ouvrir des documents et pour restaurer la base de données Vorn.</translation>
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
        <translation>Attention&#xa0;!</translation>
    </message>
    <message>
        <source>It seems that you&apos;ve already setup Vorn and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
        <translation>Il semble que vous ayez déjà configuré Vorn et lancé l’assistant de configuration au moins une fois. Le relancer supprimera toutes vos personnalisations et les remplacera par les valeurs par défaut. Voulez-vous vraiment continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Continue…</source>
        <translation>Continuer…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>30 Second Introduction</source>
        <translation>Présentation en 30 secondes</translation>
    </message>
    <message>
        <source>Do you want to see the 30 second introduction video before creating your first invoice?</source>
        <translation>Voulez-vous voir la vidéo de présentation de 30 secondes avant de créer votre première facture&#xa0;?</translation>
    </message>
    <message>
        <source>Yes, please!</source>
        <translation>Oui, volontiers&#xa0;!</translation>
    </message>
    <message>
        <source>No, I prefer to suffer in silence.</source>
        <translation>Non, je préfère souffrir en silence.</translation>
    </message>
</context>
<context>
    <name>vorn::AssistantSheet</name>
    <message>
        <source>Vorn Setup Assistant</source>
        <translation>Assistant de configuration de Vorn</translation>
    </message>
    <message>
        <source>Welcome to Vorn</source>
        <translation>Bienvenue dans Vorn</translation>
    </message>
    <message>
        <source>Your Business</source>
        <translation>Votre entreprise</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Restez informé</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Choose your language. Vorn writes its default texts in it: the words printed on your invoices and quotes, the payment terms, the tax names and the number patterns. Its windows use it too.

Running the assistant again replaces your own texts with these defaults.</source>
        <translation>Choisissez votre langue. Vorn y rédige ses textes par défaut&#xa0;: les mots imprimés sur vos factures et devis, les conditions de paiement, les noms des taxes et les modèles de numérotation. Ses fenêtres l’utilisent aussi.

Relancer l’assistant remplace vos propres textes par ces valeurs par défaut.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Who writes the invoices? Your company name and your contact details go into your documents; you can change them later in the preferences.</source>
        <translation>Qui rédige les factures&#xa0;? Le nom de votre entreprise et vos coordonnées figurent dans vos documents&#xa0;; vous pourrez les modifier plus tard dans les préférences.</translation>
    </message>
    <message>
        <source>&amp;Company name:</source>
        <translation>Nom de l’&amp;entreprise&#xa0;:</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Nom de l’entreprise</translation>
    </message>
    <message>
        <source>C&amp;ontact:</source>
        <translation>C&amp;oordonnées&#xa0;:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <source>Check for &amp;updates once a day when Vorn starts</source>
        <translation>Rechercher les mises à &amp;jour une fois par jour au démarrage de Vorn</translation>
    </message>
    <message>
        <source>Check for updates once a day when Vorn starts</source>
        <translation>Rechercher les mises à jour une fois par jour au démarrage de Vorn</translation>
    </message>
    <message>
        <source>Subscribe to the Vorn newsletter to hear about new versions and tips. We write rarely, and you can leave at any time. This page is optional.</source>
        <translation>Abonnez-vous à la lettre d’information de Vorn pour être averti des nouvelles versions et recevoir des conseils. Nous écrivons rarement, et vous pouvez vous désabonner à tout moment. Cette étape est facultative.</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>Adresse e-mail</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>nom@exemple.fr</translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation>&amp;S’abonner</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>S’abonner</translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation>Abonnement en cours</translation>
    </message>
    <message>
        <source>Vorn is ready. Create your first invoice with the New Invoice button.

You find this assistant again in the Help menu.</source>
        <translation>Vorn est prêt. Créez votre première facture avec le bouton «&#xa0;Nouvelle facture&#xa0;».

Vous retrouverez cet assistant dans le menu Aide.</translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation>&amp;Quitter Vorn</translation>
    </message>
    <message>
        <source>Quit Vorn</source>
        <translation>Quitter Vorn</translation>
    </message>
    <message>
        <source>&amp;Start Using Vorn</source>
        <translation>&amp;Commencer avec Vorn</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>Start Using Vorn</source>
        <translation>Commencer avec Vorn</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>vorn::BackupController</name>
    <message>
        <source>It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or restore it from an internal backup. You should only proceed if you&apos;re sure that your database really is not intact, since this action will replace any possible data. Should Vorn not be able to repair or restore your database, please restore it from your own (Time Machine) backups. Do you want to proceed?</source>
        <translation>Votre base de données Vorn semble endommagée ou détruite. Vorn peut essayer de la réparer ou de la restaurer à partir d’une sauvegarde interne. Ne continuez que si vous êtes sûr que votre base de données n’est vraiment plus intacte, car cette opération remplacera les données éventuellement présentes. Si Vorn ne parvient pas à réparer ou à restaurer votre base de données, restaurez-la à partir de vos propres sauvegardes (Time Machine). Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>There is no open Vorn database to back up.</source>
        <translation>Aucune base de données Vorn n’est ouverte pour être sauvegardée.</translation>
    </message>
    <message>
        <source>A backup cannot replace the Vorn database itself.</source>
        <translation>Une sauvegarde ne peut pas remplacer la base de données Vorn elle-même.</translation>
    </message>
    <message>
        <source>Please choose another name or folder for the backup.</source>
        <translation>Veuillez choisir un autre nom ou un autre dossier pour la sauvegarde.</translation>
    </message>
    <message>
        <source>Backup Vorn Database</source>
        <translation>Sauvegarder la base de données Vorn</translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation>Base de données Vorn</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Attention&#xa0;!</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur&#xa0;!</translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Vorn database from your own (Time Machine) backups.</source>
        <translation>Aucune sauvegarde valide n’est disponible. Veuillez restaurer votre base de données Vorn à partir de vos propres sauvegardes (Time Machine).</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You are about to restore your complete Vorn database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation>Vous êtes sur le point de restaurer toute votre base de données Vorn à partir d’une sauvegarde. Toutes les données existantes seront remplacées de façon irréversible. Voulez-vous vraiment le faire&#xa0;?</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>Restore Vorn Database</source>
        <translation>Restaurer la base de données Vorn</translation>
    </message>
    <message>
        <source>Nothing was changed: your Vorn database is as it was.</source>
        <translation>Rien n’a été modifié&#xa0;: votre base de données Vorn est restée telle quelle.</translation>
    </message>
    <message>
        <source>There is no place to restore the Vorn database to.</source>
        <translation>Il n’y a aucun emplacement où restaurer la base de données Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” is the Vorn database itself.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est la base de données Vorn elle-même.</translation>
    </message>
    <message>
        <source>The file “%1” could not be found.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>The file “%1” disappeared while it was being read.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» a disparu pendant sa lecture.</translation>
    </message>
</context>
<context>
    <name>vorn::DataController</name>
    <message>
        <source>New Invoice</source>
        <translation>Nouvelle facture</translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation>Nouveau devis</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation>Désolé&#xa0;!</translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation>Impossible de convertir une facture en devis.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation>Convertir en facture</translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the counter for your invoice numbering and you can&apos;t undo this action.</source>
        <translation>Voulez-vous vraiment convertir le devis sélectionné en facture&#xa0;? Cela modifie aussi le titre et le compteur de votre numérotation des factures, et cette action est irréversible.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur&#xa0;!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation>La facture sélectionnée est déjà marquée comme envoyée. Si vous devez vraiment la supprimer, remettez d’abord son statut sur «&#xa0;Créée&#xa0;».</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>La suppression d’une facture est définitive et irréversible. Voulez-vous vraiment supprimer la facture sélectionnée&#xa0;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Supprimer le devis</translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation>La suppression d’un devis est définitive et irréversible. Voulez-vous vraiment supprimer le devis sélectionné&#xa0;?</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Expédiée</translation>
    </message>
</context>
<context>
    <name>vorn::DesignBuilder</name>
    <message>
        <source>Duplicate Design</source>
        <translation>Dupliquer le modèle</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>Edit Design</source>
        <translation>Modifier le modèle</translation>
    </message>
    <message>
        <source>Choose Logo</source>
        <translation>Choisir un logo</translation>
    </message>
    <message>
        <source>The logo was not changed.</source>
        <translation>Le logo n’a pas été modifié.</translation>
    </message>
    <message>
        <source>“%1” is too large for a logo.</source>
        <translation>«&#xa0;%1&#xa0;» est trop volumineux pour un logo.</translation>
    </message>
    <message>
        <source>“%1” could not be read.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>“%1” is not an image.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une image.</translation>
    </message>
</context>
<context>
    <name>vorn::DesignController</name>
    <message>
        <source>The built-in design “%1” is missing.</source>
        <translation>Le modèle intégré «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>The built-in design “%1” is damaged.</source>
        <translation>Le modèle intégré «&#xa0;%1&#xa0;» est endommagé.</translation>
    </message>
    <message>
        <source>The texts of a new design are missing.</source>
        <translation>Les textes d’un nouveau modèle sont introuvables.</translation>
    </message>
    <message>
        <source>New Design</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur&#xa0;!</translation>
    </message>
    <message>
        <source>You can&apos;t delete the default design.</source>
        <translation>Impossible de supprimer le modèle par défaut.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation>Supprimer le modèle</translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation>La suppression d’un modèle est définitive et irréversible. Voulez-vous vraiment supprimer le modèle sélectionné&#xa0;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>Import Vorn Design</source>
        <translation>Importer un modèle Vorn</translation>
    </message>
    <message>
        <source>Import Design</source>
        <translation>Importer le modèle</translation>
    </message>
    <message>
        <source>Export Vorn Design</source>
        <translation>Exporter le modèle Vorn</translation>
    </message>
</context>
<context>
    <name>vorn::DiscountController</name>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
</context>
<context>
    <name>vorn::DiscountPopover</name>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Show s&amp;ubtitle</source>
        <translation>Affic&amp;her le sous-titre</translation>
    </message>
    <message>
        <source>Fixed amount</source>
        <translation>Montant fixe</translation>
    </message>
    <message>
        <source>Percentage of the total</source>
        <translation>Pourcentage du total</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Sous-titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>T&amp;ype&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Pourcentage&#xa0;:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Montant&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;No Discount</source>
        <translation>&amp;Aucune remise</translation>
    </message>
    <message>
        <source>&amp;Give Discount</source>
        <translation>A&amp;ccorder une remise</translation>
    </message>
</context>
<context>
    <name>vorn::DocumentEditor</name>
    <message>
        <source>No document is selected.</source>
        <translation>Aucun document n’est sélectionné.</translation>
    </message>
    <message>
        <source>This invoice is marked as sent, so it cannot be changed. Set its status back to &quot;Created&quot; to change it.</source>
        <translation>Cette facture est marquée comme envoyée et ne peut donc pas être modifiée. Remettez son statut sur «&#xa0;Créée&#xa0;» pour la modifier.</translation>
    </message>
    <message>
        <source>Change Title</source>
        <translation>Modifier le titre</translation>
    </message>
    <message>
        <source>Change Subtitle</source>
        <translation>Modifier le sous-titre</translation>
    </message>
    <message>
        <source>Change Subject</source>
        <translation>Modifier l’objet</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Modifier l’adresse</translation>
    </message>
    <message>
        <source>Change E-mail Address</source>
        <translation>Modifier l’adresse e-mail</translation>
    </message>
    <message>
        <source>Change Client Number</source>
        <translation>Modifier le numéro de client</translation>
    </message>
    <message>
        <source>Change Number</source>
        <translation>Modifier le numéro</translation>
    </message>
    <message>
        <source>Change Date</source>
        <translation>Modifier la date</translation>
    </message>
    <message>
        <source>Change Due Date</source>
        <translation>Modifier l’échéance</translation>
    </message>
    <message>
        <source>Change Status</source>
        <translation>Modifier le statut</translation>
    </message>
    <message>
        <source>Change Paid Date</source>
        <translation>Modifier la date de paiement</translation>
    </message>
    <message>
        <source>Change Paid Amount</source>
        <translation>Modifier le montant payé</translation>
    </message>
    <message>
        <source>Change Dispatched</source>
        <translation>Modifier l’expédition</translation>
    </message>
    <message>
        <source>Change Dispatch Number</source>
        <translation>Modifier le numéro d’expédition</translation>
    </message>
    <message>
        <source>Change Currency</source>
        <translation>Modifier la devise</translation>
    </message>
    <message>
        <source>Change Notes</source>
        <translation>Modifier les notes</translation>
    </message>
    <message>
        <source>Change Conditions</source>
        <translation>Modifier les conditions</translation>
    </message>
    <message>
        <source>Change Footer</source>
        <translation>Modifier le pied de page</translation>
    </message>
    <message>
        <source>Change Quantity</source>
        <translation>Modifier la quantité</translation>
    </message>
    <message>
        <source>Change Unit</source>
        <translation>Modifier l’unité</translation>
    </message>
    <message>
        <source>Change Price</source>
        <translation>Modifier le prix</translation>
    </message>
    <message>
        <source>Change SKU</source>
        <translation>Modifier la référence</translation>
    </message>
    <message>
        <source>Change Note</source>
        <translation>Modifier la note</translation>
    </message>
    <message>
        <source>Change Tax</source>
        <translation>Modifier la taxe</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Livraison</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Change Buyer Country</source>
        <translation>Modifier le pays de l&apos;acheteur</translation>
    </message>
    <message>
        <source>Change Buyer VAT ID</source>
        <translation>Modifier le n° de TVA de l&apos;acheteur</translation>
    </message>
    <message>
        <source>Change Buyer Reference</source>
        <translation>Modifier la référence acheteur</translation>
    </message>
    <message>
        <source>Change Order Reference</source>
        <translation>Modifier la référence de commande</translation>
    </message>
</context>
<context>
    <name>vorn::DocumentListModel</name>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Payée</translation>
    </message>
    <message>
        <source>Partly Paid</source>
        <translation>Payée en partie</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créée</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
</context>
<context>
    <name>vorn::EInvoiceController</name>
    <message>
        <source>No invoice is selected.</source>
        <translation>Aucune facture n’est sélectionnée.</translation>
    </message>
    <message>
        <source>The invoice changed while its PDF was made.</source>
        <translation>La facture a été modifiée pendant la création de son PDF.</translation>
    </message>
    <message>
        <source>The e-invoice cannot be made</source>
        <translation>La facture électronique ne peut pas être créée</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Export As XRechnung XML</source>
        <translation>Exporter en XML XRechnung</translation>
    </message>
    <message>
        <source>Export As E-Invoice (Factur-X PDF)</source>
        <translation>Exporter en facture électronique (PDF Factur-X)</translation>
    </message>
</context>
<context>
    <name>vorn::EInvoiceValidator</name>
    <message>
        <source>Only invoices can be sent as e-invoices; this is a quote.</source>
        <translation>Seules les factures peuvent être envoyées en facture électronique&#xa0;; ceci est un devis.</translation>
    </message>
    <message>
        <source>The invoice&apos;s currency is missing.</source>
        <translation>La devise de la facture est manquante.</translation>
    </message>
    <message>
        <source>The currency “%1” has no ISO code: write it as a three-letter code such as EUR.</source>
        <translation>La devise «&#xa0;%1&#xa0;» n’a pas de code ISO&#xa0;: indiquez-la sous la forme d’un code à trois lettres comme EUR.</translation>
    </message>
    <message>
        <source>The seller&apos;s country is missing.</source>
        <translation>Le pays du vendeur est manquant.</translation>
    </message>
    <message>
        <source>The seller&apos;s country “%1” is not a two-letter country code such as DE.</source>
        <translation>Le pays du vendeur «&#xa0;%1&#xa0;» n’est pas un code pays à deux lettres comme FR.</translation>
    </message>
    <message>
        <source>The seller&apos;s VAT identifier or tax number is missing.</source>
        <translation>Le numéro de TVA ou le numéro fiscal du vendeur est manquant.</translation>
    </message>
    <message>
        <source>The seller&apos;s VAT identifier “%1” must begin with its country code, as in DE123456789.</source>
        <translation>Le numéro de TVA du vendeur «&#xa0;%1&#xa0;» doit commencer par son code pays, comme dans DE123456789.</translation>
    </message>
    <message>
        <source>The seller&apos;s IBAN is missing.</source>
        <translation>L’IBAN du vendeur est manquant.</translation>
    </message>
    <message>
        <source>The IBAN “%1” is not valid: its length or check digits are wrong.</source>
        <translation>L’IBAN «&#xa0;%1&#xa0;» n’est pas valide&#xa0;: sa longueur ou ses chiffres de contrôle sont erronés.</translation>
    </message>
    <message>
        <source>The BIC “%1” is not valid: it has 8 or 11 letters and digits.</source>
        <translation>Le BIC «&#xa0;%1&#xa0;» n’est pas valide&#xa0;: il comporte 8 ou 11 lettres et chiffres.</translation>
    </message>
    <message>
        <source>The buyer&apos;s country is missing.</source>
        <translation>Le pays de l’acheteur est manquant.</translation>
    </message>
    <message>
        <source>The buyer&apos;s country “%1” is not a two-letter country code such as DE.</source>
        <translation>Le pays de l’acheteur «&#xa0;%1&#xa0;» n’est pas un code pays à deux lettres comme FR.</translation>
    </message>
    <message>
        <source>The buyer&apos;s VAT identifier “%1” must begin with its country code, as in FR12345678901.</source>
        <translation>Le numéro de TVA de l’acheteur «&#xa0;%1&#xa0;» doit commencer par son code pays, comme dans FR12345678901.</translation>
    </message>
    <message>
        <source>The invoice has no items.</source>
        <translation>La facture ne contient aucun article.</translation>
    </message>
    <message>
        <source>Item %1 has no description.</source>
        <translation>L’article %1 n’a pas de description.</translation>
    </message>
    <message>
        <source>The invoice total must be more than zero: an invoice with a negative total is a credit note.</source>
        <translation>Le total de la facture doit être supérieur à zéro&#xa0;: une facture au total négatif est un avoir.</translation>
    </message>
    <message>
        <source>The invoice&apos;s amounts do not add up: change an item or recompute the invoice, then export it again.</source>
        <translation>Les montants de la facture ne concordent pas&#xa0;: modifiez un article ou recalculez la facture, puis exportez-la à nouveau.</translation>
    </message>
    <message>
        <source>The invoice number is missing.</source>
        <translation>Le numéro de facture est manquant.</translation>
    </message>
    <message>
        <source>The invoice date is missing.</source>
        <translation>La date de facture est manquante.</translation>
    </message>
    <message>
        <source>The seller&apos;s legal name is missing.</source>
        <translation>La raison sociale du vendeur est manquante.</translation>
    </message>
    <message>
        <source>The seller&apos;s street is missing.</source>
        <translation>La rue du vendeur est manquante.</translation>
    </message>
    <message>
        <source>The seller&apos;s postcode is missing.</source>
        <translation>Le code postal du vendeur est manquant.</translation>
    </message>
    <message>
        <source>The seller&apos;s city is missing.</source>
        <translation>La ville du vendeur est manquante.</translation>
    </message>
    <message>
        <source>The buyer&apos;s name is missing: it is the first line of the address.</source>
        <translation>Le nom de l’acheteur est manquant&#xa0;: c’est la première ligne de l’adresse.</translation>
    </message>
    <message>
        <source>The buyer reference (Leitweg-ID) is missing.</source>
        <translation>La référence de l’acheteur (Leitweg-ID) est manquante.</translation>
    </message>
    <message>
        <source>The seller&apos;s contact e-mail is missing.</source>
        <translation>L’e-mail de contact du vendeur est manquant.</translation>
    </message>
    <message>
        <source>The seller&apos;s contact phone is missing.</source>
        <translation>Le téléphone de contact du vendeur est manquant.</translation>
    </message>
    <message>
        <source>The buyer&apos;s e-mail address is missing.</source>
        <translation>L’adresse e-mail de l’acheteur est manquante.</translation>
    </message>
    <message>
        <source>The buyer&apos;s postcode and city are missing: write them on the last line of the address, as in “10115 Berlin”.</source>
        <translation>Le code postal et la ville de l’acheteur sont manquants&#xa0;: indiquez-les sur la dernière ligne de l’adresse, comme dans «&#xa0;75001 Paris&#xa0;».</translation>
    </message>
</context>
<context>
    <name>vorn::ExportController</name>
    <message>
        <source>Print Invoice</source>
        <translation>Imprimer la facture</translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation>Exporter la facture en PDF</translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation>Envoyer la facture en pièce jointe</translation>
    </message>
    <message>
        <source>Export Invoice</source>
        <translation>Exporter la facture</translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>The PDF “%1” could not be read.</source>
        <translation>Le PDF «&#xa0;%1&#xa0;» n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation>Exporter en document XML</translation>
    </message>
    <message>
        <source>Export As Vorn Document</source>
        <translation>Exporter en document Vorn</translation>
    </message>
    <message>
        <source>The e-mail could not be prepared</source>
        <translation>L’e-mail n’a pas pu être préparé</translation>
    </message>
    <message>
        <source>No mail program could be started. The PDF is shown in the file manager so that you can attach it to a message yourself.</source>
        <translation>Aucun programme de messagerie n’a pu être lancé. Le PDF est affiché dans le gestionnaire de fichiers pour que vous puissiez le joindre vous-même à un message.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation>Marquer comme envoyée</translation>
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
        <translation>Création du PDF…</translation>
    </message>
    <message>
        <source>No PDF</source>
        <translation>Pas de PDF</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Write E-mail</source>
        <translation>Rédiger l’e-mail</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>No document is selected.</source>
        <translation>Aucun document n’est sélectionné.</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 pages</translation>
    </message>
    <message>
        <source>Your mail program opens a new message with the PDF attached.</source>
        <translation>Votre messagerie ouvre un nouveau message avec le PDF en pièce jointe.</translation>
    </message>
    <message>
        <source>Your mail program opens a new message to %1 with the PDF attached.</source>
        <translation>Votre messagerie ouvre un nouveau message à %1 avec le PDF en pièce jointe.</translation>
    </message>
    <message>
        <source>The invoice will be marked as sent.</source>
        <translation>La facture sera marquée comme envoyée.</translation>
    </message>
</context>
<context>
    <name>vorn::FilterPopover</name>
    <message>
        <source>All Documents</source>
        <translation>Tous les documents</translation>
    </message>
    <message>
        <source>Sent Invoices</source>
        <translation>Factures envoyées</translation>
    </message>
    <message>
        <source>Overdue Invoices</source>
        <translation>Factures en retard</translation>
    </message>
    <message>
        <source>Paid Invoices</source>
        <translation>Factures payées</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>This Week</source>
        <translation>Cette semaine</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Ce mois-ci</translation>
    </message>
    <message>
        <source>This Year</source>
        <translation>Cette année</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Dated within</source>
        <translation>Période</translation>
    </message>
</context>
<context>
    <name>vorn::GUIController</name>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Supprimer le devis</translation>
    </message>
    <message>
        <source>No calculator found</source>
        <translation>Aucune calculatrice trouvée</translation>
    </message>
    <message>
        <source>Vorn starts GNOME Calculator, KCalc, Galculator or Qalculate, but none of them is installed.</source>
        <translation>Vorn lance GNOME Calculatrice, KCalc, Galculator ou Qalculate, mais aucune n’est installée.</translation>
    </message>
</context>
<context>
    <name>vorn::HelpMenu</name>
    <message>
        <source>Vorn &amp;Manual</source>
        <translation>&amp;Manuel de Vorn</translation>
    </message>
    <message>
        <source>&amp;Introduction Video</source>
        <translation>&amp;Vidéo de présentation</translation>
    </message>
    <message>
        <source>Contact &amp;Support…</source>
        <translation>Contacter l’&amp;assistance…</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Envoyer un &amp;avis…</translation>
    </message>
    <message>
        <source>Vorn &amp;Website</source>
        <translation>&amp;Site web de Vorn</translation>
    </message>
    <message>
        <source>&amp;Blog</source>
        <translation>&amp;Blog</translation>
    </message>
    <message>
        <source>Vorn on &amp;Twitter</source>
        <translation>Vorn sur &amp;Twitter</translation>
    </message>
    <message>
        <source>Vorn on &amp;App.net</source>
        <translation>Vorn sur A&amp;pp.net</translation>
    </message>
    <message>
        <source>Tandrelo &amp;Apps</source>
        <translation>Applications &amp;Tandrelo</translation>
    </message>
    <message>
        <source>Subscribe to the &amp;Newsletter…</source>
        <translation>S’abonner à la &amp;lettre d’information…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Rechercher les mises à &amp;jour…</translation>
    </message>
    <message>
        <source>Setup Assis&amp;tant…</source>
        <translation>Assistant de &amp;configuration…</translation>
    </message>
    <message>
        <source>&amp;About Vorn</source>
        <translation>À &amp;propos de Vorn</translation>
    </message>
    <message>
        <source>Restart Vorn?</source>
        <translation>Redémarrer Vorn&#xa0;?</translation>
    </message>
    <message>
        <source>The main window shows the language you chose after Vorn starts again. Restart now?</source>
        <translation>La fenêtre principale s’affichera dans la langue choisie au prochain démarrage de Vorn. Redémarrer maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Introduction Video</source>
        <translation>Vidéo de présentation</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
</context>
<context>
    <name>vorn::InfoPage</name>
    <message>
        <source>Info</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Ne&amp;xt Number</source>
        <translation>Numéro s&amp;uivant</translation>
    </message>
    <message>
        <source>Next number</source>
        <translation>Numéro suivant</translation>
    </message>
    <message>
        <source>Number this document from the numbering pattern</source>
        <translation>Numéroter ce document selon le modèle de numérotation</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numéro&#xa0;:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Date&#xa0;:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source> days from today</source>
        <translation> jours à partir d’aujourd’hui</translation>
    </message>
    <message>
        <source>Due in days from today</source>
        <translation>Échéance en jours à partir d’aujourd’hui</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>Éc&amp;héance&#xa0;:</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>&amp;Statut&#xa0;:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Paid amount</source>
        <translation>Montant payé</translation>
    </message>
    <message>
        <source>Paid &amp;amount:</source>
        <translation>&amp;Montant payé&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Paid on:</source>
        <translation>&amp;Payée le&#xa0;:</translation>
    </message>
    <message>
        <source>Paid on</source>
        <translation>Payée le</translation>
    </message>
    <message>
        <source>D&amp;ispatched</source>
        <translation>&amp;Expédiée</translation>
    </message>
    <message>
        <source>Dispatch number</source>
        <translation>Numéro d’expédition</translation>
    </message>
    <message>
        <source>Stamp &amp;Now</source>
        <translation>M&amp;aintenant</translation>
    </message>
    <message>
        <source>Mark as dispatched now</source>
        <translation>Marquer comme expédiée maintenant</translation>
    </message>
    <message>
        <source>Dispatch:</source>
        <translation>Expédition&#xa0;:</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Expédiée</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>De&amp;vise&#xa0;:</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Devise</translation>
    </message>
    <message>
        <source>N&amp;otes:</source>
        <translation>N&amp;otes&#xa0;:</translation>
    </message>
    <message>
        <source>Con&amp;ditions:</source>
        <translation>&amp;Conditions&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>P&amp;ied de page&#xa0;:</translation>
    </message>
    <message>
        <source>Quotes are not paid; convert the quote into an invoice first.</source>
        <translation>Les devis ne sont pas payés&#xa0;; convertissez d’abord le devis en facture.</translation>
    </message>
    <message>
        <source>E-Invoice</source>
        <translation>Facture électronique</translation>
    </message>
    <message>
        <source>e.g. DE</source>
        <translation>p.&#xa0;ex. FR</translation>
    </message>
    <message>
        <source>The buyer&apos;s country as a two-letter code</source>
        <translation>Le pays de l&apos;acheteur, en code à deux lettres</translation>
    </message>
    <message>
        <source>Buyer countr&amp;y:</source>
        <translation>Pa&amp;ys de l&apos;acheteur&#xa0;:</translation>
    </message>
    <message>
        <source>Buyer country</source>
        <translation>Pays de l&apos;acheteur</translation>
    </message>
    <message>
        <source>&amp;Buyer VAT ID:</source>
        <translation>N° de TVA de &amp;l&apos;acheteur&#xa0;:</translation>
    </message>
    <message>
        <source>Buyer VAT ID</source>
        <translation>N° de TVA de l&apos;acheteur</translation>
    </message>
    <message>
        <source>The reference the buyer gave, for public bodies their Leitweg-ID</source>
        <translation>La référence donnée par l&apos;acheteur, pour les organismes publics allemands leur Leitweg-ID</translation>
    </message>
    <message>
        <source>Buyer reference (&amp;Leitweg-ID):</source>
        <translation>&amp;Référence acheteur (Leitweg-ID)&#xa0;:</translation>
    </message>
    <message>
        <source>Order &amp;reference:</source>
        <translation>Ré&amp;férence de commande&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vorn::InterchangeController</name>
    <message>
        <source>Warning!</source>
        <translation>Attention&#xa0;!</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>L’intégrité de vos données relève de votre responsabilité, et de la vôtre seule. Vorn n’est qu’une simple application&#xa0;: par conception, elle ne peut ni savoir ni se soucier des factures en double, des numéros embrouillés ou de votre mauvaise humeur du jour. Alors, rendez-vous service et vérifiez bien ce que vous faites ici. Voulez-vous toujours importer la facture&#xa0;?</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import Vorn Document</source>
        <translation>Importer un document Vorn</translation>
    </message>
    <message>
        <source>There is no database to import into.</source>
        <translation>Il n’y a aucune base de données dans laquelle importer.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation>Base de données Vorn</translation>
    </message>
    <message>
        <source>Export Vorn Database As XML</source>
        <translation>Exporter la base de données Vorn en XML</translation>
    </message>
</context>
<context>
    <name>vorn::ItemCellView</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titre</translation>
    </message>
</context>
<context>
    <name>vorn::ItemController</name>
    <message>
        <source>Add Item</source>
        <translation>Ajouter un article</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Supprimer l’article</translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation>La suppression d’un article est définitive et irréversible. Voulez-vous vraiment supprimer l’article sélectionné&#xa0;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Move Items</source>
        <translation>Déplacer les articles</translation>
    </message>
</context>
<context>
    <name>vorn::ItemPopover</name>
    <message>
        <source>New Item</source>
        <translation>Nouvel article</translation>
    </message>
    <message>
        <source>Item source</source>
        <translation>Source de l’article</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Sous-titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>&amp;Quantité&#xa0;:</translation>
    </message>
    <message>
        <source>U&amp;nit:</source>
        <translation>U&amp;nité&#xa0;:</translation>
    </message>
    <message>
        <source>Unit &amp;price:</source>
        <translation>&amp;Prix unitaire&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;KU:</source>
        <translation>&amp;Référence&#xa0;:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>N&amp;ote&#xa0;:</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Taxes&#xa0;:</translation>
    </message>
    <message>
        <source>Recent Items</source>
        <translation>Articles récents</translation>
    </message>
    <message>
        <source>&amp;Add Item</source>
        <translation>&amp;Ajouter l’article</translation>
    </message>
    <message>
        <source>&amp;Use Item</source>
        <translation>&amp;Utiliser l’article</translation>
    </message>
</context>
<context>
    <name>vorn::ItemTableModel</name>
    <message>
        <source>Gross %1</source>
        <translation>Brut %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titre</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Prix unitaire</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
</context>
<context>
    <name>vorn::ItemsPage</name>
    <message>
        <source>Items</source>
        <translation>Articles</translation>
    </message>
    <message>
        <source>Add Item…</source>
        <translation>Ajouter un article…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Supprimer l’article</translation>
    </message>
    <message>
        <source>Shipping…</source>
        <translation>Livraison…</translation>
    </message>
    <message>
        <source>Discount…</source>
        <translation>Remise…</translation>
    </message>
    <message>
        <source>Subtotal %1</source>
        <translation>Sous-total %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>Shipping %1</source>
        <translation>Livraison %1</translation>
    </message>
    <message>
        <source>Discount %1 %</source>
        <translation>Remise %1&#xa0;%</translation>
    </message>
    <message>
        <source>Discount %1</source>
        <translation>Remise %1</translation>
    </message>
    <message>
        <source>Total %1 %2</source>
        <translation>Total %1 %2</translation>
    </message>
</context>
<context>
    <name>vorn::LineNumberRuler</name>
    <message>
        <source>Line numbers</source>
        <translation>Numéros de ligne</translation>
    </message>
</context>
<context>
    <name>vorn::LockBanner</name>
    <message>
        <source>This invoice is marked as sent, so its fields are read-only. To change it, set its status back to &quot;Created&quot; on the Info page.</source>
        <translation>Cette facture est marquée comme envoyée, ses champs sont donc en lecture seule. Pour la modifier, remettez son statut sur «&#xa0;Créée&#xa0;» dans la page Infos.</translation>
    </message>
</context>
<context>
    <name>vorn::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save all changes to the database</source>
        <translation>Enregistrer toutes les modifications dans la base de données</translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation>&amp;Quitter Vorn</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>Doc&amp;ument</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>New &amp;Invoice</source>
        <translation>Nouvelle &amp;facture</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>New &amp;Quote</source>
        <translation>&amp;Nouveau devis</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>&amp;Convert Quote to Invoice…</source>
        <translation>&amp;Convertir le devis en facture…</translation>
    </message>
    <message>
        <source>Mark as &amp;Dispatched Now</source>
        <translation>Marquer comme &amp;expédiée maintenant</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Payment &amp;Reminder…</source>
        <translation>&amp;Rappel de paiement…</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>&amp;Import Document…</source>
        <translation>Imp&amp;orter un document…</translation>
    </message>
    <message>
        <source>Export &amp;Listed Documents as XML…</source>
        <translation>Exporter les documents &amp;listés en XML…</translation>
    </message>
    <message>
        <source>Export &amp;All Documents as XML…</source>
        <translation>Exporter &amp;tous les documents en XML…</translation>
    </message>
    <message>
        <source>&amp;Back Up Database…</source>
        <translation>&amp;Sauvegarder la base de données…</translation>
    </message>
    <message>
        <source>&amp;Restore Database…</source>
        <translation>&amp;Restaurer la base de données…</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Export as P&amp;DF…</source>
        <translation>Exporter en P&amp;DF…</translation>
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
        <translation>Envoyer par e-&amp;mail…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>E&amp;xport Document…</source>
        <translation>E&amp;xporter le document…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>No documents yet.</source>
        <translation>Aucun document pour l’instant.</translation>
    </message>
    <message>
        <source>The Vorn database could not be opened, so there are no documents to show.</source>
        <translation>La base de données Vorn n’a pas pu être ouverte&#xa0;; il n’y a donc aucun document à afficher.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 facture</translation>
    </message>
    <message>
        <source>%1 invoices</source>
        <translation>%1 factures</translation>
    </message>
    <message>
        <source>1 quote</source>
        <translation>1 devis</translation>
    </message>
    <message>
        <source>%1 quotes</source>
        <translation>%1 devis</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Afficha&amp;ge</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Articles</translation>
    </message>
    <message>
        <source>&amp;Calculator</source>
        <translation>Ca&amp;lculatrice</translation>
    </message>
    <message>
        <source>Ctrl+Shift+K</source>
        <translation>Ctrl+Shift+K</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculatrice</translation>
    </message>
    <message>
        <source>Choose &amp;Address…</source>
        <translation>Choisir l’&amp;adresse…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Add Item…</source>
        <translation>&amp;Ajouter un article…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+I</source>
        <translation>Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>De&amp;lete Item</source>
        <translation>&amp;Supprimer l’article</translation>
    </message>
    <message>
        <source>Ctrl+Backspace</source>
        <translation>Ctrl+Backspace</translation>
    </message>
    <message>
        <source>&amp;Shipping…</source>
        <translation>&amp;Livraison…</translation>
    </message>
    <message>
        <source>D&amp;iscount…</source>
        <translation>&amp;Remise…</translation>
    </message>
    <message>
        <source>&amp;Filter List…</source>
        <translation>&amp;Filtrer la liste…</translation>
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
        <translation>Articles</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Show the %1 page</source>
        <translation>Afficher la page «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Export as E-Invoice (&amp;Factur-X PDF)…</source>
        <translation>Exporter en facture électronique (Factur-X &amp;PDF)…</translation>
    </message>
    <message>
        <source>Export as XRec&amp;hnung XML…</source>
        <translation>Exporter en XML XRec&amp;hnung…</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Select a document in the list, or make a new invoice or quote.</source>
        <translation>Sélectionnez un document dans la liste, ou créez une nouvelle facture ou un nouveau devis.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Showing %1</source>
        <translation>Affichage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Showing all documents</source>
        <translation>Tous les documents sont affichés</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation>Filtrer la liste</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir %1</translation>
    </message>
    <message>
        <source>Total %1
Paid %2 · Due %3</source>
        <translation>Total %1
Payé %2 · Dû %3</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Autres outils</translation>
    </message>
    <message>
        <source>Divider between list and document</source>
        <translation>Séparateur entre la liste et le document</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterSubscription</name>
    <message>
        <source>Error!</source>
        <translation>Erreur&#xa0;!</translation>
    </message>
    <message>
        <source>Please provide a valid email address.</source>
        <translation>Veuillez indiquer une adresse e-mail valide.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Success!</source>
        <translation>C’est fait&#xa0;!</translation>
    </message>
    <message>
        <source>Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I promise.</source>
        <translation>Merci de votre abonnement. Et oui, c’est bien plus que du simple spam ennuyeux de Kelvo Apps. Promis.</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>Veuillez vérifier votre connexion Internet et réessayer.</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterWindow</name>
    <message>
        <source>Vorn Newsletter</source>
        <translation>Lettre d’information de Vorn</translation>
    </message>
    <message>
        <source>Hear about new versions and tips. We write rarely, and you can leave at any time.</source>
        <translation>Soyez averti des nouvelles versions et recevez des conseils. Nous écrivons rarement, et vous pouvez vous désabonner à tout moment.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>Adresse e-mail</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>nom@exemple.fr</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation>Abonnement en cours</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation>&amp;S’abonner</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>S’abonner</translation>
    </message>
</context>
<context>
    <name>vorn::ObjectContext</name>
    <message>
        <source>There is no entity named “%1”.</source>
        <translation>Il n’existe aucune entité nommée «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>vorn::PdfRenderer</name>
    <message>
        <source>Laying out the document took too long.</source>
        <translation>La mise en page du document a pris trop de temps.</translation>
    </message>
    <message>
        <source>Rendering needs the graphical application object.</source>
        <translation>Le rendu nécessite l’objet d’application graphique.</translation>
    </message>
    <message>
        <source>The layout engine stopped unexpectedly.</source>
        <translation>Le moteur de mise en page s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>The document could not be laid out.</source>
        <translation>Le document n’a pas pu être mis en page.</translation>
    </message>
    <message>
        <source>The layout engine did not print the document.</source>
        <translation>Le moteur de mise en page n’a pas imprimé le document.</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesBuilderPane</name>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Item Row</source>
        <translation>Ligne d’article</translation>
    </message>
    <message>
        <source>Style Sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>%1 template</source>
        <translation>Gabarit %1</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Gabarits</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesDesignList</name>
    <message>
        <source>Designs</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>New design</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Duplicate the selected design</source>
        <translation>Dupliquer le modèle sélectionné</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete the selected design</source>
        <translation>Supprimer le modèle sélectionné</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>Render every document with the selected design</source>
        <translation>Afficher chaque document avec le modèle sélectionné</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Import a design file</source>
        <translation>Importer un fichier de modèle</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Export the selected design</source>
        <translation>Exporter le modèle sélectionné</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Preview the default design</source>
        <translation>Aperçu du modèle par défaut</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesDesignModel</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Rename Design</source>
        <translation>Renommer le modèle</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Modèle</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesLivePreview</name>
    <message>
        <source>Design preview</source>
        <translation>Aperçu du modèle</translation>
    </message>
    <message>
        <source>Preview status</source>
        <translation>État de l’aperçu</translation>
    </message>
    <message>
        <source>Rendering…</source>
        <translation>Rendu en cours…</translation>
    </message>
    <message>
        <source>The preview could not be made: %1</source>
        <translation>L’aperçu n’a pas pu être créé&#xa0;: %1</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 pages</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Gabarit</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Builder</source>
        <translation>Atelier</translation>
    </message>
    <message>
        <source>&amp;Panes</source>
        <translation>&amp;Volets</translation>
    </message>
    <message>
        <source>Your company</source>
        <translation>Votre entreprise</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation>&amp;Coordonnées&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Letterbox line:</source>
        <translation>Ligne d’&amp;expéditeur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Slogan:</source>
        <translation>&amp;Slogan&#xa0;:</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose logo</source>
        <translation>Choisir un logo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove logo</source>
        <translation>Retirer le logo</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo&#xa0;:</translation>
    </message>
    <message>
        <source>No logo</source>
        <translation>Pas de logo</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Number new invoices</source>
        <translation>Numéroter les nouvelles factures</translation>
    </message>
    <message>
        <source>Invoice number pattern:</source>
        <translation>Modèle de numéro de facture&#xa0;:</translation>
    </message>
    <message>
        <source>Invoice counter offset:</source>
        <translation>Décalage du compteur de factures&#xa0;:</translation>
    </message>
    <message>
        <source>Give new invoices a due date</source>
        <translation>Donner une échéance aux nouvelles factures</translation>
    </message>
    <message>
        <source>Due after:</source>
        <translation>Échéance après&#xa0;:</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Number new quotes</source>
        <translation>Numéroter les nouveaux devis</translation>
    </message>
    <message>
        <source>Quote number pattern:</source>
        <translation>Modèle de numéro de devis&#xa0;:</translation>
    </message>
    <message>
        <source>Quote counter offset:</source>
        <translation>Décalage du compteur de devis&#xa0;:</translation>
    </message>
    <message>
        <source>Give new quotes an expiry date</source>
        <translation>Donner une date d’expiration aux nouveaux devis</translation>
    </message>
    <message>
        <source>Valid for:</source>
        <translation>Valable&#xa0;:</translation>
    </message>
    <message>
        <source>Document texts</source>
        <translation>Textes des documents</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Devis</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>%1 conditions:</source>
        <translation>Conditions (%1)&#xa0;:</translation>
    </message>
    <message>
        <source>%1 footer:</source>
        <translation>Pied de page (%1)&#xa0;:</translation>
    </message>
    <message>
        <source>Miscellaneous:</source>
        <translation>Divers&#xa0;:</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>Tax %1 applies</source>
        <translation>La taxe %1 s’applique</translation>
    </message>
    <message>
        <source>Tax %1 title:</source>
        <translation>Nom de la taxe %1&#xa0;:</translation>
    </message>
    <message>
        <source>Tax %1 rate:</source>
        <translation>Taux de la taxe %1&#xa0;:</translation>
    </message>
    <message>
        <source>Tax %1 is charged on the taxes before it</source>
        <translation>La taxe %1 s’applique aux taxes qui la précèdent</translation>
    </message>
    <message>
        <source>Words printed on documents</source>
        <translation>Mots imprimés sur les documents</translation>
    </message>
    <message>
        <source>Invoice:</source>
        <translation>Facture&#xa0;:</translation>
    </message>
    <message>
        <source>Quote:</source>
        <translation>Devis&#xa0;:</translation>
    </message>
    <message>
        <source>Reminder:</source>
        <translation>Rappel&#xa0;:</translation>
    </message>
    <message>
        <source>Invoice number:</source>
        <translation>Numéro de facture&#xa0;:</translation>
    </message>
    <message>
        <source>Quote number:</source>
        <translation>Numéro de devis&#xa0;:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Numéro de client&#xa0;:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Échéance&#xa0;:</translation>
    </message>
    <message>
        <source>Subtotal:</source>
        <translation>Sous-total&#xa0;:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total&#xa0;:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Remise&#xa0;:</translation>
    </message>
    <message>
        <source>Shipping:</source>
        <translation>Livraison&#xa0;:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Quantité&#xa0;:</translation>
    </message>
    <message>
        <source>Unit price:</source>
        <translation>Prix unitaire&#xa0;:</translation>
    </message>
    <message>
        <source>Page numbers:</source>
        <translation>Numéros de page&#xa0;:</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Print page numbers</source>
        <translation>Imprimer les numéros de page</translation>
    </message>
    <message>
        <source>Print the document&apos;s details beside the page numbers</source>
        <translation>Imprimer les détails du document à côté des numéros de page</translation>
    </message>
    <message>
        <source>Print without margins</source>
        <translation>Imprimer sans marges</translation>
    </message>
    <message>
        <source>Item rows show the net amount</source>
        <translation>Les lignes d’article affichent le montant net</translation>
    </message>
    <message>
        <source>Item rows show the article number</source>
        <translation>Les lignes d’article affichent la référence</translation>
    </message>
    <message>
        <source>Printing or exporting marks the document as sent</source>
        <translation>Imprimer ou exporter marque le document comme envoyé</translation>
    </message>
    <message>
        <source>Border font</source>
        <translation>Police des marges</translation>
    </message>
    <message>
        <source>Choose border font</source>
        <translation>Choisir la police des marges</translation>
    </message>
    <message>
        <source>Border font:</source>
        <translation>Police des marges&#xa0;:</translation>
    </message>
    <message>
        <source>Border Font</source>
        <translation>Police des marges</translation>
    </message>
    <message>
        <source>Every document is rendered with the default design. Edit designs in the Builder.</source>
        <translation>Chaque document est affiché avec le modèle par défaut. Modifiez les modèles dans l’atelier.</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier&#xa0;:</translation>
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
        <translation>Montants et dates</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Devise&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Date pattern:</source>
        <translation>Modèle de &amp;date&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>Client addresses</source>
        <translation>Adresses des clients</translation>
    </message>
    <message>
        <source>&amp;Address pattern:</source>
        <translation>Modèle d’&amp;adresse&#xa0;:</translation>
    </message>
    <message>
        <source>Client number &amp;pattern:</source>
        <translation>Modèle de &amp;numéro de client&#xa0;:</translation>
    </message>
    <message>
        <source>Client counter offset:</source>
        <translation>Décalage du compteur de clients&#xa0;:</translation>
    </message>
    <message>
        <source>E-invoices</source>
        <translation>Factures électroniques</translation>
    </message>
    <message>
        <source>Le&amp;gal name:</source>
        <translation>&amp;Raison sociale&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;treet:</source>
        <translation>R&amp;ue&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Postcode:</source>
        <translation>Code p&amp;ostal&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;ity:</source>
        <translation>&amp;Ville&#xa0;:</translation>
    </message>
    <message>
        <source>Co&amp;untry code:</source>
        <translation>Code &amp;pays&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;VAT identifier:</source>
        <translation>Numéro de &amp;TVA&#xa0;:</translation>
    </message>
    <message>
        <source>Ta&amp;x number:</source>
        <translation>Numéro &amp;fiscal&#xa0;:</translation>
    </message>
    <message>
        <source>Contact &amp;e-mail:</source>
        <translation>E-&amp;mail de contact&#xa0;:</translation>
    </message>
    <message>
        <source>Contact p&amp;hone:</source>
        <translation>Télép&amp;hone de contact&#xa0;:</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Paiements</translation>
    </message>
    <message>
        <source>&amp;IBAN:</source>
        <translation>&amp;IBAN&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;BIC:</source>
        <translation>&amp;BIC&#xa0;:</translation>
    </message>
    <message>
        <source>Account &amp;holder:</source>
        <translation>Titulaire du co&amp;mpte&#xa0;:</translation>
    </message>
    <message>
        <source>Export invoices as Factur-X PDF (e-invoice)</source>
        <translation>Exporter les factures en PDF Factur-X (facture électronique)</translation>
    </message>
</context>
<context>
    <name>vorn::PreviewController</name>
    <message>
        <source>The PDF “%1” could not be written.</source>
        <translation>Le PDF «&#xa0;%1&#xa0;» n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>There is no default design</source>
        <translation>Il n’y a pas de modèle par défaut</translation>
    </message>
    <message>
        <source>Make one of the designs in the preferences the default design to see your documents.</source>
        <translation>Définissez l’un des modèles comme modèle par défaut dans les préférences pour voir vos documents.</translation>
    </message>
    <message>
        <source>This design has no page template</source>
        <translation>Ce modèle n’a pas de gabarit de page</translation>
    </message>
    <message>
        <source>Give the default design a page template in the preferences, or make another design the default design.</source>
        <translation>Donnez un gabarit de page au modèle par défaut dans les préférences, ou définissez un autre modèle par défaut.</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>Oups&#xa0;!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Quelque chose s’est vraiment mal passé lors de la création de l’aperçu.</translation>
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
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>The preview could not be made.</source>
        <translation>L’aperçu n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>Select a document to see how it will look on paper.</source>
        <translation>Sélectionnez un document pour voir à quoi il ressemblera sur papier.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Ajuster à la largeur</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation>L’aperçu n’a pas pu être affiché.</translation>
    </message>
    <message>
        <source>Making the preview…</source>
        <translation>Création de l’aperçu…</translation>
    </message>
    <message>
        <source>Preview – %1</source>
        <translation>Aperçu – %1</translation>
    </message>
    <message>
        <source>Page thumbnails</source>
        <translation>Miniatures des pages</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>vorn::ReminderSheet</name>
    <message>
        <source>Payment Reminder</source>
        <translation>Rappel de paiement</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Conditions&#xa0;:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pied de page&#xa0;:</translation>
    </message>
    <message>
        <source>Create Reminder</source>
        <translation>Créer le rappel</translation>
    </message>
</context>
<context>
    <name>vorn::ScreenCastController</name>
    <message>
        <source>Please check your internet connection!</source>
        <translation>Veuillez vérifier votre connexion Internet&#xa0;!</translation>
    </message>
</context>
<context>
    <name>vorn::Settings</name>
    <message>
        <source>Your settings could not be read from “%1”. Vorn leaves the file as it is and uses its standard settings until it is repaired or removed; changes to settings are not saved.</source>
        <translation>Vos réglages n’ont pas pu être lus depuis «&#xa0;%1&#xa0;». Vorn laisse le fichier tel quel et utilise ses réglages standard jusqu’à ce qu’il soit réparé ou supprimé&#xa0;; les modifications des réglages ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>The file does not hold a dictionary.</source>
        <translation>Le fichier ne contient pas de dictionnaire.</translation>
    </message>
    <message>
        <source>Your settings were not saved because the settings file “%1” could not be read at start.</source>
        <translation>Vos réglages n’ont pas été enregistrés, car le fichier de réglages «&#xa0;%1&#xa0;» n’a pas pu être lu au démarrage.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Vos réglages n’ont pas pu être enregistrés.</translation>
    </message>
</context>
<context>
    <name>vorn::ShippingController</name>
    <message>
        <source>Shipping</source>
        <translation>Livraison</translation>
    </message>
</context>
<context>
    <name>vorn::ShippingPopover</name>
    <message>
        <source>Shipping</source>
        <translation>Livraison</translation>
    </message>
    <message>
        <source>Shipping source</source>
        <translation>Source de la livraison</translation>
    </message>
    <message>
        <source>Show s&amp;ubtitle</source>
        <translation>Affic&amp;her le sous-titre</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Sous-titre&#xa0;:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Montant&#xa0;:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>&amp;Note&#xa0;:</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Taxe %1</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Taxes&#xa0;:</translation>
    </message>
    <message>
        <source>Recent Shipping</source>
        <translation>Livraisons récentes</translation>
    </message>
    <message>
        <source>&amp;No Shipping</source>
        <translation>&amp;Aucune livraison</translation>
    </message>
    <message>
        <source>&amp;Charge Shipping</source>
        <translation>&amp;Facturer la livraison</translation>
    </message>
</context>
<context>
    <name>vorn::TemplateEditor</name>
    <message>
        <source>Indent</source>
        <translation>Indenter</translation>
    </message>
    <message>
        <source>Unindent</source>
        <translation>Désindenter</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commenter</translation>
    </message>
</context>
<context>
    <name>vorn::UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Mise à jour disponible&#xa0;!</translation>
    </message>
    <message>
        <source>A new version</source>
        <translation>Une nouvelle version</translation>
    </message>
    <message>
        <source>%1 is available; you have Vorn %2. Do you want to download the update now?</source>
        <translation>%1 est disponible&#xa0;; vous avez Vorn %2. Voulez-vous télécharger la mise à jour maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Release notes:</source>
        <translation>&amp;Notes de version&#xa0;:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Les notes de version n’ont pas pu être chargées.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>&amp;Download…</source>
        <translation>&amp;Télécharger…</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
</context>
<context>
    <name>vorn::ZRUpdateChecker</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Rechercher automatiquement les mises à jour&#xa0;?</translation>
    </message>
    <message>
        <source>Should %1 look for a newer version once a day when it starts? You can change this at any time in the preferences.</source>
        <translation>%1 doit-il rechercher une version plus récente une fois par jour au démarrage&#xa0;? Vous pouvez modifier ce choix à tout moment dans les préférences.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The server answered with status %1.</source>
        <translation>Le serveur a répondu avec le statut %1.</translation>
    </message>
    <message>
        <source>The version list is not a readable property list.</source>
        <translation>La liste des versions n’est pas une liste de propriétés lisible.</translation>
    </message>
    <message>
        <source>The version list has no version for %1.</source>
        <translation>La liste des versions ne contient aucune version pour %1.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Impossible de rechercher les mises à jour</translation>
    </message>
    <message>
        <source>The list of available versions could not be loaded. Please check your internet connection and try again later.</source>
        <translation>La liste des versions disponibles n’a pas pu être chargée. Veuillez vérifier votre connexion Internet et réessayer plus tard.</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Vous êtes à jour&#xa0;!</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version available.</source>
        <translation>%1 %2 est la version la plus récente disponible.</translation>
    </message>
    <message>
        <source>Do you want to download the update now?</source>
        <translation>Voulez-vous télécharger la mise à jour maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Mise à jour disponible&#xa0;!</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Télécharger…</translation>
    </message>
</context>
</TS>
