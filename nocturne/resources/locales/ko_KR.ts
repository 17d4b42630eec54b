<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>미디어 (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>불러오기</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>미디어 (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 갤러리</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>오른쪽에서 왼쪽으로</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>테마</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>역할</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>활성</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>배경 %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>리소스</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>이름으로 필터링</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>이미지 %2개 중 %1개</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>라이브러리의 텍스트</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>색 선택</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
</context>
</TS>
