<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Central European</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thai</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unicode (UTF-16)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No encoding matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
