<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>西欧语言</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>冰岛语、丹麦语、德语、法语、芬兰语、荷兰语、马耳他语、挪威语、葡萄牙语、瑞典语、西班牙语、意大利语、英语</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中欧语言</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>阿尔巴尼亚语、波兰语、捷克语、克罗地亚语、罗马尼亚语、斯洛伐克语、斯洛文尼亚语、匈牙利语</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>波罗的海语言</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>爱沙尼亚语、拉脱维亚语、立陶宛语</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里尔文</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>白俄罗斯语、保加利亚语、俄语、哈萨克语、马其顿语、蒙古语、塞尔维亚语、乌克兰语</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊语</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>阿塞拜疆语、土耳其语、乌兹别克语</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯来语</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>希伯来语、意第绪语</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯语</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>阿拉伯语、波斯语、乌尔都语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰语</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南语</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>所有语言</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>西欧语言 (Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>西欧语言 (ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>西欧语言 (Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>西欧语言 (DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>美国 (DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>英语 (US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>马耳他语和南欧语言 (ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>葡萄牙语 (DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>冰岛语 (DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>加拿大法语 (DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>北欧语言 (DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>中欧语言 (Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>中欧语言 (ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>中欧语言 (DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>波罗的海语言 (Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>波罗的海语言 (ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>西里尔文 (Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>西里尔文 (ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>俄语 (DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>西里尔文 (DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>希腊语 (Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>希腊语 (ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>希腊语 (DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>土耳其语 (Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>土耳其语 (ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>土耳其语 (DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>希伯来语 (Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>希伯来语 (ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>阿拉伯语 (Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>阿拉伯语 (ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>阿拉伯语 (DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>日语 Shift-JIS (Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>日语 Shift-JIS (DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>简体中文 GBK (Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>简体中文 (GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>繁体中文 Big5 (Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>繁体中文 (Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>韩语 (Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>韩语 Wansung (KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>韩语 Johab (Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>韩语 Johab (KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>泰语 (Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>越南语 (Windows)</translation>
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
        <translation>没有与搜索内容匹配的编码。</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>以只读方式打开(&amp;R)</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>以指定编码打开</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>语言、名称或编号</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>搜索(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>图纸文字的编码(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>以此编码显示的示例文字(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>以此编码显示的图纸文字(&amp;T)：</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>部分文字在此编码中不存在。</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>此编码无法在此处显示，但可以选择。</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>无样板打开 - 英制</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>无样板打开 - 公制</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>多个文件</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>无样板打开 - 英制</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>无样板打开 - 公制</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>以只读方式打开</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>以指定编码打开...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>打开方式：</translation>
    </message>
</context>
</TS>
