<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>Europe occidentale</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>Allemand, anglais, danois, espagnol, finnois, français, islandais, italien, maltais, néerlandais, norvégien, portugais, suédois</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europe centrale</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>Albanais, croate, hongrois, polonais, roumain, slovaque, slovène, tchèque</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Balte</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>Estonien, letton, lituanien</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrillique</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>Biélorusse, bulgare, kazakh, macédonien, mongol, russe, serbe, ukrainien</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Grec</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>Azerbaïdjanais, ouzbek, turc</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hébreu</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>Hébreu, yiddish</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabe</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>Arabe, ourdou, persan</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinois</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thaï</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamien</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>Toutes les langues</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>Europe occidentale (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>Europe occidentale (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>Europe occidentale (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>Europe occidentale (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>États-Unis (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>Anglais (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>Maltais et Europe méridionale (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>Portugais (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>Islandais (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>Français canadien (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>Nordique (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>Europe centrale (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>Europe centrale (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>Europe centrale (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>Balte (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>Balte (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>Cyrillique (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>Cyrillique (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>Russe (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>Cyrillique (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>Grec (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>Grec (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>Grec (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>Turc (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>Turc (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>Turc (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>Hébreu (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>Hébreu (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>Arabe (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>Arabe (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>Arabe (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>Japonais Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>Japonais Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>Chinois simplifié GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chinois simplifié (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>Chinois traditionnel Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>Chinois traditionnel (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>Coréen (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>Coréen Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>Coréen Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>Coréen Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>Thaï (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamien (Windows)</translation>
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
        <translation>Aucun encodage ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Ouvrir en &amp;lecture seule</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>Ouvrir avec l&apos;encodage</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>Langue, nom ou numéro</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>&amp;Encodage du texte du dessin&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>&amp;Texte type dans cet encodage&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>&amp;Texte du dessin dans cet encodage&#xa0;:</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>Une partie de ce texte n&apos;existe pas dans cet encodage.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>Cet encodage ne peut pas être affiché ici, mais il peut être choisi.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Ouvrir sans gabarit - Impérial</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Ouvrir sans gabarit - Métrique</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>Plusieurs fichiers</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>Ouvrir sans gabarit - Impérial</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>Ouvrir sans gabarit - Métrique</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Ouvrir en lecture seule</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>Ouvrir avec l&apos;encodage...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>Fichiers de type&#xa0;:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>Mode d&apos;ouverture&#xa0;:</translation>
    </message>
</context>
</TS>
