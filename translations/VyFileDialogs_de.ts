<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Westeuropäisch</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Dänisch, Deutsch, Englisch, Finnisch, Französisch, Isländisch, Italienisch, Maltesisch, Niederländisch, Norwegisch, Portugiesisch, Schwedisch, Spanisch</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Mitteleuropäisch</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albanisch, Kroatisch, Polnisch, Rumänisch, Slowakisch, Slowenisch, Tschechisch, Ungarisch</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltisch</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estnisch, Lettisch, Litauisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Belarussisch, Bulgarisch, Kasachisch, Mazedonisch, Mongolisch, Russisch, Serbisch, Ukrainisch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Aserbaidschanisch, Türkisch, Usbekisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Hebräisch, Jiddisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Arabisch, Persisch, Urdu</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>Alle Sprachen</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Westeuropäisch (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Westeuropäisch (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Westeuropäisch (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Westeuropäisch (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>Vereinigte Staaten (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Englisch (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltesisch und Südeuropäisch (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Portugiesisch (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Isländisch (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Kanadisches Französisch (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Nordisch (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Mitteleuropäisch (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Mitteleuropäisch (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Mitteleuropäisch (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Baltisch (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Baltisch (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Kyrillisch (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Kyrillisch (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Russisch (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Kyrillisch (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Griechisch (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Griechisch (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Griechisch (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>Türkisch (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>Türkisch (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>Türkisch (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>Hebräisch (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Hebräisch (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Arabisch (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Arabisch (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Arabisch (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Japanisch Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Japanisch Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Vereinfachtes Chinesisch GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Vereinfachtes Chinesisch (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Traditionelles Chinesisch Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Traditionelles Chinesisch (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>Koreanisch (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>Koreanisch Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>Koreanisch Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>Koreanisch Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>Thailändisch (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamesisch (Windows)</translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation>Unicode (UTF-8)</translation>
    </message>
    <message>
        <source>Unicode (UTF-16)</source>
        <translation>Unicode (UTF-16)</translation>
    </message>
    <message>
        <source>No encoding matches the search.</source>
        <translation>Keine Kodierung passt zur Suche.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Sch&amp;reibgeschützt öffnen</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Mit Kodierung öffnen</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Sprache, Name oder Nummer</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>&amp;Kodierung der Texte in der Zeichnung:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>&amp;Typischer Text in dieser Kodierung:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Texte der Zeichnung in dieser Kodierung:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Nicht alle Zeichen dieses Textes sind in dieser Kodierung vorhanden.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Diese Kodierung kann hier nicht angezeigt, aber trotzdem gewählt werden.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Ohne Vorlage öffnen - Britisch</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Ohne Vorlage öffnen - Metrisch</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Mehrere Dateien</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Ohne Vorlage öffnen - Britisch</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Ohne Vorlage öffnen - Metrisch</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Schreibgeschützt öffnen</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Mit Kodierung öffnen...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Dateien des Typs:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Öffnungsmodus:</translation>
    </message>
</context>
</TS>
