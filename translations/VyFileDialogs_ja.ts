<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>西ヨーロッパ言語</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>アイスランド語、イタリア語、英語、オランダ語、スウェーデン語、スペイン語、デンマーク語、ドイツ語、ノルウェー語、フィンランド語、フランス語、ポルトガル語、マルタ語</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中央ヨーロッパ言語</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>アルバニア語、クロアチア語、スロバキア語、スロベニア語、チェコ語、ハンガリー語、ポーランド語、ルーマニア語</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>バルト言語</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>エストニア語、ラトビア語、リトアニア語</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>キリル文字</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>ウクライナ語、カザフ語、セルビア語、ブルガリア語、ベラルーシ語、マケドニア語、モンゴル語、ロシア語</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>トルコ語</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>アゼルバイジャン語、ウズベク語、トルコ語</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ語</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>イディッシュ語、ヘブライ語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア語</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>アラビア語、ウルドゥー語、ペルシア語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中国語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ベトナム語</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>すべての言語</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>西ヨーロッパ言語 (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>西ヨーロッパ言語 (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>西ヨーロッパ言語 (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>西ヨーロッパ言語 (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>米国 (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>英語 (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>マルタ語・南ヨーロッパ言語 (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>ポルトガル語 (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>アイスランド語 (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>カナダ フランス語 (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>北欧言語 (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>中央ヨーロッパ言語 (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>中央ヨーロッパ言語 (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>中央ヨーロッパ言語 (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>バルト言語 (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>バルト言語 (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>キリル文字 (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>キリル文字 (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>ロシア語 (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>キリル文字 (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>ギリシャ語 (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>ギリシャ語 (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>ギリシャ語 (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>トルコ語 (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>トルコ語 (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>トルコ語 (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>ヘブライ語 (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>ヘブライ語 (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>アラビア語 (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>アラビア語 (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>アラビア語 (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>日本語 Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>日本語 Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>簡体字中国語 GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>簡体字中国語 (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>繁体字中国語 Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>繁体字中国語 (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>韓国語 (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>韓国語 Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>韓国語 Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>韓国語 Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>タイ語 (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>ベトナム語 (Windows)</translation>
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
        <translation>検索に一致する文字コードはありません。</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>読み取り専用で開く(&amp;R)</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>文字コードを指定して開く</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>言語、名前または番号</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>検索(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>図面の文字コード(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>この文字コードで表示した文字の例(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>この文字コードで表示した図面の文字(&amp;T):</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>この文字コードにない文字が含まれています。</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>この文字コードはここでは表示できませんが、選択できます。</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>テンプレートなしで開く - フィート/インチ</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>テンプレートなしで開く - メートル</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>複数のファイル</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>テンプレートなしで開く - フィート/インチ</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>テンプレートなしで開く - メートル</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>読み取り専用で開く</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>文字コードを指定して開く...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>ファイルの種類:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>開き方:</translation>
    </message>
</context>
</TS>
