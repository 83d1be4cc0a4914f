<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Europa occidental</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Alemán, danés, español, finés, francés, inglés, islandés, italiano, maltés, neerlandés, noruego, portugués, sueco</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europa central</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albanés, checo, croata, eslovaco, esloveno, húngaro, polaco, rumano</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Báltico</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estonio, letón, lituano</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirílico</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Bielorruso, búlgaro, kazajo, macedonio, mongol, ruso, serbio, ucraniano</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griego</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Azerbaiyano, turco, uzbeko</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebreo</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Hebreo, yidis</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Árabe</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Árabe, persa, urdu</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chino</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandés</translation>
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
        <translation>Todos los idiomas</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Europa occidental (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Europa occidental (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Europa occidental (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Europa occidental (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>Estados Unidos (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Inglés (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltés y Europa meridional (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Portugués (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Islandés (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Francés canadiense (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Nórdico (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Europa central (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Europa central (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Europa central (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Báltico (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Báltico (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Cirílico (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Cirílico (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Ruso (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Cirílico (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Griego (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Griego (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Griego (DOS)</translation>
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
        <translation>Hebreo (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Hebreo (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Árabe (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Árabe (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Árabe (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Japonés Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Japonés Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Chino simplificado GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chino simplificado (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Chino tradicional Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Chino tradicional (Big5)</translation>
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
        <translation>Tailandés (Windows)</translation>
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
        <translation>Ninguna codificación coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Abrir como solo &amp;lectura</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Abrir con codificación</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Idioma, nombre o número</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>C&amp;odificación del texto del dibujo:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>&amp;Texto típico en esta codificación:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Texto del dibujo en esta codificación:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Parte de este texto no existe en esta codificación.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Esta codificación no se puede mostrar aquí, pero sí elegir.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Abrir sin plantilla - Imperial</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Abrir sin plantilla - Métrico</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Varios ficheros</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Abrir sin plantilla - Imperial</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Abrir sin plantilla - Métrico</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Abrir como solo lectura</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Abrir con codificación...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Ficheros de tipo:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Modo de apertura:</translation>
    </message>
</context>
</TS>
