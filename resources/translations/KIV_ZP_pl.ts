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
    <name>KivScp::scp</name>
    <message>
        <source>Server, account, password or file is missing</source>
        <translation>Brak serwera, konta, hasła lub pliku</translation>
    </message>
</context>
<context>
    <name>Kiv_bomViewWindow</name>
    <message>
        <source>Lines of the BOM list</source>
        <translation>Pozycje listy materiałów</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>nie można odczytać pliku</translation>
    </message>
    <message>
        <source>Bill of materials</source>
        <translation>Lista materiałów (BOM)</translation>
    </message>
    <message>
        <source>Editing locked</source>
        <translation>Edycja zablokowana</translation>
    </message>
    <message>
        <source>no line is selected</source>
        <translation>nie wybrano pozycji</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) deleted</source>
        <translation>
            <numerusform>Usunięto %n pozycję</numerusform>
            <numerusform>Usunięto %n pozycje</numerusform>
            <numerusform>Usunięto %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>The list %1 is locked. Allow its editing first.</source>
        <translation>Lista %1 jest zablokowana. Najpierw włącz jej edycję.</translation>
    </message>
    <message>
        <source>Material inserted</source>
        <translation>Wstawiono materiał</translation>
    </message>
    <message>
        <source>Inserted %1</source>
        <translation>Wstawiono %1</translation>
    </message>
    <message>
        <source>Save the changed BOM list %1?</source>
        <translation>Zapisać zmienioną listę materiałów %1?</translation>
    </message>
    <message>
        <source>Paste lines</source>
        <translation>Wklej pozycje</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) pasted</source>
        <translation>
            <numerusform>Wklejono %n pozycję</numerusform>
            <numerusform>Wklejono %n pozycje</numerusform>
            <numerusform>Wklejono %n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them unknown</source>
        <translation>
            <numerusform>w tym %n nieznana</numerusform>
            <numerusform>w tym %n nieznane</numerusform>
            <numerusform>w tym %n nieznanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>znaleziono %n</numerusform>
            <numerusform>znaleziono %n</numerusform>
            <numerusform>znaleziono %n</numerusform>
        </translation>
    </message>
    <message>
        <source>several lines are selected</source>
        <translation>zaznaczono kilka pozycji</translation>
    </message>
    <message>
        <source>Material picked</source>
        <translation>Wybrano materiał</translation>
    </message>
    <message>
        <source>a text in its window is refused</source>
        <translation>tekst w jego oknie jest nieprawidłowy</translation>
    </message>
    <message>
        <source>Material replaced</source>
        <translation>Zastąpiono materiał</translation>
    </message>
</context>
<context>
    <name>Kiv_bomWindow</name>
    <message>
        <source>Save the changed BOM list %1?</source>
        <translation>Zapisać zmienioną listę materiałów %1?</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Zapisano jako %1</translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>Html File</source>
        <translation>Plik HTML</translation>
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
        <source>CSV File</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>Doc File</source>
        <translation>Plik DOC</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Proszę czekać ...</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć %1</translation>
    </message>
    <message>
        <source>No BOM list is open. Open one with &quot;Bom&quot; among the BOM lists.</source>
        <translation>Żadna lista materiałów nie jest otwarta. Otwórz ją poleceniem „Bom” w oknie list materiałów.</translation>
    </message>
    <message>
        <source>Bill of materials</source>
        <translation>Lista materiałów (BOM)</translation>
    </message>
    <message>
        <source>BOM lists</source>
        <translation>Listy materiałów</translation>
    </message>
    <message>
        <source>no set of BOM lists is loaded</source>
        <translation>nie wczytano zbioru list materiałów</translation>
    </message>
    <message>
        <source>no list is built: all numbers of sets are 0</source>
        <translation>żadna lista nie jest montowana: wszystkie liczby zestawów to 0</translation>
    </message>
    <message>
        <source>there is no list</source>
        <translation>nie ma żadnej listy</translation>
    </message>
    <message>
        <source>no list is selected</source>
        <translation>nie wybrano listy</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>nic nie wybrano</translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n listy</numerusform>
            <numerusform>%n list</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them built</source>
        <translation>
            <numerusform>w tym %n do montażu</numerusform>
            <numerusform>w tym %n do montażu</numerusform>
            <numerusform>w tym %n do montażu</numerusform>
        </translation>
    </message>
    <message>
        <source>Sorted by %1</source>
        <translation>Posortowano według: %1</translation>
    </message>
    <message>
        <source>Set the numbers of sets of all lists to 0?</source>
        <translation>Ustawić liczby zestawów wszystkich list na 0?</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Xml File</source>
        <translation>Plik XML</translation>
    </message>
    <message>
        <source>List added</source>
        <translation>Dodano listę</translation>
    </message>
    <message>
        <source>Add. new group</source>
        <translation>Dodaj nową grupę</translation>
    </message>
    <message>
        <source>Group added</source>
        <translation>Dodano grupę</translation>
    </message>
    <message>
        <source>Only empty folders can be deleted</source>
        <translation>Usunąć można tylko puste foldery</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted</source>
        <translation>
            <numerusform>Usunięto %n wiersz</numerusform>
            <numerusform>Usunięto %n wiersze</numerusform>
            <numerusform>Usunięto %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Save the changed set of BOM lists?</source>
        <translation>Zapisać zmieniony zbiór list materiałów?</translation>
    </message>
    <message numerus="yes">
        <source>all %n list(s)</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>wszystkie %n listy</numerusform>
            <numerusform>wszystkie %n list</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected list(s)</source>
        <translation>
            <numerusform>%n zaznaczona lista</numerusform>
            <numerusform>%n zaznaczone listy</numerusform>
            <numerusform>%n zaznaczonych list</numerusform>
        </translation>
    </message>
    <message>
        <source>select one list, or two</source>
        <translation>zaznacz jedną listę albo dwie</translation>
    </message>
    <message>
        <source>Compare with</source>
        <translation>Porównaj z</translation>
    </message>
    <message>
        <source>The lists have the same parts</source>
        <translation>Listy mają te same części</translation>
    </message>
    <message>
        <source>Differences of two lists</source>
        <translation>Różnice dwóch list</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n różnica</numerusform>
            <numerusform>%n różnice</numerusform>
            <numerusform>%n różnic</numerusform>
        </translation>
    </message>
    <message>
        <source>A list cannot be read; nothing was done</source>
        <translation>Nie można odczytać listy; nic nie zrobiono</translation>
    </message>
    <message numerus="yes">
        <source>%n set(s)</source>
        <translation>
            <numerusform>%n zestaw</numerusform>
            <numerusform>%n zestawy</numerusform>
            <numerusform>%n zestawów</numerusform>
        </translation>
    </message>
    <message>
        <source>The file %1 cannot be read</source>
        <translation>Nie można odczytać pliku %1</translation>
    </message>
    <message numerus="yes">
        <source>Stock reserved for %n board(s)</source>
        <translation>
            <numerusform>Zarezerwowano stan dla %n płytki</numerusform>
            <numerusform>Zarezerwowano stan dla %n płytek</numerusform>
            <numerusform>Zarezerwowano stan dla %n płytek</numerusform>
        </translation>
    </message>
    <message>
        <source>Taken out of stock: %1</source>
        <translation>Zdjęto ze stanu: %1</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Wczytywanie</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>Nothing was replaced, because a file cannot be changed:</source>
        <translation>Niczego nie zastąpiono, bo nie można zmienić pliku:</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>%1 replaced by %2</source>
        <translation>%1 zastąpiono przez %2</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>lists and orders: %1</source>
        <translation>listy i zamówienia: %1</translation>
    </message>
</context>
<context>
    <name>Kiv_mat_databaseMergeWindow</name>
    <message>
        <source>Merge</source>
        <translation>Scalanie</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Różnice</translation>
    </message>
    <message>
        <source>Value [orgin]</source>
        <translation>Wartość [orgin]</translation>
    </message>
    <message>
        <source>Value [new]</source>
        <translation>Wartość [nowa]</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Xml File</source>
        <translation>Plik XML</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Porównywanie</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) differ</source>
        <translation>
            <numerusform>Różni się %n materiał</numerusform>
            <numerusform>Różnią się %n materiały</numerusform>
            <numerusform>Różni się %n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing differs</source>
        <translation>nic się nie różni</translation>
    </message>
    <message>
        <source>editing of the database is locked</source>
        <translation>edycja bazy danych jest zablokowana</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) taken over</source>
        <translation>
            <numerusform>Przejęto %n materiał</numerusform>
            <numerusform>Przejęto %n materiały</numerusform>
            <numerusform>Przejęto %n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Pomiń</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>Words to filter by</source>
        <translation>Słowa filtra</translation>
    </message>
    <message>
        <source>Filter: name, KTM, group, field, value</source>
        <translation>Filtr: nazwa, KTM, grupa, pole, wartość</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n difference(s) marked</source>
        <translation>
            <numerusform>zaznaczono %1 z %n różnicy</numerusform>
            <numerusform>zaznaczono %1 z %n różnic</numerusform>
            <numerusform>zaznaczono %1 z %n różnic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>widoczna %n</numerusform>
            <numerusform>widoczne %n</numerusform>
            <numerusform>widocznych %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n marked but not shown</source>
        <translation>
            <numerusform>zaznaczona, a niewidoczna %n</numerusform>
            <numerusform>zaznaczone, a niewidoczne %n</numerusform>
            <numerusform>zaznaczonych, a niewidocznych %n</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing is shown</source>
        <translation>nic nie jest widoczne</translation>
    </message>
    <message>
        <source>nothing is marked</source>
        <translation>nic nie jest zaznaczone</translation>
    </message>
    <message numerus="yes">
        <source>The filter hides marks of %n difference(s). What is to be taken over?</source>
        <translation>
            <numerusform>Filtr zasłania zaznaczenia %n różnicy. Co przejąć?</numerusform>
            <numerusform>Filtr zasłania zaznaczenia %n różnic. Co przejąć?</numerusform>
            <numerusform>Filtr zasłania zaznaczenia %n różnic. Co przejąć?</numerusform>
        </translation>
    </message>
    <message>
        <source>Only what is shown</source>
        <translation>Tylko to, co widać</translation>
    </message>
    <message>
        <source>All that is marked</source>
        <translation>Wszystko, co zaznaczone</translation>
    </message>
    <message>
        <source>Opening materials</source>
        <translation>Otwieranie materiałów</translation>
    </message>
</context>
<context>
    <name>Kiv_mat_databaseWindow</name>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) written to %1</source>
        <translation>
            <numerusform>Zapisano %n materiał w %1</numerusform>
            <numerusform>Zapisano %n materiały w %1</numerusform>
            <numerusform>Zapisano %n materiałów w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Do you want create ?</source>
        <translation>Czy chcesz utworzyć ?</translation>
    </message>
    <message>
        <source>Writing the report</source>
        <translation>Zapis raportu</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>No material has empty fields</source>
        <translation>Żaden materiał nie ma pustych pól</translation>
    </message>
    <message>
        <source>Checking links</source>
        <translation>Sprawdzanie odnośników</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) checked</source>
        <translation>
            <numerusform>Sprawdzono %n odnośnik</numerusform>
            <numerusform>Sprawdzono %n odnośniki</numerusform>
            <numerusform>Sprawdzono %n odnośników</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing differs</source>
        <translation>Nic się nie różni</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Xml/Txt File</source>
        <translation>Plik XML/TXT</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Porównywanie</translation>
    </message>
    <message>
        <source>Parse</source>
        <translation>Wczytaj zestawienie</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>CPV syntax error</source>
        <translation>Błąd składni CPV</translation>
    </message>
    <message>
        <source>Load CPV for groups</source>
        <translation>Wczytaj CPV dla grup</translation>
    </message>
    <message>
        <source>Move CPV from group to materials</source>
        <translation>Przenieś CPV z grup do materiałów</translation>
    </message>
    <message>
        <source>The dictionary of CPV codes is not there</source>
        <translation>Nie ma słownika kodów CPV</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nowy</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>usunięty</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>zmieniono</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmiana</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pola</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiały</translation>
    </message>
    <message>
        <source>Database of material</source>
        <translation>Baza danych materiałów</translation>
    </message>
    <message>
        <source>Editing locked</source>
        <translation>Edycja zablokowana</translation>
    </message>
    <message>
        <source>no material is selected</source>
        <translation>nie zaznaczono materiału</translation>
    </message>
    <message>
        <source>Save database</source>
        <translation>Zapisać bazę danych</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n material(s) shown</source>
        <translation>
            <numerusform>Pokazano %1 z %n materiału</numerusform>
            <numerusform>Pokazano %1 z %n materiałów</numerusform>
            <numerusform>Pokazano %1 z %n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>This material has no link that can be opened</source>
        <translation>Ten materiał nie ma odnośnika do otwarcia</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n materiał</numerusform>
            <numerusform>Skopiowano %n materiały</numerusform>
            <numerusform>Skopiowano %n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) pasted</source>
        <translation>
            <numerusform>Wklejono %n materiał</numerusform>
            <numerusform>Wklejono %n materiały</numerusform>
            <numerusform>Wklejono %n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them need(s) a new KTM</source>
        <translation>
            <numerusform>%n z nich wymaga nowego KTM</numerusform>
            <numerusform>%n z nich wymagają nowego KTM</numerusform>
            <numerusform>%n z nich wymaga nowego KTM</numerusform>
        </translation>
    </message>
    <message>
        <source>Only empty groups are deleted</source>
        <translation>Usuwane są tylko puste grupy</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) deleted</source>
        <translation>
            <numerusform>Usunięto %n materiał</numerusform>
            <numerusform>Usunięto %n materiały</numerusform>
            <numerusform>Usunięto %n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit CPV</source>
        <translation>Edytuj CPV</translation>
    </message>
    <message>
        <source>Add. new group</source>
        <translation>Dodaj nową grupę</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nazwa grupy</translation>
    </message>
    <message>
        <source>Group already exists</source>
        <translation>Grupa już istnieje</translation>
    </message>
    <message>
        <source>Add. new material</source>
        <translation>Dodaj nowy materiał</translation>
    </message>
    <message>
        <source>Edit parameters</source>
        <translation>Edycja parametrów</translation>
    </message>
    <message>
        <source>Do you want to edit material ?</source>
        <translation>Czy chcesz edytować materiał ?</translation>
    </message>
    <message>
        <source>Ktm syntax error</source>
        <translation>Błąd składni KTM</translation>
    </message>
    <message>
        <source>Another material has this KTM</source>
        <translation>Ten KTM ma już inny materiał</translation>
    </message>
    <message>
        <source>Firms renamed</source>
        <translation>Zmieniono nazwy firm</translation>
    </message>
    <message>
        <source>Xlsx File</source>
        <translation>Plik XLSX</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>Zapisano %1</translation>
    </message>
    <message>
        <source>SQLITE File</source>
        <translation>Plik SQLite</translation>
    </message>
    <message>
        <source>No material is selected</source>
        <translation>Nie zaznaczono żadnego materiału</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>The open order or BOM lists use materials that would be deleted:</source>
        <translation>Otwarte zamówienie lub listy BOM używają materiałów, które zostałyby usunięte:</translation>
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
        <source>Delete them all the same</source>
        <translation>Usuń je mimo to</translation>
    </message>
    <message>
        <source>The open order or BOM lists use deleted materials:</source>
        <translation>Otwarte zamówienie lub listy BOM używają usuniętych materiałów:</translation>
    </message>
    <message>
        <source>once more</source>
        <translation>jeszcze raz</translation>
    </message>
    <message>
        <source>Changing materials</source>
        <translation>Zmiana materiałów</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) changed</source>
        <translation>
            <numerusform>%n materiał zmieniony</numerusform>
            <numerusform>%n materiały zmienione</numerusform>
            <numerusform>%n materiałów zmienionych</numerusform>
        </translation>
    </message>
    <message>
        <source>Attach a file</source>
        <translation>Dołącz plik</translation>
    </message>
    <message>
        <source>Manufacturer or supplier it belongs to</source>
        <translation>Producent lub dostawca, do którego należy</translation>
    </message>
    <message>
        <source>The file is attached to this material already</source>
        <translation>Ten plik jest już dołączony do tego materiału</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) attached to %1</source>
        <translation>
            <numerusform>Do %1 dołączono %n plik</numerusform>
            <numerusform>Do %1 dołączono %n pliki</numerusform>
            <numerusform>Do %1 dołączono %n plików</numerusform>
        </translation>
    </message>
    <message>
        <source>its document was not fetched</source>
        <translation>nie pobrano jego dokumentu</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) taken over</source>
        <translation>
            <numerusform>Przejęto %n odnośnik</numerusform>
            <numerusform>Przejęto %n odnośniki</numerusform>
            <numerusform>Przejęto %n odnośników</numerusform>
        </translation>
    </message>
    <message>
        <source>The database is empty. &lt;a href=&quot;addGroup&quot;&gt;Add a group&lt;/a&gt;, or &lt;a href=&quot;merge&quot;&gt;take over from another file&lt;/a&gt;.</source>
        <translation>Baza jest pusta. &lt;a href=&quot;addGroup&quot;&gt;Dodaj grupę&lt;/a&gt; albo &lt;a href=&quot;merge&quot;&gt;przejmij z innego pliku&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Nothing matches. &lt;a href=&quot;all&quot;&gt;Show all&lt;/a&gt;.</source>
        <translation>Nic nie pasuje. &lt;a href=&quot;all&quot;&gt;Pokaż wszystko&lt;/a&gt;.</translation>
    </message>
    <message numerus="yes">
        <source>%n group(s) with another CPV now</source>
        <translation>
            <numerusform>%n grupa ma teraz inny CPV</numerusform>
            <numerusform>%n grupy mają teraz inny CPV</numerusform>
            <numerusform>%n grup ma teraz inny CPV</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no group</source>
        <translation>Baza nie ma żadnej grupy</translation>
    </message>
    <message>
        <source>Group for %1</source>
        <translation>Grupa dla %1</translation>
    </message>
    <message>
        <source>Changes of the export</source>
        <translation>Zmiany w eksporcie</translation>
    </message>
    <message>
        <source>The database is saved, but the boards that were built cannot be noted in %1; saving again tries it again</source>
        <translation>Bazę zapisano, ale zmontowanych płytek nie można odnotować w pliku %1; ponowny zapis spróbuje jeszcze raz</translation>
    </message>
    <message>
        <source>The database is saved, but the deliveries that went into its stock cannot be noted beside the orders; saving again tries it again</source>
        <translation>Baza jest zapisana, ale dostaw przyjętych na jej stan nie można odnotować przy zamówieniach; ponowny zapis spróbuje jeszcze raz</translation>
    </message>
    <message>
        <source>This file is not shared: there is no history</source>
        <translation>Ten plik nie jest wspólny: nie ma historii</translation>
    </message>
    <message>
        <source>Select a material first</source>
        <translation>Najpierw wybierz materiał</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Odczyt historii</translation>
    </message>
    <message>
        <source>The shared store does not know this material yet</source>
        <translation>Wspólna baza nie zna jeszcze tego materiału</translation>
    </message>
    <message>
        <source>The material is as it was then</source>
        <translation>Materiał jest taki, jaki był wtedy</translation>
    </message>
    <message>
        <source>Back to an earlier state</source>
        <translation>Powrót do wcześniejszego stanu</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
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
        <source>The manual %1 cannot be opened</source>
        <translation>Nie można otworzyć podręcznika %1</translation>
    </message>
    <message>
        <source>A newer version is available </source>
        <translation>Dostępna jest nowsza wersja </translation>
    </message>
    <message>
        <source>File Do</source>
        <translation>Plik DO</translation>
    </message>
    <message>
        <source>New order</source>
        <translation>Nowe zamówienie</translation>
    </message>
    <message numerus="yes">
        <source>%n selected line(s), %1 PLN</source>
        <translation>
            <numerusform>%n zaznaczona pozycja, %1 PLN</numerusform>
            <numerusform>%n zaznaczone pozycje, %1 PLN</numerusform>
            <numerusform>%n zaznaczonych pozycji, %1 PLN</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s), %1 PLN</source>
        <translation>
            <numerusform>%n pozycja, %1 PLN</numerusform>
            <numerusform>%n pozycje, %1 PLN</numerusform>
            <numerusform>%n pozycji, %1 PLN</numerusform>
        </translation>
    </message>
    <message>
        <source>the order has no lines</source>
        <translation>zamówienie nie ma pozycji</translation>
    </message>
    <message>
        <source>the order was not saved yet</source>
        <translation>zamówienia jeszcze nie zapisano</translation>
    </message>
    <message>
        <source>Save &amp; close order</source>
        <translation>Zapisać i zamknąć zamówienie</translation>
    </message>
    <message>
        <source>A new order was begun</source>
        <translation>Rozpoczęto nowe zamówienie</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>a new order</source>
        <translation>nowe zamówienie</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Zapisano jako %1</translation>
    </message>
    <message>
        <source>Save order</source>
        <translation>Zapisać zamówienie</translation>
    </message>
    <message>
        <source>No copy of %1 could be made</source>
        <translation>Nie można wykonać kopii %1</translation>
    </message>
    <message>
        <source>Archive </source>
        <translation>Archiwizacja </translation>
    </message>
    <message>
        <source>Archived as %1</source>
        <translation>Zarchiwizowano jako %1</translation>
    </message>
    <message numerus="yes">
        <source>%n database(s) archived</source>
        <translation>
            <numerusform>Zarchiwizowano %n bazę danych</numerusform>
            <numerusform>Zarchiwizowano %n bazy danych</numerusform>
            <numerusform>Zarchiwizowano %n baz danych</numerusform>
        </translation>
    </message>
    <message>
        <source>Change all lines, or the selected ones only?</source>
        <translation>Zmienić wszystkie pozycje czy tylko zaznaczone?</translation>
    </message>
    <message>
        <source>All lines</source>
        <translation>Wszystkie pozycje</translation>
    </message>
    <message numerus="yes">
        <source>%n selected line(s)</source>
        <translation>
            <numerusform>%n zaznaczona pozycja</numerusform>
            <numerusform>%n zaznaczone pozycje</numerusform>
            <numerusform>%n zaznaczonych pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Change target for all materials ?</source>
        <translation>Zmienić zlecenie dla wszystkich materiałów ?</translation>
    </message>
    <message>
        <source>Selected lines</source>
        <translation>Zaznaczone pozycje</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Clear Price</source>
        <translation>Wyzeruj ceny</translation>
    </message>
    <message>
        <source>Take prices and stock of the lines from the databases again?</source>
        <translation>Pobrać ponownie ceny i stany pozycji z baz danych?</translation>
    </message>
    <message>
        <source>Refresh prices and stock</source>
        <translation>Odśwież ceny i stany</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n pozycję</numerusform>
            <numerusform>Skopiowano %n pozycje</numerusform>
            <numerusform>Skopiowano %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>This order is open here. Choose another one.</source>
        <translation>To zamówienie jest tu otwarte. Wybierz inne.</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) copied to %1</source>
        <translation>
            <numerusform>Skopiowano %n pozycję do %1</numerusform>
            <numerusform>Skopiowano %n pozycje do %1</numerusform>
            <numerusform>Skopiowano %n pozycji do %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) deleted</source>
        <translation>
            <numerusform>Usunięto %n pozycję</numerusform>
            <numerusform>Usunięto %n pozycje</numerusform>
            <numerusform>Usunięto %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete all lines of the order?</source>
        <translation>Usunąć wszystkie pozycje zamówienia?</translation>
    </message>
    <message>
        <source>All lines deleted</source>
        <translation>Usunięto wszystkie pozycje</translation>
    </message>
    <message>
        <source>In Do can be only one entry SHIPMENT of KTM: </source>
        <translation>W DO może być tylko jedna pozycja TRANSPORT o KTM: </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) added</source>
        <translation>
            <numerusform>Dodano %n pozycję</numerusform>
            <numerusform>Dodano %n pozycje</numerusform>
            <numerusform>Dodano %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>In Do can be only ten entries SHIPMENT</source>
        <translation>W DO może być tylko dziesięć pozycji TRANSPORT</translation>
    </message>
    <message>
        <source>SHIPMENT</source>
        <translation>TRANSPORT</translation>
    </message>
    <message>
        <source>Only one PCB order</source>
        <translation>Tylko jedno zamówienie PCB</translation>
    </message>
    <message>
        <source>PCB</source>
        <translation>PCB</translation>
    </message>
    <message>
        <source>No loaded database has the material %1</source>
        <translation>Żadna wczytana baza nie zawiera materiału %1</translation>
    </message>
    <message>
        <source>Editing is locked</source>
        <translation>Edycja jest zablokowana</translation>
    </message>
    <message>
        <source>A double click opens the editor of formatted text</source>
        <translation>Dwukrotne kliknięcie otwiera edytor tekstu sformatowanego</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Sortowanie według: %1</translation>
    </message>
    <message>
        <source>No database is loaded</source>
        <translation>Nie wczytano żadnej bazy danych</translation>
    </message>
    <message>
        <source>Database of material</source>
        <translation>Baza danych materiałów</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Baza danych</translation>
    </message>
    <message>
        <source>The order is locked. Allow its editing first.</source>
        <translation>Zamówienie jest zablokowane. Najpierw włącz jego edycję.</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) added or raised from BOM lists</source>
        <translation>
            <numerusform>Dodano lub zwiększono %n pozycję z list materiałów</numerusform>
            <numerusform>Dodano lub zwiększono %n pozycje z list materiałów</numerusform>
            <numerusform>Dodano lub zwiększono %n pozycji z list materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) skipped</source>
        <translation>
            <numerusform>pominięto %n materiał</numerusform>
            <numerusform>pominięto %n materiały</numerusform>
            <numerusform>pominięto %n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>Handed to the mail program</source>
        <translation>Przekazano do programu pocztowego</translation>
    </message>
    <message>
        <source>The mail program cannot be started; the message is %1</source>
        <translation>Nie można uruchomić programu pocztowego; wiadomość: %1</translation>
    </message>
    <message>
        <source>The order is saved before it is sent. Save it now?</source>
        <translation>Przed wysłaniem zamówienie jest zapisywane. Zapisać je teraz?</translation>
    </message>
    <message>
        <source>The message cannot be written to %1</source>
        <translation>Nie można zapisać wiadomości w %1</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Pakowanie</translation>
    </message>
    <message>
        <source>The message could not be made. The log says why.</source>
        <translation>Nie udało się utworzyć wiadomości. Powód podaje dziennik.</translation>
    </message>
    <message>
        <source>The order is locked, nothing was added</source>
        <translation>Zamówienie jest zablokowane, niczego nie dodano</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) refused</source>
        <translation>
            <numerusform>odrzucono %n materiał</numerusform>
            <numerusform>odrzucono %n materiały</numerusform>
            <numerusform>odrzucono %n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>No line is selected</source>
        <translation>Nie zaznaczono żadnej pozycji</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
    <message>
        <source>the lines are not shown</source>
        <translation>pozycje nie są pokazane</translation>
    </message>
    <message>
        <source>The order is not saved, and no copy of it could be kept:</source>
        <translation>Zamówienie nie jest zapisane i żadnej jego kopii nie udało się zachować:</translation>
    </message>
    <message>
        <source>Leave it and lose the changes</source>
        <translation>Porzuć je i utrać zmiany</translation>
    </message>
    <message>
        <source>No copy of the unsaved order can be kept: %1</source>
        <translation>Nie można zachować kopii niezapisanego zamówienia: %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message numerus="yes">
        <source>order, %n line(s)</source>
        <translation>
            <numerusform>zamówienie, %n pozycja</numerusform>
            <numerusform>zamówienie, %n pozycje</numerusform>
            <numerusform>zamówienie, %n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed record(s)</source>
        <translation>
            <numerusform>%n zmieniony rekord</numerusform>
            <numerusform>%n zmienione rekordy</numerusform>
            <numerusform>%n zmienionych rekordów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved file(s) kept for the next start</source>
        <translation>
            <numerusform>%n niezapisany plik zachowany do następnego uruchomienia</numerusform>
            <numerusform>%n niezapisane pliki zachowane do następnego uruchomienia</numerusform>
            <numerusform>%n niezapisanych plików zachowanych do następnego uruchomienia</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program has opened what was left of %1 by now.</source>
        <translation>To, co zostało z %1, otworzył już inny program.</translation>
    </message>
    <message>
        <source>What was left of %1 cannot be read. It stays in %2.</source>
        <translation>Nie można odczytać tego, co zostało z %1. Pozostaje w %2.</translation>
    </message>
    <message>
        <source>Restored as it was %1, not saved</source>
        <translation>Przywrócono stan z %1, niezapisany</translation>
    </message>
    <message>
        <source>The file %1 is none of those that the program has open. What was left of it is kept.</source>
        <translation>Plik %1 nie jest żadnym z plików, z którymi program pracuje. To, co z niego zostało, jest zachowane.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>Opened as a new order: %1</source>
        <translation>Otwarto jako nowe zamówienie: %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć %1</translation>
    </message>
    <message>
        <source>%1 is not edited in any window; open the copy instead.</source>
        <translation>%1 nie jest edytowany w żadnym oknie; zamiast tego otwórz kopię.</translation>
    </message>
    <message>
        <source>Open repaired copy</source>
        <translation>Otwórz naprawioną kopię</translation>
    </message>
    <message>
        <source>%1 is no order.</source>
        <translation>%1 nie jest zamówieniem.</translation>
    </message>
    <message>
        <source>The file %1 has changes that are not saved. What was left of it is kept for the next start.</source>
        <translation>Plik %1 ma niezapisane zmiany. To, co po nim zostało, jest zachowane do następnego uruchomienia.</translation>
    </message>
    <message>
        <source>the file has changed since</source>
        <translation>plik się od tego czasu zmienił</translation>
    </message>
    <message>
        <source>The list has no line of %1</source>
        <translation>Lista nie ma pozycji %1</translation>
    </message>
    <message>
        <source>Open the order %1 in place of this one?</source>
        <translation>Otworzyć zamówienie %1 w miejsce bieżącego?</translation>
    </message>
    <message>
        <source>The order has no line of %1</source>
        <translation>Zamówienie nie ma pozycji %1</translation>
    </message>
    <message>
        <source>Taken out of stock: %1</source>
        <translation>Zdjęto ze stanu: %1</translation>
    </message>
    <message>
        <source>the order is locked</source>
        <translation>zamówienie jest zablokowane</translation>
    </message>
    <message>
        <source>a text in its window is refused</source>
        <translation>tekst w jego oknie jest nieprawidłowy</translation>
    </message>
    <message>
        <source>Material replaced</source>
        <translation>Zastąpiono materiał</translation>
    </message>
    <message>
        <source>There is nothing to be bought.</source>
        <translation>Nie ma nic do kupienia.</translation>
    </message>
    <message>
        <source>The details of the firms in %1 cannot be read; all baskets have the usual columns</source>
        <translation>Nie można odczytać danych firm z pliku %1; wszystkie koszyki mają zwykłe kolumny</translation>
    </message>
    <message>
        <source>The details of all firms become those of the version %1.</source>
        <translation>Dane wszystkich firm zostaną zastąpione danymi z wersji %1.</translation>
    </message>
    <message>
        <source>Restore them</source>
        <translation>Przywróć je</translation>
    </message>
    <message>
        <source>The details of the firms are restored</source>
        <translation>Przywrócono dane firm</translation>
    </message>
    <message>
        <source>the order was not sent</source>
        <translation>zamówienie nie zostało wysłane</translation>
    </message>
    <message>
        <source>A new order was begun with the lines of %1</source>
        <translation>Rozpoczęto nowe zamówienie z pozycjami z %1</translation>
    </message>
    <message>
        <source>This order was sent on %1; Edit allows changes all the same</source>
        <translation>To zamówienie wysłano %1; „Edycja” mimo to pozwala na zmiany</translation>
    </message>
    <message>
        <source>Nothing was changed since it was sent</source>
        <translation>Od wysłania nic się nie zmieniło</translation>
    </message>
    <message>
        <source>Changed since it was sent</source>
        <translation>Zmiany od wysłania</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n różnica</numerusform>
            <numerusform>%n różnice</numerusform>
            <numerusform>%n różnic</numerusform>
        </translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>None of these materials was ordered before</source>
        <translation>Żadnego z tych materiałów jeszcze nie zamawiano</translation>
    </message>
    <message numerus="yes">
        <source>%n price(s) of the last orders</source>
        <translation>
            <numerusform>%n cena z ostatniego zamówienia</numerusform>
            <numerusform>%n ceny z ostatnich zamówień</numerusform>
            <numerusform>%n cen z ostatnich zamówień</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them on the way already</source>
        <translation>
            <numerusform>%n z nich jest już w drodze</numerusform>
            <numerusform>%n z nich są już w drodze</numerusform>
            <numerusform>%n z nich jest już w drodze</numerusform>
        </translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>pozycje %1</translation>
    </message>
    <message numerus="yes">
        <source>%n CPV threshold(s) passed</source>
        <translation>
            <numerusform>Przekroczony %n próg CPV</numerusform>
            <numerusform>Przekroczone %n progi CPV</numerusform>
            <numerusform>Przekroczonych %n progów CPV</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing of the selected lines is to come</source>
        <translation>Z zaznaczonych pozycji nic już nie ma przyjść</translation>
    </message>
    <message>
        <source>Nothing of the order is to come</source>
        <translation>Z tego zamówienia nic już nie ma przyjść</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) delivered</source>
        <translation>
            <numerusform>dostarczono %n pozycję</numerusform>
            <numerusform>dostarczono %n pozycje</numerusform>
            <numerusform>dostarczono %n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them in part</source>
        <translation>
            <numerusform>%n z nich częściowo</numerusform>
            <numerusform>%n z nich częściowo</numerusform>
            <numerusform>%n z nich częściowo</numerusform>
        </translation>
    </message>
    <message>
        <source>Save the order first</source>
        <translation>Najpierw zapisz zamówienie</translation>
    </message>
    <message>
        <source>These deliveries cannot be taken into stock:</source>
        <translation>Tych dostaw nie można przyjąć na stan:</translation>
    </message>
    <message>
        <source>No delivery is to be taken into stock</source>
        <translation>Nie ma dostaw do przyjęcia na stan</translation>
    </message>
    <message>
        <source>Delivered into stock</source>
        <translation>Dostawy na stan</translation>
    </message>
    <message numerus="yes">
        <source>%n price(s) of offers</source>
        <translation>
            <numerusform>%n cena z ofert</numerusform>
            <numerusform>%n ceny z ofert</numerusform>
            <numerusform>%n cen z ofert</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be seen which deliveries are in stock already</source>
        <translation>Nie można sprawdzić, które dostawy są już na stanie</translation>
    </message>
    <message>
        <source>It could not be noted for the new file which deliveries are in stock already</source>
        <translation>Nie można odnotować dla nowego pliku, które dostawy są już na stanie</translation>
    </message>
    <message>
        <source>Updates cannot be looked for </source>
        <translation>Nie można sprawdzić aktualizacji </translation>
    </message>
    <message>
        <source>An update is there: %1</source>
        <translation>Jest aktualizacja: %1</translation>
    </message>
    <message>
        <source>Making the update</source>
        <translation>Tworzenie aktualizacji</translation>
    </message>
    <message>
        <source>Cancelled; nothing was changed</source>
        <translation>Anulowano; niczego nie zmieniono</translation>
    </message>
    <message numerus="yes">
        <source>The update is in %1: %n file(s)</source>
        <translation>
            <numerusform>Aktualizacja jest w %1: %n plik</numerusform>
            <numerusform>Aktualizacja jest w %1: %n pliki</numerusform>
            <numerusform>Aktualizacja jest w %1: %n plików</numerusform>
        </translation>
    </message>
    <message>
        <source>What is new in the update</source>
        <translation>Co nowego w aktualizacji</translation>
    </message>
    <message>
        <source>No file is shared: put one into the shared store first</source>
        <translation>Żaden plik nie jest wspólny: najpierw umieść jakiś we wspólnej bazie</translation>
    </message>
    <message numerus="yes">
        <source>%n shared file(s)</source>
        <translation>
            <numerusform>%n wspólny plik</numerusform>
            <numerusform>%n wspólne pliki</numerusform>
            <numerusform>%n wspólnych plików</numerusform>
        </translation>
    </message>
    <message>
        <source>Not synchronised: %1</source>
        <translation>Niezsynchronizowane: %1</translation>
    </message>
    <message>
        <source>The shared store is empty</source>
        <translation>Wspólna baza jest pusta</translation>
    </message>
    <message>
        <source>Take from the shared store</source>
        <translation>Pobranie ze wspólnej bazy</translation>
    </message>
    <message>
        <source>&amp;Document:</source>
        <translation>&amp;Dokument:</translation>
    </message>
    <message>
        <source>A newer program put this document into the shared store.</source>
        <translation>Ten dokument umieścił we wspólnej bazie nowszy program.</translation>
    </message>
    <message>
        <source>Taking it from the shared store</source>
        <translation>Pobieranie ze wspólnej bazy</translation>
    </message>
    <message>
        <source>%1 is in %2</source>
        <translation>%1 jest w pliku %2</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>materiały</translation>
    </message>
    <message>
        <source>firms</source>
        <translation>firmy</translation>
    </message>
    <message>
        <source>details of firms</source>
        <translation>dane firm</translation>
    </message>
    <message>
        <source>reservations</source>
        <translation>rezerwacje</translation>
    </message>
    <message>
        <source>states of orders</source>
        <translation>stany zamówień</translation>
    </message>
    <message>
        <source>offers</source>
        <translation>oferty</translation>
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
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Check the configuration, write it and use it</source>
        <translation>Sprawdź konfigurację, zapisz ją i zastosuj</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Wartości domyślne</translation>
    </message>
    <message>
        <source>Give every option its default value</source>
        <translation>Nadaj wszystkim opcjom wartości domyślne</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edycja</translation>
    </message>
    <message>
        <source>Allow changes of the configuration</source>
        <translation>Zezwól na zmiany konfiguracji</translation>
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
        <source>Add row</source>
        <translation>Dodaj wiersz</translation>
    </message>
    <message>
        <source>Add a person or a target</source>
        <translation>Dodaj osobę lub zlecenie</translation>
    </message>
    <message>
        <source>Delete rows</source>
        <translation>Usuń wiersze</translation>
    </message>
    <message>
        <source>Delete the selected persons or targets</source>
        <translation>Usuń zaznaczone osoby lub zlecenia</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowe</translation>
    </message>
    <message>
        <source>Start an empty order</source>
        <translation>Rozpocznij puste zamówienie</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Open an order</source>
        <translation>Otwórz zamówienie</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>Save under another name, with the report beside it</source>
        <translation>Zapisz pod inną nazwą, z raportem obok</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Print the order to a PDF file</source>
        <translation>Drukuj zamówienie do pliku PDF</translation>
    </message>
    <message>
        <source>Archive dd</source>
        <translation>Archiwizuj DO</translation>
    </message>
    <message>
        <source>Put a dated copy of the order into the backup folder</source>
        <translation>Zapisz datowaną kopię zamówienia w folderze kopii</translation>
    </message>
    <message>
        <source>Archive database</source>
        <translation>Archiwizuj bazy danych</translation>
    </message>
    <message>
        <source>Put dated copies of the material databases into the backup folder</source>
        <translation>Zapisz datowane kopie baz danych w folderze kopii</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Allow changes of the order</source>
        <translation>Zezwól na zmiany zamówienia</translation>
    </message>
    <message>
        <source>Copy cells</source>
        <translation>Kopiuj komórki</translation>
    </message>
    <message>
        <source>Copy the selected cells as text</source>
        <translation>Kopiuj zaznaczone komórki jako tekst</translation>
    </message>
    <message>
        <source>Paste cells</source>
        <translation>Wklej komórki</translation>
    </message>
    <message>
        <source>Paste text into the cells from the current one on</source>
        <translation>Wklej tekst do komórek, począwszy od bieżącej</translation>
    </message>
    <message>
        <source>Copy ...</source>
        <translation>Kopiuj ...</translation>
    </message>
    <message>
        <source>Copy lines to another order or to the clipboard</source>
        <translation>Kopiuj pozycje do innego zamówienia lub do schowka</translation>
    </message>
    <message>
        <source>Clear ...</source>
        <translation>Wyczyść ...</translation>
    </message>
    <message>
        <source>Empty chosen columns of the lines</source>
        <translation>Opróżnij wybrane kolumny pozycji</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>Find a text in the lines</source>
        <translation>Znajdź tekst w pozycjach</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Znajdź następny</translation>
    </message>
    <message>
        <source>Config</source>
        <translation>Dane zamówienia</translation>
    </message>
    <message>
        <source>Go to the order&apos;s number, date, target and persons</source>
        <translation>Przejdź do numeru, daty, zlecenia i osób</translation>
    </message>
    <message>
        <source>Edit attentions</source>
        <translation>Edytuj uwagi</translation>
    </message>
    <message>
        <source>Do</source>
        <translation>DO</translation>
    </message>
    <message>
        <source>Add material ...</source>
        <translation>Dodaj materiał ...</translation>
    </message>
    <message>
        <source>Search the databases and add materials</source>
        <translation>Szukaj w bazach i dodaj materiały</translation>
    </message>
    <message>
        <source>Shipment</source>
        <translation>Transport</translation>
    </message>
    <message>
        <source>Add a line for shipment</source>
        <translation>Dodaj pozycję transportu</translation>
    </message>
    <message>
        <source>PCB</source>
        <translation>PCB</translation>
    </message>
    <message>
        <source>All Quantities</source>
        <translation>Wszystkie ilości</translation>
    </message>
    <message>
        <source>Set the quantity of all lines</source>
        <translation>Ustaw ilość wszystkich pozycji</translation>
    </message>
    <message>
        <source>All Dates</source>
        <translation>Wszystkie terminy</translation>
    </message>
    <message>
        <source>Set the date of all lines</source>
        <translation>Ustaw termin wszystkich pozycji</translation>
    </message>
    <message>
        <source>All Descriptions</source>
        <translation>Wszystkie opisy</translation>
    </message>
    <message>
        <source>Set the description of all lines</source>
        <translation>Ustaw opis wszystkich pozycji</translation>
    </message>
    <message>
        <source>All RoHS</source>
        <translation>Wszystkie RoHS</translation>
    </message>
    <message>
        <source>Set whether the materials have to comply with RoHS</source>
        <translation>Ustaw wymóg RoHS materiałów</translation>
    </message>
    <message>
        <source>All Units</source>
        <translation>Wszystkie jednostki</translation>
    </message>
    <message>
        <source>Set the unit of all lines</source>
        <translation>Ustaw jednostkę wszystkich pozycji</translation>
    </message>
    <message>
        <source>All Targets</source>
        <translation>Wszystkie zlecenia</translation>
    </message>
    <message>
        <source>Set the target of all lines</source>
        <translation>Ustaw zlecenie wszystkich pozycji</translation>
    </message>
    <message>
        <source>All Sum</source>
        <translation>Sumy</translation>
    </message>
    <message>
        <source>Sums over all or the selected lines</source>
        <translation>Sumy wszystkich lub zaznaczonych pozycji</translation>
    </message>
    <message>
        <source>Clear Price</source>
        <translation>Wyzeruj ceny</translation>
    </message>
    <message>
        <source>Set the prices of the lines to 0</source>
        <translation>Ustaw ceny pozycji na 0</translation>
    </message>
    <message>
        <source>Refresh prices and stock</source>
        <translation>Odśwież ceny i stany</translation>
    </message>
    <message>
        <source>Take prices and stock from the databases again</source>
        <translation>Pobierz ponownie ceny i stany z baz</translation>
    </message>
    <message>
        <source>Delete lines</source>
        <translation>Usuń pozycje</translation>
    </message>
    <message>
        <source>Delete the selected lines (Del)</source>
        <translation>Usuń zaznaczone pozycje (Del)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Delete all lines</source>
        <translation>Usuń wszystkie pozycje</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguracja</translation>
    </message>
    <message>
        <source>Options, persons and targets</source>
        <translation>Opcje, osoby i zlecenia</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Preview beside the order</source>
        <translation>Podgląd obok zamówienia</translation>
    </message>
    <message>
        <source>Show the report beside the lines</source>
        <translation>Pokaż raport obok pozycji</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>What was done, and how it went</source>
        <translation>Co wykonano i z jakim skutkiem</translation>
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
        <source>Compare with another file</source>
        <translation>Porównaj z innym plikiem</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ustaw</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Pomiń</translation>
    </message>
    <message>
        <source>Take the selected materials out of the list</source>
        <translation>Usuń zaznaczone materiały z listy</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Rozwiń</translation>
    </message>
    <message>
        <source>Collaps</source>
        <translation>Zwiń</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Make this database like another file</source>
        <translation>Uaktualnij bazę według innego pliku</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scalanie</translation>
    </message>
    <message>
        <source>Compare with another file and take over changes</source>
        <translation>Porównaj z innym plikiem i przejmij zmiany</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pełny</translation>
    </message>
    <message>
        <source>Write a page of all materials</source>
        <translation>Zapisz stronę ze wszystkimi materiałami</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Skrócony</translation>
    </message>
    <message>
        <source>Write a short page of all materials</source>
        <translation>Zapisz skróconą stronę ze wszystkimi materiałami</translation>
    </message>
    <message>
        <source>Allow changes of the database</source>
        <translation>Zezwól na zmiany bazy danych</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>Kopiuj tekst</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy the selected materials</source>
        <translation>Kopiuj zaznaczone materiały</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Cut the selected materials</source>
        <translation>Wytnij zaznaczone materiały</translation>
    </message>
    <message>
        <source>Past</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Delete materials</source>
        <translation>Usuń materiały</translation>
    </message>
    <message>
        <source>Delete the selected materials, or empty groups</source>
        <translation>Usuń zaznaczone materiały lub puste grupy</translation>
    </message>
    <message>
        <source>Add. new group</source>
        <translation>Dodaj nową grupę</translation>
    </message>
    <message>
        <source>Add. new material</source>
        <translation>Dodaj nowy materiał</translation>
    </message>
    <message>
        <source>Edit parameters</source>
        <translation>Edycja parametrów</translation>
    </message>
    <message>
        <source>Edit CPV</source>
        <translation>Edytuj CPV</translation>
    </message>
    <message>
        <source>Go to the search field</source>
        <translation>Przejdź do pola wyszukiwania</translation>
    </message>
    <message>
        <source>Open all groups</source>
        <translation>Rozwiń wszystkie grupy</translation>
    </message>
    <message>
        <source>Close all groups</source>
        <translation>Zwiń wszystkie grupy</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolumny</translation>
    </message>
    <message>
        <source>Choose the columns shown</source>
        <translation>Wybierz pokazywane kolumny</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Szary</translation>
    </message>
    <message>
        <source>Show only materials with this status</source>
        <translation>Pokaż tylko materiały o tym statusie</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Fioletowy</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Edytowane</translation>
    </message>
    <message>
        <source>Show only materials marked as edited</source>
        <translation>Pokaż tylko materiały oznaczone jako edytowane</translation>
    </message>
    <message>
        <source>Find Duplicate</source>
        <translation>Znajdź duplikaty</translation>
    </message>
    <message>
        <source>List materials that share a KTM or a part number</source>
        <translation>Wypisz materiały o wspólnym KTM lub numerze producenta</translation>
    </message>
    <message>
        <source>Find empty</source>
        <translation>Znajdź puste</translation>
    </message>
    <message>
        <source>List materials with empty fields</source>
        <translation>Wypisz materiały z pustymi polami</translation>
    </message>
    <message>
        <source>Check urls</source>
        <translation>Sprawdź odnośniki</translation>
    </message>
    <message>
        <source>Test every link of the materials</source>
        <translation>Sprawdź każdy odnośnik materiałów</translation>
    </message>
    <message>
        <source>Parse</source>
        <translation>Wczytaj zestawienie</translation>
    </message>
    <message>
        <source>Take stock and prices from a listing</source>
        <translation>Przejmij stany i ceny z zestawienia</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Count materials and groups</source>
        <translation>Policz materiały i grupy</translation>
    </message>
    <message>
        <source>Altium</source>
        <translation>Altium</translation>
    </message>
    <message>
        <source>Create altium xlsx</source>
        <translation>Utwórz altium xlsx</translation>
    </message>
    <message>
        <source>Export the component library as a workbook</source>
        <translation>Eksportuj bibliotekę elementów jako skoroszyt</translation>
    </message>
    <message>
        <source>Create altium sqlite</source>
        <translation>Utwórz altium sqlite</translation>
    </message>
    <message>
        <source>Export the component library as a database</source>
        <translation>Eksportuj bibliotekę elementów jako bazę danych</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupy</translation>
    </message>
    <message>
        <source>Export the list of groups</source>
        <translation>Eksportuj listę grup</translation>
    </message>
    <message>
        <source>Load CPV for groups</source>
        <translation>Wczytaj CPV dla grup</translation>
    </message>
    <message>
        <source>Read the groups&apos; CPV codes from a text file</source>
        <translation>Wczytaj kody CPV grup z pliku tekstowego</translation>
    </message>
    <message>
        <source>Move CPV from group to materials</source>
        <translation>Przenieś CPV z grup do materiałów</translation>
    </message>
    <message>
        <source>CPV index</source>
        <translation>Indeks CPV</translation>
    </message>
    <message>
        <source>CPV index www</source>
        <translation>Indeks CPV www</translation>
    </message>
    <message>
        <source>Open the link of this material</source>
        <translation>Otwórz odnośnik tego materiału</translation>
    </message>
    <message>
        <source>Insert to BOM</source>
        <translation>Wstaw do BOM</translation>
    </message>
    <message>
        <source>To the order: 1</source>
        <translation>Do zamówienia: 1</translation>
    </message>
    <message>
        <source>Add the selected materials to the order</source>
        <translation>Dodaj zaznaczone materiały do zamówienia</translation>
    </message>
    <message>
        <source>To the order: N ...</source>
        <translation>Do zamówienia: N ...</translation>
    </message>
    <message>
        <source>Add the selected materials to the order with a quantity</source>
        <translation>Dodaj zaznaczone materiały do zamówienia z podaną ilością</translation>
    </message>
    <message>
        <source>Database of material</source>
        <translation>Baza danych materiałów</translation>
    </message>
    <message>
        <source>Browse and edit a material database</source>
        <translation>Przeglądaj i edytuj bazę materiałów</translation>
    </message>
    <message>
        <source>Check the material and give it to its database</source>
        <translation>Sprawdź materiał i przekaż go do jego bazy</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Polecenia</translation>
    </message>
    <message>
        <source>Add manufacturer</source>
        <translation>Dodaj producenta</translation>
    </message>
    <message>
        <source>Add suppler</source>
        <translation>Dodaj dostawcę</translation>
    </message>
    <message>
        <source>Add file</source>
        <translation>Dodaj plik</translation>
    </message>
    <message>
        <source>Add a file or link to the manufacturer or supplier</source>
        <translation>Dodaj plik lub odnośnik do producenta albo dostawcy</translation>
    </message>
    <message>
        <source>Delete the selected manufacturers, suppliers and files</source>
        <translation>Usuń zaznaczonych producentów, dostawców i pliki</translation>
    </message>
    <message>
        <source>Delete file</source>
        <translation>Usuń plik</translation>
    </message>
    <message>
        <source>Delete files</source>
        <translation>Usuń pliki</translation>
    </message>
    <message>
        <source>Delete all files of the manufacturer or supplier</source>
        <translation>Usuń wszystkie pliki producenta albo dostawcy</translation>
    </message>
    <message>
        <source>Datasheets</source>
        <translation>Karty katalogowe</translation>
    </message>
    <message>
        <source>Add the link to a datasheet on the file server</source>
        <translation>Dodaj odnośnik do karty katalogowej na serwerze plików</translation>
    </message>
    <message>
        <source>Declarations</source>
        <translation>Deklaracje</translation>
    </message>
    <message>
        <source>Add the link to a RoHS declaration on the file server</source>
        <translation>Dodaj odnośnik do deklaracji RoHS na serwerze plików</translation>
    </message>
    <message>
        <source>CopyFileToServer</source>
        <translation>Kopiuj plik na serwer</translation>
    </message>
    <message>
        <source>Copy the file of the current link to the file server</source>
        <translation>Skopiuj plik bieżącego odnośnika na serwer plików</translation>
    </message>
    <message>
        <source>Open the current file or link</source>
        <translation>Otwórz bieżący odnośnik</translation>
    </message>
    <message>
        <source>Write the list of firms and put it in use</source>
        <translation>Zapisz listę firm i zacznij jej używać</translation>
    </message>
    <message>
        <source>Allow changes of the firms</source>
        <translation>Pozwól zmieniać firmy</translation>
    </message>
    <message>
        <source>Find a text among the firms</source>
        <translation>Znajdź tekst wśród firm</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Add new firm</source>
        <translation>Dodaj nową firmę</translation>
    </message>
    <message>
        <source>Delete firms</source>
        <translation>Usuń firmy</translation>
    </message>
    <message>
        <source>Delete the selected firms that no material uses</source>
        <translation>Usuń zaznaczone firmy, których nie używa żaden materiał</translation>
    </message>
    <message>
        <source>Open home page</source>
        <translation>Otwórz stronę firmy</translation>
    </message>
    <message>
        <source>Open the firm&apos;s home page in the browser</source>
        <translation>Otwórz stronę internetową firmy w przeglądarce</translation>
    </message>
    <message>
        <source>Open list of manufacturers and suppliers</source>
        <translation>Otwórz listę producentów i dostawców</translation>
    </message>
    <message>
        <source>The register of firms</source>
        <translation>Rejestr firm</translation>
    </message>
    <message>
        <source>Allow changes of the list</source>
        <translation>Zezwól na zmiany listy</translation>
    </message>
    <message>
        <source>Delete the selected lines</source>
        <translation>Usuń wybrane pozycje</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Sums of quantities and prices, per set and for all sets</source>
        <translation>Sumy ilości i cen, dla jednego i dla wszystkich zestawów</translation>
    </message>
    <message>
        <source>Put the materials of all lists that are built into the order</source>
        <translation>Wstaw do zamówienia materiały wszystkich montowanych list</translation>
    </message>
    <message>
        <source>Build no list: all numbers of sets become 0</source>
        <translation>Nie montuj żadnej listy: wszystkie liczby zestawów będą równe 0</translation>
    </message>
    <message>
        <source>All Quantities ...</source>
        <translation>Wszystkie ilości ...</translation>
    </message>
    <message>
        <source>Set the number of sets of all or the selected lists</source>
        <translation>Ustaw liczbę zestawów wszystkich lub wybranych list</translation>
    </message>
    <message>
        <source>Write a page or PDF of the selected lists, else of those that are built</source>
        <translation>Zapisz stronę lub PDF wybranych list, a bez wyboru – montowanych</translation>
    </message>
    <message>
        <source>Write the set of BOM lists</source>
        <translation>Zapisz zbiór list materiałów</translation>
    </message>
    <message>
        <source>Add. new file</source>
        <translation>Dodaj nowy plik</translation>
    </message>
    <message>
        <source>Add a BOM list to this folder</source>
        <translation>Dodaj listę materiałów do tego folderu</translation>
    </message>
    <message>
        <source>Take the selected lists and empty folders out of the set; files stay on the disk</source>
        <translation>Wyłącz ze zbioru wybrane listy i puste foldery; pliki zostają na dysku</translation>
    </message>
    <message>
        <source>Set all quantities</source>
        <translation>Ustaw wszystkie ilości</translation>
    </message>
    <message>
        <source>Open the file with the desktop&apos;s program</source>
        <translation>Otwórz plik w programie systemowym</translation>
    </message>
    <message>
        <source>Bom</source>
        <translation>BOM</translation>
    </message>
    <message>
        <source>Look at the lines of the list</source>
        <translation>Pokaż pozycje listy</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>Export the KTMs and quantities of the list</source>
        <translation>Eksportuj KTM i ilości listy</translation>
    </message>
    <message>
        <source>DOC</source>
        <translation>DOC</translation>
    </message>
    <message>
        <source>Export the report of the list as a document</source>
        <translation>Eksportuj raport listy jako dokument</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Send the saved order and its PDF by mail</source>
        <translation>Wyślij pocztą zapisane zamówienie i jego PDF</translation>
    </message>
    <message>
        <source>Send database</source>
        <translation>Wyślij bazy danych</translation>
    </message>
    <message>
        <source>Send the material databases to the administrator</source>
        <translation>Wyślij bazy materiałów do administratora</translation>
    </message>
    <message>
        <source>Send BOMS</source>
        <translation>Wyślij listy BOM</translation>
    </message>
    <message>
        <source>Append from bom</source>
        <translation>Dodaj z BOM</translation>
    </message>
    <message>
        <source>Add the materials of BOM lists, times their sets</source>
        <translation>Dodaj materiały list BOM, pomnożone przez liczby zestawów</translation>
    </message>
    <message>
        <source>Bill of materials</source>
        <translation>Lista materiałów (BOM)</translation>
    </message>
    <message>
        <source>The BOM lists and how many sets are built</source>
        <translation>Listy materiałów i liczby montowanych zestawów</translation>
    </message>
    <message>
        <source>Message template</source>
        <translation>Szablon wiadomości</translation>
    </message>
    <message>
        <source>Edit the text that goes along with an order</source>
        <translation>Edytuj tekst dołączany do zamówienia</translation>
    </message>
    <message>
        <source>Open this group</source>
        <translation>Rozwiń tę grupę</translation>
    </message>
    <message>
        <source>Close this group</source>
        <translation>Zwiń tę grupę</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>all lines</comment>
        <translation>Usuń wszystko</translation>
    </message>
    <message>
        <source>Fill down</source>
        <translation>Wypełnij w dół</translation>
    </message>
    <message>
        <source>Put the topmost selected cell of each column into those below it</source>
        <translation>Wpisz najwyższą zaznaczoną komórkę każdej kolumny do zaznaczonych pod nią</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message>
        <source>Move the selected lines up</source>
        <translation>Przesuń zaznaczone pozycje w górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message>
        <source>Move the selected lines down</source>
        <translation>Przesuń zaznaczone pozycje w dół</translation>
    </message>
    <message>
        <source>Paste the copied materials into this group, or the copied text into the cells from the current one on</source>
        <translation>Wkleja skopiowane materiały do tej grupy albo skopiowany tekst do komórek od bieżącej</translation>
    </message>
    <message>
        <source>Paste lines</source>
        <translation>Wklej pozycje</translation>
    </message>
    <message>
        <source>Paste text as new lines below the selected one</source>
        <translation>Wkleja tekst jako nowe pozycje pod zaznaczoną</translation>
    </message>
    <message>
        <source>Pick material ...</source>
        <translation>Wybierz materiał ...</translation>
    </message>
    <message>
        <source>Search the databases for the material of the selected line</source>
        <translation>Szuka w bazach materiału dla zaznaczonej pozycji</translation>
    </message>
    <message>
        <source>Open an order as a new one, any other copy to be looked at</source>
        <translation>Otwórz zamówienie jako nowe, inną kopię do obejrzenia</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Put the content back, as a step that can be undone</source>
        <translation>Przywróć treść jako krok, który można cofnąć</translation>
    </message>
    <message>
        <source>List again</source>
        <translation>Odśwież listę</translation>
    </message>
    <message>
        <source>Compare with the version after it</source>
        <translation>Porównaj z następną wersją</translation>
    </message>
    <message>
        <source>Instead of the file as it is now</source>
        <translation>Zamiast z plikiem w obecnym stanie</translation>
    </message>
    <message>
        <source>Versions and unsaved orders ...</source>
        <translation>Wersje i niezapisane zamówienia ...</translation>
    </message>
    <message>
        <source>What is kept of the file: compare, open, restore</source>
        <translation>Co zachowano z pliku: porównaj, otwórz, przywróć</translation>
    </message>
    <message>
        <source>Open repaired copy ...</source>
        <translation>Otwórz naprawioną kopię ...</translation>
    </message>
    <message>
        <source>Read what can be read of a damaged file of any kind</source>
        <translation>Odczytaj, co się da, z uszkodzonego pliku dowolnego rodzaju</translation>
    </message>
    <message>
        <source>Open list of parts ...</source>
        <translation>Otwórz listę elementów ...</translation>
    </message>
    <message>
        <source>Read another CSV, XLSX, ODS, XLS or KiCad XML file</source>
        <translation>Wczytaj inny plik CSV, XLSX, ODS, XLS albo XML programu KiCad</translation>
    </message>
    <message>
        <source>Write the BOM list and add it to the set</source>
        <translation>Zapisz listę BOM i dodaj ją do zestawu</translation>
    </message>
    <message>
        <source>Save the table of all lines with what they were found by</source>
        <translation>Zapisz tabelę wszystkich pozycji wraz z tym, po czym je znaleziono</translation>
    </message>
    <message>
        <source>Decisions</source>
        <translation>Decyzje</translation>
    </message>
    <message>
        <source>Open the file of what was decided before</source>
        <translation>Otwórz plik z wcześniejszymi decyzjami</translation>
    </message>
    <message>
        <source>Take the material</source>
        <translation>Przyjmij materiał</translation>
    </message>
    <message>
        <source>Match the line with the material that is marked below it</source>
        <translation>Przypisz pozycji materiał zaznaczony pod nią</translation>
    </message>
    <message>
        <source>Unmatch</source>
        <translation>Cofnij przypisanie</translation>
    </message>
    <message>
        <source>The line becomes an unknown one</source>
        <translation>Pozycja staje się nieznana</translation>
    </message>
    <message>
        <source>Leave out or take in</source>
        <translation>Pomiń albo przywróć</translation>
    </message>
    <message>
        <source>A line that is left out is not written</source>
        <translation>Pominięta pozycja nie zostanie zapisana</translation>
    </message>
    <message>
        <source>New material from this line ...</source>
        <translation>Nowy materiał z tej pozycji ...</translation>
    </message>
    <message>
        <source>Open the material editor filled in from the line</source>
        <translation>Otwórz edytor materiału wypełniony danymi pozycji</translation>
    </message>
    <message>
        <source>Next open line</source>
        <translation>Następna nierozstrzygnięta pozycja</translation>
    </message>
    <message>
        <source>Go to the next line without a material</source>
        <translation>Przejdź do następnej pozycji bez materiału</translation>
    </message>
    <message>
        <source>Match again</source>
        <translation>Dopasuj ponownie</translation>
    </message>
    <message>
        <source>Look for materials anew; what you chose stays decided</source>
        <translation>Poszukaj materiałów od nowa; to, co wybrano, pozostaje rozstrzygnięte</translation>
    </message>
    <message>
        <source>Import list of parts ...</source>
        <translation>Importuj listę elementów ...</translation>
    </message>
    <message>
        <source>Make a BOM list of a list of parts of a CAD tool: CSV, XLSX, ODS, KiCad</source>
        <translation>Utwórz listę BOM z listy elementów programu CAD: CSV, XLSX, ODS, KiCad</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Eksportuj ...</translation>
    </message>
    <message>
        <source>Write the rows that are shown as a workbook or CSV file</source>
        <translation>Zapisz pokazane wiersze jako skoroszyt albo plik CSV</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Sprawdź ponownie</translation>
    </message>
    <message>
        <source>Check the whole database, also whether files are there</source>
        <translation>Sprawdź całą bazę, także to, czy pliki istnieją</translation>
    </message>
    <message>
        <source>Copy the selected rows as text</source>
        <translation>Kopiuj wybrane wiersze jako tekst</translation>
    </message>
    <message>
        <source>Go to the cell</source>
        <translation>Przejdź do komórki</translation>
    </message>
    <message>
        <source>Go to the cell in the database (Return)</source>
        <translation>Przejdź do komórki w bazie (Enter)</translation>
    </message>
    <message>
        <source>Take over what is marked</source>
        <translation>Przejmij to, co zaznaczone</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Zaznacz</translation>
    </message>
    <message>
        <source>Mark the selected materials and fields, or unmark them</source>
        <translation>Zaznacz wybrane materiały i pola albo usuń ich zaznaczenie</translation>
    </message>
    <message>
        <source>Mark all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Mark all that is shown, but no material once more</source>
        <translation>Zaznacz wszystko, co widać, oprócz materiałów „jeszcze raz”</translation>
    </message>
    <message>
        <source>Mark none</source>
        <translation>Odznacz wszystko</translation>
    </message>
    <message>
        <source>Unmark all that is shown</source>
        <translation>Usuń zaznaczenie wszystkiego, co widać</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Go to the filter field</source>
        <translation>Przejdź do pola filtra</translation>
    </message>
    <message>
        <source>Equal fields</source>
        <translation>Pola jednakowe</translation>
    </message>
    <message>
        <source>Show the fields, too, that are the same in both</source>
        <translation>Pokaż także pola, które w obu bazach są jednakowe</translation>
    </message>
    <message>
        <source>Change selected materials ...</source>
        <translation>Zmień zaznaczone materiały ...</translation>
    </message>
    <message>
        <source>Set, replace or compose a field of many materials, move them or give them a firm</source>
        <translation>Ustaw, zamień lub złóż pole wielu materiałów, przenieś je lub dodaj im firmę</translation>
    </message>
    <message>
        <source>Open the copy</source>
        <translation>Otwórz kopię</translation>
    </message>
    <message>
        <source>Open the copy of the link&apos;s document</source>
        <translation>Otwórz kopię dokumentu, do którego prowadzi odnośnik</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Show all of the current material beside the tree</source>
        <translation>Pokaż obok drzewa wszystko o bieżącym materiale</translation>
    </message>
    <message>
        <source>To the details</source>
        <translation>Do szczegółów</translation>
    </message>
    <message>
        <source>Have the keys go to the details; Escape goes back</source>
        <translation>Przejdź klawiaturą do szczegółów; Escape wraca</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Kontrole</translation>
    </message>
    <message>
        <source>Table of what is wrong with the materials, and where</source>
        <translation>Tabela błędów w materiałach, z przejściem do komórki</translation>
    </message>
    <message>
        <source>Examine links</source>
        <translation>Zbadaj odnośniki</translation>
    </message>
    <message>
        <source>Find out what came of every link: moved, gone, ...</source>
        <translation>Zbadaj, co stało się z każdym odnośnikiem: przeniesiony, usunięty...</translation>
    </message>
    <message>
        <source>Take over new addresses</source>
        <translation>Przejmij nowe adresy</translation>
    </message>
    <message>
        <source>Give the marked links their new addresses, as one step that can be undone in the database&apos;s window</source>
        <translation>Nadaj zaznaczonym odnośnikom nowe adresy, jako jeden krok, który można cofnąć w oknie bazy</translation>
    </message>
    <message>
        <source>Copy rows</source>
        <translation>Kopiuj wiersze</translation>
    </message>
    <message>
        <source>Mark the selected rows that have a new address, or take their marks away</source>
        <translation>Zaznacz wybrane wiersze z nowym adresem albo odznacz je</translation>
    </message>
    <message>
        <source>Mark all rows shown that have a new address</source>
        <translation>Zaznacz wszystkie widoczne wiersze z nowym adresem</translation>
    </message>
    <message>
        <source>Examine</source>
        <translation>Zbadaj</translation>
    </message>
    <message>
        <source>Examine the links that were not examined lately</source>
        <translation>Zbadaj odnośniki, których ostatnio nie badano</translation>
    </message>
    <message>
        <source>Examine again</source>
        <translation>Zbadaj ponownie</translation>
    </message>
    <message>
        <source>Examine the selected links, or all, whenever that was done last</source>
        <translation>Zbadaj wybrane odnośniki albo wszystkie, bez względu na to, kiedy badano je ostatnio</translation>
    </message>
    <message>
        <source>Fetch copies</source>
        <translation>Pobierz kopie</translation>
    </message>
    <message>
        <source>Fetch the documents of the selected links, or all datasheets that answer, to be read without a network</source>
        <translation>Pobierz dokumenty wybranych odnośników albo wszystkie dostępne karty katalogowe, aby czytać je bez sieci</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Examine no further links; what came of the others stays</source>
        <translation>Nie badaj dalszych odnośników; dotychczasowe wyniki zostają</translation>
    </message>
    <message>
        <source>Open the link of this row</source>
        <translation>Otwórz odnośnik z tego wiersza</translation>
    </message>
    <message>
        <source>Go to the material</source>
        <translation>Przejdź do materiału</translation>
    </message>
    <message>
        <source>Select the material in the database&apos;s window</source>
        <translation>Wskaż materiał w oknie bazy</translation>
    </message>
    <message>
        <source>Only findings</source>
        <translation>Tylko uwagi</translation>
    </message>
    <message>
        <source>Hide links that answer where they are, and those not examined</source>
        <translation>Ukryj odnośniki, które odpowiadają pod swoim adresem, oraz niezbadane</translation>
    </message>
    <message>
        <source>Merge firms</source>
        <translation>Połącz firmy</translation>
    </message>
    <message>
        <source>Make one firm of the selected ones, in the materials, too</source>
        <translation>Robi z zaznaczonych firm jedną, także w materiałach</translation>
    </message>
    <message>
        <source>Compare lists ...</source>
        <translation>Porównaj listy ...</translation>
    </message>
    <message>
        <source>What the second of two selected lists has otherwise than the first; with one selected a file is asked for</source>
        <translation>Co druga z dwóch zaznaczonych list ma inaczej niż pierwsza; przy jednej zaznaczonej trzeba wskazać plik</translation>
    </message>
    <message>
        <source>Reserve stock ...</source>
        <translation>Zarezerwuj stan ...</translation>
    </message>
    <message>
        <source>Keep stock for the lists that are going to be built</source>
        <translation>Zachowaj stan magazynu dla list, które będą montowane</translation>
    </message>
    <message>
        <source>Boards built ...</source>
        <translation>Zmontowane płytki ...</translation>
    </message>
    <message>
        <source>Take the materials of the lists that were built out of the stock</source>
        <translation>Zdejmij ze stanu materiały list, które zmontowano</translation>
    </message>
    <message>
        <source>Reservations ...</source>
        <translation>Rezerwacje ...</translation>
    </message>
    <message>
        <source>What is reserved for boards, and what was built</source>
        <translation>Co jest zarezerwowane dla płytek, a co zmontowano</translation>
    </message>
    <message>
        <source>Replace material ...</source>
        <translation>Zastąp materiał ...</translation>
    </message>
    <message>
        <source>Put another material in the place of the selected line&apos;s in all BOM lists of the set and the open order</source>
        <translation>Zastąp materiał zaznaczonej pozycji innym na wszystkich listach BOM zestawu i w otwartym zamówieniu</translation>
    </message>
    <message>
        <source>Put another material in the place of one in all BOM lists of the set and the open order</source>
        <translation>Zastąp materiał innym na wszystkich listach BOM zestawu i w otwartym zamówieniu</translation>
    </message>
    <message>
        <source>Put another material in the place of this one in all BOM lists of the set and the open order</source>
        <translation>Zastąp ten materiał innym na wszystkich listach BOM zestawu i w otwartym zamówieniu</translation>
    </message>
    <message>
        <source>Details ...</source>
        <translation>Dane firmy ...</translation>
    </message>
    <message>
        <source>Address, mail, discount and the form of the firm&apos;s baskets</source>
        <translation>Adres, poczta, rabat i postać koszyków firmy</translation>
    </message>
    <message>
        <source>Supplier baskets ...</source>
        <translation>Koszyki dostawców ...</translation>
    </message>
    <message>
        <source>The lines parted by supplier, for their shops</source>
        <translation>Pozycje podzielone na dostawców, do ich sklepów</translation>
    </message>
    <message>
        <source>Open this order in the main window, at this line</source>
        <translation>Otwórz to zamówienie w oknie głównym, na tej pozycji</translation>
    </message>
    <message>
        <source>Copy as a new order</source>
        <translation>Kopiuj jako nowe zamówienie</translation>
    </message>
    <message>
        <source>Begin a new order with the lines of this one, with the next number and without deliveries and invoices</source>
        <translation>Rozpocznij nowe zamówienie z pozycjami tego, z następnym numerem, bez dostaw i faktur</translation>
    </message>
    <message>
        <source>Mark as sent</source>
        <translation>Oznacz jako wysłane</translation>
    </message>
    <message>
        <source>Note that these orders were sent, on paper or by other mail</source>
        <translation>Zapisz, że te zamówienia wysłano na papierze albo inną pocztą</translation>
    </message>
    <message>
        <source>Not sent after all</source>
        <translation>Jednak nie wysłane</translation>
    </message>
    <message>
        <source>Take back that these orders were sent</source>
        <translation>Cofnij oznaczenie, że te zamówienia wysłano</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Wczytaj ponownie</translation>
    </message>
    <message>
        <source>Look for orders that are new or were changed</source>
        <translation>Poszukaj zamówień nowych i zmienionych</translation>
    </message>
    <message>
        <source>Changed since it was sent ...</source>
        <translation>Zmiany od wysłania ...</translation>
    </message>
    <message>
        <source>What this order has otherwise than the one that was sent</source>
        <translation>Czym to zamówienie różni się od wysłanego</translation>
    </message>
    <message>
        <source>Orders ...</source>
        <translation>Zamówienia ...</translation>
    </message>
    <message>
        <source>All orders, and a search over their lines</source>
        <translation>Wszystkie zamówienia i wyszukiwanie w ich pozycjach</translation>
    </message>
    <message>
        <source>Save report ...</source>
        <translation>Zapisz raport ...</translation>
    </message>
    <message>
        <source>Save the plan as a page, for printing, or as a workbook</source>
        <translation>Zapisz plan jako stronę, do druku albo jako skoroszyt</translation>
    </message>
    <message>
        <source>Prices of the last orders</source>
        <translation>Ceny z ostatnich zamówień</translation>
    </message>
    <message>
        <source>Take the price that each material was ordered at last</source>
        <translation>Przyjmij cenę, po której ostatnio zamówiono każdy materiał</translation>
    </message>
    <message>
        <source>Delivery ...</source>
        <translation>Dostawa ...</translation>
    </message>
    <message>
        <source>Note what came of the lines, in whole or in part</source>
        <translation>Odnotuj, co przyszło z pozycji, w całości lub częściowo</translation>
    </message>
    <message>
        <source>Delivered into stock ...</source>
        <translation>Dostawy na stan ...</translation>
    </message>
    <message>
        <source>Add what was delivered to the stock of the databases</source>
        <translation>Dodaj to, co dostarczono, do stanu w bazach</translation>
    </message>
    <message>
        <source>Annual plan ...</source>
        <translation>Plan roczny ...</translation>
    </message>
    <message>
        <source>What the orders of a year come to, by CPV, target or supplier</source>
        <translation>Na ile opiewają zamówienia roku, według CPV, zlecenia lub dostawcy</translation>
    </message>
    <message>
        <source>Import an offer ...</source>
        <translation>Wczytaj ofertę ...</translation>
    </message>
    <message>
        <source>Read a request that was filled in, or a price list</source>
        <translation>Wczytaj wypełnione zapytanie albo cennik</translation>
    </message>
    <message>
        <source>Save the comparison ...</source>
        <translation>Zapisz porównanie ...</translation>
    </message>
    <message>
        <source>Save the comparison with the choice as a page, for printing, or as a workbook</source>
        <translation>Zapisz porównanie z wyborem jako stronę, do druku albo jako arkusz</translation>
    </message>
    <message>
        <source>Open what came</source>
        <translation>Otwórz to, co przyszło</translation>
    </message>
    <message>
        <source>Open the file of the current firm&apos;s offer</source>
        <translation>Otwórz plik oferty bieżącej firmy</translation>
    </message>
    <message>
        <source>Buy from this firm</source>
        <translation>Kup w tej firmie</translation>
    </message>
    <message>
        <source>Buy the selected materials from the firm of the column, or from nobody when they are (Space)</source>
        <translation>Kup zaznaczone materiały w firmie z tej kolumny, a jeśli już są w niej wybrane, to nigdzie (spacja)</translation>
    </message>
    <message>
        <source>Take the choice into the order ...</source>
        <translation>Przenieś wybór do zamówienia ...</translation>
    </message>
    <message>
        <source>Give the order&apos;s lines the chosen prices, and note the firms with the reason</source>
        <translation>Nadaj pozycjom zamówienia wybrane ceny i odnotuj firmy z uzasadnieniem</translation>
    </message>
    <message>
        <source>Part the order by firm</source>
        <translation>Podziel zamówienie na firmy</translation>
    </message>
    <message>
        <source>Write an order for each chosen firm beside this one</source>
        <translation>Zapisz obok tego zamówienia osobne dla każdej wybranej firmy</translation>
    </message>
    <message>
        <source>Look at the order and its offers again</source>
        <translation>Odczytaj ponownie zamówienie i oferty</translation>
    </message>
    <message>
        <source>New requests ...</source>
        <translation>Nowe zapytania ...</translation>
    </message>
    <message>
        <source>Ask firms for their prices of the order&apos;s materials</source>
        <translation>Zapytaj firmy o ceny materiałów zamówienia</translation>
    </message>
    <message>
        <source>Open document</source>
        <translation>Otwórz dokument</translation>
    </message>
    <message>
        <source>Open the page that the firm got</source>
        <translation>Otwórz stronę, którą dostała firma</translation>
    </message>
    <message>
        <source>Open table</source>
        <translation>Otwórz tabelę</translation>
    </message>
    <message>
        <source>Open the table that the firm got to fill in</source>
        <translation>Otwórz tabelę, którą firma dostała do wypełnienia</translation>
    </message>
    <message>
        <source>Remind</source>
        <translation>Przypomnij</translation>
    </message>
    <message>
        <source>Send a reminder to the selected firms that sent no offer yet</source>
        <translation>Wyślij przypomnienie zaznaczonym firmom, które nie przysłały jeszcze oferty</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Wyślij ponownie</translation>
    </message>
    <message>
        <source>Send the same documents to the selected firm again</source>
        <translation>Wyślij zaznaczonej firmie te same dokumenty jeszcze raz</translation>
    </message>
    <message>
        <source>Look for requests and offers that came meanwhile</source>
        <translation>Poszukaj zapytań i ofert, które pojawiły się w międzyczasie</translation>
    </message>
    <message>
        <source>Offers ...</source>
        <translation>Oferty ...</translation>
    </message>
    <message>
        <source>Take in and compare the offers of firms, and choose</source>
        <translation>Wczytaj i porównaj oferty firm, i wybierz</translation>
    </message>
    <message>
        <source>Requests for quotation ...</source>
        <translation>Zapytania ofertowe ...</translation>
    </message>
    <message>
        <source>Ask firms for their prices, and see who answered</source>
        <translation>Zapytaj firmy o ceny i zobacz, kto odpowiedział</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Pokaż folder</translation>
    </message>
    <message>
        <source>Show the folder with what was sent and what came back</source>
        <translation>Pokazuje folder z tym, co wysłano i co przyszło</translation>
    </message>
    <message>
        <source>See what is newer at the address of updates, and install it</source>
        <translation>Zobacz, co nowego pod adresem aktualizacji, i zainstaluj</translation>
    </message>
    <message>
        <source>CreateUpdate</source>
        <translation>Utwórz aktualizację</translation>
    </message>
    <message>
        <source>Make an update of the program and the data as they are here</source>
        <translation>Utwórz aktualizację z programu i danych w obecnym stanie</translation>
    </message>
    <message>
        <source>UpdateDesc</source>
        <translation>Opis aktualizacji</translation>
    </message>
    <message>
        <source>Say what is new in the update that is made next</source>
        <translation>Opisz, co nowego w następnej aktualizacji</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Sprawdź ponownie</translation>
    </message>
    <message>
        <source>Ask the address of updates for what is on offer</source>
        <translation>Zapytaj adres aktualizacji, co jest do pobrania</translation>
    </message>
    <message>
        <source>Install ...</source>
        <translation>Zainstaluj ...</translation>
    </message>
    <message>
        <source>Download and check what is ticked, show what it changes, and put it in place</source>
        <translation>Pobierz i sprawdź zaznaczone, pokaż, co zmienia, i umieść na miejscu</translation>
    </message>
    <message>
        <source>Back to the version before ...</source>
        <translation>Wróć do poprzedniej wersji ...</translation>
    </message>
    <message>
        <source>Put back the program that the last update replaced; data stay</source>
        <translation>Przywróć program zastąpiony przez ostatnią aktualizację; dane pozostają</translation>
    </message>
    <message>
        <source>Synchronise</source>
        <translation>Synchronizuj</translation>
    </message>
    <message>
        <source>Fetch what others changed from the shared store, and send what was changed here</source>
        <translation>Pobiera ze wspólnej bazy to, co zmienili inni, i wysyła to, co zmieniono tutaj</translation>
    </message>
    <message>
        <source>Put into the shared store ...</source>
        <translation>Umieść we wspólnej bazie ...</translation>
    </message>
    <message>
        <source>Share this file with others, who fetch it from the server</source>
        <translation>Udostępnia ten plik innym, którzy pobiorą go z serwera</translation>
    </message>
    <message>
        <source>History ...</source>
        <translation>Historia ...</translation>
    </message>
    <message>
        <source>Who changed what of this material in the shared store</source>
        <translation>Kto co zmienił w tym materiale we wspólnej bazie</translation>
    </message>
    <message>
        <source>Synchronise all</source>
        <translation>Synchronizuj wszystko</translation>
    </message>
    <message>
        <source>Bring all shared files together with the shared store</source>
        <translation>Uzgadnia wszystkie wspólne pliki ze wspólną bazą</translation>
    </message>
    <message>
        <source>Take from the shared store ...</source>
        <translation>Pobierz ze wspólnej bazy ...</translation>
    </message>
    <message>
        <source>Make a file of a document that others share</source>
        <translation>Tworzy plik z dokumentu, który udostępniają inni</translation>
    </message>
    <message>
        <source>Put a file into the shared store ...</source>
        <translation>Umieść plik we wspólnej bazie ...</translation>
    </message>
    <message>
        <source>Share a database, firms, reservations, states or offers</source>
        <translation>Udostępnia bazę, firmy, rezerwacje, stany lub oferty</translation>
    </message>
</context>
<context>
    <name>addMaterialDialog</name>
    <message>
        <source>Add to the order</source>
        <translation>Dodaj do zamówienia</translation>
    </message>
    <message>
        <source>Add material</source>
        <translation>Dodawanie materiału</translation>
    </message>
    <message>
        <source>Materials found</source>
        <translation>Znalezione materiały</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>the first %1 are shown</source>
        <translation>pokazano pierwsze %1</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Pick material</source>
        <translation>Wybór materiału</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>altiumExport</name>
    <message>
        <source>Name changed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>Text too long for a cell, cut</source>
        <translation>Tekst za długi na komórkę, obcięty</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>Nie można zapisać %1</translation>
    </message>
    <message>
        <source>The SQLite driver cannot be used</source>
        <translation>Nie można użyć sterownika SQLite</translation>
    </message>
    <message>
        <source>Left out of the library description</source>
        <translation>Pominięto w opisie biblioteki</translation>
    </message>
    <message>
        <source>No longer updated; install instead</source>
        <translation>Nie jest już aktualizowany; zamiast niego należy zainstalować</translation>
    </message>
    <message>
        <source>The next export will have nothing to compare with</source>
        <translation>Następny eksport nie będzie miał z czym się porównać</translation>
    </message>
</context>
<context>
    <name>annualPlan</name>
    <message>
        <source>without a CPV code</source>
        <translation>bez kodu CPV</translation>
    </message>
    <message>
        <source>not a CPV code: %1</source>
        <translation>to nie kod CPV: %1</translation>
    </message>
    <message>
        <source>without a target</source>
        <translation>bez zlecenia</translation>
    </message>
    <message>
        <source>supplier not known</source>
        <translation>dostawca nieznany</translation>
    </message>
    <message>
        <source>CPV %1: %2 PLN in %3, above the threshold of %4 PLN</source>
        <translation>CPV %1: %2 PLN w roku %3, powyżej progu %4 PLN</translation>
    </message>
</context>
<context>
    <name>annualPlanReport</name>
    <message>
        <source>Thresholds</source>
        <translation>Progi</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Lines without a CPV code</source>
        <translation>Pozycje bez kodu CPV</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Made on %1</source>
        <translation>Sporządzono %1</translation>
    </message>
    <message>
        <source>Without CPV</source>
        <translation>Bez CPV</translation>
    </message>
    <message>
        <source>CPV group</source>
        <translation>Grupa CPV</translation>
    </message>
    <message>
        <source>Estimated [ PLN ]</source>
        <translation>Szacowane [ PLN ]</translation>
    </message>
    <message>
        <source>Ordered [ PLN ]</source>
        <translation>Zamówione [ PLN ]</translation>
    </message>
    <message>
        <source>Rest [ PLN ]</source>
        <translation>Reszta [ PLN ]</translation>
    </message>
    <message>
        <source>Share [ % ]</source>
        <translation>Udział [ % ]</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Zamówienia</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Pominięto</translation>
    </message>
    <message>
        <source>Threshold [ PLN ]</source>
        <translation>Próg [ PLN ]</translation>
    </message>
    <message>
        <source>Of the threshold</source>
        <translation>Wobec progu</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>below</source>
        <translation>poniżej</translation>
    </message>
    <message>
        <source>80 % reached</source>
        <translation>osiągnięto 80 %</translation>
    </message>
    <message>
        <source>above</source>
        <translation>powyżej</translation>
    </message>
    <message>
        <source>CPV %1: %2 PLN, above the threshold of %3 PLN</source>
        <translation>CPV %1: %2 PLN, powyżej progu %3 PLN</translation>
    </message>
    <message>
        <source>CPV %1: %2 PLN, near the threshold of %3 PLN</source>
        <translation>CPV %1: %2 PLN, blisko progu %3 PLN</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) whose price or quantity is no number are not in the sums</source>
        <translation>
            <numerusform>%n pozycja, której cena lub ilość nie jest liczbą, nie wchodzi do sum</numerusform>
            <numerusform>%n pozycje, których cena lub ilość nie jest liczbą, nie wchodzą do sum</numerusform>
            <numerusform>%n pozycji, których cena lub ilość nie jest liczbą, nie wchodzi do sum</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) with one for each firm in their place are not in the sums</source>
        <translation>
            <numerusform>%n zamówienie rozdzielone na firmy nie wchodzi do sum</numerusform>
            <numerusform>%n zamówienia rozdzielone na firmy nie wchodzą do sum</numerusform>
            <numerusform>%n zamówień rozdzielonych na firmy nie wchodzi do sum</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, pozycja %2: %3</translation>
    </message>
    <message>
        <source>%1 (not a CPV code: %2)</source>
        <translation>%1 (to nie kod CPV: %2)</translation>
    </message>
    <message>
        <source>Annual plan of purchases %1</source>
        <translation>Roczny plan zakupów %1</translation>
    </message>
    <message>
        <source>Sums by CPV code</source>
        <translation>Sumy według kodu CPV</translation>
    </message>
    <message>
        <source>Sums by CPV group, the first %1 digits</source>
        <translation>Sumy według grupy CPV, pierwsze cyfry: %1</translation>
    </message>
    <message>
        <source>Sums by target</source>
        <translation>Sumy według zlecenia</translation>
    </message>
    <message>
        <source>Sums by supplier</source>
        <translation>Sumy według dostawcy</translation>
    </message>
</context>
<context>
    <name>annualPlanWindow</name>
    <message>
        <source>Annual plan</source>
        <translation>Plan roczny</translation>
    </message>
    <message>
        <source>Sums of the year</source>
        <translation>Sumy roku</translation>
    </message>
    <message>
        <source>Lines without a CPV code</source>
        <translation>Pozycje bez kodu CPV</translation>
    </message>
    <message>
        <source>Bars of the greatest sums</source>
        <translation>Wykres największych sum</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Szacowane</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>Zamówiono</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
    <message>
        <source>There are no orders of this year</source>
        <translation>Nie ma zamówień z tego roku</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Rok</translation>
    </message>
    <message>
        <source>&amp;Sums by</source>
        <translation>&amp;Sumy według</translation>
    </message>
    <message>
        <source>&amp;Digits of a group</source>
        <translation>&amp;Cyfry grupy</translation>
    </message>
    <message>
        <source>CPV group</source>
        <translation>Grupa CPV</translation>
    </message>
    <message>
        <source>CPV code</source>
        <translation>Kod CPV</translation>
    </message>
    <message>
        <source>Reading orders</source>
        <translation>Wczytywanie zamówień</translation>
    </message>
    <message>
        <source>Reading was cancelled; some orders are missing</source>
        <translation>Wczytywanie przerwano; brakuje części zamówień</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Nie ma folderu %1</translation>
    </message>
    <message>
        <source>Adding up orders</source>
        <translation>Sumowanie zamówień</translation>
    </message>
    <message>
        <source>Adding up was cancelled; the sums before are shown</source>
        <translation>Sumowanie przerwano; widoczne są poprzednie sumy</translation>
    </message>
    <message>
        <source>is not understood: %1</source>
        <translation>nie jest zrozumiałe: %1</translation>
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
        <source>Estimated %1 PLN, ordered %2 PLN, rest %3 PLN</source>
        <translation>Szacowane %1 PLN, zamówione %2 PLN, reszta %3 PLN</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s)</source>
        <translation>
            <numerusform>%n zamówienie</numerusform>
            <numerusform>%n zamówienia</numerusform>
            <numerusform>%n zamówień</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a CPV code</source>
        <translation>
            <numerusform>%n pozycja bez kodu CPV</numerusform>
            <numerusform>%n pozycje bez kodu CPV</numerusform>
            <numerusform>%n pozycji bez kodu CPV</numerusform>
        </translation>
    </message>
    <message>
        <source>All lines have a CPV code</source>
        <translation>Wszystkie pozycje mają kod CPV</translation>
    </message>
    <message>
        <source>threshold %1: %2</source>
        <translation>próg %1: %2</translation>
    </message>
    <message>
        <source>threshold: %1</source>
        <translation>próg: %1</translation>
    </message>
    <message>
        <source>there are no orders of this year</source>
        <translation>nie ma zamówień z tego roku</translation>
    </message>
    <message>
        <source>no line without a CPV code is selected</source>
        <translation>nie zaznaczono pozycji bez kodu CPV</translation>
    </message>
    <message>
        <source>no row is selected</source>
        <translation>nie zaznaczono wiersza</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n wiersz</numerusform>
            <numerusform>Skopiowano %n wiersze</numerusform>
            <numerusform>Skopiowano %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>The plan is as the orders&apos; files are</source>
        <translation>Plan odpowiada plikom zamówień</translation>
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
    <name>basketsDialog</name>
    <message>
        <source>Supplier baskets</source>
        <translation>Koszyki dostawców</translation>
    </message>
    <message>
        <source>&amp;Other supplier ...</source>
        <translation>Inny &amp;dostawca ...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Copy the columns of the supplier&apos;s basket, to paste them into its shop</source>
        <translation>Kopiuj kolumny koszyka, by wkleić je w sklepie dostawcy</translation>
    </message>
    <message>
        <source>&amp;Save as ...</source>
        <translation>&amp;Zapisz jako ...</translation>
    </message>
    <message>
        <source>Save &amp;all ...</source>
        <translation>Zapisz &amp;wszystkie ...</translation>
    </message>
    <message>
        <source>Write a file for each supplier into a folder</source>
        <translation>Zapisz w folderze po jednym pliku dla każdego dostawcy</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabat</translation>
    </message>
    <message>
        <source>Lines of the basket</source>
        <translation>Pozycje koszyka</translation>
    </message>
    <message>
        <source>Other suppliers</source>
        <translation>Inni dostawcy</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Buy the selected lines from another supplier</source>
        <translation>Kup zaznaczone pozycje u innego dostawcy</translation>
    </message>
    <message>
        <source>no line selected that has another supplier</source>
        <translation>nie zaznaczono pozycji, która ma innego dostawcę</translation>
    </message>
    <message>
        <source>no supplier</source>
        <translation>bez dostawcy</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with a remark</source>
        <translation>
            <numerusform>%n pozycja z uwagą</numerusform>
            <numerusform>%n pozycje z uwagą</numerusform>
            <numerusform>%n pozycji z uwagą</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n dostawca</numerusform>
            <numerusform>%n dostawców</numerusform>
            <numerusform>%n dostawców</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without a supplier</source>
        <translation>
            <numerusform>%n bez dostawcy</numerusform>
            <numerusform>%n bez dostawcy</numerusform>
            <numerusform>%n bez dostawcy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with a remark</source>
        <translation>
            <numerusform>%n z uwagą</numerusform>
            <numerusform>%n z uwagą</numerusform>
            <numerusform>%n z uwagą</numerusform>
        </translation>
    </message>
    <message>
        <source>Other supplier</source>
        <translation>Inny dostawca</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) bought from %1</source>
        <translation>
            <numerusform>%n pozycja u dostawcy %1</numerusform>
            <numerusform>%n pozycje u dostawcy %1</numerusform>
            <numerusform>%n pozycji u dostawcy %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The basket of %1 is copied</source>
        <translation>Skopiowano koszyk: %1</translation>
    </message>
    <message>
        <source>CSV File</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>Text File</source>
        <translation>Plik tekstowy</translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Zapisano jako %1</translation>
    </message>
    <message>
        <source>A folder for the baskets</source>
        <translation>Folder na koszyki</translation>
    </message>
    <message>
        <source>The folder %1 has these files already: %2</source>
        <translation>W folderze %1 są już pliki: %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n file(s)</source>
        <translation>
            <numerusform>Zastąp %n plik</numerusform>
            <numerusform>Zastąp %n pliki</numerusform>
            <numerusform>Zastąp %n plików</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written into %1</source>
        <translation>
            <numerusform>Zapisano %n plik w folderze %1</numerusform>
            <numerusform>Zapisano %n pliki w folderze %1</numerusform>
            <numerusform>Zapisano %n plików w folderze %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a supplier are in none</source>
        <translation>
            <numerusform>w żadnym nie ma %n pozycji bez dostawcy</numerusform>
            <numerusform>w żadnym nie ma %n pozycji bez dostawcy</numerusform>
            <numerusform>w żadnym nie ma %n pozycji bez dostawcy</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>boardStock</name>
    <message>
        <source>in no database</source>
        <translation>brak w bazach</translation>
    </message>
    <message>
        <source>the stock is no number</source>
        <translation>stan magazynu nie jest liczbą</translation>
    </message>
    <message>
        <source>not enough in stock</source>
        <translation>za mało w magazynie</translation>
    </message>
    <message>
        <source>some of it is reserved for other boards</source>
        <translation>część jest zarezerwowana dla innych płytek</translation>
    </message>
</context>
<context>
    <name>boardStockDialog</name>
    <message>
        <source>With what gets &amp;lost while the boards are built</source>
        <translation>Z naddatkiem na s&amp;traty przy montażu</translation>
    </message>
    <message>
        <source>Reserve stock for boards</source>
        <translation>Rezerwacja stanu dla płytek</translation>
    </message>
    <message>
        <source>Take built boards out of stock</source>
        <translation>Zdjęcie zmontowanych płytek ze stanu</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Potrzeba</translation>
    </message>
    <message>
        <source>Attrition</source>
        <translation>Naddatek</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Potem</translation>
    </message>
    <message>
        <source>Lacking</source>
        <translation>Brakuje</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>&amp;Reserve</source>
        <translation>&amp;Zarezerwuj</translation>
    </message>
    <message>
        <source>&amp;Take out</source>
        <translation>&amp;Zdejmij ze stanu</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lacking in stock</source>
        <translation>
            <numerusform>%n brakuje w magazynie</numerusform>
            <numerusform>%n brakuje w magazynie</numerusform>
            <numerusform>%n brakuje w magazynie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in no database</source>
        <translation>
            <numerusform>%n brak w bazach</numerusform>
            <numerusform>%n brak w bazach</numerusform>
            <numerusform>%n brak w bazach</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a quantity</source>
        <translation>
            <numerusform>%n pozycja bez ilości</numerusform>
            <numerusform>%n pozycje bez ilości</numerusform>
            <numerusform>%n pozycji bez ilości</numerusform>
        </translation>
    </message>
    <message>
        <source>there is nothing to take</source>
        <translation>nie ma czego zdjąć</translation>
    </message>
</context>
<context>
    <name>bom</name>
    <message>
        <source>does not exist</source>
        <translation>nie istnieje</translation>
    </message>
</context>
<context>
    <name>bomDiff</name>
    <message>
        <source>added</source>
        <translation>dodano</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>usunięto</translation>
    </message>
    <message>
        <source>another part</source>
        <translation>inny element</translation>
    </message>
    <message>
        <source>quantity</source>
        <translation>ilość</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 przed</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1 po</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Różnica</translation>
    </message>
</context>
<context>
    <name>bomImport</name>
    <message>
        <source>matched</source>
        <translation>dopasowane</translation>
    </message>
    <message>
        <source>to be chosen</source>
        <translation>do wyboru</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>pominięte</translation>
    </message>
    <message>
        <source>it has no column &quot;key&quot; before a semicolon</source>
        <translation>nie ma kolumny „key” przed średnikiem</translation>
    </message>
</context>
<context>
    <name>bomImportWindow</name>
    <message>
        <source>Import list of parts</source>
        <translation>Import listy elementów</translation>
    </message>
    <message>
        <source>Search the databases for this line</source>
        <translation>Szukaj w bazach materiału dla tej pozycji</translation>
    </message>
    <message>
        <source>Materials for the line</source>
        <translation>Materiały dla pozycji</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Dlaczego</translation>
    </message>
    <message>
        <source>Lines of which state</source>
        <translation>Pozycje o stanie</translation>
    </message>
    <message>
        <source>All lines</source>
        <translation>Wszystkie pozycje</translation>
    </message>
    <message>
        <source>Filter the lines</source>
        <translation>Filtruj pozycje</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Matching</source>
        <translation>Dopasowywanie</translation>
    </message>
    <message>
        <source>no line is selected</source>
        <translation>nie wybrano pozycji</translation>
    </message>
    <message>
        <source>no list of parts is open</source>
        <translation>nie otwarto listy elementów</translation>
    </message>
    <message>
        <source>no material is marked</source>
        <translation>nie zaznaczono materiału</translation>
    </message>
    <message>
        <source>the line has no material</source>
        <translation>pozycja nie ma materiału</translation>
    </message>
    <message>
        <source>Open list of parts</source>
        <translation>Otwórz listę elementów</translation>
    </message>
    <message>
        <source>Lists of parts</source>
        <translation>Listy elementów</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Wszystkie pliki</translation>
    </message>
    <message>
        <source>%1 taken</source>
        <translation>Przyjęto %1</translation>
    </message>
    <message>
        <source>Unmatched</source>
        <translation>Cofnięto przypisanie</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Pominięto</translation>
    </message>
    <message>
        <source>Taken in</source>
        <translation>Przywrócono</translation>
    </message>
    <message>
        <source>No line is open</source>
        <translation>Wszystkie pozycje są rozstrzygnięte</translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>CSV File</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Zapisano jako %1</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Nie podjęto jeszcze żadnych decyzji</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć %1</translation>
    </message>
    <message>
        <source>Save the BOM list</source>
        <translation>Zapisz listę BOM</translation>
    </message>
    <message>
        <source>Xml File</source>
        <translation>Plik XML</translation>
    </message>
    <message>
        <source>What you decided could not be kept: %1</source>
        <translation>Nie udało się zachować decyzji: %1</translation>
    </message>
    <message>
        <source>What you settled in this list is not written yet.</source>
        <translation>To, co ustalono na tej liście, nie jest jeszcze zapisane.</translation>
    </message>
    <message>
        <source>Give it up</source>
        <translation>Porzuć</translation>
    </message>
    <message>
        <source>What was decided before cannot be read, so that nothing is kept now; %1: %2</source>
        <translation>Nie można odczytać wcześniejszych decyzji, więc teraz nic nie zostanie zapamiętane; %1: %2</translation>
    </message>
</context>
<context>
    <name>bomReport</name>
    <message numerus="yes">
        <source>%n set(s)</source>
        <translation>
            <numerusform>%n zestaw</numerusform>
            <numerusform>%n zestawy</numerusform>
            <numerusform>%n zestawów</numerusform>
        </translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Not in the databases</source>
        <translation>Spoza baz danych</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Potrzeba</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Brakuje</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>W bazie</translation>
    </message>
    <message>
        <source>In this order</source>
        <translation>W zamówieniu</translation>
    </message>
    <message>
        <source>To order</source>
        <translation>Do zamówienia</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Kwota</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Potem</translation>
    </message>
    <message>
        <source>Attrition</source>
        <translation>Naddatek</translation>
    </message>
</context>
<context>
    <name>bomTree</name>
    <message>
        <source>In no database</source>
        <translation>Spoza baz danych</translation>
    </message>
    <message>
        <source>The file is missing: %1</source>
        <translation>Brak pliku: %1</translation>
    </message>
</context>
<context>
    <name>bulkEdit</name>
    <message>
        <source>&quot;%1&quot; is not in the list</source>
        <translation>„%1” nie ma na liście</translation>
    </message>
    <message>
        <source>The text would be too long</source>
        <translation>Tekst byłby za długi</translation>
    </message>
    <message>
        <source>Ktm syntax error</source>
        <translation>Błąd składni KTM</translation>
    </message>
    <message>
        <source>CPV syntax error</source>
        <translation>Błąd składni CPV</translation>
    </message>
    <message numerus="yes">
        <source>The pattern has %n bracket(s), so that there is no %1</source>
        <translation>
            <numerusform>Wzorzec ma %n nawias, więc nie ma %1</numerusform>
            <numerusform>Wzorzec ma %n nawiasy, więc nie ma %1</numerusform>
            <numerusform>Wzorzec ma %n nawiasów, więc nie ma %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n KTM(s) of the lines are none of these materials&apos;</source>
        <translation>
            <numerusform>%n KTM z wierszy nie należy do żadnego z tych materiałów</numerusform>
            <numerusform>%n KTM z wierszy nie należą do żadnego z tych materiałów</numerusform>
            <numerusform>%n KTM z wierszy nie należy do żadnego z tych materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) for</source>
        <translation>
            <numerusform>%n wiersz na</numerusform>
            <numerusform>%n wiersze na</numerusform>
            <numerusform>%n wierszy na</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>The pattern takes too long on this text</source>
        <translation>Wzorzec działa za długo na tym tekście</translation>
    </message>
    <message>
        <source>The fields of the template are empty</source>
        <translation>Pola szablonu są puste</translation>
    </message>
    <message>
        <source>A &quot;}&quot; has no &quot;{&quot; before it</source>
        <translation>Przed „}” brakuje „{”</translation>
    </message>
    <message>
        <source>A &quot;{&quot; has no &quot;}&quot; behind it</source>
        <translation>Za „{” brakuje „}”</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;</source>
        <translation>Nie ma pola „%1”</translation>
    </message>
    <message>
        <source>Type what is to be replaced</source>
        <translation>Wpisz, co ma zostać zamienione</translation>
    </message>
    <message>
        <source>Character %1: %2</source>
        <translation>Znak %1: %2</translation>
    </message>
    <message>
        <source>Type a template, such as %1</source>
        <translation>Wpisz szablon, na przykład %1</translation>
    </message>
    <message>
        <source>There is no group of this name</source>
        <translation>Nie ma grupy o tej nazwie</translation>
    </message>
    <message>
        <source>Choose a firm</source>
        <translation>Wybierz firmę</translation>
    </message>
    <message>
        <source>Another selected material gets this KTM</source>
        <translation>Ten KTM dostaje inny z tych materiałów</translation>
    </message>
    <message>
        <source>Another material has this KTM</source>
        <translation>Inny materiał ma już ten KTM</translation>
    </message>
    <message>
        <source>The pattern takes too long: make it simpler</source>
        <translation>Wzorzec działa za długo: uprość go</translation>
    </message>
</context>
<context>
    <name>bulkEditDialog</name>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>Refused because</source>
        <translation>Odrzucono, ponieważ</translation>
    </message>
    <message>
        <source>Set a field</source>
        <translation>Ustaw pole</translation>
    </message>
    <message>
        <source>Replace text in a field</source>
        <translation>Zamień tekst w polu</translation>
    </message>
    <message>
        <source>Paste a column into a field</source>
        <translation>Wklej kolumnę do pola</translation>
    </message>
    <message>
        <source>Compose a field from others</source>
        <translation>Złóż pole z innych pól</translation>
    </message>
    <message>
        <source>Mark the status</source>
        <translation>Oznacz status</translation>
    </message>
    <message>
        <source>Move to another group</source>
        <translation>Przenieś do innej grupy</translation>
    </message>
    <message>
        <source>Add a manufacturer</source>
        <translation>Dodaj producenta</translation>
    </message>
    <message>
        <source>Add a supplier</source>
        <translation>Dodaj dostawcę</translation>
    </message>
    <message>
        <source>&amp;Pattern (regular expression)</source>
        <translation>&amp;Wzorzec (wyrażenie regularne)</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>Rozróżniaj wielkość &amp;liter</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Zmień</translation>
    </message>
    <message>
        <source>Mark &amp;all</source>
        <translation>Zaznacz wszys&amp;tko</translation>
    </message>
    <message>
        <source>Mark &amp;none</source>
        <translation>&amp;Odznacz wszystko</translation>
    </message>
    <message>
        <source>Change selected materials</source>
        <translation>Zmiana zaznaczonych materiałów</translation>
    </message>
    <message>
        <source>S&amp;elected (%1)</source>
        <translation>Zaznaczo&amp;ne (%1)</translation>
    </message>
    <message>
        <source>All that the search s&amp;hows (%1)</source>
        <translation>Wszystkie &amp;pokazane przez wyszukiwanie (%1)</translation>
    </message>
    <message>
        <source>A&amp;ll (%1)</source>
        <translation>W&amp;szystkie (%1)</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Szablon</translation>
    </message>
    <message>
        <source>Materials:</source>
        <translation>Materiały:</translation>
    </message>
    <message>
        <source>Wha&amp;t to do:</source>
        <translation>&amp;Co zrobić:</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>Pol&amp;e:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>Wa&amp;rtość:</translation>
    </message>
    <message>
        <source>&amp;Replace:</source>
        <translation>Za&amp;mień:</translation>
    </message>
    <message>
        <source>&amp;With:</source>
        <translation>N&amp;a:</translation>
    </message>
    <message>
        <source>[0-9]+ finds digits, (...) keeps what it found; in the new text $1 is what the first bracket found</source>
        <translation>[0-9]+ znajduje cyfry, (...) zapamiętuje, co znalazło; w nowym tekście $1 to wynik pierwszego nawiasu</translation>
    </message>
    <message>
        <source>A line for each material, or lines of KTM, tab and text; Ctrl+V pastes them</source>
        <translation>Wiersz dla każdego materiału albo wiersze: KTM, tabulator i tekst; Ctrl+V wkleja je</translation>
    </message>
    <message>
        <source>L&amp;ines:</source>
        <translation>W&amp;iersze:</translation>
    </message>
    <message>
        <source>Tem&amp;plate:</source>
        <translation>Sza&amp;blon:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupa:</translation>
    </message>
    <message>
        <source>&amp;Firm:</source>
        <translation>&amp;Firma:</translation>
    </message>
    <message>
        <source>empty, or a template such as %1</source>
        <translation>puste albo szablon, na przykład %1</translation>
    </message>
    <message>
        <source>&amp;Part no:</source>
        <translation>N&amp;umer części:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>F&amp;orget template</source>
        <translation>Usuń szablon z list&amp;y</translation>
    </message>
    <message>
        <source>&amp;Keep template</source>
        <translation>Zac&amp;howaj szablon</translation>
    </message>
    <message>
        <source>The firm register has no such firm</source>
        <translation>W rejestrze firm nie ma takiej firmy</translation>
    </message>
    <message>
        <source>Choose or type a value</source>
        <translation>Wybierz lub wpisz wartość</translation>
    </message>
    <message>
        <source>Paste the lines</source>
        <translation>Wklej wiersze</translation>
    </message>
    <message numerus="yes">
        <source>%n will change</source>
        <translation>
            <numerusform>%n się zmieni</numerusform>
            <numerusform>%n się zmienią</numerusform>
            <numerusform>%n się zmieni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stay(s) as they are</source>
        <translation>
            <numerusform>%n zostaje bez zmian</numerusform>
            <numerusform>%n zostają bez zmian</numerusform>
            <numerusform>%n zostaje bez zmian</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n odrzucony</numerusform>
            <numerusform>%n odrzucone</numerusform>
            <numerusform>%n odrzuconych</numerusform>
        </translation>
    </message>
    <message>
        <source>no material would change</source>
        <translation>żaden materiał się nie zmieni</translation>
    </message>
    <message numerus="yes">
        <source>Without the rows left out %n more cannot be changed</source>
        <translation>
            <numerusform>Bez pominiętych wierszy nie da się zmienić jeszcze %n</numerusform>
            <numerusform>Bez pominiętych wierszy nie da się zmienić jeszcze %n</numerusform>
            <numerusform>Bez pominiętych wierszy nie da się zmienić jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cellBlock</name>
    <message>
        <source>%1, row %2: %3</source>
        <translation>%1, wiersz %2: %3</translation>
    </message>
    <message>
        <source>These texts do not fit their cells:</source>
        <translation>Te teksty nie pasują do swoich komórek:</translation>
    </message>
    <message>
        <source>this cell cannot be edited</source>
        <translation>tej komórki nie można edytować</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) past the last row</source>
        <translation>
            <numerusform>%n wiersz za ostatnim wierszem</numerusform>
            <numerusform>%n wiersze za ostatnim wierszem</numerusform>
            <numerusform>%n wierszy za ostatnim wierszem</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; past the last column</source>
        <translation>„%1” za ostatnią kolumną</translation>
    </message>
    <message numerus="yes">
        <source>%n pasted line(s) go past the last row. Add rows for them?</source>
        <translation>
            <numerusform>%n wklejany wiersz wychodzi za ostatni. Dodać dla niego wiersz?</numerusform>
            <numerusform>%n wklejane wiersze wychodzą za ostatni. Dodać dla nich wiersze?</numerusform>
            <numerusform>%n wklejanych wierszy wychodzi za ostatni. Dodać dla nich wiersze?</numerusform>
        </translation>
    </message>
    <message>
        <source>Add rows</source>
        <translation>Dodaj wiersze</translation>
    </message>
    <message>
        <source>Paste what fits</source>
        <translation>Wklej to, co się mieści</translation>
    </message>
</context>
<context>
    <name>changedBar</name>
    <message>
        <source>Change of the file</source>
        <translation>Zmiana pliku</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Wczytaj ponownie</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Zachowaj moje</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>The file was changed by another program.</source>
        <translation>Plik został zmieniony przez inny program.</translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation>Pliku już nie ma.</translation>
    </message>
</context>
<context>
    <name>changesDialog</name>
    <message>
        <source>Changes</source>
        <translation>Zmiany</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Przejmij</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s). What stays marked is taken over.</source>
        <translation>
            <numerusform>%n zmiana. Przejęte zostanie to, co pozostanie zaznaczone.</numerusform>
            <numerusform>%n zmiany. Przejęte zostanie to, co pozostanie zaznaczone.</numerusform>
            <numerusform>%n zmian. Przejęte zostanie to, co pozostanie zaznaczone.</numerusform>
        </translation>
    </message>
    <message>
        <source>Mark &amp;all</source>
        <translation>&amp;Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Mark &amp;none</source>
        <translation>&amp;Odznacz wszystko</translation>
    </message>
</context>
<context>
    <name>childRunner</name>
    <message>
        <source>The program cannot be started</source>
        <translation>Nie można uruchomić programu</translation>
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
        <source>A material database to search. May be given several times.</source>
        <translation>Baza materiałów do przeszukania. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>How many materials to print at most (0: all).</source>
        <translation>Ile materiałów wypisać najwyżej (0: wszystkie).</translation>
    </message>
    <message>
        <source>%1 is no number of materials</source>
        <translation>%1 nie jest liczbą materiałów</translation>
    </message>
    <message>
        <source>give a database with -d</source>
        <translation>podaj bazę materiałów opcją -d</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>nic nie znaleziono</translation>
    </message>
    <message>
        <source>%1 of %2 materials shown</source>
        <translation>pokazano %1 z %2 materiałów</translation>
    </message>
    <message>
        <source>Searches the materials of databases.</source>
        <translation>Wyszukuje materiały w bazach.</translation>
    </message>
    <message>
        <source>found</source>
        <translation>znaleziono</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nie znaleziono</translation>
    </message>
    <message>
        <source>Tells where the helper programs are.</source>
        <translation>Podaje, gdzie są programy pomocnicze.</translation>
    </message>
    <message>
        <source>Downloads a file.</source>
        <translation>Pobiera plik.</translation>
    </message>
    <message>
        <source>Packs a folder into a ZIP archive; KIVZP_ARCHIVE_PASSWORD may hold a password.</source>
        <translation>Pakuje folder do archiwum ZIP; hasło można podać w zmiennej KIVZP_ARCHIVE_PASSWORD.</translation>
    </message>
    <message>
        <source>Unpacks a ZIP archive; KIVZP_ARCHIVE_PASSWORD may hold its password.</source>
        <translation>Rozpakowuje archiwum ZIP; jego hasło można podać w zmiennej KIVZP_ARCHIVE_PASSWORD.</translation>
    </message>
    <message>
        <source>Where the changed database goes; without it nothing is written.</source>
        <translation>Dokąd zapisać zmienioną bazę; bez tego nic nie jest zapisywane.</translation>
    </message>
    <message>
        <source>give a material database with -d</source>
        <translation>podaj bazę materiałów opcją -d</translation>
    </message>
    <message>
        <source>The material database.</source>
        <translation>Baza materiałów.</translation>
    </message>
    <message>
        <source>Take over what is new or changed; wants -o.</source>
        <translation>Przejmij, co nowe lub zmienione; wymaga -o.</translation>
    </message>
    <message>
        <source>The other database wins: list, and with --apply delete, what it lacks.</source>
        <translation>Druga baza rozstrzyga: wymień, a z --apply usuń, czego w niej nie ma.</translation>
    </message>
    <message>
        <source>Where the merged database goes.</source>
        <translation>Dokąd zapisać połączoną bazę.</translation>
    </message>
    <message>
        <source>--apply and -o belong together</source>
        <translation>--apply i -o podaje się razem</translation>
    </message>
    <message>
        <source>Lists the materials of another database that are new or changed, and takes them over when asked to.</source>
        <translation>Wymienia materiały innej bazy, które są nowe lub zmienione, i na żądanie je przejmuje.</translation>
    </message>
    <message>
        <source>Lists the stock and average prices that a listing of the warehouse, or another database, changes in a material database.</source>
        <translation>Wymienia stany i średnie ceny, które zestawienie magazynowe lub inna baza zmienia w bazie materiałów.</translation>
    </message>
    <message>
        <source>Lists the CPV codes of groups that a text file changes in a material database.</source>
        <translation>Wymienia kody CPV grup, które plik tekstowy zmienia w bazie materiałów.</translation>
    </message>
    <message>
        <source>Lists the materials whose CPV code is another than their group&apos;s, and gives them that.</source>
        <translation>Wymienia materiały, których kod CPV jest inny niż kod grupy, i nadaje im kod grupy.</translation>
    </message>
    <message>
        <source>The same KTM:</source>
        <translation>Ten sam KTM:</translation>
    </message>
    <message>
        <source>The same manufacturer&apos;s part number:</source>
        <translation>Ten sam numer producenta:</translation>
    </message>
    <message>
        <source>A workbook (.xlsx) for the results.</source>
        <translation>Skoroszyt (.xlsx) na wyniki.</translation>
    </message>
    <message>
        <source>Tell on standard error how many links are checked.</source>
        <translation>Podawaj na standardowym wyjściu błędów liczbę sprawdzonych odnośników.</translation>
    </message>
    <message>
        <source>is no firm register</source>
        <translation>nie jest rejestrem firm</translation>
    </message>
    <message>
        <source>The HTML file to write.</source>
        <translation>Plik HTML do zapisania.</translation>
    </message>
    <message>
        <source>One row a material instead of everything.</source>
        <translation>Po jednym wierszu na materiał zamiast wszystkich danych.</translation>
    </message>
    <message>
        <source>The firm register, for the status of firms.</source>
        <translation>Rejestr firm, dla statusu firm.</translation>
    </message>
    <message>
        <source>Lists materials with the same KTM, or with the same part number of a manufacturer. Exit code 1 when there are some.</source>
        <translation>Wymienia materiały o tym samym KTM lub o tym samym numerze producenta. Kod zakończenia 1, gdy takie są.</translation>
    </message>
    <message>
        <source>Lists materials with empty fields. Exit code 1 when there are some.</source>
        <translation>Wymienia materiały z pustymi polami. Kod zakończenia 1, gdy takie są.</translation>
    </message>
    <message>
        <source>Lists the links of a material database that do not answer. Exit code 1 when there are some.</source>
        <translation>Wymienia odnośniki bazy materiałów, które nie odpowiadają. Kod zakończenia 1, gdy takie są.</translation>
    </message>
    <message>
        <source>Writes the report of a material database as HTML.</source>
        <translation>Zapisuje raport bazy materiałów jako HTML.</translation>
    </message>
    <message>
        <source>Lists the firms whose tax number is wrong. Exit code 1 when there are some.</source>
        <translation>Wymienia firmy z błędnym numerem NIP. Kod zakończenia 1, gdy takie są.</translation>
    </message>
    <message>
        <source>The file to write; its ending decides its kind.</source>
        <translation>Plik do zapisania; jego rozszerzenie określa rodzaj.</translation>
    </message>
    <message>
        <source>give an output file that ends in %1</source>
        <translation>podaj plik wyjściowy o rozszerzeniu %1</translation>
    </message>
    <message>
        <source>Writes the groups of a material database as a workbook.</source>
        <translation>Zapisuje grupy bazy materiałów jako skoroszyt.</translation>
    </message>
    <message>
        <source>Lists the materials that the editor would not accept, with the reason. Exit code 1 when there are some.</source>
        <translation>Wypisuje materiały, których edytor by nie przyjął, i powód. Kod wyjścia 1, gdy takie są.</translation>
    </message>
    <message>
        <source>Give these materials another name for the firm.</source>
        <translation>Nadaj firmie w tych materiałach inną nazwę.</translation>
    </message>
    <message>
        <source>Where the changed database goes.</source>
        <translation>Gdzie zapisać zmienioną bazę.</translation>
    </message>
    <message>
        <source>--rename with a name and -o belong together</source>
        <translation>--rename z nazwą i -o muszą wystąpić razem</translation>
    </message>
    <message>
        <source>no material names %1</source>
        <translation>żaden materiał nie wymienia %1</translation>
    </message>
    <message>
        <source>Lists the materials that name a firm as manufacturer or supplier, and can rename it there. Exit code 1 when there are none.</source>
        <translation>Wypisuje materiały, które wymieniają firmę jako producenta lub dostawcę, i może ją w nich przemianować. Kod wyjścia 1, gdy takich nie ma.</translation>
    </message>
    <message>
        <source>A material database that the lines are looked up in. May be given several times.</source>
        <translation>Baza materiałów, w której wyszukiwane są pozycje. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>is no BOM list</source>
        <translation>nie jest listą materiałów (BOM)</translation>
    </message>
    <message>
        <source>%1 is not BOM=SETS with a number of sets from 0 to %2</source>
        <translation>%1 nie ma postaci BOM=ZESTAWY z liczbą zestawów od 0 do %2</translation>
    </message>
    <message>
        <source>no quantity, left out</source>
        <translation>brak ilości, pominięto</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translation>Plik do zapisania.</translation>
    </message>
    <message>
        <source>give an output file with -o</source>
        <translation>podaj plik wyjściowy po -o</translation>
    </message>
    <message>
        <source>The order to write.</source>
        <translation>Zamówienie do zapisania.</translation>
    </message>
    <message>
        <source>An order whose lines come first; it may be OUT itself.</source>
        <translation>Zamówienie, którego pozycje są na początku; może to być sam plik wyjściowy.</translation>
    </message>
    <message>
        <source>Order only what is short of stock.</source>
        <translation>Zamów tylko to, czego brakuje w magazynie.</translation>
    </message>
    <message>
        <source>What becomes of materials that the order has: raise the line (usual), add a line, or skip them.</source>
        <translation>Co zrobić z materiałami, które są już w zamówieniu: zwiększyć ilość w pozycji (raise, domyślnie), dodać pozycję (add) albo pominąć (skip).</translation>
    </message>
    <message>
        <source>%1 is none of raise, add and skip</source>
        <translation>%1 nie jest żadnym ze słów raise, add, skip</translation>
    </message>
    <message>
        <source>in no database, left out</source>
        <translation>nie ma w żadnej bazie, pominięto</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) added or raised</source>
        <translation>
            <numerusform>%n pozycja dodana lub zwiększona</numerusform>
            <numerusform>%n pozycje dodane lub zwiększone</numerusform>
            <numerusform>%n pozycji dodanych lub zwiększonych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) skipped</source>
        <translation>
            <numerusform>%n materiał pominięty</numerusform>
            <numerusform>%n materiały pominięte</numerusform>
            <numerusform>%n materiałów pominiętych</numerusform>
        </translation>
    </message>
    <message>
        <source>Writes the KTMs and quantities of a BOM list as text.</source>
        <translation>Zapisuje KTM i ilości listy materiałów (BOM) jako tekst.</translation>
    </message>
    <message>
        <source>Writes the report of BOM lists as HTML or PDF.</source>
        <translation>Zapisuje raport list materiałów (BOM) jako HTML lub PDF.</translation>
    </message>
    <message>
        <source>Orders the materials of BOM lists, each times its number of sets.</source>
        <translation>Zamawia materiały z list BOM, każdej pomnożonej przez liczbę zestawów.</translation>
    </message>
    <message>
        <source>Prints what BOM lists, each times its number of sets, need beyond the stock: KTM, name, needed, in stock, short, known. Exit code 1 when something is short.</source>
        <translation>Wypisuje, czego listom BOM, każdej pomnożonej przez liczbę zestawów, brakuje w magazynie: KTM, nazwa, potrzeba, w magazynie, brakuje, w bazie. Kod wyjścia 1, gdy czegoś brakuje.</translation>
    </message>
    <message>
        <source>Send the program&apos;s databases instead of an order.</source>
        <translation>Wyślij bazy danych programu zamiast zamówienia.</translation>
    </message>
    <message>
        <source>Send the program&apos;s BOM lists instead of an order.</source>
        <translation>Wyślij listy materiałów (BOM) programu zamiast zamówienia.</translation>
    </message>
    <message>
        <source>Write the message and start no mail program.</source>
        <translation>Zapisz wiadomość, nie uruchamiaj programu pocztowego.</translation>
    </message>
    <message>
        <source>give one of an order, --databases and --boms</source>
        <translation>podaj zamówienie albo --databases, albo --boms</translation>
    </message>
    <message>
        <source>cannot be read or is invalid</source>
        <translation>nie można odczytać lub jest niepoprawny</translation>
    </message>
    <message>
        <source>cannot be started</source>
        <translation>nie można uruchomić</translation>
    </message>
    <message>
        <source>Opens the mail composer with an order and its PDF, or with the databases or BOM lists; prints the message&apos;s description file.</source>
        <translation>Otwiera okno nowej wiadomości z zamówieniem i jego plikiem PDF albo z bazami danych lub listami BOM; wypisuje plik opisu wiadomości.</translation>
    </message>
    <message>
        <source>Write also when unknown content is lost.</source>
        <translation>Zapisz także wtedy, gdy nieznana zawartość przepadnie.</translation>
    </message>
    <message>
        <source>not written, since it would lose %1; --force writes all the same</source>
        <translation>nie zapisano, bo przepadłoby: %1; --force zapisuje mimo to</translation>
    </message>
    <message>
        <source>OUT is IN, which must stay</source>
        <translation>OUT to IN, który ma pozostać bez zmian</translation>
    </message>
    <message>
        <source>Reads what can be read of a damaged file, writes it in the program&apos;s form, and prints what was mended or dropped.</source>
        <translation>Odczytuje z uszkodzonego pliku, co się da, zapisuje to w postaci programu i wypisuje, co naprawiono lub pominięto.</translation>
    </message>
    <message>
        <source>%1 is of the kind %2, but %3 is of the kind %4</source>
        <translation>%1 jest rodzaju %2, a %3 rodzaju %4</translation>
    </message>
    <message>
        <source>Lists what two files of one kind differ in. Exit code 1 when they differ, 2 when they cannot be compared.</source>
        <translation>Wypisuje różnice między dwoma plikami jednego rodzaju. Kod wyjścia 1, gdy się różnią, 2, gdy nie da się ich porównać.</translation>
    </message>
    <message>
        <source>Print one JSON document for other programs.</source>
        <translation>Wypisz jeden dokument JSON dla innych programów.</translation>
    </message>
    <message>
        <source>The key of the server (SHA256:...), when none was accepted yet.</source>
        <translation>Klucz serwera (SHA256:...), jeśli żaden nie został jeszcze przyjęty.</translation>
    </message>
    <message>
        <source>leads to no file of the file server</source>
        <translation>nie prowadzi do pliku na serwerze plików</translation>
    </message>
    <message>
        <source>The server is not known. When its key is right, give it: --host-key %1</source>
        <translation>Serwer nie jest znany. Jeśli jego klucz się zgadza, podaj go: --host-key %1</translation>
    </message>
    <message>
        <source>Copies a file to where its link leads on the file server.</source>
        <translation>Kopiuje plik tam, dokąd prowadzi jego odnośnik na serwerze plików.</translation>
    </message>
    <message>
        <source>Lists the earlier versions and unsaved orders that are kept, of one file or of all. Exit code 1 when there are none.</source>
        <translation>Wypisuje zachowane wcześniejsze wersje i niezapisane zamówienia, jednego pliku lub wszystkich. Kod wyjścia 1, gdy nie ma żadnych.</translation>
    </message>
    <message>
        <source>is open in %1, which will be told</source>
        <translation>jest otwarty w %1, który to zauważy</translation>
    </message>
    <message>
        <source>%1 is no field; there are: %2</source>
        <translation>%1 nie jest polem; pola to: %2</translation>
    </message>
    <message>
        <source>no column has the caption %1</source>
        <translation>żadna kolumna nie ma nagłówka %1</translation>
    </message>
    <message>
        <source>column %1: %2</source>
        <translation>kolumna %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>A material database that the parts are looked for in. May be given several times.</source>
        <translation>Baza materiałów, w której szukane są elementy. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>Where the BOM list goes.</source>
        <translation>Dokąd zapisać listę BOM.</translation>
    </message>
    <message>
        <source>What a column holds, by its caption or number. May be given several times.</source>
        <translation>Co zawiera kolumna o danym nagłówku lub numerze. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>Where the table of all lines goes, as CSV.</source>
        <translation>Dokąd zapisać tabelę wszystkich pozycji, jako CSV.</translation>
    </message>
    <message>
        <source>What parts the fields of a text.</source>
        <translation>Co rozdziela pola tekstu.</translation>
    </message>
    <message>
        <source>The encoding of a text.</source>
        <translation>Kodowanie tekstu.</translation>
    </message>
    <message>
        <source>The sheet of a workbook, from 1.</source>
        <translation>Arkusz skoroszytu, od 1.</translation>
    </message>
    <message>
        <source>give the BOM list to write with -o</source>
        <translation>podaj zapisywaną listę BOM po -o</translation>
    </message>
    <message>
        <source>holds no parts; name its columns with --map</source>
        <translation>nie zawiera elementów; wskaż kolumny opcją --map</translation>
    </message>
    <message>
        <source>Lists what two BOM lists of one board differ in, by designator. Exit code 1 when they differ, 2 when they cannot be compared.</source>
        <translation>Wypisuje, czym różnią się dwie listy BOM jednej płytki, według oznaczeń. Kod wyjścia 1, gdy się różnią, 2, gdy nie można ich porównać.</translation>
    </message>
    <message>
        <source>Makes a BOM list of a list of parts: CSV, XLSX, ODS, XLS or KiCad XML. Exit code 1 when parts were not found; the list is written all the same, with these as unknown lines.</source>
        <translation>Tworzy listę BOM z listy elementów: CSV, XLSX, ODS, XLS albo XML programu KiCad. Kod wyjścia 1, gdy części elementów nie znaleziono; lista i tak jest zapisywana, a one stają się nieznanymi pozycjami.</translation>
    </message>
    <message>
        <source>The firm register, in which manufacturers and suppliers are to stand.</source>
        <translation>Rejestr firm, w którym mają być producenci i dostawcy.</translation>
    </message>
    <message>
        <source>Only findings of this kind; may be given several times: %1.</source>
        <translation>Tylko uwagi tego rodzaju; opcję można podać kilka razy: %1.</translation>
    </message>
    <message>
        <source>A workbook (.xlsx) or CSV file (.csv) for the findings.</source>
        <translation>Skoroszyt (.xlsx) albo plik CSV (.csv) na uwagi.</translation>
    </message>
    <message>
        <source>the kinds of findings are: %1</source>
        <translation>rodzaje uwag to: %1</translation>
    </message>
    <message>
        <source>%1 is no field of a material; these are: %2</source>
        <translation>%1 nie jest polem materiału; pola to: %2</translation>
    </message>
    <message>
        <source>Only these fields of materials that both have, by their names as in files, and group for the place; no new materials: d_price,d_description,group.</source>
        <translation>Tylko te pola materiałów obecnych w obu bazach, pod nazwami jak w plikach, oraz group dla miejsca; bez nowych materiałów: d_price,d_description,group.</translation>
    </message>
    <message>
        <source>--update takes over all fields</source>
        <translation>--update przejmuje wszystkie pola</translation>
    </message>
    <message>
        <source>These fields are the same in both</source>
        <translation>Te pola są w obu bazach jednakowe</translation>
    </message>
    <message>
        <source>Conditions are parted by blanks, and all of them must hold:
  rezystor 0603        both words, in any field, also inside a word
  &quot;rezystor smd&quot;       these words in this order
  case:0603            that text in one field; case:=0603 the whole of it, case:&quot;&quot; none
  group:=&quot;Dioda TVS&quot;   quotes hold a text with blanks together, also behind a sign
  value:4k7            an equal number: 4700, 4,7 kOhm; a power may be a fraction: 1/4W
  price:&gt;10            more; also &gt;=, &lt;, &lt;= and =
  value:1k..10k        from the first to the last; value:1k.. value:..10k
  value:4k7+-5%        within so much of the number
  case:0603|0805       one of them
  !status:grey         without it; also -status:grey
Fields: %1</source>
        <translation>Warunki oddziela się odstępami, wszystkie muszą być spełnione:
  rezystor 0603        oba słowa, w dowolnym polu, także wewnątrz słowa
  &quot;rezystor smd&quot;       te słowa w tej kolejności
  case:0603            ten tekst w jednym polu; case:=0603 jako całość, case:&quot;&quot; puste
  group:=&quot;Dioda TVS&quot;   cudzysłów trzyma razem tekst z odstępami, także po znaku
  value:4k7            równa liczba: 4700, 4,7 kOhm; moc może być ułamkiem: 1/4W
  price:&gt;10            więcej; także &gt;=, &lt;, &lt;= i =
  value:1k..10k        od pierwszej do ostatniej; value:1k.. value:..10k
  value:4k7+-5%        w tych granicach od liczby
  case:0603|0805       jedno z nich
  !status:szary        bez tego; także -status:szary
Pola: %1</translation>
    </message>
    <message>
        <source>no search is kept</source>
        <translation>nie ma zachowanych wyszukiwań</translation>
    </message>
    <message>
        <source>A search kept in the program under that name; WORDS narrow it.</source>
        <translation>Wyszukiwanie zachowane w programie pod tą nazwą; SŁOWA je zawężają.</translation>
    </message>
    <message>
        <source>Prints the kept searches and searches nothing.</source>
        <translation>Wypisuje zachowane wyszukiwania i niczego nie szuka.</translation>
    </message>
    <message>
        <source>no search %1 is kept; see --list-kept</source>
        <translation>nie ma zachowanego wyszukiwania %1; zobacz --list-kept</translation>
    </message>
    <message>
        <source>A material database that names the firms.</source>
        <translation>Baza materiałów, w której są te firmy.</translation>
    </message>
    <message>
        <source>The firms are suppliers, not manufacturers.</source>
        <translation>Firmy są dostawcami, a nie producentami.</translation>
    </message>
    <message>
        <source>The folder for the changed register and databases; without it nothing is written.</source>
        <translation>Folder na zmienioną listę firm i bazy; bez niego nic nie jest zapisywane.</translation>
    </message>
    <message>
        <source>the list has no firm %1</source>
        <translation>na liście nie ma firmy %1</translation>
    </message>
    <message>
        <source>Lists what making one firm of two changes in the register and in the materials, and writes it into a folder when asked to.</source>
        <translation>Wypisuje, co na liście firm i w materiałach zmieni zrobienie jednej firmy z dwóch, a na żądanie zapisuje to w folderze.</translation>
    </message>
    <message>
        <source>Fetch copies of the datasheets that answer, too.</source>
        <translation>Pobierz też kopie dostępnych kart katalogowych.</translation>
    </message>
    <message>
        <source>How many days a kept result counts; 0: examine all again.</source>
        <translation>Ile dni liczy się zachowany wynik; 0: zbadaj wszystkie ponownie.</translation>
    </message>
    <message>
        <source>Tell on standard error how many links are examined.</source>
        <translation>Podawaj na standardowym wyjściu błędów, ile odnośników zbadano.</translation>
    </message>
    <message>
        <source>--days takes a number of days</source>
        <translation>--days przyjmuje liczbę dni</translation>
    </message>
    <message>
        <source>Examines the links of material databases over HTTP and HTTPS, and lists those that moved or do not answer. Exit code 1 when some do not.</source>
        <translation>Bada odnośniki z baz materiałów przez HTTP i HTTPS i wypisuje te, które przeniesiono lub które nie odpowiadają. Kod wyjścia 1, gdy któreś nie odpowiadają.</translation>
    </message>
    <message>
        <source>In the order</source>
        <translation>W zamówieniu</translation>
    </message>
    <message>
        <source>In the BOM list</source>
        <translation>Na liście BOM</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, pozycja %2: %3</translation>
    </message>
    <message>
        <source>is no set of BOM lists</source>
        <translation>nie jest zestawem list BOM</translation>
    </message>
    <message>
        <source>A material database. May be given several times.</source>
        <translation>Baza materiałów. Można podać wiele razy.</translation>
    </message>
    <message>
        <source>A BOM list, a set of BOM lists or an order in which to look for the material. May be given several times.</source>
        <translation>Lista BOM, zestaw list BOM lub zamówienie, w którym szukać materiału. Można podać wiele razy.</translation>
    </message>
    <message>
        <source>no material has the KTM %1</source>
        <translation>żaden materiał nie ma KTM %1</translation>
    </message>
    <message>
        <source>Tells all of the materials with a KTM, and where they are used.</source>
        <translation>Podaje wszystko o materiałach o danym KTM i gdzie są użyte.</translation>
    </message>
    <message>
        <source>Which materials, as &quot;find&quot; searches them.</source>
        <translation>Które materiały, tak jak szuka ich „find”.</translation>
    </message>
    <message>
        <source>The field: its name in a search or in the file.</source>
        <translation>Pole: jego nazwa w wyszukiwaniu lub w pliku.</translation>
    </message>
    <message>
        <source>Give it this text.</source>
        <translation>Nadaj mu ten tekst.</translation>
    </message>
    <message>
        <source>Replace this part of its text; wants --with.</source>
        <translation>Zamień tę część tekstu; wymaga --with.</translation>
    </message>
    <message>
        <source>What stands in its place then.</source>
        <translation>Co ma stać w jej miejscu.</translation>
    </message>
    <message>
        <source>A is a regular expression; $1 in B is what its first bracket found.</source>
        <translation>A jest wyrażeniem regularnym; $1 w B to wynik jego pierwszego nawiasu.</translation>
    </message>
    <message>
        <source>Compose it from other fields: &quot;{value} {case}&quot;.</source>
        <translation>Złóż je z innych pól: „{value} {case}”.</translation>
    </message>
    <message>
        <source>Only print what would change; nothing is written.</source>
        <translation>Tylko wypisz, co by się zmieniło; nic nie jest zapisywane.</translation>
    </message>
    <message>
        <source>give --find, --field, and one of --set, --replace and --template</source>
        <translation>podaj --find, --field i jedno z --set, --replace i --template</translation>
    </message>
    <message>
        <source>--replace and --with belong together, and --pattern to them</source>
        <translation>--replace i --with idą w parze, a --pattern tylko z nimi</translation>
    </message>
    <message>
        <source>there is no field %1; the fields: %2</source>
        <translation>nie ma pola %1; pola: %2</translation>
    </message>
    <message>
        <source>found %1, to change %2, unchanged %3, refused %4</source>
        <translation>znaleziono %1, do zmiany %2, bez zmian %3, odrzucono %4</translation>
    </message>
    <message>
        <source>Changes a field of all materials that a search finds, and writes the database; the file as it was is kept among its versions. Nothing is written when one of them is refused.</source>
        <translation>Zmienia pole wszystkich materiałów, które znajdzie wyszukiwanie, i zapisuje bazę; dotychczasowy plik zostaje wśród jego wersji. Gdy choć jeden materiał zostanie odrzucony, nic nie jest zapisywane.</translation>
    </message>
    <message>
        <source>Order only what ORDER lacks of what is needed.</source>
        <translation>Zamawiaj tylko to, czego w ORDER brakuje do zapotrzebowania.</translation>
    </message>
    <message>
        <source>--short and --top-up exclude each other</source>
        <translation>--short i --top-up wykluczają się</translation>
    </message>
    <message>
        <source>The file of what is reserved for boards.</source>
        <translation>Plik z tym, co zarezerwowano dla płytek.</translation>
    </message>
    <message>
        <source>Who does it; usually the user.</source>
        <translation>Kto to robi; zwykle użytkownik.</translation>
    </message>
    <message>
        <source>A material database with the stock. May be given several times.</source>
        <translation>Baza materiałów ze stanem magazynu. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>give the file of reservations with -r</source>
        <translation>podaj plik rezerwacji opcją -r</translation>
    </message>
    <message>
        <source>Release so many sets of the boards instead.</source>
        <translation>Zamiast tego zwolnij tyle zestawów płytek.</translation>
    </message>
    <message numerus="yes">
        <source>only %n set(s) were reserved</source>
        <translation>
            <numerusform>zarezerwowany był tylko %n zestaw</numerusform>
            <numerusform>zarezerwowane były tylko %n zestawy</numerusform>
            <numerusform>zarezerwowanych było tylko %n zestawów</numerusform>
        </translation>
    </message>
    <message>
        <source>Print what would be taken out, and write nothing.</source>
        <translation>Wypisz, co zostałoby zdjęte, i nie zapisuj niczego.</translation>
    </message>
    <message>
        <source>Reserves stock for boards before they are built, or releases it.</source>
        <translation>Rezerwuje stan magazynu dla płytek przed ich montażem albo go zwalnia.</translation>
    </message>
    <message>
        <source>Takes the materials of built boards out of the databases&apos; stock, and notes them beside the reservations: KTM, name, wanted, before, after, lacking. Exit code 1 when something was lacking.</source>
        <translation>Zdejmuje materiały zmontowanych płytek ze stanu baz i odnotowuje je obok rezerwacji: KTM, nazwa, potrzeba, przed, po, brakuje. Kod wyjścia 1, gdy czegoś zabrakło.</translation>
    </message>
    <message>
        <source>Lists reserved and built boards.</source>
        <translation>Wypisuje płytki zarezerwowane i zmontowane.</translation>
    </message>
    <message>
        <source>is no file of firm details</source>
        <translation>nie jest plikiem danych firm</translation>
    </message>
    <message>
        <source>%1 does not have it, left out</source>
        <translation>%1 go nie ma, pominięto</translation>
    </message>
    <message>
        <source>The firm register; the details beside it say how baskets are written.</source>
        <translation>Rejestr firm; plik danych obok niego określa, jak zapisywać koszyki.</translation>
    </message>
    <message>
        <source>Only the basket of this supplier, with all that it has.</source>
        <translation>Tylko koszyk tego dostawcy, ze wszystkim, co ma w ofercie.</translation>
    </message>
    <message>
        <source>An order whose lines are bought, in place of BOM lists.</source>
        <translation>Zamówienie, którego pozycje są kupowane, zamiast list BOM.</translation>
    </message>
    <message>
        <source>Buy only what is short of stock.</source>
        <translation>Kup tylko to, czego brakuje w magazynie.</translation>
    </message>
    <message>
        <source>give either BOM=SETS or --from ORDER</source>
        <translation>podaj albo BOM=SETS, albo --from ORDER</translation>
    </message>
    <message>
        <source>no material has a supplier</source>
        <translation>żaden materiał nie ma dostawcy</translation>
    </message>
    <message>
        <source>no material has the supplier %1</source>
        <translation>żaden materiał nie ma dostawcy %1</translation>
    </message>
    <message>
        <source>Writes what BOM lists, each times its number of sets, or an order need as baskets for the shops of the suppliers.</source>
        <translation>Zapisuje to, czego wymagają listy BOM razy liczba zestawów albo zamówienie, jako koszyki do sklepów dostawców.</translation>
    </message>
    <message>
        <source>A BOM list or a set of BOM lists, whose materials are to have a status valid for ordering. May be given several times.</source>
        <translation>Lista BOM lub zestaw list BOM, których materiały mają mieć status pozwalający je zamówić. Można podać wiele razy.</translation>
    </message>
    <message>
        <source>Lists what is wrong with the materials of databases: duplicates, empty fields, codes, links, files, firms, and materials of BOM lists that may not be ordered. Exit code 1 when there is something.</source>
        <translation>Wypisuje, co jest nie tak z materiałami baz: duplikaty, puste pola, kody, odnośniki, pliki, firmy oraz materiały z list BOM, których nie wolno zamówić. Kod wyjścia 1, gdy coś znaleziono.</translation>
    </message>
    <message>
        <source>nothing was replaced</source>
        <translation>niczego nie zastąpiono</translation>
    </message>
    <message>
        <source>A material database, which has the new material. May be given several times.</source>
        <translation>Baza materiałów z nowym materiałem. Można podać wiele razy.</translation>
    </message>
    <message>
        <source>lines to replace %1, in files %2 of %3</source>
        <translation>pozycji do zastąpienia: %1, w plikach: %2 z %3</translation>
    </message>
    <message>
        <source>Puts one material in the place of another one in BOM lists, all lists of sets, and orders, and keeps the files as they were among their versions. All files are written, or none.</source>
        <translation>Zastępuje materiał innym na listach BOM, wszystkich listach zestawów i w zamówieniach; dotychczasowe pliki zachowuje wśród ich wersji. Zapisuje wszystkie pliki albo żadnego.</translation>
    </message>
    <message>
        <source>The folder for a file for each supplier; with --supplier a folder (it is there, or ends in a slash) or the file.</source>
        <translation>Folder na pliki, po jednym dla każdego dostawcy; z --supplier folder (istniejący albo zakończony ukośnikiem) lub plik.</translation>
    </message>
    <message>
        <source>%1 of %2 lines shown</source>
        <translation>pokazano %1 z %2 pozycji</translation>
    </message>
    <message>
        <source>  list             all orders, the latest first
  find WORDS...    the lines that hold all of the words
  where-used KTM   the lines of a material
Example: kivzp-cli orders find -f _zp 0603 100nF --json</source>
        <translation>  list             wszystkie zamówienia, od najnowszego
  find SŁOWA...    pozycje, które zawierają wszystkie słowa
  where-used KTM   pozycje materiału
Przykład: kivzp-cli orders find -f _zp 0603 100nF --json</translation>
    </message>
    <message>
        <source>A folder of orders, in place of those that the configuration names. May be given several times.</source>
        <translation>Folder zamówień zamiast tych, które podaje konfiguracja. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>A material database whose part numbers are found, too. May be given several times.</source>
        <translation>Baza danych materiałów, po której numerach części też można szukać. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>A file for what was read, so that only changed orders are read the next time; the program&apos;s own without -f.</source>
        <translation>Plik na to, co przeczytano, aby następnym razem czytać tylko zmienione zamówienia; bez -f własny plik programu.</translation>
    </message>
    <message>
        <source>How many lines to print at most (0: all).</source>
        <translation>Ile najwyżej pozycji wypisać (0: wszystkie).</translation>
    </message>
    <message>
        <source>%1 is none of list, find, where-used</source>
        <translation>%1 nie jest żadnym z list, find, where-used</translation>
    </message>
    <message>
        <source>%1 is no number of lines</source>
        <translation>%1 nie jest liczbą pozycji</translation>
    </message>
    <message>
        <source>is no folder</source>
        <translation>nie jest folderem</translation>
    </message>
    <message>
        <source>Lists orders, and finds lines in all of them.</source>
        <translation>Wypisuje zamówienia i znajduje pozycje we wszystkich.</translation>
    </message>
    <message>
        <source>Order less what other orders, in the configured folders, have on the way.</source>
        <translation>Zamów mniej o to, co inne zamówienia z ustawionych folderów mają w drodze.</translation>
    </message>
    <message>
        <source>whole: %1, in part: %2</source>
        <translation>w całości: %1, częściowo: %2</translation>
    </message>
    <message>
        <source>Number of the delivery note.</source>
        <translation>Numer dokumentu dostawy.</translation>
    </message>
    <message>
        <source>Day of the delivery, dd.MM.yyyy; usually today.</source>
        <translation>Dzień dostawy, dd.MM.rrrr; zwykle dzisiaj.</translation>
    </message>
    <message>
        <source>The lines that came, such as &quot;1, 3=40, 5-8&quot;: of line 3 only 40. Decimals have a point here.</source>
        <translation>Pozycje, które przyszły, np. &quot;1, 3=40, 5-8&quot;: z pozycji 3 tylko 40. Ułamki tu z kropką.</translation>
    </message>
    <message>
        <source>Add what was delivered, and was not added before, to the stock of the databases.</source>
        <translation>Dodaj do stanu w bazach to, co dostarczono, a czego jeszcze nie dodano.</translation>
    </message>
    <message>
        <source>With --to-stock: tell only, write nothing.</source>
        <translation>Z --to-stock: tylko wypisz, niczego nie zapisuj.</translation>
    </message>
    <message>
        <source>give either --lines or --to-stock</source>
        <translation>podaj albo --lines, albo --to-stock</translation>
    </message>
    <message>
        <source>%1 is no date</source>
        <translation>%1 nie jest datą</translation>
    </message>
    <message>
        <source>Notes in an order what came of its lines, in whole or in part, or adds what was delivered to the stock of databases.</source>
        <translation>Odnotowuje w zamówieniu, co przyszło z jego pozycji, w całości lub częściowo, albo dodaje dostarczone materiały do stanu w bazach.</translation>
    </message>
    <message>
        <source>without a CPV code: %1</source>
        <translation>bez kodu CPV: %1</translation>
    </message>
    <message>
        <source>The year of the orders; usually the newest one.</source>
        <translation>Rok zamówień; zwykle najnowszy.</translation>
    </message>
    <message>
        <source>What the sums are of: cpv, group, target or firm.</source>
        <translation>Według czego są sumy: cpv, group, target lub firm.</translation>
    </message>
    <message>
        <source>The first digits of a CPV code that make a group, 3 to 8.</source>
        <translation>Ile pierwszych cyfr kodu CPV tworzy grupę, od 3 do 8.</translation>
    </message>
    <message>
        <source>Thresholds by first digits of CPV codes, in PLN, in place of the configuration&apos;s.</source>
        <translation>Progi według pierwszych cyfr kodów CPV, w PLN, zamiast tych z konfiguracji.</translation>
    </message>
    <message>
        <source>The file to write; its ending, .html, .pdf, .xlsx or .csv, decides its kind.</source>
        <translation>Plik do zapisania; o rodzaju decyduje końcówka .html, .pdf, .xlsx lub .csv.</translation>
    </message>
    <message>
        <source>%1 is none of cpv, group, target, firm</source>
        <translation>%1 nie jest jednym z: cpv, group, target, firm</translation>
    </message>
    <message>
        <source>%1 is no number of digits from 3 to 8</source>
        <translation>%1 nie jest liczbą cyfr od 3 do 8</translation>
    </message>
    <message>
        <source>%1 is no year</source>
        <translation>%1 nie jest rokiem</translation>
    </message>
    <message>
        <source>give an output file that ends in .html, .pdf, .xlsx or .csv</source>
        <translation>podaj plik wyjściowy o końcówce .html, .pdf, .xlsx lub .csv</translation>
    </message>
    <message>
        <source>Prints a row for each with: name, estimated, ordered, rest, share, lines, orders, lines left out, threshold, state.
Example: kivzp-cli plan -y 2026 --by group -t &quot;302: 50000; *: 130000&quot;</source>
        <translation>Wypisuje dla każdej sumy wiersz: nazwa, szacowane, zamówione, reszta, udział, pozycje, zamówienia, pominięte pozycje, próg, stan.
Przykład: kivzp-cli plan -y 2026 --by group -t &quot;302: 50000; *: 130000&quot;</translation>
    </message>
    <message>
        <source>is not understood: %1</source>
        <translation>nie jest zrozumiałe: %1</translation>
    </message>
    <message>
        <source>There are no orders of %1</source>
        <translation>Nie ma zamówień z roku %1</translation>
    </message>
    <message>
        <source>Adds up the orders of a year, and tells of thresholds.</source>
        <translation>Sumuje zamówienia roku i ostrzega o progach.</translation>
    </message>
    <message>
        <source>The firm; else the one that the request went to.</source>
        <translation>Firma; inaczej ta, do której wysłano zapytanie.</translation>
    </message>
    <message>
        <source>Its tax number.</source>
        <translation>Jej NIP.</translation>
    </message>
    <message>
        <source>The day on which it came; today.</source>
        <translation>Dzień otrzymania; dziś.</translation>
    </message>
    <message>
        <source>The currency of its prices; else what the file says, or PLN.</source>
        <translation>Waluta cen; inaczej ta z pliku albo PLN.</translation>
    </message>
    <message>
        <source>PLN for one of the currency.</source>
        <translation>PLN za jednostkę waluty.</translation>
    </message>
    <message>
        <source>The day of that rate.</source>
        <translation>Dzień tego kursu.</translation>
    </message>
    <message>
        <source>VAT in percent: of the offer that is imported; in a comparison, of those that do not say it (23).</source>
        <translation>VAT w procentach: wczytywanej oferty; w porównaniu ofert, które go nie podają (23).</translation>
    </message>
    <message>
        <source>Its prices hold the tax.</source>
        <translation>Ceny zawierają podatek.</translation>
    </message>
    <message>
        <source>Days until it delivers, where no row says it.</source>
        <translation>Dni do dostawy, gdy wiersz ich nie podaje.</translation>
    </message>
    <message>
        <source>The last day on which it holds.</source>
        <translation>Ostatni dzień ważności.</translation>
    </message>
    <message>
        <source>In place of the firm&apos;s offer before.</source>
        <translation>W miejsce poprzedniej oferty tej firmy.</translation>
    </message>
    <message>
        <source>A material database whose part numbers rows without our number are matched by. May be given several times.</source>
        <translation>Baza materiałów, po której numerach części dopasowuje się wiersze bez naszego numeru. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>What is proposed: cheapest (each material), one (firm for all), fewest (firms), date (what comes in time).</source>
        <translation>Co proponować: cheapest (najtaniej każdy materiał), one (jedna firma na wszystko), fewest (najmniej firm), date (to, co dotrze na czas).</translation>
    </message>
    <message>
        <source>With fewest: how much more than the cheapest it may cost.</source>
        <translation>Przy fewest: o ile więcej od najtańszego może kosztować.</translation>
    </message>
    <message>
        <source>With date: the day by which it has to come.</source>
        <translation>Przy date: dzień, do którego ma dotrzeć.</translation>
    </message>
    <message>
        <source>Why these firms are chosen.</source>
        <translation>Dlaczego wybrano te firmy.</translation>
    </message>
    <message>
        <source>Do not raise quantities to what has to be bought.</source>
        <translation>Nie zwiększać ilości do tych, które trzeba kupić.</translation>
    </message>
    <message>
        <source>%1: %2 offered, %3 not offered, %4 not named</source>
        <translation>%1: oferowane %2, nieoferowane %3, niewymienione %4</translation>
    </message>
    <message>
        <source>%1 is none of cheapest, one, fewest, date</source>
        <translation>%1 nie jest żadnym z cheapest, one, fewest, date</translation>
    </message>
    <message>
        <source>%1 is no percentage</source>
        <translation>%1 nie jest procentem</translation>
    </message>
    <message>
        <source>give the day with --until</source>
        <translation>podaj dzień opcją --until</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>%1: %2 offered, %3 missing, %4 PLN net, %5 PLN gross</source>
        <translation>%1: oferowane %2, brakuje %3, %4 PLN netto, %5 PLN brutto</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>nieaktualna</translation>
    </message>
    <message>
        <source>%1 materials chosen, %2 prices and %3 quantities set</source>
        <translation>wybrano materiałów: %1, ustawiono cen: %2, ilości: %3</translation>
    </message>
    <message>
        <source>give a --reason</source>
        <translation>podaj --reason</translation>
    </message>
    <message>
        <source>there are no offers for it</source>
        <translation>nie ma do niego ofert</translation>
    </message>
    <message>
        <source>without an offer: %1</source>
        <translation>bez oferty: %1</translation>
    </message>
    <message>
        <source>there is nothing to choose</source>
        <translation>nie ma czego wybrać</translation>
    </message>
    <message>
        <source>  import ORDER FILE  takes in the table of a request filled in, or a price list
  compare ORDER      a row for each material with: number, name, quantity, unit, and
                     of the proposed firm its name, price, quantity to buy, cost,
                     lead time, remark
  choose ORDER       the same, and writes prices into the order
  split ORDER        one order for each chosen firm, beside the order
Example: kivzp-cli offers compare _zp/zp_7.xml --by fewest --within 5 -o offers.pdf</source>
        <translation>  import ORDER FILE  wczytuje wypełnioną tabelę zapytania albo cennik
  compare ORDER      wiersz dla każdego materiału: numer, nazwa, ilość, jednostka oraz
                     proponowana firma, cena, ilość do kupienia, koszt, czas dostawy,
                     uwaga
  choose ORDER       to samo i wpisuje ceny do zamówienia
  split ORDER        jedno zamówienie dla każdej wybranej firmy, obok zamówienia
Przykład: kivzp-cli offers compare _zp/zp_7.xml --by fewest --within 5 -o oferty.pdf</translation>
    </message>
    <message>
        <source>%1 is none of import, compare, choose, split</source>
        <translation>%1 nie jest żadnym z import, compare, choose, split</translation>
    </message>
    <message>
        <source>Takes in offers for an order, compares them, parts it by firm.</source>
        <translation>Wczytuje oferty do zamówienia, porównuje je, dzieli je na firmy.</translation>
    </message>
    <message>
        <source>The register of firms, with their details beside it.</source>
        <translation>Rejestr firm, z danymi firm obok niego.</translation>
    </message>
    <message>
        <source>The name or tax number of a firm of the register. May be given several times.</source>
        <translation>Nazwa albo NIP firmy z rejestru. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>Day by which offers are expected, dd.MM.yyyy; usually a week from today.</source>
        <translation>Dzień, do którego oczekuje się ofert, dd.MM.rrrr; zwykle za tydzień od dziś.</translation>
    </message>
    <message>
        <source>A material database with makers and their part numbers. May be given several times.</source>
        <translation>Baza materiałów z producentami i ich numerami części. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>The lines that are asked for, such as &quot;1,3-5&quot;; usually all.</source>
        <translation>Pozycje, o które się pyta, np. &quot;1,3-5&quot;; zwykle wszystkie.</translation>
    </message>
    <message>
        <source>Start the mail program with each message, and note it as sent.</source>
        <translation>Uruchamia program pocztowy z każdą wiadomością i odnotowuje ją jako wysłaną.</translation>
    </message>
    <message>
        <source>Remind the firms that sent no offer yet, or those given with --firm.</source>
        <translation>Przypomina firmom, które nie przysłały jeszcze oferty, albo tym z --firm.</translation>
    </message>
    <message>
        <source>Print who was asked and when, and who answered.</source>
        <translation>Wypisuje, kogo i kiedy zapytano i kto odpowiedział.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no lines of the order</source>
        <translation>&quot;%1&quot; nie oznacza pozycji zamówienia</translation>
    </message>
    <message>
        <source>%1 is no firm of the register</source>
        <translation>%1 nie jest firmą z rejestru</translation>
    </message>
    <message>
        <source>%1 is the name of several firms; give the tax number</source>
        <translation>%1 to nazwa kilku firm; podaj NIP</translation>
    </message>
    <message>
        <source>no firm is to be reminded</source>
        <translation>żadnej firmie nie trzeba przypominać</translation>
    </message>
    <message>
        <source>%1 is past</source>
        <translation>%1 już minął</translation>
    </message>
    <message>
        <source>line %1 has no quantity above 0, and is left out</source>
        <translation>pozycja %1 nie ma ilości większej od 0 i jest pominięta</translation>
    </message>
    <message>
        <source>give either --list or --remind</source>
        <translation>podaj albo --list, albo --remind</translation>
    </message>
    <message>
        <source>give --firms and --firm</source>
        <translation>podaj --firms i --firm</translation>
    </message>
    <message>
        <source>is no register of firms</source>
        <translation>nie jest rejestrem firm</translation>
    </message>
    <message>
        <source>Asks firms for quotations for an order, each with a table to fill in, reminds them, and tells who was asked.</source>
        <translation>Pyta firmy o oferty do zamówienia, każdą z tabelą do wypełnienia, przypomina im i mówi, kogo zapytano.</translation>
    </message>
    <message>
        <source>Prints the files that were written; with --list a row for each request with: number, firm, sent, deadline, state, reminded, addresses, materials.
Example: kivzp-cli request zp_13.xml --firms _files/firms.xml --firm TME --firm Mouser -d _files/db_warehouse.xml --send</source>
        <translation>Wypisuje zapisane pliki; z --list wiersz dla każdego zapytania: numer, firma, wysłano, termin, stan, przypomniano, adresy, materiały.
Przykład: kivzp-cli request zp_13.xml --firms _files/firms.xml --firm TME --firm Mouser -d _files/db_warehouse.xml --send</translation>
    </message>
    <message>
        <source>What a column of the file holds, as price=5 for the fifth: key, part_number, from, price, prices, minimum, multiple, lead_time, remarks, currency or none. May be given several times.</source>
        <translation>Co zawiera kolumna pliku, np. price=5 dla piątej: key, part_number, from, price, prices, minimum, multiple, lead_time, remarks, currency albo none. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>%1 is not what a column holds, as price=5</source>
        <translation>%1 nie mówi, co zawiera kolumna, jak price=5</translation>
    </message>
    <message>
        <source>it has %1 columns</source>
        <translation>plik ma %1 kolumn</translation>
    </message>
    <message>
        <source>%1 has no request without an offer</source>
        <translation>%1 nie ma zapytania bez oferty</translation>
    </message>
    <message>
        <source>Where updates are: http(s)://, scp://host/folder or a folder; else the configuration&apos;s.</source>
        <translation>Gdzie są aktualizacje: http(s)://, scp://host/folder albo folder; w przeciwnym razie adres z konfiguracji.</translation>
    </message>
    <message>
        <source>The folder that is updated, or whose data are packed; the program&apos;s.</source>
        <translation>Folder, który jest aktualizowany albo którego dane są pakowane; folder programu.</translation>
    </message>
    <message>
        <source>Only this part: program, boms, firms, service, warehouse or mechanics. With create its release, as firms=12. May be given several times.</source>
        <translation>Tylko ta część: program, boms, firms, service, warehouse lub mechanics. Przy create z wydaniem, np. firms=12. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>The key that signatures are checked with, or with create made with; else that of the program, or none.</source>
        <translation>Klucz, którym sprawdzane są podpisy, a przy create – którym są składane; w przeciwnym razie klucz programu albo żaden.</translation>
    </message>
    <message>
        <source>Take an update that nobody signed.</source>
        <translation>Przyjmij aktualizację, której nikt nie podpisał.</translation>
    </message>
    <message>
        <source>With create: a page that says what is new.</source>
        <translation>Przy create: strona mówiąca, co nowego.</translation>
    </message>
    <message>
        <source>With create: also copy it to the address, by secure copy.</source>
        <translation>Przy create: także skopiuj pod adres przez bezpieczne kopiowanie.</translation>
    </message>
    <message>
        <source>With install: only tell what would change.</source>
        <translation>Przy install: tylko powiedz, co by się zmieniło.</translation>
    </message>
    <message>
        <source>newer</source>
        <translation>nowsza</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>niższa</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>ta sama</translation>
    </message>
    <message>
        <source>%1 is no part</source>
        <translation>%1 nie jest częścią</translation>
    </message>
    <message>
        <source>nothing is newer</source>
        <translation>nie ma nic nowszego</translation>
    </message>
    <message>
        <source>cannot be replaced now</source>
        <translation>nie można teraz zastąpić</translation>
    </message>
    <message>
        <source>%1 is no part with its release, as firms=12</source>
        <translation>%1 nie jest częścią z wydaniem, np. firms=12</translation>
    </message>
    <message>
        <source>give at least one --part, as --part firms=12</source>
        <translation>podaj co najmniej jedno --part, np. --part firms=12</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>Nie można odczytać %1</translation>
    </message>
    <message>
        <source>give an --address</source>
        <translation>podaj --address</translation>
    </message>
    <message>
        <source>It is not signed: give a --key</source>
        <translation>Nie jest podpisana: podaj --key</translation>
    </message>
    <message>
        <source>  check          a row for each part on offer: its release here and there, size
  install        downloads and checks what is newer, merges what was changed here,
                 and puts it in place
  back           puts back the files of the program that the last update replaced
  settle         finishes an update that was broken off, as each start does
  create FOLDER  packages, information file, script and signature, for the address
  key NAME       makes NAME.pub, which goes beside the program as _config/update.pub,
                 and NAME.key, which is nobody else&apos;s business
Example: kivzp-cli update create out --part firms=12 --key ours.key</source>
        <translation>  check          wiersz dla każdej oferowanej części: wydanie tutaj i tam, rozmiar
  install        pobiera i sprawdza, co nowsze, scala to, co tu zmieniono,
                 i umieszcza na miejscu
  back           przywraca pliki programu, które zastąpiła ostatnia aktualizacja
  settle         kończy przerwaną aktualizację, jak przy każdym uruchomieniu
  create FOLDER  pakiety, plik informacyjny, skrypt i podpis, do umieszczenia pod adresem
  key NAZWA      tworzy NAZWA.pub, który leży obok programu jako _config/update.pub,
                 i NAZWA.key, który jest tylko dla właściciela
Przykład: kivzp-cli update create out --part firms=12 --key ours.key</translation>
    </message>
    <message>
        <source>%1 is none of %2</source>
        <translation>%1 nie jest żadnym z: %2</translation>
    </message>
    <message>
        <source>Updates: looks for them, installs them, makes them.</source>
        <translation>Aktualizacje: szuka ich, instaluje je, tworzy je.</translation>
    </message>
    <message>
        <source>to read</source>
        <translation>do przeczytania</translation>
    </message>
    <message>
        <source>Instead of DB: the name of a material database in the shared store. Makes views of it on the server, and OUT.DbLib by which Altium reads them.</source>
        <translation>Zamiast DB: nazwa bazy materiałów we wspólnej bazie. Tworzy jej widoki na serwerze oraz OUT.DbLib, przez który czyta je Altium.</translation>
    </message>
    <message>
        <source>The store: postgresql://user@server/database or sqlite:FILE; else the configuration&apos;s. A password comes from ~/.pgpass or PGPASSWORD.</source>
        <translation>Wspólna baza: postgresql://użytkownik@serwer/baza lub sqlite:PLIK; bez tego ta z konfiguracji. Hasło pochodzi z ~/.pgpass lub PGPASSWORD.</translation>
    </message>
    <message>
        <source>With --shared: the login as which Altium reads the views, a member of kivzp_reader.</source>
        <translation>Z --shared: użytkownik, jako który Altium czyta widoki, należący do kivzp_reader.</translation>
    </message>
    <message>
        <source>give a database or --shared</source>
        <translation>podaj bazę albo --shared</translation>
    </message>
    <message>
        <source>--store and --login belong to --shared</source>
        <translation>--store i --login należą do --shared</translation>
    </message>
    <message>
        <source>Writes a material database as a component library for CAD tools: OUT.xlsx, or OUT.sqlite with its script OUT.txt, and a description of each for Altium (.DbLib), of the SQLite file for KiCad, too (.kicad_dbl). Lists the files, then what has changed since the last export. With --shared: a library that Altium reads straight from the shared store; lists the file and the views with how many materials each has.</source>
        <translation>Zapisuje bazę materiałów jako bibliotekę elementów dla programów CAD: OUT.xlsx albo OUT.sqlite ze skryptem OUT.txt, do każdego opis dla programu Altium (.DbLib), a do pliku SQLite także dla programu KiCad (.kicad_dbl). Wypisuje pliki, a potem zmiany od ostatniego eksportu. Z --shared: biblioteka, którą Altium czyta wprost ze wspólnej bazy; wypisuje plik i widoki z liczbą materiałów w każdym.</translation>
    </message>
    <message>
        <source>Make the tables, and on a server the roles kivzp_reader, kivzp_editor and kivzp_administrator, where they are missing.</source>
        <translation>Tworzy brakujące tabele, a na serwerze role kivzp_reader, kivzp_editor i kivzp_administrator.</translation>
    </message>
    <message>
        <source>The document&apos;s name in the store; else the file&apos;s.</source>
        <translation>Nazwa dokumentu we wspólnej bazie; bez niej nazwa pliku.</translation>
    </message>
    <message>
        <source>give files, or --init</source>
        <translation>podaj pliki albo --init</translation>
    </message>
    <message>
        <source>--as is for one file</source>
        <translation>--as dotyczy jednego pliku</translation>
    </message>
    <message>
        <source>The root element, where documents of several kinds have that name.</source>
        <translation>Element główny, gdy tę nazwę mają dokumenty różnych rodzajów.</translation>
    </message>
    <message>
        <source>the store has no document %1</source>
        <translation>we wspólnej bazie nie ma dokumentu %1</translation>
    </message>
    <message>
        <source>there are several, give --kind: %1</source>
        <translation>jest ich kilka, podaj --kind: %1</translation>
    </message>
    <message>
        <source>%1 is no known kind of file</source>
        <translation>%1 nie jest znanym rodzajem pliku</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(brak)</translation>
    </message>
    <message>
        <source>both sides changed the same: give --mine or --theirs, or settle it in the program</source>
        <translation>obie strony zmieniły to samo: podaj --mine lub --theirs albo rozstrzygnij to w programie</translation>
    </message>
    <message>
        <source>Where both sides changed the same, what is here stays.</source>
        <translation>Gdzie obie strony zmieniły to samo, zostaje to, co jest tutaj.</translation>
    </message>
    <message>
        <source>Where both sides changed the same, what the store has comes.</source>
        <translation>Gdzie obie strony zmieniły to samo, przychodzi to, co jest we wspólnej bazie.</translation>
    </message>
    <message>
        <source>give --mine or --theirs</source>
        <translation>podaj --mine albo --theirs</translation>
    </message>
    <message>
        <source>no file is shared</source>
        <translation>żaden plik nie jest wspólny</translation>
    </message>
    <message>
        <source>%1 has no material %2</source>
        <translation>w %1 nie ma materiału %2</translation>
    </message>
    <message>
        <source>%1 is another document of the store</source>
        <translation>%1 jest innym dokumentem wspólnej bazy</translation>
    </message>
    <message>
        <source>Only of this shared database.</source>
        <translation>Tylko z tej wspólnej bazy materiałów.</translation>
    </message>
    <message>
        <source>With -d: make the material in the file what it was after this release. The next sync sends that.</source>
        <translation>Z -d: przywraca materiał w pliku do stanu po tym wydaniu. Wyśle to następna synchronizacja.</translation>
    </message>
    <message>
        <source>give one database</source>
        <translation>podaj jedną bazę</translation>
    </message>
    <message>
        <source>%1 is no release</source>
        <translation>%1 nie jest numerem wydania</translation>
    </message>
    <message>
        <source>%1 is not shared</source>
        <translation>%1 nie jest wspólny</translation>
    </message>
    <message>
        <source>the store has no material %1</source>
        <translation>we wspólnej bazie nie ma materiału %1</translation>
    </message>
    <message>
        <source>Puts databases, the firm register, reservations, states of orders and offers into a shared store.</source>
        <translation>Umieszcza bazy materiałów, rejestr firm, rezerwacje, stany zamówień i oferty we wspólnej bazie.</translation>
    </message>
    <message>
        <source>Makes a file of a document in the shared store; without arguments lists what there is.</source>
        <translation>Tworzy plik z dokumentu we wspólnej bazie; bez argumentów podaje, co w niej jest.</translation>
    </message>
    <message>
        <source>Brings shared files and the store together: what others changed comes, what was changed here goes. A row a file: how many rows came and went, and the release.</source>
        <translation>Uzgadnia wspólne pliki ze wspólną bazą: przychodzi to, co zmienili inni, wychodzi to, co zmieniono tutaj. Wiersz na plik: ile wierszy przyszło i wyszło oraz numer wydania.</translation>
    </message>
    <message>
        <source>Who changed what of a material in the shared store, the latest first.</source>
        <translation>Kto co zmienił w materiale we wspólnej bazie, od najnowszej zmiany.</translation>
    </message>
</context>
<context>
    <name>commands</name>
    <message>
        <source>line %1</source>
        <translation>wiersz %1</translation>
    </message>
    <message>
        <source>%1, %2: %3 → %4</source>
        <translation>%1, %2: %3 → %4</translation>
    </message>
</context>
<context>
    <name>completionList</name>
    <message>
        <source>Completions</source>
        <translation>Podpowiedzi</translation>
    </message>
</context>
<context>
    <name>configOperations</name>
    <message>
        <source>is no number from %1 to %2</source>
        <translation>nie jest liczbą od %1 do %2</translation>
    </message>
    <message>
        <source>is no date</source>
        <translation>nie jest datą</translation>
    </message>
    <message>
        <source>is no folder</source>
        <translation>nie jest folderem</translation>
    </message>
    <message>
        <source>is not understood: %1</source>
        <translation>nie jest zrozumiałe: %1</translation>
    </message>
    <message>
        <source>is no rate from 0 to 100</source>
        <translation>nie jest stawką od 0 do 100</translation>
    </message>
</context>
<context>
    <name>configWindow</name>
    <message>
        <source>Configuration</source>
        <translation>Konfiguracja</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Persons</source>
        <translation>Osoby</translation>
    </message>
    <message>
        <source>Targets</source>
        <translation>Zlecenia</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opcja</translation>
    </message>
    <message>
        <source>options are neither added nor deleted</source>
        <translation>opcji nie dodaje się ani nie usuwa</translation>
    </message>
    <message>
        <source>Add row</source>
        <translation>Dodaj wiersz</translation>
    </message>
    <message>
        <source>Delete rows</source>
        <translation>Usuń wiersze</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Wartości domyślne</translation>
    </message>
    <message>
        <source>These options count from the next start on:</source>
        <translation>Te opcje zadziałają po ponownym uruchomieniu:</translation>
    </message>
    <message>
        <source>Save the changed configuration?</source>
        <translation>Zapisać zmienioną konfigurację?</translation>
    </message>
    <message>
        <source>%1 is NIE; change line %2 of %3</source>
        <translation>%1 ma wartość NIE; zmień wiersz %2 pliku %3</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>nie można odczytać pliku</translation>
    </message>
    <message numerus="yes">
        <source>%n version(s), %1 MB</source>
        <translation>
            <numerusform>%n wersja, %1 MB</numerusform>
            <numerusform>%n wersje, %1 MB</numerusform>
            <numerusform>%n wersji, %1 MB</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cpvOperations</name>
    <message>
        <source>CPV syntax error</source>
        <translation>Błąd składni CPV</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>nie można odczytać pliku</translation>
    </message>
    <message>
        <source>Group does not exist</source>
        <translation>Grupa nie istnieje</translation>
    </message>
</context>
<context>
    <name>createUpdateDialog</name>
    <message>
        <source>Copy it to the &amp;address of updates</source>
        <translation>Skopiuj pod &amp;adres aktualizacji</translation>
    </message>
    <message>
        <source>Make an update</source>
        <translation>Tworzenie aktualizacji</translation>
    </message>
    <message>
        <source>not signed</source>
        <translation>bez podpisu</translation>
    </message>
    <message>
        <source>&amp;Make it</source>
        <translation>&amp;Utwórz</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Folder</translation>
    </message>
    <message>
        <source>Folder of the update</source>
        <translation>Folder aktualizacji</translation>
    </message>
    <message>
        <source>&amp;Key</source>
        <translation>&amp;Klucz</translation>
    </message>
    <message>
        <source>Key to sign with</source>
        <translation>Klucz do podpisu</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klucze</translation>
    </message>
    <message>
        <source>Parts of the update</source>
        <translation>Części aktualizacji</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Część</translation>
    </message>
    <message>
        <source>Release before</source>
        <translation>Poprzednie wydanie</translation>
    </message>
    <message>
        <source>New release (F2)</source>
        <translation>Nowe wydanie (F2)</translation>
    </message>
    <message>
        <source>No part is ticked</source>
        <translation>Nie zaznaczono żadnej części</translation>
    </message>
    <message>
        <source>The folder is missing</source>
        <translation>Brakuje folderu</translation>
    </message>
    <message>
        <source>Without a key nobody&apos;s program will take it, unless its configuration allows that</source>
        <translation>Bez klucza żaden program jej nie przyjmie, chyba że pozwala na to jego konfiguracja</translation>
    </message>
</context>
<context>
    <name>curl_download</name>
    <message>
        <source>Address or file is missing</source>
        <translation>Brak adresu lub pliku</translation>
    </message>
    <message>
        <source>Download failed: the host could not be resolved</source>
        <translation>Pobieranie nie powiodło się: nie można odnaleźć adresu serwera</translation>
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
    <message>
        <source>too many namespaces</source>
        <translation>za dużo przestrzeni nazw</translation>
    </message>
    <message>
        <source>a text has a character that no file can hold</source>
        <translation>jeden z tekstów ma znak, którego nie można zapisać w pliku</translation>
    </message>
    <message>
        <source>it would not open again: %1</source>
        <translation>nie dałoby się go ponownie otworzyć: %1</translation>
    </message>
    <message>
        <source>Saving %1 loses what the program does not know: %2. Save it all the same?</source>
        <translation>Zapis %1 usunie to, czego program nie zna: %2. Zapisać mimo to?</translation>
    </message>
    <message>
        <source>is no file of this program</source>
        <translation>nie jest plikiem tego programu</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>plik jest pusty</translation>
    </message>
    <message>
        <source>the file is UTF-16 but says that it is %1</source>
        <translation>plik jest w UTF-16, a podaje %1</translation>
    </message>
    <message>
        <source>the file says that it is %1 but is not</source>
        <translation>plik podaje kodowanie %1, a go nie ma</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>kodowanie %1 nie jest znane</translation>
    </message>
    <message>
        <source>Unknown content, lost when saved: </source>
        <translation>Nieznana zawartość, przepadnie przy zapisie: </translation>
    </message>
    <message>
        <source>it would lose %1</source>
        <translation>przepadłoby: %1</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (wiersz %2)</translation>
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
        <source>text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>no earlier version could be kept in %1</source>
        <translation>żadnej wcześniejszej wersji nie udało się zachować w %1</translation>
    </message>
    <message>
        <source>%1 lacks a field</source>
        <translation>w %1 brakuje pola</translation>
    </message>
    <message>
        <source>%1 does not belong into %2</source>
        <translation>element %1 nie należy do %2</translation>
    </message>
    <message>
        <source>unknown field %1</source>
        <translation>nieznane pole %1</translation>
    </message>
    <message>
        <source>text in %1, where none belongs</source>
        <translation>tekst w %1, gdzie go być nie może</translation>
    </message>
    <message>
        <source>%1 in %2, which holds no elements</source>
        <translation>%1 w %2, gdzie nie ma miejsca na elementy</translation>
    </message>
    <message>
        <source>unknown attribute %1 of %2</source>
        <translation>nieznany atrybut %1 elementu %2</translation>
    </message>
    <message>
        <source>%1 is no file of this program</source>
        <translation>%1 to nie jest plik tego programu</translation>
    </message>
    <message>
        <source>%1 is no version of %2</source>
        <translation>%1 nie jest wersją pliku %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has not the form of %2</source>
        <translation>„%1” nie ma postaci %2</translation>
    </message>
    <message>
        <source>%1, which began in line %2, ends as %3</source>
        <translation>element %1 z wiersza %2 kończy się jako %3</translation>
    </message>
    <message>
        <source>the file ends in %1, which began in line %2</source>
        <translation>plik kończy się w elemencie %1 z wiersza %2</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; stands alone; it is written &amp;amp;</source>
        <translation>samotny znak „&amp;”; zapisuje się go &amp;amp;</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; stands alone; it is written &amp;lt;</source>
        <translation>samotny znak „&lt;”; zapisuje się go &amp;lt;</translation>
    </message>
    <message>
        <source>&amp;%1; is not known</source>
        <translation>&amp;%1; jest nieznane</translation>
    </message>
    <message>
        <source>a byte that is no UTF-8, as in a file of Windows-1250</source>
        <translation>bajt spoza UTF-8, jak w pliku Windows-1250</translation>
    </message>
    <message>
        <source>a character that no file can hold: code %1</source>
        <translation>znak, którego nie może być w pliku: kod %1</translation>
    </message>
    <message>
        <source>a byte that is not of the file&apos;s encoding</source>
        <translation>bajt spoza kodowania pliku</translation>
    </message>
    <message>
        <source>the attribute %1 stands twice</source>
        <translation>atrybut %1 stoi dwa razy</translation>
    </message>
    <message>
        <source>the prefix %1 is not declared</source>
        <translation>przedrostek %1 nie jest zadeklarowany</translation>
    </message>
    <message>
        <source>is no XML</source>
        <translation>to nie jest XML</translation>
    </message>
    <message>
        <source>not in the form of a file: %1</source>
        <translation>niepoprawna budowa pliku: %1</translation>
    </message>
    <message>
        <source>material %1</source>
        <translation>materiał %1</translation>
    </message>
    <message>
        <source>material no. %1</source>
        <translation>materiał nr %1</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>grupa %1</translation>
    </message>
    <message>
        <source>group no. %1</source>
        <translation>grupa nr %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>pozycja %1</translation>
    </message>
    <message>
        <source>line no. %1</source>
        <translation>pozycja nr %1</translation>
    </message>
    <message>
        <source>option %1</source>
        <translation>opcja %1</translation>
    </message>
    <message>
        <source>option no. %1</source>
        <translation>opcja nr %1</translation>
    </message>
    <message>
        <source>person %1</source>
        <translation>osoba %1</translation>
    </message>
    <message>
        <source>person no. %1</source>
        <translation>osoba nr %1</translation>
    </message>
    <message>
        <source>target %1</source>
        <translation>cel %1</translation>
    </message>
    <message>
        <source>target no. %1</source>
        <translation>cel nr %1</translation>
    </message>
    <message>
        <source>firm %1</source>
        <translation>firma %1</translation>
    </message>
    <message>
        <source>firm no. %1</source>
        <translation>firma nr %1</translation>
    </message>
    <message>
        <source>manufacturer %1</source>
        <translation>producent %1</translation>
    </message>
    <message>
        <source>manufacturer no. %1</source>
        <translation>producent nr %1</translation>
    </message>
    <message>
        <source>supplier %1</source>
        <translation>dostawca %1</translation>
    </message>
    <message>
        <source>supplier no. %1</source>
        <translation>dostawca nr %1</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>plik %1</translation>
    </message>
    <message>
        <source>file no. %1</source>
        <translation>plik nr %1</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>kategoria %1</translation>
    </message>
    <message>
        <source>category no. %1</source>
        <translation>kategoria nr %1</translation>
    </message>
    <message>
        <source>command %1</source>
        <translation>polecenie %1</translation>
    </message>
    <message>
        <source>command no. %1</source>
        <translation>polecenie nr %1</translation>
    </message>
    <message>
        <source>the file was read as %1</source>
        <translation>plik odczytano jako %1</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) that are no UTF-8 were read as Windows-1250</source>
        <translation>
            <numerusform>%n bajt spoza UTF-8 odczytano jako Windows-1250</numerusform>
            <numerusform>%n bajty spoza UTF-8 odczytano jako Windows-1250</numerusform>
            <numerusform>%n bajtów spoza UTF-8 odczytano jako Windows-1250</numerusform>
        </translation>
    </message>
    <message>
        <source>the file ends in %1</source>
        <translation>plik kończy się w elemencie %1</translation>
    </message>
    <message>
        <source>&quot;&gt;&quot; was missing behind %1</source>
        <translation>za %1 brakowało „&gt;”</translation>
    </message>
    <message>
        <source>the end of %1 was missing</source>
        <translation>brakowało końca elementu %1</translation>
    </message>
    <message>
        <source>%1 ended as %2</source>
        <translation>element %1 kończył się jako %2</translation>
    </message>
    <message>
        <source>an end of %1 without its beginning was dropped</source>
        <translation>pominięto koniec elementu %1 bez początku</translation>
    </message>
    <message>
        <source>a broken tag: %1 was dropped</source>
        <translation>uszkodzony znacznik: pominięto %1</translation>
    </message>
    <message>
        <source>the beginning of %1 was missing</source>
        <translation>brakowało początku elementu %1</translation>
    </message>
    <message>
        <source>text that belongs to no field was dropped: %1</source>
        <translation>pominięto tekst spoza pól: %1</translation>
    </message>
    <message>
        <source>&amp;%1; was read as its character</source>
        <translation>&amp;%1; odczytano jako znak</translation>
    </message>
    <message>
        <source>holds no record of this program</source>
        <translation>nie zawiera żadnych danych tego programu</translation>
    </message>
    <message>
        <source>The schema %1 cannot be loaded</source>
        <translation>Nie można wczytać schematu %1</translation>
    </message>
    <message numerus="yes">
        <source>%n character(s) that no file can hold were dropped</source>
        <translation>
            <numerusform>pominięto %n znak, którego nie może być w pliku</numerusform>
            <numerusform>pominięto %n znaki, których nie może być w pliku</numerusform>
            <numerusform>pominięto %n znaków, których nie może być w pliku</numerusform>
        </translation>
    </message>
    <message>
        <source>New order</source>
        <translation>Nowe zamówienie</translation>
    </message>
    <message>
        <source>a tag has no end</source>
        <translation>znacznik nie ma końca</translation>
    </message>
    <message>
        <source>an attribute is broken</source>
        <translation>uszkodzony atrybut</translation>
    </message>
    <message>
        <source>a comment has no end</source>
        <translation>komentarz nie ma końca</translation>
    </message>
    <message>
        <source>a CDATA section has no end</source>
        <translation>sekcja CDATA nie ma końca</translation>
    </message>
    <message>
        <source>the file begins a second time</source>
        <translation>plik zaczyna się po raz drugi</translation>
    </message>
    <message>
        <source>%1 begins a second time</source>
        <translation>%1 zaczyna się po raz drugi</translation>
    </message>
    <message>
        <source>%1 stands twice; the last one was taken</source>
        <translation>%1 stoi dwa razy; wzięto ostatnie</translation>
    </message>
    <message>
        <source>&amp;%1; stands for nothing and became a blank</source>
        <translation>&amp;%1; nic nie znaczy, wstawiono odstęp</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>to jest folder</translation>
    </message>
    <message>
        <source>%1 a second time</source>
        <translation>%1 po raz drugi</translation>
    </message>
    <message>
        <source>another program is writing it</source>
        <translation>zapisuje go inny program</translation>
    </message>
    <message numerus="yes">
        <source>%n set(s)</source>
        <translation>
            <numerusform>%n zestaw</numerusform>
            <numerusform>%n zestawy</numerusform>
            <numerusform>%n zestawów</numerusform>
        </translation>
    </message>
    <message>
        <source>it is gone</source>
        <translation>pliku już nie ma</translation>
    </message>
    <message>
        <source>it was changed meanwhile</source>
        <translation>został tymczasem zmieniony</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>plik jest tylko do odczytu</translation>
    </message>
    <message>
        <source>it is open in %1</source>
        <translation>jest otwarty w: %1</translation>
    </message>
    <message>
        <source>it could not be put back as it was (%1); the file is among its earlier versions</source>
        <translation>nie udało się przywrócić poprzedniego stanu (%1); plik jest wśród wcześniejszych wersji</translation>
    </message>
</context>
<context>
    <name>databaseChecks</name>
    <message>
        <source>All materials has unique KTM</source>
        <translation>Wszystkie materiały mają niepowtarzalny KTM</translation>
    </message>
    <message>
        <source>Materials count</source>
        <translation>Liczba materiałów</translation>
    </message>
    <message>
        <source>Materials count in database</source>
        <translation>Liczba materiałów w bazie</translation>
    </message>
    <message>
        <source>Groups count in database</source>
        <translation>Liczba grup w bazie</translation>
    </message>
    <message>
        <source>Materials count with status</source>
        <translation>Liczba materiałów ze statusem</translation>
    </message>
</context>
<context>
    <name>databaseFindings</name>
    <message>
        <source>Duplicate</source>
        <translation>Duplikat</translation>
    </message>
    <message>
        <source>Empty field</source>
        <translation>Puste pole</translation>
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
        <source>Link</source>
        <translation>Odnośnik</translation>
    </message>
    <message>
        <source>Missing file</source>
        <translation>Brak pliku</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>the same KTM has: %1</source>
        <translation>ten sam KTM ma: %1</translation>
    </message>
    <message>
        <source>the same part number has: %1</source>
        <translation>ten sam numer katalogowy ma: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>puste</translation>
    </message>
    <message>
        <source>neither a manufacturer nor a supplier</source>
        <translation>brak producenta i dostawcy</translation>
    </message>
    <message>
        <source>a manufacturer without a name</source>
        <translation>producent bez nazwy</translation>
    </message>
    <message>
        <source>a supplier without a name</source>
        <translation>dostawca bez nazwy</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has not the form XXXXXX-XX.XX-XXXXXX</source>
        <translation>„%1” nie ma postaci XXXXXX-XX.XX-XXXXXX</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has not the form of a CPV code</source>
        <translation>„%1” nie ma postaci kodu CPV</translation>
    </message>
    <message>
        <source>an attached file without an address</source>
        <translation>załączony plik bez adresu</translation>
    </message>
    <message>
        <source>no proper address: %1</source>
        <translation>niepoprawny adres: %1</translation>
    </message>
    <message>
        <source>does not answer: %1</source>
        <translation>nie odpowiada: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>nie ma pliku %1</translation>
    </message>
    <message>
        <source>no manufacturer of the register: %1</source>
        <translation>producenta nie ma w rejestrze firm: %1</translation>
    </message>
    <message>
        <source>no supplier of the register: %1</source>
        <translation>dostawcy nie ma w rejestrze firm: %1</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Powód</translation>
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
        <source>%1 (it has %2)</source>
        <translation>%1 (jest w nim %2)</translation>
    </message>
    <message>
        <source>Not to be ordered</source>
        <translation>Nie do zamówienia</translation>
    </message>
    <message>
        <source>a status not valid for ordering, but BOM lists use it: %1</source>
        <translation>status nie pozwala zamówić, a materiał jest na listach BOM: %1</translation>
    </message>
</context>
<context>
    <name>databaseMerge</name>
    <message>
        <source>All materials in database</source>
        <translation>Wszystkie materiały są w bazie</translation>
    </message>
    <message>
        <source>Materials deleted</source>
        <translation>Usunięte materiały</translation>
    </message>
</context>
<context>
    <name>databaseReport</name>
    <message>
        <source>Groups</source>
        <translation>Grupy</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiały</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>Nie można zapisać %1</translation>
    </message>
</context>
<context>
    <name>databaseTree</name>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
</context>
<context>
    <name>deliveredStock</name>
    <message>
        <source>no database has this KTM</source>
        <translation>żadna baza nie ma tego KTM</translation>
    </message>
    <message>
        <source>the stock is counted in another unit</source>
        <translation>stan jest liczony w innej jednostce</translation>
    </message>
    <message>
        <source>the stock is no number</source>
        <translation>stan nie jest liczbą</translation>
    </message>
</context>
<context>
    <name>deliveries</name>
    <message>
        <source>The order has no line %1</source>
        <translation>Zamówienie nie ma pozycji %1</translation>
    </message>
    <message>
        <source>Line %1 was delivered already, or has no quantity</source>
        <translation>Pozycja %1 jest już dostarczona albo nie ma ilości</translation>
    </message>
    <message>
        <source>Line %1: nothing came of it</source>
        <translation>Pozycja %1: nic z niej nie przyszło</translation>
    </message>
    <message>
        <source>Line %1: %2 came, but only %3 were ordered</source>
        <translation>Pozycja %1: przyszło %2, ale zamówiono tylko %3</translation>
    </message>
    <message>
        <source>Line %1 is named twice</source>
        <translation>Pozycja %1 jest podana dwa razy</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no lines of the order</source>
        <translation>&quot;%1&quot; nie oznacza pozycji zamówienia</translation>
    </message>
</context>
<context>
    <name>deliveryDialog</name>
    <message>
        <source>What was delivered</source>
        <translation>Co dostarczono</translation>
    </message>
    <message>
        <source>Number of the delivery note</source>
        <translation>Numer dokumentu dostawy</translation>
    </message>
    <message>
        <source>Date of the delivery</source>
        <translation>Data dostawy</translation>
    </message>
    <message>
        <source>N&amp;umber of the delivery note</source>
        <translation>N&amp;umer dokumentu dostawy</translation>
    </message>
    <message>
        <source>D&amp;ate of the delivery</source>
        <translation>D&amp;ata dostawy</translation>
    </message>
    <message>
        <source>&amp;Note the delivery</source>
        <translation>&amp;Odnotuj dostawę</translation>
    </message>
    <message>
        <source>All &amp;whole</source>
        <translation>&amp;Wszystko w całości</translation>
    </message>
    <message>
        <source>All n&amp;othing</source>
        <translation>&amp;Nic nie przyszło</translation>
    </message>
    <message>
        <source>Lines that are to come</source>
        <translation>Pozycje, które mają przyjść</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>Zamówiono</translation>
    </message>
    <message>
        <source>Came</source>
        <translation>Przyszło</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) of it</source>
        <translation>
            <numerusform>przyszła %n pozycja</numerusform>
            <numerusform>przyszły %n pozycje</numerusform>
            <numerusform>przyszło %n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to come</source>
        <translation>
            <numerusform>%n oczekiwana</numerusform>
            <numerusform>%n oczekiwane</numerusform>
            <numerusform>%n oczekiwanych</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing came of any line</source>
        <translation>z żadnej pozycji nic nie przyszło</translation>
    </message>
    <message>
        <source>Line %1: of %2, &quot;%3&quot; cannot have come</source>
        <translation>Pozycja %1: z %2 nie mogło przyjść &quot;%3&quot;</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>This link is not opened. Only web and mail addresses are, and documents in the program&apos;s folders:</source>
        <translation>Ten odnośnik nie został otwarty. Otwierane są tylko adresy stron i poczty oraz dokumenty w folderach programu:</translation>
    </message>
</context>
<context>
    <name>docExport</name>
    <message>
        <source>The converter %1 is not there, which makes documents. Installing the program again brings it back.</source>
        <translation>Nie ma konwertera %1, który tworzy dokumenty. Ponowna instalacja programu go przywróci.</translation>
    </message>
    <message>
        <source>Documents are made by LibreOffice, which is not installed: install the package libreoffice-writer. A report as PDF or HTML needs nothing.</source>
        <translation>Dokumenty tworzy LibreOffice, którego nie zainstalowano: zainstaluj pakiet libreoffice-writer. Raport PDF lub HTML nie wymaga niczego.</translation>
    </message>
</context>
<context>
    <name>droppedFiles</name>
    <message>
        <source>it does not hold what its name says</source>
        <translation>zawartość nie odpowiada nazwie pliku</translation>
    </message>
    <message>
        <source>files of its kind are not known</source>
        <translation>nieznany rodzaj pliku</translation>
    </message>
    <message>
        <source>it is neither a listing of the warehouse nor a table of groups and their CPV codes</source>
        <translation>nie jest to ani zestawienie z magazynu, ani tabela grup z kodami CPV</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>to jest folder</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>nie można go odczytać</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>jest pusty</translation>
    </message>
    <message>
        <source>it is a file of this program, but no material database</source>
        <translation>to plik tego programu, ale nie baza materiałów</translation>
    </message>
    <message>
        <source>There is no file</source>
        <translation>Nie ma pliku</translation>
    </message>
    <message>
        <source>%1 is no material database, listing of the warehouse, CPV table or datasheet: %2</source>
        <translation>%1 nie jest bazą materiałów, zestawieniem z magazynu, tabelą CPV ani kartą katalogową: %2</translation>
    </message>
    <message>
        <source>Only datasheets can be dropped several at once</source>
        <translation>Kilka plików naraz można upuścić tylko wtedy, gdy wszystkie są kartami katalogowymi</translation>
    </message>
    <message>
        <source>Compare with %1 and take over changes</source>
        <translation>Porównaj z %1 i przejmij zmiany</translation>
    </message>
    <message>
        <source>Editing of the database is locked</source>
        <translation>Edycja bazy jest zablokowana</translation>
    </message>
    <message>
        <source>Take stock and prices from %1</source>
        <translation>Przejmij stany i ceny z %1</translation>
    </message>
    <message>
        <source>Take the groups&apos; CPV codes from %1</source>
        <translation>Przejmij kody CPV grup z %1</translation>
    </message>
    <message>
        <source>A datasheet is dropped on the material that it belongs to</source>
        <translation>Kartę katalogową upuszcza się na materiał, do którego należy</translation>
    </message>
    <message>
        <source>%1 has no manufacturer or supplier that the file could belong to</source>
        <translation>%1 nie ma producenta ani dostawcy, do którego plik mógłby należeć</translation>
    </message>
    <message>
        <source>Attach %1 to %2</source>
        <translation>Dołącz %1 do %2</translation>
    </message>
    <message numerus="yes">
        <source>Attach %n file(s) to %1</source>
        <translation>
            <numerusform>Dołącz %n plik do %1</numerusform>
            <numerusform>Dołącz %n pliki do %1</numerusform>
            <numerusform>Dołącz %n plików do %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>editWindow</name>
    <message>
        <source>changed, not saved</source>
        <translation>zmieniono, nie zapisano</translation>
    </message>
    <message>
        <source>the configuration forbids it: %1 is NIE</source>
        <translation>zabrania tego konfiguracja: %1 ma wartość NIE</translation>
    </message>
    <message>
        <source>editing is locked</source>
        <translation>edycja jest zablokowana</translation>
    </message>
    <message>
        <source>Editing is locked</source>
        <translation>Edycja jest zablokowana</translation>
    </message>
    <message>
        <source>Editing is allowed</source>
        <translation>Edycja jest dozwolona</translation>
    </message>
    <message>
        <source>The file %1 is open elsewhere, too: %2. Whoever saves last would replace what the other one saved.</source>
        <translation>Plik %1 jest otwarty także gdzie indziej: %2. Kto zapisze jako ostatni, zastąpi to, co zapisał drugi.</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Ponowiono: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n komórkę</numerusform>
            <numerusform>Skopiowano %n komórki</numerusform>
            <numerusform>Skopiowano %n komórek</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklejanie</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) pasted</source>
        <translation>
            <numerusform>Wklejono %n komórkę</numerusform>
            <numerusform>Wklejono %n komórki</numerusform>
            <numerusform>Wklejono %n komórek</numerusform>
        </translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>Tekst w dowolnej kolumnie</translation>
    </message>
    <message>
        <source>Found in line %1</source>
        <translation>Znaleziono w pozycji %1</translation>
    </message>
    <message>
        <source>No line holds %1</source>
        <translation>Żadna pozycja nie zawiera %1</translation>
    </message>
    <message>
        <source>Overwrite it</source>
        <translation>Nadpisz</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program since it was opened.</source>
        <translation>Plik %1 został zmieniony przez inny program od chwili otwarcia.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Nothing was changed</source>
        <translation>Niczego nie zmieniono</translation>
    </message>
    <message>
        <source>Fill down</source>
        <translation>Wypełnij w dół</translation>
    </message>
    <message>
        <source>Select the cell to copy and those below it that are to be filled</source>
        <translation>Zaznacz komórkę wzorcową i komórki pod nią, które mają zostać wypełnione</translation>
    </message>
    <message>
        <source>No line is selected</source>
        <translation>Nie zaznaczono żadnej pozycji</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) moved</source>
        <translation>
            <numerusform>Przesunięto %n pozycję</numerusform>
            <numerusform>Przesunięto %n pozycje</numerusform>
            <numerusform>Przesunięto %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Reload it, keep what is here as a version</source>
        <translation>Wczytaj go, a to, co jest tutaj, zachowaj jako wersję</translation>
    </message>
    <message>
        <source>Save it anew</source>
        <translation>Zapisz go na nowo</translation>
    </message>
    <message>
        <source>The file %1 is gone.</source>
        <translation>Pliku %1 już nie ma.</translation>
    </message>
    <message>
        <source>Read again; what was here is kept as a version</source>
        <translation>Wczytano ponownie; to, co było tutaj, zachowano jako wersję</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Wczytano ponownie</translation>
    </message>
    <message>
        <source>Keeping a version</source>
        <translation>Zachowywanie wersji</translation>
    </message>
    <message>
        <source>What is here could not be kept as a version of %1.</source>
        <translation>Nie udało się zachować tego, co jest tutaj, jako wersji pliku %1.</translation>
    </message>
    <message>
        <source>It was opened elsewhere, too: %1.</source>
        <translation>Otwarto go także gdzie indziej: %1.</translation>
    </message>
    <message>
        <source>It was closed elsewhere: %1.</source>
        <translation>Zamknięto go gdzie indziej: %1.</translation>
    </message>
    <message>
        <source>Saving will write the file anew</source>
        <translation>Zapisanie utworzy plik na nowo</translation>
    </message>
    <message>
        <source>Saving will replace what another program wrote</source>
        <translation>Zapisanie zastąpi to, co zapisał inny program</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Porównywanie</translation>
    </message>
    <message>
        <source>What comes of both cannot be read: %1</source>
        <translation>Wyniku scalenia nie można odczytać: %1</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scalanie</translation>
    </message>
    <message>
        <source>Both hold the same</source>
        <translation>Obie wersje są takie same</translation>
    </message>
    <message>
        <source>Merged; saving writes both changes</source>
        <translation>Scalono; zapisanie utrwali zmiany obu stron</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Zapisz gdzie indziej</translation>
    </message>
    <message>
        <source>Keep in recovery</source>
        <translation>Zachowaj do odzyskania</translation>
    </message>
    <message>
        <source>Not saved, but kept for the next start</source>
        <translation>Niezapisane, ale zachowane do następnego uruchomienia</translation>
    </message>
    <message>
        <source>No copy of the unsaved changes can be kept: %1</source>
        <translation>Nie można zachować kopii niezapisanych zmian: %1</translation>
    </message>
    <message>
        <source>What was left unsaved cannot be restored now; it is kept</source>
        <translation>Niezapisanych zmian nie można teraz przywrócić; są zachowane</translation>
    </message>
    <message numerus="yes">
        <source>Restored as it was %1, not saved: %n record(s)</source>
        <translation>
            <numerusform>Przywrócono stan z %1, niezapisany: %n rekord</numerusform>
            <numerusform>Przywrócono stan z %1, niezapisany: %n rekordy</numerusform>
            <numerusform>Przywrócono stan z %1, niezapisany: %n rekordów</numerusform>
        </translation>
    </message>
    <message>
        <source>The file has everything that was changed until %1</source>
        <translation>Plik zawiera wszystko, co zmieniono do %1</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program meanwhile. These records differ there and were not restored: %2</source>
        <translation>Plik %1 został tymczasem zmieniony przez inny program. Te rekordy różnią się w nim i nie zostały przywrócone: %2</translation>
    </message>
    <message>
        <source>It is of another kind.</source>
        <translation>To plik innego rodzaju.</translation>
    </message>
    <message>
        <source>Nothing differs from %1</source>
        <translation>Brak różnic: %1</translation>
    </message>
    <message>
        <source>Restored: %1</source>
        <translation>Przywrócono: %1</translation>
    </message>
    <message>
        <source>Lose it</source>
        <translation>Utrać to</translation>
    </message>
    <message>
        <source>The shared store holds the same</source>
        <translation>We wspólnej bazie jest to samo</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) fetched</source>
        <translation>
            <numerusform>Pobrano %n zmianę</numerusform>
            <numerusform>Pobrano %n zmiany</numerusform>
            <numerusform>Pobrano %n zmian</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sent</source>
        <translation>
            <numerusform>wysłano %n</numerusform>
            <numerusform>wysłano %n</numerusform>
            <numerusform>wysłano %n</numerusform>
        </translation>
    </message>
    <message>
        <source>In the shared store you may read this file, but not change it.</source>
        <translation>We wspólnej bazie wolno Ci ten plik czytać, ale nie zmieniać.</translation>
    </message>
    <message>
        <source>Another program changed the file: take that in first</source>
        <translation>Inny program zmienił plik: najpierw przejmij tę zmianę</translation>
    </message>
    <message>
        <source>This file is not shared: put it into the shared store first</source>
        <translation>Ten plik nie jest wspólny: najpierw umieść go we wspólnej bazie</translation>
    </message>
    <message>
        <source>Nothing was fetched and nothing sent</source>
        <translation>Niczego nie pobrano ani nie wysłano</translation>
    </message>
    <message>
        <source>The file and the shared store could not be brought together: </source>
        <translation>Nie udało się uzgodnić pliku ze wspólną bazą: </translation>
    </message>
    <message>
        <source>Synchronise</source>
        <translation>Synchronizuj</translation>
    </message>
    <message>
        <source>This file is shared already: Synchronise brings both together</source>
        <translation>Ten plik jest już wspólny: uzgadnia go Synchronizuj</translation>
    </message>
    <message>
        <source>Fetch them: Synchronise</source>
        <translation>Pobierz je: Synchronizuj</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) by others</source>
        <translation>
            <numerusform>%n zmiana innych osób</numerusform>
            <numerusform>%n zmiany innych osób</numerusform>
            <numerusform>%n zmian innych osób</numerusform>
        </translation>
    </message>
    <message>
        <source>Xml File</source>
        <translation>Plik XML</translation>
    </message>
    <message>
        <source>The file was not written</source>
        <translation>Plik nie został zapisany</translation>
    </message>
</context>
<context>
    <name>emailTempWindow</name>
    <message>
        <source>Message template</source>
        <translation>Szablon wiadomości</translation>
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
    <name>exportChanges</name>
    <message>
        <source>Table added</source>
        <translation>Dodana tabela</translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) added</source>
        <translation>
            <numerusform>%n tabela dodana</numerusform>
            <numerusform>%n tabele dodane</numerusform>
            <numerusform>%n tabel dodanych</numerusform>
        </translation>
    </message>
    <message>
        <source>Table removed</source>
        <translation>Usunięta tabela</translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) removed</source>
        <translation>
            <numerusform>%n tabela usunięta</numerusform>
            <numerusform>%n tabele usunięte</numerusform>
            <numerusform>%n tabel usuniętych</numerusform>
        </translation>
    </message>
    <message>
        <source>Table renamed</source>
        <translation>Tabela o nowej nazwie</translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) renamed</source>
        <translation>
            <numerusform>%n tabela o nowej nazwie</numerusform>
            <numerusform>%n tabele o nowych nazwach</numerusform>
            <numerusform>%n tabel o nowych nazwach</numerusform>
        </translation>
    </message>
    <message>
        <source>Material added</source>
        <translation>Dodany materiał</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) added</source>
        <translation>
            <numerusform>%n materiał dodany</numerusform>
            <numerusform>%n materiały dodane</numerusform>
            <numerusform>%n materiałów dodanych</numerusform>
        </translation>
    </message>
    <message>
        <source>Material removed</source>
        <translation>Usunięty materiał</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) removed</source>
        <translation>
            <numerusform>%n materiał usunięty</numerusform>
            <numerusform>%n materiały usunięte</numerusform>
            <numerusform>%n materiałów usuniętych</numerusform>
        </translation>
    </message>
    <message>
        <source>Material changed</source>
        <translation>Zmieniony materiał</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) changed</source>
        <translation>
            <numerusform>%n materiał zmieniony</numerusform>
            <numerusform>%n materiały zmienione</numerusform>
            <numerusform>%n materiałów zmienionych</numerusform>
        </translation>
    </message>
    <message>
        <source>Material moved</source>
        <translation>Przeniesiony materiał</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) moved</source>
        <translation>
            <numerusform>%n materiał przeniesiony</numerusform>
            <numerusform>%n materiały przeniesione</numerusform>
            <numerusform>%n materiałów przeniesionych</numerusform>
        </translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmiana</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabela</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>No earlier export to compare with</source>
        <translation>Brak wcześniejszego eksportu do porównania</translation>
    </message>
    <message>
        <source>Nothing changed since the export of %1</source>
        <translation>Bez zmian od eksportu z %1</translation>
    </message>
    <message>
        <source>Since the export of %1: %2</source>
        <translation>Od eksportu z %1: %2</translation>
    </message>
</context>
<context>
    <name>filterComboBox</name>
    <message>
        <source>Choices</source>
        <translation>Pozycje do wyboru</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nic)</translation>
    </message>
    <message>
        <source>%1 (as typed)</source>
        <translation>%1 (jak wpisano)</translation>
    </message>
</context>
<context>
    <name>findingsWindow</name>
    <message>
        <source>Words to search for</source>
        <translation>Szukane słowa</translation>
    </message>
    <message>
        <source>Words of the KTM, material, group, field or reason</source>
        <translation>Słowa z KTM, materiału, grupy, pola lub powodu</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>Rodzaj uwagi</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Kontrole</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Sprawdzanie</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Wszystkie rodzaje</translation>
    </message>
    <message>
        <source>Nothing was checked</source>
        <translation>Nic nie sprawdzono</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s)</source>
        <translation>
            <numerusform>%n uwaga</numerusform>
            <numerusform>%n uwagi</numerusform>
            <numerusform>%n uwag</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n finding(s) shown</source>
        <translation>
            <numerusform>Pokazano %1 z %n uwagi</numerusform>
            <numerusform>Pokazano %1 z %n uwag</numerusform>
            <numerusform>Pokazano %1 z %n uwag</numerusform>
        </translation>
    </message>
    <message>
        <source>the register of firms is empty: they were not checked</source>
        <translation>rejestr firm jest pusty: firm nie sprawdzono</translation>
    </message>
    <message>
        <source>Check the database with F5</source>
        <translation>Sprawdź bazę klawiszem F5</translation>
    </message>
    <message>
        <source>Nothing is wrong that is checked here</source>
        <translation>Kontrole nie wykazały żadnych błędów</translation>
    </message>
    <message>
        <source>No finding matches</source>
        <translation>Żadna uwaga nie pasuje</translation>
    </message>
    <message>
        <source>there are no findings</source>
        <translation>nie ma uwag</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n wiersz</numerusform>
            <numerusform>Skopiowano %n wiersze</numerusform>
            <numerusform>Skopiowano %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>Xlsx File</source>
        <translation>Plik XLSX</translation>
    </message>
    <message>
        <source>CSV File</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>Zapisano %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message numerus="yes">
        <source>%n BOM list(s) cannot be read</source>
        <translation>
            <numerusform>nie można odczytać %n listy BOM</numerusform>
            <numerusform>nie można odczytać %n list BOM</numerusform>
            <numerusform>nie można odczytać %n list BOM</numerusform>
        </translation>
    </message>
    <message>
        <source>no finding of a material with a KTM is selected</source>
        <translation>nie zaznaczono wyniku dotyczącego materiału z KTM</translation>
    </message>
</context>
<context>
    <name>firmChecks</name>
    <message>
        <source>The tax number %1 is not correct</source>
        <translation>Numer NIP %1 jest niepoprawny</translation>
    </message>
</context>
<context>
    <name>firmDetails</name>
    <message>
        <source>Own reference (KTM)</source>
        <translation>Własne oznaczenie (KTM)</translation>
    </message>
    <message>
        <source>Fixed text</source>
        <translation>Stały tekst</translation>
    </message>
    <message>
        <source>Empty column</source>
        <translation>Pusta kolumna</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Kolumna</translation>
    </message>
    <message>
        <source>%1 is no e-mail address</source>
        <translation>%1 nie jest adresem e-mail</translation>
    </message>
    <message>
        <source>%1 is no discount from 0 to %2 percent</source>
        <translation>%1 nie jest rabatem od 0 do %2 procent</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Nagłówek</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabat</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Caption line</source>
        <translation>Wiersz nagłówków</translation>
    </message>
</context>
<context>
    <name>firmDetailsDialog</name>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Średnik</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Przecinek</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Discount, percent</source>
        <translation>Rabat w procentach</translation>
    </message>
    <message>
        <source>Details of %1</source>
        <translation>Dane firmy %1</translation>
    </message>
    <message>
        <source>not told</source>
        <translation>nie podano</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>Ad&amp;res</translation>
    </message>
    <message>
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message>
        <source>&amp;Language of letters</source>
        <translation>&amp;Język korespondencji</translation>
    </message>
    <message>
        <source>&amp;Discount, percent</source>
        <translation>Ra&amp;bat w procentach</translation>
    </message>
    <message>
        <source>Basket</source>
        <translation>Koszyk</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Caption l&amp;ine first</source>
        <translation>&amp;Najpierw wiersz nagłówków</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolumny</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Zawartość</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Nagłówek</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>&amp;Ready columns</source>
        <translation>Gotowe &amp;kolumny</translation>
    </message>
    <message>
        <source>Part number, quantity, reference: %1</source>
        <translation>Numer części, ilość, oznaczenie: %1</translation>
    </message>
    <message>
        <source>Add colu&amp;mn</source>
        <translation>Dodaj kolu&amp;mnę</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;W górę</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>W &amp;dół</translation>
    </message>
    <message>
        <source>Two lines as they are written</source>
        <translation>Dwa wiersze tak, jak będą zapisane</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>&amp;Separator</translation>
    </message>
    <message>
        <source>Co&amp;ntent</source>
        <translation>&amp;Zawartość</translation>
    </message>
    <message>
        <source>Ca&amp;ption</source>
        <translation>Na&amp;główek</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>only of a column with a fixed text</source>
        <translation>tylko dla kolumny ze stałym tekstem</translation>
    </message>
    <message>
        <source>Save the changed details of %1?</source>
        <translation>Zapisać zmienione dane firmy %1?</translation>
    </message>
    <message>
        <source>Usual columns:
part number, quantity,
own reference</source>
        <translation>Zwykłe kolumny:
numer części, ilość,
własne oznaczenie</translation>
    </message>
</context>
<context>
    <name>firmMerge</name>
    <message>
        <source>Where</source>
        <translation>Gdzie</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>goes</source>
        <translation>znika</translation>
    </message>
</context>
<context>
    <name>firmWindow</name>
    <message>
        <source>A click with Ctrl opens the page</source>
        <translation>Kliknięcie z klawiszem Ctrl otwiera stronę</translation>
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
        <source>The list is empty. &lt;a href=&quot;add&quot;&gt;Add a firm&lt;/a&gt;.</source>
        <translation>Lista jest pusta. &lt;a href=&quot;add&quot;&gt;Dodaj firmę&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>the configuration names no file</source>
        <translation>konfiguracja nie podaje pliku</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>nie można odczytać pliku</translation>
    </message>
    <message>
        <source>no firm selected</source>
        <translation>nie zaznaczono firmy</translation>
    </message>
    <message>
        <source>no firm with a home page selected</source>
        <translation>nie zaznaczono firmy ze stroną internetową</translation>
    </message>
    <message numerus="yes">
        <source>%n manufacturer(s)</source>
        <translation>
            <numerusform>%n producent</numerusform>
            <numerusform>%n producentów</numerusform>
            <numerusform>%n producentów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n dostawca</numerusform>
            <numerusform>%n dostawców</numerusform>
            <numerusform>%n dostawców</numerusform>
        </translation>
    </message>
    <message>
        <source>Materials use the old name. Saving can write the new one into their databases, too.</source>
        <translation>Materiały używają starej nazwy. Przy zapisie nowa może trafić także do ich baz.</translation>
    </message>
    <message numerus="yes">
        <source>Rename in %n place(s)</source>
        <translation>
            <numerusform>Zmień w %n miejscu</numerusform>
            <numerusform>Zmień w %n miejscach</numerusform>
            <numerusform>Zmień w %n miejscach</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename in this list only</source>
        <translation>Zmień tylko na tej liście</translation>
    </message>
    <message>
        <source>Materials use what was to be deleted; nothing is deleted:</source>
        <translation>Materiały używają firm do usunięcia; niczego nie usunięto:</translation>
    </message>
    <message numerus="yes">
        <source>%n firm(s) deleted</source>
        <translation>
            <numerusform>Usunięto %n firmę</numerusform>
            <numerusform>Usunięto %n firmy</numerusform>
            <numerusform>Usunięto %n firm</numerusform>
        </translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>Otwarto %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć %1</translation>
    </message>
    <message>
        <source>Save the changed list of firms?</source>
        <translation>Zapisać zmienioną listę firm?</translation>
    </message>
    <message>
        <source>The database %1 is gone. Firms were renamed in it.</source>
        <translation>Bazy %1 już nie ma. Zmieniono w niej nazwy firm.</translation>
    </message>
    <message>
        <source>The database %1 was changed by another program. Firms were renamed in it.</source>
        <translation>Bazę %1 zmienił inny program. Zmieniono w niej nazwy firm.</translation>
    </message>
    <message>
        <source>Save it anew</source>
        <translation>Zapisz go na nowo</translation>
    </message>
    <message>
        <source>Read it again, rename there and save it</source>
        <translation>Wczytaj ją ponownie, zmień nazwy i zapisz</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Zmiana nazw</translation>
    </message>
    <message>
        <source>Saved, but firms are not renamed in every database</source>
        <translation>Zapisano, ale nazw firm nie zmieniono we wszystkich bazach</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiały</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Zamówienia</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ostatnio użyta</translation>
    </message>
    <message>
        <source>select the firms that are one</source>
        <translation>należy zaznaczyć firmy, które są jedną</translation>
    </message>
    <message>
        <source>Reading orders</source>
        <translation>Odczyt zamówień</translation>
    </message>
    <message>
        <source>the list has a firm %1 already</source>
        <translation>na liście jest już firma %1</translation>
    </message>
    <message>
        <source>Nothing is pasted: the list would have two firms of a name:</source>
        <translation>Nic nie wklejono: na liście byłyby dwie firmy o tej samej nazwie:</translation>
    </message>
    <message>
        <source>Nothing is pasted</source>
        <translation>Nic nie wklejono</translation>
    </message>
    <message>
        <source>The name was not changed</source>
        <translation>Nazwa nie została zmieniona</translation>
    </message>
    <message>
        <source>The list has a new firm %1 already. Give it its name first.</source>
        <translation>Na liście jest już nowa firma %1. Najpierw trzeba nadać jej nazwę.</translation>
    </message>
    <message>
        <source>The firm register is locked</source>
        <translation>Rejestr firm jest zablokowany</translation>
    </message>
    <message>
        <source>The firm register: %1</source>
        <translation>Rejestr firm: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n firm(s) merged into %1</source>
        <translation>
            <numerusform>%n firma włączona do %1</numerusform>
            <numerusform>%n firmy włączone do %1</numerusform>
            <numerusform>%n firm włączonych do %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The details of the firms in %1 cannot be read</source>
        <translation>Nie można odczytać danych firm z pliku %1</translation>
    </message>
    <message>
        <source>Another program has changed the details of %1 meanwhile.</source>
        <translation>Inny program zmienił w tym czasie dane firmy %1.</translation>
    </message>
    <message>
        <source>Write these over them</source>
        <translation>Zapisz te w ich miejsce</translation>
    </message>
    <message>
        <source>The details of %1 are saved</source>
        <translation>Zapisano dane firmy %1</translation>
    </message>
    <message>
        <source>The firm has no name yet. Give it one first.</source>
        <translation>Firma nie ma jeszcze nazwy. Najpierw ją nadaj.</translation>
    </message>
</context>
<context>
    <name>historyDialog</name>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Kiedy</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>&amp;Back to this state</source>
        <translation>&amp;Wróć do tego stanu</translation>
    </message>
    <message>
        <source>The material becomes what it was after this change, as one step; synchronising sends it</source>
        <translation>Materiał staje się taki, jaki był po tej zmianie, w jednym kroku; wyśle to synchronizacja</translation>
    </message>
    <message>
        <source>Editing is locked</source>
        <translation>Edycja zablokowana</translation>
    </message>
</context>
<context>
    <name>importOfferDialog</name>
    <message>
        <source>as the file says, else PLN</source>
        <translation>jak w pliku, inaczej PLN</translation>
    </message>
    <message>
        <source>PLN for one</source>
        <translation>PLN za jednostkę</translation>
    </message>
    <message>
        <source>as the file says</source>
        <translation>jak w pliku</translation>
    </message>
    <message>
        <source>Offer from %1</source>
        <translation>Oferta z %1</translation>
    </message>
    <message>
        <source>Prices that were understood</source>
        <translation>Odczytane ceny</translation>
    </message>
    <message>
        <source>What is wrong, and what was left out</source>
        <translation>Co jest źle i co pominięto</translation>
    </message>
    <message>
        <source>Take the offer &amp;in</source>
        <translation>&amp;Przyjmij ofertę</translation>
    </message>
    <message>
        <source>as the request says</source>
        <translation>jak w zapytaniu</translation>
    </message>
    <message>
        <source>as the file says, else net</source>
        <translation>jak w pliku, inaczej netto</translation>
    </message>
    <message>
        <source>net</source>
        <translation>netto</translation>
    </message>
    <message>
        <source>gross</source>
        <translation>brutto</translation>
    </message>
    <message>
        <source>&amp;Firm</source>
        <translation>&amp;Firma</translation>
    </message>
    <message>
        <source>&amp;Received</source>
        <translation>&amp;Otrzymano</translation>
    </message>
    <message>
        <source>&amp;Currency</source>
        <translation>&amp;Waluta</translation>
    </message>
    <message>
        <source>Ra&amp;te</source>
        <translation>&amp;Kurs</translation>
    </message>
    <message>
        <source>Date of t&amp;he rate</source>
        <translation>&amp;Data kursu</translation>
    </message>
    <message>
        <source>&amp;Prices</source>
        <translation>&amp;Ceny</translation>
    </message>
    <message>
        <source>&amp;VAT [%]</source>
        <translation>&amp;VAT [%]</translation>
    </message>
    <message>
        <source>&amp;Lead time [days]</source>
        <translation>Cza&amp;s dostawy [dni]</translation>
    </message>
    <message>
        <source>Valid &amp;until</source>
        <translation>Ważn&amp;a do</translation>
    </message>
    <message>
        <source>Re&amp;marks</source>
        <translation>&amp;Uwagi</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Kolumna %1</translation>
    </message>
    <message>
        <source>What the columns hold</source>
        <translation>Co zawierają kolumny</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation>Odrzucone: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) offered</source>
        <translation>
            <numerusform>oferowany %n materiał</numerusform>
            <numerusform>oferowane %n materiały</numerusform>
            <numerusform>oferowanych %n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without a price</source>
        <translation>
            <numerusform>%n bez ceny</numerusform>
            <numerusform>%n bez ceny</numerusform>
            <numerusform>%n bez ceny</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not named</source>
        <translation>
            <numerusform>%n niewymieniony</numerusform>
            <numerusform>%n niewymienione</numerusform>
            <numerusform>%n niewymienionych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) keep the offer out</source>
        <translation>
            <numerusform>%n rzecz nie pozwala przyjąć oferty</numerusform>
            <numerusform>%n rzeczy nie pozwalają przyjąć oferty</numerusform>
            <numerusform>%n rzeczy nie pozwala przyjąć oferty</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>keptSearchesDialog</name>
    <message>
        <source>Kept searches</source>
        <translation>Zachowane wyszukiwania</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>A search needs a name</source>
        <translation>Wyszukiwanie musi mieć nazwę</translation>
    </message>
    <message>
        <source>There is another search %1</source>
        <translation>Jest już inne wyszukiwanie %1</translation>
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
    <message>
        <source>Supplier</source>
        <translation>Dostawca</translation>
    </message>
    <message>
        <source>GRAY</source>
        <translation>SZARY</translation>
    </message>
    <message>
        <source>BLUE</source>
        <translation>NIEBIESKI</translation>
    </message>
    <message>
        <source>GREEN</source>
        <translation>ZIELONY</translation>
    </message>
    <message>
        <source>VIOLET</source>
        <translation>FIOLETOWY</translation>
    </message>
    <message>
        <source>LOW</source>
        <translation>NISKIE</translation>
    </message>
    <message>
        <source>HIGH</source>
        <translation>WYSOKIE</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Zarezerwowano</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>W drodze</translation>
    </message>
    <message>
        <source>Last ordered</source>
        <translation>Ostatnio zamówiono</translation>
    </message>
</context>
<context>
    <name>lineSums</name>
    <message numerus="yes">
        <source>%n line(s) without a readable quantity are left out</source>
        <translation>
            <numerusform>pominięto %n pozycję bez czytelnej ilości</numerusform>
            <numerusform>pominięto %n pozycje bez czytelnej ilości</numerusform>
            <numerusform>pominięto %n pozycji bez czytelnej ilości</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a price are left out</source>
        <translation>
            <numerusform>pominięto %n pozycję bez ceny</numerusform>
            <numerusform>pominięto %n pozycje bez ceny</numerusform>
            <numerusform>pominięto %n pozycji bez ceny</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without an average price are left out</source>
        <translation>
            <numerusform>pominięto %n pozycję bez ceny średniej</numerusform>
            <numerusform>pominięto %n pozycje bez ceny średniej</numerusform>
            <numerusform>pominięto %n pozycji bez ceny średniej</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) of unknown materials are left out</source>
        <translation>
            <numerusform>pominięto %n pozycję nieznanego materiału</numerusform>
            <numerusform>pominięto %n pozycje nieznanych materiałów</numerusform>
            <numerusform>pominięto %n pozycji nieznanych materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) whose price is no number are left out</source>
        <translation>
            <numerusform>pominięto %n pozycję z ceną, która nie jest liczbą</numerusform>
            <numerusform>pominięto %n pozycje z cenami, które nie są liczbami</numerusform>
            <numerusform>pominięto %n pozycji z cenami, które nie są liczbami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>linesDialog</name>
    <message>
        <source>Selected lines</source>
        <translation>Zaznaczone pozycje</translation>
    </message>
    <message>
        <source>Copy ...</source>
        <translation>Kopiuj ...</translation>
    </message>
    <message>
        <source>Clear ...</source>
        <translation>Wyczyść ...</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolumny</translation>
    </message>
    <message>
        <source>All lines</source>
        <translation>Wszystkie pozycje</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>To the clipboard</source>
        <translation>Do schowka</translation>
    </message>
    <message>
        <source>To another order ...</source>
        <translation>Do innego zamówienia ...</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>no column is chosen</source>
        <translation>nie wybrano żadnej kolumny</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>Kopiuj do</translation>
    </message>
</context>
<context>
    <name>linkExamination</name>
    <message>
        <source>answers</source>
        <translation>odpowiada</translation>
    </message>
    <message>
        <source>moved for good</source>
        <translation>przeniesiony na stałe</translation>
    </message>
    <message>
        <source>moved for now</source>
        <translation>przeniesiony tymczasowo</translation>
    </message>
    <message>
        <source>is gone</source>
        <translation>już nie istnieje</translation>
    </message>
    <message>
        <source>is refused</source>
        <translation>odmowa dostępu</translation>
    </message>
    <message>
        <source>the server fails</source>
        <translation>błąd serwera</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>brak odpowiedzi w wyznaczonym czasie</translation>
    </message>
    <message>
        <source>cannot be reached</source>
        <translation>nieosiągalny</translation>
    </message>
    <message>
        <source>the certificate is not trusted</source>
        <translation>certyfikat nie jest zaufany</translation>
    </message>
    <message>
        <source>is redirected in a circle</source>
        <translation>przekierowania w kółko</translation>
    </message>
    <message>
        <source>no web address</source>
        <translation>to nie adres WWW</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>za duży</translation>
    </message>
    <message>
        <source>is no PDF or picture</source>
        <translation>to nie PDF ani obraz</translation>
    </message>
    <message>
        <source>cannot be saved</source>
        <translation>nie można zapisać</translation>
    </message>
</context>
<context>
    <name>linkReasons</name>
    <message>
        <source>it leads to no web address</source>
        <translation>nie prowadzi do adresu WWW</translation>
    </message>
    <message>
        <source>nobody knows the host</source>
        <translation>nieznany serwer</translation>
    </message>
    <message>
        <source>no web server is there</source>
        <translation>nie ma tam serwera WWW</translation>
    </message>
    <message>
        <source>the server cut the connection</source>
        <translation>serwer zerwał połączenie</translation>
    </message>
</context>
<context>
    <name>linkRows</name>
    <message>
        <source>not examined yet</source>
        <translation>jeszcze niezbadany</translation>
    </message>
    <message>
        <source>perhaps to something else</source>
        <translation>być może do czegoś innego</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odnośnik</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Examined</source>
        <translation>Zbadano</translation>
    </message>
    <message>
        <source>New address</source>
        <translation>Nowy adres</translation>
    </message>
    <message>
        <source>Local copy</source>
        <translation>Kopia lokalna</translation>
    </message>
</context>
<context>
    <name>linksWindow</name>
    <message>
        <source>A part of the material, link or state</source>
        <translation>Część materiału, odnośnika lub stanu</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Odnośniki</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Links of materials</source>
        <translation>Odnośniki materiałów</translation>
    </message>
    <message>
        <source>%1 of %2 links shown</source>
        <translation>Widać %1 z %2 odnośników</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n odnośnik</numerusform>
            <numerusform>%n odnośniki</numerusform>
            <numerusform>%n odnośników</numerusform>
        </translation>
    </message>
    <message>
        <source>: %1 answer, %2 moved, of these %3 marked; %4 do not answer</source>
        <translation>; odpowiada: %1, przeniesionych: %2, z tego zaznaczonych: %3; nie odpowiada: %4</translation>
    </message>
    <message>
        <source>links are being examined</source>
        <translation>trwa badanie odnośników</translation>
    </message>
    <message>
        <source>no link is selected</source>
        <translation>nie wybrano odnośnika</translation>
    </message>
    <message>
        <source>the database has no links</source>
        <translation>baza nie ma odnośników</translation>
    </message>
    <message>
        <source>no links are being examined</source>
        <translation>nie trwa badanie odnośników</translation>
    </message>
    <message>
        <source>editing of the database is locked</source>
        <translation>edycja bazy jest zablokowana</translation>
    </message>
    <message>
        <source>no new address is marked</source>
        <translation>nie zaznaczono nowego adresu</translation>
    </message>
    <message>
        <source>no link has a new address</source>
        <translation>żaden odnośnik nie ma nowego adresu</translation>
    </message>
    <message>
        <source>this link has no copy</source>
        <translation>ten odnośnik nie ma kopii</translation>
    </message>
    <message>
        <source>Fetching</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>Examining</source>
        <translation>Badanie</translation>
    </message>
    <message numerus="yes">
        <source>All links were examined in the last %n day(s)</source>
        <translation>
            <numerusform>Wszystkie odnośniki zbadano w ciągu ostatniego %n dnia</numerusform>
            <numerusform>Wszystkie odnośniki zbadano w ciągu ostatnich %n dni</numerusform>
            <numerusform>Wszystkie odnośniki zbadano w ciągu ostatnich %n dni</numerusform>
        </translation>
    </message>
    <message>
        <source>Examine the link of this row, or all?</source>
        <translation>Zbadać odnośnik z tego wiersza czy wszystkie?</translation>
    </message>
    <message>
        <source>This one</source>
        <translation>Tylko ten</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Fetch the document of this row, or those of all datasheets that answer and have no copy (%1)?</source>
        <translation>Pobrać dokument z tego wiersza czy wszystkie dostępne karty katalogowe, które nie mają kopii (%1)?</translation>
    </message>
    <message>
        <source>There is nothing to fetch</source>
        <translation>Nie ma czego pobrać</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) fetched</source>
        <translation>
            <numerusform>Pobrano %n dokument</numerusform>
            <numerusform>Pobrano %n dokumenty</numerusform>
            <numerusform>Pobrano %n dokumentów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) examined</source>
        <translation>
            <numerusform>Zbadano %n odnośnik</numerusform>
            <numerusform>Zbadano %n odnośniki</numerusform>
            <numerusform>Zbadano %n odnośników</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not</source>
        <translation>
            <numerusform>nie pobrano %n</numerusform>
            <numerusform>nie pobrano %n</numerusform>
            <numerusform>nie pobrano %n</numerusform>
        </translation>
    </message>
    <message>
        <source>then stopped</source>
        <translation>potem zatrzymano</translation>
    </message>
    <message>
        <source>The results cannot be kept in %1</source>
        <translation>Nie można zachować wyników w %1</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) changed in the database</source>
        <translation>
            <numerusform>Zmieniono w bazie %n odnośnik</numerusform>
            <numerusform>Zmieniono w bazie %n odnośniki</numerusform>
            <numerusform>Zmieniono w bazie %n odnośników</numerusform>
        </translation>
    </message>
    <message>
        <source>The material is not there any more</source>
        <translation>Materiału już nie ma</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n wiersz</numerusform>
            <numerusform>Skopiowano %n wiersze</numerusform>
            <numerusform>Skopiowano %n wierszy</numerusform>
        </translation>
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
    <message>
        <source>No backup could be written </source>
        <translation>Nie można zapisać kopii zapasowej </translation>
    </message>
    <message>
        <source>File corrupted</source>
        <translation>Plik uszkodzony </translation>
    </message>
    <message>
        <source>Temporary folder error</source>
        <translation>Błąd folderu tymczasowego </translation>
    </message>
    <message>
        <source>The file %1 cannot be written</source>
        <translation>Nie można zapisać pliku %1</translation>
    </message>
    <message>
        <source>An update cannot replace </source>
        <translation>Aktualizacja nie może zastąpić </translation>
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
    <name>mail</name>
    <message>
        <source>Database</source>
        <translation>Baza danych</translation>
    </message>
    <message>
        <source>Boms</source>
        <translation>Listy materiałów</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>nie można zapisać</translation>
    </message>
    <message>
        <source>DD - Order</source>
        <translation>DD - Zamówienie</translation>
    </message>
    <message>
        <source>There are no files to send.</source>
        <translation>Nie ma plików do wysłania.</translation>
    </message>
</context>
<context>
    <name>materialChecks</name>
    <message>
        <source>KTM empty</source>
        <translation>Brak KTM</translation>
    </message>
    <message>
        <source>CPV empty</source>
        <translation>Brak CPV</translation>
    </message>
    <message>
        <source>Name empty</source>
        <translation>Brak nazwy</translation>
    </message>
    <message>
        <source>Sets manufacturer or supplier first</source>
        <translation>Najpierw podaj producenta lub dostawcę</translation>
    </message>
    <message>
        <source>Ktm syntax error</source>
        <translation>Błąd składni KTM</translation>
    </message>
    <message>
        <source>CPV syntax error</source>
        <translation>Błąd składni CPV</translation>
    </message>
</context>
<context>
    <name>materialFiles</name>
    <message>
        <source>Test report (TR)</source>
        <translation>Raport z badań (TR)</translation>
    </message>
    <message>
        <source>Material declaration (MD)</source>
        <translation>Deklaracja materiałowa (MD)</translation>
    </message>
    <message>
        <source>Supplier&apos;s declaration (SD)</source>
        <translation>Deklaracja dostawcy (SD)</translation>
    </message>
    <message>
        <source>REACH declaration</source>
        <translation>Deklaracja REACH</translation>
    </message>
    <message>
        <source>Datasheet</source>
        <translation>Karta katalogowa</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>PDF file</source>
        <translation>Plik PDF</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Strona WWW</translation>
    </message>
    <message>
        <source>XML file</source>
        <translation>Plik XML</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Arkusz kalkulacyjny</translation>
    </message>
    <message>
        <source>CSV file</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>Send file</source>
        <translation>Wysyłanie pliku</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>zakończono</translation>
    </message>
    <message>
        <source>error</source>
        <translation>błąd</translation>
    </message>
    <message>
        <source>Sending error</source>
        <translation>Błąd wysyłania</translation>
    </message>
</context>
<context>
    <name>materialPage</name>
    <message>
        <source>Open order</source>
        <translation>Otwarte zamówienie</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, pozycja %2</translation>
    </message>
    <message>
        <source>In BOM lists</source>
        <translation>Na listach BOM</translation>
    </message>
    <message>
        <source>In orders</source>
        <translation>W zamówieniach</translation>
    </message>
    <message>
        <source>In no BOM list and no order</source>
        <translation>Na żadnej liście BOM i w żadnym zamówieniu</translation>
    </message>
    <message>
        <source>BOM lists and orders are still being read</source>
        <translation>Listy BOM i zamówienia są jeszcze wczytywane</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Nie wczytano: %1</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiały</translation>
    </message>
    <message>
        <source>Select a material</source>
        <translation>Zaznacz materiał</translation>
    </message>
    <message>
        <source>Reserved for boards</source>
        <translation>Zarezerwowano dla płytek</translation>
    </message>
    <message>
        <source>Left in stock</source>
        <translation>Zostaje w magazynie</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Kto co zmienił i kiedy</translation>
    </message>
    <message>
        <source>%1 edits this material now</source>
        <translation>Ten materiał edytuje teraz %1</translation>
    </message>
</context>
<context>
    <name>materialReplacement</name>
    <message>
        <source>no material to replace is given</source>
        <translation>nie podano zastępowanego materiału</translation>
    </message>
    <message>
        <source>no new material is given</source>
        <translation>nie podano nowego materiału</translation>
    </message>
    <message>
        <source>both materials are the same</source>
        <translation>oba materiały są takie same</translation>
    </message>
    <message>
        <source>no database has the material %1</source>
        <translation>żadna baza nie ma materiału %1</translation>
    </message>
    <message>
        <source>the new material has no status valid for ordering (%1)</source>
        <translation>status nowego materiału nie pozwala go zamówić (%1)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>nie można go odczytać</translation>
    </message>
    <message>
        <source>saving it would lose %1</source>
        <translation>zapis usunąłby %1</translation>
    </message>
    <message>
        <source>the unit changes from %1 to %2, the quantity stays</source>
        <translation>jednostka zmieni się z %1 na %2, ilość zostanie bez zmian</translation>
    </message>
    <message>
        <source>its own description is replaced, too</source>
        <translation>własny opis pozycji też zostanie zastąpiony</translation>
    </message>
    <message>
        <source>the new material stands in several lines then</source>
        <translation>nowy materiał będzie w kilku pozycjach</translation>
    </message>
    <message>
        <source>an order takes one line of the new material</source>
        <translation>zamówienie może mieć tylko jedną pozycję nowego materiału</translation>
    </message>
</context>
<context>
    <name>materialTree</name>
    <message>
        <source>%1, status %2</source>
        <translation>%1, status %2</translation>
    </message>
    <message>
        <source>Not in the firm register</source>
        <translation>Brak w bazie firm</translation>
    </message>
    <message>
        <source>Value, part number or link</source>
        <translation>Wartość, numer części lub odnośnik</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Price and stock</source>
        <translation>Cena i stan magazynu</translation>
    </message>
    <message>
        <source>CAD library</source>
        <translation>Biblioteka CAD</translation>
    </message>
</context>
<context>
    <name>materialWindow</name>
    <message>
        <source>Fields, manufacturers, suppliers and files of the material</source>
        <translation>Pola, producenci, dostawcy i pliki materiału</translation>
    </message>
    <message>
        <source>New material</source>
        <translation>Nowy materiał</translation>
    </message>
    <message>
        <source>Edit parameters</source>
        <translation>Edycja parametrów</translation>
    </message>
    <message>
        <source>no manufacturer or supplier is selected</source>
        <translation>nie zaznaczono producenta ani dostawcy</translation>
    </message>
    <message>
        <source>no file is selected</source>
        <translation>nie zaznaczono pliku</translation>
    </message>
    <message>
        <source>it has no files</source>
        <translation>nie ma on plików</translation>
    </message>
    <message>
        <source>no link is selected</source>
        <translation>nie zaznaczono odnośnika</translation>
    </message>
    <message>
        <source>the configuration names no file server</source>
        <translation>konfiguracja nie podaje serwera plików</translation>
    </message>
    <message>
        <source>no link to the file server is selected</source>
        <translation>nie zaznaczono odnośnika do serwera plików</translation>
    </message>
    <message>
        <source>the configuration has no account on the file server</source>
        <translation>konfiguracja nie podaje konta na serwerze plików</translation>
    </message>
    <message numerus="yes">
        <source>%n manufacturer(s)</source>
        <translation>
            <numerusform>%n producent</numerusform>
            <numerusform>%n producentów</numerusform>
            <numerusform>%n producentów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n dostawca</numerusform>
            <numerusform>%n dostawców</numerusform>
            <numerusform>%n dostawców</numerusform>
        </translation>
    </message>
    <message>
        <source>Set the changed material?</source>
        <translation>Ustawić zmieniony materiał?</translation>
    </message>
    <message>
        <source>Add manufacturer</source>
        <translation>Dodaj producenta</translation>
    </message>
    <message>
        <source>Add suppler</source>
        <translation>Dodaj dostawcę</translation>
    </message>
    <message>
        <source>Add file</source>
        <translation>Dodaj plik</translation>
    </message>
    <message>
        <source>Delete file</source>
        <translation>Usuń plik</translation>
    </message>
    <message>
        <source>Delete files</source>
        <translation>Usuń pliki</translation>
    </message>
    <message>
        <source>Delete rows</source>
        <translation>Usuń wiersze</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć %1</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Wszystkie pliki</translation>
    </message>
    <message>
        <source>Please set path where write file</source>
        <translation>Podaj ścieżkę, pod którą zapisać plik</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source>%1 is no path below the folder of the file server</source>
        <translation>%1 nie jest ścieżką wewnątrz folderu na serwerze plików</translation>
    </message>
    <message>
        <source>Send file</source>
        <translation>Wysyłanie pliku</translation>
    </message>
    <message>
        <source>%1 is on the file server</source>
        <translation>%1 jest na serwerze plików</translation>
    </message>
    <message>
        <source>Another material has this KTM</source>
        <translation>Ten KTM ma już inny materiał</translation>
    </message>
    <message>
        <source>The file server %1 is not known yet. Its key is</source>
        <translation>Serwer plików %1 nie jest jeszcze znany. Jego klucz to</translation>
    </message>
    <message>
        <source>Its administrator can tell whether that is so.</source>
        <translation>Czy tak jest, wie jego administrator.</translation>
    </message>
    <message>
        <source>Accept the key and send</source>
        <translation>Przyjmij klucz i wyślij</translation>
    </message>
    <message>
        <source>Nothing was sent</source>
        <translation>Niczego nie wysłano</translation>
    </message>
    <message>
        <source>The firm register has no manufacturer %1.</source>
        <translation>W rejestrze firm nie ma producenta %1.</translation>
    </message>
    <message>
        <source>The firm register has no supplier %1.</source>
        <translation>W rejestrze firm nie ma dostawcy %1.</translation>
    </message>
    <message>
        <source>Add to the register</source>
        <translation>Dodaj do rejestru</translation>
    </message>
    <message>
        <source>Only in this material</source>
        <translation>Tylko w tym materiale</translation>
    </message>
</context>
<context>
    <name>mergeDialog</name>
    <message>
        <source>not there</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>Changes here and by another program</source>
        <translation>Zmiany tutaj i zmiany innego programu</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>Przy otwarciu</translation>
    </message>
    <message>
        <source>Mine</source>
        <translation>Moje</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Tamte</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Wybór</translation>
    </message>
    <message>
        <source>the whole line</source>
        <translation>cały wiersz</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Take &amp;theirs</source>
        <translation>Weź &amp;tamte</translation>
    </message>
    <message>
        <source>Take &amp;mine</source>
        <translation>Weź &amp;moje</translation>
    </message>
    <message>
        <source>In the selected rows</source>
        <translation>W zaznaczonych wierszach</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>tamte</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>moje</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s). What only one changed is taken.</source>
        <translation>
            <numerusform>%n różnica. To, co zmieniła tylko jedna strona, zostanie przyjęte.</numerusform>
            <numerusform>%n różnice. To, co zmieniła tylko jedna strona, zostanie przyjęte.</numerusform>
            <numerusform>%n różnic. To, co zmieniła tylko jedna strona, zostanie przyjęte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) changed by both: pick which to take.</source>
        <translation>
            <numerusform>%n wiersz zmieniły obie strony: wybierz, co przyjąć.</numerusform>
            <numerusform>%n wiersze zmieniły obie strony: wybierz, co przyjąć.</numerusform>
            <numerusform>%n wierszy zmieniły obie strony: wybierz, co przyjąć.</numerusform>
        </translation>
    </message>
    <message>
        <source>Editing is locked</source>
        <translation>Edycja jest zablokowana</translation>
    </message>
    <message>
        <source>Pick in each row marked with ? first</source>
        <translation>Najpierw wybierz w każdym wierszu oznaczonym ?</translation>
    </message>
</context>
<context>
    <name>mergeFirmsDialog</name>
    <message>
        <source>Merge firms</source>
        <translation>Połącz firmy</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Zmiany</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>The firm that stays</source>
        <translation>Firma, która zostaje</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) get the name %1 when the list is saved.</source>
        <translation>
            <numerusform>%n materiał dostanie nazwę %1 przy zapisie listy.</numerusform>
            <numerusform>%n materiały dostaną nazwę %1 przy zapisie listy.</numerusform>
            <numerusform>%n materiałów dostanie nazwę %1 przy zapisie listy.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>mergeTree</name>
    <message>
        <source>once more: %1</source>
        <translation>jeszcze raz: %1</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nowy</translation>
    </message>
    <message>
        <source>New in the other file</source>
        <translation>Nowy w drugim pliku</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) differ</source>
        <translation>
            <numerusform>różni się %n pole</numerusform>
            <numerusform>różnią się %n pola</numerusform>
            <numerusform>różni się %n pól</numerusform>
        </translation>
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
    <message>
        <source>Typed date</source>
        <translation>Wpisana data</translation>
    </message>
    <message>
        <source>24.12 or +14</source>
        <translation>24.12 lub +14</translation>
    </message>
</context>
<context>
    <name>myItem</name>
    <message>
        <source>A number is needed here</source>
        <translation>Tu potrzebna jest liczba</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the list</source>
        <translation>„%1” nie ma na liście</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>„%1” to ani tak, ani nie</translation>
    </message>
    <message>
        <source>This cell takes no text</source>
        <translation>Ta komórka nie przyjmuje tekstu</translation>
    </message>
</context>
<context>
    <name>myModelDelegate</name>
    <message>
        <source>&quot;%1&quot; is not in the list</source>
        <translation>„%1” nie ma na liście</translation>
    </message>
</context>
<context>
    <name>needsDialog</name>
    <message>
        <source>The quantity is no number; the line is left out</source>
        <translation>Ilość nie jest liczbą; pozycję pominięto</translation>
    </message>
    <message>
        <source>Needs</source>
        <translation>Potrzeby</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n short of stock</source>
        <translation>
            <numerusform>%n brakuje w magazynie</numerusform>
            <numerusform>%n brakuje w magazynie</numerusform>
            <numerusform>%n brakuje w magazynie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in no database</source>
        <translation>
            <numerusform>%n spoza baz danych</numerusform>
            <numerusform>%n spoza baz danych</numerusform>
            <numerusform>%n spoza baz danych</numerusform>
        </translation>
    </message>
    <message>
        <source>Materials for the order</source>
        <translation>Materiały do zamówienia</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>What is needed</source>
        <translation>Cała potrzebna ilość</translation>
    </message>
    <message>
        <source>Only what is short of stock</source>
        <translation>Tylko to, czego brakuje w magazynie</translation>
    </message>
    <message>
        <source>Materials that the order has already</source>
        <translation>Materiały, które są już w zamówieniu</translation>
    </message>
    <message>
        <source>Raise the quantity of their lines</source>
        <translation>Zwiększ ilość w ich pozycjach</translation>
    </message>
    <message>
        <source>Add lines beside them</source>
        <translation>Dodaj osobne pozycje</translation>
    </message>
    <message>
        <source>Skip them</source>
        <translation>Pomiń je</translation>
    </message>
    <message>
        <source>Add to the order</source>
        <translation>Dodaj do zamówienia</translation>
    </message>
    <message>
        <source>What the order lacks of what is needed</source>
        <translation>Czego w zamówieniu brakuje do zapotrzebowania</translation>
    </message>
    <message>
        <source>Mark &amp;all</source>
        <translation>Zaznacz &amp;wszystko</translation>
    </message>
    <message>
        <source>Mark &amp;none</source>
        <translation>&amp;Odznacz wszystko</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Save as ...</source>
        <translation>&amp;Zapisz jako ...</translation>
    </message>
    <message numerus="yes">
        <source>%n to be ordered</source>
        <translation>
            <numerusform>%n do zamówienia</numerusform>
            <numerusform>%n do zamówienia</numerusform>
            <numerusform>%n do zamówienia</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing would be ordered</source>
        <translation>nic nie zostałoby zamówione</translation>
    </message>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>Xlsx File</source>
        <translation>Plik Xlsx</translation>
    </message>
    <message>
        <source>CSV File</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>&amp;Baskets ...</source>
        <translation>Ko&amp;szyki ...</translation>
    </message>
    <message>
        <source>What is ticked as orders for the shops of the suppliers</source>
        <translation>To, co zaznaczono, jako zamówienia do sklepów dostawców</translation>
    </message>
    <message>
        <source>Never t&amp;wice: less what is on the way</source>
        <translation>Ni&amp;gdy dwa razy: mniej o to, co w drodze</translation>
    </message>
    <message>
        <source>Other orders have some of these materials, not invoiced yet</source>
        <translation>Inne zamówienia mają niektóre z tych materiałów, jeszcze bez faktury</translation>
    </message>
    <message>
        <source>No other order has any of these materials on the way</source>
        <translation>Żadne inne zamówienie nie ma tych materiałów w drodze</translation>
    </message>
    <message numerus="yes">
        <source>%n on the way already</source>
        <translation>
            <numerusform>%n już w drodze</numerusform>
            <numerusform>%n już w drodze</numerusform>
            <numerusform>%n już w drodze</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>newRequestsDialog</name>
    <message>
        <source>New requests for quotation</source>
        <translation>Nowe zapytania ofertowe</translation>
    </message>
    <message>
        <source>Name or address</source>
        <translation>Nazwa albo adres</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Szukaj</translation>
    </message>
    <message>
        <source>Offers expected &amp;by</source>
        <translation>Oferty &amp;do dnia</translation>
    </message>
    <message>
        <source>&amp;Write requests</source>
        <translation>&amp;Napisz zapytania</translation>
    </message>
    <message>
        <source>Firms of the register</source>
        <translation>Firmy z rejestru</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiały</translation>
    </message>
    <message>
        <source>Asked before</source>
        <translation>Pytano wcześniej</translation>
    </message>
    <message>
        <source>Materials of the order that name the firm as supplier or manufacturer</source>
        <translation>Materiały zamówienia, które wymieniają firmę jako dostawcę albo producenta</translation>
    </message>
    <message numerus="yes">
        <source>%n firm(s)</source>
        <translation>
            <numerusform>%n firma</numerusform>
            <numerusform>%n firmy</numerusform>
            <numerusform>%n firm</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n materiał</numerusform>
            <numerusform>%n materiały</numerusform>
            <numerusform>%n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a quantity are left out</source>
        <translation>
            <numerusform>pominięto %n pozycję bez ilości</numerusform>
            <numerusform>pominięto %n pozycje bez ilości</numerusform>
            <numerusform>pominięto %n pozycji bez ilości</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to ask for</source>
        <translation>Nie ma o co pytać</translation>
    </message>
    <message>
        <source>No firm is ticked</source>
        <translation>Żadna firma nie jest zaznaczona</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
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
    <name>offerComparison</name>
    <message>
        <source>There is no rate for %1</source>
        <translation>Brak kursu %1</translation>
    </message>
    <message>
        <source>Its VAT is no percentage: %1</source>
        <translation>VAT oferty nie jest procentem: %1</translation>
    </message>
    <message>
        <source>Its prices cannot be read: %1</source>
        <translation>Nie można odczytać cen: %1</translation>
    </message>
    <message>
        <source>Its minimum or multiple cannot be read</source>
        <translation>Nie można odczytać minimum lub wielokrotności</translation>
    </message>
    <message>
        <source>It is sold from %1 on</source>
        <translation>Sprzedawane od ilości %1</translation>
    </message>
    <message>
        <source>%1 would cost less in total: %2 PLN</source>
        <translation>%1 kosztowałoby razem mniej: %2 PLN</translation>
    </message>
</context>
<context>
    <name>offerFirmRows</name>
    <message>
        <source>Firm</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Otrzymano</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>VAT</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>Lead time</source>
        <translation>Czas dostawy</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Ważna do</translation>
    </message>
    <message>
        <source>Offered</source>
        <translation>Oferowane</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Brakuje</translation>
    </message>
    <message>
        <source>Net [ PLN ]</source>
        <translation>Netto [ PLN ]</translation>
    </message>
    <message>
        <source>With VAT [ PLN ]</source>
        <translation>Z VAT [ PLN ]</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source>gross</source>
        <translation>brutto</translation>
    </message>
    <message>
        <source>net</source>
        <translation>netto</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n dzień</numerusform>
            <numerusform>%n dni</numerusform>
            <numerusform>%n dni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, expired</source>
        <translation>%1, po terminie</translation>
    </message>
</context>
<context>
    <name>offerImport</name>
    <message>
        <source>(not used)</source>
        <translation>(nieużywana)</translation>
    </message>
    <message>
        <source>Our number</source>
        <translation>Nasz numer</translation>
    </message>
    <message>
        <source>Part number</source>
        <translation>Numer części</translation>
    </message>
    <message>
        <source>From quantity</source>
        <translation>Od ilości</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>Cena jednostkowa</translation>
    </message>
    <message>
        <source>Prices by quantity</source>
        <translation>Ceny wg ilości</translation>
    </message>
    <message>
        <source>Minimum quantity</source>
        <translation>Minimalna ilość</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Wielokrotność</translation>
    </message>
    <message>
        <source>Lead time</source>
        <translation>Czas dostawy</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Uwagi</translation>
    </message>
    <message numerus="yes">
        <source>%n more remark(s) of this kind</source>
        <translation>
            <numerusform>Jeszcze %n uwaga tego rodzaju</numerusform>
            <numerusform>Jeszcze %n uwagi tego rodzaju</numerusform>
            <numerusform>Jeszcze %n uwag tego rodzaju</numerusform>
        </translation>
    </message>
    <message>
        <source>There is an offer of %1 already, received on %2</source>
        <translation>Jest już oferta firmy %1, otrzymana %2</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>It offers nothing: no material of the order has a price</source>
        <translation>Oferta jest pusta: żaden materiał z zamówienia nie ma ceny</translation>
    </message>
    <message>
        <source>%1 is no request for this order</source>
        <translation>%1 to nie zapytanie do tego zamówienia</translation>
    </message>
    <message>
        <source>The day on which it was received is missing</source>
        <translation>Brak dnia otrzymania oferty</translation>
    </message>
    <message>
        <source>It is late: received on %1, expected by %2</source>
        <translation>Oferta jest spóźniona: otrzymana %1, termin %2</translation>
    </message>
    <message>
        <source>The request %1 went to %2, not to %3</source>
        <translation>Zapytanie %1 wysłano do firmy %2, a nie do %3</translation>
    </message>
    <message>
        <source>The firm is missing</source>
        <translation>Brak firmy</translation>
    </message>
    <message>
        <source>Row %1, &quot;%2&quot;: %3</source>
        <translation>Wiersz %1, „%2”: %3</translation>
    </message>
    <message>
        <source>%1 is no number of days above 0</source>
        <translation>%1 nie jest liczbą dni większą od 0</translation>
    </message>
    <message>
        <source>%1 is no date</source>
        <translation>%1 nie jest datą</translation>
    </message>
    <message>
        <source>it was valid until %1, but was received on %2</source>
        <translation>była ważna do %1, a otrzymano ją %2</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is not in %2</source>
        <translation>Kolumna „%1” nie jest w walucie %2</translation>
    </message>
    <message>
        <source>%1 is no currency</source>
        <translation>%1 nie jest walutą</translation>
    </message>
    <message>
        <source>the price is in %1, those before in %2</source>
        <translation>cena jest w %1, poprzednie w %2</translation>
    </message>
    <message>
        <source>The prices are in PLN: the rate %1 does not count</source>
        <translation>Ceny są w PLN: kurs %1 nie ma znaczenia</translation>
    </message>
    <message>
        <source>the rate of %1 is missing</source>
        <translation>brak kursu %1</translation>
    </message>
    <message>
        <source>%1 is no rate above 0</source>
        <translation>%1 nie jest kursem większym od 0</translation>
    </message>
    <message>
        <source>%1 is neither net nor gross</source>
        <translation>%1 to ani netto, ani brutto</translation>
    </message>
    <message>
        <source>%1 is no percentage from 0 to 100</source>
        <translation>%1 nie jest procentem od 0 do 100</translation>
    </message>
    <message>
        <source>The VAT is less than one percent: %1 %</source>
        <translation>VAT jest mniejszy niż jeden procent: %1 %</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message>
        <source>No column has prices</source>
        <translation>Żadna kolumna nie zawiera cen</translation>
    </message>
    <message>
        <source>No column has our numbers, or part numbers</source>
        <translation>Żadna kolumna nie zawiera naszych numerów ani numerów części</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; has quantities without a column of prices beside it</source>
        <translation>Kolumna „%1” zawiera ilości, a obok niej nie ma kolumny cen</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; has prices without a column of quantities beside it</source>
        <translation>Kolumna „%1” zawiera ceny, a obok niej nie ma kolumny ilości</translation>
    </message>
    <message>
        <source>%1 may be any of %2, and is left out</source>
        <translation>%1 może oznaczać każdy z: %2, dlatego wiersz pominięto</translation>
    </message>
    <message>
        <source>%1 was not asked for</source>
        <translation>o %1 nie pytano</translation>
    </message>
    <message>
        <source>it has a price, but names no material</source>
        <translation>jest cena, ale nie wskazano materiału</translation>
    </message>
    <message>
        <source>%1 is nothing that the order needs</source>
        <translation>%1 nie jest potrzebny w zamówieniu</translation>
    </message>
    <message>
        <source>%1 is in row %2 already</source>
        <translation>%1 jest już w wierszu %2</translation>
    </message>
    <message>
        <source>%1 was asked for, but the order does not need it any more</source>
        <translation>o %1 pytano, ale zamówienie już go nie potrzebuje</translation>
    </message>
    <message>
        <source>%1 is no number above 0</source>
        <translation>%1 nie jest liczbą większą od 0</translation>
    </message>
    <message>
        <source>the price from %1 on is missing</source>
        <translation>brak ceny od ilości %1</translation>
    </message>
    <message>
        <source>the quantity from which on the price %1 holds is missing</source>
        <translation>brak ilości, od której obowiązuje cena %1</translation>
    </message>
    <message>
        <source>%1 is no quantity and price</source>
        <translation>%1 to nie ilość i cena</translation>
    </message>
    <message>
        <source>%1 is no price above 0</source>
        <translation>%1 nie jest ceną większą od 0</translation>
    </message>
    <message>
        <source>there are two prices from %1 on</source>
        <translation>są dwie ceny od ilości %1</translation>
    </message>
    <message>
        <source>the quantities do not ascend: %1 is behind %2</source>
        <translation>ilości nie rosną: %1 jest po %2</translation>
    </message>
    <message>
        <source>Several firms are called %1: the tax number has to say which it is, of %2</source>
        <translation>Kilka firm nazywa się %1: NIP musi wskazać, która to, spośród %2</translation>
    </message>
    <message>
        <source>The prices of the column &quot;%1&quot; are not of one piece</source>
        <translation>Ceny w kolumnie „%1” nie są za jedną sztukę</translation>
    </message>
    <message>
        <source>There is an offer of %1 on the request %2 already, received on %3</source>
        <translation>Jest już oferta %1 na zapytanie %2, otrzymana %3</translation>
    </message>
</context>
<context>
    <name>offerReport</name>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>Date of the order</source>
        <translation>Data zamówienia</translation>
    </message>
    <message>
        <source>Compared on</source>
        <translation>Porównano dnia</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Wybrano</translation>
    </message>
    <message>
        <source>Date of the choice</source>
        <translation>Data wyboru</translation>
    </message>
    <message>
        <source>Chosen by</source>
        <translation>Wybór</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Uzasadnienie</translation>
    </message>
    <message>
        <source>Without an offer</source>
        <translation>Bez oferty</translation>
    </message>
    <message>
        <source>Total net [ PLN ]</source>
        <translation>Razem netto [ PLN ]</translation>
    </message>
    <message>
        <source>VAT [ PLN ]</source>
        <translation>VAT [ PLN ]</translation>
    </message>
    <message>
        <source>Total gross [ PLN ]</source>
        <translation>Razem brutto [ PLN ]</translation>
    </message>
    <message>
        <source>Comparison of offers %1</source>
        <translation>Porównanie ofert %1</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>wybrana</translation>
    </message>
    <message>
        <source>best</source>
        <translation>najlepsza</translation>
    </message>
    <message>
        <source>%1, at %2 PLN of %3</source>
        <translation>%1, po %2 PLN z dnia %3</translation>
    </message>
    <message>
        <source>%1, at %2 PLN</source>
        <translation>%1, po %2 PLN</translation>
    </message>
    <message>
        <source>Tax number</source>
        <translation>NIP</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Zapytanie</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Otrzymano</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Waluta</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Ceny</translation>
    </message>
    <message>
        <source>gross</source>
        <translation>brutto</translation>
    </message>
    <message>
        <source>net</source>
        <translation>netto</translation>
    </message>
    <message>
        <source>VAT</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>%1 (not said)</source>
        <translation>%1 (nie podano)</translation>
    </message>
    <message>
        <source>Lead time</source>
        <translation>Czas dostawy</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dni</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Ważna do</translation>
    </message>
    <message>
        <source>%1 (expired)</source>
        <translation>%1 (nieaktualna)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Not counted</source>
        <translation>Nie liczy się</translation>
    </message>
    <message>
        <source>Lines without a quantity, not compared</source>
        <translation>Pozycje bez ilości, nieporównane</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Oferta</translation>
    </message>
    <message>
        <source>Offered</source>
        <translation>Oferowane</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Longest lead time</source>
        <translation>Najdłuższy czas dostawy</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Materiał</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Potrzeba</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>brak w ofercie</translation>
    </message>
    <message>
        <source>Offers</source>
        <translation>Oferty</translation>
    </message>
    <message>
        <source>unit price [ PLN ]</source>
        <translation>cena jednostkowa [ PLN ]</translation>
    </message>
    <message>
        <source>quantity</source>
        <translation>ilość</translation>
    </message>
    <message>
        <source>cost [ PLN ]</source>
        <translation>koszt [ PLN ]</translation>
    </message>
    <message>
        <source>lead time [ days ]</source>
        <translation>czas dostawy [ dni ]</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>oznaczenie</translation>
    </message>
    <message>
        <source>remarks</source>
        <translation>uwagi</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Proponowane</translation>
    </message>
    <message>
        <source>proposed</source>
        <translation>proponowane</translation>
    </message>
</context>
<context>
    <name>offerRows</name>
    <message>
        <source>Bought from</source>
        <translation>Kupowane w</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nie oferuje</translation>
    </message>
    <message>
        <source>nobody</source>
        <translation>nigdzie</translation>
    </message>
    <message>
        <source>The cheapest offer</source>
        <translation>Najtańsza oferta</translation>
    </message>
    <message>
        <source>The offer is not valid any more</source>
        <translation>Oferta nie jest już ważna</translation>
    </message>
    <message>
        <source>Offered: %1 %2</source>
        <translation>Oferowane: %1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) until it comes</source>
        <translation>
            <numerusform>%n dzień do dostawy</numerusform>
            <numerusform>%n dni do dostawy</numerusform>
            <numerusform>%n dni do dostawy</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>offersWindow</name>
    <message>
        <source>Raise &amp;quantities to what is sold</source>
        <translation>Podnieś &amp;ilości do sprzedawanych</translation>
    </message>
    <message>
        <source>Offers</source>
        <translation>Oferty</translation>
    </message>
    <message>
        <source>Firms and their offers</source>
        <translation>Firmy i ich oferty</translation>
    </message>
    <message>
        <source>Materials and their prices</source>
        <translation>Materiały i ich ceny</translation>
    </message>
    <message>
        <source>the cheapest for each material</source>
        <translation>najtaniej dla każdego materiału</translation>
    </message>
    <message>
        <source>one firm for all</source>
        <translation>jedna firma dla wszystkich</translation>
    </message>
    <message>
        <source>the fewest firms</source>
        <translation>jak najmniej firm</translation>
    </message>
    <message>
        <source>only what comes in time</source>
        <translation>tylko to, co przyjdzie na czas</translation>
    </message>
    <message>
        <source>&amp;Propose</source>
        <translation>Propo&amp;zycja</translation>
    </message>
    <message>
        <source>&amp;Above the cheapest by</source>
        <translation>Drożej od najtań&amp;szej o</translation>
    </message>
    <message>
        <source>&amp;Until</source>
        <translation>&amp;Termin do</translation>
    </message>
    <message>
        <source>The order was not saved yet; offers are kept beside its file</source>
        <translation>Zamówienia jeszcze nie zapisano; oferty leżą obok jego pliku</translation>
    </message>
    <message>
        <source>Offers for %1</source>
        <translation>Oferty na %1</translation>
    </message>
    <message>
        <source>Chosen: %1 PLN net, %2 PLN VAT, %3 PLN with VAT</source>
        <translation>Wybrane: %1 PLN netto, %2 PLN VAT, %3 PLN z VAT</translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) from nobody</source>
        <translation>
            <numerusform>%n materiał nigdzie</numerusform>
            <numerusform>%n materiały nigdzie</numerusform>
            <numerusform>%n materiałów nigdzie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a quantity</source>
        <translation>
            <numerusform>%n pozycja bez ilości</numerusform>
            <numerusform>%n pozycje bez ilości</numerusform>
            <numerusform>%n pozycji bez ilości</numerusform>
        </translation>
    </message>
    <message>
        <source>No offer came yet: Import an offer (Ctrl+O)</source>
        <translation>Nie przyszła jeszcze żadna oferta: Wczytaj ofertę (Ctrl+O)</translation>
    </message>
    <message>
        <source>the order was not saved yet</source>
        <translation>zamówienia jeszcze nie zapisano</translation>
    </message>
    <message>
        <source>no offer came yet</source>
        <translation>nie przyszła jeszcze żadna oferta</translation>
    </message>
    <message>
        <source>nothing is chosen</source>
        <translation>nic nie jest wybrane</translation>
    </message>
    <message>
        <source>no choice was taken into the order yet</source>
        <translation>żadnego wyboru nie przeniesiono jeszcze do zamówienia</translation>
    </message>
    <message>
        <source>no firm&apos;s column is current</source>
        <translation>bieżąca kolumna nie jest kolumną firmy</translation>
    </message>
    <message>
        <source>no firm is selected</source>
        <translation>nie zaznaczono firmy</translation>
    </message>
    <message>
        <source>there are no rows</source>
        <translation>nie ma wierszy</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>%1 has sent an offer before.</source>
        <translation>Firma %1 przysłała już ofertę.</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Zastąp ją</translation>
    </message>
    <message numerus="yes">
        <source>Offer of %1 taken in: %n material(s)</source>
        <translation>
            <numerusform>Przyjęto ofertę %1: %n materiał</numerusform>
            <numerusform>Przyjęto ofertę %1: %n materiały</numerusform>
            <numerusform>Przyjęto ofertę %1: %n materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) are not offered there</source>
        <translation>
            <numerusform>%n materiału nie ma w tej ofercie</numerusform>
            <numerusform>%n materiałów nie ma w tej ofercie</numerusform>
            <numerusform>%n materiałów nie ma w tej ofercie</numerusform>
        </translation>
    </message>
    <message>
        <source>Take the choice into the order</source>
        <translation>Przenieś wybór do zamówienia</translation>
    </message>
    <message>
        <source>Reason of the choice</source>
        <translation>Uzasadnienie wyboru</translation>
    </message>
    <message>
        <source>The order has the chosen prices; save it to keep them</source>
        <translation>Zamówienie ma wybrane ceny; zapisz je, by zostały</translation>
    </message>
    <message>
        <source>Save the order first.</source>
        <translation>Najpierw zapisz zamówienie.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2, %n line(s)</source>
        <translation>
            <numerusform>%1: %2, %n pozycja</numerusform>
            <numerusform>%1: %2, %n pozycje</numerusform>
            <numerusform>%1: %2, %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>no firm</source>
        <translation>bez firmy</translation>
    </message>
    <message>
        <source>Write these orders beside this one, which then counts no more?</source>
        <translation>Zapisać te zamówienia obok tego, które odtąd się nie liczy?</translation>
    </message>
    <message>
        <source>Write them</source>
        <translation>Zapisz je</translation>
    </message>
    <message>
        <source>The order was not parted</source>
        <translation>Zamówienia nie podzielono</translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) written</source>
        <translation>
            <numerusform>zapisano %n zamówienie</numerusform>
            <numerusform>zapisano %n zamówienia</numerusform>
            <numerusform>zapisano %n zamówień</numerusform>
        </translation>
    </message>
    <message>
        <source>Written:</source>
        <translation>Zapisano:</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>Pliku nie można otworzyć: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n wiersz</numerusform>
            <numerusform>Skopiowano %n wiersze</numerusform>
            <numerusform>Skopiowano %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>The offers are as their file is</source>
        <translation>Oferty są takie jak w pliku</translation>
    </message>
    <message>
        <source>%1 has answered the request %2 before.</source>
        <translation>%1 odpowiedziała już na zapytanie %2.</translation>
    </message>
    <message>
        <source>The order or its offers were changed meanwhile; this is what is there now</source>
        <translation>Zamówienie lub jego oferty zmieniono w międzyczasie; oto stan obecny</translation>
    </message>
</context>
<context>
    <name>officeConverter</name>
    <message>
        <source>LibreOffice reads %1 and is not installed: install it, or save the file as CSV or XLSX</source>
        <translation>Plik %1 czyta LibreOffice, który nie jest zainstalowany: zainstaluj go albo zapisz plik jako CSV lub XLSX</translation>
    </message>
    <message>
        <source>LibreOffice cannot read %1</source>
        <translation>LibreOffice nie może odczytać %1</translation>
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
    <message>
        <source>OPTION_BACKUP_COUNT</source>
        <translation>Liczba przechowywanych wersji pliku</translation>
    </message>
    <message>
        <source>OPTION_LANGUAGE</source>
        <translation>Język programu</translation>
    </message>
    <message>
        <source>OPTION_ARCHIVE_PASSWORD</source>
        <translation>Hasło archiwów</translation>
    </message>
    <message>
        <source>OPTION_BOM_ATTRITION</source>
        <translation>Naddatek na straty przy montażu (obudowa: % co najmniej)</translation>
    </message>
    <message>
        <source>OPTION_BOM_MULTIPLE</source>
        <translation>Zamawiaj wielokrotność (jednostka: ile)</translation>
    </message>
    <message>
        <source>OPTION_ORDERS_FOLDERS</source>
        <translation>Foldery zamówień</translation>
    </message>
    <message>
        <source>OPTION_ORDER_THRESHOLDS</source>
        <translation>Progi zakupów według CPV [PLN] (cyfry: kwota)</translation>
    </message>
    <message>
        <source>OPTION_VAT_RATE</source>
        <translation>VAT w raporcie zamówienia [%] (puste: bez)</translation>
    </message>
    <message>
        <source>OPTION_UPDATE_ADDRESS</source>
        <translation>Adres aktualizacji</translation>
    </message>
    <message>
        <source>OPTION_UPDATE_UNSIGNED</source>
        <translation>Aktualizacje bez podpisu</translation>
    </message>
    <message>
        <source>OPTION_STORE_ADDRESS</source>
        <translation>Adres wspólnej bazy</translation>
    </message>
</context>
<context>
    <name>orderDocument</name>
    <message>
        <source>Materials does not exist in database:</source>
        <translation>Materiały nie istnieją w bazie danych:</translation>
    </message>
    <message>
        <source>Materials does not has valid status:</source>
        <translation>Materiały nie mają prawidłowego statusu:</translation>
    </message>
</context>
<context>
    <name>orderOperations</name>
    <message>
        <source>the file cannot be written</source>
        <translation>nie można zapisać pliku</translation>
    </message>
    <message>
        <source>it is open elsewhere: %1</source>
        <translation>jest otwarty gdzie indziej: %1</translation>
    </message>
</context>
<context>
    <name>orderReport</name>
    <message>
        <source>VAT %1 %:</source>
        <translation>VAT %1 %:</translation>
    </message>
    <message>
        <source>Sum with VAT:</source>
        <translation>Suma z VAT:</translation>
    </message>
</context>
<context>
    <name>orderSplitting</name>
    <message>
        <source>No firm is chosen for any material</source>
        <translation>Dla żadnego materiału nie wybrano firmy</translation>
    </message>
    <message>
        <source>All lines are of %1: there is nothing to part</source>
        <translation>Wszystkie pozycje są firmy %1: nie ma czego dzielić</translation>
    </message>
    <message>
        <source>It was parted before, and its parts are there</source>
        <translation>Zamówienie było już podzielone, a jego części istnieją</translation>
    </message>
    <message>
        <source>It was sent already</source>
        <translation>Zostało już wysłane</translation>
    </message>
    <message>
        <source>Something of it was delivered or invoiced already</source>
        <translation>Coś z niego już dostarczono lub zafakturowano</translation>
    </message>
</context>
<context>
    <name>orderTree</name>
    <message>
        <source>unknown</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <source>No loaded database has this KTM</source>
        <translation>Żadna wczytana baza nie zawiera tego KTM</translation>
    </message>
    <message>
        <source>Known material, status %1</source>
        <translation>Znany materiał, status %1</translation>
    </message>
    <message>
        <source>The status of this material does not allow to order it</source>
        <translation>Status tego materiału nie pozwala go zamówić</translation>
    </message>
    <message>
        <source>%1 in stock, %2 ordered</source>
        <translation>na stanie %1, zamówiono %2</translation>
    </message>
    <message>
        <source>Enough: %1</source>
        <translation>Wystarczy: %1</translation>
    </message>
    <message>
        <source>Too little: %1</source>
        <translation>Za mało: %1</translation>
    </message>
    <message>
        <source>Ordered already, and not invoiced yet:</source>
        <translation>Już zamówione, jeszcze bez faktury:</translation>
    </message>
</context>
<context>
    <name>orderView</name>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>Options of the order</source>
        <translation>Dane zamówienia</translation>
    </message>
    <message>
        <source>Lines of the order</source>
        <translation>Pozycje zamówienia</translation>
    </message>
    <message>
        <source>The order has no lines. &lt;a href=&quot;addMaterial&quot;&gt;Add a material&lt;/a&gt;, or &lt;a href=&quot;zpOpen&quot;&gt;open an order&lt;/a&gt;.</source>
        <translation>Zamówienie nie ma pozycji. &lt;a href=&quot;addMaterial&quot;&gt;Dodaj materiał&lt;/a&gt; lub &lt;a href=&quot;zpOpen&quot;&gt;otwórz zamówienie&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>orders</name>
    <message>
        <source>being prepared</source>
        <translation>w przygotowaniu</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>wysłane</translation>
    </message>
    <message>
        <source>partly delivered</source>
        <translation>częściowo dostarczone</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>dostarczone</translation>
    </message>
    <message>
        <source>invoiced</source>
        <translation>zafakturowane</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Sum [ PLN ]</source>
        <translation>Suma [ PLN ]</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Dostawa</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Faktura</translation>
    </message>
    <message>
        <source>Sent %1 by %2 to %3</source>
        <translation>Wysłane %1, wysyłający: %2, do: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a price or a quantity are not in it</source>
        <translation>
            <numerusform>bez %n pozycji, która nie ma ceny lub ilości</numerusform>
            <numerusform>bez %n pozycji, które nie mają ceny lub ilości</numerusform>
            <numerusform>bez %n pozycji, które nie mają ceny lub ilości</numerusform>
        </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>parted by firm</source>
        <translation>podzielone na firmy</translation>
    </message>
</context>
<context>
    <name>ordersWindow</name>
    <message>
        <source>Orders</source>
        <translation>Zamówienia</translation>
    </message>
    <message>
        <source>Search all lines: KTM, name, part number, target, delivery, invoice, order</source>
        <translation>Szukaj we wszystkich pozycjach: KTM, nazwa, numer części, zlecenie, dostawa, faktura, zamówienie</translation>
    </message>
    <message>
        <source>Lines found</source>
        <translation>Znalezione pozycje</translation>
    </message>
    <message>
        <source>Reading orders</source>
        <translation>Wczytywanie zamówień</translation>
    </message>
    <message>
        <source>Reading was cancelled; some orders are missing</source>
        <translation>Wczytywanie przerwano; brakuje części zamówień</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Nie ma folderu %1</translation>
    </message>
    <message numerus="yes">
        <source>%n order(s)</source>
        <translation>
            <numerusform>%n zamówienie</numerusform>
            <numerusform>%n zamówienia</numerusform>
            <numerusform>%n zamówień</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; the first %2 are shown</source>
        <translation>%1; pokazano pierwsze %2</translation>
    </message>
    <message>
        <source>no order is selected</source>
        <translation>nie zaznaczono zamówienia</translation>
    </message>
    <message>
        <source>several orders are selected</source>
        <translation>zaznaczono kilka zamówień</translation>
    </message>
    <message>
        <source>one of these was sent</source>
        <translation>jedno z nich jest wysłane</translation>
    </message>
    <message>
        <source>none of these was sent</source>
        <translation>żadne z nich nie jest wysłane</translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) marked as sent</source>
        <translation>
            <numerusform>%n zamówienie oznaczono jako wysłane</numerusform>
            <numerusform>%n zamówienia oznaczono jako wysłane</numerusform>
            <numerusform>%n zamówień oznaczono jako wysłane</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) not sent any more</source>
        <translation>
            <numerusform>%n zamówienie nie jest już oznaczone jako wysłane</numerusform>
            <numerusform>%n zamówienia nie są już oznaczone jako wysłane</numerusform>
            <numerusform>%n zamówień nie jest już oznaczonych jako wysłane</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n wiersz</numerusform>
            <numerusform>Skopiowano %n wiersze</numerusform>
            <numerusform>Skopiowano %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>The orders are as their files are</source>
        <translation>Zamówienia są takie jak ich pliki</translation>
    </message>
</context>
<context>
    <name>partsColumns</name>
    <message>
        <source>(not used)</source>
        <translation>(nieużywana)</translation>
    </message>
    <message>
        <source>Designators</source>
        <translation>Oznaczenia</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>KTM</source>
        <translation>KTM</translation>
    </message>
    <message>
        <source>Part number</source>
        <translation>Numer części</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Producent</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Obudowa</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation>Dostawca</translation>
    </message>
    <message>
        <source>Supplier&apos;s number</source>
        <translation>Numer dostawcy</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancja</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Napięcie</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message>
        <source>Not fitted</source>
        <translation>Niemontowany</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Montowany</translation>
    </message>
</context>
<context>
    <name>partsColumnsPage</name>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>przecinek</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>średnik</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>tabulator</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>kreska pionowa</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Arkusz</translation>
    </message>
    <message>
        <source>First rows of the file</source>
        <translation>Pierwsze wiersze pliku</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n row(s)</source>
        <translation>
            <numerusform>%1, %n wiersz</numerusform>
            <numerusform>%1, %n wiersze</numerusform>
            <numerusform>%1, %n wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2, %n row(s)</source>
        <translation>
            <numerusform>%1, %2, %n wiersz</numerusform>
            <numerusform>%1, %2, %n wiersze</numerusform>
            <numerusform>%1, %2, %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>What column %1 holds</source>
        <translation>Co zawiera kolumna %1</translation>
    </message>
</context>
<context>
    <name>partsLines</name>
    <message>
        <source>no quantity, taken as 1</source>
        <translation>brak ilości, przyjęto 1</translation>
    </message>
    <message>
        <source>the quantity &quot;%1&quot; is no number, taken as 1</source>
        <translation>ilość „%1” nie jest liczbą, przyjęto 1</translation>
    </message>
    <message>
        <source>the file says %1, the designators are %2</source>
        <translation>w pliku jest %1, oznaczeń jest %2</translation>
    </message>
    <message>
        <source>line %1 names no part: %2</source>
        <translation>wiersz %1 nie nazywa elementu: %2</translation>
    </message>
    <message>
        <source>designators stand twice</source>
        <translation>oznaczenia się powtarzają</translation>
    </message>
</context>
<context>
    <name>partsMatching</name>
    <message>
        <source>decided before</source>
        <translation>wcześniejsza decyzja</translation>
    </message>
    <message>
        <source>KTM</source>
        <translation>KTM</translation>
    </message>
    <message>
        <source>manufacturer and part number</source>
        <translation>producent i numer części</translation>
    </message>
    <message>
        <source>part number</source>
        <translation>numer części</translation>
    </message>
    <message>
        <source>part number without packaging</source>
        <translation>numer części bez opakowania</translation>
    </message>
    <message>
        <source>supplier&apos;s number</source>
        <translation>numer dostawcy</translation>
    </message>
    <message>
        <source>value and case</source>
        <translation>wartość i obudowa</translation>
    </message>
    <message>
        <source>words</source>
        <translation>słowa</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>wybrany</translation>
    </message>
    <message>
        <source>%1 %2, not %3</source>
        <translation>%1 %2, nie %3</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>tolerance</source>
        <translation>tolerancja</translation>
    </message>
    <message>
        <source>voltage</source>
        <translation>napięcie</translation>
    </message>
    <message>
        <source>power</source>
        <translation>moc</translation>
    </message>
    <message>
        <source>dielectric %1, not %2</source>
        <translation>dielektryk %1, nie %2</translation>
    </message>
    <message>
        <source>the case is not compared</source>
        <translation>obudowy nie porównano</translation>
    </message>
    <message>
        <source>current</source>
        <translation>prąd</translation>
    </message>
</context>
<context>
    <name>partsTable</name>
    <message>
        <source>has only %1 sheets</source>
        <translation>ma tylko %1 arkuszy</translation>
    </message>
    <message>
        <source>is larger than 64 MB</source>
        <translation>jest większy niż 64 MB</translation>
    </message>
    <message>
        <source>is an archive without a table</source>
        <translation>jest archiwum bez tabeli</translation>
    </message>
    <message>
        <source>is XML, but no list of parts of KiCad</source>
        <translation>jest plikiem XML, ale nie listą elementów programu KiCad</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>nie jest tekstem</translation>
    </message>
    <message>
        <source>holds no table</source>
        <translation>nie zawiera tabeli</translation>
    </message>
    <message>
        <source>line %1: the quote is not closed</source>
        <translation>wiersz %1: cudzysłów nie jest zamknięty</translation>
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
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>Plik %1 już istnieje. Zastąpić go?</translation>
    </message>
    <message>
        <source>&amp;Keep it in the desktop&apos;s store of secrets</source>
        <translation>&amp;Zachowaj w magazynie haseł pulpitu</translation>
    </message>
</context>
<context>
    <name>quotationRequests</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>%1 has no e-mail address</source>
        <translation>%1 nie ma adresu e-mail</translation>
    </message>
    <message>
        <source>No firm is chosen</source>
        <translation>Nie wybrano żadnej firmy</translation>
    </message>
    <message>
        <source>No line with a quantity is to be asked for</source>
        <translation>Nie ma pozycji z ilością, o którą można by zapytać</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>czeka</translation>
    </message>
    <message>
        <source>overdue</source>
        <translation>po terminie</translation>
    </message>
    <message>
        <source>offer came</source>
        <translation>jest oferta</translation>
    </message>
    <message>
        <source>There is no request %1</source>
        <translation>Nie ma zapytania %1</translation>
    </message>
    <message>
        <source>Somebody else has just given out the number %1</source>
        <translation>Ktoś inny właśnie nadał numer %1</translation>
    </message>
    <message>
        <source>The mail program cannot be started; the message is %1</source>
        <translation>Nie można uruchomić programu pocztowego; wiadomość to %1</translation>
    </message>
    <message>
        <source>An offer has come for %1</source>
        <translation>Na %1 przyszła już oferta</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>Brakuje %1</translation>
    </message>
    <message>
        <source>written only</source>
        <translation>tylko zapisane</translation>
    </message>
</context>
<context>
    <name>recoveryDialog</name>
    <message>
        <source>Unsaved work</source>
        <translation>Niezapisana praca</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmieniono</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Zawartość</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Keep for later</source>
        <translation>Zachowaj na później</translation>
    </message>
    <message>
        <source>Delete ...</source>
        <translation>Usuń ...</translation>
    </message>
    <message>
        <source>This was left unsaved when the program ended. What is not opened now is offered again at the next start.</source>
        <translation>To pozostało niezapisane, gdy program się zakończył. Co nie zostanie teraz otwarte, będzie zaproponowane przy następnym uruchomieniu.</translation>
    </message>
    <message>
        <source>One order can be open at a time</source>
        <translation>Otwarte może być tylko jedno zamówienie</translation>
    </message>
    <message>
        <source>Delete this unsaved work for good?</source>
        <translation>Usunąć tę niezapisaną pracę bezpowrotnie?</translation>
    </message>
</context>
<context>
    <name>repairOffer</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing</source>
        <translation>Naprawianie</translation>
    </message>
    <message>
        <source>there is nothing to mend</source>
        <translation>nie ma czego naprawiać</translation>
    </message>
    <message>
        <source>The file %1 is damaged. This would make it readable; the file itself stays as it is:</source>
        <translation>Plik %1 jest uszkodzony. To uczyni go czytelnym, sam plik pozostanie bez zmian:</translation>
    </message>
    <message>
        <source>Open repaired copy</source>
        <translation>Otwórz naprawioną kopię</translation>
    </message>
    <message>
        <source>Mended or dropped in the repaired copy: </source>
        <translation>Naprawione lub pominięte w kopii: </translation>
    </message>
</context>
<context>
    <name>replaceMaterialDialog</name>
    <message>
        <source>Replace material</source>
        <translation>Zastępowanie materiału</translation>
    </message>
    <message>
        <source>&amp;Material to replace</source>
        <translation>&amp;Materiał zastępowany</translation>
    </message>
    <message>
        <source>&amp;Search ...</source>
        <translation>&amp;Szukaj ...</translation>
    </message>
    <message>
        <source>&amp;New material</source>
        <translation>&amp;Nowy materiał</translation>
    </message>
    <message>
        <source>S&amp;earch ...</source>
        <translation>Sz&amp;ukaj ...</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Co się zmieni</translation>
    </message>
    <message>
        <source>File, line</source>
        <translation>Plik, pozycja</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>Mark &amp;all</source>
        <translation>Zaznacz &amp;wszystko</translation>
    </message>
    <message>
        <source>Mark n&amp;one</source>
        <translation>&amp;Odznacz wszystko</translation>
    </message>
    <message>
        <source>KTM, or words to search for and Return</source>
        <translation>KTM albo szukane słowa i Enter</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>bez statusu</translation>
    </message>
    <message>
        <source>in no database</source>
        <translation>brak w bazach</translation>
    </message>
    <message>
        <source>open: changed in its window, not saved</source>
        <translation>otwarty: zmiana w jego oknie, bez zapisu</translation>
    </message>
    <message>
        <source>New order</source>
        <translation>Nowe zamówienie</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Pozycja %1</translation>
    </message>
    <message>
        <source>no list and no order has the material</source>
        <translation>nie ma tego materiału na żadnej liście ani w zamówieniu</translation>
    </message>
    <message>
        <source>nothing is marked</source>
        <translation>nic nie zaznaczono</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) to replace</source>
        <translation>
            <numerusform>%n pozycja do zastąpienia</numerusform>
            <numerusform>%n pozycje do zastąpienia</numerusform>
            <numerusform>%n pozycji do zastąpienia</numerusform>
        </translation>
    </message>
    <message>
        <source>lists and orders: %1 of %2</source>
        <translation>listy i zamówienia: %1 z %2</translation>
    </message>
    <message numerus="yes">
        <source>%n cannot be changed</source>
        <translation>
            <numerusform>%n nie można zmienić</numerusform>
            <numerusform>%n nie można zmienić</numerusform>
            <numerusform>%n nie można zmienić</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>reportSaving</name>
    <message>
        <source>Save to File</source>
        <translation>Zapisz do pliku</translation>
    </message>
    <message>
        <source>Html File</source>
        <translation>Plik HTML</translation>
    </message>
    <message>
        <source>Pdf File</source>
        <translation>Plik PDF</translation>
    </message>
    <message>
        <source>Xlsx File</source>
        <translation>Plik XLSX</translation>
    </message>
    <message>
        <source>CSV File</source>
        <translation>Plik CSV</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukowanie</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Zapisano jako %1</translation>
    </message>
</context>
<context>
    <name>requestsWindow</name>
    <message>
        <source>Requests for quotation</source>
        <translation>Zapytania ofertowe</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Zapytanie</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Deadline</source>
        <translation>Termin</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Reminded</source>
        <translation>Przypomniano</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Adresy</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiały</translation>
    </message>
    <message>
        <source>Requests for quotation for %1</source>
        <translation>Zapytania ofertowe do %1</translation>
    </message>
    <message>
        <source>No firm was asked yet: New requests (Ctrl+N)</source>
        <translation>Nie zapytano jeszcze żadnej firmy: Nowe zapytania (Ctrl+N)</translation>
    </message>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>%n zapytanie</numerusform>
            <numerusform>%n zapytania</numerusform>
            <numerusform>%n zapytań</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without an offer</source>
        <translation>
            <numerusform>%n bez oferty</numerusform>
            <numerusform>%n bez oferty</numerusform>
            <numerusform>%n bez oferty</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <translation>
            <numerusform>%n po terminie</numerusform>
            <numerusform>%n po terminie</numerusform>
            <numerusform>%n po terminie</numerusform>
        </translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>nie wysłano</translation>
    </message>
    <message>
        <source>no request is selected</source>
        <translation>nie zaznaczono zapytania</translation>
    </message>
    <message>
        <source>several requests are selected</source>
        <translation>zaznaczono kilka zapytań</translation>
    </message>
    <message>
        <source>there is no order</source>
        <translation>nie ma zamówienia</translation>
    </message>
    <message>
        <source>an offer has come from each selected firm</source>
        <translation>od każdej zaznaczonej firmy przyszła już oferta</translation>
    </message>
    <message>
        <source>Writing requests</source>
        <translation>Pisanie zapytań</translation>
    </message>
    <message>
        <source>Writing messages</source>
        <translation>Pisanie wiadomości</translation>
    </message>
    <message numerus="yes">
        <source>%n message(s) handed to the mail program</source>
        <translation>
            <numerusform>przekazano %n wiadomość programowi pocztowemu</numerusform>
            <numerusform>przekazano %n wiadomości programowi pocztowemu</numerusform>
            <numerusform>przekazano %n wiadomości programowi pocztowemu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n only written</source>
        <translation>
            <numerusform>%n tylko zapisano</numerusform>
            <numerusform>%n tylko zapisano</numerusform>
            <numerusform>%n tylko zapisano</numerusform>
        </translation>
    </message>
    <message>
        <source>the rest was cancelled</source>
        <translation>resztę anulowano</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>Brakuje %1</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>Skopiowano %n wiersz</numerusform>
            <numerusform>Skopiowano %n wiersze</numerusform>
            <numerusform>Skopiowano %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>The requests are as the order&apos;s file of offers is</source>
        <translation>Zapytania są takie jak w pliku ofert zamówienia</translation>
    </message>
    <message>
        <source>The details of the firms in %1 cannot be read</source>
        <translation>Nie można przeczytać danych firm w %1</translation>
    </message>
    <message>
        <source>no firm was asked yet</source>
        <translation>nie zapytano jeszcze żadnej firmy</translation>
    </message>
    <message>
        <source>The folder cannot be shown: %1</source>
        <translation>Nie można pokazać folderu: %1</translation>
    </message>
</context>
<context>
    <name>reservationsDialog</name>
    <message>
        <source>Reservations and built boards</source>
        <translation>Rezerwacje i zmontowane płytki</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Płytka</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Zestawy</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Baza</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Zwolnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>zarezerwowana</translation>
    </message>
    <message>
        <source>built</source>
        <translation>zmontowana</translation>
    </message>
    <message numerus="yes">
        <source>%n board(s) reserved</source>
        <translation>
            <numerusform>%n zarezerwowana płytka</numerusform>
            <numerusform>%n zarezerwowane płytki</numerusform>
            <numerusform>%n zarezerwowanych płytek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n built</source>
        <translation>
            <numerusform>%n zmontowana</numerusform>
            <numerusform>%n zmontowane</numerusform>
            <numerusform>%n zmontowanych</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>Free the stock of the selected boards</source>
        <translation>Zwolnij stan wybranych płytek</translation>
    </message>
    <message>
        <source>no reservation is selected</source>
        <translation>nie wybrano rezerwacji</translation>
    </message>
    <message>
        <source>Release what is reserved for %1?</source>
        <translation>Zwolnić to, co zarezerwowano dla: %1?</translation>
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
    <message>
        <source>Keep the changes of the text?</source>
        <translation>Zachować zmiany tekstu?</translation>
    </message>
    <message>
        <source>%1 is no address of a page, of mail or of a file server</source>
        <translation>%1 nie jest adresem strony, poczty ani serwera plików</translation>
    </message>
</context>
<context>
    <name>safeFile</name>
    <message>
        <source>no file can stand there</source>
        <translation>nie może tam być pliku</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>nie można utworzyć jego folderu</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>plik jest tylko do odczytu</translation>
    </message>
</context>
<context>
    <name>searchLine</name>
    <message>
        <source>Words to search for</source>
        <translation>Szukane słowa</translation>
    </message>
    <message>
        <source>Name, KTM, value, part number: 100n 0603, case:SOT23, price:&lt;2</source>
        <translation>Nazwa, KTM, wartość, numer: 100n 0603, obudowa:SOT23, cena:&lt;2</translation>
    </message>
    <message>
        <source>Kept and last searches</source>
        <translation>Zachowane i ostatnie wyszukiwania</translation>
    </message>
    <message>
        <source>Kept and last searches (Alt+Down)</source>
        <translation>Zachowane i ostatnie wyszukiwania (Alt+strzałka w dół)</translation>
    </message>
    <message>
        <source>Keep this search ...</source>
        <translation>Zachowaj to wyszukiwanie ...</translation>
    </message>
    <message>
        <source>nothing is searched for</source>
        <translation>pole wyszukiwania jest puste</translation>
    </message>
    <message>
        <source>Kept searches</source>
        <translation>Zachowane wyszukiwania</translation>
    </message>
    <message>
        <source>Change kept searches ...</source>
        <translation>Zmień zachowane wyszukiwania ...</translation>
    </message>
    <message>
        <source>Last searches</source>
        <translation>Ostatnie wyszukiwania</translation>
    </message>
    <message>
        <source>Forget the last searches</source>
        <translation>Zapomnij ostatnie wyszukiwania</translation>
    </message>
    <message>
        <source>Keep this search</source>
        <translation>Zachowaj to wyszukiwanie</translation>
    </message>
    <message>
        <source>Name of the search %1</source>
        <translation>Nazwa wyszukiwania %1</translation>
    </message>
    <message>
        <source>There is a kept search %1: %2</source>
        <translation>Jest już zachowane wyszukiwanie %1: %2</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Zastąp</translation>
    </message>
</context>
<context>
    <name>searchQuery</name>
    <message>
        <source>There is no field %1</source>
        <translation>Nie ma pola %1</translation>
    </message>
    <message>
        <source>The field %1 is no number to compare with</source>
        <translation>Pole %1 nie jest liczbą, z którą można porównywać</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 nie jest liczbą</translation>
    </message>
    <message>
        <source>%1 is no number; a text goes in quotes</source>
        <translation>%1 nie jest liczbą; tekst wpisz w cudzysłowie</translation>
    </message>
    <message>
        <source>%1 is neither yes nor no</source>
        <translation>%1 to ani tak, ani nie</translation>
    </message>
</context>
<context>
    <name>sharedLibrary</name>
    <message>
        <source>a library is made on a PostgreSQL server only</source>
        <translation>biblioteka powstaje tylko na serwerze PostgreSQL</translation>
    </message>
    <message>
        <source>only an administrator of the store may make its library, and %1 is none</source>
        <translation>bibliotekę może utworzyć tylko administrator wspólnej bazy, a %1 nim nie jest</translation>
    </message>
    <message>
        <source>the store has no material database %1</source>
        <translation>we wspólnej bazie nie ma bazy materiałów %1</translation>
    </message>
    <message>
        <source>the library belongs to %1, who alone may make it again</source>
        <translation>biblioteka należy do %1 i tylko on może ją utworzyć ponownie</translation>
    </message>
    <message>
        <source>the library is made the first time by the owner of the database, or after: %1</source>
        <translation>za pierwszym razem bibliotekę tworzy właściciel bazy danych albo można to zrobić po: %1</translation>
    </message>
    <message>
        <source>Read on this computer only, by the address</source>
        <translation>Do odczytu tylko na tym komputerze, pod adresem</translation>
    </message>
</context>
<context>
    <name>stagedLinesModel</name>
    <message numerus="yes">
        <source>choose of %n</source>
        <translation>
            <numerusform>do wyboru: %n</numerusform>
            <numerusform>do wyboru: %n</numerusform>
            <numerusform>do wyboru: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Part in the file</source>
        <translation>Element w pliku</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Materiał</translation>
    </message>
    <message>
        <source>Found by</source>
        <translation>Znaleziono po</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Uwagi</translation>
    </message>
</context>
<context>
    <name>startUp</name>
    <message>
        <source>Changed by you, too</source>
        <translation>Zmieniony także przez Ciebie</translation>
    </message>
    <message>
        <source>The shared files are newer than your copies</source>
        <translation>Wspólne pliki są nowsze niż Twoje kopie</translation>
    </message>
    <message>
        <source>Shared file of</source>
        <translation>Wspólny plik z</translation>
    </message>
    <message>
        <source>Your copy</source>
        <translation>Twoja kopia</translation>
    </message>
    <message>
        <source>The updated program has not started completely. Go back to the one before it?</source>
        <translation>Zaktualizowany program nie uruchomił się w całości. Wrócić do poprzedniego?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Wróć</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>%1, line %2: this is no row of a shared document</source>
        <translation>%1, wiersz %2: to nie jest wiersz wspólnego dokumentu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option of an address that is known here</source>
        <translation>&quot;%1&quot; nie jest znaną opcją adresu</translation>
    </message>
    <message>
        <source>the address holds a password: leave it out, and it is asked for</source>
        <translation>adres zawiera hasło: pomiń je, program o nie zapyta</translation>
    </message>
    <message>
        <source>the address is not of the form postgresql://user@server/database</source>
        <translation>adres nie ma postaci postgresql://użytkownik@serwer/baza</translation>
    </message>
    <message>
        <source>the driver %1 of Qt is not installed</source>
        <translation>sterownik %1 biblioteki Qt nie jest zainstalowany</translation>
    </message>
    <message>
        <source>there is no shared store yet, or you may not read it: %1</source>
        <translation>wspólnej bazy jeszcze nie ma albo nie wolno Ci jej czytać: %1</translation>
    </message>
    <message>
        <source>the shared store is of version %1, and this program knows version %2</source>
        <translation>wspólna baza ma wersję %1, a ten program zna wersję %2</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>nie można go odczytać</translation>
    </message>
    <message>
        <source>the file was not written</source>
        <translation>plik nie został zapisany</translation>
    </message>
    <message>
        <source>the configuration names no shared store</source>
        <translation>konfiguracja nie podaje wspólnej bazy</translation>
    </message>
    <message>
        <source>this document is not shared</source>
        <translation>ten dokument nie jest wspólny</translation>
    </message>
    <message>
        <source>it is open elsewhere: %1</source>
        <translation>jest otwarty gdzie indziej: %1</translation>
    </message>
    <message>
        <source>it was changed meanwhile</source>
        <translation>w międzyczasie został zmieniony</translation>
    </message>
    <message>
        <source>this document is shared already</source>
        <translation>ten dokument jest już wspólny</translation>
    </message>
    <message>
        <source>documents of this kind are not shared</source>
        <translation>dokumenty tego rodzaju nie są wspólne</translation>
    </message>
    <message>
        <source>there is such a file already</source>
        <translation>taki plik już istnieje</translation>
    </message>
    <message>
        <source>the material did not exist then</source>
        <translation>materiału wtedy nie było</translation>
    </message>
    <message>
        <source>added</source>
        <translation>dodano</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>usunięto</translation>
    </message>
    <message>
        <source>restored</source>
        <translation>przywrócono</translation>
    </message>
    <message>
        <source>moved from %1 to %2</source>
        <translation>przeniesiono z %1 do %2</translation>
    </message>
    <message>
        <source>this document belongs to another shared store</source>
        <translation>ten dokument należy do innej wspólnej bazy</translation>
    </message>
    <message>
        <source>there is a document of that name in the shared store: clone it</source>
        <translation>we wspólnej bazie jest już dokument o tej nazwie: pobierz go</translation>
    </message>
    <message>
        <source>the shared store has no such document</source>
        <translation>we wspólnej bazie nie ma takiego dokumentu</translation>
    </message>
    <message>
        <source>the shared store was changed by somebody else meanwhile</source>
        <translation>w międzyczasie ktoś inny zmienił wspólną bazę</translation>
    </message>
    <message>
        <source>the shared store is older than this document: it was restored from an earlier state. Clone it anew</source>
        <translation>wspólna baza jest starsza niż ten dokument: przywrócono jej wcześniejszy stan. Pobierz dokument od nowa</translation>
    </message>
    <message>
        <source>you may read the shared store, but not change it</source>
        <translation>wspólną bazę wolno Ci czytać, ale nie zmieniać</translation>
    </message>
</context>
<context>
    <name>storeAccess</name>
    <message>
        <source>Shared store</source>
        <translation>Wspólna baza</translation>
    </message>
    <message>
        <source>This password is wrong. Password for %1:</source>
        <translation>To hasło jest błędne. Hasło dla %1:</translation>
    </message>
    <message>
        <source>Password for %1:</source>
        <translation>Hasło dla %1:</translation>
    </message>
    <message>
        <source>The password cannot be kept: this desktop has no store of secrets.</source>
        <translation>Nie można zachować hasła: ten pulpit nie ma magazynu haseł.</translation>
    </message>
    <message>
        <source>Looking for the shared store</source>
        <translation>Szukanie wspólnej bazy</translation>
    </message>
    <message>
        <source>The shared store cannot be reached. </source>
        <translation>Nie można połączyć się ze wspólną bazą. </translation>
    </message>
    <message>
        <source>Synchronising</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Changes here and by others</source>
        <translation>Zmiany tutaj i innych osób</translation>
    </message>
    <message>
        <source>Nothing was put into the shared store</source>
        <translation>Niczego nie umieszczono we wspólnej bazie</translation>
    </message>
    <message>
        <source>Put into the shared store</source>
        <translation>Umieszczenie we wspólnej bazie</translation>
    </message>
    <message>
        <source>&amp;Name that others find it by:</source>
        <translation>&amp;Nazwa, pod którą znajdą go inni:</translation>
    </message>
    <message>
        <source>Putting it into the shared store</source>
        <translation>Umieszczanie we wspólnej bazie</translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) are in the shared store</source>
        <translation>
            <numerusform>We wspólnej bazie jest %n rekord</numerusform>
            <numerusform>We wspólnej bazie są %n rekordy</numerusform>
            <numerusform>We wspólnej bazie jest %n rekordów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>supplierBasket</name>
    <message>
        <source>the quantity is no number above 0; the line is left out</source>
        <translation>ilość nie jest liczbą większą od 0; pozycję pominięto</translation>
    </message>
    <message>
        <source>in no database</source>
        <translation>brak w bazach</translation>
    </message>
    <message>
        <source>the material has no supplier</source>
        <translation>materiał nie ma dostawcy</translation>
    </message>
    <message>
        <source>no part number</source>
        <translation>brak numeru części</translation>
    </message>
</context>
<context>
    <name>tableDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Show only what holds this text</source>
        <translation>Pokaż tylko to, co zawiera ten tekst</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all that are shown</source>
        <translation>Kopiuj zaznaczone wiersze albo wszystkie pokazane</translation>
    </message>
</context>
<context>
    <name>typed</name>
    <message>
        <source>%1: either a comma or a point, before the decimals</source>
        <translation>%1: przecinek albo kropka, tylko przed ułamkiem</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 nie jest liczbą</translation>
    </message>
    <message>
        <source>%1: the unit here is %2</source>
        <translation>%1: jednostką jest tu %2</translation>
    </message>
    <message>
        <source>%1: only a whole number makes sense here</source>
        <translation>%1: tu ma sens tylko liczba całkowita</translation>
    </message>
    <message numerus="yes">
        <source>%1: at most %n decimal(s)</source>
        <translation>
            <numerusform>%1: najwyżej %n miejsce po przecinku</numerusform>
            <numerusform>%1: najwyżej %n miejsca po przecinku</numerusform>
            <numerusform>%1: najwyżej %n miejsc po przecinku</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: from %2 to %3</source>
        <translation>%1: od %2 do %3</translation>
    </message>
    <message>
        <source>%1 is no date: write 24.12, 24.12.2026 or +14</source>
        <translation>%1 nie jest datą: wpisz 24.12, 24.12.2026 albo +14</translation>
    </message>
    <message>
        <source>%1: dates from %2 to %3</source>
        <translation>%1: daty od %2 do %3</translation>
    </message>
</context>
<context>
    <name>updateWindow</name>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>What is on offer</source>
        <translation>Co jest do pobrania</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Część</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tutaj</translation>
    </message>
    <message>
        <source>On offer</source>
        <translation>Do pobrania</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Co nowego</translation>
    </message>
    <message>
        <source>What it changes here</source>
        <translation>Co tutaj zmienia</translation>
    </message>
    <message>
        <source>What it changes here is shown once it is downloaded, before it is put in place</source>
        <translation>Co tutaj zmienia, widać po pobraniu, przed umieszczeniem na miejscu</translation>
    </message>
    <message>
        <source>The configuration names no address of updates</source>
        <translation>Konfiguracja nie podaje adresu aktualizacji</translation>
    </message>
    <message>
        <source>Looking for updates</source>
        <translation>Szukanie aktualizacji</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>newer</source>
        <translation>nowsza</translation>
    </message>
    <message>
        <source>lower than here</source>
        <translation>niższa niż tutaj</translation>
    </message>
    <message>
        <source>as it is here</source>
        <translation>taka jak tutaj</translation>
    </message>
    <message>
        <source>There is something newer</source>
        <translation>Jest coś nowszego</translation>
    </message>
    <message>
        <source>Everything is up to date</source>
        <translation>Wszystko jest aktualne</translation>
    </message>
    <message>
        <source>made on %1</source>
        <translation>utworzono %1</translation>
    </message>
    <message>
        <source>signed with the key that came with the program</source>
        <translation>podpisano kluczem dołączonym do programu</translation>
    </message>
    <message>
        <source>nobody signed it</source>
        <translation>nikt tego nie podpisał</translation>
    </message>
    <message>
        <source>nothing is ticked</source>
        <translation>nic nie zaznaczono</translation>
    </message>
    <message>
        <source>no update has replaced anything</source>
        <translation>żadna aktualizacja niczego nie zastąpiła</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>Cancelled; nothing was changed</source>
        <translation>Anulowano; niczego nie zmieniono</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Porównywanie</translation>
    </message>
    <message numerus="yes">
        <source>%n BOM list(s)</source>
        <translation>
            <numerusform>%n lista materiałów</numerusform>
            <numerusform>%n listy materiałów</numerusform>
            <numerusform>%n list materiałów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) with materials that change</source>
        <translation>
            <numerusform>%n zamówienie z materiałami, które się zmieniają</numerusform>
            <numerusform>%n zamówienia z materiałami, które się zmieniają</numerusform>
            <numerusform>%n zamówień z materiałami, które się zmieniają</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 added, %3 changed, %4 removed</source>
        <translation>%1: dodano %2, zmieniono %3, usunięto %4</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of the program</source>
        <translation>
            <numerusform>%n plik programu</numerusform>
            <numerusform>%n pliki programu</numerusform>
            <numerusform>%n plików programu</numerusform>
        </translation>
    </message>
    <message>
        <source>Save or close what is changed first; an update merges files as they are saved.</source>
        <translation>Najpierw zapisz lub zamknij to, co zmieniono; aktualizacja scala pliki w zapisanej postaci.</translation>
    </message>
    <message>
        <source>Put the update in place? The program is begun anew then.</source>
        <translation>Umieścić aktualizację na miejscu? Program uruchomi się potem ponownie.</translation>
    </message>
    <message>
        <source>Put the update in place?</source>
        <translation>Umieścić aktualizację na miejscu?</translation>
    </message>
    <message>
        <source>Put it in place</source>
        <translation>Umieść na miejscu</translation>
    </message>
    <message>
        <source>The update is in place</source>
        <translation>Aktualizacja jest na miejscu</translation>
    </message>
    <message>
        <source>Data are read again at the next start. Begin the program anew now?</source>
        <translation>Dane zostaną wczytane ponownie przy następnym uruchomieniu. Uruchomić program ponownie teraz?</translation>
    </message>
    <message>
        <source>Go back from version %1 to %2? The program is begun anew; data stay as they are.</source>
        <translation>Wrócić z wersji %1 do %2? Program uruchomi się ponownie; dane pozostają bez zmian.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Wróć</translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message>
        <source>Line %1 of the list of files is damaged</source>
        <translation>Wiersz %1 listy plików jest uszkodzony</translation>
    </message>
    <message>
        <source>%1 is not in the list of files</source>
        <translation>%1 nie ma na liście plików</translation>
    </message>
    <message>
        <source>%1 is not the file that the list of files names</source>
        <translation>%1 nie jest plikiem z listy plików</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>Nie można uruchomić %1</translation>
    </message>
    <message>
        <source>%1 refuses it</source>
        <translation>%1 to odrzuca</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>Brakuje %1</translation>
    </message>
    <message>
        <source>%1 is there already</source>
        <translation>%1 już istnieje</translation>
    </message>
    <message>
        <source>Another program is updating, or cannot write %1</source>
        <translation>Inny program właśnie aktualizuje albo nie może zapisać %1</translation>
    </message>
    <message>
        <source>%1 cannot be replaced now; it is replaced at the next start</source>
        <translation>Nie można teraz zastąpić %1; nastąpi to przy następnym uruchomieniu</translation>
    </message>
    <message>
        <source>There is no version to go back to</source>
        <translation>Nie ma wersji, do której można wrócić</translation>
    </message>
    <message>
        <source>%1: %2 is not newer than %3</source>
        <translation>%1: %2 nie jest nowsze niż %3</translation>
    </message>
    <message>
        <source>Nothing is chosen</source>
        <translation>Nic nie wybrano</translation>
    </message>
    <message>
        <source>%1 leads out of the folder</source>
        <translation>%1 prowadzi poza folder</translation>
    </message>
    <message>
        <source>%1 is no address of secure copy</source>
        <translation>%1 nie jest adresem bezpiecznego kopiowania</translation>
    </message>
    <message>
        <source>It was cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>%1 is open elsewhere: %2</source>
        <translation>%1 jest otwarty gdzie indziej: %2</translation>
    </message>
    <message>
        <source>was changed here, and is not removed</source>
        <translation>zmieniono tutaj, plik nie zostanie usunięty</translation>
    </message>
    <message>
        <source>was changed here, and stays as it is</source>
        <translation>zmieniono tutaj, plik pozostaje bez zmian</translation>
    </message>
    <message>
        <source>%1 cannot be merged</source>
        <translation>Nie można scalić %1</translation>
    </message>
    <message>
        <source>was changed here, and merged</source>
        <translation>zmieniono tutaj, scalono</translation>
    </message>
    <message numerus="yes">
        <source>was changed here, and merged; %n text(s) stay yours</source>
        <translation>
            <numerusform>zmieniono tutaj, scalono; %n tekst pozostaje Twój</numerusform>
            <numerusform>zmieniono tutaj, scalono; %n teksty pozostają Twoje</numerusform>
            <numerusform>zmieniono tutaj, scalono; %n tekstów pozostaje Twoich</numerusform>
        </translation>
    </message>
    <message>
        <source>The program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>BOM lists</source>
        <translation>Listy materiałów</translation>
    </message>
    <message>
        <source>Register of firms</source>
        <translation>Rejestr firm</translation>
    </message>
    <message>
        <source>Database of services</source>
        <translation>Baza usług</translation>
    </message>
    <message>
        <source>Database of the warehouse</source>
        <translation>Baza magazynu</translation>
    </message>
    <message>
        <source>Database of mechanics</source>
        <translation>Baza mechaniki</translation>
    </message>
    <message>
        <source>%1 is no name of a file</source>
        <translation>%1 nie jest nazwą pliku</translation>
    </message>
    <message>
        <source>Command %1, &quot;%2&quot;: %3</source>
        <translation>Polecenie %1, „%2”: %3</translation>
    </message>
    <message>
        <source>it is not known</source>
        <translation>jest nieznane</translation>
    </message>
    <message>
        <source>%1 cannot be unpacked: %2</source>
        <translation>Nie można rozpakować %1: %2</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 nie jest plikiem</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 jest folderem</translation>
    </message>
    <message>
        <source>%1 may not be changed</source>
        <translation>Nie wolno zmieniać %1</translation>
    </message>
    <message>
        <source>it is not signed</source>
        <translation>nie jest podpisana</translation>
    </message>
    <message>
        <source>The update is refused: %1</source>
        <translation>Aktualizacja odrzucona: %1</translation>
    </message>
    <message>
        <source>%1 is not on offer</source>
        <translation>%1: brak w aktualizacji</translation>
    </message>
    <message>
        <source>The program&apos;s folder cannot be written: the package is %1</source>
        <translation>Nie można zapisywać w folderze programu: pakiet to %1</translation>
    </message>
    <message>
        <source>%1 is larger than it should be</source>
        <translation>%1 jest większy, niż powinien</translation>
    </message>
    <message>
        <source>%1 broke off</source>
        <translation>%1: przerwano</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 nie odpowiada</translation>
    </message>
    <message>
        <source>The configuration has no account of the server</source>
        <translation>Konfiguracja nie ma konta serwera</translation>
    </message>
    <message>
        <source>%1 is no address of updates</source>
        <translation>%1 nie jest adresem aktualizacji</translation>
    </message>
    <message>
        <source>%1 leads away from the address</source>
        <translation>%1 prowadzi poza adres</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>nie można odczytać</translation>
    </message>
    <message>
        <source>The folder is missing</source>
        <translation>Brakuje folderu</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no release, as 12 or 1.4 is</source>
        <translation>%1: „%2” nie jest wydaniem, takim jak 12 lub 1.4</translation>
    </message>
    <message>
        <source>%1: the file is missing: %2</source>
        <translation>%1: brak pliku: %2</translation>
    </message>
    <message>
        <source>%1 lies outside of %2</source>
        <translation>%1 leży poza %2</translation>
    </message>
    <message>
        <source>it cannot be replaced</source>
        <translation>nie można zastąpić</translation>
    </message>
    <message>
        <source>the files before are in %1</source>
        <translation>poprzednie pliki są w %1</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>trwało to zbyt długo</translation>
    </message>
    <message>
        <source>A file was changed meanwhile; nothing was put in place. Install it again</source>
        <translation>Plik zmieniono w międzyczasie; niczego nie umieszczono na miejscu. Zainstaluj ponownie</translation>
    </message>
</context>
<context>
    <name>versionsWindow</name>
    <message>
        <source>added</source>
        <translation>dodano</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>usunięto</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>przeniesiono</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>zmieniono</translation>
    </message>
    <message>
        <source>Versions and unsaved orders</source>
        <translation>Wersje i niezapisane zamówienia</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Różnica</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Wtedy</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>A part of the file&apos;s name or folder</source>
        <translation>Część nazwy pliku lub folderu</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Różnice</translation>
    </message>
    <message>
        <source>unsaved order</source>
        <translation>niezapisane zamówienie</translation>
    </message>
    <message>
        <source>version</source>
        <translation>wersja</translation>
    </message>
    <message>
        <source>No version is kept</source>
        <translation>Nie zachowano żadnej wersji</translation>
    </message>
    <message>
        <source>no version selected</source>
        <translation>nie wybrano wersji</translation>
    </message>
    <message>
        <source>it is not known which file it is of</source>
        <translation>nie wiadomo, z którego pliku pochodzi</translation>
    </message>
    <message>
        <source>the file now</source>
        <translation>obecnego pliku</translation>
    </message>
    <message>
        <source>the version of %1</source>
        <translation>wersji z %1</translation>
    </message>
    <message>
        <source>There is no file to compare it with</source>
        <translation>Nie ma pliku do porównania</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Porównywanie</translation>
    </message>
    <message>
        <source>Comparing was cancelled</source>
        <translation>Porównywanie przerwano</translation>
    </message>
    <message>
        <source>It cannot be compared: %1</source>
        <translation>Nie można porównać: %1</translation>
    </message>
    <message>
        <source>Nothing differs from %1</source>
        <translation>Brak różnic względem %1</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s) from %1</source>
        <translation>
            <numerusform>%n różnica względem %1</numerusform>
            <numerusform>%n różnice względem %1</numerusform>
            <numerusform>%n różnic względem %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the first %1 are shown</source>
        <translation>pokazano pierwsze %1</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>uszkodzona</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>unsaved changes</source>
        <translation>niezapisane zmiany</translation>
    </message>
</context>
<context>
    <name>warehouseListing</name>
    <message>
        <source>Stands again further down, this one not used</source>
        <translation>Występuje ponownie niżej, ta pozycja pominięta</translation>
    </message>
    <message>
        <source>Error in KTM line</source>
        <translation>Błąd w wierszu KTM</translation>
    </message>
    <message>
        <source>Does not exist in databases</source>
        <translation>Nie istnieje w bazach</translation>
    </message>
</context>
<context>
    <name>withoutCodeRows</name>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Pozycja</translation>
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
<context>
    <name>workbook</name>
    <message>
        <source>the file cannot be written</source>
        <translation>nie można zapisać pliku</translation>
    </message>
</context>
<context>
    <name>workbookReader</name>
    <message>
        <source>is no workbook, or a damaged one</source>
        <translation>nie jest skoroszytem albo jest uszkodzony</translation>
    </message>
    <message>
        <source>the sheet %1 is damaged, or too large</source>
        <translation>arkusz %1 jest uszkodzony albo za duży</translation>
    </message>
    <message>
        <source>holds no sheet</source>
        <translation>nie zawiera arkusza</translation>
    </message>
</context>
<context>
    <name>zip_compress</name>
    <message>
        <source>Folder does not exist</source>
        <translation>Folder nie istnieje</translation>
    </message>
    <message>
        <source>File cannot be replaced</source>
        <translation>Nie można zastąpić pliku</translation>
    </message>
    <message>
        <source>Compression complete</source>
        <translation>Zakończono kompresję</translation>
    </message>
    <message>
        <source>Compression start</source>
        <translation>Rozpoczęto kompresję</translation>
    </message>
    <message>
        <source>Archive cannot be read</source>
        <translation>Nie można odczytać archiwum</translation>
    </message>
    <message>
        <source>Archive entry lies outside the folder</source>
        <translation>Element archiwum wykracza poza folder docelowy</translation>
    </message>
    <message>
        <source>Folder cannot be created</source>
        <translation>Nie można utworzyć folderu</translation>
    </message>
    <message>
        <source>Decompression complete</source>
        <translation>Zakończono dekompresję</translation>
    </message>
    <message>
        <source>Archive unpacks to more than it may</source>
        <translation>Archiwum rozpakowuje się do większego rozmiaru, niż wolno</translation>
    </message>
</context>
</TS>
