<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Europa occidentale</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Danese, finlandese, francese, inglese, islandese, italiano, maltese, norvegese, olandese, portoghese, spagnolo, svedese, tedesco</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europa centrale</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albanese, ceco, croato, polacco, rumeno, slovacco, sloveno, ungherese</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltico</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estone, lettone, lituano</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirillico</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Bielorusso, bulgaro, kazako, macedone, mongolo, russo, serbo, ucraino</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Greco</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Azerbaigiano, turco, uzbeco</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Ebraico</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Ebraico, yiddish</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabo</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Arabo, persiano, urdu</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Cinese</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailandese</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamita</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>Tutte le lingue</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Europa occidentale (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Europa occidentale (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Europa occidentale (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Europa occidentale (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>Stati Uniti (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Inglese (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltese ed Europa meridionale (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Portoghese (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Islandese (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Francese canadese (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Nordico (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Europa centrale (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Europa centrale (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Europa centrale (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Baltico (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Baltico (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Cirillico (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Cirillico (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Russo (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Cirillico (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Greco (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Greco (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Greco (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>Turco (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>Turco (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>Turco (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>Ebraico (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Ebraico (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Arabo (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Arabo (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Arabo (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Giapponese Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Giapponese Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Cinese semplificato GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Cinese semplificato (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Cinese tradizionale Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Cinese tradizionale (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>Coreano (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>Coreano Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>Coreano Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>Coreano Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>Thailandese (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamita (Windows)</translation>
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
        <translation>Nessuna codifica corrisponde alla ricerca.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Apri in sola &amp;lettura</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Apri con codifica</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Lingua, nome o numero</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Cerca:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>Codifica del testo del &amp;disegno:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>&amp;Testo tipico in questa codifica:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Testo del disegno in questa codifica:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Una parte di questo testo non esiste in questa codifica.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Questa codifica non può essere visualizzata qui, ma può essere scelta.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Apri senza modello - Imperiale</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Apri senza modello - Metrico</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva come</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Più file</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Apri senza modello - Imperiale</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Apri senza modello - Metrico</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Apri in sola lettura</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Apri con codifica...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>File di tipo:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Modalità di apertura:</translation>
    </message>
</context>
</TS>
