<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>IPCtrl</name>
    <message>
        <source>Part %1 of the address</source>
        <translation>Część %1 adresu</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>No order is open</source>
        <translation>Nie otwarto zamówienia</translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>Pdf File</source>
        <translation>Plik PDF</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukowanie</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Wydrukowano do %1</translation>
    </message>
    <message>
        <source>Printing was cancelled</source>
        <translation>Drukowanie przerwano</translation>
    </message>
    <message>
        <source>The file %1 cannot be written</source>
        <translation>Nie można zapisać pliku %1</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened</source>
        <translation>Nie można otworzyć podręcznika %1</translation>
    </message>
    <message>
        <source>A newer version is available </source>
        <translation>Dostępna jest nowsza wersja </translation>
    </message>
</context>
<context>
    <name>XmlValidator</name>
    <message>
        <source>Line</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Kolumna</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Public-procurement orders of electronic materials</source>
        <translation>Zamówienia publiczne na materiały elektroniczne</translation>
    </message>
    <message>
        <source>Built on %1</source>
        <translation>Zbudowano %1</translation>
    </message>
</context>
<context>
    <name>actions</name>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Print the order to a PDF file</source>
        <translation>Drukuj zamówienie do pliku PDF</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>What was done, and how it went</source>
        <translation>Co zrobiono i z jakim skutkiem</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Błędy</translation>
    </message>
    <message>
        <source>What could not be read or found</source>
        <translation>Czego nie udało się odczytać lub znaleźć</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Otwórz podręcznik</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Version of the program</source>
        <translation>Wersja programu</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>baseWindow</name>
    <message>
        <source>Tool bar</source>
        <translation>Pasek narzędzi</translation>
    </message>
</context>
<context>
    <name>cli</name>
    <message>
        <source>an argument is missing</source>
        <translation>brakuje argumentu</translation>
    </message>
    <message>
        <source>too many arguments</source>
        <translation>za dużo argumentów</translation>
    </message>
    <message>
        <source>Try: kivzp-cli %1 --help</source>
        <translation>Pomoc: kivzp-cli %1 --help</translation>
    </message>
    <message>
        <source>The schema %1 cannot be loaded</source>
        <translation>Nie można wczytać schematu %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>is no material database</source>
        <translation>nie jest bazą materiałów</translation>
    </message>
    <message>
        <source>is no file of this program</source>
        <translation>nie jest plikiem tego programu</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nie można odczytać</translation>
    </message>
    <message>
        <source>valid</source>
        <translation>poprawny</translation>
    </message>
    <message>
        <source>Check the file against its schema first.</source>
        <translation>Najpierw sprawdza plik z jego schematem.</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>nie można zapisać</translation>
    </message>
    <message>
        <source>Checks files against their schemas.</source>
        <translation>Sprawdza pliki z ich schematami.</translation>
    </message>
    <message>
        <source>Tells the kind of a file and counts what it holds.</source>
        <translation>Podaje rodzaj pliku i liczy jego zawartość.</translation>
    </message>
    <message>
        <source>Reads a file and writes it again in the program&apos;s form.</source>
        <translation>Wczytuje plik i zapisuje go ponownie w postaci programu.</translation>
    </message>
    <message>
        <source>Usage: kivzp-cli [--language pl|en] COMMAND ARGUMENTS...

Commands:
</source>
        <translation>Użycie: kivzp-cli [--language pl|en] POLECENIE ARGUMENTY...

Polecenia:
</translation>
    </message>
    <message>
        <source>
kivzp-cli COMMAND --help tells the arguments of a command.
Exit codes: 0 done, 1 the input was refused or the answer is no, 2 wrong call, 3 could not write.
</source>
        <translation>
