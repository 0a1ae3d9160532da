<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AtomicFile</name>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Le dossier « %1 » n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>Le fichier « %1 » n’a pas pu être écrit.</translation>
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
        <translation>Le fichier de verrou « %1 » ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>InterchangeFile</name>
    <message>
        <source>The file “%1” could not be opened.</source>
        <translation>Le fichier « %1 » n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>The file “%1” is too large to be a Vorn file.</source>
        <translation>Le fichier « %1 » est trop volumineux pour être un fichier Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>Le fichier « %1 » n’a pas pu être lu.</translation>
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
        <translation>Le fichier contient un objet d’une classe inconnue, « %1 ».</translation>
    </message>
    <message>
        <source>The file is an archive of an unknown kind.</source>
        <translation>Le fichier est une archive d’un type inconnu.</translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>&lt;small&gt;&lt;small&gt;Please provide a 'Logo Image' in the Preferences&lt;br /&gt;or remove the 'LOGO' substitute from the design/template.&lt;/small&gt;&lt;/small&gt;</source>
        <translation>&lt;small&gt;&lt;small&gt;Veuillez indiquer une « image de logo » dans les préférences&lt;br /&gt;ou retirer le substitut « LOGO » du modèle.&lt;/small&gt;&lt;/small&gt;</translation>
    </message>
