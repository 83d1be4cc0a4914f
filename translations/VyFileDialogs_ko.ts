<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>CVyDlgEncoding</name>
    <message>
        <source>Western European</source>
        <translation>서유럽어</translation>
    </message>
    <message>
        <source>Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, Maltese, Norwegian, Portuguese, Spanish, Swedish</source>
        <translation>네덜란드어, 노르웨이어, 덴마크어, 독일어, 몰타어, 스웨덴어, 스페인어, 아이슬란드어, 영어, 이탈리아어, 포르투갈어, 프랑스어, 핀란드어</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>중앙 유럽어</translation>
    </message>
    <message>
        <source>Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian</source>
        <translation>루마니아어, 슬로바키아어, 슬로베니아어, 알바니아어, 체코어, 크로아티아어, 폴란드어, 헝가리어</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>발트어</translation>
    </message>
    <message>
        <source>Estonian, Latvian, Lithuanian</source>
        <translation>라트비아어, 리투아니아어, 에스토니아어</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>키릴 문자</translation>
    </message>
    <message>
        <source>Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian</source>
        <translation>러시아어, 마케도니아어, 몽골어, 벨라루스어, 불가리아어, 세르비아어, 우크라이나어, 카자흐어</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>그리스어</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>터키어</translation>
    </message>
    <message>
        <source>Azerbaijani, Turkish, Uzbek</source>
        <translation>아제르바이잔어, 우즈베크어, 터키어</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>히브리어</translation>
    </message>
    <message>
        <source>Hebrew, Yiddish</source>
        <translation>이디시어, 히브리어</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>아랍어</translation>
    </message>
    <message>
        <source>Arabic, Persian, Urdu</source>
        <translation>아랍어, 우르두어, 페르시아어</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>일본어</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>중국어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>태국어</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>베트남어</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>유니코드</translation>
    </message>
    <message>
        <source>Any language</source>
        <translation>모든 언어</translation>
    </message>
    <message>
        <source>Western European (Windows)</source>
        <translation>서유럽어(Windows)</translation>
    </message>
    <message>
        <source>Western European (ISO)</source>
        <translation>서유럽어(ISO)</translation>
    </message>
    <message>
        <source>Western European (Mac)</source>
        <translation>서유럽어(Mac)</translation>
    </message>
    <message>
        <source>Western European (DOS)</source>
        <translation>서유럽어(DOS)</translation>
    </message>
    <message>
        <source>United States (DOS)</source>
        <translation>미국(DOS)</translation>
    </message>
    <message>
        <source>English (US-ASCII)</source>
        <translation>영어(US-ASCII)</translation>
    </message>
    <message>
        <source>Maltese and South European (ISO)</source>
        <translation>몰타어 및 남유럽어(ISO)</translation>
    </message>
    <message>
        <source>Portuguese (DOS)</source>
        <translation>포르투갈어(DOS)</translation>
    </message>
    <message>
        <source>Icelandic (DOS)</source>
        <translation>아이슬란드어(DOS)</translation>
    </message>
    <message>
        <source>Canadian French (DOS)</source>
        <translation>캐나다 프랑스어(DOS)</translation>
    </message>
    <message>
        <source>Nordic (DOS)</source>
        <translation>북유럽어(DOS)</translation>
    </message>
    <message>
        <source>Central European (Windows)</source>
        <translation>중앙 유럽어(Windows)</translation>
    </message>
    <message>
        <source>Central European (ISO)</source>
        <translation>중앙 유럽어(ISO)</translation>
    </message>
    <message>
        <source>Central European (DOS)</source>
        <translation>중앙 유럽어(DOS)</translation>
    </message>
    <message>
        <source>Baltic (Windows)</source>
        <translation>발트어(Windows)</translation>
    </message>
    <message>
        <source>Baltic (ISO)</source>
        <translation>발트어(ISO)</translation>
    </message>
    <message>
        <source>Cyrillic (Windows)</source>
        <translation>키릴 문자(Windows)</translation>
    </message>
    <message>
        <source>Cyrillic (ISO)</source>
        <translation>키릴 문자(ISO)</translation>
    </message>
    <message>
        <source>Russian (DOS)</source>
        <translation>러시아어(DOS)</translation>
    </message>
    <message>
        <source>Cyrillic (DOS)</source>
        <translation>키릴 문자(DOS)</translation>
    </message>
    <message>
        <source>Greek (Windows)</source>
        <translation>그리스어(Windows)</translation>
    </message>
    <message>
        <source>Greek (ISO)</source>
        <translation>그리스어(ISO)</translation>
    </message>
    <message>
        <source>Greek (DOS)</source>
        <translation>그리스어(DOS)</translation>
    </message>
    <message>
        <source>Turkish (Windows)</source>
        <translation>터키어(Windows)</translation>
    </message>
    <message>
        <source>Turkish (ISO)</source>
        <translation>터키어(ISO)</translation>
    </message>
    <message>
        <source>Turkish (DOS)</source>
        <translation>터키어(DOS)</translation>
    </message>
    <message>
        <source>Hebrew (Windows)</source>
        <translation>히브리어(Windows)</translation>
    </message>
    <message>
        <source>Hebrew (ISO)</source>
        <translation>히브리어(ISO)</translation>
    </message>
    <message>
        <source>Arabic (Windows)</source>
        <translation>아랍어(Windows)</translation>
    </message>
    <message>
        <source>Arabic (ISO)</source>
        <translation>아랍어(ISO)</translation>
    </message>
    <message>
        <source>Arabic (DOS)</source>
        <translation>아랍어(DOS)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (Windows)</source>
        <translation>일본어 Shift-JIS(Windows)</translation>
    </message>
    <message>
        <source>Japanese Shift-JIS (DOS)</source>
        <translation>일본어 Shift-JIS(DOS)</translation>
    </message>
    <message>
        <source>Simplified Chinese GBK (Windows)</source>
        <translation>중국어 간체 GBK(Windows)</translation>
    </message>
    <message>
        <source>Simplified Chinese (GB 2312)</source>
        <translation>중국어 간체(GB 2312)</translation>
    </message>
    <message>
        <source>Traditional Chinese Big5 (Windows)</source>
        <translation>중국어 번체 Big5(Windows)</translation>
    </message>
    <message>
        <source>Traditional Chinese (Big5)</source>
        <translation>중국어 번체(Big5)</translation>
    </message>
    <message>
        <source>Korean (Windows)</source>
        <translation>한국어(Windows)</translation>
    </message>
    <message>
        <source>Korean Wansung (KS C 5601)</source>
        <translation>한국어 완성형 Wansung(KS C 5601)</translation>
    </message>
    <message>
        <source>Korean Johab (Windows)</source>
        <translation>한국어 조합형 Johab(Windows)</translation>
    </message>
    <message>
        <source>Korean Johab (KS C 5601)</source>
        <translation>한국어 조합형 Johab(KS C 5601)</translation>
    </message>
    <message>
        <source>Thai (Windows)</source>
        <translation>태국어(Windows)</translation>
    </message>
    <message>
        <source>Vietnamese (Windows)</source>
        <translation>베트남어(Windows)</translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation>유니코드(UTF-8)</translation>
    </message>
    <message>
        <source>Unicode (UTF-16)</source>
        <translation>유니코드(UTF-16)</translation>
    </message>
    <message>
        <source>No encoding matches the search.</source>
        <translation>검색과 일치하는 인코딩이 없습니다.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>읽기 전용으로 열기(&amp;R)</translation>
    </message>
    <message>
        <source>Open with Encoding</source>
        <translation>인코딩을 지정하여 열기</translation>
    </message>
    <message>
        <source>Language, name or number</source>
        <translation>언어, 이름 또는 번호</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>검색(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Encoding of the drawing&apos;s text:</source>
        <translation>도면 문자의 인코딩(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Typical text in this encoding:</source>
        <translation>이 인코딩으로 표시한 예시 문자(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Text of the drawing in this encoding:</source>
        <translation>이 인코딩으로 표시한 도면 문자(&amp;T):</translation>
    </message>
    <message>
        <source>Not all of this text exists in this encoding.</source>
        <translation>이 인코딩에 없는 문자가 포함되어 있습니다.</translation>
    </message>
    <message>
        <source>It cannot be shown here, but can be chosen.</source>
        <translation>이 인코딩은 여기에 표시할 수 없지만 선택할 수는 있습니다.</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogQt</name>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>템플릿 없이 열기 - 영국식</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>템플릿 없이 열기 - 미터법</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>다른 이름으로 저장</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogWidget</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>CVyFileDialogs</name>
    <message>
        <source>Multiple files</source>
        <translation>여러 파일</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open with no Template - Imperial</source>
        <translation>템플릿 없이 열기 - 영국식</translation>
    </message>
    <message>
        <source>Open with no Template - Metric</source>
        <translation>템플릿 없이 열기 - 미터법</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>읽기 전용으로 열기</translation>
    </message>
    <message>
        <source>Open with Encoding...</source>
        <translation>인코딩을 지정하여 열기...</translation>
    </message>
    <message>
        <source>Files of Type:</source>
        <translation>파일 형식:</translation>
    </message>
    <message>
        <source>Open mode:</source>
        <translation>열기 모드:</translation>
    </message>
</context>
</TS>