kivzp-cli POLECENIE --help podaje argumenty polecenia.
Kody wyjścia: 0 wykonano, 1 odrzucono dane lub odpowiedź brzmi nie, 2 błędne wywołanie, 3 nie można zapisać.
</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>nieznane polecenie: %1</translation>
    </message>
    <message>
        <source>A material database, for manufacturers and suppliers. May be given several times.</source>
        <translation>Baza materiałów z producentami i dostawcami. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>The file to write; its ending, .html or .pdf, decides its kind.</source>
        <translation>Plik wynikowy; końcówka .html lub .pdf decyduje o jego rodzaju.</translation>
    </message>
    <message>
        <source>give an output file that ends in .html or .pdf</source>
        <translation>podaj plik wynikowy z końcówką .html lub .pdf</translation>
    </message>
    <message>
        <source>is no order</source>
        <translation>nie jest zamówieniem</translation>
    </message>
    <message>
        <source>Writes the report of an order as HTML or PDF.</source>
        <translation>Zapisuje raport zamówienia jako HTML lub PDF.</translation>
    </message>
    <message>
        <source>the schema %1 is missing</source>
        <translation>brakuje schematu %1</translation>
    </message>
</context>
<context>
    <name>data</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>wiersz %1, kolumna %2: %3</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>nie można odczytać pliku</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>deklaracje typu dokumentu są niedozwolone</translation>
    </message>
    <message>
        <source>there is more behind the end of the document</source>
        <translation>za końcem dokumentu jest dalsza treść</translation>
    </message>
    <message>
        <source>XML of version %1 cannot be read</source>
        <translation>nie można odczytać XML w wersji %1</translation>
    </message>
    <message>
        <source>an element stands inside a text</source>
        <translation>wewnątrz tekstu znajduje się element</translation>
    </message>
    <message>
        <source>the file is of another kind</source>
        <translation>plik jest innego rodzaju</translation>
    </message>
    <message>
        <source>without the schemas no file is checked and opened</source>
        <translation>bez schematów żaden plik nie jest sprawdzany ani otwierany</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>nie jest plikiem</translation>
    </message>
    <message>
        <source>a tag has too many attributes</source>
        <translation>znacznik ma zbyt wiele atrybutów</translation>
    </message>
</context>
<context>
    <name>errorsWindow</name>
    <message>
        <source>Errors</source>
        <translation>Błędy</translation>
    </message>
