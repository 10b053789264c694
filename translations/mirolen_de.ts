<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>mirolen</name>
    <message>
        <source> FW = </source>
        <translation> Wert = </translation>
    </message>
    <message>
        <source> and less than </source>
        <translation> und weniger als </translation>
    </message>
    <message>
        <source> must be finite</source>
        <translation> muss endlich sein</translation>
    </message>
    <message>
        <source>, more than </source>
        <translation>, mehr als </translation>
    </message>
    <message>
        <source>2D Contour Plot</source>
        <translation>2D-Konturplot</translation>
    </message>
    <message>
        <source>2D Contour Plot </source>
        <translation>2D-Konturplot </translation>
    </message>
    <message>
        <source>2D Plot</source>
        <translation>2D-Plot</translation>
    </message>
    <message>
        <source>2D Sigma Range Plot</source>
        <translation>2D-Sigmaplot</translation>
    </message>
    <message>
        <source>2D Value Plot</source>
        <translation>2D-Werteplot</translation>
    </message>
    <message>
        <source>3D Bar Plot</source>
        <translation>3D-Balkenplot</translation>
    </message>
    <message>
        <source>3D Plot</source>
        <translation>3D-Plot</translation>
    </message>
    <message>
        <source>3D Sigma Range Plot</source>
        <translation>3D-Sigmaplot</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Info...</translation>
    </message>
    <message>
        <source>Angle :</source>
        <translation>Winkel:</translation>
    </message>
    <message>
        <source>Angle value must be between 0 and 359</source>
        <translation>Der Winkel muss zwischen 0 und 359 liegen</translation>
    </message>
    <message>
        <source>Angle: </source>
        <translation>Winkel: </translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Bar depth </source>
        <translation>Die Balkentiefe </translation>
    </message>
    <message>
        <source>Bar depth:</source>
        <translation>Balkentiefe:</translation>
    </message>
    <message>
        <source>Bar width </source>
        <translation>Die Balkenbreite </translation>
    </message>
    <message>
        <source>Bar width:</source>
        <translation>Balkenbreite:</translation>
    </message>
    <message>
        <source>Base Line:</source>
        <translation>Grundlinie:</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarz-weiß</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>By angle</source>
        <translation>Nach Winkel</translation>
    </message>
    <message>
        <source>By points</source>
        <translation>Nach Punkten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Farben:</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Umgerechnet</translation>
    </message>
    <message>
        <source>Define Plot Options</source>
        <translation>Plotoptionen festlegen</translation>
    </message>
    <message>
        <source>Difference of Mean, Maximum, and Minimum too small</source>
        <translation>Mittelwert, Maximum und Minimum liegen zu nahe beieinander</translation>
    </message>
    <message>
        <source>End point:</source>
        <translation>Ende:</translation>
    </message>
    <message>
        <source>Enter a numeric experssion</source>
        <translation>Bitte eine Zahl eingeben</translation>
    </message>
    <message>
        <source>Equip Info:</source>
        <translation>Anlage:</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Genau</translation>
    </message>
    <message>
        <source>FAB Name:</source>
        <translation>Fab:</translation>
    </message>
    <message>
        <source>Filename:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Abflachung</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Hi/Lo Var:</source>
        <translation>Max/Min:</translation>
    </message>
    <message>
        <source>Hidden Wire Frame</source>
        <translation>Drahtgitter, verdeckt</translation>
    </message>
    <message>
        <source>Hidden wire frame</source>
        <translation>Drahtgitter, verdeckt</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide Plot Legend:</source>
        <translation>Legende ausblenden</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Inclination :</source>
        <translation>Neigung:</translation>
    </message>
    <message>
        <source>Inclination:</source>
        <translation>Neigung:</translation>
    </message>
    <message>
        <source>Input Error</source>
        <translation>Eingabefehler</translation>
    </message>
    <message>
        <source>Interval </source>
        <translation>Das Intervall </translation>
    </message>
    <message>
        <source>Interval :</source>
        <translation>Intervall:</translation>
    </message>
    <message>
        <source>Interval : </source>
        <translation>Intervall: </translation>
    </message>
    <message>
        <source>Interval in percent</source>
        <translation>Intervall in Prozent</translation>
    </message>
    <message>
        <source>Interval: </source>
        <translation>Intervall: </translation>
    </message>
    <message>
        <source>LCL</source>
        <translation>UEG</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Legend </source>
        <translation>Legende </translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Line Scan</source>
        <translation>Linienscan</translation>
    </message>
    <message>
        <source>Lot:</source>
        <translation>Los:</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Marked Sites:</source>
        <translation>Messpunkte:</translation>
    </message>
    <message>
        <source>Maximal possible resolution is </source>
        <translation>Die größte mögliche Auflösung ist </translation>
    </message>
    <message>
        <source>Maximum:</source>
        <translation>Maximum:</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Mean:</source>
        <translation>Mittelwert:</translation>
    </message>
    <message>
        <source>Meas. Equip:</source>
        <translation>Messgerät:</translation>
    </message>
    <message>
        <source>Minimum:</source>
        <translation>Minimum:</translation>
    </message>
    <message>
        <source>MirolenViewWM, plots of wafer measurements.