</context>
<context>
    <name>PdfImageView</name>
    <message>
        <source>The PDF “%1” could not be opened.</source>
        <translation>Le PDF « %1 » n’a pas pu être ouvert.</translation>
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
        <translation>L’imprimante « %1 » n’a pas accepté la tâche.</translation>
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
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to 'Created' first. Then you will also be able to resend the modified invoice.</source>
        <translation>La facture sélectionnée est déjà marquée comme envoyée. Si vous devez vraiment la modifier, remettez d’abord son statut sur « Créée ». Vous pourrez alors aussi renvoyer la facture modifiée.</translation>
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
        <translation>il nomme un type d’enregistrement inconnu, « %1 »</translation>
    </message>
    <message>
        <source>a record of kind “%1” stands where a “%2” belongs</source>
        <translation>un enregistrement de type « %1 » se trouve là où un « %2 » est attendu</translation>
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
        <translation>Le fichier est endommagé : %1.</translation>
    </message>
    <message>
        <source>the value of “%1” (%2) is not %3</source>
        <translation>la valeur de « %1 » (%2) n’est pas %3</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>La base de données Vorn « %1 » n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Vorn database.</source>
        <translation>Le fichier « %1 » n’est pas une base de données Vorn.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged and cannot be opened.</source>
        <translation>La base de données Vorn « %1 » est endommagée et ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>The file is shorter than its contents require; it may have been cut off while copying.</source>
        <translation>Le fichier est plus court que son contenu ne l’exige ; il a peut-être été tronqué lors d’une copie.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>La base de données Vorn « %1 » n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The Vorn database could not be saved because the disk is full.</source>
        <translation>La base de données Vorn n’a pas pu être enregistrée, car le disque est plein.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” cannot be written: you don't have permission.</source>
        <translation>La base de données Vorn « %1 » ne peut pas être écrite : vous n’en avez pas l’autorisation.</translation>
    </message>
    <message>
        <source>The Vorn database is in use by another program.</source>
        <translation>La base de données Vorn est utilisée par un autre programme.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” was made by a newer version of Vorn.</source>
        <translation>La base de données Vorn « %1 » a été créée par une version plus récente de Vorn.</translation>
    </message>
    <message>
        <source>This version of Vorn cannot read it. Use the newer version, or restore a backup made with this version.</source>
        <translation>Cette version de Vorn ne peut pas la lire. Utilisez la version plus récente ou restaurez une sauvegarde faite avec cette version.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be created.</source>
        <translation>La base de données Vorn « %1 » n’a pas pu être créée.</translation>
    </message>
    <message>
        <source>The Vorn database could not be saved.</source>
        <translation>La base de données Vorn n’a pas pu être enregistrée.</translation>
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
        <translation>La copie « %1 » n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Le dossier « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be written to (%2).</source>
        <translation>Impossible d’écrire dans le dossier « %1 » (%2).</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>La base de données Vorn « %1 » n’a pas pu être lue.</translation>
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
        <translation>La base de données Vorn « %1 » n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged.</source>
        <translation>La base de données Vorn « %1 » est endommagée.</translation>
    </message>
    <message>
        <source>SQLite's integrity check found: %1</source>
        <translation>La vérification d’intégrité de SQLite a trouvé : %1</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in place.</source>
        <translation>Le fichier « %1 » n’a pas pu être mis en place.</translation>
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
        <translation>la fiche commençant à la ligne %1 n’a pas de fin ; elle a été lue aussi loin que possible.</translation>
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
        <translation>fiche %1 : la ligne %2 dépasse la longueur acceptée et a été ignorée.</translation>
    </message>
    <message>
        <source>card %1: line %2 is not a property and was skipped.</source>
        <translation>fiche %1 : la ligne %2 n’est pas une propriété et a été ignorée.</translation>
    </message>
    <message>
        <source>card %1 has more than %2 properties; the rest were skipped.</source>
        <translation>la fiche %1 a plus de %2 propriétés ; les autres ont été ignorées.</translation>
    </message>
    <message>
        <source>card %1 (line %2) uses the unknown character set “%3” and was skipped.</source>
        <translation>la fiche %1 (ligne %2) utilise le jeu de caractères inconnu « %3 » et a été ignorée.</translation>
    </message>
    <message>
        <source>larger than %1 MB; only the contacts in the first %1 MB were read.</source>
        <translation>dépasse %1 Mo ; seuls les contacts des %1 premiers Mo ont été lus.</translation>
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
        <translation>Plus de %1 fichiers de contacts ont été trouvés ; seuls les %1 premiers ont été lus.</translation>
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
    <name>vorn::AppDelegate</name>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Un dossier était attendu pour les données de l’application, mais un fichier a été trouvé (%1).</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>Le dossier « %1 » n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>You don't have permission to create it.</source>
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
        <translation>Les réglages par défaut « %1 » sont introuvables.</translation>
    </message>
    <message>
        <source>The default settings “%1” are damaged.</source>
        <translation>Les réglages par défaut « %1 » sont endommagés.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Les modifications n’ont pas pu être enregistrées en quittant. Quitter quand même ?</translation>
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
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the 'File Menu' to open documents and to restore the Vorn database.</source>
        <translation>Pour éviter les doublons et les incidents, et pour garder la base de données intacte, utilisez le menu « Fichier » pour ouvrir des documents et pour restaurer la base de données Vorn.</translation>
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
        <translation>Attention !</translation>
    </message>
    <message>
        <source>It seems that you've already setup Vorn and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
        <translation>Il semble que vous ayez déjà configuré Vorn et lancé l’assistant de configuration au moins une fois. Le relancer supprimera toutes vos personnalisations et les remplacera par les valeurs par défaut. Voulez-vous vraiment continuer ?</translation>
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
        <translation>Voulez-vous voir la vidéo de présentation de 30 secondes avant de créer votre première facture ?</translation>
    </message>
    <message>
        <source>Yes, please!</source>
        <translation>Oui, volontiers !</translation>
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
        <translation>Choisissez votre langue. Vorn y rédige ses textes par défaut : les mots imprimés sur vos factures et devis, les conditions de paiement, les noms des taxes et les modèles de numérotation. Ses fenêtres l’utilisent aussi.