</context>
<context>
    <name>labels</name>
    <message>
        <source>pcs.</source>
        <translation>szt.</translation>
    </message>
    <message>
        <source>tray</source>
        <translation>tacka</translation>
    </message>
    <message>
        <source>tape</source>
        <translation>taśma</translation>
    </message>
    <message>
        <source>reel</source>
        <translation>rolka</translation>
    </message>
    <message>
        <source>package</source>
        <translation>opakowanie</translation>
    </message>
    <message>
        <source>set</source>
        <translation>kpl.</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>m2</source>
        <translation>m2</translation>
    </message>
    <message>
        <source>m3</source>
        <translation>m3</translation>
    </message>
    <message>
        <source>liter</source>
        <translation>litr</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>package2</source>
        <translation>paczka</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>First and second name</source>
        <translation>Imię i nazwisko</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Short report</source>
        <translation>Raport skrócony</translation>
    </message>
    <message>
        <source>Full report</source>
        <translation>Raport pełny</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Sprawdzone</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Designator</source>
        <translation>Oznaczenie</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>TAK</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NIE</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Zlecenie</translation>
    </message>
    <message>
        <source>Informations</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>INFORMATION</source>
        <translation>INFORMACJE</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dodano</translation>
    </message>
    <message>
        <source>Approved</source>
        <translation>Zatwierdził</translation>
    </message>
    <message>
        <source>Contracor</source>
        <translation>Wykonujący</translation>
    </message>
    <message>
        <source>Manufacturers</source>
        <translation>Producenci</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Producent</translation>
    </message>
    <message>
        <source>MANUFACTURERS</source>
        <translation>PRODUCENCI</translation>
    </message>
    <message>
        <source>Part no</source>
        <translation>Numer części</translation>
    </message>
    <message>
        <source>Descriptions</source>
        <translation>Opisy</translation>
    </message>
    <message>
        <source>RoHS</source>
        <translation>RoHS</translation>
    </message>
    <message>
        <source>RoHS required</source>
        <translation>Wymagane RoHS</translation>
    </message>
    <message>
        <source>RoHS probability</source>
        <translation>Prawdopodobieństwo RoHS</translation>
    </message>
    <message>
        <source>All materials require RoHS:</source>
        <translation>Wszystkie materiały wymagają RoHS:</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentarz</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Edytowane</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>SZCZEGÓŁY</translation>
    </message>
    <message>
        <source>Ordinal number</source>
        <translation>Lp.</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Materiał</translation>
    </message>
    <message>
        <source>Name / Description / KTM / RoHS / Manufacturers / Suppliers</source>
        <translation>Nazwa / Opis / KTM / RoHS / Producenci / Dostawcy</translation>
    </message>
    <message>
        <source>SUPPLIERS</source>
        <translation>DOSTAWCY</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>Dostawcy</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Dział</translation>
    </message>
    <message>
        <source>Awatar</source>
        <translation>Awatar</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Indeks</translation>
    </message>
    <message>
        <source>KTM</source>
        <translation>KTM</translation>
    </message>
    <message>
        <source>CPV</source>
        <translation>CPV</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Termin</translation>
    </message>
    <message>
        <source>dd.mm.yyyy</source>
        <translation>dd.mm.rrrr</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Dostawa</translation>
    </message>
    <message>
        <source>Order No / Date</source>
        <translation>Nr zamówienia / Data</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Faktura</translation>
    </message>
    <message>
        <source>Invoice No / Date</source>
        <translation>Nr faktury / Data</translation>
    </message>
    <message>
        <source>Attentions</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source> Signature</source>
        <translation> Podpis</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Wartości</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>Quantities</source>
        <translation>Ilości</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jednostka</translation>
    </message>
    <message>
        <source>All materials unit:</source>
        <translation>Jednostka wszystkich materiałów:</translation>
    </message>
    <message>
        <source>Number / Quantity </source>
        <translation>Liczba / Ilość </translation>
    </message>
    <message>
        <source>pcs. / kg / m</source>
        <translation>szt. / kg / m</translation>
    </message>
    <message>
        <source>Target no</source>
        <translation>Nr zlecenia</translation>
    </message>
    <message>
        <source>xxx-xxxxxxxx</source>
        <translation>xxx-xxxxxxxx</translation>
    </message>
    <message>
        <source>All materials target:</source>
        <translation>Zlecenie wszystkich materiałów:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Do - delivery order</source>
        <translation>DO – zlecenie dostawy</translation>
    </message>
    <message>
        <source>Fill by</source>
        <translation>Wypełnia</translation>
    </message>
    <message>
        <source>The author of order</source>
        <translation>Autor zamówienia</translation>
    </message>
    <message>
        <source>File Do</source>
        <translation>Plik DO</translation>
    </message>
    <message>
        <source>Preview Do</source>
        <translation>Podgląd DO</translation>
    </message>
    <message>
        <source>phone</source>
        <translation>telefon</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cena</translation>
    </message>
    <message>
        <source>Average price</source>
        <translation>Cena średnia</translation>
    </message>
    <message>
        <source>Ave. price</source>
        <translation>Cena śr.</translation>
    </message>
    <message>
        <source>In warehouse</source>
        <translation>Stan magazynu</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Magazyn</translation>
    </message>
    <message>
        <source>Add new firm</source>
        <translation>Dodaj nową firmę</translation>
    </message>
    <message>
        <source>List of manufacturers and suppliers</source>
        <translation>Lista producentów i dostawców</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Załącznik</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Set all quantities</source>
        <translation>Ustaw wszystkie ilości</translation>
    </message>
    <message>
        <source>Set all units</source>
        <translation>Ustaw wszystkie jednostki</translation>
    </message>
    <message>
        <source>Set all dates</source>
        <translation>Ustaw wszystkie terminy</translation>
    </message>
    <message>
        <source>Set all descriptions</source>
        <translation>Ustaw wszystkie opisy</translation>
    </message>
    <message>
        <source>Set all RoHS</source>
        <translation>Ustaw wszystkie RoHS</translation>
    </message>
    <message>
        <source>Set all targets</source>
        <translation>Ustaw wszystkie zlecenia</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>Dodaj 1</translation>
    </message>
    <message>
        <source>Add N ...</source>
        <translation>Dodaj N ...</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>SUM ( price ) = </source>
        <translation>SUMA ( cena ) = </translation>
    </message>
    <message>
        <source>SUM ( average price ) = </source>
        <translation>SUMA ( cena średnia ) = </translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Obudowa</translation>
    </message>
    <message>
        <source>no applicable</source>
        <translation>nie dotyczy</translation>
    </message>
    <message>
        <source>Link to part number</source>
        <translation>Odnośnik do numeru części</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>LibraryRef</source>
        <translation>LibraryRef</translation>
    </message>
    <message>
        <source>FootprintRef</source>
        <translation>FootprintRef</translation>
    </message>
    <message>
        <source>FootprintRef2</source>
        <translation>FootprintRef2</translation>
    </message>
    <message>
        <source>FootprintRef3</source>
        <translation>FootprintRef3</translation>
    </message>
    <message>
        <source>FootprintRef4</source>
        <translation>FootprintRef4</translation>
    </message>
    <message>
        <source>FootprintRef5</source>
        <translation>FootprintRef5</translation>
    </message>
    <message>
        <source>FootprintRef6</source>
        <translation>FootprintRef6</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktywny</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Napięcie</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Prąd</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancja</translation>
    </message>
    <message>
        <source>Other parameters</source>
        <translation>Inne parametry</translation>
    </message>
    <message>
        <source>Other par.</source>
        <translation>Inne par.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Pełna nazwa</translation>
    </message>
    <message>
        <source>Line of business</source>
        <translation>Branża</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Strona domowa</translation>
    </message>
    <message>
        <source>Tax number</source>
        <translation>NIP</translation>
    </message>