The MirolenViewWM authors, MIT License.</source>
        <translation>MirolenViewWM, Plots von Wafermessungen.
Die Autoren von MirolenViewWM, MIT-Lizenz.</translation>
    </message>
    <message>
        <source>No Contour Plot possible</source>
        <translation>Kein Konturplot möglich</translation>
    </message>
    <message>
        <source>No. Sites:</source>
        <translation>Messpunkte:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Kerbe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Operator ID:</source>
        <translation>Bediener:</translation>
    </message>
    <message>
        <source>Plot Type:</source>
        <translation>Plotart:</translation>
    </message>
    <message>
        <source>Plot- Options</source>
        <translation>Plotoptionen</translation>
    </message>
    <message>
        <source>Plot- Options...</source>
        <translation>Plotoptionen...</translation>
    </message>
    <message>
        <source>Poly Edge</source>
        <translation>Polygone mit Kanten</translation>
    </message>
    <message>
        <source>Polygons</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Eigenschaften...</translation>
    </message>
    <message>
        <source>Property Pages</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <source>Range :</source>
        <translation>Bereich:</translation>
    </message>
    <message>
        <source>Range:</source>
        <translation>Spannweite:</translation>
    </message>
    <message>
        <source>Resolution </source>
        <translation>Die Auflösung </translation>
    </message>
    <message>
        <source>Resolution :</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Resolution : </source>
        <translation>Auflösung: </translation>
    </message>
    <message>
        <source>Resolution X :</source>
        <translation>Auflösung X:</translation>
    </message>
    <message>
        <source>Resolution X:</source>
        <translation>Auflösung X:</translation>
    </message>
    <message>
        <source>Resolution Y :</source>
        <translation>Auflösung Y:</translation>
    </message>
    <message>
        <source>Resolution Y:</source>
        <translation>Auflösung Y:</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Rotation :</source>
        <translation>Drehung:</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>Drehung:</translation>
    </message>
    <message>
        <source>Scale :</source>
        <translation>Maßstab:</translation>
    </message>
    <message>
        <source>Scale Factor </source>
        <translation>Der Maßstab </translation>
    </message>
    <message>
        <source>Scale factor </source>
        <translation>Der Maßstab </translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Maßstab:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Show sites</source>
        <translation>Messpunkte anzeigen</translation>
    </message>
    <message>
        <source>Sigma Range </source>
        <translation>Der Sigmabereich </translation>
    </message>
    <message>
        <source>Sigma Range : </source>
        <translation>Sigmabereich: </translation>
    </message>
    <message>
        <source>Sigma Range:</source>
        <translation>Sigmabereich:</translation>
    </message>
    <message>
        <source>Sigma range :</source>
        <translation>Sigmabereich:</translation>
    </message>
    <message>
        <source>Size </source>
        <translation>Größe </translation>
    </message>
    <message>
        <source>Sonvera.OCX ActiveX Control</source>
        <translation>Sonvera.OCX ActiveX-Steuerelement</translation>
    </message>
    <message>
        <source>Sonvera.OCX Type: </source>
        <translation>Sonvera.OCX Typ: </translation>
    </message>
    <message>
        <source>Special:</source>
        <translation>Besonderes:</translation>
    </message>
    <message>
        <source>Standard resolution to high </source>
        <translation>Standardauflösung zu groß </translation>
    </message>
    <message>
        <source>Start point and end point are identical. This is not allowed.</source>
        <translation>Anfangspunkt und Endpunkt sind gleich. Das ist nicht zulässig.</translation>
    </message>
    <message>
        <source>Start point:</source>
        <translation>Anfang:</translation>
    </message>
    <message>
        <source>Statistics </source>
        <translation>Statistik </translation>
    </message>
    <message>
        <source>Std. Dev:</source>
        <translation>Std.-Abw.:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>Form:</translation>
    </message>
    <message>
        <source>Ten colors</source>
        <translation>Zehn Farben</translation>
    </message>
    <message>
        <source>Test Diam:</source>
        <translation>Mess-Ø:</translation>
    </message>
    <message>
        <source>Test diameter :</source>
        <translation>Mess-Ø:</translation>
    </message>
    <message>
        <source>Testdiameter exeded</source>
        <translation>Messdurchmesser überschritten</translation>
    </message>
    <message>
        <source>Three colors</source>
        <translation>Drei Farben</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>UCL</source>
        <translation>OEG</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Version </source>
        <translation>Version </translation>
    </message>
    <message>
        <source>Wafer</source>
        <translation>Wafer</translation>
    </message>
    <message>
        <source>Wafer Diam:</source>
        <translation>Wafer-Ø:</translation>
    </message>
    <message>
        <source>Wafer ID:</source>
        <translation>Wafer-Nr.:</translation>
    </message>
    <message>
        <source>Wafer Remarks </source>
        <translation>Waferangaben </translation>
    </message>
    <message>
        <source>Wafer Size</source>
        <translation>Wafergröße</translation>
    </message>
    <message>
        <source>Wafer Statistics</source>
        <translation>Waferstatistik</translation>
    </message>
    <message>
        <source>Wafer diameter :</source>
        <translation>Wafer-Ø:</translation>
    </message>
    <message>
        <source>Wafer diamter can not be less than test diameter</source>
        <translation>Der Waferdurchmesser darf nicht kleiner als der Messdurchmesser sein</translation>
    </message>
    <message>
        <source>Wafer rotation :</source>
        <translation>Waferdrehung:</translation>
    </message>
    <message>
        <source>White background</source>
        <translation>Weißer Hintergrund</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Wire frame</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>X Resolution </source>
        <translation>Die Auflösung in X </translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Y Resolution </source>
        <translation>Die Auflösung in Y </translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>eine Farbe</translation>
    </message>
    <message>
        <source>a number to be shown</source>
        <translation>eine Zahl zur Anzeige</translation>
    </message>
    <message>
        <source>a picture cannot be kept as PNG</source>
        <translation>das Bild ist nicht als PNG zu speichern</translation>
    </message>
    <message>
        <source>a place on the page</source>
        <translation>ein Ort auf der Seite</translation>
    </message>
    <message>
        <source>a place or size on a canvas</source>
        <translation>ein Ort oder Maß auf einer Zeichenfläche</translation>
    </message>
    <message>
        <source>a site's number</source>
        <translation>jede Zahl eines Messpunkts</translation>
    </message>
    <message>
        <source>can not be empty</source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message>
        <source>cannot open </source>
        <translation>nicht zu öffnen: </translation>
    </message>
    <message>
        <source>classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>degrees, 0 to 360</source>
        <translation>Grad, 0 bis 360</translation>
    </message>
    <message>
        <source>division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>height of the surface</source>
        <translation>Höhe der Fläche</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>mm a unit of the value</source>
        <translation>mm je Einheit des Wertes</translation>
    </message>
    <message>
        <source>mm, not more than the wafer diameter</source>
        <translation>mm, höchstens der Waferdurchmesser</translation>
    </message>
    <message>
        <source>mm, within the test diameter</source>
        <translation>mm, innerhalb des Messdurchmessers</translation>
    </message>
    <message>
        <source>must be numeric</source>
        <translation>muss eine Zahl sein</translation>
    </message>
    <message>
        <source>no room for a single character</source>
        <translation>kein Platz für ein einziges Zeichen</translation>
    </message>
    <message>
        <source>no settings</source>
        <translation>keine Einstellungen</translation>
    </message>
    <message>
        <source>no settings, %1 at byte %2</source>
        <translation>keine Einstellungen, %1 bei Byte %2</translation>
    </message>
    <message>
        <source>no settings, the file is too large</source>
        <translation>keine Einstellungen, die Datei ist zu groß</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>not valid</source>
        <translation>ist ungültig</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>settings keep no </source>
        <translation>Einstellungen behalten nichts vom Typ </translation>
    </message>
    <message>
        <source>settings keep no objects but pictures</source>
        <translation>Einstellungen behalten keine Objekte außer Bildern</translation>
    </message>
    <message>
        <source>square root of a negative number</source>
        <translation>Wurzel aus einer negativen Zahl</translation>
    </message>
    <message>
        <source>standard deviations</source>
        <translation>Standardabweichungen</translation>
    </message>
    <message>
        <source>subscript out of range</source>
        <translation>Index außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>the canvas failed in </source>
        <translation>die Zeichenfläche versagt: </translation>
    </message>
    <message>
        <source>the end of the print job</source>
        <translation>Ende des Druckauftrags</translation>
    </message>
    <message>
        <source>the file could not be written as a whole</source>
        <translation>die Datei ließ sich nicht vollständig schreiben</translation>
    </message>
    <message>
        <source>the making of a picture</source>
        <translation>Anlegen eines Bildes</translation>
    </message>
    <message>
        <source>the number of sites</source>
        <translation>die Zahl der Messpunkte</translation>
    </message>
    <message>
        <source>the print job has ended</source>
        <translation>der Druckauftrag ist beendet</translation>
    </message>
    <message>
        <source>the printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>the size of a picture</source>
        <translation>die Größe eines Bildes</translation>
    </message>
    <message>
        <source>the start of a page</source>
        <translation>Beginn einer Seite</translation>
    </message>
    <message>
        <source>the start of the print job</source>
        <translation>Beginn des Druckauftrags</translation>
    </message>
    <message>
        <source>the start of the print job: the system has no printer</source>
        <translation>Beginn des Druckauftrags: das System hat keinen Drucker</translation>
    </message>
    <message>
        <source>the value does not fit its integer type</source>
        <translation>der Wert ist zu groß für seinen ganzzahligen Typ</translation>
    </message>
    <message>
        <source>there is no picture to extend</source>
        <translation>es gibt kein Bild zum Erweitern</translation>
    </message>
    <message>
        <source>there is no wafer to write of</source>
        <translation>es gibt keinen Wafer zum Beschriften</translation>
    </message>
    <message>
        <source>there is nothing to print on</source>
        <translation>es gibt kein Ziel für den Druck</translation>
    </message>
    <message>
        <source>unit of the interval</source>
        <translation>Einheit des Intervalls</translation>
    </message>
