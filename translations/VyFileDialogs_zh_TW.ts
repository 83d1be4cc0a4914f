<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>西歐語言</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>丹麥文、冰島文、西班牙文、法文、芬蘭文、英文、挪威文、馬爾他文、荷蘭文、瑞典文、義大利文、葡萄牙文、德文</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中歐語言</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>匈牙利文、克羅埃西亞文、波蘭文、阿爾巴尼亞文、捷克文、斯洛伐克文、斯洛維尼亞文、羅馬尼亞文</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>波羅的海語言</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>立陶宛文、拉脫維亞文、愛沙尼亞文</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里爾文</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>白俄羅斯文、俄文、保加利亞文、哈薩克文、烏克蘭文、馬其頓文、塞爾維亞文、蒙古文</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希臘文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其文</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>土耳其文、亞塞拜然文、烏茲別克文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯來文</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>希伯來文、意第緒文</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯文</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>波斯文、阿拉伯文、烏都文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓文</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰文</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南文</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>所有語言</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>西歐語言 (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>西歐語言 (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>西歐語言 (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>西歐語言 (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>美國 (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>英文 (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>馬爾他文與南歐語言 (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>葡萄牙文 (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>冰島文 (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>加拿大法文 (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>北歐語言 (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>中歐語言 (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>中歐語言 (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>中歐語言 (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>波羅的海語言 (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>波羅的海語言 (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>西里爾文 (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>西里爾文 (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>俄文 (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>西里爾文 (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>希臘文 (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>希臘文 (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>希臘文 (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>土耳其文 (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>土耳其文 (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>土耳其文 (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>希伯來文 (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>希伯來文 (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>阿拉伯文 (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>阿拉伯文 (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>阿拉伯文 (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>日文 Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>日文 Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>簡體中文 GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>簡體中文 (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>繁體中文 Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>繁體中文 (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>韓文 (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>韓文 Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>韓文 Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>韓文 Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>泰文 (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>越南文 (Windows)</translation>
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
        <translation>沒有符合搜尋內容的編碼。</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>以唯讀方式開啟(&amp;R)</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>以指定編碼開啟</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>語言、名稱或編號</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>搜尋(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>圖面文字的編碼(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>以此編碼顯示的範例文字(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>以此編碼顯示的圖面文字(&amp;T)：</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>部分文字不存在於此編碼中。</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>此編碼無法在此顯示，但可以選擇。</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>開啟(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>不使用樣板開啟 - 英制</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>不使用樣板開啟 - 公制</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存新檔</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>多個檔案</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>不使用樣板開啟 - 英制</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>不使用樣板開啟 - 公制</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>以唯讀方式開啟</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>以指定編碼開啟...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>檔案型態：</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>開啟方式：</translation>
    </message>
</context>
</TS>
