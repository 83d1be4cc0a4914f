<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Zachodnioeuropejski</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Angielski, duński, fiński, francuski, hiszpański, islandzki, maltański, niderlandzki, niemiecki, norweski, portugalski, szwedzki, włoski</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Środkowoeuropejski</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albański, chorwacki, czeski, polski, rumuński, słowacki, słoweński, węgierski</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Bałtycki</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estoński, litewski, łotewski</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrylica</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Białoruski, bułgarski, kazachski, macedoński, mongolski, rosyjski, serbski, ukraiński</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Grecki</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turecki</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Azerbejdżański, turecki, uzbecki</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebrajski</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Hebrajski, jidysz</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabski</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Arabski, perski, urdu</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japoński</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chiński</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreański</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tajski</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Wietnamski</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>Wszystkie języki</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Zachodnioeuropejski (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Zachodnioeuropejski (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Zachodnioeuropejski (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Zachodnioeuropejski (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>Stany Zjednoczone (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Angielski (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltański i południowoeuropejski (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Portugalski (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Islandzki (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Francuski kanadyjski (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Nordycki (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Środkowoeuropejski (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Środkowoeuropejski (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Środkowoeuropejski (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Bałtycki (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Bałtycki (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Cyrylica (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Cyrylica (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Rosyjski (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Cyrylica (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Grecki (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Grecki (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Grecki (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>Turecki (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>Turecki (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>Turecki (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>Hebrajski (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Hebrajski (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Arabski (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Arabski (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Arabski (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Japoński Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Japoński Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Chiński uproszczony GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chiński uproszczony (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Chiński tradycyjny Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Chiński tradycyjny (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>Koreański (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>Koreański Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>Koreański Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>Koreański Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>Tajski (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>Wietnamski (Windows)</translation>
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
        <translation>Żadne kodowanie nie pasuje do szukanego tekstu.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Otwórz tylko &amp;do odczytu</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Otwórz z kodowaniem</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Język, nazwa lub numer</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Szukaj:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>&amp;Kodowanie tekstu rysunku:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>&amp;Typowy tekst w tym kodowaniu:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Tekst rysunku w tym kodowaniu:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Część tego tekstu nie istnieje w tym kodowaniu.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Tego kodowania nie można tu wyświetlić, ale można je wybrać.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Otwórz bez szablonu - Calowe</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Otwórz bez szablonu - Metryczne</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Zachowaj jako</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Wiele plików</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Otwórz bez szablonu - Calowe</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Otwórz bez szablonu - Metryczne</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Otwórz tylko do odczytu</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Otwórz z kodowaniem...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Pliki rodzaju:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Tryb otwierania:</translation>
    </message>
</context>
</TS>
