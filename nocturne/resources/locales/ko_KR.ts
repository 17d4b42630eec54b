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
        <source>Exact</source>
        <translation>정확</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>읽기 쉬움</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>어둡게</translation>
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
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>열기(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>쇼(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>소스가 없습니다.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>들어가기에 너무 긴 제목</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>도구 설명</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>위, 두 번째</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>위, 둘째 줄</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>카메라 %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>카메라, 플레이어, 자막</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>채널</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>선택됨, 사용 안 함</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>선택됨, 아이콘 있음</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>닫기·이동 가능, 아이콘 있음</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>마지막 쇼의 소스 복사</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>대화 상자와 도구 설명</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>문서 모드, 탭 하나 사용 안 함</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>저녁 쇼</translation>
    </message>
    <message>
        <source>First</source>
        <translation>첫째</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>그룹 상자와 프레임</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>유지</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>비활성 창</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>안쪽</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>입력란</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>목록, 표, 트리</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>주 창</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>최대화에 포인터</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>최대화 눌림</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>최대화됨</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>최소화됨</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>최소화된 창</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>믹서</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>공간보다 많은 탭</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>쇼 이름</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>새 쇼</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>선택 안 됨</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>선택 안 됨, 아이콘 있음</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>더 없음</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>둘 중 하나</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>열기…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>패널</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>프리뷰</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>자막을 올립니다.
검은 화면으로 페이드.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>선택 테두리</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>닫기 전에 저장할까요?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>둘째</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>구역</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>여러 줄</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>말아 올린 창</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>쇼 %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>소스 %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>소스</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>스타일 패널</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>기본 항목</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>다른 하나</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>큐시트가 마지막 저장 이후 변경되었습니다.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>오른쪽 맞춤 제목</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>삼각형, 위</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>삼각형, 아래</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>삼각형, 왼쪽</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>삼각형, 오른쪽</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>세로 제목</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>이름이 무엇인가요?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>도움말이 있는 창</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>창 안의 창</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>지우기 단추 있음</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>힌트 있음</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>선택 영역 있음</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>아이콘 있음</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>램프: 눌러서 추가, 끌어서 이동, 밖으로 끌어서 제거, 두 번 클릭하여 색 선택</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>선택한 색의 불투명도</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>단추: 클릭하면 대화 상자, 색을 다른 색 위로 끌기</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(적용됨)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(미리 보기)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>막대와 점</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>깜박임</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>색</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>무대 왼쪽</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>무대 오른쪽</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>클립</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>인트로</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>인터뷰</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>레코더</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>출력 없음</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>모든 출력</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>미정</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>오늘 밤 스튜디오에서 생방송</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>그룹화됨</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>해당 목록</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>모두 선택 안 됨</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>일부 항목 선택됨</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>모두 선택됨</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>항목 없음</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>이들의 목록</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>미리 보기가 있는 글꼴</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>그룹 및 확인란 콤보 상자</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>질문</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>위험</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>메시지 상자</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>다음 큐를 라이브로 내보낼까요?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>이제부터 사용자 단추 텍스트 사용</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>라이브로 내보내기</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>풍선 도움말</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>화살표</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>녹화 디스크에 5분 분량의 공간이 남았습니다.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>파일 선택기</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>미디어 파일</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>최근 비디오</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>보고된 값</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>레터박스</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>크기 조정 지연</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>여백</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>대화 상자와 선택기</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>놓은 파일은 아래에 표시됩니다</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(로컬 파일이 아님)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>여기에 파일 놓기</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>항목 대리자로 그린 아이콘</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>클립을 다른 클립 위로 끌어 놓으세요.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>목록 끝</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1을(를) 놓은 위치: %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>이동은 알리고 호스트가 이동</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>보이는 그대로 끌리는 행</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>선택한 행을 끄세요.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>끌어서 놓기 목록</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>수신</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>메시지 %1개</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>학습</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>가상 포트 열기</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>열린 포트가 없습니다.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>MIDI 서비스가 실행 중이 아니거나 포트가 없습니다.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1이(가) 열려 있습니다.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1이(가) 사라졌습니다.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>가상 포트 %1을(를) 요청했습니다.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>출력으로 보내기</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>노트 (누르고 있기)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>컨트롤러 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>레벨에 쓸 메시지 학습</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>초당 10,000개 메시지 스트림 시뮬레이션</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>링</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>막대</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>대기 휠</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>회색 휠 돌리기</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>클립 트리밍</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>프레임 %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>인 %1   아웃 %2   길이 %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>범위 핸들</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>대칭 이동</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>실시간 추적</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>구간</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>핸들 교차 가능</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>핸들이 만남</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>핸들 간격 유지</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>눈금 있음</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: 실행됨</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>입력란을 클릭한 다음 키를 누르세요</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>다음 큐</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>암전</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>이 페이지의 바로 가기 키입니다. 어느 입력란에도 포커스가 없을 때 작동합니다.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>바로 가기 키</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>클릭하여 이동, 끌기, 포인터 올리기</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>건너뛰기 없음</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>신호 없이 레벨을 30으로 설정</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>페이더</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>페이더</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>슬라이더</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>검색란, 비어 있음</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>인터뷰</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>검색란, 텍스트 있음</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>오프닝 타이틀, 두 번째 버전</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>맞는 레이블</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>오른쪽 잘림</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>가운데 잘림</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>왼쪽 잘림</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>편집 중</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>이름을 클릭하면 편집할 수 있습니다.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>“%1”(으)로 이름 변경됨</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>텍스트 입력란</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(새 편집)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>숫자 위에서 끌기, 클릭하여 입력</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>끄는 속도는 Ctrl을 누르면 두 배, Shift를 누르면 절반이 됩니다.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>혼합 선택을 --로 표시</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>포트 열기</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>라이브러리 고유 위젯</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>표준 컨트롤</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>가상 컨트롤러</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>색상 정지점 %1</translation>
    </message>
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
