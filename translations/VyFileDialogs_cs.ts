<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Západoevropské jazyky</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Angličtina, dánština, finština, francouzština, islandština, italština, maltština, němčina, nizozemština, norština, portugalština, španělština, švédština</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Středoevropské jazyky</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albánština, čeština, chorvatština, maďarština, polština, rumunština, slovenština, slovinština</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Pobaltské jazyky</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estonština, litevština, lotyština</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrilice</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Běloruština, bulharština, kazaština, makedonština, mongolština, ruština, srbština, ukrajinština</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Řečtina</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turečtina</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Ázerbájdžánština, turečtina, uzbečtina</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebrejština</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Hebrejština, jidiš</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabština</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Arabština, perština, urdština</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonština</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Čínština</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Korejština</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thajština</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamština</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>Libovolný jazyk</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Západoevropské jazyky (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Západoevropské jazyky (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Západoevropské jazyky (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Západoevropské jazyky (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>Spojené státy (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Angličtina (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltština a jihoevropské jazyky (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Portugalština (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Islandština (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Kanadská francouzština (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Severské jazyky (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Středoevropské jazyky (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Středoevropské jazyky (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Středoevropské jazyky (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Pobaltské jazyky (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Pobaltské jazyky (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Cyrilice (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Cyrilice (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Ruština (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Cyrilice (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Řečtina (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Řečtina (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Řečtina (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>Turečtina (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>Turečtina (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>Turečtina (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>Hebrejština (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Hebrejština (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Arabština (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Arabština (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Arabština (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Japonština Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Japonština Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Zjednodušená čínština GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Zjednodušená čínština (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Tradiční čínština Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Tradiční čínština (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>Korejština (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>Korejština Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>Korejština Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>Korejština Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>Thajština (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamština (Windows)</translation>
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
        <translation>Hledání neodpovídá žádné kódování.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Otevřít &amp;jen pro čtení</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Otevřít s kódováním</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Jazyk, název nebo číslo</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Hledat:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>&amp;Kódování textu výkresu:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>Ukázkový &amp;text v tomto kódování:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Text výkresu v tomto kódování:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Část tohoto textu v tomto kódování neexistuje.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Toto kódování zde nelze zobrazit, lze je však vybrat.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Otevřít bez šablony – imperiální</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Otevřít bez šablony – metrické</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Uložit jako</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Více souborů</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Otevřít bez šablony – imperiální</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Otevřít bez šablony – metrické</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Otevřít jen pro čtení</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Otevřít s kódováním...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Soubory typu:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Způsob otevření:</translation>
    </message>
</context>
</TS>