</context>
<context>
    <name>log</name>
    <message>
        <source>Remove file</source>
        <translation>Usuń plik </translation>
    </message>
    <message>
        <source>Remove directory</source>
        <translation>Usuń folder </translation>
    </message>
    <message>
        <source>Open link</source>
        <translation>Otwórz odnośnik </translation>
    </message>
    <message>
        <source>Load config file</source>
        <translation>Wczytaj plik konfiguracji </translation>
    </message>
    <message>
        <source>Clean after update</source>
        <translation>Porządki po aktualizacji</translation>
    </message>
    <message>
        <source>The program&apos;s folder cannot be written; working in </source>
        <translation>Folderu programu nie można zapisywać; praca w </translation>
    </message>
    <message>
        <source>Copy file</source>
        <translation>Kopiuj plik </translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwarto plik </translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Zapisano plik </translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Wydruk do pliku </translation>
    </message>
    <message>
        <source>File does not exist or corrupted</source>
        <translation>Plik nie istnieje lub jest uszkodzony </translation>
    </message>
    <message>
        <source>Create default file</source>
        <translation>Utworzono plik domyślny </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Not exists</source>
        <translation>Nie istnieje</translation>
    </message>
    <message>
        <source>No font with Polish letters is installed </source>
        <translation>Nie zainstalowano czcionki z polskimi literami </translation>
    </message>
    <message>
        <source>The settings cannot be written </source>
        <translation>Nie można zapisać ustawień </translation>
    </message>
</context>
<context>
    <name>logWindow</name>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
</context>
<context>
    <name>myCalendarWidget</name>
    <message>
        <source>Set</source>
        <translation>Ustaw</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