Relancer l’assistant remplace vos propres textes par ces valeurs par défaut.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Who writes the invoices? Your company name and your contact details go into your documents; you can change them later in the preferences.</source>
        <translation>Qui rédige les factures ? Le nom de votre entreprise et vos coordonnées figurent dans vos documents ; vous pourrez les modifier plus tard dans les préférences.</translation>
    </message>
    <message>
        <source>&amp;Company name:</source>
        <translation>Nom de l’&amp;entreprise :</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Nom de l’entreprise</translation>
    </message>
    <message>
        <source>C&amp;ontact:</source>
        <translation>C&amp;oordonnées :</translation>
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
        <translation>&amp;E-mail :</translation>
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
        <translation>Vorn est prêt. Créez votre première facture avec le bouton « Nouvelle facture ».

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
        <source>It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or restore it from an internal backup. You should only proceed if you're sure that your database really is not intact, since this action will replace any possible data. Should Vorn not be able to repair or restore your database, please restore it from your own (Time Machine) backups. Do you want to proceed?</source>
        <translation>Votre base de données Vorn semble endommagée ou détruite. Vorn peut essayer de la réparer ou de la restaurer à partir d’une sauvegarde interne. Ne continuez que si vous êtes sûr que votre base de données n’est vraiment plus intacte, car cette opération remplacera les données éventuellement présentes. Si Vorn ne parvient pas à réparer ou à restaurer votre base de données, restaurez-la à partir de vos propres sauvegardes (Time Machine). Voulez-vous continuer ?</translation>
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
        <translation>Attention !</translation>
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
        <translation>Erreur !</translation>
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
        <translation>Vous êtes sur le point de restaurer toute votre base de données Vorn à partir d’une sauvegarde. Toutes les données existantes seront remplacées de façon irréversible. Voulez-vous vraiment le faire ?</translation>
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
        <translation>Rien n’a été modifié : votre base de données Vorn est restée telle quelle.</translation>
    </message>
    <message>
        <source>There is no place to restore the Vorn database to.</source>
        <translation>Il n’y a aucun emplacement où restaurer la base de données Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” is the Vorn database itself.</source>
        <translation>Le fichier « %1 » est la base de données Vorn elle-même.</translation>
    </message>
    <message>
        <source>The file “%1” could not be found.</source>
        <translation>Le fichier « %1 » est introuvable.</translation>
    </message>
    <message>
        <source>The file “%1” disappeared while it was being read.</source>
        <translation>Le fichier « %1 » a disparu pendant sa lecture.</translation>
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
        <translation>Désolé !</translation>
    </message>
    <message>
        <source>You can't convert an invoice into a quote.</source>
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
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the counter for your invoice numbering and you can't undo this action.</source>
        <translation>Voulez-vous vraiment convertir le devis sélectionné en facture ? Cela modifie aussi le titre et le compteur de votre numérotation des factures, et cette action est irréversible.</translation>
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
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to 'Created' first.</source>
        <translation>La facture sélectionnée est déjà marquée comme envoyée. Si vous devez vraiment la supprimer, remettez d’abord son statut sur « Créée ».</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>La suppression d’une facture est définitive et irréversible. Voulez-vous vraiment supprimer la facture sélectionnée ?</translation>
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
        <translation>La suppression d’un devis est définitive et irréversible. Voulez-vous vraiment supprimer le devis sélectionné ?</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Expédiée</translation>
    </message>
