<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Europa Ocidental</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Alemão, dinamarquês, espanhol, finlandês, francês, holandês, inglês, islandês, italiano, maltês, norueguês, português, sueco</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europa Central</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albanês, croata, eslovaco, esloveno, húngaro, polonês, romeno, tcheco</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Báltico</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estoniano, letão, lituano</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirílico</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Bielorrusso, búlgaro, cazaque, macedônio, mongol, russo, sérvio, ucraniano</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Grego</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Azerbaijano, turco, uzbeque</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebraico</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Hebraico, iídiche</translation>
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
        <translation>Japonês</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinês</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandês</translation>
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
        <translation>Todos os idiomas</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Europa Ocidental (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Europa Ocidental (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Europa Ocidental (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Europa Ocidental (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>Estados Unidos (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Inglês (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltês e Europa Meridional (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Português (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Islandês (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Francês canadense (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Nórdico (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Europa Central (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Europa Central (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Europa Central (DOS)</translation>
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
        <translation>Russo (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Cirílico (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Grego (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Grego (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Grego (DOS)</translation>
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
        <translation>Hebraico (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Hebraico (ISO)</translation>
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
        <translation>Japonês Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Japonês Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Chinês simplificado GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chinês simplificado (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Chinês tradicional Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Chinês tradicional (Big5)</translation>
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
        <translation>Tailandês (Windows)</translation>
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
        <translation>Nenhuma codificação corresponde à pesquisa.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Abrir como somente &amp;leitura</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Abrir com codificação</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Idioma, nome ou número</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Pesquisar:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>Codificação do texto do &amp;desenho:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>&amp;Texto típico nesta codificação:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Texto do desenho nesta codificação:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Parte deste texto não existe nesta codificação.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Esta codificação não pode ser exibida aqui, mas pode ser escolhida.</translation>
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
        <translation>Abrir sem modelo - Imperial</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Abrir sem modelo - Métrico</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Vários arquivos</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Abrir sem modelo - Imperial</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Abrir sem modelo - Métrico</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Abrir como somente leitura</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Abrir com codificação...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Arquivos do tipo:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Modo de abertura:</translation>
    </message>
</context>
</TS>