</context>
<context>
    <name>numbers</name>
    <message>
        <source>is not a number</source>
        <translation>nie jest liczbą</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>OPTION_EDIT_ZP</source>
        <translation>Edycja ZP</translation>
    </message>
    <message>
        <source>OPTION_EDIT_CONFIG</source>
        <translation>Edycja pliku konfiguracyjnego</translation>
    </message>
    <message>
        <source>OPTION_EDIT_DATABASE</source>
        <translation>Edycja baz danych materiałów</translation>
    </message>
    <message>
        <source>OPTION_EDIT_FIRM</source>
        <translation>Edycja bazy danych producentówi dostawców</translation>
    </message>
    <message>
        <source>OPTION_EMAIL_MAPI</source>
        <translation>E-mail typu MAPI</translation>
    </message>
    <message>
        <source>OPTION_OPEN_REPORT_HTML</source>
        <translation>Automatyczne otwieranie plików raportów</translation>
    </message>
    <message>
        <source>OPTION_FONT_NAME</source>
        <translation>Nazwa czcionki</translation>
    </message>
    <message>
        <source>OPTION_FONT_SIZE</source>
        <translation>Rozmiar czcionki</translation>
    </message>
    <message>
        <source>OPTION_THRESHOLD_LOW</source>
        <translation>Próg dolny [%]</translation>
    </message>
    <message>
        <source>OPTION_THRESHOLD_AVERAGE</source>
        <translation>Próg średni [%]</translation>
    </message>
    <message>
        <source>OPTION_THRESHOLD_HIGH</source>
        <translation>Próg wysoki [%]</translation>
    </message>
    <message>
        <source>OPTION_ORDER_TARGET</source>
        <translation>Zlecenie</translation>
    </message>
    <message>
        <source>OPTION_ORDER_DATE_ADD</source>
        <translation>Termin realizacji ZP</translation>
    </message>
    <message>
        <source>OPTION_ORDER_NUMBER</source>
        <translation>Numer ZP</translation>
    </message>
    <message>
        <source>OPTION_ORDER_DATE</source>
        <translation>Data wystawienia ZP</translation>
    </message>
    <message>
        <source>OPTION_PERSON_AUTHOR</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>OPTION_PERSON_APPROVED</source>
        <translation>Osoba zatwierdzająca</translation>
    </message>
    <message>
        <source>OPTION_PERSON_CONTRACTOR</source>
        <translation>Wykonujący</translation>
    </message>
    <message>
        <source>OPTION_PERSON_ADMIN</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>OPTION_FILE_CONFIG</source>
        <translation>Plik konfiguracji</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_WAREHOUSE</source>
        <translation>Plik bazy danych wearhouse</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_SERVICE</source>
        <translation>Plik bazy danych service</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_AUTHOR</source>
        <translation>Plik bazy danych author</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_MECHANICS</source>
        <translation>Plik bazy danych mechanics</translation>
    </message>
    <message>
        <source>OPTION_FILE_FIRM</source>
        <translation>Plik bazy producentów i dostawców</translation>
    </message>
    <message>
        <source>OPTION_FILE_BOMS</source>
        <translation>Plik bazy danychplików bom</translation>
    </message>
    <message>
        <source>OPTION_FILE_NEWZP</source>
        <translation>Nowe ZP</translation>
    </message>
    <message>
        <source>OPTION_FILE_LASTZP</source>
        <translation>Ostatnie ZP</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_WAREHOUSE</source>
        <translation>Ładowanie bazy danych wearhouse</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_SERVICE</source>
        <translation>Ładowanie bazy danych service</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_AUTHOR</source>
        <translation>Ładowanie bazy danych author</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_MECHANICS</source>
        <translation>Ładowanie bazy danych mechaniki</translation>
    </message>
    <message>
        <source>OPTION_LOAD_BOMS</source>
        <translation>Ładowanie bazy danych plików bom</translation>
    </message>
    <message>
        <source>OPTION_PATH_BACKUP</source>
        <translation>Folder kopii</translation>
    </message>
    <message>
        <source>OPTION_SERVER_NAME</source>
        <translation>Serwer plików</translation>
    </message>
    <message>
        <source>OPTION_SERVER_USER_NAME</source>
        <translation>Nazwa użytkownika serwera</translation>
    </message>
    <message>
        <source>OPTION_SERVER_USER_PASSWORD</source>
        <translation>Hasło użytkownika serwera</translation>
    </message>
</context>
<context>
    <name>orderReport</name>
    <message numerus="yes">
        <source>%n line(s) without a price or quantity not counted</source>
        <translation>
            <numerusform>%n pozycja bez ceny lub ilości nie została policzona</numerusform>
            <numerusform>%n pozycje bez ceny lub ilości nie zostały policzone</numerusform>
            <numerusform>%n pozycji bez ceny lub ilości nie zostało policzonych</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>pdfPrinter</name>
    <message>
        <source>Page no:</source>
        <translation>Strona nr:</translation>
    </message>
</context>
<context>
    <name>prompts</name>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Asking</source>
        <translation>Pytanie</translation>
    </message>
</context>
<context>
    <name>richtexteditDialog</name>
    <message>
        <source>Edit text</source>
        <translation>Edycja tekstu</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Pogrubienie</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursywa</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Podkreślenie</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Numbered list</source>
        <translation>Lista numerowana</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Do lewej</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Do środka</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Do prawej</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odnośnik</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
</context>
<context>
    <name>workProgress</name>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
</TS>