</context>
<context>
    <name>vorn::DesignController</name>
    <message>
        <source>The built-in design “%1” is missing.</source>
        <translation>Le modèle intégré « %1 » est introuvable.</translation>
    </message>
    <message>
        <source>The built-in design “%1” is damaged.</source>
        <translation>Le modèle intégré « %1 » est endommagé.</translation>
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
        <translation>Erreur !</translation>
    </message>
    <message>
        <source>You can't delete the default design.</source>
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
        <translation>La suppression d’un modèle est définitive et irréversible. Voulez-vous vraiment supprimer le modèle sélectionné ?</translation>
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
        <source>“%1” couldn’t be copied to “%2” because an item with the same name already exists.</source>
        <translation>« %1 » n’a pas pu être copié vers « %2 », car un élément du même nom existe déjà.</translation>
    </message>
    <message>
        <source>To save the file, either provide a different name, or move aside or delete the existing file, and try again.</source>
        <translation>Pour enregistrer le fichier, indiquez un autre nom, ou déplacez ou supprimez le fichier existant, puis réessayez.</translation>
    </message>
    <message>
        <source>The PDF “%1” could not be read.</source>
        <translation>Le PDF « %1 » n’a pas pu être lu.</translation>
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
    <name>vorn::GUIController</name>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Supprimer le devis</translation>
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
        <translation>Redémarrer Vorn ?</translation>
    </message>
    <message>
        <source>The main window shows the language you chose after Vorn starts again. Restart now?</source>
        <translation>La fenêtre principale s’affichera dans la langue choisie au prochain démarrage de Vorn. Redémarrer maintenant ?</translation>
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
    <name>vorn::InterchangeController</name>
    <message>
        <source>Warning!</source>
        <translation>Attention !</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by design it can't know or care about duplicate invoices, messed up numbers, or if you're having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>L’intégrité de vos données relève de votre responsabilité, et de la vôtre seule. Vorn n’est qu’une simple application : par conception, elle ne peut ni savoir ni se soucier des factures en double, des numéros embrouillés ou de votre mauvaise humeur du jour. Alors, rendez-vous service et vérifiez bien ce que vous faites ici. Voulez-vous toujours importer la facture ?</translation>
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
        <translation>La suppression d’un article est définitive et irréversible. Voulez-vous vraiment supprimer l’article sélectionné ?</translation>
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
        <translation>&amp;Document</translation>
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
        <translation>Nouveau &amp;devis</translation>
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
        <translation>&amp;Importer un document…</translation>
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
        <translation>Envoyer par &amp;e-mail…</translation>
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
        <translation>La base de données Vorn n’a pas pu être ouverte ; il n’y a donc aucun document à afficher.</translation>
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
        <source>Total %1    Paid %2    Due %3</source>
        <translation>Total %1    Payé %2    Dû %3</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterSubscription</name>
    <message>
        <source>Error!</source>
        <translation>Erreur !</translation>
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
        <translation>C’est fait !</translation>
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
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;E-mail :</translation>
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
        <translation>Il n’existe aucune entité nommée « %1 ».</translation>
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
    <name>vorn::PreviewController</name>
    <message>
        <source>The PDF “%1” could not be written.</source>
        <translation>Le PDF « %1 » n’a pas pu être écrit.</translation>
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
        <translation>Oups !</translation>
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
</context>
<context>
    <name>vorn::ReminderSheet</name>
    <message>
        <source>Payment Reminder</source>
        <translation>Rappel de paiement</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Conditions :</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pied de page :</translation>
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
        <translation>Veuillez vérifier votre connexion Internet !</translation>
    </message>
</context>
<context>
    <name>vorn::Settings</name>
    <message>
        <source>Your settings could not be read from “%1”. Vorn leaves the file as it is and uses its standard settings until it is repaired or removed; changes to settings are not saved.</source>
        <translation>Vos réglages n’ont pas pu être lus depuis « %1 ». Vorn laisse le fichier tel quel et utilise ses réglages standard jusqu’à ce qu’il soit réparé ou supprimé ; les modifications des réglages ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>The file does not hold a dictionary.</source>
        <translation>Le fichier ne contient pas de dictionnaire.</translation>
    </message>
    <message>
        <source>Your settings were not saved because the settings file “%1” could not be read at start.</source>
        <translation>Vos réglages n’ont pas été enregistrés, car le fichier de réglages « %1 » n’a pas pu être lu au démarrage.</translation>
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
        <translation>Mise à jour disponible !</translation>
    </message>
    <message>
        <source>A new version</source>
        <translation>Une nouvelle version</translation>
    </message>
    <message>
        <source>%1 is available; you have Vorn %2. Do you want to download the update now?</source>
        <translation>%1 est disponible ; vous avez Vorn %2. Voulez-vous télécharger la mise à jour maintenant ?</translation>
    </message>
    <message>
        <source>&amp;Release notes:</source>
        <translation>&amp;Notes de version :</translation>
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
        <translation>Rechercher automatiquement les mises à jour ?</translation>
    </message>
    <message>
        <source>Should %1 look for a newer version once a day when it starts? You can change this at any time in the preferences.</source>
        <translation>%1 doit-il rechercher une version plus récente une fois par jour au démarrage ? Vous pouvez modifier ce choix à tout moment dans les préférences.</translation>
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
        <source>You're up to date!</source>
        <translation>Vous êtes à jour !</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version available.</source>
        <translation>%1 %2 est la version la plus récente disponible.</translation>
    </message>
    <message>
        <source>Do you want to download the update now?</source>
        <translation>Voulez-vous télécharger la mise à jour maintenant ?</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Mise à jour disponible !</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Télécharger…</translation>
    </message>
</context>
</TS>
