# What the installer says beside what its maker translated already, in the order of the six languages.

!macro Tekst naam en nl de fr it es
LangString ${naam} ${LANG_ENGLISH} "${en}"
LangString ${naam} ${LANG_DUTCH} "${nl}"
LangString ${naam} ${LANG_GERMAN} "${de}"
LangString ${naam} ${LANG_FRENCH} "${fr}"
LangString ${naam} ${LANG_ITALIAN} "${it}"
LangString ${naam} ${LANG_SPANISH} "${es}"
!macroend

!macro TekstenVanBeide un
!insertmacro Tekst "${un}uitlegProgramma" \
  "The window, the command kestrolin-cli, the readers for firmware, examples and the manual." \
  "Het venster, de opdracht kestrolin-cli, de lezers voor firmware, voorbeelden en de handleiding." \
  "Das Fenster, der Befehl kestrolin-cli, die Leser für Firmware, Beispiele und das Handbuch." \
  "La fenêtre, la commande kestrolin-cli, les lecteurs pour le firmware, des exemples et le manuel." \
  "La finestra, il comando kestrolin-cli, i lettori per il firmware, esempi e il manuale." \
  "La ventana, la orden kestrolin-cli, los lectores para el firmware, ejemplos y el manual."
!macroend
!insertmacro TekstenVanBeide ""
!insertmacro TekstenVanBeide "un."

!insertmacro Tekst naamZoekpad \
  "kestrolin-cli in the search path" "kestrolin-cli in het zoekpad" "kestrolin-cli im Suchpfad" \
  "kestrolin-cli dans le chemin de recherche" "kestrolin-cli nel percorso di ricerca" \
  "kestrolin-cli en la ruta de búsqueda"
!insertmacro Tekst uitlegZoekpad \
  "Adds the folder of kestrolin-cli to your PATH, so that command prompts and builds find it by its name." \
  "Voegt de map van kestrolin-cli toe aan uw PATH, zodat opdrachtprompts en builds het bij zijn naam vinden." \
  "Fügt den Ordner von kestrolin-cli Ihrem PATH hinzu, damit Eingabeaufforderung und Builds es beim Namen finden." \
  "Ajoute le dossier de kestrolin-cli à votre PATH, pour que l'invite de commandes et les builds le trouvent par son nom." \
  "Aggiunge la cartella di kestrolin-cli al PATH, così il prompt dei comandi e le build lo trovano per nome." \
  "Añade la carpeta de kestrolin-cli a su PATH, para que el símbolo del sistema y las compilaciones lo encuentren por su nombre."
!insertmacro Tekst toonHandleiding \
  "Show the manual" "De handleiding tonen" "Das Handbuch zeigen" "Afficher le manuel" "Mostra il manuale" \
  "Mostrar el manual"
!insertmacro Tekst loopt \
  "$R2 is in use. Close the program, then press Retry." \
  "$R2 is in gebruik. Sluit het programma en druk dan op Opnieuw." \
  "$R2 wird benutzt. Beenden Sie das Programm und drücken Sie dann auf Wiederholen." \
  "$R2 est en cours d'utilisation. Fermez le programme, puis appuyez sur Réessayer." \
  "$R2 è in uso. Chiudere il programma e premere Riprova." \
  "$R2 está en uso. Cierre el programa y pulse Reintentar."
!insertmacro Tekst vorigeBlijft \
  "The version in $R0 could not be removed. Nothing was installed." \
  "De versie in $R0 kon niet worden verwijderd. Er is niets geïnstalleerd." \
  "Die Version in $R0 konnte nicht entfernt werden. Es wurde nichts installiert." \
  "La version dans $R0 n'a pas pu être supprimée. Rien n'a été installé." \
  "La versione in $R0 non può essere rimossa. Non è stato installato nulla." \
  "No se pudo eliminar la versión en $R0. No se ha instalado nada."
!insertmacro Tekst vanAnderen \
  "$INSTDIR has a library of another program. Choose another folder." \
  "In $INSTDIR staat een bibliotheek van een ander programma. Kies een andere map." \
  "In $INSTDIR liegt eine Bibliothek eines anderen Programms. Wählen Sie einen anderen Ordner." \
  "$INSTDIR contient une bibliothèque d'un autre programme. Choisissez un autre dossier." \
  "$INSTDIR contiene una libreria di un altro programma. Scegliere un'altra cartella." \
  "En $INSTDIR hay una biblioteca de otro programa. Elija otra carpeta."
!insertmacro Tekst onbruikbaar \
  "Nothing can be installed in the folder $R1." \
  "In de map $R1 kan niets worden geïnstalleerd." \
  "Im Ordner $R1 kann nichts installiert werden." \
  "Rien ne peut être installé dans le dossier $R1." \
  "Non si può installare nulla nella cartella $R1." \
  "No se puede instalar nada en la carpeta $R1."
!insertmacro Tekst nietAlles \
  "Not all files could be written to $INSTDIR." \
  "Niet alle bestanden konden naar $INSTDIR worden geschreven." \
  "Nicht alle Dateien konnten nach $INSTDIR geschrieben werden." \
  "Tous les fichiers n'ont pas pu être écrits dans $INSTDIR." \
  "Non è stato possibile scrivere tutti i file in $INSTDIR." \
  "No se pudieron escribir todos los archivos en $INSTDIR."
!insertmacro Tekst un.nietAlles \
  "Not all files in $INSTDIR could be deleted. Close the programs that use them, and try again." \
  "Niet alle bestanden in $INSTDIR konden worden verwijderd. Sluit de programma's die ze gebruiken en probeer opnieuw." \
  "Nicht alle Dateien in $INSTDIR konnten gelöscht werden. Beenden Sie die Programme, die sie benutzen, und versuchen Sie es erneut." \
  "Tous les fichiers de $INSTDIR n'ont pas pu être supprimés. Fermez les programmes qui les utilisent et réessayez." \
  "Non è stato possibile eliminare tutti i file in $INSTDIR. Chiudere i programmi che li usano e riprovare." \
  "No se pudieron eliminar todos los archivos de $INSTDIR. Cierre los programas que los usan e inténtelo de nuevo."
!insertmacro Tekst naamInstellingen \
  "Settings" "Instellingen" "Einstellungen" "Paramètres" "Impostazioni" "Configuración"
!insertmacro Tekst un.uitlegInstellingen \
  "Deletes $APPDATA\Kestrolin.ini: the language, the options, the recent files." \
  "Verwijdert $APPDATA\Kestrolin.ini: de taal, de opties, de recente bestanden." \
  "Löscht $APPDATA\Kestrolin.ini: die Sprache, die Optionen, die letzten Dateien." \
  "Supprime $APPDATA\Kestrolin.ini : la langue, les options, les fichiers récents." \
  "Elimina $APPDATA\Kestrolin.ini: la lingua, le opzioni, i file recenti." \
  "Elimina $APPDATA\Kestrolin.ini: el idioma, las opciones, los archivos recientes."