</context>
<context>
    <name>examples</name>
    <message>
        <source>  %1 %  </source>
        <translation>  %1 %  </translation>
    </message>
    <message>
        <source>%1

%2</source>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 - Wafer viewer</source>
        <translation>%1 - Waferbetrachter</translation>
    </message>
    <message>
        <source>%1 sites of this file cannot be plotted on a wafer of %2 mm diameter. Is the number of sites right?</source>
        <translation>%1 Messpunkte dieser Datei lassen sich auf einem Wafer mit %2 mm Durchmesser nicht darstellen. Stimmt die Zahl der Messpunkte?</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, page %2 of %3</source>
        <translation>%1, Seite %2 von %3</translation>
    </message>
    <message>
        <source>&amp;About this plot...</source>
        <translation>&amp;Info zu diesem Plot...</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Design use</source>
        <translation>En&amp;twurfsmodus</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Flat</source>
        <translation>&amp;Abflachung</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Lot report...</source>
        <translation>&amp;Losbericht...</translation>
    </message>
    <message>
        <source>&amp;Notch</source>
        <translation>&amp;Kerbe</translation>
    </message>
    <message>
        <source>&amp;Open CSV...</source>
        <translation>&amp;CSV öffnen...</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Plot options...</source>
        <translation>&amp;Plotoptionen...</translation>
    </message>
    <message>
        <source>&amp;Previous wafer</source>
        <translation>&amp;Vorheriger Wafer</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Wafer</source>
        <translation>&amp;Wafer</translation>
    </message>
    <message>
        <source>&amp;Whole page</source>
        <translation>Ganze &amp;Seite</translation>
    </message>
    <message>
        <source>--%1 is a diameter in millimetres, above 0 and at most 1000, and not "%2"</source>
        <translation>--%1 ist ein Durchmesser in Millimetern, größer als 0 und höchstens 1000, und nicht "%2"</translation>
    </message>
    <message>
        <source>Alt+Return</source>
        <translation>Alt+Return</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Colour map</source>
        <translation>Farbkarte</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Ctrl+PgDown</source>
        <translation>Ctrl+PgDown</translation>
    </message>
    <message>
        <source>Ctrl+PgUp</source>
        <translation>Ctrl+PgUp</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Diameter that the plot fills in this run, 6 mm less than a given wafer diameter unless given or kept.</source>
        <translation>Durchmesser, den der Plot in diesem Lauf füllt; 6 mm weniger als ein angegebener Waferdurchmesser, wenn weder angegeben noch gesichert.</translation>
    </message>
    <message>
        <source>Export &amp;SVG...</source>
        <translation>&amp;SVG exportieren...</translation>
    </message>
    <message>
        <source>Export P&amp;DF...</source>
        <translation>&amp;PDF exportieren...</translation>
    </message>
    <message>
        <source>Export P&amp;NG...</source>
        <translation>P&amp;NG exportieren...</translation>
    </message>
    <message>
        <source>Export PDF</source>
        <translation>PDF exportieren</translation>
    </message>
    <message>
        <source>Export PNG</source>
        <translation>PNG exportieren</translation>
    </message>
    <message>
        <source>Export SVG</source>
        <translation>SVG exportieren</translation>
    </message>
    <message>
        <source>Folder that keeps the settings of the plots and of the window.</source>
        <translation>Ordner für die Einstellungen der Plots und des Fensters.</translation>
    </message>
    <message>
        <source>Hi/Lo %</source>
        <translation>Max/Min %</translation>
    </message>
    <message>
        <source>Hide &amp;legend</source>
        <translation>&amp;Legende ausblenden</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation>Linienscan</translation>
    </message>
    <message>
        <source>Lot report</source>
        <translation>Losbericht</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Ne&amp;xt wafer</source>
        <translation>&amp;Nächster Wafer</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>Es ist keine Datei geöffnet.</translation>
    </message>
    <message>
        <source>Not all settings could be used. The usual ones stand in for them; a broken file is left as it is.</source>
        <translation>Nicht alle Einstellungen waren zu gebrauchen. An ihrer Stelle gelten die üblichen; eine beschädigte Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Number of sites:</source>
        <translation>Zahl der Messpunkte:</translation>
    </message>
    <message>
        <source>Open &amp;binary...</source>
        <translation>&amp;Binärdatei öffnen...</translation>
    </message>
    <message>
        <source>Open CSV</source>
        <translation>CSV öffnen</translation>
    </message>
    <message>
        <source>Open binary</source>
        <translation>Binärdatei öffnen</translation>
    </message>
    <message>
        <source>P&amp;roperties...</source>
        <translation>&amp;Eigenschaften...</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>PNG (*.png)</source>
        <translation>PNG (*.png)</translation>
    </message>
    <message>
        <source>Print pre&amp;view...</source>
        <translation>Druck&amp;vorschau...</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Spannweite</translation>
    </message>
    <message>
        <source>SVG (*.svg)</source>
        <translation>SVG (*.svg)</translation>
    </message>
    <message>
        <source>Show &amp;sites</source>
        <translation>&amp;Messpunkte anzeigen</translation>
    </message>
    <message>
        <source>Shows the sites of wafers in nine plots, prints them and writes reports.</source>
        <translation>Zeigt die Messpunkte von Wafern in neun Plots, druckt sie und schreibt Berichte.</translation>
    </message>
    <message>
        <source>Sigma map</source>
        <translation>Sigmakarte</translation>
    </message>
    <message>
        <source>Sigma surface</source>
        <translation>Sigmafläche</translation>
    </message>
    <message>
        <source>Site %1 lies %2 mm from the centre, outside a wafer of %3 mm diameter.</source>
        <translation>Messpunkt %1 liegt %2 mm von der Mitte und damit außerhalb eines Wafers mit %3 mm Durchmesser.</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Messpunkte</translation>
    </message>
    <message>
        <source>Sites (*.csv);;All files (*)</source>
        <translation>Messpunkte (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Start with the usual settings and keep none.</source>
        <translation>Mit den üblichen Einstellungen beginnen und keine sichern.</translation>
    </message>
    <message>
        <source>Std dev</source>
        <translation>Std.-Abw.</translation>
    </message>
    <message>
        <source>Std dev %</source>
        <translation>Std.-Abw. %</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>The PDF file could not be written.</source>
        <translation>Die PDF-Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The SVG file could not be written.</source>
        <translation>Die SVG-Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file has a header, but no sites.</source>
        <translation>Die Datei hat eine Kopfzeile, aber keine Messpunkte.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is too short for %1 sites of 24 bytes.</source>
        <translation>Die Datei ist zu kurz für %1 Messpunkte zu 24 Byte.</translation>
    </message>
    <message>
        <source>The file is too short to hold a site.</source>
        <translation>Die Datei ist zu kurz für einen Messpunkt.</translation>
    </message>
    <message>
        <source>The lot report could not be written.</source>
        <translation>Der Losbericht konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The page is too small for a report.</source>
        <translation>Die Seite ist zu klein für einen Bericht.</translation>
    </message>
    <message>
        <source>The picture could not be written.</source>
        <translation>Das Bild konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The plot could not be printed.</source>
        <translation>Der Plot konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The plot is too small or has no data to print.</source>
        <translation>Der Plot ist zu klein oder hat keine Daten zum Drucken.</translation>
    </message>
    <message>
        <source>The plot refuses these sites (result %1).</source>
        <translation>Der Plot nimmt diese Messpunkte nicht an (Ergebnis %1).</translation>
    </message>
    <message>
        <source>The settings could not be kept:</source>
        <translation>Die Einstellungen konnten nicht gesichert werden:</translation>
    </message>
    <message>
        <source>The three columns differ in length.</source>
        <translation>Die drei Spalten sind verschieden lang.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Es gibt keinen Drucker.</translation>
    </message>
    <message>
        <source>These sites cannot be plotted: %1.</source>
        <translation>Diese Messpunkte lassen sich nicht darstellen: %1.</translation>
    </message>
    <message>
        <source>Unit of the values, for reports.</source>
        <translation>Einheit der Werte, für Berichte.</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Wafer diameter of this run, 300 unless given or kept.</source>
        <translation>Waferdurchmesser für diesen Lauf, 300, wenn weder angegeben noch gesichert.</translation>
    </message>
    <message>
        <source>Wafer viewer</source>
        <translation>Waferbetrachter</translation>
    </message>
    <message>
        <source>Wafers to show, with the sites of one each: x_mm,y_mm,z.</source>
        <translation>Wafer, die gezeigt werden, jede Datei mit den Messpunkten eines Wafers: x_mm,y_mm,z.</translation>
    </message>
    <message>
        <source>Writing the lot report...</source>
        <translation>Der Losbericht wird geschrieben...</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>a plot takes %1 sites at most.</source>
        <translation>ein Plot fasst höchstens %1 Messpunkte.</translation>
    </message>
    <message>
        <source>lot</source>
        <translation>Los</translation>
    </message>
    <message>
        <source>the field %1 is empty.</source>
        <translation>das Feld %1 ist leer.</translation>
    </message>
    <message>
        <source>the field %1 is missing.</source>
        <translation>das Feld %1 fehlt.</translation>
    </message>
    <message>
        <source>the field %1 is no number: "%2".</source>
        <translation>das Feld %1 ist keine Zahl: "%2".</translation>
    </message>
    <message>
        <source>the header must be "x_mm,y_mm,z", but is "%1".</source>
        <translation>die Kopfzeile muss "x_mm,y_mm,z" lauten und nicht "%1".</translation>
    </message>
    <message>
        <source>there are %1 fields where 3 belong.</source>
        <translation>es hat %1 Felder statt 3.</translation>
    </message>
</context>
</TS>
