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
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;두 자리 숫자에는 배지가 없음</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;카메라 1로 이동</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;카메라 2로 이동</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;카메라 3으로 이동</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>100 중 0, 1, 50, 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>창보다 큰 그림</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>텍스트 없는 단일 탭</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>모든 소스가 다시 연결되었습니다.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>화살표</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>최댓값에서</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>최솟값에서, 더하기와 빼기</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>자동 돌출</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>뒤로에 포인터</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>뒤로 눌림</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>내용 옆</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>빈 %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>상자</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>버퍼</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>버스 %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>버스 A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>작업 중</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>단추</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>단추와 레이블</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>카메라 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>카메라 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>확인란</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>확인란과 라디오 단추</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>선택됨</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>선택한 항목</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>이 레이블을 클릭하세요</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>클릭 가능한 레이블</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>클라이언트</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>클립</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>클립 %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>클립 이름</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>클립 플레이어</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>콤보 상자</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>명령 링크</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>컨테이너</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>컷</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>지연 단추</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>다이얼</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>디졸브</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>아래 눌림</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>편집 가능</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>편집 가능, 아이콘</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>효과</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>평면</translation>
    </message>
    <message>
        <source>Flat default</source>
        <translation>평면, 기본값</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>포커스 있음</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>글꼴</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>0.5초</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>핸들에 포인터</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>핸들 눌림</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>가로선</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>가로 진행률 표시줄</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>가로 슬라이더</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>포인터 올림</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>아이콘</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>아이콘만</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>반전</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>레벨, 시간, 날짜</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>미디어</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>즉시 메뉴</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>화살표에 메뉴</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>믹스</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>혼합 선택</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>단추 없음</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>번호 없음</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>눈금 없음</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>전환 불가: 지연 없음</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>선택하지 않음</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>편집 불가</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>편집 불가, 편집 가능</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>편집 불가, 아이콘</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>온에어</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>켜짐, 포인터 올림</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>켜짐, 눌림</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열림</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>열린 목록</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>마지막 쇼 열기</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>같은 프레임의 다른 항목</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>%1 위</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>내용 위</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>일부 선택됨</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>더하기와 빼기</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>X 위치</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Y 위치</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>눌림</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>진행률 표시줄</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>프록시 스타일</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>누름 단추</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>ID로 설정하는 라디오 단추</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>돌출</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>녹화</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>렌더링</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>스크롤 막대</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>슬라이더와 다이얼</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>스핀 상자</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>오목</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>스위치</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>테이크</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>높은</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>아이콘 옆 텍스트</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>텍스트 탭은 너비가 같고, 텍스트 없는 탭은 막대를 채웁니다.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>아이콘 아래 텍스트</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>위쪽 눈금</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>아래쪽 눈금</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>양쪽 눈금</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>제목만</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>자막</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>도구 단추</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>도구 단추</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>2초</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>선택 안 됨</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>위에 포인터</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>위 눌림</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>세로 진행률 표시줄</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>세로 슬라이더</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>세로, 양쪽</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>세로, 반전</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>세로, 눈금 없음</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>세로, 왼쪽 눈금</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>세로, 오른쪽 눈금</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>와이프</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>아이콘 있음</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>메뉴 있음</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>눈금 있음</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>프레임 없음</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>텍스트 없음</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>순환</translation>
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
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>최댓값</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>최솟값</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>하한</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>상한</translation>
    </message>
</context>
</TS>
