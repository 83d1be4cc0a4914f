<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Западноевропейские языки</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Английский, датский, исландский, испанский, итальянский, мальтийский, немецкий, нидерландский, норвежский, португальский, финский, французский, шведский</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Центральноевропейские языки</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Албанский, венгерский, польский, румынский, словацкий, словенский, хорватский, чешский</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Балтийские языки</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Латышский, литовский, эстонский</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Кириллица</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Белорусский, болгарский, казахский, македонский, монгольский, русский, сербский, украинский</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Греческий</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Турецкий</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Азербайджанский, турецкий, узбекский</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Иврит</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Иврит, идиш</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Арабский</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Арабский, персидский, урду</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Японский</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Китайский</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Корейский</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Тайский</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Вьетнамский</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Юникод</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>Любой язык</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Западноевропейская (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Западноевропейская (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Западноевропейская (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Западноевропейская (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>США (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Английская (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Мальтийская и южноевропейская (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Португальская (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Исландская (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Канадская французская (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Скандинавская (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Центральноевропейская (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Центральноевропейская (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Центральноевропейская (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Балтийская (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Балтийская (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Кириллица (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Кириллица (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Русская (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Кириллица (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Греческая (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Греческая (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Греческая (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>Турецкая (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>Турецкая (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>Турецкая (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>Иврит (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Иврит (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Арабская (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Арабская (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Арабская (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Японская Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Японская Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Китайская упрощённая GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Китайская упрощённая (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Китайская традиционная Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Китайская традиционная (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>Корейская (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>Корейская Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>Корейская Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>Корейская Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>Тайская (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>Вьетнамская (Windows)</translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation>Юникод (UTF-8)</translation>
    </message>
    <message>
        <source>Unicode (UTF-16)</source>
        <translation>Юникод (UTF-16)</translation>
    </message>
    <message>
        <source>No encoding matches the search.</source>
        <translation>Нет кодировок, соответствующих запросу.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Открыть только для &amp;чтения</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Открыть с указанием кодировки</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Язык, название или номер</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Поиск:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>&amp;Кодировка текста чертежа:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>Пример &amp;текста в этой кодировке:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Текст чертежа в этой кодировке:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>В этой кодировке есть не все символы этого текста.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Эту кодировку нельзя показать здесь, но можно выбрать.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Открыть без шаблона — британские единицы</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Открыть без шаблона — метрические единицы</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Несколько файлов</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Открыть без шаблона — британские единицы</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Открыть без шаблона — метрические единицы</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Открыть только для чтения</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Открыть с указанием кодировки...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Типы файлов:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Режим открытия:</translation>
    </message>
</context>
</TS>
